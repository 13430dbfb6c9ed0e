#include "validation/TextHelpers.h"

#include <algorithm>

#include "component/core/Trace.h"

namespace nv::Random {

std::wstring CleanseCharacters(Component& component, std::wstring_view text) {
  trace(component, L"Random - CleanseCharacters");
  std::wstring kept;
  kept.reserve(text.size());
  std::ranges::copy_if(text, std::back_inserter(kept),
                       [](wchar_t c) { return c == 32 || c == 33 || (c >= 35 && c <= 125); });
  return kept;
}

std::wstring PadLeft(Component& component, std::wstring_view text, int length) {
  trace(component, L"Random - PadLeft");
  const auto wanted = static_cast<std::size_t>(std::max(length, 0));
  if (text.size() >= wanted) return std::wstring(text.substr(text.size() - wanted));
  return std::wstring(wanted - text.size(), L' ').append(text);
}

std::wstring PadRight(Component& component, std::wstring_view text, int length) {
  trace(component, L"Random - PadRight");
  std::wstring padded(text.substr(0, static_cast<std::size_t>(std::max(length, 0))));
  padded.resize(static_cast<std::size_t>(std::max(length, 0)), L' ');
  return padded;
}

bool IsAlpha(Component& component, std::wstring_view text) {
  trace(component, L"Random - IsAlpha");
  const std::wstring upper = component.services.machine.upperCase(text);
  return std::ranges::any_of(upper, [](wchar_t c) { return c >= 65 && c <= 90; });
}

}  // namespace nv::Random
