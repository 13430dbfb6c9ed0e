// The text helpers of module Random. Each writes its label to the trace and works on the component that it is handed.
#pragma once

#include <string>
#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// Keeps the characters with the codes 32, 33 and 35 to 125, in order, and drops every other one: the double quote, the
/// tilde, control characters and everything beyond ASCII. Does not trim.
std::wstring CleanseCharacters(Component& component, std::wstring_view text);

/// The rightmost `length` characters of the text, a shorter text with blanks put in front. A negative length counts as
/// 0.
std::wstring PadLeft(Component& component, std::wstring_view text, int length);

/// The leftmost `length` characters of the text, a shorter text with blanks put behind. A negative length counts as 0.
std::wstring PadRight(Component& component, std::wstring_view text, int length);

/// Whether the text holds at least one letter A to Z once it is in upper case. (The name says more than the rule.)
bool IsAlpha(Component& component, std::wstring_view text);

}  // namespace nv::Random
