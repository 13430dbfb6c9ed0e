// The trace and the error reporter: what they write and show, and that nothing ever comes of their own failures.
#include <new>

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

TEST_F(ReportTest, NoTraceIsWrittenUntilItIsOnAndTheRootKnown) {
  files.makeFolder(dllPath);
  files.makeFolder(L"\\Norvik");
  struct Case {
    std::int16_t enabled;
    std::wstring_view dllPath;
    std::size_t written;
  };
  for (const Case& c : {Case{0, dllPath, 0}, Case{-1, L"", 0}, Case{-1, L"C:\\Apps\\norvik", 0}, Case{1, dllPath, 1}}) {
    SCOPED_TRACE(testing::Message() << c.enabled << " " << c.dllPath.data());
    component.store.PlayByPlayEnabled = c.enabled;
    component.store.DLLPath = c.dllPath;
    WritePlayByPlay(component, L"label", false);
    EXPECT_EQ(files.written().size(), c.written);
  }
}

TEST_F(ReportTest, AnErrorIsTracedShownAndLogged) {
  startTrace();
  messages.expect(errorBox);
  ShowError(component, 5, L"D", L"P", false, L"");
  EXPECT_EQ(files.text(traceFile), traceLine + L"Random - ShowError D\r\nLastOP=P\r\n");
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

TEST_F(ReportTest, TheLogIsWrittenAsItComes) {
  files.put(L"error.log", L"before\r\n");
  ShowError(component, -2147467259, L"say \"no\", twice", L"Random.ValidateBankId", true, L"");
  EXPECT_EQ(
      files.text(L"error.log"),
      L"before\r\n15/11/2026 1:58:04 PM,NVRandom, , ,-2147467259,\"say \"no\", twice\",\"Random.ValidateBankId\"\r\n")
      << "without a root, in the current directory";
  EXPECT_EQ(files.written(), Texts{L"error.log"}) << "and without a trace";
}

TEST_F(ReportTest, NoFailureOfTheReporterReachesAnybody) {
  const auto outOfMemory = [] { throw std::bad_alloc(); };
  struct Case {
    const char* what;
    std::function<void(ExpectedBox&)> arrange;
    bool traced;
    bool logged;
  };
  const Case cases[] = {
      {"trace locked", [&](ExpectedBox&) { files.fail(traceFile, ErrorNumber::permissionDenied); }, false, true},
      {"log read-only", [&](ExpectedBox&) { files.fail(errorLog, ErrorNumber::pathAccess); }, true, false},
      {"no trace folder", [&](ExpectedBox&) { component.store.DLLPath = L"D:\\NORVIK"; }, false, false},
      {"no memory for the line", [&](ExpectedBox&) { machine.whenAsked = outOfMemory; }, false, false},
      {"no memory for the box", [&](ExpectedBox& box) { box.whileOpen = outOfMemory; }, true, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    files = FakeFiles();
    machine.whenAsked = nullptr;
    startTrace();
    ExpectedBox box = errorBox;
    c.arrange(box);
    messages.expect(box);
    ShowError(component, 5, L"D", L"P", false, L"");
    EXPECT_EQ(!files.text(traceFile).empty(), c.traced);
    EXPECT_EQ(files.text(errorLog), c.logged ? logLine : L"");
  }
}

}  // namespace
}  // namespace nv::test
