// Command buttons, in the system's look, and styled buttons, which also have a flat one.
#include "forms/Button.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

namespace {

constexpr int flatStyle = 2;

class ButtonWindow final : public ControlWindow {
 public:
  ButtonWindow(FormWindow& owner, forms::Button& button) : ControlWindow(owner, button), button_(button) {}

 private:
  bool flat() const {
    return button_.kind() == forms::Kind::styledButton &&
           static_cast<const forms::StyledButton&>(button_).buttonStyle() == flatStyle;
  }
  DWORD type() const { return flat() ? BS_OWNERDRAW : BS_PUSHBUTTON; }

  Native native() const override { return {L"BUTTON", type() | BS_NOTIFY}; }

  void apply(forms::Attribute attribute) override {
    if (attribute == forms::Attribute::appearance) SendMessageW(window(), BM_SETSTYLE, type(), TRUE);
    ControlWindow::apply(attribute);
  }

  void notified(UINT code) override {
    // The second click of a fast pair is reported by another name where the button is drawn by its owner.
    if (code == BN_CLICKED || (code == BN_DOUBLECLICKED && flat())) button_.clicked();
  }

  void draw(const DRAWITEMSTRUCT& item) override {
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;
    const int line = owner().scale().pixels(15);
    RECT area = item.rcItem;

    FillRect(item.hDC, &area, GetSysColorBrush(focused && !disabled ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW));
    InflateRect(&area, -line, -line);
    FillRect(item.hDC, &area, GetSysColorBrush(pressed ? COLOR_BTNSHADOW : COLOR_BTNFACE));

    if (pressed) OffsetRect(&area, line, line);
    const Selected font(item.hDC, owner().font(button_.font(), false));
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    const UINT hide = (item.itemState & ODS_NOACCEL) != 0 ? DT_HIDEPREFIX : 0;
    DrawTextW(item.hDC, button_.caption().c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | hide);

    if (!focused || (item.itemState & ODS_NOFOCUSRECT) != 0) return;
    area = item.rcItem;
    InflateRect(&area, -3 * line, -3 * line);
    SetTextColor(item.hDC, 0);  // the focus rectangle is drawn with the text and background colours
    DrawFocusRect(item.hDC, &area);
  }

  forms::Button& button_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeButtonWindow(FormWindow& owner, forms::Button& button) {
  return std::make_unique<ButtonWindow>(owner, button);
}

}  // namespace nv::windows
