// Shows a text whole, beside the mouse, that its box cuts off: the system's tooltip, one for a form. It works over
// disabled windows, too: it is told what the mouse does by whichever window of the form hears of it.
#pragma once

#include <string>

#include "windows/forms/ControlWindow.h"
#include "windows/forms/MessageHandler.h"

namespace nv::windows {

class Tips final : private MessageHandler {
 public:
  explicit Tips(FormWindow& owner);
  ~Tips() { destroy(); }

  /// One of the form's windows gets this message.
  void heard(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void destroy();

 private:
  LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
  void destroyed(HWND /*window*/) override { tip_ = nullptr; }

  void follow(POINT place);
  ControlWindow* controlAt(POINT place) const;
  void offer(const ControlWindow& control, std::wstring text);
  void withdraw();

  FormWindow& owner_;
  HWND tip_ = nullptr;
  std::wstring text_;                  // what is offered now; empty for nothing
  const ControlWindow* of_ = nullptr;  // and of which control
};

}  // namespace nv::windows
