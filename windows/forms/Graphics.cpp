#include "windows/forms/Graphics.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "windows/Instance.h"
#include "windows/SystemFunction.h"

namespace nv::windows {

namespace {

int dpiOf(HWND window) {
  static const auto getDpiForWindow = systemFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  if (getDpiForWindow != nullptr) {
    const UINT dpi = getDpiForWindow(window);
    if (dpi != 0) return static_cast<int>(dpi);
  }
  const HDC context = GetDC(window);
  const int dpi = GetDeviceCaps(context, LOGPIXELSX);
  ReleaseDC(window, context);
  return dpi;
}

RECT workAreaOf(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

/// How much light a colour gives, 0 to 1, as WCAG 2 has it.
double luminance(COLORREF colour) {
  const auto linear = [](int level) {
    const double part = level / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(GetRValue(colour)) + 0.7152 * linear(GetGValue(colour)) + 0.0722 * linear(GetBValue(colour));
}

/// The icon in grey, half of it seen through; none when there is no memory for it.
Icon faded(HICON icon, int width, int height) {
  ICONINFO parts{};
  if (!GetIconInfo(icon, &parts)) return {};
  const Bitmap colours(parts.hbmColor);
  const Bitmap mask(parts.hbmMask);
  BITMAPINFO layout{};
  layout.bmiHeader = {sizeof(layout.bmiHeader), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::vector<DWORD> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const MemoryDc context(CreateCompatibleDC(nullptr));
  const auto lines = static_cast<UINT>(height);
  if (GetDIBits(context.get(), colours.get(), 0, lines, pixels.data(), &layout, DIB_RGB_COLORS) != height) return {};
  for (DWORD& pixel : pixels) {
    const auto level = static_cast<DWORD>(brightness(RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF)));
    pixel = (pixel >> 25 << 24) | level << 16 | level << 8 | level;
  }
  if (SetDIBits(context.get(), colours.get(), 0, lines, pixels.data(), &layout, DIB_RGB_COLORS) != height) return {};
  return Icon(CreateIconIndirect(&parts));
}

}  // namespace

Screens screens{dpiOf, workAreaOf};

int systemMetric(int index, int dpi) {
  static const auto metricForDpi = systemFunction<int(WINAPI*)(int, UINT)>("GetSystemMetricsForDpi");
  return metricForDpi == nullptr ? GetSystemMetrics(index) : metricForDpi(index, static_cast<UINT>(dpi));
}

void addFrame(RECT& inside, DWORD style, DWORD extendedStyle, int dpi) {
  using AdjustForDpi = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
  static const auto adjustForDpi = systemFunction<AdjustForDpi>("AdjustWindowRectExForDpi");
  if (adjustForDpi == nullptr) {
    AdjustWindowRectEx(&inside, style, FALSE, extendedStyle);
  } else {
    adjustForDpi(&inside, style, FALSE, extendedStyle, static_cast<UINT>(dpi));
  }
}

COLORREF rgb(forms::Colour colour) {
  constexpr forms::Colour systemColour = 0x80000000U;
  return (colour & systemColour) != 0 ? GetSysColor(static_cast<int>(colour & ~systemColour)) : colour;
}

int brightness(COLORREF colour) {
  return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

double contrast(COLORREF one, COLORREF other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

bool readable(COLORREF text, COLORREF background) {
  constexpr double enough = 3;
  return contrast(text, background) >= enough;
}

COLORREF greyText(COLORREF background) {
  constexpr double paleAsSystemsAre = 2;
  const COLORREF own = GetSysColor(COLOR_GRAYTEXT);
  return contrast(own, background) >= paleAsSystemsAre ? own : RGB(128, 128, 128);
}

bool visible(COLORREF line, COLORREF background) {
  constexpr int difference = 40;
  return std::abs(brightness(line) - brightness(background)) >= difference;
}

HBRUSH Palette::brush(forms::Colour colour) {
  constexpr forms::Colour systemColour = 0x80000000U;
  if ((colour & systemColour) != 0) return GetSysColorBrush(static_cast<int>(colour & ~systemColour));
  Brush& brush = brushes_[colour];
  if (!brush) brush.reset(CreateSolidBrush(colour));
  return brush.get();
}

HFONT Palette::font(const forms::Font& font, bool underlined, int dpi) {
  return cached(font, underlined, dpi).handle.get();
}

int Palette::lineHeight(const forms::Font& font, int dpi) {
  return cached(font, false, dpi).lineHeight;
}

const Palette::CachedFont& Palette::cached(const forms::Font& font, bool underlined, int dpi) {
  for (const CachedFont& cached : fonts_) {
    if (cached.font == font && cached.underlined == underlined && cached.dpi == dpi) return cached;
  }
  LOGFONTW description{};
  description.lfHeight = -MulDiv(font.points, dpi, 72);
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfUnderline = underlined ? TRUE : FALSE;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = CLEARTYPE_QUALITY;
  font.name.copy(description.lfFaceName, LF_FACESIZE - 1);
  FontHandle handle(CreateFontIndirectW(&description));
  TEXTMETRICW metrics{};
  const HDC screen = GetDC(nullptr);
  {
    const Selected selected(screen, handle.get());
    GetTextMetricsW(screen, &metrics);
  }
  ReleaseDC(nullptr, screen);
  fonts_.push_back({font, underlined, dpi, std::move(handle), static_cast<int>(metrics.tmHeight)});
  return fonts_.back();
}

HICON Palette::icon(std::wstring_view resource, int width, int height, bool alive) {
  for (const CachedIcon& cached : icons_) {
    if (cached.resource == resource && cached.width == width && cached.height == height && cached.alive == alive)
      return cached.handle.get();
  }
  std::wstring name(resource);
  const HANDLE loaded = LoadImageW(moduleInstance(), name.c_str(), IMAGE_ICON, width, height, LR_DEFAULTCOLOR);
  Icon icon(static_cast<HICON>(loaded));
  if (icon && !alive) icon = faded(icon.get(), width, height);
  if (!icon) return nullptr;  // to be tried again: memory may have run short
  icons_.push_back({std::move(name), width, height, alive, std::move(icon)});
  return icons_.back().handle.get();
}

}  // namespace nv::windows
