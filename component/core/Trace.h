// The play-by-play trace: while the host asks for it, every procedure writes its label to a file on entry.
#pragma once

#include <string_view>

#include "component/core/Component.h"

namespace nv {

/// Appends one line to the trace file, `gstrInstallRoot` & "\Norvik\PBP.txt" (the doubled separator is deliberate),
/// unless the trace is off or the installation root is not known. The file is opened and closed for every line. Never
/// fails.
/// @param newFile empties the file first; every caller passes false.
void WritePlayByPlay(Component& component, std::wstring_view label, bool newFile) noexcept;

/// The first statement of every procedure. Always inlined: while the trace is off it costs one comparison, and the
/// label's length is not computed.
/// @param label "<Object> - <Procedure>".
[[gnu::always_inline]] inline void trace(Component& component, const wchar_t* label) noexcept {
  if (component.store.PlayByPlayEnabled != flagFalse) WritePlayByPlay(component, label, false);
}

/// An event procedure, by the names that make up its label: "<Form> - <Control>_<Event>". All must outlive it.
struct Procedure {
  std::wstring_view form;
  std::wstring_view control;
  const wchar_t* event;
  std::wstring label() const { return std::wstring(form).append(L" - ").append(control).append(L"_").append(event); }
};

inline void trace(Component& component, const Procedure& procedure) {
  if (component.store.PlayByPlayEnabled != flagFalse) WritePlayByPlay(component, procedure.label(), false);
}

}  // namespace nv
