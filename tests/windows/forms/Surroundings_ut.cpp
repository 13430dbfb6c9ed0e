// What the windows of a form make of what is around them: other windows of the thread, and screens of other dpis.
#include "tests/support/FormTest.h"
#include "tests/windows/Server.h"
#include "windows/forms/Graphics.h"
#include "windows/forms/WindowsWidgetset.h"

namespace nv::windows::test {

namespace {

using nv::test::SampleForm;

constexpr const wchar_t* inputMethodClass = L"Input method";

/// A window of the host, destroyed at the end.
class HostWindow {
 public:
  explicit HostWindow(HWND owner = nullptr, const wchar_t* windowClass = L"#32770", RECT place = {0, 0, 600, 500})
      : window_(CreateWindowExW(WS_EX_TOOLWINDOW, windowClass, L"", WS_POPUP | WS_VISIBLE, place.left, place.top,
                                place.right - place.left, place.bottom - place.top, owner, nullptr, nullptr, nullptr)) {
  }
  ~HostWindow() { DestroyWindow(window_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;
  operator HWND() const { return window_; }  // NOLINT(google-explicit-constructor)

 private:
  HWND window_;
};

class Surroundings : public testing::Test {
 protected:
  std::shared_ptr<SampleForm> make(forms::Border border) {
    auto made = std::make_shared<SampleForm>(widgetset, forms, L"sample", border);
    made->setSize(6000, 3000);
    made->list.setPlace({150, 150, 600, 330});
    for (const wchar_t* row : {L"Canada;CA", L"United States;US"}) made->list.addItem(row);
    return made;
  }
  HWND window() const { return reinterpret_cast<HWND>(form->handle()); }
  HWND list() const { return findControl(window(), L"list"); }
  HWND openList() const {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof(parts);
    SendMessageW(list(), CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&parts));
    return GetAncestor(parts.hwndList, GA_ROOT);
  }
  /// The pixels of the list's arrow.
  std::vector<COLORREF> arrow() const {
    UpdateWindow(list());
    RECT inside;
    GetClientRect(list(), &inside);
    std::vector<COLORREF> pixels;
    const HDC context = GetDC(list());
    for (int x = inside.right - 16; x < inside.right; ++x) pixels.push_back(GetPixel(context, x, inside.bottom / 2));
    ReleaseDC(list(), context);
    return pixels;
  }

  WindowsWidgetset widgetset;
  forms::FormList forms;
  const HostWindow host;
  std::shared_ptr<SampleForm> form = make(forms::Border::dialog);
};

TEST_F(Surroundings, AModalFormDisablesTheHostsWindowsOnly) {
  WNDCLASSW method{};
  method.style = CS_IME;
  method.lpfnWndProc = DefWindowProcW;
  method.lpszClassName = inputMethodClass;
  RegisterClassW(&method);
  form->load();
  const HostWindow hosts(HWND{host});
  const HostWindow tool(openList());
  const HostWindow inputMethod(host, inputMethodClass);
  const HostWindow choice(HWND{inputMethod});
  bool asked = false;
  form->whenActivated = [&] {
    asked = true;
    for (const HWND disabled : {HWND{host}, HWND{hosts}}) EXPECT_FALSE(IsWindowEnabled(disabled));
    for (const HWND enabled : {openList(), HWND{tool}, HWND{inputMethod}, HWND{choice}}) {
      EXPECT_TRUE(IsWindowEnabled(enabled));
    }
    form->unload();
  };
  form->showModal();
  EXPECT_TRUE(asked);
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_TRUE(IsWindowEnabled(hosts));
}

/// Works off messages, which the mouse and timers make, until something is so.
template <class Condition>
void await(WindowsWidgetset& widgetset, Condition&& condition) {
  constexpr DWORD longest = 5000;  // ms
  const ULONGLONG end = GetTickCount64() + longest;
  while (!condition() && GetTickCount64() < end) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, longest, QS_ALLINPUT);
    widgetset.runPendingEvents();
  }
  EXPECT_TRUE(condition());
}

/// The tip that is up, of this thread's: other programs have theirs.
HWND shownTip() {
  HWND tip = nullptr;
  do tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr);
  while (tip != nullptr && (GetWindowThreadProcessId(tip, nullptr) != GetCurrentThreadId() || !IsWindowVisible(tip)));
  return tip;
}

