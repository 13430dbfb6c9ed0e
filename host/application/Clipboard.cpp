#include "host/application/Clipboard.h"

#include <cstring>

#include "host/base/Text.h"

namespace nv::host {

Clipboard::Clipboard(HWND owner) {
  constexpr int attempts = 100;
  constexpr DWORD pause = 20;                                // ms; nobody tells when a clipboard is closed
  for (int attempt = 1; !OpenClipboard(owner); ++attempt) {  // a history, or a remote desktop, looks at each change
    if (attempt == attempts) throw Failure(L"another program keeps the clipboard open");
    Sleep(pause);
  }
}

std::wstring Clipboard::text() const {
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  if (data == nullptr) return {};
  std::wstring text = static_cast<const wchar_t*>(GlobalLock(data));
  GlobalUnlock(data);
  return text;
}

void Clipboard::set(const std::wstring& text) const {
  clear();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, size);  // the clipboard's, once it is set
  if (data == nullptr) throw Failure(L"there is no memory for the clipboard");
  std::memcpy(GlobalLock(data), text.c_str(), size);
  GlobalUnlock(data);
  SetClipboardData(CF_UNICODETEXT, data);
}

}  // namespace nv::host
