// The one way into a window procedure of the component: windows are made here, or subclassed here, and no exception
// leaves what their messages do.
#pragma once

#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Receives the messages of the windows that it makes or subclasses. It outlives them.
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

  /// Makes a window and receives its messages. Fails with "Out of memory" where the system refuses one.
  HWND createWindow(const Native& native, const wchar_t* text, const RECT& place, HWND parent);
  /// Receives the messages of a window that is there already.
  void subclass(HWND window);
  /// Gives a window the name by which test tools find it, until it is destroyed.
  static void nameWindow(HWND window, std::wstring_view name);

  /// A message, but for a window's last. Returns its result; `pass` hands it on to the window's own procedure. An
  /// exception is told to the form, and the result is 0. The form, and with it this object, lives until the return.
  virtual LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) = 0;
  LRESULT pass(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const;
  /// The window is gone.
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