TEST_F(Surroundings, ATextThatIsCutOffIsShownWholeByATip) {
  form->second.setText(L"12345 NORTH INTERNATIONAL BOULEVARD, BUILDING 7");
  form->box.setPlace({0, 600, 3000, 1200});
  form->second.setPlace({150, 300, 1500, 330});
  form->box.setEnabled(false);
  form->show();
  RECT field;
  GetWindowRect(findControl(window(), L"second"), &field);
  SetCursorPos(field.left + 40, field.top + 8);
  SendMessageW(window(), WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS), 0);
  EXPECT_EQ(SendMessageW(findControl(window(), L"go"), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS, 0);
  HWND tip = nullptr;
  await(widgetset, [&] { return (tip = shownTip()) != nullptr; });
  wchar_t shown[200] = L"";
  GetWindowTextW(tip, shown, static_cast<int>(std::size(shown)));
  EXPECT_EQ(shown, form->second.text());
  form->unload();
  EXPECT_FALSE(IsWindow(tip));
}

BOOL CALLBACK noteName(HWND window, LPARAM names) {
  const std::wstring name = nameOf(window);
  if (!name.empty()) reinterpret_cast<std::vector<std::wstring>*>(names)->push_back(name);
  return TRUE;
}

TEST_F(Surroundings, AControlGetsItsWindowWhenItIsFirstSeenInTheOrderOfAll) {
  for (forms::Control* control : {static_cast<forms::Control*>(&form->box), static_cast<forms::Control*>(&form->tick)})
    control->setVisible(false);
  form->show();
  EXPECT_EQ(findControl(window(), L"second"), nullptr);
  form->tick.setVisible(true);
  form->box.setVisible(true);
  std::vector<std::wstring> expected;
  for (const forms::Control* control : form->controls()) expected.push_back(control->fullName());
  std::vector<std::wstring> names;
  EnumChildWindows(window(), noteName, reinterpret_cast<LPARAM>(&names));
  EXPECT_EQ(names, expected);
  form->unload();
}

TEST_F(Surroundings, AClickElsewhereClosesTheListAndItsArrowComesUp) {
  form->show();
  const auto up = arrow();
  SendMessageW(list(), CB_SHOWDROPDOWN, TRUE, 0);
  EXPECT_NE(arrow(), up);
  INPUT click[2]{};
  for (INPUT& event : click) {
    event.type = INPUT_MOUSE;
    event.mi.dx = event.mi.dy = 100;  // in a corner of the host's window
    event.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  }
  click[0].mi.dwFlags |= MOUSEEVENTF_LEFTDOWN;
  click[1].mi.dwFlags |= MOUSEEVENTF_LEFTUP;
  SendInput(2, click, sizeof(INPUT));
  await(widgetset, [opened = openList()] { return !IsWindowVisible(opened); });
  EXPECT_EQ(arrow(), up);
  form->unload();
}

/// Two screens side by side, the right one of 144 dpi.
class TwoScreens : public Surroundings {
 protected:
  static constexpr RECT left{0, 0, 640, 1000};
  static constexpr RECT right{640, 0, 1280, 1000};
  static bool onRight(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    return place.left + place.right >= 2 * right.left;
  }
  void SetUp() override {
    if (before_.dpiOf(host) != 96) GTEST_SKIP() << "the frames would be those of this screen's dpi";
  }
  ~TwoScreens() override { screens = before_; }
  /// The width alone: the frame's height above is still that of the one real screen.
  void expectWidth(int dpi) const {
    RECT inside;
    GetClientRect(window(), &inside);
    EXPECT_EQ(inside.right, MulDiv(form->place().width, dpi, 1440));
  }

 private:
  const Screens before_ = std::exchange(screens, Screens{[](HWND window) { return onRight(window) ? 144 : 96; },
                                                         [](HWND window) { return onRight(window) ? right : left; }});
};

TEST_F(TwoScreens, ADialogStaysWhereItIsDraggedTo) {
  form->show();
  expectWidth(96);
  SendMessageW(list(), CB_SHOWDROPDOWN, TRUE, 0);
  RECT proposed{660, 40, 1270, 400};
  SendMessageW(window(), 0x02E0 /* WM_DPICHANGED */, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&proposed));
  RECT place;
  GetWindowRect(window(), &place);
  EXPECT_EQ(place.left, proposed.left);
  EXPECT_EQ(place.top, proposed.top);
  expectWidth(144);
  SendMessageW(list(), CB_SHOWDROPDOWN, TRUE, 0);
  EXPECT_EQ(GetWindowLongW(GetWindow(openList(), GW_CHILD), GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL), 0);
  form->unload();
}

TEST_F(TwoScreens, AnEmbeddedFormTakesTheDpiOfItsWindow) {
  form = make(forms::Border::embedded);
  const HostWindow other(nullptr, L"#32770", {650, 0, 1270, 500});
  form->load();
  expectWidth(96);
  SetParent(window(), other);
  form->show();
  expectWidth(144);
  SetParent(window(), host);
  expectWidth(96);
  form->unload();
}

}  // namespace

}  // namespace nv::windows::test
