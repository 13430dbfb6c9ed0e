// How the stand-ins for other programs of a host's machine note what they were asked to do: a line in a file of the
// installation in use. For the stand-ins and nvhost alone.
#pragma once

#include <windows.h>

#include <string>

#include "host/base/Text.h"

namespace nv::host {

/// Names the root of the installation in use, with a trailing backslash; nvhost sets it for itself and its children.
inline constexpr const wchar_t* installationVariable = L"NVHOST_INSTALLATION";

/// Appends the line to the file of that name in the installation root, as text in the ANSI code page. Without an
/// installation nothing is noted. Returns whether it is.
inline bool record(const wchar_t* file, const std::wstring& line) {
  wchar_t root[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(installationVariable, root, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return false;
  const HANDLE handle = CreateFileW((std::wstring(root) + file).c_str(), FILE_APPEND_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  const std::string bytes = narrow(line + L"\r\n", CP_ACP);
  DWORD written = 0;
  const BOOL done = WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  CloseHandle(handle);
  return done != FALSE;
}

}  // namespace nv::host
