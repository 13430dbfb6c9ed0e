// A multi-column drop-down list: a text field over a list of rows with named columns.
#pragma once

#include <initializer_list>
#include <optional>
#include <vector>

#include "forms/RowTable.h"
#include "forms/TextField.h"

namespace nv::forms {

class DropDownList : public TextField {
 public:
  struct Column {
    std::wstring title;
    Twips width = 0;
  };

  /// @param columns at least two.
  /// @param textColumn the column with the rows' codes: what goes into the text when the user picks a row.
  DropDownList(Parent parent, Name name, std::initializer_list<Column> columns, std::size_t textColumn);

  const std::vector<Column>& columns() const { return columns_; }
  std::size_t textColumn() const { return textColumn_; }

  const RowTable& rows() const { return rows_; }
  void clear();
  /// Replaces all rows at once, by a table of as many columns. Fails with "Invalid procedure call or argument"
  /// otherwise.
  void setRows(RowTable rows);
  /// Adds a row whose cells are separated by ";".
  void addItem(std::wstring_view cells);
  /// Cell of a row, until the rows change. Fails with "Subscript out of range" outside the table.
  std::wstring_view cell(std::size_t row, std::size_t column) const;

  /// The selected row, or none. Independent of the text, but for what the user does: typing selects the row that it
  /// finds, picking a row puts its text column into the text.
  std::optional<std::size_t> selectedRow() const { return selectedRow_; }
  void selectRow(std::optional<std::size_t> row);
  /// Selects the first row with this cell, to the letter; none when there is none. Returns whether there is one.
  bool selectWhere(std::size_t column, std::wstring_view value);

  /// The row that typing `text` finds: the one whose code, its text column, or whose name, its first other column, is
  /// just that; else the first whose name begins so. A text as long as a row's code does not count as the beginning of
  /// that row's name. Letters A to Z count alike in both cases. An empty text finds none.
  std::optional<std::size_t> find(std::wstring_view text) const;

  /// For the widgetset: the user picked a row.
  void picked(std::size_t row);

 private:
  void textChanged(bool byUser) override {
    if (byUser) selectRow(find(text()));
  }

  std::vector<Column> columns_;
  RowTable rows_;
  std::size_t textColumn_;
  std::optional<std::size_t> selectedRow_;
};

}  // namespace nv::forms
