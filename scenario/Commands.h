// The commands of the scenario language. Each family stands in a table of its own file, and a new command is one more
// row there: how it is written, what it takes from its line, what it does, and on which stages.
#pragma once

#include <span>
#include <string_view>

#include "scenario/Script.h"
#include "scenario/Stage.h"

namespace nv::scenario {

struct Command {
  enum class Place {
    anywhere,
    inBlock,       // between a show and its end: there must be a dialog to act on
    opensBlock,    // is followed by lines up to an end
    afterShow,     // speaks of the last show in the same block
    atMessageBox,  // anywhere, and while a message box is up
  };

  const wchar_t* name;
  const wchar_t* usage;  // for people, when a line is not understood
  Place place;
  /// Takes the command's arguments from the line.
  Action (*read)(Tokens& tokens);
  Stage::Kind stages = Stage::both;  // on others its lines are passed over
};

/// What the host does: instances, properties, showing and unloading.
std::span<const Command> hostCommands();
/// What the user does and sees.
std::span<const Command> userCommands();
/// The installation and what else is around: files, faults, the clipboard.
std::span<const Command> installationCommands();
/// The stand-ins for the account verifier, the closed libraries and the country file.
std::span<const Command> standInCommands();

/// The command of that name. Fails with Failure when there is none.
const Command& commandOf(std::wstring_view name);

}  // namespace nv::scenario
