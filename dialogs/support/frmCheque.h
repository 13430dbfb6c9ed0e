// The sample cheque viewer: a picture that shows where the bank numbers are printed, and the common bank numbers.
#pragma once

#include "dialogs/support/ComponentForm.h"
#include "forms/DropDownList.h"
#include "forms/Image.h"
#include "forms/Label.h"

namespace nv {

class frmCheque : public ComponentForm {
 public:
  explicit frmCheque(Component& component);

  forms::Picture picture;
  forms::Label Label1;
  forms::DropDownList cmbBankName;

 protected:
  void Form_Load() override;
  void Form_KeyPress(wchar_t& key) override;

 private:
  void LoadBankList();
};

}  // namespace nv
