// The real widgetset: forms as windows. One per thread; the window classes are shared by all.
#pragma once

#include "forms/Widgetset.h"
#include "windows/forms/Graphics.h"

namespace nv::windows {

class WindowsWidgetset : public forms::Widgetset {
 public:
  std::unique_ptr<forms::FormPeer> createWindows(forms::Form& form) override;
  void runPendingEvents() override;

  /// Gives the window classes back. To be called when the DLL is unloaded.
  static void unregisterClasses();

 private:
  Palette palette_;
};

}  // namespace nv::windows
