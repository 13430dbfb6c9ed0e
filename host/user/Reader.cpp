#include "host/user/Reader.h"

#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>

#include "host/base/Text.h"
#include "scenario/Failure.h"

namespace nv::host {

namespace {

using Microsoft::WRL::ComPtr;
using scenario::Failure;

VARIANT itself() {
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  return self;
}

ComPtr<IAccessible> accessibleOf(HWND window) {
  ComPtr<IAccessible> found;
  if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found)))
    throw Failure(L"the window is not accessible");
  return found;
}

using TextOf = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

std::wstring heardText(HWND window, TextOf read) {
  BSTR text = nullptr;
  (accessibleOf(window).Get()->*read)(itself(), &text);  // without one the text stays empty
  std::wstring heard(text == nullptr ? L"" : text, SysStringLen(text));
  SysFreeString(text);
  return heard;
}

std::wstring heardName(HWND window) {
  return heardText(window, &IAccessible::get_accName);
}

std::wstring heardRole(HWND window) {
  struct Role {
    LONG role;
    const wchar_t* name;
  };
  constexpr Role roles[] = {
      {ROLE_SYSTEM_STATICTEXT, L"text"},          {ROLE_SYSTEM_TEXT, L"edit"},
      {ROLE_SYSTEM_GROUPING, L"grouping"},        {ROLE_SYSTEM_CHECKBUTTON, L"check box"},
      {ROLE_SYSTEM_RADIOBUTTON, L"radio button"}, {ROLE_SYSTEM_COMBOBOX, L"combo box"},
      {ROLE_SYSTEM_PUSHBUTTON, L"button"},        {ROLE_SYSTEM_LINK, L"link"},
      {ROLE_SYSTEM_GRAPHIC, L"graphic"},          {ROLE_SYSTEM_DIALOG, L"dialog"},
  };
  VARIANT role{};
  if (FAILED(accessibleOf(window)->get_accRole(itself(), &role)) || role.vt != VT_I4) return L"none";
  const auto known = std::ranges::find(roles, role.lVal, &Role::role);
  return known != std::end(roles) ? known->name : L"role " + std::to_wstring(role.lVal);
}

struct Heard {
  const wchar_t* aspect;
  std::wstring (*ask)(HWND window);
};

constexpr Heard heardAspects[] = {
    {L"name", heardName},
    {L"role", heardRole},
    {L"key", [](HWND window) { return heardText(window, &IAccessible::get_accKeyboardShortcut); }},
    {L"action", [](HWND window) { return heardText(window, &IAccessible::get_accDefaultAction); }},
    {L"required",
     [](HWND window) {
       return std::wstring(heardText(window, &IAccessible::get_accDescription) == L"Required" ? L"true" : L"false");
     }},
};

}  // namespace

bool isHeard(std::wstring_view aspect) {
  return std::ranges::find(heardAspects, aspect, &Heard::aspect) != std::end(heardAspects);
}

std::wstring hear(HWND window, HWND field, std::wstring_view aspect) {
  const auto ask = std::ranges::find(heardAspects, aspect, &Heard::aspect)->ask;
  std::wstring heard = ask(window);
  if (field == window || ask == heardRole) return heard;
  const std::wstring inField = heardName(field);
  if (ask == heardName && inField != heard) throw Failure(L"the field in it is called " + inField);
  return heard;
}

}  // namespace nv::host
