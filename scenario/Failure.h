// What ends a line of a scenario.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace nv::scenario {

/// A step that cannot be done, or a value that is not the expected one. The text is for people.
class Failure {
 public:
  explicit Failure(std::wstring text) : text_(std::move(text)) {}
  const std::wstring& text() const { return text_; }

 private:
  std::wstring text_;
};

[[noreturn]] inline void differ(const std::wstring& expected, const std::wstring& seen) {
  throw Failure(L"expected " + expected + L", seen " + seen);
}

/// A call of the host that the component, or whoever stands between, failed.
class CallError {
 public:
  /// @param number what a script sees as Err.Number: the classic number of a run-time error, else an HRESULT.
  CallError(std::int32_t number, std::wstring description) : number_(number), description_(std::move(description)) {}

  std::int32_t number() const { return number_; }
  const std::wstring& description() const { return description_; }

  /// "error 9 "Subscript out of range"", as one would write it in a scenario.
  std::wstring shown() const;

 private:
  std::int32_t number_;
  std::wstring description_;
};

/// The number as one would write it in a scenario: an HRESULT in hexadecimal.
std::wstring shownNumber(std::int32_t number);

}  // namespace nv::scenario
