// What windows tell screen readers and test tools, by the system's accessibility interface (oleacc). A window's answer
// is the system's own object for it, with what the form knows better in front. The system's library is loaded when
// somebody asks; where there is none, windows tell what the system tells of them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "windows/Handles.h"
// behind <windows.h>
#include <oleacc.h>

namespace nv::windows {

/// What a window tells of itself. States are STATE_SYSTEM_... bits.
struct Told {
  std::wstring name;
  long role = ROLE_SYSTEM_CLIENT;
  long state = 0;    // set beside those that the system finds out
  long noState = 0;  // cleared of those
  std::wstring description{};
  std::wstring key{};
  std::wstring action{};                // what the default action does; empty for none
  std::optional<std::wstring> value{};  // else the system's
  bool secret = false;                  // has a value that is told nobody
};

/// What the window of a control tells.
Told toldOf(const forms::Control& control);

/// Knows the rows of a list, from 0. Places are in pixels of the screen.
class RowTeller {
 public:
  virtual long count() const = 0;
  virtual std::wstring name(long row) const = 0;
  virtual long selected() const = 0;       // or -1
  virtual RECT area(long row) const = 0;   // empty when it is out of view
  virtual long at(POINT place) const = 0;  // or -1
  virtual void pick(long row) const = 0;   // returns at once: what comes of it, comes by messages

 protected:
  ~RowTeller() = default;
};

/// Knows what the windows tell. Asked in the windows' thread, as long as they exist.
class Teller {
 public:
  /// May throw: whoever asked hears of a failure, and nobody else.
  virtual Told tell(HWND window) const = 0;
  /// The default action. Returns at once: what comes of it, comes by messages.
  virtual void act(HWND /*window*/) const {}

  /// The rows of a window that is a list.
  virtual const RowTeller* rows(HWND /*window*/) const { return nullptr; }

 protected:
  ~Teller() = default;
};

/// The objects that stand for the windows of a teller, made when they are asked for.
class Accessibles {
 public:
  Accessibles();
  ~Accessibles();
  Accessibles(const Accessibles&) = delete;
  Accessibles& operator=(const Accessibles&) = delete;

  /// The answer to WM_GETOBJECT; nothing when the system is to answer.
  std::optional<LRESULT> answer(const Teller& teller, HWND window, WPARAM wparam, LPARAM lparam) noexcept;
  /// The window is being destroyed: who holds its object is told so from now on.
  void disconnect(HWND window) noexcept;

 private:
  class Object;
  std::vector<ComPtr<Object>> objects_;
};

}  // namespace nv::windows
