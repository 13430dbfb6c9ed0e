// Restyling, seen on real windows: what a control with the exempting tag keeps, and its neighbour of the same kind
// takes.
#include "component/core/Component.h"
#include "dialogs/support/modFormController.h"
#include "forms/Label.h"
#include "tests/support/FakeInstallation.h"
#include "tests/support/FakeServices.h"
#include "tests/windows/Server.h"
#include "windows/forms/WindowsWidgetset.h"

namespace nv::windows::test {

namespace {

constexpr forms::Colour designColour = 0x00C0FFC0;
const forms::Font designFont{.name = L"Tahoma", .points = 8, .bold = false};

class TwoLabels : public forms::Form {
 public:
  explicit TwoLabels(Component& component)
      : Form(component.widgetset, component.forms, L"TwoLabels", L"TwoLabels", forms::Border::dialog) {
    setSize(3000, 900);
    kept.setTag(modFormController::noStyleTag);
    for (forms::Label* label : {&kept, &taken}) {
      label->setTransparent(false);
      label->setBackColor(designColour);
      label->setFont(designFont);
      label->setPlace({150, label == &kept ? 150 : 450, 1500, 210});
    }
  }
  forms::Label kept{*this, L"kept", L""};
  forms::Label taken{*this, L"taken", L""};
};

/// What the window of a label shows.
struct Shown {
  std::wstring font;
  COLORREF colour;
};

Shown shown(HWND form, const wchar_t* name) {
  const HWND label = findControl(form, name);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)), sizeof(font), &font);
  RedrawWindow(label, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
  const HDC context = GetDC(label);
  const COLORREF colour = GetPixel(context, 5, 5);
  ReleaseDC(label, context);
  return {font.lfFaceName, colour};
}

TEST(Styles, ATaggedControlKeepsItsDesign) {
  struct Case {
    std::int16_t style;
    const wchar_t* font;
    COLORREF colour;
  };
  const COLORREF buttonFace = GetSysColor(COLOR_BTNFACE);
  for (const Case& c : {Case{0, L"MS Sans Serif", buttonFace}, Case{1, L"MS Sans Serif", buttonFace},
                        Case{2, L"MS Sans Serif", RGB(255, 255, 255)}, Case{3, L"Segoe UI", RGB(255, 255, 255)}}) {
    SCOPED_TRACE(c.style);
    nv::test::FakeMessageBoxes messages;
    nv::test::FakeFiles files;
    nv::test::FakeMachine machine;
    nv::test::FakeShell shell;
    nv::test::FakeInstallation installation;
    files.makeFolder(L"C:\\WINDOWS\\fonts");
    files.put(L"C:\\WINDOWS\\fonts\\segoeui.ttf", L"font");
    files.put(L"C:\\WINDOWS\\fonts\\MS Sans Serif.ttf", L"font");
    const platform::Services services{messages, files, machine, shell, installation};
    WindowsWidgetset widgetset;
    Component component(services, widgetset);
    component.store.windowsDirectory = L"C:\\WINDOWS\\";
    component.store.FormStyle = c.style;
    {
      const auto form = std::make_shared<TwoLabels>(component);
      form->show();
      modFormController::reStyleForm(component, *form);
      const HWND window = reinterpret_cast<HWND>(form->handle());
      const Shown kept = shown(window, L"kept");
      EXPECT_EQ(kept.font, designFont.name);
      EXPECT_EQ(kept.colour, designColour);
      const Shown taken = shown(window, L"taken");
      EXPECT_EQ(taken.font, c.font);
      EXPECT_EQ(taken.colour, c.colour);
      form->unload();
    }
  }
}

}  // namespace

}  // namespace nv::windows::test
