#include "host/base/Text.h"

#include <algorithm>
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

std::wstring inQuotes(std::wstring_view text) {
  std::wstring result = L"\"";
  for (const wchar_t c : text) {
    switch (c) {
      case L'"':
        result += L"\\\"";
        break;
      case L'\\':
        result += L"\\\\";
        break;
      case L'\r':
        result += L"\\r";
        break;
      case L'\n':
        result += L"\\n";
        break;
      case L'\t':
        result += L"\\t";
        break;
      default:
        result += c;
    }
  }
  return result += L'"';
}

std::wstring replaced(std::wstring text, std::wstring_view from, std::wstring_view to) {
  for (std::size_t at = text.find(from); at != std::wstring::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::vector<std::wstring> splitLines(std::wstring_view text) {
  std::vector<std::wstring> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'\n'), text.size());
    std::wstring_view line = text.substr(0, end);
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    lines.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

void printLine(std::wstring_view line) {
  const std::string bytes = narrow(line) + '\n';
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
  std::fflush(stdout);
}

}  // namespace nv::host
