#include "scenario/native/NativeStage.h"

#include <algorithm>

#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"
#include "scenario/native/Properties.h"

namespace nv::scenario {

namespace {

/// Fails when something that can be seen in the form has no size, overlaps something else, or reaches out of what it
/// stands in.
void checkLayout(const User& user) {
  struct Shown {
    const forms::Control* control;
    forms::Place place;
  };
  std::vector<Shown> shown;
  for (const forms::Control* control : user.form().controls()) {
    if (user.visible(control->fullName())) shown.push_back({control, user.seen(control->fullName()).place});
  }
  for (const auto& [control, place] : shown) {
    if (place.width <= 0 || place.height <= 0) throw Failure(control->fullName() + L" has no size");
    const forms::Frame* const frame = control->frame();
    const forms::Place around = frame != nullptr ? frame->place() : user.form().place();
    if (place.left < 0 || place.top < 0 || place.right() > around.width || place.bottom() > around.height) {
      throw Failure(control->fullName() + L" reaches out of what it stands in");
    }
    for (const auto& [other, second] : shown) {
      if (other == control) break;
      if (other->frame() == frame && place.left < second.right() && second.left < place.right() &&
          place.top < second.bottom() && second.top < place.bottom()) {
        throw Failure(control->fullName() + L" overlaps " + other->fullName());
      }
    }
  }
}

constexpr const wchar_t* dialogName = L"frmRandomInfo";
constexpr const wchar_t* binaries = L"NORVIK/Bin/";

std::wstring truth(bool value) {
  return value ? L"true" : L"false";
}

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

namespace {

std::wstring shownColour(forms::Colour colour) {
  if (colour == forms::colours::buttonFace.back) return L"#F5F5F5";
  if (colour == forms::colours::window.back) return L"#FFFFFF";
  wchar_t text[8];
  std::swprintf(text, std::size(text), L"#%02X%02X%02X", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
  return text;
}

/// A number of twips as exact as pixels are.
std::wstring inPixels(forms::Twips twips) {
  constexpr int pixel = 15;
  return std::to_wstring((twips + pixel / 2) / pixel * pixel);
}

/// What is seen of a place; of a form itself its inside.
std::wstring lookAt(const forms::Place& place, std::wstring_view aspect) {
  if (aspect == L"left") return inPixels(place.left);
  if (aspect == L"top") return inPixels(place.top);
  if (aspect == L"width") return inPixels(place.width);
  return inPixels(place.height);
}

bool isPlace(std::wstring_view aspect) {
  return aspect == L"left" || aspect == L"top" || aspect == L"width" || aspect == L"height";
}

std::wstring lookAtControl(const User& user, const std::wstring& name, std::wstring_view aspect) {
  const forms::Control& control = user.control(name);
  const test::Seen& seen = user.seen(name);
  const auto* const field = dynamic_cast<const forms::TextField*>(&control);
  const bool list = control.kind() == forms::Kind::comboBox || control.kind() == forms::Kind::dropDownList;
  if (aspect == L"text" || aspect == L"caption") return seen.text;
  if (aspect == L"visible") return truth(user.visible(name));
  if (aspect == L"focused") return truth(user.focus() == name);
  if (aspect == L"checked") return truth(seen.checked);
  if (aspect == L"masked") return truth(seen.mask != 0);
  if (aspect == L"selection") return field != nullptr ? user.selected(name) : L"";
  if (aspect == L"font") return seen.font.name;
  if (aspect == L"maxlength") return std::to_wstring(seen.maxLength);
  if (aspect == L"rows") return list ? std::to_wstring(seen.rows.size()) : L"no list";
  if (aspect == L"row") return list ? replaced(user.row(name), L";", L"\t") : L"no list";
  if (aspect == L"columns") {
    const auto* const columns = dynamic_cast<const forms::DropDownList*>(&control);
    return columns != nullptr ? std::to_wstring(columns->columns().size()) : list ? L"1" : L"no list";
  }
  if (aspect == L"backcolor") {
    const auto* const label = dynamic_cast<const forms::Label*>(&control);
    if (label == nullptr || !label->transparent()) return shownColour(seen.colours.back);
    return shownColour(control.frame() != nullptr ? user.seen(control.frame()->fullName()).colours.back
                                                  : user.form().colours().back);
  }
  forms::Place place = seen.place;
  for (const forms::Frame* frame = control.frame(); frame != nullptr; frame = frame->frame()) {
    place.left += frame->place().left;
    place.top += frame->place().top;
  }
  return lookAt(place, aspect);
}

}  // namespace

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
  if (aspect == L"text" || aspect == L"caption") return user.title();
  if (aspect == L"visible") return truth(user.open());
  if (aspect == L"enabled") return truth(takesInput);
  if (aspect == L"backcolor") return shownColour(user.form().colours().back);
  const forms::Place place = user.form().place();
  if (!isPlace(aspect)) throw Failure(L"nothing is known of the " + aspect + L" of a form");
  const bool embedded = user.form().border() == forms::Border::embedded;
  return lookAt(embedded ? place : forms::Place{0, 0, place.width, place.height}, aspect);
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
