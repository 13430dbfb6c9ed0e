// The grid that all dialogs are laid out in: rows of one pitch, labels in a column, fields beside them on one baseline.
#pragma once

#include <initializer_list>

#include "forms/Control.h"

namespace nv {

/// Measures of the design, in twips.
namespace design {
inline constexpr forms::Twips margin = 180;       // between a window or a frame and what stands in it
inline constexpr forms::Twips gap = 120;          // between things that stand side by side or below each other
inline constexpr forms::Twips frameHead = 270;    // from a frame's top to its first row
inline constexpr forms::Twips fieldHeight = 315;  // of everything with one line of text to type in
inline constexpr forms::Twips textHeight = 210;   // of a line of text to read
inline constexpr forms::Twips rowPitch = 375;     // from row to row
inline constexpr forms::Twips buttonHeight = 375;
inline constexpr forms::Twips buttonWidth = 1200;
inline constexpr forms::Twips iconSize = 240;

/// Width of a field for so many characters.
constexpr forms::Twips characters(int count) {
  return 150 + count * 105;
}
}  // namespace design

class Grid {
 public:
  /// A control of a row, as wide as it is or as the layout says.
  struct Field {
    Field(forms::Control& c)  // NOLINT(google-explicit-constructor): a row names its controls
        : Field(c, c.place().width) {}
    Field(forms::Control& c, forms::Twips w) : control(c), width(w) {}
    forms::Control& control;
    forms::Twips width;
  };

  /// @param labels left edge of the labels. @param fields left edge of the fields. @param top top of the first row.
  Grid(forms::Twips labels, forms::Twips fields, forms::Twips top) : labels_(labels), fields_(fields), top_(top) {}

  /// A row: the label, then the fields side by side. A row of which nothing is visible takes no room; in a form for
  /// reading one with a long text takes more.
  Grid& row(forms::Control& label, std::initializer_list<Field> fields);
  /// A row of fields alone.
  Grid& row(std::initializer_list<Field> fields);
  /// Puts a required-field mark beside the label of the last row, all marks in one column.
  Grid& mark(forms::Control& mark);
  /// Puts a help icon into the last row.
  Grid& help(forms::Control& icon, forms::Twips left);

  /// Top of the next row.
  forms::Twips top() const { return top_; }
  /// Where the rows so far end.
  forms::Twips bottom() const { return top_ - design::rowPitch + design::fieldHeight; }

 private:
  forms::Twips labels_;
  forms::Twips fields_;
  forms::Twips top_;
  forms::Twips last_ = top_;  // top of the last row
};

/// Stands a line of text on the baseline of a field whose top is `fieldTop`.
forms::Place besideField(forms::Twips left, forms::Twips fieldTop, forms::Twips width);

}  // namespace nv
