#include "windows/services/HostInstallation.h"

#include <algorithm>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "windows/Handles.h"
#include "windows/Paths.h"
#include "windows/services/AccountVerifier.h"
#include "windows/services/Libraries.h"

namespace nv::windows {

namespace {

constexpr const wchar_t* bankLibrary = L"Acctvfy.dll";
constexpr const wchar_t* cipherLibrary = L"kvd8rq3x.dll";

std::wstring applicationFolder() {
  const std::wstring program = modulePath(nullptr);
  return program.substr(0, program.find_last_of(L'\\'));
}

/// A library by full path: of the installation's folder, else of the application's, else of the system's. Never by a
/// search that the current directory takes part in. It is never freed: it may keep state between calls.
HMODULE library(const std::wstring& folder, const wchar_t* name) {
  for (const std::wstring& place : {folder, applicationFolder(), directory(GetSystemDirectoryW)}) {
    if (!isFullPath(place)) continue;
    if (const HMODULE module = loadLibrary(joined(place, name))) return module;
  }
  throw RuntimeError(ErrorNumber::libraryNotLoadable);
}

/// The text for a library that knows the ANSI code page alone. A number is checked as it is or not at all: this fails
/// with "Invalid procedure call or argument" when the code page lacks one of its characters.
std::string inAnsi(const std::wstring& text) {
  const auto bytes = exactlyInAnsiCodePage(text);
  if (!bytes) throw RuntimeError(ErrorNumber::invalidCall);
  return *bytes;
}

/// The path for such a library. A folder with other characters is named as the system has abbreviated it, if it has;
/// else this fails with "Path not found".
std::string inAnsiPath(const std::wstring& path) {
  if (const auto bytes = exactlyInAnsiCodePage(path)) return *bytes;
  const std::size_t name = path.find_last_of(L'\\') + 1;
  wchar_t folder[MAX_PATH];
  const DWORD length = GetShortPathNameW(path.substr(0, name).c_str(), folder, MAX_PATH);
  if (length != 0 && length < MAX_PATH) {
    if (const auto bytes = exactlyInAnsiCodePage(std::wstring(folder, length) + path.substr(name))) return *bytes;
  }
  throw RuntimeError(ErrorNumber::pathNotFound);
}

template <class Function>
Function* entryPoint(HMODULE library, const char* decoratedName) {
  const auto found = reinterpret_cast<void*>(GetProcAddress(library, decoratedName));
  if (found == nullptr) throw RuntimeError(ErrorNumber::entryPointNotFound);
  return reinterpret_cast<Function*>(found);
}

/// A buffer of blanks for a library to write a message into. Libraries have been known to write more than they were
/// given: there is room behind the buffer, and what lies behind the room tells whether even that was too little.
class MessageBuffer {
 public:
  MessageBuffer() : bytes_(size + room + guard, guardByte) {
    std::fill_n(bytes_.begin(), size, ' ');
    bytes_[size] = '\0';
  }

  char* data() { return bytes_.data(); }

  /// What was written, up to its end and without blanks around it. Fails when the library wrote beyond all room.
  std::wstring text() const {
    if (std::any_of(bytes_.end() - guard, bytes_.end(), [](char byte) { return byte != guardByte; })) {
      throw RuntimeError(ErrorNumber::invalidCall);
    }
    const auto end = std::find(bytes_.begin(), bytes_.begin() + size, '\0');
    const std::wstring written = fromAnsiCodePage(std::string_view(bytes_.begin(), end));
    return std::wstring(trimmed(written));
  }

 private:
  static constexpr std::ptrdiff_t size = 256;
  static constexpr std::ptrdiff_t room = 65536;
  static constexpr std::ptrdiff_t guard = 64;
  static constexpr char guardByte = '\x5A';

  std::vector<char> bytes_;
};

}  // namespace

std::unique_ptr<platform::AccountVerifier> HostInstallation::createVerifier() {
  return createAccountVerifier();
}

std::int16_t HostInstallation::checkBankId(const std::wstring& folder, const std::wstring& bankId) {
  using CheckBankId = short __stdcall(char* bankId);
  const auto check = entryPoint<CheckBankId>(library(folder, bankLibrary), "_Check_bank_id@4");
  return check(inAnsi(bankId).data());
}

std::int16_t HostInstallation::checkBankAccount(const std::wstring& folder, const std::wstring& bankId,
                                                const std::wstring& transit, const std::wstring& account,
                                                std::wstring& message) {
  using CheckBankAccount =
      short __stdcall(char* bankId, char* transit, char* account, char* message, short* errorLength, short flag);
  const auto check = entryPoint<CheckBankAccount>(library(folder, bankLibrary), "_Check_bank_account2@24");
  MessageBuffer buffer;
  short errorLength = 0;
  const short result =
      check(inAnsi(bankId).data(), inAnsi(transit).data(), inAnsi(account).data(), buffer.data(), &errorLength, 0);
  message = buffer.text();
  return result;
}

bool HostInstallation::decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) {
  using DecipherFile = int __stdcall(char* from, char* to);
  const auto decipher = entryPoint<DecipherFile>(library(folder, cipherLibrary), "_DES_decrypt_file@8");
  return decipher(inAnsiPath(from).data(), inAnsiPath(to).data()) != 0;
}

}  // namespace nv::windows
