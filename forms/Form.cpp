#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "forms/Button.h"
#include "forms/FormList.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace nv::forms {

Form::Form(Widgetset& widgetset, FormList& loadedForms, std::wstring_view name, std::wstring_view windowName,
           Border border)
    : widgetset_(widgetset), loadedForms_(loadedForms), name_(name), windowName_(windowName), border_(border) {}

void Form::setCaption(std::wstring caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  if (peer_) peer_->update(Attribute::text);
}

void Form::setSize(Twips width, Twips height) {
  if (width == place_.width && height == place_.height) return;
  place_.width = width;
  place_.height = height;
  if (peer_) peer_->update(Attribute::size);
}

void Form::move(Twips left, Twips top) {
  place_.left = left;
  place_.top = top;
  if (peer_) peer_->update(Attribute::place);
}

void Form::setColours(const Colours& colours) {
  if (colours == colours_) return;
  colours_ = colours;
  if (peer_) peer_->update(Attribute::appearance);
}

void Form::load() {
  if (loaded()) return;
  if (life_ == Life::gone) throw RuntimeError(ErrorNumber::invalidCall);
  const auto keep = shared_from_this();
  loadedForms_.add(keep);  // may fail, and nothing has happened then
  life_ = Life::loaded;
  try {
    Form_Load();
    // The windows come last: they are made once, in the state that Form_Load arranged.
    if (loaded()) peer_ = widgetset_.createWindows(*this);
  } catch (...) {
    detach();
    throw;
  }
  if (showWhenLoaded_ && loaded()) show();
}

void Form::show() {
  const auto keep = shared_from_this();
  load();
  if (!loaded()) return;
  if (!peer_) {  // Form_Load dispatched messages, and the host calls show already
    showWhenLoaded_ = true;
    return;
  }
  shown_ = true;
  peer_->show(false);
  activated();
}

void Form::showModal() {
  const auto keep = shared_from_this();
  load();
  if (!loaded()) return;
  if (shown_ || !peer_) throw RuntimeError(ErrorNumber::invalidCall);  // a form that is up already cannot become modal
  try {
    shown_ = true;
    peer_->show(true);
    activated();
    if (loaded()) peer_->runModal();
  } catch (...) {
    detach();
    throw;
  }
  if (!windowGone_) return;
  bool cancel = false;
  Form_QueryUnload(cancel, UnloadMode::owner);
}

void Form::unload(UnloadMode mode) {
  if (!loaded()) return;
  const auto keep = shared_from_this();
  bool cancel = false;
  if (mode == UnloadMode::code) {
    Form_QueryUnload(cancel, mode);
  } else {
    // The user may press the close box again, or what was pressed before it, while the handler lets events run.
    if (askedToUnload_) return;
    const ScopedValue asked(askedToUnload_, true);
    const Busy busy(*this);
    Form_QueryUnload(cancel, mode);
  }
  if (!cancel) detach();
}

void Form::windowGone() {
  const auto keep = shared_from_this();
  windowGone_ = loaded();
  detach();
}

void Form::detach() {
  if (!loaded()) return;
  life_ = Life::gone;
  shown_ = false;
  active_ = nullptr;
  focused_ = nullptr;
  for (Control* control : controls_) control->attach(nullptr);
  if (peer_) peer_->close();
  loadedForms_.remove(*this);
  Form_Unload();
}

bool Form::active() const {
  return loadedForms_.active() == this;
}

void Form::activated() {
  if (!shown_ || active()) return;
  loadedForms_.setActive(this);
  Form_Activate();
  if (shown_ && active_ == nullptr) tab(false);
}

void Form::focus(Control& control) {
  if (!focusable(control)) return;
  if (active_ == &control) {
    if (control.peer() != nullptr) control.peer()->takeFocus();
  } else {
    makeActive(&control);
  }
}

