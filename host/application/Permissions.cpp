#include "host/application/Permissions.h"

#include <windows.h>
// after <windows.h>
#include <aclapi.h>

#include <memory>

#include "host/base/Text.h"

namespace nv::host {

namespace fs = std::filesystem;

namespace {

struct LocalDeleter {
  void operator()(void* memory) const { LocalFree(memory); }
};
template <class Kind>
using Local = std::unique_ptr<Kind, LocalDeleter>;

/// Puts one entry for everybody in front of the access list `list` (null: an empty one) and makes the result the list
/// of `path`.
DWORD setAccess(const fs::path& path, ACL* list, ACCESS_MODE mode, DWORD rights) {
  DWORD sid[SECURITY_MAX_SID_SIZE / sizeof(DWORD)];
  DWORD size = sizeof(sid);
  if (!CreateWellKnownSid(WinWorldSid, nullptr, sid, &size)) return GetLastError();
  EXPLICIT_ACCESSW entry{};
  entry.grfAccessPermissions = rights;
  entry.grfAccessMode = mode;
  entry.Trustee.TrusteeForm = TRUSTEE_IS_SID;
  entry.Trustee.ptstrName = reinterpret_cast<LPWSTR>(sid);
  ACL* changed = nullptr;
  const DWORD made = SetEntriesInAclW(1, &entry, list, &changed);
  if (made != ERROR_SUCCESS) return made;
  const Local<ACL> owned(changed);
  std::wstring name = path.wstring();
  return SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, changed,
                               nullptr);
}

}  // namespace

void denyWriting(const fs::path& path) {
  constexpr DWORD writing = FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_WRITE_EA | FILE_WRITE_ATTRIBUTES;
  std::wstring name = path.wstring();
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  DWORD result = GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                                       nullptr, &descriptor);
  const Local<void> owned(descriptor);
  if (result == ERROR_SUCCESS) result = setAccess(path, list, DENY_ACCESS, writing);
  if (result != ERROR_SUCCESS) {
    throw Failure(L"the access rights of " + name + L" cannot be changed (" + std::to_wstring(result) + L")");
  }
}

void allowEverything(const fs::path& path) noexcept {
  try {
    setAccess(path, nullptr, GRANT_ACCESS, GENERIC_ALL);
  } catch (...) {  // NOLINT(bugprone-empty-catch): as promised
  }
}

void removeFolder(const fs::path& folder) noexcept {
  constexpr int attempts = 60;
  constexpr DWORD pause = 50;  // ms; nobody tells when a file is let go of
  std::error_code none;
  for (int attempt = 0; attempt < attempts && fs::exists(folder, none); ++attempt) {
    if (attempt > 0) Sleep(pause);
    allowEverything(folder);
    for (auto entry = fs::recursive_directory_iterator(folder, none); entry != fs::recursive_directory_iterator();
         entry.increment(none)) {
      allowEverything(entry->path());
    }
    fs::remove_all(folder, none);
  }
}

}  // namespace nv::host
