#include "host/application/Automation.h"
#include "host/application/Embedding.h"
#include "host/application/Installation.h"
#include "host/base/Failure.h"
#include "host/base/Text.h"
#include "host/showcase/SampleBiller.h"
#include "host/showcase/Showcase.h"

namespace nv::host {

namespace {

void printRecord(Biller& biller) {
  for (const auto& [property, value] : readRecord(biller)) printLine(L"  " + property + L" " + inQuotes(value));
}

/// Embeds the dialog and serves it until it, or the window around it, is closed.
void showEmbedded(Biller& biller) {
  const auto window = windowFor(biller);
  embed(biller, *window);
  biller.show(Biller::Show::remote);
  const HWND dialog = biller.window();
  MSG message;
  while (IsWindow(dialog) && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

int showForPerson(const Folders& folders, std::wstring_view kind) {
  const Installation installation(folders.installation, folders.standIns);
  const HostWindow main(L"NVHost - Bill Payments", POINT{20, 20}, SIZE{1000, 800});
  Biller biller([](const std::wstring& event) { printLine(L"event " + event); });
  setSampleBiller(biller, installation.dllPath());
  if (kind == L"remote") {
    showEmbedded(biller);
  } else if (kind == L"modal") {
    printLine(L"result " + std::to_wstring(biller.show(Biller::Show::modal)));
  } else if (kind == L"import") {
    printLine(L"result " + std::to_wstring(biller.show(Biller::Show::import)));
  } else {
    throw Failure(L"the dialog can be shown modal, remote or import");
  }
  printRecord(biller);
  return 0;
}

}  // namespace nv::host
