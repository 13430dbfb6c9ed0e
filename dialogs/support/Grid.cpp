#include "dialogs/support/Grid.h"

#include <algorithm>

#include "forms/TextField.h"
#include "platform/Text.h"

namespace nv {

using forms::Kind;
using forms::Twips;

namespace {

constexpr Twips markWidth = 105;
constexpr Twips besideGap = 60;  // between the fields of a row

Twips heightOf(Kind kind) {
  switch (kind) {
    case Kind::label:
    case Kind::hyperlink:
      return design::textHeight;
    case Kind::checkBox:
    case Kind::optionButton:
      return 255;
    case Kind::commandButton:
    case Kind::styledButton:
      return design::buttonHeight;
    case Kind::image:
      return design::iconSize;
    default:
      return design::fieldHeight;
  }
}

/// Centres a control of its kind's height on a field whose top is `fieldTop`.
forms::Place centred(Kind kind, Twips left, Twips fieldTop, Twips width) {
  const Twips height = heightOf(kind);
  return {left, fieldTop + (design::fieldHeight - height) / 2, width, height};
}

/// How many lines beyond the first the text of a field takes in a form for reading, as far as that can be told without
/// a font.
Twips furtherLines(const Grid::Field& field) {
  constexpr Twips wide = 105, narrow = 80;  // what a character takes
  if (!field.control.isReadingText()) return 0;
  Twips needed = 0;
  for (const wchar_t c : static_cast<const forms::TextField&>(field.control).text())
    needed += isCapital(c) || isDigit(c) ? wide : narrow;
  return needed / (field.width + 1);
}

}  // namespace

Grid& Grid::row(forms::Control& label, std::initializer_list<Field> fields) {
  label.setPlace(besideField(labels_, top_, fields_ - labels_ - besideGap));
  const Twips next = top_ + (label.visible() ? design::rowPitch : 0);
  row(fields);
  top_ = std::max(top_, next);
  return *this;
}

Grid& Grid::row(std::initializer_list<Field> fields) {
  Twips left = fields_;
  Twips taken = 0;
  for (const Field& field : fields) {
    const Twips further = furtherLines(field) * design::textHeight;
    const Kind kind = field.control.isReadingText() ? Kind::label : field.control.kind();
    forms::Place place = centred(kind, left, top_, field.width);
    place.height += further;
    field.control.setPlace(place);
    left += field.width + besideGap;
    if (field.control.visible()) taken = std::max(taken, design::rowPitch + further);
  }
  last_ = top_;
  top_ += taken;
  return *this;
}

Grid& Grid::mark(forms::Control& mark) {
  mark.setPlace(besideField(labels_ - markWidth, last_, markWidth));
  return *this;
}

Grid& Grid::help(forms::Control& icon, Twips left) {
  icon.setPlace(centred(Kind::image, left, last_, design::iconSize));
  return *this;
}

forms::Place besideField(Twips left, Twips fieldTop, Twips width) {
  return centred(Kind::label, left, fieldTop, width);
}

}  // namespace nv
