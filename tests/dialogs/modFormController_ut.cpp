// The styles of the forms, and where their fonts come from.
#include "dialogs/support/modFormController.h"

#include "forms/Image.h"
#include "tests/support/ComponentTest.h"
#include "tests/support/FormTest.h"

namespace nv::test {
namespace {

using forms::colours::blackOnWhite;
using forms::colours::buttonFace;

/// A form with a control of each kind.
class EveryKind : public SampleForm {
 public:
  explicit EveryKind(Component& component) : SampleForm(component.widgetset, component.forms, L"kinds") {
    lblTick.setTag(modFormController::noStyleTag);
    lblFirst.setTag(L"nostyle ");
  }
  forms::StyledButton styled{*this, L"styled", L"Styled"};
  forms::Image image{*this, L"image", L"IMAGE", L"Image"};
};

class StyleTest : public ComponentTest {
 protected:
  StyleTest() {
    component.store.windowsDirectory = L"C:\\WINDOWS\\";
    component.store.DLLPath = dllPath;
    files.makeFolder(L"C:\\WINDOWS\\fonts");
    files.makeFolder(L"C:\\Apps\\Resources");
    for (const wchar_t* font : {segoe, sans}) files.put(font, L"font");
  }

  static constexpr const wchar_t* segoe = L"C:\\WINDOWS\\fonts\\segoeui.ttf";
  static constexpr const wchar_t* sans = L"C:\\WINDOWS\\fonts\\MS Sans Serif.ttf";
  static constexpr const wchar_t* source = L"C:\\Apps\\\\Resources\\segoeui.ttf";
};

TEST_F(StyleTest, EachKindTakesWhatTheStyleHasForIt) {
  struct Case {
    std::int16_t style;
    const wchar_t* font;
    forms::Colours colours;
    int buttonStyle;
  };
  for (const Case& c : {Case{0, L"MS Sans Serif", buttonFace, 0}, Case{1, L"MS Sans Serif", buttonFace, 0},
                        Case{2, L"MS Sans Serif", blackOnWhite, 2}, Case{3, L"Segoe UI", blackOnWhite, 2},
                        Case{4, L"MS Sans Serif", buttonFace, 2}, Case{-1, L"MS Sans Serif", buttonFace, 0}}) {
    SCOPED_TRACE(c.style);
    component.store.FormStyle = c.style;
    const auto form = std::make_shared<EveryKind>(component);
    const forms::Font designed = {.name = L"Designed", .points = 11, .bold = true};
    constexpr forms::Colours painted{0x123456, 0xFEDCBA};
    for (forms::Control* control : form->controls()) {
      control->setFont(designed);
      control->setColours(painted);
    }
    for (forms::Label* label : {&form->lblFirst, &form->lblTick}) label->setTransparent(false);
    modFormController::reStyleForm(component, *form);

    forms::Font styled = designed;
    styled.name = c.font;
    struct Kind {
      const forms::Control& control;
      bool font;
      bool colour;
    };
    for (const Kind& kind :
         {Kind{form->lblFirst, true, true}, Kind{form->first, true, false}, Kind{form->box, true, true},
          Kind{form->tick, true, true}, Kind{form->optA, true, true}, Kind{form->link, false, true},
          Kind{form->styled, false, false}, Kind{form->combo, false, false}, Kind{form->list, false, false},
          Kind{form->go, false, false}, Kind{form->image, false, false}, Kind{form->lblTick, false, false}}) {
      EXPECT_EQ(kind.control.font(), kind.font ? styled : designed) << kind.control.fullName();
      EXPECT_EQ(kind.control.colours(), kind.colour ? c.colours : painted) << kind.control.fullName();
    }
    EXPECT_TRUE(form->lblFirst.transparent());
    EXPECT_FALSE(form->lblTick.transparent());
    EXPECT_EQ(form->styled.buttonStyle(), c.buttonStyle);
    EXPECT_EQ(form->colours(), c.colours);
    EXPECT_EQ(form->font().name, c.font);
  }
  EXPECT_EQ(machine.addedFonts, Texts{}) << "all fonts were there";
}

TEST_F(StyleTest, AMissingFontIsInstalledFromTheInstallation) {
  struct Case {
    const char* what;
    bool target;
    bool source;
    bool refused;
    int fonts;
    const wchar_t* result;
  };
  const Case cases[] = {
      {"there already", true, true, false, 1, L"Segoe UI"},
      {"installed", false, true, false, 1, L"Segoe UI"},
      {"installed, but no font", false, true, false, 0, L"MS Sans Serif"},
      {"nowhere", false, false, false, 1, L"MS Sans Serif"},
      {"no right to write", false, true, true, 1, L"Segoe UI"},
      {"no right to write, and no font", false, true, true, 0, L"MS Sans Serif"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    FakeFiles disk;
    disk.makeFolder(L"C:\\WINDOWS\\fonts");
    disk.makeFolder(L"C:\\Apps\\Resources");
    if (c.target) disk.put(segoe, L"old");
    if (c.source) disk.put(source, L"new");
    if (c.refused) disk.fail(segoe, ErrorNumber::permissionDenied);
    machine.fontsInFile = c.fonts;
    machine.addedFonts.clear();
    const platform::Services withDisk{messages, disk, machine, shell, installation};
    Component other{withDisk, widgetset};
    other.store.windowsDirectory = component.store.windowsDirectory;
    other.store.DLLPath = dllPath;
    EXPECT_EQ(modFormController::installSystemFont(other, L"Segoe UI"), c.result);
    if (c.refused) {
      EXPECT_EQ(modFormController::installSystemFont(other, L"Segoe UI"), c.result) << "when restyled again";
    }
    EXPECT_EQ(machine.addedFonts, !c.target && c.source ? Texts{source} : Texts{}) << "once";
    EXPECT_EQ(disk.text(segoe), c.target ? L"old" : (c.source && !c.refused ? L"new" : L""));
    EXPECT_EQ(disk.text(errorLog), c.refused ? machine.clock + L",NVRandom, , ,70,\"Permission denied\"," +
                                                   L"\"modFormController.installSystemFont\"\r\n"
                                             : L"");
  }
}

TEST_F(StyleTest, AnUnknownFontGoesByTheStandardOnesFile) {
  EXPECT_EQ(modFormController::installSystemFont(component, L"Arial"), L"Arial");
  files.remove(sans);
  EXPECT_EQ(modFormController::installSystemFont(component, L"Arial"), L"MS Sans Serif");
}

}  // namespace
}  // namespace nv::test
