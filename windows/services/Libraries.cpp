#include "windows/services/Libraries.h"

namespace nv::windows {

namespace {

/// While it lives, the system shows no message box about a file that is not a library.
class QuietLoading {
 public:
  QuietLoading() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
  ~QuietLoading() { SetThreadErrorMode(before_, nullptr); }
  QuietLoading(const QuietLoading&) = delete;
  QuietLoading& operator=(const QuietLoading&) = delete;

 private:
  DWORD before_ = 0;
};

}  // namespace

HMODULE loadLibrary(const std::wstring& path) {
  const QuietLoading quiet;
  constexpr DWORD search = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;
  const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, search);
  if (module != nullptr || GetLastError() != ERROR_INVALID_PARAMETER) return module;
  return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);  // the system knows no other way
}

}  // namespace nv::windows
