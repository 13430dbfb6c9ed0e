#include "tests/support/User.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "forms/Frame.h"
#include "platform/Text.h"

namespace nv::test {

using namespace forms;

void User::giveUp(const std::wstring& why) {
  ADD_FAILURE() << why;
  throw UserGaveUp();
}

bool User::has(std::wstring_view name) const {
  return std::ranges::find(form_->controls(), name, &Control::fullName) != form_->controls().end();
}

Control& User::control(std::wstring_view name) const {
  const auto found = std::ranges::find(form_->controls(), name, &Control::fullName);
  if (found == form_->controls().end()) giveUp(L"there is no control " + std::wstring(name));
  return **found;
}

FormWindow& User::window() const {
  FormWindow* const window = widgetset_.window(*form_);
  if (window == nullptr) giveUp(std::wstring(form_->windowName()) + L" is closed");
  return *window;
}

ControlWindow& User::window(std::wstring_view name) const {
  window();
  return *static_cast<ControlWindow*>(control(name).peer());
}

template <class Act>
void User::act(Act&& whatToDo) {
  const auto keep = form_;  // as the window procedure does
  if (!open()) giveUp(std::wstring(form_->windowName()) + L" is not on the screen");
  if (!widgetset_.takesInput(window())) giveUp(std::wstring(form_->windowName()) + L" is behind a modal window");
  try {
    workOffQueue();
    if (open()) whatToDo();
    workOffQueue();
  } catch (const UserGaveUp&) {
    throw;
  } catch (...) {
    form_->failed(RuntimeError::current());
  }
}

void User::workOffQueue() {
  while (open()) {
    const auto message = window().nextMessage();
    if (!message) return;
    if (*message == FormWindow::activatedMessage) {
      form_->activated();
    } else {
      character(*message);
    }
  }
}

void User::ask(UnloadMode mode) {
  act([&] { form_->unload(mode); });
}

Control& User::target(std::wstring_view name) const {
  Control& target = control(name);
  if (!target.reachable()) giveUp(std::wstring(name) + L" is hidden or disabled");
  return target;
}

void User::click(std::wstring_view name) {
  act([&] {
    if (form_->busy()) return;
    Control& clicked = target(name);
    form_->activated();
    if (clicked.takesFocus()) {
      const unsigned asked = widgetset_.questions;
      form_->focus(clicked);
      // The control that was left kept it or asked a question, or the form is gone: the click is over.
      if (!clicked.hasFocus() || widgetset_.questions != asked) return;
    }
    clicked.mouseDown.raise({.button = leftButton});
    if (open()) window(name).clicked();
  });
}

void User::rightClick(std::wstring_view name) {
  act([&] {
    if (!form_->busy()) target(name).mouseDown.raise({.button = rightButton});
  });
}

void User::type(std::wstring_view name, std::wstring_view text) {
  click(name);
  if (!control(name).hasFocus()) giveUp(std::wstring(name) + L" did not get the focus");
  type(text);
}

void User::type(std::wstring_view text) {
  for (const wchar_t c : text) {
    act([&] { character(c); });
  }
}

void User::character(wchar_t c) {
  constexpr int packetKey = 231;  // carries characters that have no key of their own
  const wchar_t upper = asciiUpper(c);
  const bool ownKey = c <= L' ' || (c >= L'0' && c <= L'9') || (upper >= L'A' && upper <= L'Z');
  keystroke(ownKey ? upper : packetKey, c >= L'A' && c <= L'Z' ? shiftKey : 0, c);
}

void User::key(int code, int shift) {
  if ((shift & forms::altKey) != 0) {
    act([&] {
      Control* const control = form_->activeControl();
      if (control != nullptr && static_cast<ControlWindow*>(control->peer())->usesKey(code, shift)) return;
      if (control == nullptr || !form_->keyPressedDown(*control, {code, shift})) {
        form_->mnemonicTyped(static_cast<wchar_t>(code));
      }
    });
    return;
  }
  const bool letter = code >= 'A' && code <= 'Z';
  const bool digit = code >= '0' && code <= '9';
  int character = 0;
  if (code == keys::backspace || code == keys::tab || code == keys::enter || code == keys::escape ||
      code == keys::space || digit) {
    character = code;
  } else if (letter) {
    character = (shift & controlKey) != 0 ? code - 'A' + 1 : ((shift & shiftKey) != 0 ? code : code - 'A' + 'a');
  }
  act([&] { keystroke(code, shift, static_cast<wchar_t>(character)); });
}

void User::keystroke(int code, int shift, wchar_t character) {
  Control* const control = form_->activeControl();
  if (control == nullptr) giveUp(L"no control of " + std::wstring(form_->windowName()) + L" has the focus");
  if (static_cast<ControlWindow*>(control->peer())->usesKey(code, shift)) return;
  if (form_->keyPressedDown(*control, {code, shift})) return;
  EXPECT_TRUE(form_->loaded()) << "a key went on into a form that was unloaded";
  if (character != 0) character = form_->characterTyped(*control, character);
  if (!form_->loaded()) {
    EXPECT_EQ(character, 0) << "a character went on into a form that was unloaded";
    return;
  }
  static_cast<ControlWindow*>(control->peer())->key(code, shift, character);
}

bool User::altKey(wchar_t character) {
  bool claimed = false;
  act([&] { claimed = form_->mnemonicTyped(character); });
  return claimed;
}

void User::pasteByMenu(std::wstring_view name) {
  act([&] { window(name).paste(); });
}

void User::paste(std::wstring_view text) {
  widgetset_.clipboard = text;
  key('V', controlKey);
}

void User::choose(std::wstring_view name, std::wstring_view cell) {
  click(name);
  act([&] {
    const auto& rows = window(name).seen().rows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const std::wstring cells = L";" + rows[row] + L";";
      if (cells.find(L";" + std::wstring(cell) + L";") == std::wstring::npos) continue;
      window(name).pick(row);
      return;
    }
    giveUp(std::wstring(name) + L" has no row " + std::wstring(cell));
  });
}

void User::check(std::wstring_view name, bool checked) {
  if (seen(name).checked != checked) click(name);
}

void User::settle() {
  act([] {});
}

void User::activate() {
  act([&] { form_->activated(); });
}

bool User::open() const {
  const FormWindow* const window = widgetset_.window(*form_);
  return window != nullptr && window->visible();
}

std::wstring User::focus() const {
  const Control* const active = form_->activeControl();
  if (active == nullptr) return {};
  EXPECT_EQ(window().focused(), active) << "the keyboard and the form disagree about who has the focus";
  return active->fullName();
}

bool User::visible(std::wstring_view name) const {
  bool visible = seen(name).visible;
  for (const Frame* frame = control(name).frame(); frame != nullptr; frame = frame->frame()) {
    visible = visible && seen(frame->fullName()).visible;
  }
  return visible;
}

bool User::enabled(std::wstring_view name) const {
  bool enabled = seen(name).enabled;
  for (const Frame* frame = control(name).frame(); frame != nullptr; frame = frame->frame()) {
    enabled = enabled && seen(frame->fullName()).enabled;
  }
  return enabled;
}

Selection User::selection(std::wstring_view name) const {
  return window(name).selection();
}

std::wstring User::selected(std::wstring_view name) const {
  const auto [start, length] = selection(name);
  return text(name).substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
}

std::wstring User::row(std::wstring_view name) const {
  const Seen& list = seen(name);
  return list.row ? list.rows.at(*list.row) : std::wstring();
}

const Seen& User::seen(std::wstring_view name) const {
  return window(name).seen();
}

}  // namespace nv::test
