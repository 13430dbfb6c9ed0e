// The play-by-play trace: on request of the host, every procedure writes its label to a file as it is entered.
#pragma once

#include <string_view>

#include "component/core/Component.h"

namespace nv {

/// Appends one line to the trace file, `gstrInstallRoot` & "\Norvik\PBP.txt" (the doubled separator is meant), unless
/// the trace is off or the installation root is not known. The file is opened and closed for every line. Never fails.
/// @param newFile empties the file first; every caller passes false.
void WritePlayByPlay(Component& component, std::wstring_view label, bool newFile) noexcept;

/// What every procedure does first. While the trace is off it is a comparison, in the procedure itself even where the
/// compiler saves space: nobody asks how long the label is.
/// @param label "<Object> - <Procedure>", a constant of the procedure.
[[gnu::always_inline]] inline void trace(Component& component, const wchar_t* label) noexcept {
  if (component.store.PlayByPlayEnabled != flagFalse) WritePlayByPlay(component, label, false);
}

/// A procedure of a family: its object and its own name, which make up its label.
struct Procedure {
  const wchar_t* object;
  const wchar_t* name;
  std::wstring label() const { return std::wstring(object) + L" - " + name; }
};

inline void trace(Component& component, const Procedure& procedure) {
  if (component.store.PlayByPlayEnabled != flagFalse) WritePlayByPlay(component, procedure.label(), false);
}

}  // namespace nv
