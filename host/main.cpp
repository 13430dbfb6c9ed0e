// nvhost: a host application for the component, on a command line. See README.md.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "host/application/Automation.h"
#include "host/application/Show.h"
#include "host/base/Crash.h"
#include "host/base/File.h"
#include "host/base/Text.h"
#include "host/check/Check.h"
#include "host/stage/Runner.h"
#include "host/standins/Cipher.h"

namespace nv::host {

namespace {

constexpr const wchar_t* usage =
    L"nvhost [--build FOLDER] COMMAND\n"
    L"\n"
    L"  run FILE...                    plays scenario files; the exit code is 0 when all pass\n"
    L"  aloud FILE                     plays a scenario and says what is done, and what comes of it\n"
    L"  show modal|remote|import FILE  opens the dialog for you with the biller of a file\n"
    L"  play FILE                      plays one scenario in this process, for a debugger\n"
    L"  encipher IN OUT                makes a country file for the stand-in cipher from a text file\n"
    L"  check                          plays everything that the acceptance kit holds, and writes report.html\n"
    L"\n"
    L"FOLDER is where installation and pictures go; by default the folder of nvhost.\n";

std::filesystem::path programPath() {
  wchar_t path[MAX_PATH];
  return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
}

struct Apartment {
  explicit Apartment(DWORD kind) { CoInitializeEx(nullptr, kind); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

int encipherFile(const std::filesystem::path& from, const std::filesystem::path& to) {
  const auto text = readFile(from);
  if (!text) throw Failure(from.wstring() + L" cannot be read");
  const auto bytes = enciphered(*text);
  if (!bytes) throw Failure(L"the system has no cipher");
  if (!writeFile(to, *bytes)) throw Failure(to.wstring() + L" cannot be written");
  return 0;
}

int run(std::vector<std::wstring> arguments) {
  Folders folders{programPath(), programPath().parent_path(), {}, programPath().parent_path() / L"standins"};
  if (arguments.size() >= 2 && arguments[0] == L"--build") {
    folders.build = std::filesystem::absolute(arguments[1]);
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  folders.build.make_preferred();
  folders.installation = folders.build / L"host" / L"installation";
  if (arguments.empty()) throw Failure(usage);
  const std::wstring command = arguments[0];
  std::vector<std::filesystem::path> files;
  for (std::size_t i = 1; i < arguments.size(); ++i) files.push_back(std::filesystem::absolute(arguments[i]));

  if (command == L"show" && files.size() == 2) {
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    return showForPerson(Installation(folders.installation, folders.standIns), arguments[1], files[1]);
  }
  const Apartment apartment(COINIT_MULTITHREADED);
  if (command == L"run" && !files.empty()) return runScenarios(folders, files);
  if (command == L"play" && files.size() == 1) return playScenario(folders, files[0], false);
  if (command == L"aloud" && files.size() == 1) return playScenario(folders, files[0], true);
  if (command == L"encipher" && files.size() == 2) return encipherFile(files[0], files[1]);
  if (command == L"check" && files.empty()) return checkMachine(folders.program.parent_path().parent_path());
  throw Failure(usage);
}

}  // namespace

}  // namespace nv::host

namespace {

/// The console takes UTF-8 for as long as this lives.
struct Utf8Console {
  Utf8Console() { SetConsoleOutputCP(CP_UTF8); }
  ~Utf8Console() { SetConsoleOutputCP(before); }
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;
  const UINT before = GetConsoleOutputCP();
};

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const Utf8Console console;
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  nv::host::reportCrashes([] { return L"nvhost: "; });
  try {
    return nv::host::run({arguments + 1, arguments + count});
  } catch (const nv::host::Failure& failure) {
    std::fputs((nv::host::narrow(failure.text()) + '\n').c_str(), stderr);
  } catch (const nv::host::CallError& error) {
    std::fputs((nv::host::narrow(error.shown()) + '\n').c_str(), stderr);
  }
  return 2;
}
