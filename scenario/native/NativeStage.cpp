#include "scenario/native/NativeStage.h"

#include <algorithm>

#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"
#include "scenario/native/Look.h"
#include "scenario/native/Properties.h"

namespace nv::scenario {

namespace {

constexpr const wchar_t* dialogName = L"frmRandomInfo";
constexpr const wchar_t* binaries = L"NORVIK/Bin/";

}  // namespace

platform::MessageBoxes::Answer NativeStage::Messages::show(std::wstring_view text, std::wstring_view caption, Icon icon,
                                                           Buttons buttons) {
  constexpr const wchar_t* icons[] = {L"critical", L"exclamation", L"information"};
  const bool asks = buttons == Buttons::yesNo;
  answer_.reset();
  shown_ = {std::wstring(text), std::wstring(caption), icons[static_cast<int>(icon)], asks ? L"yesno" : L"ok"};
  ++stage_.widgetset_.questions;
  stage_.thread_.loop([this] { return answer_.has_value(); });
  shown_.reset();
  return answer_.value_or(asks ? Answer::no : Answer::ok);
}

NativeStage::NativeStage(std::wstring countries) : countries_(std::move(countries)) {
  files_.currentFolder = std::wstring(installationRoot, std::wstring_view(installationRoot).size() - 1);
  files_.makeFolder(path(binaries));
  files_.makeFolder(path(L"Resources"));
  for (const wchar_t* library : {L"Acctvfy.dll", L"kvd8rq3x.dll"}) {
    files_.put(path(binaries) + library, StandIns::library);
  }
  setCountries(countries_);
  widgetset_.whenAnyModal = [this](const User& user) { thread_.loop([&user] { return !user.open(); }); };
  standIns_.windowName = [this](std::intptr_t handle) {
    const auto form = formOf(handle);
    return form ? std::wstring(form->windowName()) : L"";
  };
}

NativeStage::~NativeStage() {
  thread_.leave();  // whatever is still up goes by itself
}

template <class Work>
auto NativeStage::onHost(Work work) {
  auto result = thread_.begin(std::move(work));
  if (!ready(result)) {
    if (const auto& box = messageBox()) failUnexpected(*box);
    throw Failure(L"the call does not return");
  }
  settle();
  return result.get();
}

void NativeStage::act(const std::function<void()>& whatToDo) {
  thread_.begin([whatToDo] { whatToDo(); });
  settle();
}

/// Lets what is queued for the forms arrive.
void NativeStage::settle() {
  if (messageBox()) return;
  thread_.begin([this] {
    for (const auto& form : component_.forms.all()) {
      User user(widgetset_, *form);
      if (user.open() && widgetset_.takesInput(*widgetset_.window(*form))) user.settle();
    }
  });
}

void NativeStage::finish() {
  if (!instances_.empty() && !component_.forms.empty()) {
    onHost([this] { instances_.begin()->second.random->Unload_From_Remote(); });
  }
  onHost([this] { instances_.clear(); });
  const auto left = dialogs({});
  if (!left.empty()) {
    throw Failure(std::wstring(formOf(left.front())->windowName()) + L" is still up when all instances are released");
  }
}

// Instances

NativeStage::Instance& NativeStage::inUse() {
  const auto found = instances_.find(inUse_);
  if (found == instances_.end()) throw Failure(L"there is no instance " + inUse_);
  return found->second;
}

void NativeStage::create(const std::wstring& instance) {
  if (instances_.contains(instance)) throw Failure(L"there is an instance " + instance + L" already");
  onHost([&] { instances_.try_emplace(instance, component_); });
  inUse_ = instance;
}

void NativeStage::use(const std::wstring& instance) {
  inUse_ = instance;
  inUse();
}

void NativeStage::release(const std::wstring& instance) {
  if (!instances_.contains(instance)) throw Failure(L"there is no instance " + instance);
  onHost([&] { instances_.erase(instance); });
}

void NativeStage::put(const std::wstring& property, const Value& value) {
  onHost([&random = *inUse().random, &property, &value] { putProperty(random, property, value); });
}

Value NativeStage::get(const std::wstring& property) {
  return onHost([&random = *inUse().random, &property] { return getProperty(random, property); });
}

const std::vector<std::wstring>& NativeStage::readable() {
  return readableProperties();
}

void NativeStage::forgetEvents() {
  for (auto& [name, instance] : instances_) instance.events.clear();
}

void NativeStage::unload() {
  onHost([&random = *inUse().random] { random.Unload_From_Remote(); });
}

// Showing

void NativeStage::beginShow(Showing kind) {
  Instance& instance = inUse();
  Show show{inUse_, kind == Showing::modal || kind == Showing::import, dialogs(dialogName), {}};
  show.returned = thread_.begin([&instance, kind] {
    ClsRandom& random = *instance.random;
    if (kind == Showing::modal) return random.ShowForm();
    if (kind == Showing::import) return random.ShowForm_Import();
    // The calls that a host makes: for the size of its window, to embed the dialog there, and to show it.
    if (instance.embedded == noDialog) random.Get_hWnd(), random.Get_Width(), random.Get_Height();
    if (kind == Showing::remote) random.Get_hWnd();
    const std::int32_t result = random.ShowForm_Remote();
    if (kind == Showing::remoteEmbeddedAfterwards) random.Get_hWnd();
    instance.embedded = random.Get_hWnd();
    return result;
  });
  shows_.push_back(std::move(show));
}

Dialog NativeStage::awaitShown() {
  Show& show = shows_.back();
  settle();
  if (!show.modal) {
    if (!ready(show.returned)) return noDialog;
    result_ = show.returned.get();
    return instances_.at(show.instance).embedded;
  }
  for (const Dialog dialog : dialogs(dialogName)) {
    if (std::ranges::find(show.before, dialog) != show.before.end()) continue;
    checkLayout(userOf(dialog));
    return dialog;
  }
  if (!ready(show.returned) && !messageBox()) throw Failure(L"no dialog appears");
  return noDialog;
}

void NativeStage::endShow() {
  Show show = std::move(shows_.back());
  shows_.pop_back();
  if (show.modal) {
    if (!ready(show.returned)) throw Failure(L"the dialog is still up");
    result_ = show.returned.get();
  } else if (const auto found = instances_.find(show.instance); found != instances_.end()) {
    if (!isUp(found->second.embedded)) found->second.embedded = noDialog;
  }
  settle();
}

// The user

std::vector<Dialog> NativeStage::dialogs(std::wstring_view name) const {
  std::vector<Dialog> found;
  for (const auto& form : component_.forms.all()) {
    if (form->shown() && (name.empty() || form->windowName() == name)) found.push_back(form->handle());
  }
  return found;
}

std::shared_ptr<forms::Form> NativeStage::formOf(Dialog dialog) const {
  for (const auto& form : component_.forms.all()) {
    if (dialog != noDialog && form->handle() == dialog) return form;
  }
  return nullptr;
}

User NativeStage::userOf(Dialog dialog) {
  const auto form = formOf(dialog);
  if (!form) throw Failure(L"the dialog is gone");
  return {widgetset_, *form};
}

User NativeStage::activeUser() {
  for (const auto& form : component_.forms.all()) {
    if (form->active()) return {widgetset_, *form};
  }
  throw Failure(L"another program has the keyboard");
}

User NativeStage::reaching(Dialog dialog, const std::wstring& control) {
  User user = userOf(dialog);
  if (!user.has(control)) throw Failure(L"there is no control " + control);
  checkLayout(user);
  if (!user.visible(control)) throw Failure(control + L" is not visible");
  if (!user.enabled(control)) throw Failure(control + L" is disabled");
  if (!widgetset_.takesInput(*widgetset_.window(user.form()))) throw Failure(control + L" is behind a modal window");
  return user;
}

Dialog NativeStage::awaitDialog(const std::wstring& name) {
  const auto found = dialogs(name);
  if (found.empty()) throw Failure(L"there is no window " + name);
  checkLayout(userOf(found.back()));
  return found.back();
}

Dialog NativeStage::front() {
  const auto up = dialogs({});
  const auto found = std::find_if(up.rbegin(), up.rend(), [this](Dialog dialog) {
    const test::FormWindow* const window = widgetset_.window(*formOf(dialog));
    return window != nullptr && widgetset_.takesInput(*window);
  });
  return found == up.rend() ? noDialog : *found;
}

std::vector<std::wstring> NativeStage::reachable(Dialog dialog) {
  const User user = userOf(dialog);
  std::vector<std::wstring> names;
  for (const forms::Control* control : user.form().controls()) {
    const std::wstring name = control->fullName();
    if (user.visible(name) && user.enabled(name)) names.push_back(name);
  }
  return names;
}

void NativeStage::click(Dialog dialog, const std::wstring& control, MouseButton button) {
  User user = reaching(dialog, control);
  const bool left = button == MouseButton::left;
  menuOf_ = left ? nullptr : dynamic_cast<forms::TextBox*>(&user.control(control));
  act([=]() mutable { left ? user.click(control) : user.rightClick(control); });
}

void NativeStage::choose(Dialog dialog, const std::wstring& list, const std::wstring& cell) {
  User user = reaching(dialog, list);
  const auto& rows = user.rows(list);
  const bool there = std::ranges::any_of(rows, [&](const std::wstring& row) {
    return (L";" + row + L";").find(L";" + cell + L";") != std::wstring::npos;
  });
  if (!there) throw Failure(list + L" has no row with " + cell);
  act([=]() mutable { user.choose(list, cell); });
}

void NativeStage::press(const Chord& chord) {
  const int code = chord.back();
  int shift = 0;
  for (std::size_t i = 0; i + 1 < chord.size(); ++i) {
    shift |= chord[i] == keys::shift ? forms::shiftKey : chord[i] == keys::control ? forms::controlKey : forms::altKey;
  }
  User user = activeUser();
  if (auto* const field = std::exchange(menuOf_, nullptr)) {
    // The menu takes one key: Escape, or the letter of its Paste.
    if (code == 'P') act([=]() mutable { user.pasteByMenu(field->fullName()); });
    return;
  }
  act([=]() mutable { user.key(code, shift); });
}

void NativeStage::type(const std::wstring& text) {
  for (const wchar_t c : text) {
    act([user = activeUser(), c]() mutable { user.type({&c, 1}); });
  }
}

void NativeStage::close(Dialog dialog) {
  act([user = userOf(dialog)]() mutable { user.closeBox(); });
}

void NativeStage::closeHost() {
  const auto form = formOf(std::exchange(inUse().embedded, noDialog));
  if (!form) throw Failure(L"there is no window of the host around a dialog");
  onHost([form] { form->windowGone(); });
}

void NativeStage::endSession(Dialog dialog) {
  userOf(dialog);
  for (const auto& form : component_.forms.all()) {
    onHost([form] { form->unload(forms::UnloadMode::systemShutdown); });
  }
}

bool NativeStage::hostEnabled() const {
  return std::ranges::none_of(component_.forms.all(), [this](const auto& form) {
    const test::FormWindow* const window = widgetset_.window(*form);
    return window != nullptr && window->visible() && window->modal();
  });
}

std::wstring NativeStage::look(Dialog dialog, const std::wstring& window, const std::wstring& aspect) {
  if (window == L"host") return truth(aspect == L"visible" || (aspect == L"enabled" && hostEnabled()));
  if (window == L"form" && !isUp(dialog)) return truth(false);
  const User user = userOf(dialog);
  const bool takesInput = widgetset_.takesInput(*widgetset_.window(user.form()));
  if (window != L"form") {
    if (!user.has(window)) throw Failure(L"there is no control " + window);
    if (aspect == L"enabled") return truth(takesInput && user.enabled(window));
    return lookAtControl(user, window, aspect);
  }
  if (aspect == L"enabled") return truth(takesInput);
  return lookAtForm(user, aspect);
}

Message NativeStage::awaitMessageBox() {
  if (const auto& box = messageBox()) return *box;
  throw Failure(L"no message box appears");
}

void NativeStage::answer(const std::wstring& button) {
  using Button = platform::MessageBoxes::Answer;
  if (messages_.shown()->buttons.find(button) == std::wstring::npos) {
    throw Failure(L"the message box has no button for " + button);
  }
  messages_.answer(button == L"yes" ? Button::yes : button == L"no" ? Button::no : Button::ok);
  thread_.begin([] {});  // the box's loop looks again
  settle();
}

// What is around

std::wstring NativeStage::path(const std::wstring& file) const {
  return installationRoot + replaced(file, L"/", L"\\");
}

std::optional<std::vector<std::wstring>> NativeStage::lines(const std::wstring& file) {
  if (!files_.exists(path(file))) return std::nullopt;
  return splitLines(files_.text(path(file)));
}

bool NativeStage::exists(const std::wstring& fileOrFolder) {
  return files_.exists(path(fileOrFolder)) || files_.isFolder(path(fileOrFolder));
}

void NativeStage::write(const std::wstring& file, const std::wstring& text) {
  const std::wstring target = path(file);
  files_.makeFolder(target.substr(0, target.rfind(L'\\')));
  files_.put(target, text);
}

void NativeStage::append(const std::wstring& file, const std::wstring& text) {
  files_.put(path(file), files_.text(path(file)) + text);
}

void NativeStage::copy(const std::wstring& from, const std::wstring& to) {
  if (!files_.exists(path(from))) throw Failure(path(to) + L" cannot be made");
  files_.put(path(to), files_.text(path(from)));
}

void NativeStage::remove(const std::wstring& fileOrFolder) {
  if (!files_.removeAll(path(fileOrFolder))) throw Failure(path(fileOrFolder) + L" cannot be removed");
}

void NativeStage::lock(const std::wstring& file) {
  append(file, {});
  files_.bar(path(file), FakeFiles::Barred::everything);
}

void NativeStage::unlock(const std::wstring& file) {
  files_.bar(path(file), FakeFiles::Barred::nothing);
}

void NativeStage::makeReadOnly(const std::wstring& fileOrFolder) {
  files_.bar(path(fileOrFolder), FakeFiles::Barred::writing);
}

void NativeStage::setCountries(const std::wstring& text) {
  files_.put(path(binaries) + L"FXCountries", StandIns::enciphered(text));
}

}  // namespace nv::scenario
