#include "component/ClsRandom.h"

#include "component/core/Trace.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"

namespace nv {

namespace {

/// The beginnings of post-office box addresses.
constexpr std::wstring_view postOfficeBoxWords =
    L"PO BOX|P.O. BOX|P.O.BOX|P.O BOX|POST OFFICE BOX|POSTAL BOX|POST-OFFICE BOX|CP|C.P.|C.P.POSTALE|BOITE|"
    L"BOITE POSTALE|CASE POSTALE|BP|B.P.";

enum class Traces { Untraced, GetTraced, Traced };

}  // namespace

ClsRandom::ClsRandom(Component& component, ClsRandomEvents& events) : component_(component), events_(events) {
  trace(component_, L"ClsRandom - Class_Initialize");
  Store& store = component_.store;
  store.verifyBusinessNumberFlag = flagFalse;
  store.IPCurrencyList = StringArray({{0, 0}, {0, 0}});
  store.postOfficeBoxWords = split(postOfficeBoxWords, L"|");
  store.WhatKindOfBiller = L" ";
  store.CurrencyCodeFromMain = L"CAD";
  store.CountryListAll = L"Y";
}

ClsRandom::~ClsRandom() {
  disconnect();
  if (connected_) connected_->unload();
}

// Properties

#define NV_DEFINE_Let(Name, Type, Tracing, Label)                                         \
  void ClsRandom::let##Name(property::Type::Argument value) {                             \
    if (Traces::Tracing == Traces::Traced) trace(component_, L"ClsRandom - Let " #Label); \
    property::Type::assign(component_.store.Name, value);                                 \
  }
#define NV_DEFINE_LetGet(Name, Type, Tracing, Label)                                               \
  NV_DEFINE_Let(Name, Type, Tracing, Label) const property::Type::Stored& ClsRandom::get##Name() { \
    if (Traces::Tracing != Traces::Untraced) trace(component_, L"ClsRandom - Get " #Label);        \
    return component_.store.Name;                                                                  \
  }
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_DEFINE_##Access(Name, Type, Tracing, Label)
#include "component/core/properties.def"

// Showing the dialog

std::int32_t ClsRandom::ShowForm() {
  trace(component_, L"ClsRandom - ShowForm");
  const auto form = std::make_shared<frmRandomInfo>(component_, forms::Border::dialog);
  try {
    form->showModal();
    return form->closeResult();
  } catch (...) {
    return RuntimeError::current().number();
  }
}

std::int32_t ClsRandom::ShowForm_Remote() {
  trace(component_, L"ClsRandom - ShowForm_Remote");
  const auto form = connectedForm();
  if (!form->loaded()) return 0;  // the host unloaded it while it loaded
  form->show();
  form->move(0, 0);
  return 0;
}

std::int32_t ClsRandom::ShowForm_Import() {
  trace(component_, L"ClsRandom - ShowForm_Import");
  const auto form = std::make_shared<frmRandomInfo>(component_, forms::Border::dialog);
  form->load();
  const forms::UnloadOnExit unloaded(*form);
  if (!form->loaded()) return 0;  // the host unloaded it while it loaded
  form->showReadOnly();
  form->showModal();
  return 0;
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
  // Relay its events to the host.
#define NV_EVENT(id, Name, ...)                             \
  connected_->Name = [this](auto... arguments) {            \
    trace(component_, L"ClsRandom - frmRandomInfo_" #Name); \
    events_.Name(arguments...);                             \
  };
#include "component/core/properties.def"
  auto form = connected_;  // while it loads, the host may run and release this object
  form->load();
  return form;
}

void ClsRandom::disconnect() {
  if (!connected_) return;
#define NV_EVENT(id, Name, ...) connected_->Name = nullptr;
#include "component/core/properties.def"
}

}  // namespace nv
