#include "windows/services/Files.h"

#include <memory>

#include "platform/RuntimeError.h"
#include "windows/Handles.h"
#include "windows/Paths.h"

namespace nv::windows {

namespace {

[[noreturn]] void throwLastError() {
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
      throw RuntimeError(ErrorNumber::fileNotFound);
    case ERROR_PATH_NOT_FOUND:
      throw RuntimeError(ErrorNumber::pathNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      throw RuntimeError(ErrorNumber::permissionDenied);
    default:
      throw RuntimeError(ErrorNumber::pathAccess);
  }
}

}  // namespace

void Files::write(const std::wstring& path, std::wstring_view text, Opening opening) {
  const bool append = opening == Opening::append;
  // Opened for appending alone, the system puts every write at the end in one piece, whoever else is writing.
  const FileHandle file(CreateFileW(path.c_str(), append ? FILE_APPEND_DATA : GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, append ? OPEN_ALWAYS : CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) throwLastError();
  const std::string bytes = inAnsiCodePage(text);
  DWORD written = 0;
  if (!WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) throwLastError();
}

std::uint64_t Files::length(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) throwLastError();
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw RuntimeError(ErrorNumber::fileNotFound);
  return (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
}

std::wstring Files::read(const std::wstring& path) {
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  LARGE_INTEGER size{};
  if (!file || !GetFileSizeEx(file.get(), &size)) throwLastError();
  if (size.HighPart != 0 || size.LowPart > 0x7FFFFFFF) throw RuntimeError(ErrorNumber::outOfMemory);
  const auto bytes = std::make_unique_for_overwrite<char[]>(size.LowPart);
  DWORD length = 0;
  if (!ReadFile(file.get(), bytes.get(), size.LowPart, &length, nullptr)) throwLastError();
  return fromAnsiCodePage({bytes.get(), length});
}

void Files::remove(const std::wstring& path) {
  if (!DeleteFileW(path.c_str())) throwLastError();
}

void Files::copy(const std::wstring& from, const std::wstring& to) {
  if (!CopyFileW(from.c_str(), to.c_str(), FALSE)) throwLastError();
}

}  // namespace nv::windows
