#include "windows/services/Machine.h"

#include "platform/RuntimeError.h"
#include "windows/Handles.h"
#include "windows/Paths.h"

namespace nv::windows {

namespace {

/// A directory that is too long for the component is none.
std::wstring unlessTooLong(const std::wstring& directory) {
  constexpr std::size_t bufferSize = 145;  // in characters, the terminating null included
  return directory.size() < bufferSize ? directory : std::wstring();
}

/// A mutex that everybody on the machine may wait for and give back, and do nothing else with.
HANDLE openMutex(const std::wstring& name) {
  constexpr const wchar_t* everybodyMayUse = L"D:(A;;0x100001;;;WD)";  // SYNCHRONIZE and MUTEX_MODIFY_STATE
  SECURITY_ATTRIBUTES attributes{sizeof(attributes), nullptr, FALSE};
  ConvertStringSecurityDescriptorToSecurityDescriptorW(everybodyMayUse, SDDL_REVISION_1,
                                                       &attributes.lpSecurityDescriptor, nullptr);
  const HANDLE mutex = CreateMutexExW(&attributes, (L"Global\\" + name).c_str(), 0, SYNCHRONIZE | MUTEX_MODIFY_STATE);
  LocalFree(attributes.lpSecurityDescriptor);
  return mutex;
}

struct MutexTraits {
  using Value = HANDLE;
  static Value invalid() { return nullptr; }
  static void close(Value value) {
    ReleaseMutex(value);  // fails, and does no harm, where the wait was given up
    CloseHandle(value);
  }
};

class MutexTurn final : public platform::Turn {
 public:
  explicit MutexTurn(const std::wstring& name) : mutex_(openMutex(name)) {
    constexpr DWORD patience = 5000;  // in milliseconds
    if (mutex_) WaitForSingleObject(mutex_.get(), patience);
  }

 private:
  Unique<MutexTraits> mutex_;
};

}  // namespace

std::wstring Machine::now() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  DATE date = 0;
  Bstr text;
  if (!SystemTimeToVariantTime(&time, &date) || FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, text.out()))) {
    throw RuntimeError(ErrorNumber::invalidCall);
  }
  return std::wstring(view(text.get()));
}

std::wstring Machine::windowsDirectory() {
  return unlessTooLong(directory(GetWindowsDirectoryW));
}

std::wstring Machine::systemDirectory() {
  return unlessTooLong(directory(GetSystemDirectoryW));
}

std::wstring Machine::upperCase(std::wstring_view text) {
  std::wstring upper(text);
  CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
  return upper;
}

std::wstring Machine::lowerCase(std::wstring_view text) {
  std::wstring lower(text);
  CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

int Machine::addFont(const std::wstring& path) {
  return AddFontResourceW(path.c_str());
}

void Machine::emptyClipboard() {
  // A history of the clipboard or a remote desktop may have it open, for some milliseconds.
  constexpr DWORD pause = 10;  // milliseconds
  for (int further = 5; !OpenClipboard(nullptr); --further) {
    if (further == 0) return;
    Sleep(pause);
  }
  EmptyClipboard();
  CloseClipboard();
}

std::unique_ptr<platform::Turn> Machine::takeTurn(const std::wstring& name) {
  return std::make_unique<MutexTurn>(name);
}

}  // namespace nv::windows
