// Plays scenario files one after the other, so that none can influence the next.
#pragma once

#include <filesystem>
#include <vector>

namespace nv::host {

/// Folders that nvhost works in.
struct Folders {
  std::filesystem::path program;       // nvhost.exe itself
  std::filesystem::path build;         // for everything that nvhost makes
  std::filesystem::path installation;  // root of the stand-in installation
  std::filesystem::path standIns;      // what the installation is given: see Installation
};

/// Plays each file in a process of its own, prints a line for each and "N passed, N failed". Returns the exit code of
/// nvhost: 0 when all passed, else 1.
int runScenarios(const Folders& folders, const std::vector<std::filesystem::path>& files);

/// Plays one file in this process and prints its line. Ends the process when the file fails.
/// @param aloud says what is done, and what came of it, for whoever looks on.
int playScenario(const Folders& folders, const std::filesystem::path& file, bool aloud);

}  // namespace nv::host
