#include "windows/forms/Scroller.h"

#include <algorithm>
#include <utility>

namespace nv::windows {

void Scroller::showBars() {
  const auto set = [this](int bar, int total, int page) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = total - 1;
    info.nPage = static_cast<UINT>(page);
    SetScrollInfo(window_, bar, &info, TRUE);
  };
  set(SB_VERT, content_.cy, room().cy);
  set(SB_HORZ, content_.cx, room().cx);
  scrollTo(position_);
}

void Scroller::scrollBy(int bar, WPARAM request, int line) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_ALL;
  GetScrollInfo(window_, bar, &info);
  LONG position = info.nPos;
  switch (LOWORD(request)) {
    case SB_LINEUP:
      position -= line;
      break;
    case SB_LINEDOWN:
      position += line;
      break;
    case SB_PAGEUP:
      position -= static_cast<LONG>(info.nPage);
      break;
    case SB_PAGEDOWN:
      position += static_cast<LONG>(info.nPage);
      break;
    case SB_TOP:
      position = 0;
      break;
    case SB_BOTTOM:
      position = info.nMax;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      position = info.nTrackPos;
      break;
    default:
      return;
  }
  scrollTo(bar == SB_VERT ? POINT{position_.x, position} : POINT{position, position_.y});
}

bool Scroller::wheel(WPARAM turned, int notch) {
  if (content_.cy <= room().cy) return false;
  scrollTo({position_.x, position_.y - MulDiv(static_cast<short>(HIWORD(turned)), notch, WHEEL_DELTA)});
  return true;
}

void Scroller::bringIntoView(const RECT& part, int margin) {
  const SIZE client = room();
  if (content_.cx <= client.cx && content_.cy <= client.cy) return;
  const auto shift = [margin](LONG low, LONG high, LONG end) {
    if (low < margin) return low - margin;
    return std::max<LONG>(0, high + margin - end);
  };
  scrollTo(
      {position_.x + shift(part.left, part.right, client.cx), position_.y + shift(part.top, part.bottom, client.cy)});
}

SIZE Scroller::room() const {
  RECT client;
  GetClientRect(window_, &client);
  return {client.right, client.bottom};
}

void Scroller::scrollTo(POINT position) {
  const SIZE client = room();
  position.x = std::clamp<LONG>(position.x, 0, std::max<LONG>(0, content_.cx - client.cx));
  position.y = std::clamp<LONG>(position.y, 0, std::max<LONG>(0, content_.cy - client.cy));
  if (position.x == position_.x && position.y == position_.y) return;
  const POINT old = std::exchange(position_, position);
  ScrollWindowEx(window_, old.x - position.x, old.y - position.y, nullptr, nullptr, nullptr, nullptr,
                 SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
  SetScrollPos(window_, SB_HORZ, position.x, TRUE);
  SetScrollPos(window_, SB_VERT, position.y, TRUE);
}

}  // namespace nv::windows
