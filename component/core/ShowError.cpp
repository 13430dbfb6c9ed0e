#include "component/core/ShowError.h"

#include "platform/Text.h"

namespace nv {

namespace {

using platform::MessageBoxes;

void tellUser(Component& component, std::int32_t number, std::wstring_view description, std::wstring_view procName,
              std::wstring_view title) {
  std::wstring message = L"The following error: '";
  message.append(description).append(L" (Error ").append(std::to_wstring(number));
  message.append(L")' occurred in procedure '").append(procName).append(L"'.");
  component.services.messages.show(message, trimmed(title).empty() ? std::wstring_view(applicationTitle) : title,
                                   MessageBoxes::Icon::critical, MessageBoxes::Buttons::ok);
}

void log(Component& component, std::int32_t number, std::wstring_view description, std::wstring_view procName) {
  std::wstring line = component.services.machine.now();
  line.append(L",").append(applicationTitle).append(L", , ,").append(std::to_wstring(number));
  line.append(L",\"").append(description).append(L"\",\"").append(procName).append(L"\"\r\n");
  component.services.files.write(component.store.gstrInstallRoot() + L"error.log", line,
                                 platform::Files::Opening::append);
}

/// Runs one of the three ways of reporting. A failure is ignored, so that the others are still tried.
template <class Step>
void attempt(Step&& step) noexcept {
  try {
    step();
  } catch (...) {  // NOLINT(bugprone-empty-catch): a failed report is not reported
  }
}

}  // namespace

void ShowError(Component& component, std::int32_t errNumber, std::wstring_view description, std::wstring_view procName,
               bool silent, std::wstring_view title) noexcept {
  attempt([&] {
    if (component.store.PlayByPlayEnabled == flagFalse) return;
    std::wstring label = L"Random - ShowError ";
    label.append(description).append(L"\r\nLastOP=").append(procName);
    WritePlayByPlay(component, label, false);
  });
  if (!silent) attempt([&] { tellUser(component, errNumber, description, procName, title); });
  attempt([&] { log(component, errNumber, description, procName); });
}

}  // namespace nv
