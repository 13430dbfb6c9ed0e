// The commands of the scenario language. Each family stands in a table of its own file, and a new command is one more
// row there: how it is written, what it takes from its line, and what it does.
#pragma once

#include <span>
#include <string_view>

#include "host/scenario/Script.h"

namespace nv::host {

struct Command {
  enum class Place {
    anywhere,
    inBlock,       // between a show and its end: there must be a dialog to act on
    opensBlock,    // is followed by lines up to an end
    atMessageBox,  // anywhere, and while a message box is up
  };

  const wchar_t* name;
  const wchar_t* usage;  // for people, when a line is not understood
  Place place;
  /// Takes the command's arguments from the line.
  Action (*read)(Tokens& tokens);
};

/// What the host does: instances, properties, showing and unloading.
std::span<const Command> hostCommands();
/// What the user does and sees.
std::span<const Command> userCommands();
/// The installation and what else is around: files, faults, the clipboard.
std::span<const Command> installationCommands();

/// The stand-ins for the account verifier, the closed libraries and the country file.
std::span<const Command> standInCommands();

/// The command of that name, or null.
const Command* findCommand(std::wstring_view name);

}  // namespace nv::host
