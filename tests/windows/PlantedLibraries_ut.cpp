// A library that somebody has put into the current directory, where another library that needs it would find it.
#include <algorithm>

#include "platform/RuntimeError.h"
#include "tests/windows/StandIns.h"
#include "windows/services/HostInstallation.h"
// after <windows.h>
#include <psapi.h>

namespace nv::windows::test {

namespace {

namespace fs = std::filesystem;

/// The modules of this process that come from the folder.
std::vector<std::wstring> loadedFrom(const fs::path& folder) {
  HMODULE modules[512];
  DWORD bytes = 0;
  EnumProcessModules(GetCurrentProcess(), modules, sizeof(modules), &bytes);
  std::vector<std::wstring> found;
  for (DWORD i = 0; i < std::min<DWORD>(bytes / sizeof(HMODULE), 512); ++i) {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(modules[i], path, MAX_PATH);
    std::error_code error;
    if (fs::equivalent(fs::path(path).parent_path(), folder, error)) found.emplace_back(path);
  }
  return found;
}

using PlantedLibraries = StandInsTest;

TEST_F(PlantedLibraries, AreNotLoadedForAnotherLibraryEither) {
  const fs::path built = programFolder() / L"libraries";
  const fs::path planted = fs::path(installation.root()) / L"planted";
  installation.makeFolder(L"planted");
  ASSERT_TRUE(CopyFileW((built / L"NVDependent.dll").c_str(), file(L"Acctvfy.dll").c_str(), FALSE));
  fs::copy_file(built / L"NVDependency.dll", planted / L"NVDependency.dll");

  const fs::path before = fs::current_path();
  fs::current_path(planted);
  HostInstallation libraries;
  EXPECT_THROW(libraries.checkBankId(dllPath(), L"003"), RuntimeError);
  EXPECT_EQ(loadedFrom(planted), std::vector<std::wstring>());
  fs::current_path(before);

  fs::copy_file(built / L"NVDependency.dll", file(L"NVDependency.dll"));
  EXPECT_EQ(libraries.checkBankId(dllPath(), L"003"), 17) << "it is found beside the library that needs it";
}

}  // namespace

}  // namespace nv::windows::test
