#include "scenario/Value.h"

#include "scenario/Text.h"

namespace nv::scenario {

namespace {

struct Shown {
  std::wstring operator()(const std::wstring& text) const { return inQuotes(text); }
  std::wstring operator()(std::int16_t number) const { return std::to_wstring(number); }
  std::wstring operator()(bool truth) const { return truth ? L"true" : L"false"; }
  template <class Element>
  std::wstring operator()(const std::vector<Element>& elements) const {
    std::wstring result;
    for (const Element& element : elements) result.append(result.empty() ? L"[" : L" ").append((*this)(element));
    return result.empty() ? L"[]" : result + L"]";
  }
};

}  // namespace

std::wstring shown(const Value& value) {
  return std::visit(Shown{}, value);
}

}  // namespace nv::scenario
