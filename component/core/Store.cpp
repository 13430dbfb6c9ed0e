#include "component/core/Store.h"

namespace nv {

std::wstring Store::gstrInstallRoot() const {
  const auto found = DLLPath.find(L"\\NORVIK");
  return found == std::wstring::npos ? std::wstring() : DLLPath.substr(0, found + 1);
}

}  // namespace nv
