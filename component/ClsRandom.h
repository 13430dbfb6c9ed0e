// The public class: the biller record and context properties, the show methods and the events, free of any operating
// system. `windows/com` puts it behind its COM interface; everything it does is decided here and below.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "component/Component.h"

namespace nv {

class frmRandomInfo;

/// Receives the events of one ClsRandom. A receiver may release the object inside an event.
class ClsRandomEvents {
 public:
  virtual ~ClsRandomEvents() = default;
  virtual void CSBOK() = 0;
  /// @param top top of the field that got the focus, in twips from the top of the dialog.
  virtual void CurrentFieldTop(std::int16_t top) = 0;
  virtual void Cancel() = 0;
  virtual void ViewSampleCheque() = 0;
};

class ClsRandom {
 public:
  /// Class initialisation. Both arguments outlive the object.
  ClsRandom(Component& component, ClsRandomEvents& events);
  /// Takes its connected dialog away, without an event.
  ~ClsRandom();
  ClsRandom(const ClsRandom&) = delete;
  ClsRandom& operator=(const ClsRandom&) = delete;

  // let<Name> and get<Name> for each property, and the methods. What a get refers to is the store's. Failures are
  // thrown as they come (see RuntimeError::current).
#define NV_DECLARE_Let(Name, Type) void let##Name(property::Type::Argument value);
#define NV_DECLARE_LetGet(Name, Type) NV_DECLARE_Let(Name, Type) const property::Type::Stored& get##Name();
#define NV_RESULT_Long std::int32_t
#define NV_RESULT_Nothing void
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_DECLARE_##Access(Name, Type)
#define NV_METHOD(id, Name, Result) NV_RESULT_##Result Name();
#include "component/properties.def"
#undef NV_DECLARE_Let
#undef NV_DECLARE_LetGet
#undef NV_RESULT_Long
#undef NV_RESULT_Nothing

 private:
  // Relays of the connected dialog's events.
  void frmRandomInfo_CSBOK();
  void frmRandomInfo_CurrentFieldTop(std::int16_t top);
  void frmRandomInfo_Cancel();
  void frmRandomInfo_ViewSampleCheque();

  /// Shows a dialog that is not connected. Returns its close result, whatever is shown over it meanwhile.
  std::int32_t showModal(frmRandomInfo& form);

  /// The connected dialog, loaded: made on first use, and anew once it has been unloaded.
  std::shared_ptr<frmRandomInfo> connectedForm();
  void disconnect();

  Component& component_;
  ClsRandomEvents& events_;
  std::shared_ptr<frmRandomInfo> connected_;
};

}  // namespace nv
