// The component's only window procedure. All windows are created or subclassed here; creation is checked, and no
// exception leaves the procedure.
#pragma once

#include <vector>

#include "forms/Form.h"
#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Receives the messages of the windows that it creates or subclasses, and must outlive them.
class MessageHandler {
 public:
  MessageHandler(const MessageHandler&) = delete;
  MessageHandler& operator=(const MessageHandler&) = delete;

  /// Whether the window's messages come here.
  bool handles(HWND window) const;

 protected:
  struct Native {
    const wchar_t* windowClass;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };

  explicit MessageHandler(forms::Form& form) : form_(form) {}
  ~MessageHandler() = default;

  forms::Form& form() const { return form_; }

  /// Creates and subclasses a window. Fails with "Out of memory" when the system does not create one.
  HWND createWindow(const Native& native, const wchar_t* text, const RECT& place, HWND parent);
  /// Subclasses an existing window.
  void subclass(HWND window);
  /// Gives a window the name by which test tools find it, until it is destroyed.
  static void nameWindow(HWND window, std::wstring_view name);

  /// Handles every message but WM_NCDESTROY and returns its result; `pass` calls the window's original procedure. An
  /// exception is reported to the form, and the result is 0. The form, and with it this object, lives until the return.
  virtual LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) = 0;
  LRESULT pass(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const;
  /// After WM_NCDESTROY.
  virtual void destroyed(HWND window) = 0;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT last(HWND window, WPARAM wparam, LPARAM lparam);

  struct Subclassed {
    HWND window;
    WNDPROC before;
  };

  forms::Form& form_;
  std::vector<Subclassed> windows_;  // until they are destroyed
};

}  // namespace nv::windows
