// A host installation for tests of what the component asks of one: a fresh folder, with the stand-ins of nvhost for the
// account verifier and the closed libraries.
#pragma once

#include "host/application/Installation.h"
#include "host/standins/Answers.h"
#include "host/standins/Record.h"
#include "host/standins/Setup.h"
#include "tests/windows/Server.h"

namespace nv::windows::test {

/// The billers of the scenarios, each of which every check accepts.
inline constexpr const char* billers[] = {"business", "individual", "us", "abroad"};

/// The running test, as a filter names it.
std::wstring nameOfTest();

/// Folder of the running tests, in the build.
std::filesystem::path programFolder();

/// A file of the sources: the acceptance kit has them above its programs, the build stands in them.
std::filesystem::path sourceFile(const std::string& name);

/// Whether the verifier is found beside the program, as in the acceptance kit, and not in the registry.
bool verifierIsSideBySide();

/// Starts tests in a process of their own.
/// @param program this one or a copy.
HANDLE startTests(const std::filesystem::path& program, const std::wstring& filter);
/// Waits for the end of a process that was started so.
DWORD exitCode(HANDLE process);

class StandInsTest : public testing::Test {
 protected:
  StandInsTest();
  /// Makes the stand-in the machine's verifier, as nvhost does.
  static void registerVerifier();

  /// Tells a stand-in what to answer, in the words of the scenario command `verifier`.
  static void tell(const std::wstring& answer);
  /// Makes the object's record that of the biller, in this installation.
  void set(_ClsRandom* object, const std::string& biller) const;
  /// What the stand-ins have been asked since the last call, a line each.
  std::vector<std::wstring> asked();

  std::wstring dllPath() const { return installation.dllPath(); }
  std::filesystem::path file(const wchar_t* name) const { return installation.dllPath() + name; }

  const Apartment apartment;
  // Each test has its own: a library that has been loaded stays loaded.
  host::Installation installation;
};

}  // namespace nv::windows::test
