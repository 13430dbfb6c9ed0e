#include "dialogs/support/ComboBoxAutoComplete.h"

#include "component/core/Trace.h"

namespace nv::Random {

void ComboBoxAutoComplete(Component& component, forms::ComboBox& comboBox) {
  trace(component, L"Random - ComboBoxAutoComplete");
  platform::Machine& machine = component.services.machine;
  const std::wstring typed = machine.lowerCase(comboBox.text());
  for (int index = 0; index < comboBox.listCount(); ++index) {
    const std::wstring entry = comboBox.entries()[static_cast<std::size_t>(index)];
    if (machine.lowerCase(entry.substr(0, typed.size())) != typed) continue;
    comboBox.setText(entry);
    comboBox.setListIndex(index);
    comboBox.select(static_cast<int>(typed.size()), static_cast<int>(entry.size()));
    return;
  }
}

}  // namespace nv::Random
