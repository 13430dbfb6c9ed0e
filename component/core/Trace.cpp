#include "component/core/Trace.h"

#include "platform/Text.h"

namespace nv {

void WritePlayByPlay(Component& component, std::wstring_view label, bool newFile) noexcept {
  if (component.store.PlayByPlayEnabled == flagFalse) return;
  try {
    const std::wstring root = component.store.gstrInstallRoot();
    if (trimmed(root).empty()) return;
    std::wstring line = component.services.machine.now();
    line.append(L" NVRANDOM - ").append(label).append(L"\r\n");
    component.services.files.write(root + L"\\Norvik\\PBP.txt", line,
                                   newFile ? platform::Files::Opening::truncate : platform::Files::Opening::append);
  } catch (...) {  // NOLINT(bugprone-empty-catch): a failing trace must not disturb the host
  }
}

}  // namespace nv
