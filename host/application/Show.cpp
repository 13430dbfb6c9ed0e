#include "host/application/Show.h"

#include "host/application/Embedding.h"
#include "host/base/Text.h"

namespace nv::host {

namespace {

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

int showForPerson(const Installation& installation, std::wstring_view kind, const std::filesystem::path& file) {
  const HostWindow main(L"NVHost - Bill Payments", POINT{20, 20}, SIZE{1000, 800});
  Biller biller([](const std::wstring& event) { printLine(L"event " + event); });
  biller.set(file, installation.root());
  if (kind == L"remote") {
    showEmbedded(biller);
  } else if (kind == L"modal") {
    printLine(L"result " + std::to_wstring(biller.show(Biller::Show::modal)));
  } else if (kind == L"import") {
    printLine(L"result " + std::to_wstring(biller.show(Biller::Show::import)));
  } else {
    throw Failure(L"the dialog can be shown modal, remote or import");
  }
  for (const std::wstring& name : biller.readable()) {
    printLine(L"  " + name + L" " + scenario::shown(biller.get(name)));
  }
  return 0;
}

}  // namespace nv::host
