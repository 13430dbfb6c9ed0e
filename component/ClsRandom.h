// The public class: the biller record and context properties, the show methods and the events, free of any operating
// system. `windows/com` puts it behind its COM interface; everything it does is decided here and below.
#pragma once

#include <cstdint>
#include <memory>

#include "component/core/Component.h"

namespace nv {

class frmRandomInfo;

/// Receives the events of one ClsRandom. A receiver may release the object inside an event.
class ClsRandomEvents {
 public:
  virtual ~ClsRandomEvents() = default;
#define NV_EVENT(id, Name, ...) virtual void Name(__VA_OPT__(NV_PARAMETER(__VA_ARGS__))) = 0;
#include "component/core/properties.def"
};

class ClsRandom {
 public:
  /// Class initialisation. Both arguments outlive the object.
  ClsRandom(Component& component, ClsRandomEvents& events);
  /// Unloads its connected dialog, without an event.
  ~ClsRandom();
  ClsRandom(const ClsRandom&) = delete;
  ClsRandom& operator=(const ClsRandom&) = delete;

  // let<Name> and get<Name> for each property, and the methods. A get returns a reference into the store. Failures are
  // exceptions of any type (see RuntimeError::current).
#define NV_DECLARE_Let(Name, Type) void let##Name(property::Type::Argument value);
#define NV_DECLARE_LetGet(Name, Type) NV_DECLARE_Let(Name, Type) const property::Type::Stored& get##Name();
#define NV_RESULT_Long std::int32_t
#define NV_RESULT_Nothing void
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_DECLARE_##Access(Name, Type)
#define NV_METHOD(id, Name, Result) NV_RESULT_##Result Name();
#include "component/core/properties.def"
#undef NV_DECLARE_Let
#undef NV_DECLARE_LetGet
#undef NV_RESULT_Long
#undef NV_RESULT_Nothing

 private:
  /// The connected dialog, loaded. It is created on first use, and again after it was unloaded.
  std::shared_ptr<frmRandomInfo> connectedForm();
  void disconnect();

  Component& component_;
  ClsRandomEvents& events_;
  std::shared_ptr<frmRandomInfo> connected_;
};

}  // namespace nv
