// The rows of a multi-column list, all cells in one text: a hundred thousand rows are filled and searched without an
// allocation each.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nv::forms {

class RowTable {
 public:
  explicit RowTable(std::size_t columns) : columns_(columns) {}

  std::size_t columns() const { return columns_; }
  std::size_t size() const { return ends_.size() / columns_; }
  bool empty() const { return ends_.empty(); }

  /// Makes room for so many rows with so many characters altogether.
  void reserve(std::size_t rows, std::size_t characters) {
    ends_.reserve(rows * columns_);
    text_.reserve(characters);
  }

  /// Appends a row. Missing cells are empty, cells beyond the columns are left out.
  void add(std::span<const std::wstring_view> cells) {
    for (std::size_t column = 0; column < columns_; ++column) {
      if (column < cells.size()) text_.append(cells[column]);
      ends_.push_back(static_cast<std::uint32_t>(text_.size()));
    }
  }
  void add(std::initializer_list<std::wstring_view> cells) { add(std::span(cells.begin(), cells.size())); }

  /// The text of a cell, until the table changes. `row` and `column` must be within the table.
  std::wstring_view cell(std::size_t row, std::size_t column) const {
    const std::size_t at = row * columns_ + column;
    const std::uint32_t begin = at == 0 ? 0 : ends_[at - 1];
    return std::wstring_view(text_).substr(begin, ends_[at] - begin);
  }

 private:
  std::size_t columns_;
  std::wstring text_;
  std::vector<std::uint32_t> ends_;  // of each cell in the text, row by row
};

}  // namespace nv::forms
