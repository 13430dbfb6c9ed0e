#include "windows/Paths.h"

#include "platform/RuntimeError.h"

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

std::string inAnsiCodePage(std::wstring_view text, const Conversions& system) {
  if (text.empty()) return {};
  DWORD flags = WC_NO_BEST_FIT_CHARS;  // "?", not a similar character: a name must not change unnoticed
  const auto convert = [&](char* bytes, int size) {
    return system.toBytes(CP_ACP, flags, text.data(), static_cast<int>(text.size()), bytes, size, nullptr, nullptr);
  };
  int needed = convert(nullptr, 0);
  if (needed == 0 && GetLastError() == ERROR_INVALID_FLAGS) {  // UTF-8, GB 18030: nothing is lacking there
    flags = 0;
    needed = convert(nullptr, 0);
  }
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  if (needed == 0 || convert(bytes.data(), needed) != needed) throw RuntimeError(ErrorNumber::invalidCall);
  return bytes;
}

std::optional<std::string> exactlyInAnsiCodePage(std::wstring_view text, const Conversions& system) {
  std::string bytes = inAnsiCodePage(text, system);
  if (fromAnsiCodePage(bytes, system) != text) return std::nullopt;
  return bytes;
}

std::wstring fromAnsiCodePage(std::string_view bytes, const Conversions& system) {
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // never longer than its bytes
  constexpr DWORD flags = 0;               // the only ones that every code page takes
  const int written = system.toText(CP_ACP, flags, bytes.data(), length, text.data(), length);
  if (written == 0) throw RuntimeError(ErrorNumber::invalidCall);
  text.resize(static_cast<std::size_t>(written));
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
