// The user's browser and the help viewer.
#pragma once

#include "platform/Services.h"

namespace nv::windows {

class Shell : public platform::Shell {
 public:
  int open(const std::wstring& address) override;
  void showHelp(const std::wstring& file, std::uint32_t topic, std::intptr_t window) override;
};

}  // namespace nv::windows
