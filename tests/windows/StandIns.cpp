#include "tests/windows/StandIns.h"

#include "host/application/BillerFile.h"
#include "host/base/Text.h"

namespace nv::windows::test {

namespace {

/// Where nvhost is: beside this program in the acceptance kit, else where the build has put it.
std::filesystem::path hostFolder() {
  return verifierIsSideBySide() ? programFolder() : programFolder().parent_path().parent_path() / L"host";
}

}  // namespace

std::wstring nameOfTest() {
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  return host::wide(test->test_suite_name()) + L"." + host::wide(test->name());
}

namespace {

std::filesystem::path program() {
  wchar_t path[MAX_PATH];
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::wstring(path, length);
}

}  // namespace

std::filesystem::path programFolder() {
  return program().parent_path();
}

bool verifierIsSideBySide() {
  return std::filesystem::exists(programFolder() / L"NVHost.Verifier.manifest");
}

std::filesystem::path sourceFile(const std::string& name) {
  return programFolder() / (verifierIsSideBySide() ? ".." : "../../../..") / name;
}

HANDLE startTests(const std::filesystem::path& program, const std::wstring& filter) {
  std::wstring command = L"\"" + program.wstring() + L"\" --gtest_brief=1 --gtest_filter=" + filter;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  EXPECT_TRUE(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                             &process));
  CloseHandle(process.hThread);
  return process.hProcess;
}

DWORD exitCode(HANDLE process) {
  constexpr DWORD aMinute = 60'000;
  EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(process, aMinute));
  DWORD code = 1;
  GetExitCodeProcess(process, &code);
  CloseHandle(process);
  return code;
}

namespace {

/// Where the tests of this run have their installations. A second run of the same program waits here until the first
/// has ended.
std::filesystem::path installationsFolder() {
  const std::wstring name = program().stem().wstring();
  static const host::Handle turn(CreateMutexW(nullptr, FALSE, (L"NVRandom.Tests." + name).c_str()));
  WaitForSingleObject(turn.get(), INFINITE);
  return programFolder() / L"installations" / name;
}

}  // namespace

void StandInsTest::tell(const std::wstring& answer) {
  EXPECT_TRUE(host::record(host::answersFile, answer));
}

StandInsTest::StandInsTest() : installation(installationsFolder() / nameOfTest(), hostFolder() / L"standins") {
  if (!verifierIsSideBySide()) registerVerifier();
}

void StandInsTest::registerVerifier() {
  host::registerVerifier(hostFolder() / L"NVHostVerifier.dll");
}

void StandInsTest::set(_ClsRandom* object, const std::string& biller) const {
  host::setBiller(*object, sourceFile("host/scenarios/billers/" + biller + ".txt"), installation.root());
}

std::vector<std::wstring> StandInsTest::asked() {
  auto lines = installation.lines(host::askedFile).value_or(std::vector<std::wstring>());
  if (!lines.empty()) installation.remove(host::askedFile);
  return lines;
}

}  // namespace nv::windows::test
