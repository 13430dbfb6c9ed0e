#include "host/application/HostWindow.h"

namespace nv::host {

namespace {

constexpr int twipsPerInch = 1440;
constexpr const wchar_t* className = L"NVHost.Window";

int dotsPerInch(HWND window) {
  const HDC context = GetDC(window);
  const int dots = GetDeviceCaps(context, LOGPIXELSX);
  ReleaseDC(window, context);
  return dots;
}

/// A window that comes back to the front gets the keyboard itself, and passes it on.
LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_SETFOCUS) return DefWindowProcW(window, message, wParam, lParam);
  const auto embedded = reinterpret_cast<HWND>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (IsChild(window, embedded)) SetFocus(embedded);
  return 0;
}

}  // namespace

int toPixels(int twips, HWND window) {
  return MulDiv(twips, dotsPerInch(window), twipsPerInch);
}

int toTwips(int pixels, HWND window) {
  return MulDiv(pixels, twipsPerInch, dotsPerInch(window));
}

HostWindow::HostWindow(const wchar_t* title, POINT place, SIZE size) {
  constexpr DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = GetSysColorBrush(COLOR_APPWORKSPACE);
  windowClass.lpszClassName = className;
  RegisterClassW(&windowClass);
  RECT outside{0, 0, size.cx, size.cy};
  AdjustWindowRect(&outside, style, FALSE);
  window_ = CreateWindowExW(0, className, title, style, place.x, place.y, outside.right - outside.left,
                            outside.bottom - outside.top, nullptr, nullptr, windowClass.hInstance, nullptr);
  ShowWindow(window_, SW_SHOW);
  // Windows lets a program come to the front that has had the last input, and nothing else brings a background one
  // there.
  INPUT nothing{};
  nothing.type = INPUT_MOUSE;
  SendInput(1, &nothing, sizeof(nothing));
  SetForegroundWindow(window_);
}

HostWindow::~HostWindow() {
  if (handle() != nullptr) DestroyWindow(window_);
}

void HostWindow::passKeyboardTo(HWND embedded) {
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(embedded));
}

}  // namespace nv::host
