// What tests of the biller dialog share: records that are accepted as they stand, and the dialog on the screen.
#pragma once

#include "tests/support/ComponentTest.h"

namespace nv::test {

/// Texts by the names of their properties.
using Record = std::map<std::wstring, std::wstring>;

/// An installation, and on record a Canadian business whose bank account is not known.
class BillerTest : public ComponentTest {
 public:
  static constexpr const wchar_t* title = L"Norvik - Biller / Funds Transfer Information";

  BillerTest() {
    install();
    Store& store = component.store;
    store.Provpostalstr = L"QCGQCHQCJONKONLONMONNONPABTBCVNBE";
    store.UserBankAcctPermission = flagTrue;
    store.PayeeName = L"ACME HYDRO";
    store.PayeeBillAccount = L"12-345";
    store.PayeeStreet = L"1 MAIN STREET";
    store.PayeeCity = L"OTTAWA";
    store.PayeeProv = L"ON";
    store.PayeeCountry = L"CA";
    store.PayeePostal = L"K1A0B1";
    store.PayeePhoneArea = store.PayeeFaxArea = L"613";
    store.PayeePhoneNumber = L"5551234";
    store.PayeeFaxNumber = L"5559876";
    store.PayeeEmail = L"pay@acme.example";
    store.PayeeWeb = L"www.acme.example";
    store.PayeeContactName = L"JANE DOE";
    store.PayeeIndBusnTag = L"2";
    store.PayeeIndBussFlg = L" ";
    store.PayeeBusinessNum = L"         ";
    store.PayeeCurrency = L"CAD";
    store.PayeePhoneCountryCode = store.PayeeFaxCountryCode = L"1";
  }

  /// A private person with a bank account.
  void individual() {
    Store& store = component.store;
    store.PayeeIndBusnTag = L"1";
    store.PayeeIndBussFlg = L"I";
    bankAccount();
  }
  void bankAccount() {
    component.store.PayeeBankId = L"001";
    component.store.PayeeBankTransit = L"12345";
    component.store.PayeeBankAccount = L"1234567";
  }
  /// A business in the United States, paid through its banks.
  void unitedStates() {
    Store& store = component.store;
    store.WhatKindOfBiller = L"US";
    store.CurrencyCodeFromMain = store.PayeeCurrency = L"USD";
    store.PayeeCountry = L"US";
    store.PayeeProv = L"NY";
    store.PayeePostal = L"10001";
    store.PayeeFXBankCountry = L"US";
    store.PayeeFXBankName = L"FIRST BANK";
    store.PayeeFXBankAccount = L"021000021123456";
  }
  /// A business abroad with its bank.
  void international() {
    Store& store = component.store;
    store.InternationalPayment = flagTrue;
    store.PayeeCountry = L"FR";
    store.PayeeCurrency = L"EUR";
    store.PayeePostal = L"75001";
    store.PayeePhoneCountryCode = store.PayeeFaxCountryCode = L"33";
    store.PayeeFXPhoneNumber = L"145678901";
    store.PayeeFXFaxNumber = L"145678902";
    store.PayeeFXBankName = L"BANQUE";
    store.PayeeFXBankAddress = L"1 RUE DE LA PAIX";
    store.PayeeFXBankCity = L"PARIS";
    store.PayeeFXBankProv = L"IDF";
    store.PayeeFXBankCountry = L"FR";
    store.PayeeFXBankAccount = L"FR7612345";
    store.PayeeFXBankSwift = L"BNPAFRPP";
  }

  /// Every text of the record and the context.
  static Record recordOf(const Store& store) {
    Record record;
    const auto add = [&record](const wchar_t* name, const auto& value) {
      if constexpr (std::is_same_v<decltype(value), const std::wstring&>) record.emplace(name, value);
    };
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) add(L## #Name, store.Name);
#include "component/core/properties.def"
    return record;
  }

  /// Puts a text into a field past the rules of typing.
  static void put(const User& user, std::wstring_view field, const std::wstring& text) {
    dynamic_cast<forms::TextField&>(user.control(field)).setText(text);
  }

  User shown() {
    random.ShowForm_Remote();
    return widgetset.user(L"frmRandomInfo");
  }

  ClsRandom random{component, host};
};

}  // namespace nv::test
