#include "windows/Paths.h"

namespace nv::windows {

namespace {

/// The text that `fill(buffer, size)` writes, however long it is. `fill` returns the text's length, or at least `size`
/// when the buffer is too small.
template <class Fill>
std::wstring filled(Fill&& fill) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
    const bool fits = length < text.size();
    text.resize(fits ? length : 2 * text.size());
    if (fits) return text;
  }
}

}  // namespace

std::string inAnsiCodePage(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  constexpr DWORD flags = WC_NO_BEST_FIT_CHARS;  // "?", not a similar character: a name must not change unnoticed
  const int needed = WideCharToMultiByte(CP_ACP, flags, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, flags, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

std::wstring fromAnsiCodePage(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // never longer than its bytes
  text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), length)));
  return text;
}

std::wstring modulePath(HMODULE module) {
  return filled([module](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(module, buffer, size); });
}

std::wstring directory(UINT(WINAPI* ask)(LPWSTR, UINT)) {
  return filled(ask);
}

bool isFullPath(std::wstring_view path) {
  return path.size() > 2 && ((path[1] == L':' && path[2] == L'\\') || path.starts_with(L"\\\\"));
}

std::wstring joined(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (!path.ends_with(L'\\')) path += L'\\';
  return path.append(name);
}

}  // namespace nv::windows
