#include "component/ClsRandom.h"

#include "component/Trace.h"
#include "dialogs/biller/frmRandomInfo.h"

namespace nv {

namespace {

/// How an address that is a post-office box begins, as one text.
constexpr std::wstring_view postOfficeBoxWords =
    L"PO BOX|P.O. BOX|P.O.BOX|P.O BOX|POST OFFICE BOX|POSTAL BOX|POST-OFFICE BOX|CP|C.P.|C.P.POSTALE|BOITE|"
    L"BOITE POSTALE|CASE POSTALE|BP|B.P.";

std::vector<std::wstring> split(std::wstring_view text, wchar_t separator) {
  std::vector<std::wstring> parts;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(separator, start), text.size());
    parts.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

}  // namespace

ClsRandom::ClsRandom(Component& component, ClsRandomEvents& events) : component_(component), events_(events) {
  trace(component_, L"ClsRandom - Class_Initialize");
  Store& store = component_.store;
  store.verifyBusinessNumberFlag = flagFalse;
  store.IPCurrencyList = StringArray({{0, 0}, {0, 0}});
  store.postOfficeBoxWords = split(postOfficeBoxWords, L'|');
  store.WhatKindOfBiller = L" ";
  store.CurrencyCodeFromMain = L"CAD";
  store.CountryListAll = L"Y";
}

ClsRandom::~ClsRandom() {
  disconnect();
  if (connected_) connected_->unload();
}

// Properties

#define NV_TRACE_LET_Traced(Label) trace(component_, L"ClsRandom - Let " #Label)
#define NV_TRACE_LET_GetTraced(Label) static_cast<void>(0)
#define NV_TRACE_LET_Untraced(Label) static_cast<void>(0)
#define NV_TRACE_GET_Traced(Label) trace(component_, L"ClsRandom - Get " #Label)
#define NV_TRACE_GET_GetTraced(Label) NV_TRACE_GET_Traced(Label)
#define NV_TRACE_GET_Untraced(Label) static_cast<void>(0)

#define NV_DEFINE_Let(Name, Type, Tracing, Label)             \
  void ClsRandom::let##Name(property::Type::Argument value) { \
    NV_TRACE_LET_##Tracing(Label);                            \
    property::Type::assign(component_.store.Name, value);     \
  }
#define NV_DEFINE_LetGet(Name, Type, Tracing, Label)                                               \
  NV_DEFINE_Let(Name, Type, Tracing, Label) const property::Type::Stored& ClsRandom::get##Name() { \
    NV_TRACE_GET_##Tracing(Label);                                                                 \
    return component_.store.Name;                                                                  \
  }
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_DEFINE_##Access(Name, Type, Tracing, Label)
#define NV_METHOD(id, Name, Result)
#include "component/properties.def"

// Showing the dialog

std::int32_t ClsRandom::ShowForm() {
  trace(component_, L"ClsRandom - ShowForm");
  const auto form = std::make_shared<frmRandomInfo>(component_, forms::Border::dialog);
  try {
    return showModal(*form);
  } catch (...) {
    return RuntimeError::current().number();
  }
}

std::int32_t ClsRandom::ShowForm_Remote() {
  trace(component_, L"ClsRandom - ShowForm_Remote");
  const auto form = connectedForm();
  if (!form->loaded()) return 0;  // the host took it back while it loaded
  form->show();
  form->move(0, 0);
  return 0;
}

std::int32_t ClsRandom::ShowForm_Import() {
  trace(component_, L"ClsRandom - ShowForm_Import");
  const auto form = std::make_shared<frmRandomInfo>(component_, forms::Border::dialog);
  form->load();
  const forms::UnloadOnExit unloaded(*form);
  if (!form->loaded()) return 0;  // the host took it back while it loaded
  form->showReadOnly();
  showModal(*form);
  return 0;
}

std::int32_t ClsRandom::showModal(frmRandomInfo& form) {
  std::int32_t& closeResult = component_.store.closeResult;
  std::int32_t ownResult = 0;
  form.CSBOK = [&] { ownResult = closeResult; };
  form.Cancel = [&] { ownResult = Store::cancelledResult; };
  closeResult = 0;
  form.showModal();
  closeResult = 0;  // as the dialog below found it
  return ownResult;
}

std::int32_t ClsRandom::Get_hWnd() {
  trace(component_, L"ClsRandom - Get_hWnd");
  return static_cast<std::int32_t>(connectedForm()->handle());
}

std::int32_t ClsRandom::Get_Height() {
  trace(component_, L"ClsRandom - Get_Height");
  return connectedForm()->place().height;
}

std::int32_t ClsRandom::Get_Width() {
  trace(component_, L"ClsRandom - Get_Width");
  return connectedForm()->place().width;
}

void ClsRandom::Unload_From_Remote() {
  trace(component_, L"ClsRandom - Unload_From_Remote");
  component_.forms.unloadAll(frmRandomInfo::formName);
}

std::shared_ptr<frmRandomInfo> ClsRandom::connectedForm() {
  if (connected_ && connected_->loaded()) return connected_;
  disconnect();
  connected_ = std::make_shared<frmRandomInfo>(component_, forms::Border::embedded);
  connected_->CSBOK = [this] { frmRandomInfo_CSBOK(); };
  connected_->CurrentFieldTop = [this](std::int16_t top) { frmRandomInfo_CurrentFieldTop(top); };
  connected_->Cancel = [this] { frmRandomInfo_Cancel(); };
  connected_->ViewSampleCheque = [this] { frmRandomInfo_ViewSampleCheque(); };
  auto form = connected_;  // loading may let the host run
  form->load();
  return form;
}

void ClsRandom::disconnect() {
  if (!connected_) return;
  connected_->CSBOK = nullptr;
  connected_->CurrentFieldTop = nullptr;
  connected_->Cancel = nullptr;
  connected_->ViewSampleCheque = nullptr;
}

// Relays

void ClsRandom::frmRandomInfo_CSBOK() {
  trace(component_, L"ClsRandom - frmRandomInfo_CSBOK");
  events_.CSBOK();
}

void ClsRandom::frmRandomInfo_CurrentFieldTop(std::int16_t top) {
  trace(component_, L"ClsRandom - frmRandomInfo_CurrentFieldTop");
  events_.CurrentFieldTop(top);
}

void ClsRandom::frmRandomInfo_Cancel() {
  trace(component_, L"ClsRandom - frmRandomInfo_Cancel");
  events_.Cancel();
}

void ClsRandom::frmRandomInfo_ViewSampleCheque() {
  trace(component_, L"ClsRandom - frmRandomInfo_ViewSampleCheque");
  events_.ViewSampleCheque();
}

}  // namespace nv
