// Registration: what it writes makes the class usable, and taking it back leaves the registry as it was.
#include <set>

#include "tests/windows/Server.h"
#include "windows/com/Interfaces.h"

namespace nv::windows::test {

namespace {

/// Every key and value below a key, one text each.
void collect(HKEY parent, const std::wstring& path, std::set<std::wstring>& found) {
  RegistryKey key;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, key.out()) != ERROR_SUCCESS) return;
  found.insert(path);
  wchar_t name[16384];
  BYTE data[16384];
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = static_cast<DWORD>(std::size(name));
    DWORD size = sizeof(data);
    const LSTATUS result = RegEnumValueW(key.get(), i, name, &nameLength, nullptr, nullptr, data, &size);
    if (result == ERROR_NO_MORE_ITEMS) break;
    std::wstring value = path + L"\\\\" + name + L"=";
    for (DWORD byte = 0; result == ERROR_SUCCESS && byte < size; ++byte)
      value += static_cast<wchar_t>(0x100 + data[byte]);
    found.insert(value);
  }
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = static_cast<DWORD>(std::size(name));
    if (RegEnumKeyExW(key.get(), i, name, &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    collect(parent, path + L"\\" + name, found);
  }
}

std::set<std::wstring> classesOf(HKEY root) {
  std::set<std::wstring> found;
  collect(root, L"Software\\Classes", found);
  found.erase(L"Software\\Classes");  // the system's own: a new user gets it with the first class
  return found;
}

std::wstring valueAt(HKEY root, const std::wstring& key, const wchar_t* name = nullptr) {
  wchar_t text[MAX_PATH] = L"";
  DWORD size = sizeof(text);
  RegGetValueW(root, (L"Software\\Classes\\" + key).c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
  return text;
}

const std::wstring classKey = L"CLSID\\{349A4C26-2CF1-4BB4-9ACA-C5FAF76E2124}";

void expectRegistered(HKEY root) {
  EXPECT_EQ(serverPath(), valueAt(root, classKey + L"\\InprocServer32"));
  EXPECT_EQ(L"Apartment", valueAt(root, classKey + L"\\InprocServer32", L"ThreadingModel"));
  EXPECT_EQ(L"{349A4C26-2CF1-4BB4-9ACA-C5FAF76E2124}", valueAt(root, L"NVRandom.ClsRandom\\CLSID"));
  EXPECT_EQ(L"Norvik Customer Specific Biller Info",
            valueAt(root, std::wstring(L"TypeLib\\{3C903EB5-3240-4BA5-8DF5-BDF695ACCB2D}\\") + libraryVersion));
  for (const HostInterface& known : hostInterfaces) {
    wchar_t iid[40];
    StringFromGUID2(*known.iid, iid, 40);
    EXPECT_EQ(known.name, valueAt(root, std::wstring(L"Interface\\") + iid));
  }
}

/// A registry of the test's own in place of the machine's and the user's: what is registered here for real stays so.
class Registration : public testing::Test {
 protected:
  Registration() {
    RegDeleteTreeW(HKEY_CURRENT_USER, place);
    for (const auto& [root, key] : {std::pair(HKEY_LOCAL_MACHINE, &machine_), {HKEY_CURRENT_USER, &user_}}) {
      const std::wstring path = std::wstring(place) + (root == HKEY_CURRENT_USER ? L"\\User" : L"\\Machine");
      EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                               key->out(), nullptr));
    }
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_.get());
    RegOverridePredefKey(HKEY_CURRENT_USER, user_.get());
    for (const wchar_t* group : {L"CLSID", L"Interface", L"TypeLib"}) create(HKEY_LOCAL_MACHINE, group);
  }
  ~Registration() override {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    machine_.reset();
    user_.reset();
    RegDeleteTreeW(HKEY_CURRENT_USER, place);
  }

  static void create(HKEY root, const std::wstring& key) {
    RegistryKey created;
    EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, nullptr, 0, KEY_WRITE,
                                             nullptr, created.out(), nullptr));
  }

 private:
  static constexpr const wchar_t* place = L"Software\\NVRandom.Test";
  RegistryKey machine_;
  RegistryKey user_;
};

TEST_F(Registration, PerMachineAndBackLeavesNothingBehind) {
  const auto before = classesOf(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(S_OK, Server::get().registerServer());
  ASSERT_EQ(S_OK, Server::get().registerServer()) << "twice is once";
  expectRegistered(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(S_OK, Server::get().unregisterServer());
  EXPECT_EQ(before, classesOf(HKEY_LOCAL_MACHINE));
  EXPECT_EQ(S_OK, Server::get().unregisterServer()) << "nothing to take back is no failure";
}

TEST_F(Registration, PerUserAndBackLeavesNothingBehind) {
  const auto machine = classesOf(HKEY_LOCAL_MACHINE);
  const auto before = classesOf(HKEY_CURRENT_USER);
  ASSERT_EQ(S_OK, Server::get().install(true, L"user"));
  expectRegistered(HKEY_CURRENT_USER);
  EXPECT_EQ(machine, classesOf(HKEY_LOCAL_MACHINE));
  ASSERT_EQ(S_OK, Server::get().install(false, L"user"));
  EXPECT_EQ(before, classesOf(HKEY_CURRENT_USER));
}

TEST_F(Registration, KeepsWhatTheOtherWordSizeNeeds) {
  const std::wstring library = L"TypeLib\\{3C903EB5-3240-4BA5-8DF5-BDF695ACCB2D}";
  const std::wstring other = library + L"\\" + libraryVersion + L"\\0\\" + (sizeof(void*) == 8 ? L"win32" : L"win64");
  ASSERT_EQ(S_OK, Server::get().registerServer());
  create(HKEY_LOCAL_MACHINE, other);
  ASSERT_EQ(S_OK, Server::get().unregisterServer());
  EXPECT_TRUE(classesOf(HKEY_LOCAL_MACHINE).contains(L"Software\\Classes\\" + other));
  EXPECT_EQ(L"{349A4C26-2CF1-4BB4-9ACA-C5FAF76E2124}", valueAt(HKEY_LOCAL_MACHINE, L"NVRandom.ClsRandom\\CLSID"));
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + library).c_str());
  ASSERT_EQ(S_OK, Server::get().unregisterServer());
  EXPECT_EQ(L"", valueAt(HKEY_LOCAL_MACHINE, L"NVRandom.ClsRandom\\CLSID")) << "the last one takes it away";
}

TEST_F(Registration, LeavesAUserWhatIsNotEmpty) {
  create(HKEY_CURRENT_USER, L"Interface\\{0}");
  const auto before = classesOf(HKEY_CURRENT_USER);
  EXPECT_EQ(S_OK, Server::get().install(true, L"user"));
  EXPECT_EQ(S_OK, Server::get().install(false, L"user"));
  EXPECT_EQ(before, classesOf(HKEY_CURRENT_USER));
}

}  // namespace

}  // namespace nv::windows::test
