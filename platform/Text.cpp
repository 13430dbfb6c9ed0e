#include "platform/Text.h"

#include <algorithm>

namespace nv {

std::vector<std::wstring_view> split(std::wstring_view text, std::wstring_view separators) {
  std::vector<std::wstring_view> parts;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
    parts.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

}  // namespace nv
