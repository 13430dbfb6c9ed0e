// Measures, colours, fonts and icons of the windows.
#pragma once

#include <map>
#include <vector>

#include "forms/Appearance.h"
#include "forms/Geometry.h"
#include "windows/Handles.h"

namespace nv::windows {

/// What the system says of a window's screen. Tests put others in its place.
struct Screens {
  /// Dots per inch at which the window is drawn, by its screen where the system tells that, else by its desktop.
  int (*dpiOf)(HWND window);
  /// What task bars leave of its screen, in pixels.
  RECT (*workAreaOf)(HWND window);
};
extern Screens screens;

/// One of GetSystemMetrics' measures, in pixels at that dpi.
int systemMetric(int index, int dpi);
/// Widens the inside of a window, in pixels, by its frame.
void addFrame(RECT& inside, DWORD style, DWORD extendedStyle, int dpi);

/// Turns twips into pixels and back at a given dpi. Edges are converted, not sizes, so that what touches in twips
/// touches in pixels.
class Scale {
 public:
  explicit Scale(int dpi = 96) : dpi_(dpi) {}
  int dpi() const { return dpi_; }
  int pixels(forms::Twips twips) const { return MulDiv(twips, dpi_, 1440); }
  forms::Twips twips(int pixels) const { return MulDiv(pixels, 1440, dpi_); }
  RECT pixels(const forms::Place& place) const {
    return {pixels(place.left), pixels(place.top), pixels(place.right()), pixels(place.bottom())};
  }

 private:
  int dpi_;
};

COLORREF rgb(forms::Colour colour);
/// How bright a colour looks, 0 to 255.
int brightness(COLORREF colour);
/// How far two colours stand apart for those who read, 1 to 21, as WCAG 2 has it.
double contrast(COLORREF one, COLORREF other);
/// Whether text of one colour can be read on a background of the other: the least that WCAG 2 asks of any text.
bool readable(COLORREF text, COLORREF background);
/// The user's colour for what is disabled, where it can be read on the background, else a grey that can.
COLORREF greyText(COLORREF background);
/// Whether a line or a mark of one colour can be seen on a background of the other.
bool visible(COLORREF line, COLORREF background);

/// Brushes, fonts and icons, made once each and kept for all forms of a thread. What is handed out stays the palette's.
class Palette {
 public:
  HBRUSH brush(forms::Colour colour);
  HFONT font(const forms::Font& font, bool underlined, int dpi);
  /// Height of a line of text in pixels.
  int lineHeight(const forms::Font& font, int dpi);
  /// An icon of the component's resources in this size, in pixels, faded unless it is `alive`; nullptr when there is
  /// none of that name.
  HICON icon(std::wstring_view resource, int width, int height, bool alive);

 private:
  struct CachedFont {
    forms::Font font;
    bool underlined;
    int dpi;
    FontHandle handle;
    int lineHeight;
  };
  struct CachedIcon {
    std::wstring resource;
    int width;
    int height;
    bool alive;
    Icon handle;
  };
  const CachedFont& cached(const forms::Font& font, bool underlined, int dpi);

  std::map<forms::Colour, Brush> brushes_;
  std::vector<CachedFont> fonts_;
  std::vector<CachedIcon> icons_;
};

/// Paints a window for as long as it lives: WM_PAINT's beginning and end.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window), context_(BeginPaint(window, &paint_)) {}
  ~Painting() { EndPaint(window_, &paint_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;
  HDC context() const { return context_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC context_;
};

/// Selects a GDI object into a device context for as long as it lives.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object) : context_(context), old_(SelectObject(context, object)) {}
  ~Selected() { SelectObject(context_, old_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC context_;
  HGDIOBJ old_;
};

}  // namespace nv::windows
