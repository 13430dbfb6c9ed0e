// Module modFormController: the visual styles that a host chooses from, applied to a form and its controls by kind.
#pragma once

#include <string>

#include "component/core/Component.h"
#include "forms/Form.h"

namespace nv::modFormController {

/// A control with this tag keeps its design.
inline constexpr const wchar_t* noStyleTag = L"noStyle";

/// Gives a form the style of the host's FormStyle: background and text colour and font by kind of control, and the
/// style of the styled buttons. A run-time error is reported under "modFormController.reStyleForm" and leaves the form
/// partly restyled.
void reStyleForm(Component& component, forms::Form& form);

/// Makes sure that a font is on the machine, installing it from the installation's resources when it is missing. One
/// that cannot be copied to the machine is used from there; that is reported once a thread, but not to the user.
/// @return the font to use: `name`, or "MS Sans Serif" when the font cannot be had.
std::wstring installSystemFont(Component& component, const std::wstring& name);

}  // namespace nv::modFormController
