#include "tests/support/WholeShow.h"

namespace nv::test {

using platform::MessageBoxes;

WholeShow::WholeShow(const Scene& scene) : before(arranged(scene)), way_(scene.way) {
  messages.answerAny = [this](std::wstring_view text, MessageBoxes::Buttons buttons) {
    boxes.emplace_back(text);
    return buttons == MessageBoxes::Buttons::ok ? MessageBoxes::Answer::ok : MessageBoxes::Answer::yes;
  };
  installation.whenAsked = [this](const std::wstring& name) { question(name); };
  files.whenUsed = [this](const std::wstring& path) { question(path == errorLog ? L"the log" : path); };
  machine.whenAsked = [this] { question(L"the machine"); };
  shell.whenAsked = [this] { question(L"the shell"); };
  widgetset.whenAnyModal = [this](User& user) { work(user); };
}

Record WholeShow::arranged(const Scene& scene) {
  (this->*scene.biller)();
  Store& store = component.store;
  store.UseAcctvfy = scene.library;
  store.FormStyle = scene.style;
  store.windowsDirectory = L"C:\\WINDOWS\\";
  store.USBillPaymentURL = L"http://norvik.example";
  store.PayeeBusinessNum = L"100200308";
  store.PlayByPlayEnabled = scene.way == Scene::embedded ? flagTrue : flagFalse;
  for (const wchar_t* folder : {L"C:\\Apps\\Norvik", L"C:\\WINDOWS\\fonts"}) files.makeFolder(folder);
  files.put(L"C:\\Apps\\Resources\\segoeui.ttf", L"font");
  return record();
}

void WholeShow::question(const std::wstring& whom) {
  asked.push_back(whom);
  if (whenAsked) whenAsked();
}

std::int32_t WholeShow::play() {
  std::int32_t result = 0;
  const std::int32_t error = errorOf([&] {
    if (way_ == Scene::modal) result = random.ShowForm();
    if (way_ == Scene::readOnly) result = random.ShowForm_Import();
    if (way_ == Scene::embedded) result = random.ShowForm_Remote(), work(widgetset.user(L"frmRandomInfo"));
  });
  return error != 0 ? error : result;
}

/// Does something of everything, as far as the dialog has it: one that was set up without memory may lack some.
void WholeShow::work(User user) {
  if (!biller) biller.emplace(user);
  const auto use = [&user](const wchar_t* name, auto&& how) {
    errorOf([&] {
      if (user.open() && user.has(name) && user.control(name).reachable()) how();
    });
  };
  const auto click = [&](const wchar_t* name) { use(name, [&] { user.click(name); }); };
  constexpr const wchar_t* typedInto = L"ran_payee_email";
  click(typedInto);
  use(typedInto, [&] {
    if (user.control(typedInto).hasFocus()) user.type(L"x");
  });
  use(typedInto, [&] { user.rightClick(typedInto); });
  for (const wchar_t* used : {L"cmdCheque", L"cmdFXBankingInfo", L"imgHelpCSFTInfo(1)", L"ctHyperLink1", L"cmd_help"}) {
    click(used);
  }
  errorOf([&] {
    if (user.open() && user.has(L"txtConfirmBankAccountNumber")) put(user, L"txtConfirmBankAccountNumber", L"123456");
  });
  use(L"cmd_ok", [&] {
    user.click(L"cmd_ok");
    if (user.open() && whenRefused) whenRefused();
  });
  for (const wchar_t* leaving : {L"cmd_ok", L"cmd_cancel"}) click(leaving);
  if (user.open()) errorOf([&] { user.closeBox(); });
  if (!user.open()) return;
  if (whenStuck) whenStuck();
  user.closeBox();
}

}  // namespace nv::test
