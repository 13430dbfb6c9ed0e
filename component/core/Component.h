// The component of one thread: its store, its loaded forms and the services that it works with. Every class, form and
// module procedure is handed this object; there is no other global state.
#pragma once

#include <memory>

#include "component/core/Store.h"
#include "forms/Form.h"
#include "forms/FormList.h"
#include "forms/Widgetset.h"
#include "platform/Services.h"

namespace nv {

/// The component's name for users: the caption of message boxes without one of their own, and the error log's program.
inline constexpr const wchar_t* applicationTitle = L"NVRandom";

struct Component {
  Component(const platform::Services& systemServices, forms::Widgetset& formsWidgetset)
      : services(systemServices), widgetset(formsWidgetset) {}

  Store store;
  forms::FormList forms;
  const platform::Services& services;
  forms::Widgetset& widgetset;

  /// The single instance of the sample cheque form, made on first use.
  std::shared_ptr<forms::Form> chequeForm;
};

}  // namespace nv
