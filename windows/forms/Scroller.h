// Scrolls what stands in a window that is smaller than its content. All measures are in pixels.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

class Scroller {
 public:
  explicit Scroller(HWND window = nullptr) : window_(window) {}

  /// Part of the content that lies to the left of and above the window.
  POINT position() const { return position_; }
  void setContent(SIZE content) { content_ = content; }
  void showBars();
  /// Answers WM_HSCROLL and WM_VSCROLL (SB_HORZ, SB_VERT); `line` is what a click on an arrow scrolls.
  void scrollBy(int bar, WPARAM request, int line);
  /// Answers WM_MOUSEWHEEL; `notch` is what one notch scrolls. Returns whether there is anything to scroll.
  bool wheel(WPARAM turned, int notch);
  /// Scrolls so that a part of the window, or what lies beyond its edges, can be seen with a margin.
  void bringIntoView(const RECT& part, int margin);

 private:
  SIZE room() const;
  void scrollTo(POINT position);

  HWND window_;
  SIZE content_{};
  POINT position_{};
};

}  // namespace nv::windows
