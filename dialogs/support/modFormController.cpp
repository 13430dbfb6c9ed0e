#include "dialogs/support/modFormController.h"

#include "component/ShowError.h"
#include "component/Trace.h"
#include "forms/Button.h"
#include "forms/Label.h"
#include "validation/Random.h"

namespace nv::modFormController {

namespace {

constexpr const wchar_t* standardFont = L"MS Sans Serif";

struct Style {
  const wchar_t* font;
  forms::Colour background;
};

Style styleOf(std::int16_t formStyle) {
  switch (formStyle) {
    case 2:
      return {standardFont, forms::colours::white};
    case 3:
      return {L"Segoe UI", forms::colours::white};
    default:
      return {standardFont, forms::colours::buttonFace};
  }
}

void setFontName(forms::Control& control, const std::wstring& name) {
  forms::Font font = control.font();
  font.name = name;
  control.setFont(std::move(font));
}

void restyle(forms::Control& control, const std::wstring& font, forms::Colour background, std::int16_t formStyle) {
  using forms::Kind;
  switch (control.kind()) {
    case Kind::label:
      control.setBackColor(background);
      static_cast<forms::Label&>(control).setTransparent(true);
      setFontName(control, font);
      break;
    case Kind::textBox:
      setFontName(control, font);
      break;
    case Kind::frame:
    case Kind::checkBox:
    case Kind::optionButton:
      control.setBackColor(background);
      setFontName(control, font);
      break;
    case Kind::hyperlink:
      control.setBackColor(background);
      break;
    case Kind::styledButton:
      static_cast<forms::StyledButton&>(control).setButtonStyle(formStyle < 2 ? 0 : 2);
      break;
    case Kind::comboBox:
    case Kind::dropDownList:
    case Kind::commandButton:
    case Kind::image:
    case Kind::picture:
      break;
  }
}

}  // namespace

void reStyleForm(Component& component, forms::Form& form) {
  trace(component, L"modFormController - reStyleForm");
  reportedTrap(component, L"modFormController.reStyleForm", [&] {
    const std::int16_t formStyle = component.store.FormStyle;
    const Style style = styleOf(formStyle);
    const std::wstring font = installSystemFont(component, style.font);
    for (forms::Control* control : form.controls()) {
      if (control->tag() != noStyleTag) restyle(*control, font, style.background, formStyle);
    }
    form.setBackColor(style.background);
    forms::Font formFont = form.font();
    formFont.name = font;
    form.setFont(std::move(formFont));
  });
}

std::wstring installSystemFont(Component& component, const std::wstring& name) {
  trace(component, L"modFormController - installSystemFont");
  const std::wstring file = name == L"Segoe UI" ? L"segoeui.ttf" : L"MS Sans Serif.ttf";
  const std::wstring target = component.store.windowsDirectory + L"fonts\\" + file;
  if (Random::Fileexists(component, target) != flagFalse) return name;

  const std::wstring source = component.store.gstrInstallRoot() + L"\\Resources\\" + file;
  if (Random::Fileexists(component, source) == flagFalse) return standardFont;
  auto& uncopied = component.store.uncopiedFonts;
  if (const auto known = uncopied.find(source); known != uncopied.end()) return known->second ? name : standardFont;
  const auto added = [&] { return component.services.machine.addFont(source) != 0; };
  try {
    component.services.files.copy(source, target);
  } catch (const RuntimeError&) {
    reportSilently(component, L"modFormController.installSystemFont");
    // A user without the right to copy it may use it all the same; once a thread is enough for both.
    return (uncopied[source] = added()) ? name : standardFont;
  }
  return added() ? name : standardFont;
}

}  // namespace nv::modFormController
