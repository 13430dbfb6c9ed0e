#include "host/standins/Setup.h"

#include <windows.h>

#include <iterator>
#include <string>

#include "AccountVerifier.h"
#include "host/base/Text.h"

namespace nv::host {

namespace {

constexpr const wchar_t* helpViewerKey =
    L"Software\\Classes\\CLSID\\{adb880a6-d8ff-11cf-9377-00aa003b7a11}\\InprocServer32";
constexpr const wchar_t* verifierProgIdKey = L"Software\\Classes\\AccountVerifier.AccountVerifier";

std::wstring verifierClassId() {
  wchar_t text[40];
  StringFromGUID2(CLSID_AccountVerifier, text, static_cast<int>(std::size(text)));
  return text;
}

std::wstring verifierServerKey() {
  return L"Software\\Classes\\CLSID\\" + verifierClassId() + L"\\InprocServer32";
}

bool keyExists(const std::wstring& key) {
  return RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, RRF_RT_ANY, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

void setValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  const std::size_t size = (value.size() + 1) * sizeof(wchar_t);
  const LSTATUS result =
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, value.c_str(), static_cast<DWORD>(size));
  if (result != ERROR_SUCCESS) {
    throw Failure(L"the registry key " + key + L" cannot be set (" + std::to_wstring(result) + L")");
  }
}

void setDefaultValue(const std::wstring& key, const std::wstring& value) {
  setValue(key, nullptr, value);
}

void setVerifierProgId() {
  setDefaultValue(std::wstring(verifierProgIdKey) + L"\\CLSID", verifierClassId());
}

}  // namespace

void registerStandIns(const std::filesystem::path& program) {
  const std::filesystem::path folder = program.parent_path();
  setDefaultValue(helpViewerKey, (folder / L"NVHostHelp.ocx").wstring());
  const std::wstring browser = L"\"" + (folder / L"NVHostBrowser.exe").wstring() + L"\" %1";
  for (const wchar_t* scheme : {L"http", L"https"}) {
    setDefaultValue(std::wstring(L"Software\\Classes\\") + scheme + L"\\shell\\open\\command", browser);
  }
  registerVerifier(folder / L"NVHostVerifier.dll");
}

void registerVerifier(const std::filesystem::path& library) {
  setDefaultValue(verifierServerKey(), library.wstring());
  setValue(verifierServerKey(), L"ThreadingModel", L"Apartment");
  setVerifierProgId();
}

void withdrawVerifier() {
  const LSTATUS result = RegDeleteTreeW(HKEY_LOCAL_MACHINE, verifierProgIdKey);
  if (result != ERROR_SUCCESS && result != ERROR_FILE_NOT_FOUND) {
    throw Failure(L"the account verifier cannot be withdrawn (" + std::to_wstring(result) + L")");
  }
}

void restoreVerifier() noexcept {
  try {
    if (keyExists(verifierServerKey()) && !keyExists(std::wstring(verifierProgIdKey) + L"\\CLSID")) setVerifierProgId();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): whoever needs the verifier will see that it is missing
  }
}

}  // namespace nv::host
