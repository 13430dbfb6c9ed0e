#include "host/check/Check.h"

#include <algorithm>

#include "host/application/Clipboard.h"
#include "host/application/Permissions.h"
#include "host/base/Text.h"
#include "host/check/Process.h"
#include "host/check/Report.h"

namespace nv::host {

namespace fs = std::filesystem;

namespace {

bool isSystem64() {
  SYSTEM_INFO system{};
  GetNativeSystemInfo(&system);
  return system.wProcessorArchitecture != PROCESSOR_ARCHITECTURE_INTEL;
}

std::wstring clipboardText() {
  try {
    return Clipboard(nullptr).text();
  } catch (const Failure&) {
    return {};
  }
}

void setClipboardText(const std::wstring& text) {
  try {
    if (!text.empty()) Clipboard(nullptr).set(text);
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): somebody else uses it, and has replaced it
  }
}

/// Deletes a folder, what nobody may write in it, too.
void removeFolder(const fs::path& folder) {
  std::error_code none;
  for (const auto& entry : fs::recursive_directory_iterator(folder, none)) allowEverything(entry.path());
  fs::remove_all(folder, none);
}

std::wstring quoted(const fs::path& path) {
  return L" \"" + path.wstring() + L"\"";
}

class Check {
 public:
  explicit Check(fs::path kit) : kit_(std::move(kit)) {}

  int run();
  /// Ends the run; it is over when this returns. From any thread.
  void stop() {
    job_.stop();
    WaitForSingleObject(over_.get(), INFINITE);
  }

 private:
  void play(const std::wstring& architecture);
  void scenarios(const std::wstring& architecture);
  void tests(const std::wstring& architecture, const wchar_t* program);
  void add(const std::wstring& part, const std::wstring& test, Outcome outcome, const std::wstring& said);
  void ended(const std::wstring& part, std::size_t before, DWORD exit);

  fs::path kit_;
  fs::path work_ = kit_ / L"work";
  fs::path pictures_ = kit_ / L"pictures";
  Job job_;
  std::vector<Result> results_;
  Handle over_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

void Check::add(const std::wstring& part, const std::wstring& test, Outcome outcome, const std::wstring& said) {
  if (job_.stopped()) return;  // what was ended in the middle is no result
  results_.push_back({part, test, outcome, said});
  constexpr const wchar_t* marks[] = {L"PASS ", L"FAIL ", L"SKIP "};
  printLine(marks[static_cast<std::size_t>(outcome)] + part + L": " + test);
  if (outcome == Outcome::failed) printLine(said);
}

/// A program that has told nothing, or has not ended well and told no failure, has failed as a whole.
void Check::ended(const std::wstring& part, std::size_t before, DWORD exit) {
  const auto begin = results_.begin() + static_cast<std::ptrdiff_t>(before);
  const bool told = exit == 0 ? begin != results_.end() : std::any_of(begin, results_.end(), [](const Result& result) {
    return result.outcome == Outcome::failed;
  });
  if (!told) add(part, L"its end", Outcome::failed, L"its process ended with exit code " + std::to_wstring(exit));
}

void Check::scenarios(const std::wstring& architecture) {
  const std::wstring part = L"scenarios, " + architecture;
  std::vector<fs::path> files = {kit_ / L"host" / L"gallery" / L"gallery.scenario"};
  for (const auto& entry : fs::directory_iterator(kit_ / L"host" / L"scenarios")) {
    if (entry.path().extension() == L".scenario") files.push_back(entry.path());
  }
  std::ranges::sort(files);
  std::wstring arguments = L"--build" + quoted(work_ / architecture) + L" run";
  for (const fs::path& file : files) arguments += quoted(file);
  const std::size_t before = results_.size();
  const DWORD exit = job_.run(kit_ / architecture / L"nvhost.exe", arguments, [&](const std::wstring& line) {
    const bool passed = line.starts_with(L"PASS ");
    if (!passed && !line.starts_with(L"FAIL ")) return;
    const std::wstring rest = line.substr(5);
    const std::wstring name = rest.substr(0, rest.find(L':'));
    add(part, name, passed ? Outcome::passed : Outcome::failed, passed ? L"" : rest);
  });
  ended(part, before, exit);
  std::error_code none;
  fs::create_directory(pictures_, none);
  fs::copy(work_ / architecture / L"shots", pictures_ / architecture, fs::copy_options::recursive, none);
}

void Check::tests(const std::wstring& architecture, const wchar_t* program) {
  const std::wstring part = program + (L", " + architecture);
  SetEnvironmentVariableW(L"NVRANDOM_DLL", (kit_ / architecture / L"NVRandom.dll").c_str());
  std::wstring said;
  const auto hear = [&](const std::wstring& line) {
    const auto result = [&](const wchar_t* mark, Outcome outcome) {
      if (!line.starts_with(mark) || !line.ends_with(L" ms)")) return;  // not in the list at the end
      const std::wstring rest = line.substr(std::wstring_view(mark).size());
      add(part, rest.substr(0, rest.find(L' ')), outcome, outcome == Outcome::passed ? L"" : said);
    };
    result(L"[       OK ] ", Outcome::passed);
    result(L"[  FAILED  ] ", Outcome::failed);
    result(L"[  SKIPPED ] ", Outcome::skipped);
    said = line.starts_with(L"[") ? L"" : said + line + L"\n";
  };
  const std::size_t before = results_.size();
  ended(part, before, job_.run(kit_ / architecture / (program + std::wstring(L".exe")), L"--gtest_color=no", hear));
}

void Check::play(const std::wstring& architecture) {
  try {
    scenarios(architecture);
    for (const wchar_t* program : {L"nv_windows_tests", L"nv_widgetset_tests"}) tests(architecture, program);
  } catch (const Failure& failure) {
    add(architecture, L"its programs", Outcome::failed, failure.text());
  }
}

int Check::run() {
  printLine(L"Playing everything; that takes some minutes. Leave mouse and keyboard alone meanwhile: they are used.");
  removeFolder(work_);  // of a run that was ended by force
  removeFolder(pictures_);
  const std::wstring text = clipboardText();
  play(L"x86");
  if (isSystem64()) play(L"x64");
  setClipboardText(text);
  removeFolder(work_);
  for (const wchar_t* architecture : {L"x86", L"x64"}) removeFolder(kit_ / architecture / L"installations");
  const fs::path report = kit_ / L"report.html";
  writeReport(report, results_, pictures_, job_.stopped() ? L"It was stopped before its end." : L"");
  printLine(report.wstring());
  printLine(summary(results_));
  const bool good = !job_.stopped() && std::ranges::count(results_, Outcome::failed, &Result::outcome) == 0;
  SetEvent(over_.get());
  return good ? 0 : 1;
}

Check* theCheck = nullptr;

/// The console is closed, the user leaves, Ctrl+C: the system ends the process when this returns.
BOOL WINAPI stopCheck(DWORD) {
  theCheck->stop();
  return TRUE;
}

}  // namespace

int checkMachine(const fs::path& kit) {
  static Check check(kit);
  theCheck = &check;
  SetConsoleCtrlHandler(stopCheck, TRUE);
  return check.run();
}

}  // namespace nv::host
