#include "host/application/Embedding.h"

namespace nv::host {

std::unique_ptr<HostWindow> windowFor(Biller& biller) {
  const HWND dialog = biller.window();
  const SIZE size = biller.size();
  return std::make_unique<HostWindow>(L"NVHost - Biller", POINT{60, 60},
                                      SIZE{toPixels(size.cx, dialog), toPixels(size.cy, dialog)});
}

void embed(Biller& biller, HostWindow& window) {
  const HWND dialog = biller.window();
  SetParent(dialog, window.handle());
  SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  window.passKeyboardTo(dialog);
}

}  // namespace nv::host
