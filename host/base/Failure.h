// What ends a scenario.
#pragma once

#include <string>
#include <utility>

namespace nv::host {

/// A step that cannot be done, or a value that is not the expected one. The text is for people.
class Failure {
 public:
  explicit Failure(std::wstring text) : text_(std::move(text)) {}
  const std::wstring& text() const { return text_; }

 private:
  std::wstring text_;
};

}  // namespace nv::host
