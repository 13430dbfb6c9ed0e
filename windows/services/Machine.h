// Facts about the machine and the user's settings.
#pragma once

#include "platform/Services.h"

namespace nv::windows {

class Machine : public platform::Machine {
 public:
  std::wstring now() override;
  std::wstring windowsDirectory() override;
  std::wstring systemDirectory() override;
  std::wstring upperCase(std::wstring_view text) override;
  std::wstring lowerCase(std::wstring_view text) override;
  int addFont(const std::wstring& path) override;
  void emptyClipboard() override;
  std::unique_ptr<platform::Turn> takeTurn(const std::wstring& name) override;
};

}  // namespace nv::windows
