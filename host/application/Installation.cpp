#include "host/application/Installation.h"

#include "host/application/Permissions.h"
#include "host/application/UiThread.h"
#include "host/base/File.h"
#include "host/base/Text.h"
#include "host/standins/Cipher.h"
#include "host/standins/Record.h"

namespace nv::host {

namespace fs = std::filesystem;

namespace {

struct ChangeCloser {
  void operator()(HANDLE handle) const { FindCloseChangeNotification(handle); }
};

constexpr const wchar_t* binaries = L"NORVIK\\Bin";

[[noreturn]] void fail(const fs::path& path, const wchar_t* what) {
  throw Failure(path.wstring() + L" cannot be " + what + L" (" + std::to_wstring(GetLastError()) + L")");
}

}  // namespace

Installation::Installation(fs::path root, fs::path standIns) : root_(std::move(root)), standIns_(std::move(standIns)) {
  removeFolder(root_);  // of an earlier run, which may have ended in the middle
  makeFolder(binaries);
  makeFolder(L"Resources");
  for (const wchar_t* library : {L"Acctvfy.dll", L"kvd8rq3x.dll"}) {
    const fs::path target = path(binaries) / library;
    if (!CopyFileW((standIns_ / library).c_str(), target.c_str(), FALSE)) fail(target, L"made");
  }
  setSampleCountries();
  SetEnvironmentVariableW(installationVariable, this->root().c_str());
  SetCurrentDirectoryW(root_.c_str());
}

fs::path Installation::path(const std::wstring& file) const {
  return root_ / replaced(file, L"/", L"\\");
}

bool Installation::exists(const std::wstring& file) const {
  return GetFileAttributesW(path(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<std::vector<std::wstring>> Installation::lines(const std::wstring& file) const {
  const auto bytes = readFile(path(file));
  if (!bytes) return std::nullopt;
  return splitLines(wide(*bytes, CP_ACP));
}

void Installation::write(const std::wstring& file, const std::wstring& text) {
  const fs::path target = path(file);
  std::error_code none;
  fs::create_directories(target.parent_path(), none);
  if (!writeFile(target, narrow(text, CP_ACP))) fail(target, L"written");
}

void Installation::append(const std::wstring& file, const std::wstring& text) {
  if (!appendToFile(path(file), narrow(text, CP_ACP))) fail(path(file), L"written");
}

void Installation::copy(const std::wstring& from, const std::wstring& to) {
  if (!CopyFileW(path(from).c_str(), path(to).c_str(), FALSE)) fail(path(to), L"made");
}

void Installation::makeFolder(const std::wstring& folder) {
  std::error_code error;
  fs::create_directories(path(folder), error);
  if (error) fail(path(folder), L"made");
}

void Installation::remove(const std::wstring& fileOrFolder) {
  std::error_code error;
  if (fs::remove_all(path(fileOrFolder), error) == 0 || error) fail(path(fileOrFolder), L"removed");
}

void Installation::lock(const std::wstring& file) {
  auto& lock = locked_[file];
  lock = openFile(path(file), GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS);
  if (!lock) fail(path(file), L"locked");
}

void Installation::unlock(const std::wstring& file) {
  if (locked_.erase(file) == 0) throw Failure(file + L" is not locked");
}

void Installation::makeReadOnly(const std::wstring& fileOrFolder) {
  const fs::path target = path(fileOrFolder);
  denyWriting(target);
  const bool folder = fs::is_directory(target);
  const fs::path probe = folder ? target / L"probe" : target;
  if (openFile(probe, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, folder ? CREATE_ALWAYS : OPEN_EXISTING))
    throw Failure(target.wstring() + L" can still be written: this user may do everything");
}

void Installation::setCountries(const std::string& text) {
  const fs::path target = path(binaries) / L"FXCountries";
  const auto bytes = enciphered(text);
  if (!bytes || !writeFile(target, *bytes)) fail(target, L"enciphered");
}

void Installation::setSampleCountries() {
  const fs::path sample = standIns_ / L"Countries.txt";
  const auto text = readFile(sample);
  if (!text) fail(sample, L"read");
  setCountries(*text);
}

bool Installation::waitUntil(const std::function<bool()>& condition) const {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(std::chrono::milliseconds(UiThread::timeout).count());
  const std::unique_ptr<void, ChangeCloser> change(FindFirstChangeNotificationW(
      root_.c_str(), TRUE, FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE));
  for (;;) {
    if (condition()) return true;
    const ULONGLONG now = GetTickCount64();
    if (now >= end || WaitForSingleObject(change.get(), static_cast<DWORD>(end - now)) != WAIT_OBJECT_0) return false;
    FindNextChangeNotification(change.get());
  }
}

}  // namespace nv::host
