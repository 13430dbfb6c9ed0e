// Files by path, as the operating system keeps them.
#pragma once

#include "platform/Services.h"

namespace nv::windows {

class Files : public platform::Files {
 public:
  void write(const std::wstring& path, std::wstring_view text, Opening opening) override;
  std::uint64_t length(const std::wstring& path) override;
  std::wstring read(const std::wstring& path) override;
  void remove(const std::wstring& path) override;
  void copy(const std::wstring& from, const std::wstring& to) override;
};

}  // namespace nv::windows
