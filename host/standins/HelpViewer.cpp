// The stand-in for the system's help viewer: a library with the viewer's two entry points that shows nothing and notes
// each request in "Help.txt" of the installation in use:
//
//   Z:\...\NORVIK.CHM>ShowTopic command 15 topic 506000012 for frmRandomInfo
//
// `command` is the viewer's command number (15: a topic by its context number); the last word is the component's name
// of the window that asks.
#include <windows.h>

#include "host/base/Text.h"
#include "host/standins/Record.h"

namespace {

std::wstring nameOf(HWND window) {
  wchar_t marked[64];
  const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"NVRandom.Name")));
  std::wstring name(marked, atom == 0 ? 0 : GlobalGetAtomNameW(atom, marked, static_cast<int>(std::size(marked))));
  std::erase(name, L'^');  // in front of each capital
  return name;
}

}  // namespace

extern "C" HWND WINAPI HtmlHelpW(HWND caller, LPCWSTR file, UINT command, DWORD_PTR data) {
  nv::host::record(L"Help.txt", std::wstring(file == nullptr ? L"" : file) + L" command " + std::to_wstring(command) +
                                    L" topic " + std::to_wstring(data) + L" for " + nameOf(caller));
  return nullptr;
}

extern "C" HWND WINAPI HtmlHelpA(HWND caller, LPCSTR file, UINT command, DWORD_PTR data) {
  return HtmlHelpW(caller, file == nullptr ? nullptr : nv::host::wide(file, CP_ACP).c_str(), command, data);
}
