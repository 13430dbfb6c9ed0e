// nvbench: what the component costs, beside the bare cost of the same work in the same run. The table goes to the
// standard output, in Markdown. The environment's NVRANDOM_DLL names the DLL, stripped as it is delivered.
//
//   nvbench [WORD]    measures all rows, or those whose name contains the word; the exit code is 1 when one misses its
//                     goal
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "bench/Rows.h"
#include "host/base/Text.h"
#include "tests/windows/Server.h"

namespace nv::bench {

namespace {

struct Row {
  const char* name;
  const char* bare;  // what it is measured beside
  double goal;       // the largest ratio, or `noGoal`
  Medians (*measure)();
};

constexpr double noGoal = 0;
constexpr double notMeasurable = 1.05;  // what two measurements of the same may differ by

const Row rows[] = {
    {"property put, vtable", "BSTR copy behind a virtual call", 1.5, vtablePut},
    {"property get, vtable", "BSTR copy behind a virtual call", 1.5, vtableGet},
    {"property put, late bound", "Scripting.Dictionary item put", 1, lateBoundPut},
    {"property get, late bound", "Scripting.Dictionary item get", 1, lateBoundGet},
    {"class creation", "Scripting.Dictionary creation", noGoal, classCreation},
    {"create, put, release", "a Scripting.Dictionary for a put", 3, briefUse},
    {"library load", "mapping the file, system imports", noGoal, libraryLoad},
    {"library size, stripped", "1 MB", 1, librarySize},
    {"ShowForm, first time", "what is seen, as a plain dialog", 1.8, firstOpening},
    {"ShowForm, again", "what is seen, as a plain dialog", 1.8, nextOpening},
    {"Get_hWnd, ShowForm_Remote", "what is seen, as a plain dialog", 1.8, embeddedOpening},
    {"keystroke", "the edit control alone", 1.5, keystroke},
    {"acceptance chain", "reading the fields", noGoal, acceptance},
    {"e-mail check", "one pass over the address", 5, mailCheck},
    {"country file, 250 rows", "keeping its lines", 2, [] { return countryFile(250); }},
    {"country file, 10,000 rows", "keeping its lines", 2, [] { return countryFile(10'000); }},
    {"country file, 100,000 rows", "keeping its lines", 2, [] { return countryFile(100'000); }},
    {"country file, 100,000 rows", "its bytes, looked at by nobody", noGoal, countryFileBesideItsBytes},
    {"a row of 100,000", "a row of 10,000", 1.25, countryFileGrowth},
    {"trace line", "open, append, close", 1.2, traceLine},
    {"property put, trace off", "property put, never traced", notMeasurable, switchedOffTrace},
    {"acceptance, trace off, twice", "acceptance, trace off", notMeasurable, switchedOffTraceOfAcceptance},
};

std::string quantity(double value) {
  struct Unit {
    double size;
    const char* name;
  };
  constexpr Unit units[] = {{1 << 10, "KB"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
  const Unit* unit = units;
  while (unit + 1 != std::end(units) && value < unit->size) ++unit;
  char text[32];
  std::snprintf(text, sizeof(text), "%.4g %s", value / unit->size, unit->name);
  return text;
}

int run(const char* word) {
  int missed = 0;
  std::printf("| %-28s | %-32s | %10s | %10s | ratio | goal | |\n|---|---|--:|--:|--:|--:|---|\n", "", "beside",
              "median", "bare");
  for (const Row& row : rows) {
    if (std::strstr(row.name, word) == nullptr) continue;
    const Medians took = row.measure();
    const double ratio = took.ours / took.bare;
    char goal[16] = "";
    if (row.goal != noGoal) std::snprintf(goal, sizeof(goal), "%.4g", row.goal);
    const bool misses = row.goal != noGoal && ratio > row.goal;
    if (misses) ++missed;
    std::printf("| %-28s | %-32s | %10s | %10s | %5.2f | %4s | %s|\n", row.name, row.bare, quantity(took.ours).c_str(),
                quantity(took.bare).c_str(), ratio, goal, misses ? "MISSED " : "");
    std::fflush(stdout);
  }
  return missed == 0 ? 0 : 1;
}

}  // namespace

}  // namespace nv::bench

int main(int count, char** arguments) {
  testing::GTEST_FLAG(throw_on_failure) = true;  // what the helpers of the tests expect holds, or there is no result
  testing::InitGoogleTest(&count, arguments);
  const nv::windows::test::Apartment apartment;
  const std::string word = count > 1 ? arguments[1] : "";
  try {
    if (word == "--open") return nv::bench::openOnce(false);
    if (word == "--open-bare") return nv::bench::openOnce(true);
    return nv::bench::run(word.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "nvbench: %s\n", error.what());
  } catch (const nv::host::Failure& failure) {
    std::fprintf(stderr, "nvbench: %ls\n", failure.text().c_str());
  }
  return 2;
}
