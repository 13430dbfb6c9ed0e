// The dialog without the component: what of it can be seen, as a template of the system's own controls, and its list.
#pragma once

#include <vector>

#include "bench/Workplace.h"
#include "windows/SystemHeaders.h"

namespace nv::bench {

/// A DLGTEMPLATE with its items, as CreateDialogIndirect takes it.
using PlainDialog = std::vector<WORD>;

/// A template of the controls that a shown dialog lets the user see, with their texts and in one font. All of them
/// stand on the dialog itself. The identifier of each is the low word of the handle of the window that it stands for.
PlainDialog plainDialog(HWND dialog);

/// The template's dialog, hidden. A child of `host` when the dialog that it was taken from was one.
HWND made(const PlainDialog& plain, HWND host);

/// A system's list of `lines`, which must outlive it, in a shown window of its own. It shows their names, up to the
/// first comma, and for a letter that is typed looks at the beginning of each.
HWND plainList(HWND owner, const RECT& place, const Lines& lines);

}  // namespace nv::bench
