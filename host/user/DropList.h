// Both kinds of list, the plain combo box and the component's multi-column one, which answers the same messages. To be
// used on the user-interface thread.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace nv::host {

class DropList {
 public:
  /// Nothing when the window is no list.
  static std::optional<DropList> of(HWND window);

  HWND field() const { return info_.hwndItem; }
  bool dropped() const;
  int rowCount() const;
  int columnCount() const;
  /// The chosen row, or -1.
  int chosen() const;
  /// The cells of a row; empty for -1.
  std::vector<std::wstring> row(int index) const;
  /// The first row with that text in one of its cells, or -1.
  int find(const std::wstring& text) const;

  /// The middle of the button that opens the list, in pixels of the screen.
  POINT button() const;
  /// Brings a row of the open list into view, and returns a point on it in pixels of the screen.
  POINT bringIntoView(int index) const;

 private:
  DropList(HWND window, const COMBOBOXINFO& info) : window_(window), info_(info) {}
  bool multiColumn() const;

  HWND window_;
  COMBOBOXINFO info_;
};

}  // namespace nv::host
