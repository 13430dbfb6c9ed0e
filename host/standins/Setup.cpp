#include "host/standins/Setup.h"

#include <windows.h>

#include <string>

#include "host/base/Failure.h"

namespace nv::host {

namespace {

constexpr const wchar_t* helpViewerKey =
    L"Software\\Classes\\CLSID\\{adb880a6-d8ff-11cf-9377-00aa003b7a11}\\InprocServer32";

void setDefaultValue(const std::wstring& key, const std::wstring& value) {
  const std::size_t size = (value.size() + 1) * sizeof(wchar_t);
  const LSTATUS result =
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(), static_cast<DWORD>(size));
  if (result != ERROR_SUCCESS) {
    throw Failure(L"the registry key " + key + L" cannot be set (" + std::to_wstring(result) + L")");
  }
}

}  // namespace

void registerStandIns(const std::filesystem::path& program) {
  const std::filesystem::path folder = program.parent_path();
  setDefaultValue(helpViewerKey, (folder / L"NVHostHelp.ocx").wstring());
  const std::wstring browser = L"\"" + (folder / L"NVHostBrowser.exe").wstring() + L"\" %1";
  for (const wchar_t* scheme : {L"http", L"https"}) {
    setDefaultValue(std::wstring(L"Software\\Classes\\") + scheme + L"\\shell\\open\\command", browser);
  }
}

}  // namespace nv::host
