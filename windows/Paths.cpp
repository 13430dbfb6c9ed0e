#include "windows/Paths.h"

namespace nv::windows {

std::string inAnsiCodePage(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  constexpr DWORD noLikeness = WC_NO_BEST_FIT_CHARS;  // a "?" is honest
  const int needed = WideCharToMultiByte(CP_ACP, noLikeness, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, noLikeness, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

std::wstring fromAnsiCodePage(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // never longer than its bytes
  text.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), length)));
  return text;
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
