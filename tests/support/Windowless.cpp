#include "tests/support/Windowless.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/Toggle.h"
#include "tests/support/User.h"

namespace nv::test {

using forms::Attribute;

ControlWindow::ControlWindow(FormWindow& form, forms::Control& control)
    : form_(form), control_(control), field_(dynamic_cast<forms::TextField*>(&control)) {
  for (const Attribute aspect :
       {Attribute::place, Attribute::visible, Attribute::enabled, Attribute::text, Attribute::limit, Attribute::mask,
        Attribute::appearance, Attribute::value, Attribute::rows, Attribute::row}) {
    update(aspect);
  }
  control_.attach(this);
}

void ControlWindow::update(Attribute aspect) {
  if (form_.closed()) ADD_FAILURE() << "a window that is gone was told something by " << control_.fullName();
  switch (aspect) {
    case Attribute::place:
      seen_.place = control_.place();
      break;
    case Attribute::size:  // a form's
      break;
    case Attribute::visible:
      seen_.visible = control_.visible();
      break;
    case Attribute::enabled:
      seen_.enabled = control_.enabled();
      seen_.look = control_.look();
      break;
    case Attribute::text:
      seen_.text = field_ != nullptr ? field_->text() : control_.caption();
      [[fallthrough]];
    case Attribute::selection:
      if (field_ == nullptr) break;
      anchor_ = field_->lastSelection().start;
      caret_ = anchor_ + field_->lastSelection().length;
      break;
    case Attribute::limit:
      if (field_ != nullptr) seen_.maxLength = field_->maxLength();
      break;
    case Attribute::mask:
      if (const auto* box = dynamic_cast<forms::TextBox*>(field_)) seen_.mask = box->passwordChar();
      break;
    case Attribute::appearance:
      seen_.look = control_.look();
      seen_.font = control_.font();
      break;
    case Attribute::value:
      if (const auto* box = dynamic_cast<forms::CheckBox*>(&control_)) seen_.checked = box->checked();
      if (const auto* option = dynamic_cast<forms::OptionButton*>(&control_)) seen_.checked = option->selected();
      break;
    case Attribute::rows:
      if (const auto* combo = dynamic_cast<forms::ComboBox*>(field_)) seen_.rows = combo->entries();
      if (const auto* list = dynamic_cast<forms::DropDownList*>(field_)) {
        seen_.rows.clear();
        for (std::size_t row = 0; row < list->rows().size(); ++row) {
          std::wstring& cells = seen_.rows.emplace_back(list->cell(row, 0));
          for (std::size_t column = 1; column < list->columns().size(); ++column) {
            cells.append(L";").append(list->cell(row, column));
          }
        }
      }
      [[fallthrough]];
    case Attribute::row:
      if (const auto* combo = dynamic_cast<forms::ComboBox*>(field_)) {
        seen_.row.reset();
        if (combo->listIndex() != forms::ComboBox::none) seen_.row = static_cast<std::size_t>(combo->listIndex());
      }
      if (const auto* list = dynamic_cast<forms::DropDownList*>(field_)) seen_.row = list->selectedRow();
      break;
  }
}

void ControlWindow::takeFocus() {
  form_.setFocused(control_);
}

forms::Selection ControlWindow::selection() const {
  return {std::min(anchor_, caret_), std::abs(anchor_ - caret_)};
}

void ControlWindow::clicked() {
  if (field_ != nullptr) moveCaret(static_cast<int>(seen_.text.size()), false);
  if (auto* box = dynamic_cast<forms::CheckBox*>(&control_)) box->clicked();
  if (auto* option = dynamic_cast<forms::OptionButton*>(&control_)) option->clicked();
  if (auto* button = dynamic_cast<forms::Button*>(&control_)) button->clicked();
  if (auto* link = dynamic_cast<forms::Hyperlink*>(&control_)) link->clicked();
  if (auto* image = dynamic_cast<forms::Image*>(&control_)) image->clicked();
}

void ControlWindow::key(int code, int shift, wchar_t character) {
  using namespace forms;
  if (field_ == nullptr) {
    if (code == keys::space && control_.hasFocus()) clicked();  // when the key comes up again
    return;
  }
  constexpr wchar_t pasteKey = 22;  // what Control+V comes in as
  const bool select = (shift & shiftKey) != 0;
  const int end = static_cast<int>(seen_.text.size());
  if (character == pasteKey || (code == keys::insert && shift == shiftKey)) {
    paste();
  } else if (character == keys::backspace) {
    erase(true);
  } else if (character >= L' ') {
    insert({&character, 1});
  } else if (code == User::deleteKey) {
    erase(false);
  } else if (code == keys::home || code == keys::end) {
    moveCaret(code == keys::home ? 0 : end, select);
  } else if (code == keys::left || code == keys::right) {
    moveCaret(std::clamp(caret_ + (code == keys::left ? -1 : 1), 0, end), select);
  }
}

void ControlWindow::paste() {
  const auto* const box = dynamic_cast<forms::TextBox*>(field_);
  const std::wstring& text = form_.widgetset().clipboard;
  // A field of one line takes the first one.
  if (field_ != nullptr && (box == nullptr || box->takesPaste())) insert(text.substr(0, text.find_first_of(L"\r\n")));
}

bool ControlWindow::usesKey(int code, int shift) {
  using namespace forms;
  constexpr int page = 7;  // rows of an open list, or thereabouts
  if (seen_.rows.empty() || field_ == nullptr) return false;
  if ((code == keys::f4 && shift == 0) || ((code == keys::down || code == keys::up) && shift == altKey)) {
    dropped_ = !dropped_;
    return true;
  }
  if (shift != 0) return false;
  if (code == keys::enter || code == keys::escape) return std::exchange(dropped_, false);
  const int step = code == keys::down       ? 1
                   : code == keys::up       ? -1
                   : code == keys::pageDown ? page
                   : code == keys::pageUp   ? -page
                                            : 0;
  if (step == 0) return false;
  const int row = (seen_.row ? static_cast<int>(*seen_.row) : -1) + step;
  pick(static_cast<std::size_t>(std::clamp(row, 0, static_cast<int>(seen_.rows.size()) - 1)));
  if (control_.peer() == this) field_->selectAll();
  return true;
}

void ControlWindow::pick(std::size_t row) {
  if (auto* combo = dynamic_cast<forms::ComboBox*>(field_)) combo->picked(static_cast<int>(row));
  if (auto* list = dynamic_cast<forms::DropDownList*>(field_)) list->picked(row);
}

void ControlWindow::insert(std::wstring_view text) {
  const auto [start, length] = selection();
  if (seen_.maxLength > 0) {
    const int kept = static_cast<int>(seen_.text.size()) - length;
    text = text.substr(0, static_cast<std::size_t>(std::max(0, seen_.maxLength - kept)));
  }
  if (!text.empty() || length > 0) replace(start, length, text);
}

void ControlWindow::erase(bool backward) {
  auto [start, length] = selection();
  if (length == 0) {
    if (backward ? start == 0 : start == static_cast<int>(seen_.text.size())) return;
    if (backward) --start;
    length = 1;
  }
  replace(start, length, {});
}

void ControlWindow::moveCaret(int to, bool select) {
  caret_ = to;
  if (!select) anchor_ = to;
}

void ControlWindow::replace(int start, int length, std::wstring_view by) {
  seen_.text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), by);
  moveCaret(start + static_cast<int>(by.size()), false);
  if (control_.kind() == forms::Kind::comboBox) seen_.row.reset();  // what is typed is no entry
  field_->onUserText(seen_.text, selection());
}

