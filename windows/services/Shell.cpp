#include "windows/services/Shell.h"

#include "windows/Handles.h"
#include "windows/Paths.h"
#include "windows/services/Libraries.h"

namespace nv::windows {

namespace {

using HtmlHelpFunction = HWND(WINAPI*)(HWND caller, LPCWSTR file, UINT command, DWORD_PTR data);
constexpr UINT helpByContextNumber = 0x000F;  // HH_HELP_CONTEXT

/// Where the help viewer says that its library is, else its place in the system directory: never a search path.
std::wstring helpLibraryPath() {
  wchar_t path[MAX_PATH];
  DWORD size = sizeof(path);
  if (RegGetValueW(HKEY_CLASSES_ROOT, L"CLSID\\{adb880a6-d8ff-11cf-9377-00aa003b7a11}\\InprocServer32", nullptr,
                   RRF_RT_REG_SZ, nullptr, path, &size) == ERROR_SUCCESS &&
      isFullPath(path)) {
    return path;
  }
  return joined(directory(GetSystemDirectoryW), L"hhctrl.ocx");
}

/// The viewer's function, or nullptr. Its library stays loaded: its windows outlive the call. It is asked for each
/// time: what a function keeps in a static is made under a lock, and loading a library may wait for other threads.
HtmlHelpFunction htmlHelp() {
  const HMODULE library = loadLibrary(helpLibraryPath());
  if (library == nullptr) return nullptr;
  return reinterpret_cast<HtmlHelpFunction>(reinterpret_cast<void*>(GetProcAddress(library, "HtmlHelpW")));
}

}  // namespace

int Shell::open(const std::wstring& address) {
  const auto result = ShellExecuteW(nullptr, L"open", address.c_str(), nullptr, nullptr, SW_SHOWMAXIMIZED);
  return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

void Shell::showHelp(const std::wstring& file, std::uint32_t topic, std::intptr_t window) {
  if (const HtmlHelpFunction show = htmlHelp())
    show(reinterpret_cast<HWND>(window), file.c_str(), helpByContextNumber, topic);
}

}  // namespace nv::windows
