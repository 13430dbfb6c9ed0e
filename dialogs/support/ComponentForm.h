// What the component's forms share: the component they work for, the trace, and event procedures that cannot fail.
#pragma once

#include "component/core/Component.h"
#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "forms/Event.h"
#include "forms/Form.h"

namespace nv {

class ComponentForm : public forms::Form {
 public:
  Component& component() const { return component_; }
  Store& store() const { return component_.store; }

  /// A message box captioned with the form's own caption.
  platform::MessageBoxes::Answer message(
      std::wstring_view text, platform::MessageBoxes::Icon icon = platform::MessageBoxes::Icon::information,
      platform::MessageBoxes::Buttons buttons = platform::MessageBoxes::Buttons::ok) const {
    return component_.services.messages.show(text, caption(), icon, buttons);
  }

 protected:
  /// @param name the form's name in labels. @param windowName the name of its window. Both literals.
  ComponentForm(Component& component, std::wstring_view name, std::wstring_view windowName, forms::Border border)
      : Form(component.widgetset, component.forms, name, windowName, border), component_(component) {}

  /// Makes `body` the event procedure of `event`: it is traced, and a run-time error in it is reported under the same
  /// label and leaves the form open.
  /// @param body takes the event's arguments.
  template <class Body, class... Arguments>
  void on(forms::Event<Arguments...>& event, Procedure procedure, Body body) {
    event = [this, procedure, body](Arguments... arguments) {
      trace(component_, procedure);
      try {
        body(arguments...);
      } catch (...) {
        report(procedure);
      }
    };
  }

  template <class Body>
  void onClick(forms::Control& control, Body body) {
    on(control.click, {name(), control.name(), L"Click"}, std::move(body));
  }

  void failed(const RuntimeError& error) noexcept override {
    ShowError(component_, error.number(), error.description(), name(), false, {});
  }

 private:
  /// Reports the exception being handled.
  void report(const Procedure& procedure) noexcept {
    const RuntimeError error = RuntimeError::current();
    std::wstring label;
    try {
      label = procedure.label();
    } catch (...) {  // NOLINT(bugprone-empty-catch): without memory for its name the procedure is reported without
    }
    ShowError(component_, error.number(), error.description(), label, false, {});
  }

  Component& component_;
};

}  // namespace nv