void Form::makeActive(Control* control) {
  active_ = control;
  if (control != nullptr && control->peer() != nullptr) control->peer()->takeFocus();
  if (Control* const left = std::exchange(focused_, nullptr)) left->lostFocus.raise();
  if (control == nullptr || active_ != control || focused_ == control) return;
  focused_ = control;
  control->gotFocus.raise();
}

void Form::leaveUnreachable() {
  if (active_ == nullptr || active_->reachable()) return;
  tab(false);
  if (active_ != nullptr && !active_->reachable()) makeActive(nullptr);
}

void Form::tab(bool backward) {
  // From no control Tab comes to the first and Shift+Tab to the last: it has a place of its own, behind them all.
  const auto none = controls_.size();
  const auto places = none + 1;
  const auto own = static_cast<std::size_t>(std::ranges::find(controls_, active_) - controls_.begin());
  for (std::size_t step = 1; step <= places; ++step) {
    const std::size_t at = (own + (backward ? places - step : step)) % places;
    if (at == none || !focusable(*controls_[at]) || !controls_[at]->tabStop()) continue;
    focusByKeyboard(*controls_[at]);
    return;
  }
}

void Form::focusByKeyboard(Control& control) {
  control.onKeyboardFocus();
  focus(control);
}

void Form::setForReading() {
  forReading_ = true;
  for (Control* control : controls_) control->lookChanged();
}

void Form::rearrange() {
  arrangeWhenReleased_ = peer_ && peer_->pressed();
  if (!arrangeWhenReleased_) arrange();
}

void Form::released() {
  if (std::exchange(arrangeWhenReleased_, false)) arrange();
}

void Form::sendKey(wchar_t key) {
  if (typing_) {
    keysToSend_ += key;
  } else if (peer_) {
    peer_->sendKey(key);
  }
}

bool Form::keyPressedDown(Control& control, const KeyDown& pressed) {
  const auto keep = shared_from_this();
  if (busy()) return true;
  if (pressed.code == keys::tab && (pressed.shift & ~shiftKey) == 0) {
    tab((pressed.shift & shiftKey) != 0);
    return true;
  }
  if (pressed.code == keys::escape && pressed.shift == 0) {
    for (Control* other : controls_) {
      if (!other->isButton() || !other->reachable() || !static_cast<Button*>(other)->cancels()) continue;
      static_cast<Button*>(other)->press();
      return true;
    }
  }
  if (pressed.code == keys::f1 && pressed.shift == 0 && Form_Help(control)) return true;
  if (control.useKey(pressed)) return true;
  KeyDown key = pressed;
  control.keyDown.raise(key);
  return key.code == 0 || !loaded();
}

wchar_t Form::characterTyped(Control& control, wchar_t character) {
  const auto keep = shared_from_this();
  if (busy()) return 0;
  {
    const ScopedValue typing(typing_, true);
    Form_KeyPress(character);
    if (character != 0 && loaded()) control.keyPress.raise(character);
  }
  for (const wchar_t key : std::exchange(keysToSend_, {})) sendKey(key);
  return loaded() ? character : L'\0';
}

bool Form::mnemonicTyped(wchar_t character) {
  const auto keep = shared_from_this();
  if (busy()) return true;
  const auto count = controls_.size();
  const auto own = static_cast<std::size_t>(std::ranges::find(controls_, active_) - controls_.begin());
  for (std::size_t step = 1; step <= count; ++step) {
    const std::size_t at = (own + step) % count;
    const Control& owner = *controls_[at];
    if (!owner.reachable() || mnemonicOf(owner) != asciiUpper(character)) continue;
    // A control that cannot have the focus itself, a label or a frame, hands the mnemonic to the next one that can.
    for (std::size_t next = at; next < count; ++next) {
      Control& target = *controls_[next];
      if (!focusable(target)) continue;
      focusByKeyboard(target);
      if (next == at && active_ == &target) target.useMnemonic();
      return true;
    }
  }
  return false;
}

}  // namespace nv::forms
