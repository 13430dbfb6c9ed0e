#include "windows/services/MessageBoxes.h"

#include "windows/Scopes.h"
#include "windows/ThreadWindows.h"

namespace nv::windows {

namespace {

UINT flagOf(MessageBoxes::Icon icon) {
  switch (icon) {
    case MessageBoxes::Icon::critical:
      return MB_ICONERROR;
    case MessageBoxes::Icon::exclamation:
      return MB_ICONEXCLAMATION;
    case MessageBoxes::Icon::information:
      break;
  }
  return MB_ICONINFORMATION;
}

}  // namespace

MessageBoxes::Answer MessageBoxes::show(std::wstring_view text, std::wstring_view caption, Icon icon, Buttons buttons) {
  const HWND blocked = frontWindow();
  const UINT modality = blocked == nullptr ? MB_TASKMODAL : MB_APPLMODAL;
  const FocusRestorer focus;
  const UINT kind = buttons == Buttons::yesNo ? MB_YESNO : MB_OK;
  const ActivationContextScope controls;
  const int answer =
      MessageBoxW(blocked, std::wstring(text).c_str(), std::wstring(caption).c_str(), kind | flagOf(icon) | modality);
  if (buttons == Buttons::ok) return Answer::ok;
  return answer == IDYES ? Answer::yes : Answer::no;
}

}  // namespace nv::windows
