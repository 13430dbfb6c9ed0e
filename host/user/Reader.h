// What a screen reader learns of a window: asked as one asks, through the system's accessibility interface and from
// another thread than the window's. The calling thread must have entered an apartment.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace nv::host {

/// Whether the aspect is one of those below, not one that is seen.
bool isHeard(std::wstring_view aspect);

/// The aspect of a window: `name`, `role` as people call it, `key`, `action` (what the default action does), `required`
/// as true or false.
/// @param field where text is typed in it, else the window itself: it must be called the same, and its name is given.
std::wstring hear(HWND window, HWND field, std::wstring_view aspect);

}  // namespace nv::host
