// An array of strings with its own bounds, as automation hosts pass them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace nv {

class StringArray {
 public:
  struct Bounds {
    std::int32_t lower = 0;
    std::int32_t upper = -1;
    std::size_t size() const { return upper < lower ? 0 : static_cast<std::size_t>(std::int64_t{upper} - lower + 1); }
  };

  /// An array without dimensions: every subscript is out of range.
  StringArray() = default;
  /// All elements empty. Fails with "Out of memory" when there are more than memory can hold.
  explicit StringArray(std::vector<Bounds> dimensions);

  std::size_t dimensions() const { return dimensions_.size(); }
  /// @param dimension from 0. Fails with "Subscript out of range" for a dimension that the array does not have.
  const Bounds& bounds(std::size_t dimension) const;

  /// The element with one subscript per dimension, the first dimension first. Fails with "Subscript out of range"
  /// outside the bounds and for a wrong number of subscripts.
  const std::wstring& at(std::initializer_list<std::int32_t> subscripts) const {
    return elements_[position(subscripts)];
  }
  std::wstring& at(std::initializer_list<std::int32_t> subscripts) { return elements_[position(subscripts)]; }

  /// All elements in the order of a SAFEARRAY: the first dimension runs fastest.
  const std::vector<std::wstring>& elements() const { return elements_; }
  std::vector<std::wstring>& elements() { return elements_; }

 private:
  std::size_t position(std::initializer_list<std::int32_t> subscripts) const;

  std::vector<Bounds> dimensions_;
  std::vector<std::wstring> elements_;
};

}  // namespace nv
