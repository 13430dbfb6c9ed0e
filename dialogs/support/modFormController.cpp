#include "dialogs/support/modFormController.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "forms/Button.h"
#include "forms/Label.h"
#include "validation/SystemHelpers.h"

namespace nv::modFormController {

namespace {

constexpr const wchar_t* standardFont = L"MS Sans Serif";

struct Style {
  std::int16_t from;  // the FormStyle that it is for, up to the next row's
  const wchar_t* font;
  forms::Colours colours;
  std::int16_t buttonStyle;
};

constexpr Style styles[] = {
    {std::numeric_limits<std::int16_t>::min(), standardFont, forms::colours::buttonFace, 0},
    {2, standardFont, forms::colours::blackOnWhite, 2},
    {3, L"Segoe UI", forms::colours::blackOnWhite, 2},
    {4, standardFont, forms::colours::buttonFace, 2},
};

const Style& styleOf(std::int16_t formStyle) {
  return *std::find_if(std::rbegin(styles), std::rend(styles), [=](const Style& row) { return row.from <= formStyle; });
}

void setFontName(forms::Control& control, const std::wstring& name) {
  forms::Font font = control.font();
  font.name = name;
  control.setFont(std::move(font));
}

void restyle(forms::Control& control, const Style& style, const std::wstring& font) {
  using forms::Kind;
  switch (control.kind()) {
    case Kind::label:
      control.setColours(style.colours);
      static_cast<forms::Label&>(control).setTransparent(true);
      setFontName(control, font);
      break;
    case Kind::textBox:
      setFontName(control, font);
      break;
    case Kind::frame:
    case Kind::checkBox:
    case Kind::optionButton:
      control.setColours(style.colours);
      setFontName(control, font);
      break;
    case Kind::hyperlink:
      control.setColours(style.colours);
      break;
    case Kind::styledButton:
      static_cast<forms::StyledButton&>(control).setButtonStyle(style.buttonStyle);
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
    const Style& style = styleOf(component.store.FormStyle);
    const std::wstring font = installSystemFont(component, style.font);
    for (forms::Control* control : form.controls()) {
      if (control->tag() != noStyleTag) restyle(*control, style, font);
    }
    form.setColours(style.colours);
    forms::Font formFont = form.font();
    formFont.name = font;
    form.setFont(std::move(formFont));
  });
}

std::wstring installSystemFont(Component& component, const std::wstring& name) {
  trace(component, L"modFormController - installSystemFont");
  const std::wstring file = name == L"Segoe UI" ? L"segoeui.ttf" : L"MS Sans Serif.ttf";
  const std::wstring target = component.store.windowsDirectory + L"fonts\\" + file;
  if (Random::Fileexists(component, target)) return name;

  const std::wstring source = component.store.gstrInstallRoot() + L"\\Resources\\" + file;
  if (!Random::Fileexists(component, source)) return standardFont;
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
