#include "tests/windows/StandIns.h"

#include "host/base/Text.h"

namespace nv::windows::test {

namespace {

/// Where the build has put nvhost.
std::filesystem::path hostFolder() {
  return programFolder().parent_path().parent_path() / L"host";
}

std::wstring nameOfTest() {
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  return host::wide(test->test_suite_name()) + L"." + host::wide(test->name());
}

}  // namespace

std::filesystem::path programFolder() {
  wchar_t path[MAX_PATH];
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(std::wstring(path, length)).parent_path();
}

StandInsTest::StandInsTest()
    : installation(programFolder() / L"installations" / nameOfTest(), hostFolder() / L"standins") {
  host::registerVerifier(hostFolder() / L"NVHostVerifier.dll");
}

std::vector<std::wstring> StandInsTest::asked() {
  auto lines = installation.lines(host::askedFile).value_or(std::vector<std::wstring>());
  if (!lines.empty()) installation.remove(host::askedFile);
  return lines;
}

}  // namespace nv::windows::test
