#include "windows/forms/WindowsWidgetset.h"

#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/Toggle.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/WindowClasses.h"

namespace nv::windows {

std::unique_ptr<forms::FormPeer> WindowsWidgetset::createWindows(forms::Form& form) {
  return std::make_unique<FormWindow>(form, palette_);
}

void WindowsWidgetset::runPendingEvents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {  // for the loops around this one
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void WindowsWidgetset::unregisterClasses() {
  unregisterWindowClasses();
}

std::unique_ptr<ControlWindow> makeControlWindow(FormWindow& owner, forms::Control& control) {
  using forms::Kind;
  switch (control.kind()) {
    case Kind::label:
      return makeLabelWindow(owner, static_cast<forms::Label&>(control));
    case Kind::textBox:
      return makeTextBoxWindow(owner, static_cast<forms::TextBox&>(control));
    case Kind::frame:
      return makeFrameWindow(owner, static_cast<forms::Frame&>(control));
    case Kind::checkBox:
      return makeCheckBoxWindow(owner, static_cast<forms::CheckBox&>(control));
    case Kind::optionButton:
      return makeOptionButtonWindow(owner, static_cast<forms::OptionButton&>(control));
    case Kind::comboBox:
      return makeComboBoxWindow(owner, static_cast<forms::ComboBox&>(control));
    case Kind::dropDownList:
      return makeDropDownListWindow(owner, static_cast<forms::DropDownList&>(control));
    case Kind::commandButton:
    case Kind::styledButton:
      return makeButtonWindow(owner, static_cast<forms::Button&>(control));
    case Kind::hyperlink:
      return makeHyperlinkWindow(owner, static_cast<forms::Hyperlink&>(control));
    case Kind::image:
    case Kind::picture:
      return makeImageWindow(owner, static_cast<forms::Image&>(control));
  }
  throw RuntimeError(ErrorNumber::invalidCall);
}

}  // namespace nv::windows
