#include "validation/SystemHelpers.h"

#include <algorithm>

#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "platform/Text.h"

namespace nv::Random {

namespace {

std::wstring withBackslash(std::wstring directory) {
  if (!directory.ends_with(L'\\')) directory += L'\\';
  return directory;
}

bool equal(std::wstring_view a, std::wstring_view b) {
  return std::ranges::equal(a, b, {}, asciiUpper, asciiUpper);
}

/// Whether a text is a host's name of two labels at least, as "www.example.com", and not that of a file.
bool isHostName(std::wstring_view name) {
  constexpr std::wstring_view files[] = {L"bat", L"cmd", L"exe", L"htm", L"html",
                                         L"js",  L"lnk", L"msi", L"scr", L"vbs"};
  const auto inLabel = [](wchar_t c) {
    return isDigit(c) || (asciiUpper(c) >= L'A' && asciiUpper(c) <= L'Z') || c == L'-' || c >= 0xA0;
  };
  if (name.find(L'.') == name.npos) return false;
  const std::vector<std::wstring_view> labels = split(name, L".");
  const auto isLabel = [&](std::wstring_view label) { return !label.empty() && std::ranges::all_of(label, inLabel); };
  const auto endsLike = [&](std::wstring_view file) { return equal(file, labels.back()); };
  return std::ranges::all_of(labels, isLabel) && std::ranges::none_of(files, endsLike);
}

/// An address of the web as the browser is to open it: one of http or https as it is, one without a scheme
/// ("www.example.com/pay") as one of http. Empty for everything else: paths, programs, other schemes.
std::wstring webAddress(std::wstring_view address) {
  const auto inAddress = [](wchar_t c) { return c > L' ' && c != L'"' && c != L'\\'; };
  if (!std::ranges::all_of(address, inAddress)) return {};
  for (const std::wstring_view scheme : {L"http://", L"https://"}) {
    if (address.size() > scheme.size() && equal(address.substr(0, scheme.size()), scheme)) return std::wstring(address);
  }
  const std::wstring_view site = address.substr(0, address.find_first_of(L"/?#"));
  const std::wstring_view host = site.substr(0, site.find(L':'));
  const std::wstring_view port = site.substr(std::min(host.size() + 1, site.size()));
  return isHostName(host) && std::ranges::all_of(port, isDigit) ? std::wstring(L"http://").append(address)
                                                                : std::wstring();
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
    const std::wstring page = webAddress(address);
    if (page.empty()) {
      const RuntimeError error(ErrorNumber::invalidCall);
      return ShowError(component, error.number(), error.description(), L"Random.OpenBrowser", flagTrue, {});
    }
    const int result = component.services.shell.open(page);
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
