// Check boxes and option buttons. The control decides about its mark; the window shows it.
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

  Native native() const override {
    return {L"BUTTON", static_cast<DWORD>(isOption ? BS_RADIOBUTTON : BS_CHECKBOX) | BS_NOTIFY};
  }

  void created() override {
    showMark();
    chooseTheme();
  }

  void apply(forms::Attribute attribute) override {
    if (attribute == forms::Attribute::value) {
      showMark();
      return;
    }
    if (attribute == forms::Attribute::appearance) chooseTheme();
    ControlWindow::apply(attribute);
  }

  /// Visual styles write in a colour of their own. Where that cannot be read the control is drawn without them.
  void chooseTheme() {
    const Theme theme(OpenThemeData(nullptr, L"BUTTON"));
    constexpr int part = isOption ? BP_RADIOBUTTON : BP_CHECKBOX;
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
    const LRESULT result = ControlWindow::handle(window, message, wparam, lparam);
    if (themed_ || enabled()) return result;
    if (message == WM_PRINTCLIENT) paintText(reinterpret_cast<HDC>(wparam));
    if (message == WM_PAINT) {
      const HDC context = GetDC(window);
      paintText(context);
      ReleaseDC(window, context);
    }
    return result;
  }

  /// Without visual styles the system embosses what is disabled, in colours that may be those of the background.
  void paintText(HDC context) {
    RECT area;
    GetClientRect(window(), &area);
    area.left += systemMetric(SM_CXMENUCHECK, owner().scale().dpi()) + owner().scale().pixels(45);
    FillRect(context, &area, owner().brush(background()));
    const Selected font(context, owner().font(toggle_.font(), false));
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, textColour());
    DrawTextW(context, toggle_.caption().c_str(), -1, &area, DT_VCENTER | DT_SINGLELINE);
  }

  void notified(UINT code) override {
    if ((code == BN_CLICKED || code == BN_DOUBLECLICKED) && !gettingFocus_) toggle_.clicked();
  }

  void showMark() const {
    bool marked = false;
    if constexpr (isOption) {
      marked = toggle_.selected();
    } else {
      marked = toggle_.checked();
    }
    SendMessageW(window(), BM_SETCHECK, marked ? BST_CHECKED : BST_UNCHECKED, 0);
  }

  Toggle& toggle_;
  bool gettingFocus_ = false;
  bool themed_ = true;
};

}  // namespace

std::unique_ptr<ControlWindow> makeCheckBoxWindow(FormWindow& owner, forms::CheckBox& checkBox) {
  return std::make_unique<ToggleWindow<forms::CheckBox>>(owner, checkBox);
}

std::unique_ptr<ControlWindow> makeOptionButtonWindow(FormWindow& owner, forms::OptionButton& optionButton) {
  return std::make_unique<ToggleWindow<forms::OptionButton>>(owner, optionButton);
}

}  // namespace nv::windows
