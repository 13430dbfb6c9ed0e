// A top-level window of the host application. Belongs to the user-interface thread.
#pragma once

#include <windows.h>

namespace nv::host {

/// 1440 to the inch: the unit in which the component speaks of sizes and places.
int toPixels(int twips, HWND window);
int toTwips(int pixels, HWND window);

class HostWindow {
 public:
  /// Shows the window.
  /// @param size of its inside, in pixels. @param place of its outside, in pixels of the screen.
  HostWindow(const wchar_t* title, POINT place, SIZE size);
  ~HostWindow();
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  /// Null once the user has closed it.
  HWND handle() const { return IsWindow(window_) ? window_ : nullptr; }

  /// From now on, whenever the window gets the keyboard, the window embedded in it does.
  void passKeyboardTo(HWND embedded);

 private:
  HWND window_;
};

}  // namespace nv::host
