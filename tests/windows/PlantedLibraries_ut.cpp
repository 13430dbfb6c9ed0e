// Libraries that somebody has put into the current directory, where a careless program would find them.
#include <algorithm>

#include "platform/RuntimeError.h"
#include "tests/windows/StandIns.h"
#include "windows/services/HostInstallation.h"
// after <windows.h>
#include <psapi.h>

namespace nv::windows::test {

namespace {

namespace fs = std::filesystem;

constexpr int textOfBox = 0xFFFF;  // the system's number of the text in a message box

std::vector<std::wstring> boxes;

/// Presses OK in the dialog once and closes it the next time; presses OK in every message box and notes its text.
LRESULT CALLBACK acceptThenLeave(int code, WPARAM wparam, LPARAM lparam) {
  const HWND window = reinterpret_cast<HWND>(wparam);
  if (code == HCBT_ACTIVATE && GetPropW(window, L"NVRandom.Name") != nullptr) {
    if (boxes.empty()) {
      PostMessageW(findControl(window, L"cmd_ok"), BM_CLICK, 0, 0);
    } else {
      PostMessageW(window, WM_CLOSE, 0, 0);
    }
  } else if (code == HCBT_ACTIVATE && GetDlgItem(window, textOfBox) != nullptr) {
    wchar_t text[512] = L"";
    GetDlgItemTextW(window, textOfBox, text, 512);
    boxes.emplace_back(text);
    PostMessageW(window, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

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

TEST_F(PlantedLibraries, AreNotLoadedFromTheCurrentDirectory) {
  const fs::path planted = fs::path(installation.root()) / L"planted";
  installation.makeFolder(L"planted");
  installation.makeFolder(L"NORVIK\\Empty");
  for (const wchar_t* library : {L"Acctvfy.dll", L"kvd8rq3x.dll"}) {
    installation.copy(std::wstring(L"NORVIK\\Bin\\") + library, std::wstring(L"planted\\") + library);
  }
  installation.copy(L"NORVIK\\Bin\\FXCountries", L"NORVIK\\Empty\\FXCountries");  // and no library beside it
  const auto object = Server::get().create();
  set(object.Get(), "individual");
  putText(object.Get(), &_ClsRandom::put_DLLPath, (installation.root() + L"NORVIK\\Empty\\").c_str());
  object->put_UseAcctvfy(-1);

  const fs::path before = fs::current_path();
  fs::current_path(planted);
  boxes.clear();
  long result = 0;
  {
    const Hook hook(SetWindowsHookExW(WH_CBT, acceptThenLeave, nullptr, GetCurrentThreadId()));
    EXPECT_EQ(S_OK, object->ShowForm(&result));
  }
  EXPECT_EQ(loadedFrom(planted), std::vector<std::wstring>());
  EXPECT_EQ(asked(), std::vector<std::wstring>()) << "a planted library has been called";
  fs::current_path(before);

  EXPECT_EQ(50000, result);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_NE(boxes.front().find(L"Error in loading DLL (Error 48)"), std::wstring::npos) << boxes.front();
}

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
