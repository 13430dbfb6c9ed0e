#include "validation/AddressRules.h"

#include <algorithm>

#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "platform/Text.h"

namespace nv::Random {

namespace {

/// Whether one of the 3-character units of the host's province/postal-code text begins with `wanted`, which has
/// `length` characters.
bool hasUnit(const std::wstring& units, std::size_t length, std::wstring_view wanted) {
  constexpr std::size_t unit = 3;
  for (std::size_t at = 0; at < units.size(); at += unit) {
    if (std::wstring_view(units).substr(at, length) == wanted) return true;
  }
  return false;
}

std::wstring withSingleBlanks(std::wstring_view text) {
  std::wstring collapsed;
  std::ranges::unique_copy(text, std::back_inserter(collapsed),
                           [](wchar_t a, wchar_t b) { return a == L' ' && b == L' '; });
  return collapsed;
}

}  // namespace

bool lookupProvince(Component& component, std::wstring_view province) {
  trace(component, L"Random - lookupProvince");
  return hasUnit(component.store.Provpostalstr, 2, province);
}

bool LookupPostcode(Component& component, std::wstring_view code) {
  trace(component, L"Random - LookupPostcode");
  constexpr std::wstring_view neverFirst = L"DFIOQ";
  if (!code.empty() && neverFirst.find(code.back()) != std::wstring_view::npos) return false;
  return hasUnit(component.store.Provpostalstr, 3, code);
}

std::int16_t Has_PO_Box_Address(Component& component, std::wstring_view street) {
  trace(component, L"Random - Has_PO_Box_Address");
  return reportedTrap<std::int16_t>(component, L"Random.Has_PO_Box_Address", 0, [&]() -> std::int16_t {
    const std::wstring address = withSingleBlanks(component.services.machine.upperCase(trimmed(street)));
    const bool box = std::ranges::any_of(component.store.postOfficeBoxWords, [&address](std::wstring_view word) {
      return address.starts_with(std::wstring(trimmed(word)) + L' ');
    });
    return box ? 1 : 0;
  });
}

}  // namespace nv::Random
