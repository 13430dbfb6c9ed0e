// What of the component is on the screen: its windows by the names that they carry, and message boxes. Everything here
// may be asked from any thread, and sends no message.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace nv::host {

/// The component's name of a window, "txtBankID" or "frmRandomInfo"; empty when it has none.
std::wstring nameOf(HWND window);

/// The thread's top-level windows, the foremost first.
std::vector<HWND> topLevelWindows(DWORD thread);

/// The dialogs of that name that the thread shows, embedded ones included; every dialog for an empty name. Those that
/// accept input come first, and among them the foremost.
std::vector<HWND> dialogs(DWORD thread, std::wstring_view name);

/// The controls of a dialog.
std::vector<HWND> controlsIn(HWND dialog);

/// The control of that name in a dialog, or null.
HWND controlIn(HWND dialog, std::wstring_view name);

/// The message box that waits for an answer, or null.
HWND messageBox(DWORD thread);

/// Whether the window and everything that it stands in is visible, or accepts input.
bool visibleToUser(HWND window);
bool enabledForUser(HWND window);

}  // namespace nv::host
