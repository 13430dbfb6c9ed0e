#include "host/standins/Record.h"

#include <windows.h>

#include "host/base/File.h"
#include "host/base/Text.h"

namespace nv::host {

std::wstring installationInUse() {
  wchar_t root[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(installationVariable, root, MAX_PATH);
  return {root, length < MAX_PATH ? length : 0};
}

bool record(const wchar_t* file, const std::wstring& line) {
  const std::wstring root = installationInUse();
  return !root.empty() && appendToFile(root + file, narrow(line + L"\r\n", CP_ACP));
}

std::vector<std::wstring> recorded(const wchar_t* file) {
  const std::wstring root = installationInUse();
  if (root.empty()) return {};
  return splitLines(wide(readFile(root + file).value_or(""), CP_ACP));
}

}  // namespace nv::host
