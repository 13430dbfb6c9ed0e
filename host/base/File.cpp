#include "host/base/File.h"

namespace nv::host {

namespace {

bool write(const Handle& file, std::string_view bytes) {
  DWORD written = 0;
  return file && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
}

}  // namespace

Handle openFile(const std::filesystem::path& file, DWORD access, DWORD sharing, DWORD disposition) {
  const HANDLE handle =
      CreateFileW(file.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

std::optional<std::string> readFile(const std::filesystem::path& file) {
  const Handle handle = openFile(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  if (!handle) return std::nullopt;
  std::string bytes(GetFileSize(handle.get(), nullptr), '\0');
  DWORD read = 0;
  if (!ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) return std::nullopt;
  bytes.resize(read);
  return bytes;
}

bool writeFile(const std::filesystem::path& file, std::string_view bytes) {
  return write(openFile(file, GENERIC_WRITE, 0, CREATE_ALWAYS), bytes);
}

bool appendToFile(const std::filesystem::path& file, std::string_view bytes) {
  return write(openFile(file, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS), bytes);
}

}  // namespace nv::host
