#include "host/base/Text.h"

#include <cstdio>

namespace nv::host {

std::wstring wide(std::string_view bytes, UINT codePage) {
  const int size = static_cast<int>(bytes.size());
  std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(codePage, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
  return text;
}

std::string narrow(std::wstring_view text, UINT codePage) {
  const int size = static_cast<int>(text.size());
  std::string bytes(
      static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
      '\0');
  WideCharToMultiByte(codePage, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  return bytes;
}

void printLine(std::wstring_view line) {
  const std::string bytes = narrow(line) + '\n';
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
  std::fflush(stdout);
}

}  // namespace nv::host
