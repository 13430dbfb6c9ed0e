// nvbench: what the component costs, beside the bare cost of the same work in the same run. The table goes to the
// standard output, in Markdown. The environment's NVRANDOM_DLL names the DLL, stripped as it is delivered.
//
//   nvbench [WORD]    measures all rows, or those whose name contains the word; the exit code is 1 when one misses its
//                     goal, 2 when one fails or takes more than two minutes
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

#include "bench/Rows.h"
#include "host/base/Deadline.h"
#include "host/base/Text.h"
#include "tests/windows/Server.h"

namespace nv::bench {

namespace {

struct Row {
  const char* name;
  const char* bare;  // what it is measured beside
  double goal;       // the largest ratio, or `noGoal`
  Comparison (*measure)();
};

constexpr double noGoal = 0;

const Row rows[] = {
    {"property put, vtable", "a copy into a kept buffer", 1.5, vtablePut},
    {"property get, vtable", "a copy into a new BSTR", 1.5, vtableGet},
    {"property put, late bound", "Scripting.Dictionary item put", 1, lateBoundPut},
    {"property get, late bound", "Scripting.Dictionary item get", 1, lateBoundGet},
    {"class creation", "Scripting.Dictionary creation", noGoal, classCreation},
    {"create, put, release", "a Scripting.Dictionary for a put", 3, briefUse},
    {"CoCreateInstance, first", "loading the file, first", noGoal, firstCreation},
    {"library load", "mapping the file, system imports", 2, libraryLoad},
    {"library size, stripped", "1 MB", 1, librarySize},
    {"memory of an object", "its texts in a dictionary", 1, objectMemory},
    {"memory of a dialog", "the plain dialog", 1.5, dialogMemory},
    {"ShowForm, first time", "what is seen, as a plain dialog", 1.8, firstOpening},
    {"ShowForm, again", "what is seen, as a plain dialog", 1.8, nextOpening},
    {"Get_hWnd, ShowForm_Remote", "what is seen, as a plain dialog", 1.8, embeddedOpening},
    {"... and the list, 250 rows", "... a system's list, and fread", 1.8, [] { return countryList(250); }},
    {"... and the list, 10,000 rows", "... a system's list, and fread", 1.8, [] { return countryList(10'000); }},
    {"letter, open list of 100,000", "a system's list, a look at each", 2, letterInOpenList},
    {"keystroke", "the edit control alone", 1.5, keystroke},
    {"acceptance chain", "reading the fields", noGoal, acceptance},
    {"e-mail check", "one pass over the address", 5, mailCheck},
    {"country file, 250 rows", "its lines, by fread", noGoal, [] { return countryFile(250); }},
    {"country file, 10,000 rows", "its lines, by fread", noGoal, [] { return countryFile(10'000); }},
    {"a row of 100,000", "a row of 10,000", 1.25, countryFileGrowth},
    {"trace line", "open, append, close", 1.2, traceLine},
    {"trace off, 1,000 calls", "a function that looks at a flag", 1, switchedOffTrace},
};

/// A median with its quartiles, in the largest unit that leaves something before the point.
std::string quantity(const Quartiles& of) {
  struct Unit {
    double size;
    const char* name;
  };
  constexpr Unit units[] = {{1 << 10, "KB"}, {1, "bytes"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
  const Unit* unit = units;
  while (unit + 1 != std::end(units) && of.median < unit->size) ++unit;
  char text[64];
  if (of.lower == of.upper) {
    std::snprintf(text, sizeof(text), "%.4g %s", of.median / unit->size, unit->name);
  } else {
    std::snprintf(text, sizeof(text), "%.3g %s (%.3g-%.3g)", of.median / unit->size, unit->name, of.lower / unit->size,
                  of.upper / unit->size);
  }
  return text;
}

int run(const char* word) {
  int missed = 0;
  std::printf("| %-29s | %-32s | goal | %2d bit | bare | ratio |\n|---|---|--:|--:|--:|--:|\n", "", "beside",
              static_cast<int>(8 * sizeof(void*)));
  for (const Row& row : rows) {
    if (std::strstr(row.name, word) == nullptr) continue;
    const host::Deadline deadline(std::chrono::minutes(2), [&row] {
      std::fprintf(stderr, "nvbench: \"%s\" hangs\n", row.name);
      TerminateProcess(GetCurrentProcess(), 2);
    });
    const Comparison took = row.measure();
    const double ratio = took.ours.median / took.bare.median;
    char goal[16] = "";
    if (row.goal != noGoal) std::snprintf(goal, sizeof(goal), "%.4g", row.goal);
    const bool misses = row.goal != noGoal && ratio > row.goal;
    if (misses) ++missed;
    std::printf("| %-29s | %-32s | %4s | %22s | %22s | %5.2f%s |\n", row.name, row.bare, goal,
                quantity(took.ours).c_str(), quantity(took.bare).c_str(), ratio, misses ? " MISSED" : "");
    std::fflush(stdout);
  }
  return missed == 0 ? 0 : 1;
}

}  // namespace

double elsewhere(const Alone& alone) {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(program) + L"\" " + alone.option;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
    throw std::runtime_error("nvbench cannot be started");
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD microseconds = 0;  // the exit code
  GetExitCodeProcess(process.hProcess, &microseconds);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  constexpr DWORD leastPossible = 100;  // smaller codes are failures
  if (microseconds < leastPossible) throw std::runtime_error("a process of its own fails");
  return microseconds * 1e-6;
}

}  // namespace nv::bench

int main(int count, char** arguments) {
  testing::GTEST_FLAG(throw_on_failure) = true;  // what the helpers of the tests expect holds, or there is no result
  testing::InitGoogleTest(&count, arguments);
  const nv::windows::test::Apartment apartment;
  const std::string word = count > 1 ? arguments[1] : "";
  try {
    for (const auto* alone : {&nv::bench::openDialog, &nv::bench::openPlainDialog, &nv::bench::createByClass,
                              &nv::bench::loadLibraryAlone}) {
      if (nv::host::wide(word, CP_ACP) == alone->option) return static_cast<int>(alone->measure() * 1e6);
    }
    return nv::bench::run(word.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nvbench: %s\n", error.what());
  } catch (const nv::host::Failure& failure) {
    std::fprintf(stderr, "nvbench: %ls\n", failure.text().c_str());
  }
  return 2;
}
