#include "host/standins/Setup.h"

#include <windows.h>

#include <iterator>
#include <string>

#include "AccountVerifier.h"
#include "host/base/Text.h"

namespace nv::host {

namespace {

constexpr const wchar_t* verifierProgIdKey = L"Software\\Classes\\AccountVerifier.AccountVerifier";

std::wstring verifierClassId() {
  wchar_t text[40];
  StringFromGUID2(CLSID_AccountVerifier, text, static_cast<int>(std::size(text)));
  return text;
}

std::wstring verifierServerKey() {
  return L"Software\\Classes\\CLSID\\" + verifierClassId() + L"\\InprocServer32";
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

}  // namespace

void registerVerifier(const std::filesystem::path& library) {
  setDefaultValue(verifierServerKey(), library.wstring());
  setValue(verifierServerKey(), L"ThreadingModel", L"Apartment");
  setDefaultValue(std::wstring(verifierProgIdKey) + L"\\CLSID", verifierClassId());
}

void withdrawVerifier() {
  const LSTATUS result = RegDeleteTreeW(HKEY_LOCAL_MACHINE, verifierProgIdKey);
  if (result != ERROR_SUCCESS && result != ERROR_FILE_NOT_FOUND) {
    throw Failure(L"the account verifier cannot be withdrawn (" + std::to_wstring(result) + L")");
  }
}

}  // namespace nv::host
