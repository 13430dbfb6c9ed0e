// What the component works in here: the sample installation of nvhost, and a biller that is accepted as it stands
// without anybody outside being asked.
#pragma once

#include "host/application/Installation.h"
#include "tests/windows/Server.h"

namespace nv::bench {

class Workplace {
 public:
  /// @param name its folder's name. Each row takes one of its own: a library that has been loaded stays loaded.
  explicit Workplace(const wchar_t* name);

  /// A new object with the biller.
  windows::ComPtr<_ClsRandom> object() const;
  std::wstring root() const { return installation_.root(); }

 private:
  host::Installation installation_;
};

}  // namespace nv::bench
