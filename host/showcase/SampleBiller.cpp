#include "host/showcase/SampleBiller.h"

namespace nv::host {

namespace {

struct Setting {
  const wchar_t* property;
  Value value;
};

/// What the user may edit, and what a biller that is new to the host begins with.
const Setting sampleRecord[] = {
    {L"PayeeName", L"LAKEHEAD HYDRO AND POWER"},
    {L"PayeeBillAccount", L"4410772903"},
    {L"PayeeStreet", L"1200 HARBOUR STREET"},
    {L"PayeeCity", L"THUNDER BAY"},
    {L"PayeeProv", L"ON"},
    {L"PayeeCountry", L"CA"},
    {L"PayeePostal", L"P7B1A1"},
    {L"PayeePhoneArea", L"807"},
    {L"PayeePhoneNumber", L"5550142"},
    {L"PayeeFXPhoneNumber", L""},
    {L"PayeeFaxArea", L"807"},
    {L"PayeeFaxNumber", L"5550143"},
    {L"PayeeFXFaxNumber", L""},
    {L"PayeeEmail", L"billing@lakeheadhydro.example"},
    {L"PayeeWeb", L"www.lakeheadhydro.example"},
    {L"PayeeContactName", L"ACCOUNTS RECEIVABLE"},
    {L"PayeeBankId", L""},
    {L"PayeeBankTransit", L""},
    {L"PayeeBankAccount", L""},
    {L"PayeeIndBusnTag", L"2"},
    {L"PayeeIndBussFlg", L" "},
    {L"PayeeBusinessNum", L""},
    {L"PayeeDiscountsApply", L"0"},
    {L"PayeeCurrency", L"CAD"},
    {L"PayeePhoneCountryCode", L"1"},
    {L"PayeeFaxCountryCode", L"1"},
    {L"PayeeFXBankName", L""},
    {L"PayeeFXBankAddress", L""},
    {L"PayeeFXBankCity", L""},
    {L"PayeeFXBankProv", L""},
    {L"PayeeFXBankCountry", L""},
    {L"PayeeFXBankAccount", L""},
    {L"PayeeFXBankSwift", L""},
};

/// What the host tells about itself and the user.
const Setting context[] = {
    {L"FormStyle", std::int16_t{1}},
    {L"Add", false},
    {L"UserBankAcctPermission", true},
    {L"NVMemberType", L"B"},
    {L"Provpostalstr", L"ABTBCVMBRNBENLANSBONKONLONMONNONPPECQCGQCHQCJSKSYTY"},
    {L"InternationalPayment", false},
    {L"BillerPaid", false},
    {L"USBillPaymentURL", L"https://payments.norvik.example/us"},
};

}  // namespace

void setSampleBiller(Biller& biller, const std::wstring& dllPath) {
  biller.put(L"DLLPath", dllPath);
  for (const auto& [property, value] : context) biller.put(property, value);
  for (const auto& [property, value] : sampleRecord) biller.put(property, value);
}

std::vector<RecordValue> readRecord(Biller& biller) {
  std::vector<RecordValue> values;
  for (const auto& [property, value] : sampleRecord) {
    values.push_back({property, std::get<std::wstring>(biller.get(property))});
  }
  return values;
}

}  // namespace nv::host
