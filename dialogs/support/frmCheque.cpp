#include "dialogs/support/frmCheque.h"

namespace nv {

namespace {

/// The most common Canadian institutions: number; name.
constexpr const wchar_t* banks[] = {
    L"001;Bank of Montreal",
    L"002;Bank of Nova Scotia",
    L"003;Royal Bank",
    L"004;Toronto-Dominion Bank",
    L"006;National Bank of Canada",
    L"010;Canadian Imperial Bank of Comm",
    L"016;HSBC Bank Canada",
    L"030;Canadian Western Bank",
    L"039;Laurentian Bank",
    L"809;BC Credit Unions",
    L"815;Desjardin",
    L"828;Ontario Credit Unions",
    L"839;Nova Scotia Credit Unions",
    L"842;Alterna",
    L"879;Manitoba Credit Unions",
    L"889;Saskatchewan Credit Unions",
    L"899;Alberta Credit Unions",
};

}  // namespace

frmCheque::frmCheque(Component& component)
    : ComponentForm(component, L"frmCheque", L"frmCheque", forms::Border::dialog),
      picture(*this, L"picture", L"SAMPLECHEQUE", L"Sample cheque"),
      Label1(*this, L"Label1", L"Common Bank IDs:"),
      cmbBankName(*this, L"cmbBankName", {{L"Bank ID", 900}, {L"Name", 3600}}, 0) {
  setCaption(L"Sample Cheque");
  setSize(9000, 4740);
  picture.setPlace({180, 180, 8640, 3720});
  Label1.setPlace({180, 4155, 1500, 240});
  cmbBankName.setPlace({1740, 4110, 3900, 330});
  cmbBankName.click = [this] {
    const std::size_t row = cmbBankName.selectedRow().value_or(0);
    cmbBankName.setText(std::wstring(cmbBankName.cell(row, 0)).append(L" - ").append(cmbBankName.cell(row, 1)));
  };
}

void frmCheque::Form_Load() {
  trace(component(), L"frmCheque - Form_Load");
  LoadBankList();
  cmbBankName.setText(L"001 - Bank of Montreal");
}

void frmCheque::Form_KeyPress(wchar_t& key) {
  if (key == forms::keys::escape) unload();  // there is no button to do it
}

void frmCheque::LoadBankList() {
  trace(component(), L"frmCheque - LoadBankList");
  for (const wchar_t* bank : banks) cmbBankName.addItem(bank);
}

}  // namespace nv
