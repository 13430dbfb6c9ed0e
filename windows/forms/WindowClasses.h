// The window classes of the component's own.
#pragma once

namespace nv::windows {

/// Top-level and embedded windows of forms.
inline constexpr const wchar_t* formClass = L"NVRandom.Form";
/// A hidden window that hears of the session's end for an embedded form, which is not told.
inline constexpr const wchar_t* sessionClass = L"NVRandom.Session";
/// A multi-column drop-down list. Answers the standard messages of combo boxes.
inline constexpr const wchar_t* dropDownListClass = L"NVRandom.DropDownList";
/// The window that drops down from one.
inline constexpr const wchar_t* dropDownPopupClass = L"NVRandom.DropDownPopup";
/// Controls that draw themselves.
inline constexpr const wchar_t* drawnClass = L"NVRandom.Drawn";

/// Registers all of them; does nothing when they are.
void registerWindowClasses();
void unregisterWindowClasses();

}  // namespace nv::windows