FormWindow::FormWindow(WindowlessWidgetset& widgetset, forms::Form& form)
    : widgetset_(widgetset), form_(form), handle_(++widgetset.lastHandle_) {
  update(Attribute::text);
  update(Attribute::place);
  for (forms::Control* control : form.controls()) {
    controls_.push_back(std::make_unique<ControlWindow>(*this, *control));
  }
  widgetset_.open_.push_back(this);
}

FormWindow::~FormWindow() {
  std::erase(widgetset_.open_, this);
  if (running_) *running_ = false;
}

void FormWindow::update(Attribute aspect) {
  if (aspect == Attribute::text) title_ = form_.caption();
  if (aspect == Attribute::place || aspect == Attribute::size) place_ = form_.place();
}

void FormWindow::show(bool modal) {
  modal_ = modal;
  visible_ = true;
  for (FormWindow* other : widgetset_.open_) {
    if (other != this && other->visible_) owner_ = other;
  }
  if (widgetset_.whenShown) std::exchange(widgetset_.whenShown, nullptr)();
}

void FormWindow::runModal() {
  const auto running = running_ = std::make_shared<bool>(true);
  const std::wstring name(form_.windowName());
  if (widgetset_.scripts_.empty() && !widgetset_.whenAnyModal) {
    ADD_FAILURE() << name << " is shown modally, and nobody was to work in it";
  } else {
    auto script = widgetset_.whenAnyModal;
    if (!widgetset_.scripts_.empty()) {
      script = std::move(widgetset_.scripts_.front());
      widgetset_.scripts_.pop_front();
    }
    try {
      User user(widgetset_, form_);
      script(user);
    } catch (const UserGaveUp&) {  // the test has failed; the form still has to go
    }
  }
  if (!*running) {
    ADD_FAILURE() << "the form let go of the window of " << name << " while the window's own loop ran";
    return;
  }
  if (!visible_) return;
  ADD_FAILURE() << name << " is still open after all that its user was to do";
  form_.unload();
  if (visible_) form_.windowGone();
}

