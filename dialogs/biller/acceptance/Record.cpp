// The record of an accepted biller.
#include "dialogs/biller/acceptance/Acceptance.h"

namespace nv {

namespace {

/// The values of a record that are to change: all are made ready before the first one is stored.
class NewValues {
 public:
  void add(std::wstring& stored, std::wstring value) {
    if (trimmed(value) != trimmed(stored)) differ_ = true;
    values_.push_back({stored, std::move(value)});
  }
  void store() {
    for (Value& value : values_) value.stored = std::move(value.entered);
  }
  /// Whether any value differs from the stored one, blanks around it aside.
  bool differ() const { return differ_; }

 private:
  struct Value {
    std::wstring& stored;
    std::wstring entered;
  };
  std::vector<Value> values_;
  bool differ_ = false;
};

}  // namespace

void frmRandomInfo::Acceptance::accept() {
  std::wstring joined;
  if (form_.hasBankNumbers()) {
    joined = form_.txtBankID.text() + L"-" + form_.txtTransit.text() + L"-" + form_.txtAccount.text();
  }
  form_.lblbankaccount.setCaption(std::move(joined));

  NewValues values;
  values.add(store().PayeeName, std::wstring(trimmed(form_.ran_payee_name.caption())));
  values.add(store().PayeeBillAccount, std::wstring(trimmed(form_.ran_payee_account.caption())));
  for (const Field& row : form_.fields()) {
    if (auto value = form_.valueOf(row)) values.add(store().*row.record, std::move(*value));
  }
  const bool individual = form_.optCIndividual.selected();
  values.add(store().PayeeIndBusnTag, individual ? individualTag : businessTag);
  const bool discounts = form_.chkDiscountsApply.checked();
  if (form_.chkDiscountsApply.enabled() && discounts != (store().PayeeDiscountsApply == L"1")) {
    values.add(store().PayeeDiscountsApply, discounts ? L"1" : L"0");
  }
  std::wstring flag = individual ? individualFlag : businessFlag;
  values.store();
  store().PayeeIndBussFlg = std::move(flag);  // follows the tag, and counts as no change
  form_.provisional_.keep();

  const bool changed = values.differ() || form_.foreignBank() != form_.openingBank_;
  form_.closeResult_ = store().Add == flagFalse && !changed ? cancelledResult : 0;
  form_.CSBOK.raise();
  form_.unload();
}

void frmRandomInfo::Acceptance::storeRoutingNumberDetails() {
  const auto put = [this](std::wstring Store::*member, std::wstring_view value) {
    form_.provisional_.put(member, std::wstring(value));
  };
  put(&Store::PayeeFXBankName, textOf(form_.txtBankName));
  put(&Store::PayeeFXBankAccount, textOf(form_.txtBankAccountNumber));
  put(&Store::PayeeFXBankSwift, textOf(form_.txtRoutingNumber));
  put(&Store::PayeeFXBankCountry, unitedStatesCode);
}

}  // namespace nv
