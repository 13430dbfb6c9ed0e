// Controls that draw themselves and can be clicked: links, images and pictures.

#include <wrl/client.h>

#include <algorithm>

#include "forms/Image.h"
#include "forms/Label.h"
#include "windows/Instance.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/WindowClasses.h"

namespace nv::windows {

namespace {

class DrawnWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;

 protected:
  virtual void clicked() = 0;
  virtual bool clickable() const { return control().look().alive; }

  Native native() const override { return {drawnClass}; }
  bool drawn() const override { return true; }

  LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) override {
    switch (message) {
      case WM_SETFONT:
        return 0;
      case WM_SETTEXT:
      case WM_ENABLE:
      case WM_SETFOCUS:
      case WM_KILLFOCUS:
        InvalidateRect(window, nullptr, TRUE);
        break;
      case WM_SETCURSOR:
        if (!clickable()) break;
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
      case WM_LBUTTONUP:
        clicked();
        return 0;
      default:
        break;
    }
    return ControlWindow::handle(window, message, wparam, lparam);
  }
};

/// The user's colour for links where it can be told from the background, else a blue that can.
COLORREF linkColour(COLORREF background) {
  const COLORREF own = GetSysColor(COLOR_HOTLIGHT);
  if (readable(own, background)) return own;
  return brightness(background) > 127 ? RGB(0, 51, 153) : RGB(153, 204, 255);
}

class HyperlinkWindow final : public DrawnWindow {
 public:
  HyperlinkWindow(FormWindow& owner, forms::Hyperlink& link) : DrawnWindow(owner, link), link_(link) {}

 private:
  void paint(HDC context, const RECT& area) override {
    const bool alive = link_.look().alive;
    const Selected font(context, owner().font(link_.font(), alive));
    if (alive) SetTextColor(context, linkColour(rgb(background())));
    RECT text = area;
    DrawTextW(context, link_.caption().c_str(), -1, &text, DT_WORDBREAK | DT_END_ELLIPSIS);
    if (GetFocus() != window()) return;
    DrawTextW(context, link_.caption().c_str(), -1, &text, DT_WORDBREAK | DT_CALCRECT);
    SetTextColor(context, 0);
    DrawFocusRect(context, &text);
  }

  void clicked() override { link_.clicked(); }

  forms::Hyperlink& link_;
};

/// Icons are drawn at the size asked for; any other picture comes from a JPEG and is fitted in.
class ImageWindow final : public DrawnWindow {
 public:
  ImageWindow(FormWindow& owner, forms::Image& image)
      : DrawnWindow(owner, image), image_(image), resource_(image.picture()) {}

 private:
  bool clickable() const override { return image_.kind() == forms::Kind::image && DrawnWindow::clickable(); }
  void clicked() override { image_.clicked(); }

  void paint(HDC context, const RECT& area) override {
    const int width = area.right;
    const int height = area.bottom;
    if (const HICON icon = owner().icon(resource_, width, height, image_.look().alive)) {
      DrawIconEx(context, 0, 0, icon, width, height, 0, nullptr, DI_NORMAL);
      return;
    }
    if (!picture_) load();
    OLE_HANDLE handle = 0;
    if (!picture_ || FAILED(picture_->get_Handle(&handle))) return;
    const auto bitmap = reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(handle));
    BITMAP size;
    if (GetObjectW(bitmap, sizeof(size), &size) == 0) return;

    const double factor =
        std::min(static_cast<double>(width) / size.bmWidth, static_cast<double>(height) / size.bmHeight);
    const int fittedWidth = static_cast<int>(size.bmWidth * factor);
    const int fittedHeight = static_cast<int>(size.bmHeight * factor);
    const MemoryDc source(CreateCompatibleDC(context));
    const Selected selected(source.get(), bitmap);
    SetStretchBltMode(context, HALFTONE);
    SetBrushOrgEx(context, 0, 0, nullptr);
    StretchBlt(context, (width - fittedWidth) / 2, (height - fittedHeight) / 2, fittedWidth, fittedHeight, source.get(),
               0, 0, size.bmWidth, size.bmHeight, SRCCOPY);
  }

  void load() {
    const HRSRC found = FindResourceW(moduleInstance(), resource_.c_str(), RT_RCDATA);
    if (found == nullptr) return;
    const DWORD size = SizeofResource(moduleInstance(), found);
    const void* const bytes = LockResource(LoadResource(moduleInstance(), found));
    ComPtr<IStream> stream;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)) || FAILED(stream->Write(bytes, size, nullptr))) return;
    LARGE_INTEGER start{};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
    OleLoadPicture(stream.Get(), static_cast<LONG>(size), FALSE, IID_IPicture, &picture_);
  }

  forms::Image& image_;
  std::wstring resource_;
  Microsoft::WRL::ComPtr<IPicture> picture_;
};

}  // namespace

std::unique_ptr<ControlWindow> makeHyperlinkWindow(FormWindow& owner, forms::Hyperlink& hyperlink) {
  return std::make_unique<HyperlinkWindow>(owner, hyperlink);
}

std::unique_ptr<ControlWindow> makeImageWindow(FormWindow& owner, forms::Image& image) {
  return std::make_unique<ImageWindow>(owner, image);
}

}  // namespace nv::windows
