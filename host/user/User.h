// The user at keyboard and mouse. Acts from a thread of its own while the host's thread shows dialogs, by real input
// alone, and after each step waits until the host's thread has handled it. A step that cannot be done is a Failure.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "host/application/UiThread.h"
#include "host/user/Keys.h"
#include "host/user/Picture.h"
#include "scenario/Stage.h"

namespace nv::host {

/// A message box as the user sees it.
struct MessageBoxView {
  HWND window = nullptr;
  scenario::Message seen;
};

class User {
 public:
  explicit User(UiThread& thread) : thread_(thread) {}

  UiThread& thread() { return thread_; }

  /// Waits until `condition` (see UiThread::waitUntil) holds; `what` says, in case of failure, what did not happen.
  void await(const std::wstring& what, const std::function<bool()>& condition);
  /// Waits until the host's thread has come to rest.
  void settle();

  /// A picture of the top-level window that the window stands in, all of it painted.
  Picture pictureOf(HWND window);
  /// Has everything painted that is due; without it, painting waits until nothing else is left to do.
  void paint();

  /// Waits until the thread shows a dialog of that name.
  HWND awaitDialog(const std::wstring& name);
  /// Waits until the dialog has a control of that name.
  HWND awaitControl(HWND dialog, const std::wstring& name);

  /// Whether a click on the window would reach it.
  bool reaches(HWND window);

  enum class Button { left, right };
  /// Clicks on the window: into a field behind the end of its text, on anything else in the middle.
  void click(HWND window, Button button = Button::left);
  void clickAt(POINT place, Button button = Button::left);
  void press(const scenario::Chord& chord);
  /// Types into whatever has the focus.
  void type(const std::wstring& text);
  /// Clicks on the close box of a window.
  void closeByBox(HWND window);
  /// Opens a list and picks the row that has the text in one of its cells.
  void choose(HWND list, const std::wstring& text);

  /// Waits for a message box that asks for an answer.
  MessageBoxView awaitMessageBox();
  MessageBoxView viewOf(HWND messageBox);
  /// Clicks on the button that gives the answer "ok", "yes", "no" ..., and waits until the box is gone.
  void answer(const MessageBoxView& box, const std::wstring& answer);

 private:
  void send(std::vector<INPUT> events);
  void sendKeys(std::vector<INPUT> strokes);
  void point(POINT place);

  UiThread& thread_;
  POINT lastClick_{};
};

}  // namespace nv::host
