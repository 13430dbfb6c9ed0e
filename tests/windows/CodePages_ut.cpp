// ANSI code pages that this system does not have: those of other systems, and UTF-8, which a host may choose.
#include "platform/RuntimeError.h"
#include "tests/windows/StandIns.h"
#include "windows/Paths.h"

namespace nv::windows::test {

namespace {

UINT codePage;        // the ANSI code page of the system below
bool refusesFlags;    // as Windows does for UTF-8 and GB 18030
bool refusesAll;      // a system without the tables of its code page
int callsUntilWrong;  // of the conversions; later ones fail

/// WideCharToMultiByte of the system described above.
int WINAPI toBytes(UINT, DWORD flags, LPCWCH text, int length, LPSTR bytes, int size, LPCCH lacking, LPBOOL used) {
  const bool invalid = refusesFlags && (flags & ~DWORD{WC_ERR_INVALID_CHARS}) != 0;
  SetLastError(invalid ? ERROR_INVALID_FLAGS : ERROR_INVALID_PARAMETER);
  if (invalid || refusesAll || callsUntilWrong-- == 0) return 0;
  return WideCharToMultiByte(codePage, flags, text, length, bytes, size, lacking, used);
}

/// MultiByteToWideChar of the same system; refuses every flag, as Windows does for some code pages.
int WINAPI toText(UINT, DWORD flags, LPCCH bytes, int length, LPWSTR text, int size) {
  SetLastError(ERROR_INVALID_FLAGS);
  return flags != 0 || refusesAll ? 0 : MultiByteToWideChar(codePage, flags, bytes, length, text, size);
}

constexpr Conversions otherSystem{toBytes, toText};

/// The number of the run-time error that the work fails with, or 0.
template <class Work>
std::int32_t errorOf(Work&& work) {
  try {
    work();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

TEST(CodePages, EveryOneGetsTheFlagsThatItTakes) {
  struct Case {
    UINT page;
    bool refuses;
    const wchar_t* text;
    const char* bytes;
    bool exact;
  };
  const Case cases[] = {
      {1252, false, L"12-\u00e9", "12-\xE9", true},
      {1252, false, L"1\u2162", "1?", false},  // no best fit: a Roman three is not an I
      {CP_UTF8, true, L"12-\u00e9\u4e2d", "12-\xC3\xA9\xE4\xB8\xAD", true},
      {CP_UTF8, true, L"\U0001F600", "\xF0\x9F\x98\x80", true},
      {932, false, L"\u8868\u00e9", "\x95\x5C?", false},  // the second byte is a backslash's
      {936, false, L"\u4e2d7", "\xD6\xD0\x37", true},
      {949, true, L"\uac00", "\xB0\xA1", true},
      {CP_UTF8, true, L"", "", true},
  };
  refusesAll = false;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.page);
    callsUntilWrong = -1;
    codePage = c.page;
    refusesFlags = c.refuses;
    EXPECT_EQ(inAnsiCodePage(c.text, otherSystem), c.bytes);
    EXPECT_EQ(exactlyInAnsiCodePage(c.text, otherSystem).has_value(), c.exact);
    if (c.exact) {
      EXPECT_EQ(fromAnsiCodePage(c.bytes, otherSystem), c.text);
    }
  }
}

TEST(CodePages, WhatIsNotConvertedIsAnErrorAndNoEmptyText) {
  codePage = 1252;
  refusesFlags = false;
  refusesAll = true;
  EXPECT_EQ(errorOf([] { inAnsiCodePage(L"003", otherSystem); }), 5);
  EXPECT_EQ(errorOf([] { exactlyInAnsiCodePage(L"003", otherSystem); }), 5);
  EXPECT_EQ(errorOf([] { fromAnsiCodePage("003", otherSystem); }), 5);
  EXPECT_EQ(inAnsiCodePage(L"", otherSystem), "");
  EXPECT_EQ(fromAnsiCodePage("", otherSystem), L"");
  refusesAll = false;
  callsUntilWrong = 1;
  EXPECT_EQ(errorOf([] { inAnsiCodePage(L"003", otherSystem); }), 5) << "measured, but not written";
}

/// The tests of what goes to the closed libraries and comes back, in a process whose manifest chooses UTF-8.
TEST(CodePages, LibrariesAreAskedInTheUtf8OfTheHost) {
  constexpr const wchar_t* again = L"NVRANDOM_UTF8_PROCESS";
  constexpr DWORD notUtf8 = 77;
  if (GetEnvironmentVariableW(again, nullptr, 0) != 0) {
    if (GetACP() != CP_UTF8) ExitProcess(notUtf8);
    return;
  }
  const std::filesystem::path program = programFolder() / L"nv_windows_tests_in_utf8.exe";
  const std::filesystem::path manifest = program.wstring() + L".manifest";
  wchar_t original[MAX_PATH];
  GetModuleFileNameW(nullptr, original, MAX_PATH);
  ASSERT_TRUE(CopyFileW(original, program.c_str(), FALSE));
  host::writeFile(manifest, R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
    <application xmlns="urn:schemas-microsoft-com:asm.v3"><windowsSettings>
      <activeCodePage xmlns="http://schemas.microsoft.com/SMI/2019/WindowsSettings">UTF-8</activeCodePage>
    </windowsSettings></application></assembly>)");
  SetEnvironmentVariableW(again, L"1");
  const DWORD code = exitCode(startTests(program, nameOfTest() + L":ClosedLibrariesTest.*:CountryCipherTest.Works*"));
  SetEnvironmentVariableW(again, nullptr);
  std::filesystem::remove(program);
  std::filesystem::remove(manifest);
  if (code == notUtf8) GTEST_SKIP() << "no manifest chooses the code page here, as before Windows 10 1903";
  EXPECT_EQ(code, 0U);
}

}  // namespace

}  // namespace nv::windows::test
