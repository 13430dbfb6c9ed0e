// What the component works in here: the sample installation of nvhost, and a biller that is accepted as it stands
// without anybody outside being asked.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/application/Installation.h"
#include "tests/windows/Server.h"

namespace nv::bench {

class Workplace {
 public:
  /// @param name its folder's name. Each row takes one of its own: a library that has been loaded stays loaded.
  explicit Workplace(const std::wstring& name);
  /// The same with so many countries in the country file, instead of those that there are.
  Workplace(const std::wstring& name, std::size_t countries);

  /// The texts of the biller.
  static std::vector<const wchar_t*> texts();
  /// A new object with the biller.
  windows::ComPtr<_ClsRandom> object() const;
  std::wstring root() const { return installation_.root(); }
  /// Deciphers the country file by the host's library, into a file.
  /// @return that file's path.
  std::wstring deciphered() const;

 private:
  host::Installation installation_;
};

/// The text of a country file of so many rows, their names from A to Z.
std::string countries(std::size_t rows);

/// The lines of a text file, each of them found, none of them copied.
class Lines {
 public:
  explicit Lines(const wchar_t* path);
  std::size_t count() const { return lines_.size(); }
  std::string_view operator[](std::size_t line) const { return lines_[line]; }

 private:
  std::string text_;
  std::vector<std::string_view> lines_;
};

/// Bytes in use of all heaps of the process.
double bytesOfHeaps();

}  // namespace nv::bench
