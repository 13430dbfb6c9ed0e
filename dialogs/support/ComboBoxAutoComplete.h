// The part of module Random that knows a control.
#pragma once

#include "component/core/Component.h"
#include "forms/ComboBox.h"

namespace nv::Random {

/// Completes what is typed in a combo box from its entries, whatever the case: the first that begins so becomes the
/// text, with the completed part selected, so that further typing replaces it. Without one nothing changes.
void ComboBoxAutoComplete(Component& component, forms::ComboBox& comboBox);

}  // namespace nv::Random
