// Frames: group boxes that are the parents of what stands in them. They paint themselves, since a group box of the
// system leaves its inside to the window behind it.
#include "forms/Frame.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

namespace {

class FrameWindow final : public ControlWindow {
 public:
  FrameWindow(FormWindow& owner, forms::Frame& frame) : ControlWindow(owner, frame) {}

 private:
  Native native() const override { return {L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}; }

  /// Blocked even where it does not look so: what stands in it is out of the mouse's reach.
  bool enabled() const override { return control().look().alive; }

  void apply(forms::Attribute attribute) override {
    ControlWindow::apply(attribute);
    if (attribute == forms::Attribute::text) InvalidateRect(window(), nullptr, TRUE);
    if (attribute == forms::Attribute::appearance)
      RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  }

  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override {
    switch (message) {
      case WM_NCHITTEST:
        return HTCLIENT;  // a group box lets clicks through to the window behind it
      case WM_LBUTTONDOWN:
      case WM_LBUTTONDBLCLK:
        mouseDown(window, forms::leftButton, lparam);  // the system's group box would take the focus
        return 0;
      case WM_ENABLE:
      case WM_MOUSEMOVE:
        return 0;  // the system's group box would paint itself
      case WM_SETTEXT:
        return DefWindowProcW(window, message, wparam, lparam);
      default:
        return ControlWindow::handle(window, message, wparam, lparam);
    }
  }

  /// The system's etched line, where it can be told from the background; a line in the text's colour otherwise.
  void paintEdge(HDC context, RECT edge) const {
    if (visible(GetSysColor(COLOR_BTNSHADOW), rgb(background()))) {
      DrawEdge(context, &edge, EDGE_ETCHED, BF_RECT);
    } else {
      FrameRect(context, &edge, owner().brush(control().colours().text));
    }
  }

  bool drawn() const override { return true; }

  void paint(HDC context, const RECT& area) override {
    const std::wstring& caption = control().caption();
    TEXTMETRICW metrics;
    GetTextMetricsW(context, &metrics);
    RECT edge = area;
    if (!caption.empty()) edge.top += metrics.tmHeight / 2;
    paintEdge(context, edge);
    if (caption.empty()) return;

    RECT text = area;
    text.left += owner().scale().pixels(120);
    text.right -= owner().scale().pixels(120);
    text.bottom = text.top + metrics.tmHeight;
    RECT needed = text;
    DrawTextW(context, caption.c_str(), -1, &needed, DT_SINGLELINE | DT_CALCRECT);
    text.right = needed.right < text.right ? needed.right : text.right;
    RECT gap = text;
    InflateRect(&gap, owner().scale().pixels(45), 0);
    FillRect(context, &gap, owner().brush(background()));
    DrawTextW(context, caption.c_str(), -1, &text, DT_SINGLELINE | DT_END_ELLIPSIS);
  }
};

}  // namespace

std::unique_ptr<ControlWindow> makeFrameWindow(FormWindow& owner, forms::Frame& frame) {
  return std::make_unique<FrameWindow>(owner, frame);
}

}  // namespace nv::windows
