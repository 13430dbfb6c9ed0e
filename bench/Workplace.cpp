#include "bench/Workplace.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <stdexcept>

namespace nv::bench {

namespace {

struct Value {
  HRESULT (STDMETHODCALLTYPE _ClsRandom::*put)(BSTR);
  const wchar_t* text;
};

const Value biller[] = {
    {&_ClsRandom::put_Provpostalstr, L"QCGQCHQCJONKONLONMONNONPABTBCVNBE"},
    {&_ClsRandom::put_PayeeName, L"LAKEHEAD HYDRO AND POWER"},
    {&_ClsRandom::put_PayeeBillAccount, L"4410772903"},
    {&_ClsRandom::put_PayeeStreet, L"1200 HARBOUR STREET"},
    {&_ClsRandom::put_PayeeCity, L"THUNDER BAY"},
    {&_ClsRandom::put_PayeeProv, L"ON"},
    {&_ClsRandom::put_PayeeCountry, L"CA"},
    {&_ClsRandom::put_PayeePostal, L"P7B1A1"},
    {&_ClsRandom::put_PayeePhoneCountryCode, L"1"},
    {&_ClsRandom::put_PayeePhoneArea, L"807"},
    {&_ClsRandom::put_PayeePhoneNumber, L"5550142"},
    {&_ClsRandom::put_PayeeFaxCountryCode, L"1"},
    {&_ClsRandom::put_PayeeFaxArea, L"807"},
    {&_ClsRandom::put_PayeeFaxNumber, L"5550143"},
    {&_ClsRandom::put_PayeeEmail, L"billing@lakeheadhydro.example"},
    {&_ClsRandom::put_PayeeWeb, L"www.lakeheadhydro.example"},
    {&_ClsRandom::put_PayeeContactName, L"JANE DOE"},
    {&_ClsRandom::put_PayeeIndBusnTag, L"2"},
    {&_ClsRandom::put_PayeeIndBussFlg, L" "},
    {&_ClsRandom::put_PayeeBusinessNum, L"         "},
    {&_ClsRandom::put_PayeeCurrency, L"CAD"},
    {&_ClsRandom::put_CountryListAll, L"Y"},
};

std::filesystem::path programFolder() {
  wchar_t path[MAX_PATH];
  return std::filesystem::path(std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH))).parent_path();
}

}  // namespace

Workplace::Workplace(const std::wstring& name)
    : installation_(programFolder() / L"installations" / name, programFolder().parent_path() / L"host" / L"standins") {}

Workplace::Workplace(const std::wstring& name, std::size_t rows) : Workplace(name) {
  installation_.setCountries(countries(rows));
}

std::wstring Workplace::deciphered() const {
  using Decipher = int __stdcall(char* from, char* to);
  // Never freed, as by the component.
  static const auto decipher = reinterpret_cast<Decipher*>(reinterpret_cast<void*>(
      GetProcAddress(LoadLibraryW((installation_.dllPath() + L"kvd8rq3x.dll").c_str()), "_DES_decrypt_file@8")));
  std::string from = std::filesystem::path(installation_.dllPath() + L"FXCountries").string();
  std::string to = from + ".bare";
  if (decipher(from.data(), to.data()) == 0) throw std::runtime_error("the country file cannot be deciphered");
  return {to.begin(), to.end()};
}

windows::ComPtr<_ClsRandom> Workplace::object() const {
  auto object = windows::test::Server::get().create();
  windows::test::putText(object.Get(), &_ClsRandom::put_DLLPath, installation_.dllPath().c_str());
  for (const Value& value : biller) windows::test::putText(object.Get(), value.put, value.text);
  EXPECT_HRESULT_SUCCEEDED(object->put_UserBankAcctPermission(-1));
  return object;
}

std::vector<const wchar_t*> Workplace::texts() {
  std::vector<const wchar_t*> texts;
  for (const Value& value : biller) texts.push_back(value.text);
  return texts;
}

std::string countries(std::size_t rows) {
  std::string text = "Countries\r\n";
  for (std::size_t row = 0; row < rows; ++row) {
    const char code[] = {static_cast<char>('A' + row / 26 % 26), static_cast<char>('A' + row % 26), '\0'};
    text += static_cast<char>('A' + row * 26 / rows);
    text += "land number " + std::to_string(row) + ',' + code + ',' + std::to_string(row % 1000) + "\r\n";
  }
  return text;
}

Lines::Lines(const wchar_t* path) {
  std::FILE* const file = _wfopen(path, L"rb");
  if (file == nullptr) throw std::runtime_error("a file cannot be read");
  std::fseek(file, 0, SEEK_END);
  text_.resize(static_cast<std::size_t>(std::ftell(file)));
  std::rewind(file);
  text_.resize(std::fread(text_.data(), 1, text_.size(), file));
  std::fclose(file);
  for (std::string_view rest = text_; !rest.empty();) {
    lines_.push_back(rest.substr(0, rest.find('\n')));
    rest.remove_prefix(std::min(rest.size(), lines_.back().size() + 1));
  }
}

double bytesOfHeaps() {
  HANDLE heaps[256];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(256, heaps), 256);
  double bytes = 0;
  for (const HANDLE heap : std::span(heaps, count)) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry)) bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
  }
  return bytes;
}

}  // namespace nv::bench
