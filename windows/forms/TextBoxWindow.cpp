// Text boxes.
#include "forms/TextField.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/EditText.h"

namespace nv::windows {

namespace {

class TextBoxWindow final : public ControlWindow {
 public:
  TextBoxWindow(FormWindow& owner, forms::TextBox& textBox)
      : ControlWindow(owner, textBox), textBox_(textBox), text_(textBox) {}

  forms::Selection selection() const override { return text_.selection(); }

 private:
  Native native() const override { return {L"EDIT", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}; }

  void created() override {
    text_.connect(window());
    if (textBox_.passwordChar() != 0) apply(forms::Attribute::mask);
  }

  RECT area() const override { return lineArea(); }

  void apply(forms::Attribute attribute) override {
    if (attribute == forms::Attribute::appearance) {
      ControlWindow::apply(attribute);
      ControlWindow::apply(forms::Attribute::place);  // the font decides about the height
    } else if (attribute == forms::Attribute::mask) {
      SendMessageW(window(), EM_SETPASSWORDCHAR, textBox_.passwordChar(), 0);
      InvalidateRect(window(), nullptr, TRUE);
    } else if (!text_.apply(attribute)) {
      ControlWindow::apply(attribute);
    }
  }

  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_PASTE && !textBox_.takesPaste()) return 0;  // by whatever menu or tool
    return ControlWindow::handle(window, message, wparam, lparam);
  }

  bool usesCharacter(wchar_t character) const override { return EditText::uses(character); }

  void notified(UINT code) override {
    if (code == EN_CHANGE) text_.changed();
  }

  forms::TextBox& textBox_;
  EditText text_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeTextBoxWindow(FormWindow& owner, forms::TextBox& textBox) {
  return std::make_unique<TextBoxWindow>(owner, textBox);
}

}  // namespace nv::windows
