// The window of a form: it makes the windows of the controls, keeps the focus where the form wants it, and runs modal
// loops.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "forms/Form.h"
#include "windows/ThreadWindows.h"
#include "windows/forms/ControlWindow.h"
#include "windows/forms/Graphics.h"
#include "windows/forms/MessageHandler.h"
#include "windows/forms/Scroller.h"
#include "windows/forms/Tips.h"

namespace nv::windows {

class FormWindow final : public forms::FormPeer, private MessageHandler, private Teller {
 public:
  FormWindow(forms::Form& form, Palette& palette);
  ~FormWindow() override;

  // FormPeer
  void update(forms::Attribute attribute) override;
  void show(bool modal) override;
  void runModal() override;
  void close() override;
  void sendKey(wchar_t key) override;
  bool pressed() const override { return pressed_ && GetKeyState(VK_LBUTTON) < 0; }
  std::intptr_t handle() const override { return reinterpret_cast<std::intptr_t>(window_); }

  // For the windows of the controls.

  HWND window() const { return window_; }
  using MessageHandler::form;
  const Scale& scale() const { return scale_; }
  Tips& tips() { return tips_; }
  HBRUSH brush(forms::Colour colour) { return palette_.brush(colour); }
  HFONT font(const forms::Font& font, bool underlined) { return palette_.font(font, underlined, scale_.dpi()); }
  int lineHeight(const forms::Font& font) { return palette_.lineHeight(font, scale_.dpi()); }
  HICON icon(std::wstring_view resource, int width, int height, bool alive) {
    return palette_.icon(resource, width, height, alive);
  }
  /// Where a control stands in its parent window, in pixels, the scrolled part of the form taken into account.
  RECT placeOf(const forms::Control& control) const;
  /// The control whose window, or a window within it, this is; nullptr for windows of others.
  ControlWindow* controlOf(HWND window) const;
  /// Scrolls so that the control can be seen.
  void bringIntoView(const forms::Control& control);
  /// Makes the windows that are missing. A control has one from when it can first be seen: it and the frames around it
  /// are visible.
  void makeWindows();
  /// The keyboard focus has come into a control's window, whoever brought it there.
  void focusEntered(forms::Control& control);
  /// The mouse goes down in a control's window. A host may have shown the form while it was held down: that is no
  /// press.
  void noticePress() { pressed_ = true; }
  /// A message to one of the windows was handled: tells the form if by then the mouse has been let go, here or
  /// elsewhere.
  void noticeRelease(UINT message);

 private:
  LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override;
  Told tell(HWND window) const override;
  void destroyed(HWND window) override;
  /// Gives the window its size as the form says, within the work area of its screen, and its place: in the middle of
  /// its owner, where an embedded form says, or the one that it has.
  enum class Where { centre, asFormSays, here };
  void arrange(Where where);
  void rescale(int dpi);
  void adoptParent();
  void paintBackground(HDC context) const;
  void giveFocusBack();
  bool helps(HWND window) const;
  void disableOthers();
  void enableOthers();

  bool embedded() const { return form().border() == forms::Border::embedded; }

  Palette& palette_;
  HWND window_ = nullptr;
  Accessibles accessibles_;
  std::optional<FocusRestorer> focusRestorer_;  // of a modal form
  HWND session_ = nullptr;                      // of an embedded form
  Scale scale_;
  Scroller scroller_;
  Tips tips_{*this};
  std::vector<std::unique_ptr<ControlWindow>> controls_;
  std::vector<HWND> disabled_;  // top-level windows to be enabled again after a modal show
  bool pressed_ = false;        // the mouse went down in a control
};

}  // namespace nv::windows
