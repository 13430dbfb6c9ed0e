// Check boxes and option buttons. The control decides about its mark; the window shows it. The system draws what can be
// used. What cannot be used it would write in a grey, or emboss, whether or not that can be read: it is drawn here.
#include "forms/Toggle.h"
#include "platform/ScopedValue.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/Graphics.h"

namespace nv::windows {

namespace {

template <class Toggle>
class ToggleWindow final : public ControlWindow {
 public:
  ToggleWindow(FormWindow& owner, Toggle& toggle) : ControlWindow(owner, toggle), toggle_(toggle) {}

 private:
  static constexpr bool isOption = std::is_same_v<Toggle, forms::OptionButton>;
  static constexpr int part = isOption ? BP_RADIOBUTTON : BP_CHECKBOX;

  Native native() const override {
    return {L"BUTTON", static_cast<DWORD>(isOption ? BS_RADIOBUTTON : BS_CHECKBOX) | BS_NOTIFY};
  }

  void created() override {
    showMark();
    chooseTheme();
  }

  bool enabled() const override { return toggle_.look().alive; }

  void apply(forms::Attribute attribute) override {
    if (attribute == forms::Attribute::value) {
      showMark();
    } else {
      if (attribute == forms::Attribute::appearance) chooseTheme();
      ControlWindow::apply(attribute);
    }
    InvalidateRect(window(), nullptr, TRUE);  // the system draws what has changed itself, and at once
  }

  /// Visual styles write in a colour of their own. Where that cannot be read the control is drawn without them.
  void chooseTheme() {
    const Theme theme(OpenThemeData(nullptr, L"BUTTON"));
    COLORREF text = 0;
    const bool coloured =
        theme && SUCCEEDED(GetThemeColor(theme.get(), part, CBS_UNCHECKEDNORMAL, TMT_TEXTCOLOR, &text));
    const bool themed = theme && (!coloured || readable(text, rgb(background())));
    if (themed == themed_) return;
    themed_ = themed;
    const wchar_t* const classes = themed ? nullptr : L"";
    SetWindowTheme(window(), classes, classes);
  }

  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override {
    // The system's option button sends BN_CLICKED when it gets the focus, which is no click here.
    const ScopedValue gettingFocus(gettingFocus_, gettingFocus_ || message == WM_SETFOCUS);
    return ControlWindow::handle(window, message, wparam, lparam);
  }

  bool drawn() const override { return !enabled(); }

  void paint(HDC context, const RECT& area) override {
    SIZE digit;
    GetTextExtentPoint32W(context, L"0", 1, &digit);
    RECT text = area;
    text.left = paintMark(context, area) + (digit.cx + 1) / 2;
    DrawTextW(context, toggle_.caption().c_str(), -1, &text, DT_VCENTER | DT_SINGLELINE | DT_HIDEPREFIX);
  }

  /// The mark as one that cannot be changed. Returns where it ends.
  LONG paintMark(HDC context, const RECT& area) const {
    const Theme theme(OpenThemeData(window(), L"BUTTON"));
    const int state = marked() ? CBS_CHECKEDDISABLED : CBS_UNCHECKEDDISABLED;  // of options the same numbers
    const int side = owner().scale().pixels(180) + 1;
    SIZE size{side, side};
    if (theme) GetThemePartSize(theme.get(), context, part, state, nullptr, TS_DRAW, &size);
    RECT mark{0, (area.bottom - size.cy) / 2, size.cx, 0};
    mark.bottom = mark.top + size.cy;
    if (theme) {
      DrawThemeBackground(theme.get(), context, part, state, &mark, nullptr);
    } else {
      const UINT kind = isOption ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
      DrawFrameControl(context, &mark, DFC_BUTTON, kind | DFCS_INACTIVE | (marked() ? DFCS_CHECKED : 0U));
    }
    return mark.right;
  }

  void notified(UINT code) override {
    if ((code == BN_CLICKED || code == BN_DOUBLECLICKED) && !gettingFocus_) toggle_.clicked();
  }

  bool marked() const {
    if constexpr (isOption) {
      return toggle_.selected();
    } else {
      return toggle_.checked();
    }
  }
  void showMark() const { SendMessageW(window(), BM_SETCHECK, marked() ? BST_CHECKED : BST_UNCHECKED, 0); }

  Toggle& toggle_;
  bool themed_ = true;  // the system draws it by the visual style
  bool gettingFocus_ = false;
};

}  // namespace

std::unique_ptr<ControlWindow> makeCheckBoxWindow(FormWindow& owner, forms::CheckBox& checkBox) {
  return std::make_unique<ToggleWindow<forms::CheckBox>>(owner, checkBox);
}

std::unique_ptr<ControlWindow> makeOptionButtonWindow(FormWindow& owner, forms::OptionButton& optionButton) {
  return std::make_unique<ToggleWindow<forms::OptionButton>>(owner, optionButton);
}

}  // namespace nv::windows
