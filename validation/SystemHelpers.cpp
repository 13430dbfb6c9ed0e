// The helpers of module Random that ask the machine: files, directories, the list completion and the browser.
#include "component/ShowError.h"
#include "component/Trace.h"
#include "validation/Random.h"

namespace nv::Random {

namespace {

std::wstring withBackslash(std::wstring directory) {
  if (!directory.ends_with(L'\\')) directory += L'\\';
  return directory;
}

}  // namespace

Flag16 Fileexists(Component& component, const std::wstring& path) {
  trace(component, L"Random - Fileexists");
  try {
    component.services.files.length(path);
    return flagTrue;
  } catch (...) {
    return flagFalse;
  }
}

void Get_Windows_Dir(Component& component) {
  trace(component, L"Random - Get_Windows_Dir");
  component.store.windowsDirectory = withBackslash(component.services.machine.windowsDirectory());
  component.store.systemDirectory = withBackslash(component.services.machine.systemDirectory());
}

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

void OpenBrowser(Component& component, std::wstring_view address) {
  using platform::MessageBoxes;
  trace(component, L"Random - OpenBrowser");
  reportedTrap(component, L"Random.OpenBrowser", [&] {
    const int result = component.services.shell.open(std::wstring(address));
    const auto complain = [&component](const std::wstring& text) {
      component.services.messages.show(text, L"Browser Unavailable", MessageBoxes::Icon::exclamation,
                                       MessageBoxes::Buttons::ok);
    };
    if (result < 31) {
      complain(L"Problem running your web browser. You should check that your browser is correctly installed. (Error " +
               std::to_wstring(result) + L")");
    } else if (result == 32) {  // 32 is meant: 31, the system's code for a missing association, shows nothing
      complain(std::wstring(applicationTitle)
                   .append(L" could not find a file association for ")
                   .append(address)
                   .append(L" on your system. You should check that your browser is correctly installed and associated "
                           L"with this type of file."));
    }
  });
}

}  // namespace nv::Random
