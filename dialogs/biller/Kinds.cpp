// The buttons that tell the kind of biller and of payment.
#include "dialogs/biller/frmRandomInfo.h"

namespace nv {

namespace {

void optCBusiness_Click(frmRandomInfo& form) {
  if (form.chkBNNotAvailable.checked() || !form.optCBusiness.enabled()) return;
  form.chkBNNotAvailable.setEnabled(true);
  form.txtBusinessNum.setEnabled(true);
  form.txtBusinessNum.setFocus();
}

void optCIndividual_Click(frmRandomInfo& form) {
  form.chkBNNotAvailable.setEnabled(false);
  form.txtBusinessNum.setEnabled(false);
  form.chkBNNotAvailable.setChecked(false);
  form.txtBusinessNum.setText({});
  for (forms::TextBox* phone : {&form.ran_Inter_payee_phone, &form.ran_payee_ph_area}) {
    if (!phone->available()) continue;
    phone->setFocus();
    return;
  }
}

void chkBNNotAvailable_Click(frmRandomInfo& form) {
  const bool unavailable = form.chkBNNotAvailable.checked();
  if (unavailable && !form.optCBusiness.selected()) form.optCBusiness.setSelected(true);
  if (form.optCBusiness.selected()) form.txtBusinessNum.setEnabled(!unavailable);
}

void optBusiness_Click(frmRandomInfo& form) {
  const bool permitted = form.store().UserBankAcctPermission != flagFalse;
  form.fraBankAcctInfo.setEnabled(permitted);
  if (permitted) return;
  for (forms::TextBox* number : {&form.txtTransit, &form.txtBankID, &form.txtAccount}) number->setText({});
}

}  // namespace

void frmRandomInfo::connectKinds() {
  onClick(optCBusiness, [this] { optCBusiness_Click(*this); });
  onClick(optCIndividual, [this] { optCIndividual_Click(*this); });
  onClick(chkBNNotAvailable, [this] { chkBNNotAvailable_Click(*this); });
  onClick(optBusiness, [this] { optBusiness_Click(*this); });
  onClick(optEmployee, [this] {
    fraBankAcctInfo.setEnabled(true);
    txtTransit.setFocus();
  });
}

}  // namespace nv
