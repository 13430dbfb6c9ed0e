#include "host/user/Picture.h"

#include <dwmapi.h>
#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <unordered_map>

#include "host/base/Text.h"

namespace nv::host {

namespace {

using Microsoft::WRL::ComPtr;

/// A device context of a window for as long as it lives.
class Context {
 public:
  Context(HWND window, DWORD flags) : window_(window), context_(GetDCEx(window, nullptr, flags | DCX_CACHE)) {}
  ~Context() { ReleaseDC(window_, context_); }
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;
  operator HDC() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

class MemoryContext {
 public:
  explicit MemoryContext(HDC like) : context_(CreateCompatibleDC(like)) {}
  ~MemoryContext() { DeleteDC(context_); }
  MemoryContext(const MemoryContext&) = delete;
  MemoryContext& operator=(const MemoryContext&) = delete;
  operator HDC() const { return context_; }

 private:
  HDC context_;
};

void check(HRESULT result, const std::filesystem::path& file) {
  if (FAILED(result)) throw Failure(L"the picture " + file.wstring() + L" cannot be written");
}

}  // namespace

Picture Picture::ofWindow(HWND window) {
  BOOL composed = FALSE;  // a frame that the compositor draws is in no context of the window's
  if (SUCCEEDED(DwmGetWindowAttribute(window, DWMWA_NCRENDERING_ENABLED, &composed, sizeof(composed))) && composed)
    return ofInside(window);
  RECT place{};
  GetWindowRect(window, &place);
  return {Context(window, DCX_WINDOW), place.right - place.left, place.bottom - place.top};
}

Picture Picture::ofInside(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  return {Context(window, 0), inside.right, inside.bottom};
}

Picture Picture::ofScreen() {
  return {Context(nullptr, 0), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

Picture::Picture(HDC source, int width, int height) : width_(std::max(width, 1)), height_(std::max(height, 1)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width_;
  info.bmiHeader.biHeight = -height_;  // from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* pixels = nullptr;
  bitmap_.reset(CreateDIBSection(source, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  if (!bitmap_) throw Failure(L"there is no memory for a picture");
  const MemoryContext target(source);
  const HGDIOBJ before = SelectObject(target, bitmap_.get());
  BitBlt(target, 0, 0, width_, height_, source, 0, 0, SRCCOPY);
  SelectObject(target, before);
  GdiFlush();
  pixels_ = static_cast<const DWORD*>(pixels);
}

COLORREF Picture::mostFrequentColour() const {
  std::unordered_map<DWORD, std::size_t> counts;
  std::for_each_n(pixels_, static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_),
                  [&counts](DWORD pixel) { ++counts[pixel & 0xFFFFFF]; });
  const DWORD pixel =
      std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;  // never empty
  return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

void Picture::save(const std::filesystem::path& file) const {
  std::error_code none;
  std::filesystem::create_directories(file.parent_path(), none);
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IWICBitmap> image;
  ComPtr<IWICStream> stream;
  ComPtr<IWICBitmapEncoder> encoder;
  ComPtr<IWICBitmapFrameEncode> frame;
  check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory, &factory),
        file);
  check(factory->CreateBitmapFromHBITMAP(bitmap_.get(), nullptr, WICBitmapIgnoreAlpha, &image), file);
  check(factory->CreateStream(&stream), file);
  check(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE), file);
  check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder), file);
  check(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache), file);
  check(encoder->CreateNewFrame(&frame, nullptr), file);
  check(frame->Initialize(nullptr), file);
  check(frame->WriteSource(image.Get(), nullptr), file);
  check(frame->Commit(), file);
  check(encoder->Commit(), file);
}

}  // namespace nv::host
