#include "host/check/Check.h"

#include <algorithm>
#include <array>
#include <numeric>

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

/// Why nothing can be proven here; empty when it can.
/// @param work is made: a folder in the kit.
std::wstring objection(const fs::path& kit, const fs::path& work) {
  constexpr std::size_t longest = 110;  // characters; the tests' own folders and files come to 150 more, of MAX_PATH
  constexpr int least = 700;            // pixels at 96 dpi: the highest dialog, a title and the taskbar
  const std::wstring path = kit.wstring();
  std::error_code none;
  std::wstring disk(path.size() + 1, L'\0');
  DWORD abilities = 0;
  GetVolumePathNameW(path.c_str(), disk.data(), static_cast<DWORD>(disk.size()));
  GetVolumeInformationW(disk.c_str(), nullptr, 0, nullptr, nullptr, &abilities, nullptr, 0);
  if (GetDriveTypeW(disk.c_str()) == DRIVE_REMOTE || (abilities & FILE_PERSISTENT_ACLS) == 0)
    return L"The tests take away rights to files: unpack the archive on a disk of this machine that has rights (NTFS).";
  if (path.size() > longest) return L"Unpack the archive into a folder with a shorter path.";
  if (wide(narrow(path, CP_ACP), CP_ACP) != path)
    return L"The libraries of a host cannot name this folder: unpack the archive into one with plain letters.";
  if (!fs::create_directories(work, none)) return L"Nothing can be written here: unpack the archive elsewhere.";
  const HDC screen = GetDC(nullptr);
  const int height = MulDiv(GetDeviceCaps(screen, VERTRES), 96, GetDeviceCaps(screen, LOGPIXELSY));
  ReleaseDC(nullptr, screen);
  if (height < least) return L"The dialogs do not fit on this screen: choose a smaller scale, or a higher resolution.";
  if ((GetKeyState(VK_CAPITAL) & 1) != 0) return L"Caps Lock is on.";
  return {};
}

/// What the tests change of the user's session for a moment, and leave changed when they are ended in that moment.
class Session {
 public:
  Session() {
    std::iota(elements_.begin(), elements_.end(), 0);
    std::ranges::transform(elements_, colours_.begin(), GetSysColor);
  }
  void restore() const {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\NVRandom.Test");  // the tests' registry
    if (!std::ranges::equal(elements_, colours_, {}, GetSysColor))
      SetSysColors(colourCount, elements_.data(), colours_.data());
    setClipboardText(clipboard_);
  }

 private:
  static constexpr int colourCount = COLOR_MENUBAR + 1;
  std::array<int, colourCount> elements_{};
  std::array<COLORREF, colourCount> colours_{};
  const std::wstring clipboard_ = clipboardText();
};

/// A console in which a click does not stop what is written, for as long as it lives.
class UnstoppedConsole {
 public:
  UnstoppedConsole() {
    constexpr DWORD quickEdit = ENABLE_QUICK_EDIT_MODE;
    if (GetConsoleMode(input_, &mode_)) SetConsoleMode(input_, (mode_ & ~quickEdit) | ENABLE_EXTENDED_FLAGS);
  }
  ~UnstoppedConsole() {
    if (mode_ != 0) SetConsoleMode(input_, mode_ | ENABLE_EXTENDED_FLAGS);
  }
  UnstoppedConsole(const UnstoppedConsole&) = delete;
  UnstoppedConsole& operator=(const UnstoppedConsole&) = delete;

 private:
  const HANDLE input_ = GetStdHandle(STD_INPUT_HANDLE);
  DWORD mode_ = 0;
};

std::wstring quoted(const fs::path& path) {
  return L" \"" + path.wstring() + L"\"";
}

class Check {
 public:
  /// Fails with Failure when nothing can be proven here.
  explicit Check(fs::path kit);

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

Check::Check(fs::path kit) : kit_(std::move(kit)) {
  // Before anything is removed: this may be no folder of the kit's.
  std::error_code none;
  if (!fs::exists(kit_ / L"host", none) || !fs::exists(kit_ / L"x64", none))
    throw Failure(L"Files are missing: unpack the whole archive.");
  removeFolder(work_);  // of a run that was ended by force
  const std::wstring why = objection(kit_, work_);
  if (!why.empty()) {
    removeFolder(work_);
    throw Failure(why);
  }
  removeFolder(pictures_);
}

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
  if (exit == ERROR_TIMEOUT) {
    add(part, L"its end", Outcome::failed, L"it hung, and was ended");
  } else if (!told) {
    add(part, L"its end", Outcome::failed, L"its process ended with exit code " + std::to_wstring(exit));
  }
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
  const UnstoppedConsole console;
  const Session session;
  play(L"x86");
  if (isSystem64()) play(L"x64");
  session.restore();
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

/// Ctrl+C, or the console is closed: then the system ends the process when this returns. That a user leaves Windows is
/// told to no program with windows in this way: the system ends it, and the next run tidies up.
BOOL WINAPI stopCheck(DWORD) {
  theCheck->stop();
  return TRUE;
}

}  // namespace

int checkMachine(const fs::path& kit) {
  const Handle turn(CreateMutexW(nullptr, FALSE, L"NVRandom.Check"));
  if (GetLastError() == ERROR_ALREADY_EXISTS) throw Failure(L"A check is running already: both would use the mouse.");
  static Check check(kit);
  theCheck = &check;
  SetConsoleCtrlHandler(stopCheck, TRUE);
  return check.run();
}

}  // namespace nv::host
