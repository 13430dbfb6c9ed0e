#include "host/stage/Runner.h"

#include <windows.h>

#include <algorithm>
#include <memory>

#include "host/base/Crash.h"
#include "host/base/Text.h"
#include "host/stage/RealStage.h"
#include "scenario/Player.h"

namespace nv::host {

namespace {

constexpr DWORD failedExit = 1;

struct ProcessCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

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
    const std::unique_ptr<void, ProcessCloser> thread(process.hThread);
    const std::unique_ptr<void, ProcessCloser> own(process.hProcess);
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

namespace {

/// Prints the line, and what is written about it. The lines of files that it includes are read in silence.
void sayLine(const std::filesystem::path& file, const scenario::Statement& statement) {
  if (statement.file != file.filename()) return;
  if (!statement.comment.empty()) printLine(L"");
  for (const std::wstring& line : splitLines(statement.comment))
    printLine(line.substr(std::min<std::size_t>(2, line.size())));
  if (!statement.comment.empty()) printLine(L"");
  printLine(L"  " + statement.source);
}

/// Prints how a show ended.
void sayResult(RealStage& stage, scenario::Player& player) {
  printLine(L"  -> result " + std::to_wstring(stage.result()));
  for (const auto& [property, value] : player.record()) {
    const Value& before = player.recordBefore().at(property);
    if (value != before)
      printLine(L"  -> " + property + L" " + scenario::shown(before) + L" is now " + scenario::shown(value));
  }
}

}  // namespace

int playScenario(const Folders& folders, const std::filesystem::path& file, bool aloud) {
  const std::wstring name = file.stem().wstring();
  RealStage stage({folders.installation, folders.standIns, folders.build / L"shots" / name});
  scenario::Player player(stage, file);
  if (aloud) {
    stage.onEvent = [](const std::wstring& event) { printLine(L"  -> event " + event); };
    player.beforeLine = [&](const scenario::Statement& statement) { sayLine(file, statement); };
    player.afterShow = [&] { sayResult(stage, player); };
  }
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
