#include "host/user/User.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <map>

#include "host/base/Text.h"
#include "host/user/DropList.h"
#include "host/user/Look.h"
#include "host/user/Screen.h"

namespace nv::host {

namespace {

bool isFieldClass(HWND window) {
  wchar_t name[8];
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return _wcsicmp(name, L"Edit") == 0;
}

/// Where a click on the window goes, in pixels of the screen. In a field that is its right end, so that what is typed
/// comes behind the text that is there.
POINT clickPlace(HWND window) {
  constexpr LONG margin = 6;
  RECT inside{};
  GetClientRect(window, &inside);
  POINT place{inside.right / 2, inside.bottom / 2};
  if (isFieldClass(window)) place = {std::max(inside.right - margin, 0L), std::max(inside.bottom - margin, 0L)};
  ClientToScreen(window, &place);
  return place;
}

/// Whether a click at the place reaches the window or something in it.
bool reaches(POINT place, HWND window) {
  const HWND hit = WindowFromPoint(place);
  return hit == window || IsChild(window, hit);
}

INPUT mouseEvent(POINT place, DWORD flags) {
  constexpr int wholeScreen = 65536;  // the unit of absolute positions: the screen's width or height divided by this
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = MulDiv(place.x, wholeScreen, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(place.y, wholeScreen, GetSystemMetrics(SM_CYSCREEN)) + 1;
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  return input;
}

bool isDown(const INPUT& event) {
  if (event.type == INPUT_KEYBOARD) return (event.ki.dwFlags & KEYEVENTF_KEYUP) == 0;
  return (event.mi.dwFlags & (MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_RIGHTDOWN)) != 0;
}

struct AnswerButton {
  int id;
  const wchar_t* answer;
};
constexpr AnswerButton answerButtons[] = {{IDYES, L"yes"},       {IDNO, L"no"},       {IDOK, L"ok"},
                                          {IDCANCEL, L"cancel"}, {IDABORT, L"abort"}, {IDRETRY, L"retry"},
                                          {IDIGNORE, L"ignore"}};

/// The visible buttons of a message box by the answer that they give. A box with a single button is one that can only
/// be acknowledged, whatever identifier the system gave the button.
std::map<std::wstring, HWND> buttonsOf(HWND box) {
  std::map<std::wstring, HWND> buttons;
  for (const AnswerButton& button : answerButtons) {
    const HWND window = GetDlgItem(box, button.id);
    if (window != nullptr && IsWindowVisible(window)) buttons[button.answer] = window;
  }
  if (buttons.size() == 1) return {{L"ok", buttons.begin()->second}};
  return buttons;
}

/// Whether two icons are the same one of the system's: of any size, which depends on the dpi that asks.
bool isSame(HICON icon, HICON other) {
  struct Info : ICONINFOEXW {
    explicit Info(HICON icon) : ICONINFOEXW{} {
      cbSize = sizeof(ICONINFOEXW);
      GetIconInfoExW(icon, this);
      for (const HBITMAP bitmap : {hbmColor, hbmMask}) DeleteObject(bitmap);
    }
  };
  if (icon == other) return true;  // as a rule the system shares one handle
  const Info first(icon);
  const Info second(other);
  return first.wResID != 0 && first.wResID == second.wResID && std::wcscmp(first.szModName, second.szModName) == 0;
}

std::wstring iconName(HICON icon) {
  struct NamedIcon {
    LPCWSTR resource;
    const wchar_t* name;
  };
  const NamedIcon icons[] = {{IDI_HAND, L"critical"},
                             {IDI_EXCLAMATION, L"exclamation"},
                             {IDI_ASTERISK, L"information"},
                             {IDI_QUESTION, L"question"}};
  for (const auto& [resource, name] : icons) {
    if (isSame(icon, LoadIconW(nullptr, resource))) return name;
  }
  return L"none";
}

MessageBoxView read(HWND box) {
  MessageBoxView view;
  view.window = box;
  view.seen.caption = look(box, box, L"caption");
  view.seen.icon = L"none";
  for (HWND part = GetWindow(box, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
    wchar_t kind[8];
    GetClassNameW(part, kind, static_cast<int>(std::size(kind)));
    if (_wcsicmp(kind, L"Static") != 0) continue;
    if ((GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
      view.seen.icon = iconName(reinterpret_cast<HICON>(SendMessageW(part, STM_GETICON, 0, 0)));
    } else {
      view.seen.text = look(box, part, L"text");
    }
  }
  const auto buttons = buttonsOf(box);
  for (const AnswerButton& button : answerButtons) {
    if (buttons.contains(button.answer)) view.seen.buttons += button.answer;
  }
  return view;
}

}  // namespace

// Waiting

void User::await(const std::wstring& what, const std::function<bool()>& condition) {
  if (!thread_.waitUntil(condition)) throw Failure(what);
}

void User::settle() {
  if (!thread_.waitUntil(UiThread::Rest::quiet)) throw Failure(L"the host's thread does not come to rest");
}

void User::paint() {
  thread_.ask([thread = thread_.id()] {
    for (const HWND window : topLevelWindows(thread)) {
      RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
  });
}

Picture User::pictureOf(HWND window) {
  const HWND root = GetAncestor(window, GA_ROOT);
  if (root == nullptr) throw Failure(L"the window is gone");
  paint();
  return Picture::ofWindow(root);
}

HWND User::awaitDialog(const std::wstring& name) {
  HWND found = nullptr;
  await(L"there is no window " + name, [&] {
    const auto shown = dialogs(thread_.id(), name);
    found = shown.empty() ? nullptr : shown.front();
    return found != nullptr;
  });
  settle();
  return found;
}

HWND User::awaitControl(HWND dialog, const std::wstring& name) {
  HWND found = nullptr;
  await(L"there is no control " + name, [&] { return (found = controlIn(dialog, name)) != nullptr; });
  return found;
}

// Input

void User::send(std::vector<INPUT> events) {
  const unsigned seen = thread_.pressesSeen();
  const auto downs = static_cast<unsigned>(std::ranges::count_if(events, isDown));
  if (SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT)) != events.size()) {
    throw Failure(L"the system refuses input");
  }
  await(L"the input did not reach the host", [this, seen, downs] { return thread_.pressesSeen() - seen >= downs; });
  if (!thread_.waitUntil(UiThread::Rest::inputHandled)) throw Failure(L"the host's thread does not work off the input");
}

void User::sendKeys(std::vector<INPUT> strokes) {
  if (GetWindowThreadProcessId(GetForegroundWindow(), nullptr) != thread_.id()) {
    throw Failure(L"another program has the keyboard");
  }
  send(std::move(strokes));
}

void User::press(const scenario::Chord& chord) {
  sendKeys(strokesOf(chord));
  settle();
}

void User::type(const std::wstring& text) {
  for (const wchar_t c : text) sendKeys(strokesOf(c));
  settle();
}

bool User::reaches(HWND window) {
  const HWND target = thread_.ask([window] { return typingField(window); });
  return visibleToUser(target) && enabledForUser(target) && nv::host::reaches(clickPlace(target), target);
}

void User::click(HWND window, Button button) {
  const HWND target = thread_.ask([window] { return typingField(window); });
  const std::wstring name = nameOf(window);
  await(name + L" is not visible", [target] { return visibleToUser(target); });
  await(name + L" is disabled", [target] { return enabledForUser(target); });
  const POINT place = clickPlace(target);
  if (!nv::host::reaches(place, target)) throw Failure(name + L" is covered by another window");
  clickAt(place, button);
}

void User::clickAt(POINT place, Button button) {
  // Two clicks at one place would make a double click.
  const int apart = GetSystemMetrics(SM_CXDOUBLECLK);
  if (std::abs(place.x - lastClick_.x) <= apart && std::abs(place.y - lastClick_.y) <= apart) place.x -= apart + 1;
  lastClick_ = place;
  point(place);
  const bool left = (button == Button::left) == (GetSystemMetrics(SM_SWAPBUTTON) == FALSE);  // for left-handed users
  send({mouseEvent(place, left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN),
        mouseEvent(place, left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP)});
  settle();
}

/// A display server tells of each movement once more, in its own time. Told after the next press, it would drag what
/// the press began back to where the pointer came from.
void User::point(POINT place) {
  send({mouseEvent(place, 0)});
  // The server answers in order: with the pixel it has told of the movement.
  const HDC screen = GetDC(nullptr);
  GetPixel(screen, place.x, place.y);
  ReleaseDC(nullptr, screen);
  settle();
}

void User::closeByBox(HWND window) {
  const auto closeBox = thread_.ask([window]() -> std::optional<POINT> {
    RECT place{};
    GetWindowRect(window, &place);
    POINT inside{};
    ClientToScreen(window, &inside);
    for (LONG y = place.top; y < inside.y; ++y) {
      for (LONG x = place.right - 1; x >= place.left; --x) {
        // The box is a few pixels wide and high: aim behind the corner that is found first.
        if (SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(x, y)) == HTCLOSE) return POINT{x - 4, y + 4};
      }
    }
    return std::nullopt;
  });
  if (!closeBox) throw Failure(L"the window has no close box");
  clickAt(*closeBox);
}

void User::choose(HWND window, const std::wstring& text) {
  const auto list = thread_.ask([window] { return DropList::of(window); });
  const std::wstring name = nameOf(window);
  if (!list) throw Failure(name + L" is no list");
  await(name + L" is not visible", [window] { return visibleToUser(window); });
  await(name + L" is disabled", [window] { return enabledForUser(window); });
  if (!thread_.ask([list] { return list->dropped(); })) clickAt(thread_.ask([list] { return list->button(); }));
  if (!thread_.ask([list] { return list->dropped(); })) throw Failure(L"the list of " + name + L" does not open");
  const int row = thread_.ask([list, text] { return list->find(text); });
  if (row < 0) throw Failure(name + L" has no row with " + text);
  const POINT place = thread_.ask([list, row] { return list->bringIntoView(row); });
  settle();
  clickAt(place);
}

// Message boxes

MessageBoxView User::awaitMessageBox() {
  HWND box = nullptr;
  await(L"no message box appears", [&] { return (box = messageBox(thread_.id())) != nullptr; });
  settle();
  return viewOf(box);
}

MessageBoxView User::viewOf(HWND messageBox) {
  return thread_.ask([messageBox] { return read(messageBox); });
}

void User::answer(const MessageBoxView& box, const std::wstring& answer) {
  const auto buttons = buttonsOf(box.window);
  const auto button = buttons.find(answer);
  if (button == buttons.end()) throw Failure(L"the message box has no button for " + answer);
  clickAt(clickPlace(button->second));
  await(L"the message box stays", [&box] { return !IsWindow(box.window); });
  settle();
}

}  // namespace nv::host
