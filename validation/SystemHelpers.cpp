#include "validation/SystemHelpers.h"

#include "component/core/ShowError.h"
#include "component/core/Trace.h"

namespace nv::Random {

namespace {

std::wstring withBackslash(std::wstring directory) {
  if (!directory.ends_with(L'\\')) directory += L'\\';
  return directory;
}

}  // namespace

bool Fileexists(Component& component, const std::wstring& path) {
  trace(component, L"Random - Fileexists");
  try {
    component.services.files.length(path);
    return true;
  } catch (...) {
    return false;
  }
}

void Get_Windows_Dir(Component& component) {
  trace(component, L"Random - Get_Windows_Dir");
  component.store.windowsDirectory = withBackslash(component.services.machine.windowsDirectory());
  component.store.systemDirectory = withBackslash(component.services.machine.systemDirectory());
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
    } else if (result == 32) {  // deliberately 32: 31, the system's code for a missing association, shows nothing
      complain(std::wstring(applicationTitle)
                   .append(L" could not find a file association for ")
                   .append(address)
                   .append(L" on your system. You should check that your browser is correctly installed and associated "
                           L"with this type of file."));
    }
  });
}

}  // namespace nv::Random
