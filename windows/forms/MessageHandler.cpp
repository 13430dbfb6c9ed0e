#include "windows/forms/MessageHandler.h"

#include <algorithm>

#include "windows/Instance.h"

namespace nv::windows {

namespace {

/// The window property that holds the name, as a global atom. Atoms do not tell capitals from small letters: each
/// capital stands behind a mark.
constexpr const wchar_t* nameProperty = L"NVRandom.Name";
constexpr wchar_t capitalMark = L'^';

}  // namespace

bool MessageHandler::handles(HWND window) const {
  return std::ranges::find(windows_, window, &Subclassed::window) != windows_.end();
}

HWND MessageHandler::createWindow(const Native& native, const wchar_t* text, const RECT& place, HWND parent) {
  windows_.reserve(windows_.size() + 1);  // nothing may throw once the window exists
  const HWND window =
      CreateWindowExW(native.extendedStyle, native.windowClass, text, native.style, place.left, place.top,
                      place.right - place.left, place.bottom - place.top, parent, nullptr, moduleInstance(), nullptr);
  if (window == nullptr) throw RuntimeError(ErrorNumber::outOfMemory);
  subclass(window);
  return window;
}

/// Not by SetWindowSubclass, which looks up a window property twice for every message and doubles the time in which the
/// dialog opens. A window's user data belongs to its creator.
void MessageHandler::subclass(HWND window) {
  Subclassed& subclassed = windows_.emplace_back(Subclassed{window, nullptr});
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  subclassed.before =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

void MessageHandler::nameWindow(HWND window, std::wstring_view name) {
  std::wstring marked;
  for (const wchar_t c : name) {
    if (c >= L'A' && c <= L'Z') marked += capitalMark;
    marked += c;
  }
  const ATOM atom = GlobalAddAtomW(marked.c_str());
  if (atom != 0) SetPropW(window, nameProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom)));
}

LRESULT MessageHandler::pass(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const {
  const auto subclassed = std::ranges::find(windows_, window, &Subclassed::window);
  return subclassed == windows_.end() ? DefWindowProcW(window, message, wparam, lparam)
                                      : CallWindowProcW(subclassed->before, window, message, wparam, lparam);
}

LRESULT CALLBACK MessageHandler::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const self = reinterpret_cast<MessageHandler*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  forms::Form& form = self->form_;
  const auto keep = form.weak_from_this().lock();
  try {
    return message == WM_NCDESTROY ? self->last(window, wparam, lparam)
                                   : self->receive(window, message, wparam, lparam);
  } catch (...) {
    form.failed(RuntimeError::current());
    return 0;
  }
}

LRESULT MessageHandler::last(HWND window, WPARAM wparam, LPARAM lparam) {
  const LRESULT result = pass(window, WM_NCDESTROY, wparam, lparam);
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  std::erase_if(windows_, [window](const Subclassed& each) { return each.window == window; });
  const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(RemovePropW(window, nameProperty)));
  if (atom != 0) GlobalDeleteAtom(atom);
  destroyed(window);
  return result;
}

}  // namespace nv::windows
