#include "host/standins/Diversion.h"

#include <windows.h>
// after <windows.h>
#include <dbghelp.h>
#include <shellapi.h>

#include <cstring>

#include "host/base/Text.h"
#include "host/standins/Record.h"
#include "host/user/Screen.h"

namespace nv::host {

namespace {

HWND WINAPI showHelp(HWND caller, LPCWSTR file, UINT command, DWORD_PTR data) {
  record(L"Help.txt", std::wstring(file == nullptr ? L"" : file) + L" command " + std::to_wstring(command) +
                          L" topic " + std::to_wstring(data) + L" for " + nameOf(caller));
  return nullptr;
}

/// In place of the system's function: the help viewer, which the component has loaded, is the stand-in.
FARPROC WINAPI findFunction(HMODULE library, LPCSTR name) {
  if (HIWORD(name) == 0 || std::strcmp(name, "HtmlHelpW") != 0) return GetProcAddress(library, name);
  return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(showHelp));
}

/// In place of the system's function, of which the component opens pages alone.
HINSTANCE WINAPI openPage(HWND, LPCWSTR, LPCWSTR address, LPCWSTR, LPCWSTR, INT) {
  constexpr INT_PTR opened = 33;  // more than 32
  return reinterpret_cast<HINSTANCE>(record(L"Browser.txt", address) ? opened : SE_ERR_NOASSOC);
}

/// From now on `module` calls `instead` where it would call the function of that name that it imports.
void divert(HMODULE module, const char* name, void* instead) {
  auto* const base = reinterpret_cast<char*>(module);
  ULONG size = 0;
  const auto* import = static_cast<const IMAGE_IMPORT_DESCRIPTOR*>(
      ImageDirectoryEntryToData(module, TRUE, IMAGE_DIRECTORY_ENTRY_IMPORT, &size));
  for (; import->Name != 0; ++import) {
    const auto* imported = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + import->OriginalFirstThunk);
    auto* place = reinterpret_cast<IMAGE_THUNK_DATA*>(base + import->FirstThunk);
    for (; imported->u1.AddressOfData != 0; ++imported, ++place) {
      if (IMAGE_SNAP_BY_ORDINAL(imported->u1.Ordinal)) continue;
      const auto* named = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + imported->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(named->Name), name) != 0) continue;
      DWORD before = 0;
      VirtualProtect(&place->u1.Function, sizeof(void*), PAGE_READWRITE, &before);
      place->u1.Function = reinterpret_cast<ULONG_PTR>(instead);
      VirtualProtect(&place->u1.Function, sizeof(void*), before, &before);
    }
  }
}

}  // namespace

void divertBrowserAndHelp() {
  const HMODULE component = GetModuleHandleW(L"NVRandom.dll");
  if (component == nullptr) return;
  divert(component, "ShellExecuteW", reinterpret_cast<void*>(openPage));
  divert(component, "GetProcAddress", reinterpret_cast<void*>(findFunction));
}

}  // namespace nv::host
