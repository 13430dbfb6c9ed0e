#include "host/base/File.h"

#include <windows.h>

#include <memory>

namespace nv::host {

namespace {

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

Handle open(const std::filesystem::path& file, DWORD access, DWORD sharing, DWORD disposition) {
  const HANDLE handle =
      CreateFileW(file.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

bool write(const Handle& file, std::string_view bytes) {
  DWORD written = 0;
  return file && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
}

}  // namespace

std::optional<std::string> readFile(const std::filesystem::path& file) {
  const Handle handle = open(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  if (!handle) return std::nullopt;
  std::string bytes(GetFileSize(handle.get(), nullptr), '\0');
  DWORD read = 0;
  if (!ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) return std::nullopt;
  bytes.resize(read);
  return bytes;
}

bool writeFile(const std::filesystem::path& file, std::string_view bytes) {
  return write(open(file, GENERIC_WRITE, 0, CREATE_ALWAYS), bytes);
}

bool appendToFile(const std::filesystem::path& file, std::string_view bytes) {
  return write(open(file, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS), bytes);
}

}  // namespace nv::host
