// Pictures of windows and of the screen.
#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>

namespace nv::host {

struct BitmapDeleter {
  void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
/// A picture: 32 bits per pixel, rows from the top.
class Picture {
 public:
  /// What the window shows, its caption and borders included.
  static Picture ofWindow(HWND window);
  /// What the inside of the window shows.
  static Picture ofInside(HWND window);
  static Picture ofScreen();

  /// The colour that most pixels have.
  COLORREF mostFrequentColour() const;

  /// Writes a PNG file; the folder is made when missing. Fails with Failure.
  void save(const std::filesystem::path& file) const;

 private:
  Picture(HDC source, int width, int height);

  std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> bitmap_;
  const DWORD* pixels_ = nullptr;
  int width_;
  int height_;
};

}  // namespace nv::host
