// What every field must have, so that one that is added is not forgotten anywhere: a row that says all that a row of
// its block says, a value of the record, a place in the layout.
#include <algorithm>
#include <set>

#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/Fields.h"
#include "tests/support/BillerTest.h"

namespace nv::test {

using Fields = BillerTest;

/// Every field that can be typed into, in tab order, each with its own row.
void expectRows(const FieldForm& form) {
  std::vector<std::wstring> fields, rows;
  for (const forms::Control* control : form.controls()) {
    if (dynamic_cast<const forms::TextField*>(control) != nullptr) fields.emplace_back(control->name());
  }
  for (const Field& row : form.fields()) {
    if (dynamic_cast<const forms::TextField*>(&row.field) == nullptr) continue;
    rows.emplace_back(row.field.name());
    const bool list = row.field.kind() == forms::Kind::dropDownList;
    EXPECT_TRUE(list || row.length > 0) << row.field.fullName() << " has no length";
  }
  const auto [row, field] = std::ranges::mismatch(rows, fields);
  EXPECT_TRUE(rows == fields) << "in tab order, the row of " << (row == rows.end() ? L"none" : *row) << " stands for "
                              << (field == fields.end() ? L"no field" : *field);
}

TEST_F(Fields, EveryFieldHasItsRow) {
  expectRows(frmRandomInfo(component, forms::Border::embedded));
  expectRows(frmFXBankInfo(component, true));
}

TEST_F(Fields, ARowOfTheAddressSaysAllThereIs) {
  const frmRandomInfo form(component, forms::Border::embedded);
  const std::set<std::wstring_view> noTop = {L"cmbCurrencyCode"};
  // Where the address begins, and the country codes, which begin with a value.
  const std::set<std::wstring_view> notLedTo = {L"ran_payee_street", L"txtPhoneCountryCode", L"txtFaxCountryCode"};
  for (const Field& row : form.fields()) {
    if (row.field.frame() != &form.Frame3 || row.field.kind() == forms::Kind::checkBox) continue;
    const std::wstring name = row.field.fullName();
    EXPECT_TRUE(row.keys) << name << ": any key may be typed";
    EXPECT_NE(row.next.front(), nullptr) << name << ": Enter leads nowhere";
    EXPECT_NE(row.reportsTop, noTop.contains(row.field.name())) << name << ": hosts do not hear where it is";
    EXPECT_NE(row.record, nullptr) << name << ": is no value of the record";
    const bool ledTo = std::ranges::any_of(form.fields(), [&](const Field& other) {
      return std::ranges::find(other.next, &row.field) != other.next.end();
    });
    EXPECT_NE(ledTo, notLedTo.contains(row.field.name())) << name << ": no field leads to it";
    if (row.field.kind() != forms::Kind::dropDownList) {
      EXPECT_NE(row.shape, Shape::unwatched) << name << ": changes are not watched";
    }
  }
}

TEST_F(Fields, EveryValueOfTheRecordHasAField) {
  // Shown as captions, told by buttons, or a bank abroad.
  const std::set<std::wstring> otherwise = {L"PayeeName",          L"PayeeBillAccount",    L"PayeeIndBusnTag",
                                            L"PayeeIndBussFlg",    L"PayeeDiscountsApply", L"PayeeFXBankName",
                                            L"PayeeFXBankAddress", L"PayeeFXBankCity",     L"PayeeFXBankProv",
                                            L"PayeeFXBankCountry", L"PayeeFXBankAccount",  L"PayeeFXBankSwift"};
  const frmRandomInfo form(component, forms::Border::embedded);
  const auto hasField = [&](auto member) {
    if constexpr (std::is_same_v<decltype(member), std::wstring Store::*>) {
      return std::ranges::any_of(form.fields(), [=](const Field& row) { return row.record == member; });
    }
    return false;
  };
  const auto expectField = [&](const std::wstring& property, auto member) {
    EXPECT_TRUE(!property.starts_with(L"Payee") || otherwise.contains(property) || hasField(member)) << property;
  };
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) expectField(L## #Name, &Store::Name);
#define NV_METHOD(id, Name, Result)
#include "component/core/properties.def"
}

/// Where it is seen, it is checked whenever a scenario is played.
TEST_F(Fields, EverythingHasAPlace) {
  const frmRandomInfo form(component, forms::Border::embedded);
  for (const forms::Control* control : form.controls()) {
    const forms::Place& place = control->place();
    EXPECT_TRUE(place.left > 0 && place.width > 0 && place.height > 0) << control->fullName() << " has no place";
  }
}

}  // namespace nv::test
