// The stand-in for a host installation: the folder that a host's setup program would have made, with the files that the
// component expects there, and the ways in which such a folder can be out of order.
//
//   <root>\NORVIK\Bin\    what the host hands over as DLLPath: "FXCountries", the stand-ins for the closed libraries
//   <root>\NORVIK\        the trace file "PBP.txt" (the component calls the folder "Norvik")
//   <root>\Resources\     fonts
//   <root>\               "error.log"; the records of the stand-ins, and what they are told to answer
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/base/File.h"

namespace nv::host {

class Installation {
 public:
  /// Makes the installation anew in `root`, whatever is there, and tells the stand-ins where it is. Fails with Failure,
  /// as everything here does.
  /// @param standIns the folder with the stand-ins for the closed libraries and the sample list of countries.
  Installation(std::filesystem::path root, std::filesystem::path standIns);
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;

  /// The installation root, with a trailing backslash.
  std::wstring root() const { return root_.wstring() + L"\\"; }
  /// What a host sets as DLLPath.
  std::wstring dllPath() const { return root() + L"NORVIK\\Bin\\"; }

  // In what follows, `file` is a path from the root, written with "/" or "\".

  bool exists(const std::wstring& file) const;
  /// The lines of a text file in the ANSI code page; nothing when there is no such file, or it cannot be read now.
  std::optional<std::vector<std::wstring>> lines(const std::wstring& file) const;

  /// Makes or replaces a file, folders included.
  void write(const std::wstring& file, const std::wstring& text);
  void append(const std::wstring& file, const std::wstring& text);
  void copy(const std::wstring& from, const std::wstring& to);
  void makeFolder(const std::wstring& folder);
  void remove(const std::wstring& fileOrFolder);
  /// Holds the file (made if missing) so that nobody else can open it, until unlock.
  void lock(const std::wstring& file);
  void unlock(const std::wstring& file);
  /// Takes the right to write from everybody. Fails when the system lets this user write all the same.
  void makeReadOnly(const std::wstring& fileOrFolder);

  /// Makes the country file from its deciphered text, in the ANSI code page.
  void setCountries(const std::string& text);
  /// Makes it from the sample list: all countries of ISO 3166.
  void setSampleCountries();

  /// Waits until `condition` holds, and looks again whenever something in the installation changes. False after
  /// `UiThread::timeout`.
  bool waitUntil(const std::function<bool()>& condition) const;

 private:
  std::filesystem::path path(const std::wstring& file) const;

  std::filesystem::path root_;
  std::filesystem::path standIns_;
  std::map<std::wstring, Handle> locked_;
};

}  // namespace nv::host
