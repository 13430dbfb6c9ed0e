#include "bench/Workplace.h"

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
};

std::filesystem::path programFolder() {
  wchar_t path[MAX_PATH];
  return std::filesystem::path(std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH))).parent_path();
}

}  // namespace

Workplace::Workplace(const wchar_t* name)
    : installation_(programFolder() / L"installations" / name, programFolder().parent_path() / L"host" / L"standins") {}

windows::ComPtr<_ClsRandom> Workplace::object() const {
  auto object = windows::test::Server::get().create();
  windows::test::putText(object.Get(), &_ClsRandom::put_DLLPath, installation_.dllPath().c_str());
  for (const Value& value : biller) windows::test::putText(object.Get(), value.put, value.text);
  EXPECT_HRESULT_SUCCEEDED(object->put_UserBankAcctPermission(-1));
  return object;
}

}  // namespace nv::bench