void FormWindow::close() {
  closed_ = true;
  visible_ = false;
  queue_.clear();
  std::erase(widgetset_.open_, this);
  // The window that a modal one was opened over becomes the active one again; it hears of it by a message.
  const bool ownerOpen = std::ranges::find(widgetset_.open_, owner_) != widgetset_.open_.end();
  if (modal_ && ownerOpen && owner_->visible_) owner_->queue_.push_back(activatedMessage);
}

std::optional<wchar_t> FormWindow::nextMessage() {
  if (queue_.empty()) return std::nullopt;
  const wchar_t message = queue_.front();
  queue_.pop_front();
  return message;
}

WindowlessWidgetset::~WindowlessWidgetset() {
  if (!scripts_.empty()) ADD_FAILURE() << "a form was to be shown modally and was not";
}

std::unique_ptr<forms::FormPeer> WindowlessWidgetset::createWindows(forms::Form& form) {
  if (failure) throw *failure;
  return std::make_unique<FormWindow>(*this, form);
}

void WindowlessWidgetset::runPendingEvents() {
  if (pending.empty()) return;
  const auto event = std::move(pending.front());
  pending.pop_front();
  event();
}

User WindowlessWidgetset::user(std::wstring_view windowName) {
  for (auto window = open_.rbegin(); window != open_.rend(); ++window) {
    if ((*window)->form().windowName() == windowName) return User(*this, (*window)->form());
  }
  User::giveUp(L"no form " + std::wstring(windowName) + L" is open");
}

FormWindow* WindowlessWidgetset::window(const forms::Form& form) const {
  const auto found =
      std::ranges::find_if(open_, [&form](const FormWindow* window) { return &window->form() == &form; });
  return found == open_.end() ? nullptr : *found;
}

bool WindowlessWidgetset::takesInput(const FormWindow& window) const {
  return std::none_of(std::ranges::find(open_, &window), open_.end(),
                      [&window](const FormWindow* later) { return later != &window && later->modal(); });
}

}  // namespace nv::test
