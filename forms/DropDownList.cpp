#include "forms/DropDownList.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace nv::forms {

namespace {

bool beginsWith(std::wstring_view text, std::wstring_view beginning) {
  return text.size() >= beginning.size() &&
         std::equal(beginning.begin(), beginning.end(), text.begin(),
                    [](wchar_t a, wchar_t b) { return asciiUpper(a) == asciiUpper(b); });
}

}  // namespace

DropDownList::DropDownList(Parent parent, Name name, std::initializer_list<Column> columns, std::size_t textColumn)
    : TextField(parent, Kind::dropDownList, name), columns_(columns), rows_(columns_.size()), textColumn_(textColumn) {}

void DropDownList::clear() {
  setRows(RowTable(columns_.size()));
  setText({});
}

void DropDownList::setRows(RowTable rows) {
  if (rows.columns() != columns_.size()) throw RuntimeError(ErrorNumber::invalidCall);
  rows_ = std::move(rows);
  selectedRow_.reset();
  changed(Attribute::rows);
}

void DropDownList::addItem(std::wstring_view cells) {
  std::vector<std::wstring_view> row;
  for (std::size_t start = 0; start <= cells.size();) {
    const std::size_t end = std::min(cells.find(L';', start), cells.size());
    row.push_back(cells.substr(start, end - start));
    start = end + 1;
  }
  rows_.add(row);
  changed(Attribute::rows);
}

std::wstring_view DropDownList::cell(std::size_t row, std::size_t column) const {
  if (row >= rows_.size() || column >= columns_.size()) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
  return rows_.cell(row, column);
}

void DropDownList::selectRow(std::optional<std::size_t> row) {
  if (row && *row >= rows_.size()) throw RuntimeError(ErrorNumber::invalidCall);
  if (row == selectedRow_) return;
  selectedRow_ = row;
  changed(Attribute::row);
}

bool DropDownList::selectWhere(std::size_t column, std::wstring_view value) {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (cell(row, column) != value) continue;
    selectRow(row);
    return true;
  }
  selectRow(std::nullopt);
  return false;
}

std::optional<std::size_t> DropDownList::find(std::wstring_view text) const {
  const std::size_t nameColumn = textColumn_ == 0 ? 1 : 0;
  std::optional<std::size_t> named;
  std::optional<std::size_t> begun;
  const std::size_t rows = text.empty() ? 0 : rows_.size();  // a division, so not asked for each row
  for (std::size_t row = 0; row < rows; ++row) {
    const std::wstring_view code = rows_.cell(row, textColumn_);
    if (code.size() == text.size() && beginsWith(code, text)) return row;
    const std::wstring_view name = rows_.cell(row, nameColumn);
    if (!beginsWith(name, text)) continue;
    if (!named && name.size() == text.size()) named = row;
    if (!begun && code.size() != text.size()) begun = row;
  }
  return named ? named : begun;
}

void DropDownList::picked(std::size_t row) {
  if (!takesInput()) return;
  selectRow(row);
  setText(std::wstring(cell(row, textColumn_)));
  click.raise();
}

}  // namespace nv::forms
