// What the user of the native stage sees. Aspects are written as scenarios have them.
#pragma once

#include <string>
#include <string_view>

#include "tests/support/User.h"

namespace nv::scenario {

using test::User;

std::wstring truth(bool value);

/// An aspect of a control but "enabled", or of the form itself.
std::wstring lookAtControl(const User& user, const std::wstring& name, std::wstring_view aspect);
std::wstring lookAtForm(const User& user, const std::wstring& aspect);

/// Fails when something that can be seen in the form has no size, overlaps something else, reaches out of what it
/// stands in, looks other than it can be used, or leaves a hole.
void checkLayout(const User& user);

}  // namespace nv::scenario
