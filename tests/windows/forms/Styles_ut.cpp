// Restyled forms on real windows: what is written can be read, in a contrast theme, too.
#include <algorithm>
#include <array>
#include <map>

#include "dialogs/support/modFormController.h"
#include "tests/support/ComponentTest.h"
#include "tests/support/FormTest.h"
#include "tests/windows/Server.h"
#include "windows/forms/Graphics.h"
#include "windows/forms/WindowsWidgetset.h"

namespace nv::windows::test {

namespace {

/// A component with real windows, that has all fonts.
struct Styles : nv::test::ComponentTest {
  Styles() {
    for (const wchar_t* font : {L"segoeui.ttf", L"MS Sans Serif.ttf"})
      files.put(std::wstring(L"C:\\WINDOWS\\fonts\\") + font, L"font");
    styled.store.windowsDirectory = L"C:\\WINDOWS\\";
  }
  WindowsWidgetset windows;
  Component styled{services, windows};
};

/// A scheme of system colours for the length of a scope: light on dark.
class ContrastScheme {
 public:
  ContrastScheme() {
    std::ranges::transform(elements, before_.begin(), [](int element) { return GetSysColor(element); });
    SetSysColors(std::size(elements), elements, colours);
  }
  ~ContrastScheme() { SetSysColors(std::size(elements), elements, before_.data()); }
  ContrastScheme(const ContrastScheme&) = delete;
  ContrastScheme& operator=(const ContrastScheme&) = delete;

 private:
  static constexpr int elements[] = {COLOR_WINDOW,  COLOR_WINDOWTEXT, COLOR_BTNFACE,
                                     COLOR_BTNTEXT, COLOR_HOTLIGHT,   COLOR_GRAYTEXT};
  static constexpr COLORREF colours[] = {0, 0xFFFFFF, 0, 0xFFFFFF, 0x00FFFF, 0x00FF00};
  std::array<COLORREF, std::size(elements)> before_{};
};

/// The greatest contrast between the most frequent colour of a window and any other in the middle, where neither edges
/// nor marks nor arrows are.
double legibility(HWND window) {
  RECT inside;
  GetClientRect(window, &inside);
  std::map<COLORREF, int> pixels;
  const HDC context = GetDC(window);
  for (int y = 3; y < std::min<int>(18, inside.bottom - 3); ++y) {
    for (int x = 24; x < inside.right - 24; ++x) ++pixels[GetPixel(context, x, y)];
  }
  ReleaseDC(window, context);
  const COLORREF back = std::ranges::max_element(pixels, {}, [](const auto& pixel) { return pixel.second; })->first;
  double greatest = 1;
  for (const auto& [colour, count] : pixels) greatest = std::max(greatest, contrast(colour, back));
  return greatest;
}

TEST_F(Styles, WhatIsWrittenCanBeReadInAnyTheme) {
  for (const bool contrastTheme : {false, true}) {
    std::optional<ContrastScheme> scheme;
    if (contrastTheme) scheme.emplace();
    for (std::int16_t style = 0; style <= 4; ++style) {
      styled.store.FormStyle = style;
      const auto form = std::make_shared<nv::test::SampleForm>(windows, styled.forms, L"sample");
      form->setSize(4000, 6000);
      form->box.setPlace({0, 760, 3600, 1900});  // behind two others, around four
      form->box.setCaption(L"What is written, and can be read");
      for (forms::Control* control : form->controls()) {
        const auto position = static_cast<int>(std::ranges::find(form->controls(), control) - form->controls().begin());
        const int row = position - (control->frame() == nullptr ? 0 : 2);
        if (control != &form->box) control->setPlace({100, row * 380, 3000, 330});
        if (auto* field = dynamic_cast<forms::TextField*>(control)) field->setText(L"WWWWWWWWWWWWWW");
        if (auto* label = dynamic_cast<forms::CaptionedControl*>(control)) label->setCaption(L"WWWWWWWWWWWWWW");
      }
      form->lblTick.setTransparent(false);
      form->lblTick.setTag(modFormController::noStyleTag);
      form->second.setColours(forms::colours::buttonFace);
      form->show();
      modFormController::reStyleForm(styled, *form);
      const HWND window = reinterpret_cast<HWND>(form->handle());
      for (const bool alive : {true, false}) {
        for (forms::Control* control : form->controls()) control->setEnabled(alive);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        for (const forms::Control* control : form->controls()) {
          EXPECT_GE(legibility(findControl(window, control->fullName().c_str())), alive ? 4 : 2)
              << control->fullName() << ", style " << style << (contrastTheme ? ", contrast" : "");
        }
      }
      form->unload();
    }
  }
}

}  // namespace

}  // namespace nv::windows::test
