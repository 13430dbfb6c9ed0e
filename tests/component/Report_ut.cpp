// The trace and the error reporter: what they write and show. What becomes of their own failures is in trace-faults and
// error-log.scenario.
#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "tests/support/ComponentTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;
using ReportTest = ComponentTest;

const std::wstring traceLine = L"15/11/2026 1:58:04 PM NVRANDOM - ";
const std::wstring logLine = L"15/11/2026 1:58:04 PM,NVRandom, , ,5,\"D\",\"P\"\r\n";
const ExpectedBox errorBox = {.text = L"The following error: 'D (Error 5)' occurred in procedure 'P'.",
                              .icon = MessageBoxes::Icon::critical};

TEST_F(ReportTest, TheTraceIsOneLineForEachEntry) {
  startTrace();
  ClsRandom random(component, host);
  random.letPayeeName(L"ACME HYDRO");
  EXPECT_EQ(files.text(traceFile),
            traceLine + L"ClsRandom - Class_Initialize\r\n" + traceLine + L"ClsRandom - Let PayeeName\r\n");
  EXPECT_EQ(files.written().back(), L"C:\\Apps\\\\Norvik\\PBP.txt") << "the doubled separator is meant";
  EXPECT_EQ(files.written().size(), 2U);

  WritePlayByPlay(component, L"anew", true);
  EXPECT_EQ(files.text(traceFile), traceLine + L"anew\r\n");
}

TEST_F(ReportTest, AnErrorIsTracedShownAndLogged) {
  startTrace();
  WritePlayByPlay(component, L"before", false);
  ExpectedBox failing = errorBox;
  failing.whileOpen = [] { throw RuntimeError(ErrorNumber::outOfMemory); };  // the log is written all the same
  messages.expect(failing);
  ShowError(component, 5, L"D", L"P", false, L"");
  EXPECT_EQ(files.text(traceFile), traceLine + L"before\r\n" + traceLine + L"Random - ShowError D\r\nLastOP=P\r\n");
  EXPECT_EQ(files.text(errorLog), logLine);

  struct Case {
    bool silent;
    std::wstring title;
    std::wstring caption;
  };
  for (const Case& c :
       {Case{false, L"  ", L"NVRandom"}, Case{false, L" Title ", L" Title "}, Case{true, L"Title", L""}}) {
    SCOPED_TRACE(c.title);
    ExpectedBox box = errorBox;
    box.caption = c.caption;
    if (!c.silent) messages.expect(box);
    files.put(errorLog, {});
    ShowError(component, 5, L"D", L"P", c.silent, c.title);
    EXPECT_EQ(files.text(errorLog), logLine);
  }
}

}  // namespace
}  // namespace nv::test
