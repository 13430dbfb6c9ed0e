// The closed libraries of a host installation: how they are found, called, and kept from doing harm.
#include <algorithm>
#include <filesystem>

#include "host/base/File.h"
#include "host/base/Text.h"
#include "host/standins/Cipher.h"
#include "platform/RuntimeError.h"
#include "tests/windows/StandIns.h"
#include "windows/services/HostInstallation.h"

namespace nv::windows::test {

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::wstring>;

class ClosedLibrariesTest : public StandInsTest {
 protected:
  /// The number of the run-time error that asking about a bank id fails with, or 0.
  std::int32_t errorIn(const std::wstring& folder) {
    try {
      libraries.checkBankId(folder, L"003");
      return 0;
    } catch (const RuntimeError& error) {
      return error.number();
    }
  }

  HostInstallation libraries;
};

TEST_F(ClosedLibrariesTest, BankIdGoesInAsAnsiAndTheResultComesBack) {
  EXPECT_EQ(libraries.checkBankId(dllPath(), L"0É3"), 1);
  for (const int result : {0, 1, 2, -32768}) {
    tell(L"Check_bank_id " + std::to_wstring(result));
    EXPECT_EQ(libraries.checkBankId(dllPath(), L"003"), result);
  }
  EXPECT_EQ(asked().front(), L"Check_bank_id \"0É3\"");
  if (GetACP() == CP_UTF8) return;  // it has every character
  EXPECT_THROW(libraries.checkBankId(dllPath(), L"00\u4e09"), RuntimeError)
      << "a number is asked as it is or not at all";
  EXPECT_EQ(asked(), Lines());
}

TEST_F(ClosedLibrariesTest, BankAccountIsGivenABufferOfBlanks) {
  std::wstring message = L"before";
  EXPECT_EQ(libraries.checkBankAccount(dllPath(), L"003", L"12345", L"7 7", message), 1);
  EXPECT_EQ(message, L"");
  EXPECT_EQ(asked(), Lines{L"Check_bank_account2 \"003\" \"12345\" \"7 7\" 256 0 0"});
}

TEST_F(ClosedLibrariesTest, MessagesEndAtTheirNulAndHarmNobodyWhateverTheirLength) {
  struct Case {
    const wchar_t* answer;
    std::int16_t result;
    std::wstring message;
  };
  const Case cases[] = {
      {L"0 \"  Wrong branch, déjà vu.  \" length 9", 0, L"Wrong branch, déjà vu."},
      {L"2 \"\"", 2, L""},
      {L"-5 \"A\" times 255", -5, std::wstring(255, L'A')},
      {L"0 \"B\" times 256", 0, std::wstring(256, L'B')},
      {L"0 \"C\" times 257", 0, std::wstring(256, L'C')},
      {L"3 \"D\" times 65000", 3, std::wstring(256, L'D')},
  };
  for (const Case& c : cases) {
    tell(std::wstring(L"Check_bank_account2 ") + c.answer);
    std::wstring message = L"before";
    EXPECT_EQ(libraries.checkBankAccount(dllPath(), L"1", L"2", L"3", message), c.result) << c.answer;
    EXPECT_EQ(message, c.message) << c.answer;
  }
  tell(L"Check_bank_account2 1 \"E\" times 65800");
  std::wstring message = L"before";
  try {
    libraries.checkBankAccount(dllPath(), L"1", L"2", L"3", message);
    ADD_FAILURE() << "what was written beyond all room is not noticed";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 5);
  }
  EXPECT_EQ(message, L"before");
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

/// What the country file is deciphered to; nothing when no file comes of it.
class CountryCipherTest : public ClosedLibrariesTest {
 protected:
  std::optional<std::string> decipher() {
    fs::remove(file(L"FXCountries.dec"));
    says = libraries.decipherFile(dllPath(), file(L"FXCountries").wstring(), file(L"FXCountries.dec").wstring());
    return host::readFile(file(L"FXCountries.dec"));
  }
  std::string country() const { return host::readFile(file(L"FXCountries")).value_or(""); }

  bool says = false;  // that it has deciphered the last one
};

TEST_F(CountryCipherTest, GivesBackEveryText) {
  const auto sample = decipher();
  ASSERT_TRUE(sample);
  EXPECT_TRUE(sample->starts_with("Countries\r\nAfghanistan,AF,93\r\n"));
  EXPECT_NE(sample->find("\r\n\"Bolivia, Plurinational State of\",BO,591\r\n"), std::string::npos);
  EXPECT_NE(sample->find("\r\nC\xF4te d'Ivoire,CI,225\r\n"), std::string::npos) << "the ANSI code page";
  EXPECT_GT(std::ranges::count(*sample, '\n'), 249);
  EXPECT_EQ(country().find("Afghanistan"), std::string::npos);

  for (const std::string& text : {std::string(), std::string("1234567"), std::string("12345678"),
                                  std::string("a\0b\xFF", 4), std::string(3'000'000, 'x')}) {
    installation.setCountries(text);
    EXPECT_EQ(decipher(), text);
    EXPECT_TRUE(says);
  }
}

TEST_F(CountryCipherTest, WorksInFoldersThatTheLibraryCannotName) {
  const std::wstring folder = L"NORVIK\\\u03a9 \u4e2d\\";
  installation.makeFolder(folder);
  for (const wchar_t* file : {L"kvd8rq3x.dll", L"FXCountries"}) {
    installation.copy(std::wstring(L"NORVIK\\Bin\\") + file, folder + file);
  }
  const std::wstring path = installation.root() + folder;
  EXPECT_TRUE(libraries.decipherFile(path, path + L"FXCountries", path + L"FXCountries.dec"));
  EXPECT_TRUE(fs::exists(path + L"FXCountries.dec"));
}

TEST_F(CountryCipherTest, IsDes) {
  // openssl enc -des-cbc -K 4E5652616E646F6D -iv 0000000000000000
  EXPECT_EQ(host::enciphered("Countries\r\n"), "\x8F\x61\x5E\x38\x5E\xB9\x9F\xD1\x5A\xD1\xA0\x17\xEC\xBA\xA8\x4D");
}

TEST_F(CountryCipherTest, MakesNoFileOfWhatItCannotDecipher) {
  const auto target = file(L"FXCountries");
  const std::string whole = country();
  const std::pair<const char*, std::string> cases[] = {
      {"empty", ""},
      {"not enciphered", "Countries\r\nFrance,FR,33\r\n"},
      {"cut inside a block", whole.substr(0, 1001)},
      {"cut between two blocks", whole.substr(0, 1000)},
  };
  for (const auto& [name, bytes] : cases) {
    ASSERT_TRUE(host::writeFile(target, bytes));
    EXPECT_FALSE(decipher()) << name;
    EXPECT_FALSE(says) << name;
  }
  ASSERT_TRUE(host::writeFile(target, whole));
  EXPECT_TRUE(decipher());
  for (const int result : {0, 1, -1}) {
    tell(L"DES_decrypt_file " + std::to_wstring(result));
    EXPECT_FALSE(decipher());
    EXPECT_EQ(says, result != 0);
  }
  fs::remove(target);
  EXPECT_FALSE(decipher());
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
