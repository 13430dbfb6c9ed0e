// The closed libraries of a host installation: where they are found, and that several processes share one. What they
// are asked and answer is in verifier.scenario and lists.scenario.
#include <algorithm>
#include <filesystem>

#include "tests/support/Expect.h"
#include "tests/windows/StandIns.h"
#include "windows/Paths.h"
#include "windows/services/HostInstallation.h"

namespace nv::windows::test {

namespace {

namespace fs = std::filesystem;

class ClosedLibrariesTest : public StandInsTest {
 protected:
  /// The number of the run-time error that asking about a bank id fails with, or 0.
  std::int32_t errorIn(const std::wstring& folder) {
    return nv::test::errorOf([&] { libraries.checkBankId(folder, L"003"); });
  }

  HostInstallation libraries;
};

TEST_F(ClosedLibrariesTest, AreAskedAboutANumberAsItIsOrNotAtAll) {
  if (GetACP() == CP_UTF8) return;  // it has every character
  EXPECT_THROW(libraries.checkBankId(dllPath(), L"00\u4e09"), RuntimeError);
  EXPECT_EQ(libraries.checkBankId(dllPath(), L"0É3"), 1);
  EXPECT_EQ(asked(), std::vector<std::wstring>{L"Check_bank_id \"0É3\""});
}

TEST_F(ClosedLibrariesTest, BringWhatTheyNeedThemselves) {
  const fs::path built = programFolder() / L"libraries";
  const fs::path planted = fs::path(installation.root()) / L"planted";
  installation.makeFolder(L"planted");
  ASSERT_TRUE(CopyFileW((built / L"NVDependent.dll").c_str(), file(L"Acctvfy.dll").c_str(), FALSE));
  fs::copy_file(built / L"NVDependency.dll", planted / L"NVDependency.dll");

  const fs::path before = fs::current_path();
  fs::current_path(planted);
  EXPECT_EQ(errorIn(dllPath()), 48);
  EXPECT_EQ(GetModuleHandleW(L"NVDependency.dll"), nullptr) << "loaded from the current directory";
  fs::current_path(before);

  fs::copy_file(built / L"NVDependency.dll", file(L"NVDependency.dll"));
  EXPECT_EQ(libraries.checkBankId(dllPath(), L"003"), 17) << "it is found beside the library that needs it";
}

TEST_F(ClosedLibrariesTest, AreFoundInTheInstallationAlone) {
  EXPECT_EQ(errorIn(dllPath() + L"nowhere\\"), 48);
  EXPECT_EQ(errorIn(L""), 48);
  const auto before = fs::current_path();
  fs::current_path(dllPath());
  for (const wchar_t* folder : {L"", L".", L".\\", L"\\", L"C:"}) EXPECT_EQ(errorIn(folder), 48) << folder;
  fs::current_path(before);

  installation.makeFolder(L"NORVIK\\Text");
  installation.write(L"NORVIK\\Text\\Acctvfy.dll", L"no library");
  EXPECT_EQ(errorIn(installation.root() + L"NORVIK\\Text"), 48);
  installation.makeFolder(L"NORVIK\\Other");
  installation.copy(L"NORVIK\\Bin\\kvd8rq3x.dll", L"NORVIK\\Other\\Acctvfy.dll");
  EXPECT_EQ(errorIn(installation.root() + L"NORVIK\\Other"), 453);

  EXPECT_EQ(errorIn(dllPath()), 0);
  EXPECT_EQ(errorIn(installation.root() + L"NORVIK\\Bin"), 0) << "without the backslash";
}

TEST_F(ClosedLibrariesTest, DecipherInFoldersThatTheyCannotName) {
  const std::wstring folder = L"NORVIK\\\u03a9 \u4e2d\\";
  installation.makeFolder(folder);
  for (const wchar_t* file : {L"kvd8rq3x.dll", L"FXCountries"}) {
    installation.copy(std::wstring(L"NORVIK\\Bin\\") + file, folder + file);
  }
  const std::wstring path = installation.root() + folder;
  wchar_t shortPath[MAX_PATH] = L"";
  GetShortPathNameW(path.c_str(), shortPath, MAX_PATH);
  if (!exactlyInAnsiCodePage(shortPath)) GTEST_SKIP() << "this disk keeps no short names";
  EXPECT_TRUE(libraries.decipherFile(path, path + L"FXCountries", path + L"FXCountries.dec"));
  EXPECT_TRUE(fs::exists(path + L"FXCountries.dec"));
}

/// An installation that several processes work with at once.
class SharedInstallation : public StandInsTest {
 public:
  using StandInsTest::installation;

 private:
  void TestBody() override {}
};

/// Opens the dialog again and again. Its list holds all countries each time.
void countCountries(const wchar_t* dllPath) {
  const Apartment apartment;
  const auto object = Server::get().create();
  std::wstring path(dllPath);
  std::ranges::replace(path, L'\\', L'/');
  path.pop_back();
  putText(object.Get(), &_ClsRandom::put_DLLPath, path.c_str());  // however hosts write it
  for (int show = 0; show < 12; ++show) {
    long dialog = 0;
    ASSERT_EQ(S_OK, object->Get_hWnd(&dialog));
    const HWND list = findControl(reinterpret_cast<HWND>(static_cast<LONG_PTR>(dialog)), L"ran_payee_country");
    EXPECT_GT(SendMessageW(list, CB_GETCOUNT, 0, 0), 200) << "show " << show;
    object->Unload_From_Remote();
  }
}

TEST(SharedInstallations, GiveEveryProcessItsCountries) {
  constexpr const wchar_t* variable = L"NVRANDOM_SHARED_DLLPATH";
  wchar_t dllPath[MAX_PATH];
  if (GetEnvironmentVariableW(variable, dllPath, MAX_PATH) != 0) return countCountries(dllPath);

  const SharedInstallation shared;
  SetEnvironmentVariableW(variable, shared.installation.dllPath().c_str());
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  HANDLE processes[6];
  for (HANDLE& process : processes) process = startTests(program, nameOfTest());
  SetEnvironmentVariableW(variable, nullptr);
  for (const HANDLE process : processes) EXPECT_EQ(0U, exitCode(process));
  EXPECT_EQ(shared.installation.lines(L"error.log"), std::nullopt);
  EXPECT_FALSE(shared.installation.exists(L"NORVIK\\Bin\\FXCountries.dec"));
}

}  // namespace

}  // namespace nv::windows::test
