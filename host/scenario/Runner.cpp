#include "host/scenario/Runner.h"

#include <windows.h>

#include "host/base/Crash.h"
#include "host/base/File.h"
#include "host/base/Text.h"
#include "host/scenario/Player.h"

namespace nv::host {

namespace {

constexpr DWORD failedExit = 1;

std::wstring argument(const std::filesystem::path& path) {
  return L" \"" + path.wstring() + L"\"";
}

bool passes(const Folders& folders, const std::filesystem::path& file) {
  std::wstring command =
      argument(folders.program).substr(1) + L" --build" + argument(folders.build) + L" play" + argument(file);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  DWORD exit = failedExit;
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
    const Handle thread(process.hThread);
    const Handle own(process.hProcess);
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &exit);
    if (exit == 0 || exit == failedExit) return exit == 0;
  }
  printLine(L"FAIL " + file.stem().wstring() + L": its process ended with exit code " + std::to_wstring(exit));
  return false;
}

}  // namespace

int runScenarios(const Folders& folders, const std::vector<std::filesystem::path>& files) {
  std::size_t passed = 0;
  for (const auto& file : files) {
    if (passes(folders, file)) ++passed;
  }
  printLine(std::to_wstring(passed) + L" passed, " + std::to_wstring(files.size() - passed) + L" failed");
  return passed == files.size() ? 0 : 1;
}

int playScenario(const Folders& folders, const std::filesystem::path& file) {
  Player player({file, folders.installation, folders.standIns, folders.build / L"shots" / file.stem()});
  const std::wstring name = file.stem().wstring();
  reportCrashes([&] { return L"FAIL " + name + L": " + player.position(); });
  const auto failure = player.play();
  if (!failure) {
    printLine(L"PASS " + name);
    return 0;
  }
  printLine(L"FAIL " + name + L": " + *failure);
  TerminateProcess(GetCurrentProcess(), failedExit);  // the host's thread may never come back from its dialog
  return failedExit;
}

}  // namespace nv::host
