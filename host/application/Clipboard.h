// The clipboard of the desktop that the host runs on.
#pragma once

#include <windows.h>

#include <string>

namespace nv::host {

/// The clipboard, opened for a window of the calling thread for as long as it lives. Opening it while another program
/// has it open is a Failure.
class Clipboard {
 public:
  explicit Clipboard(HWND owner);
  ~Clipboard() { CloseClipboard(); }
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;

  /// Empty when the clipboard holds no text.
  std::wstring text() const;
  void set(const std::wstring& text) const;
  void clear() const { EmptyClipboard(); }
};

}  // namespace nv::host
