#include "dialogs/support/Grid.h"

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

}  // namespace

Grid& Grid::row(forms::Control& label, std::initializer_list<Field> fields) {
  label.setPlace(besideField(labels_, top_, fields_ - labels_ - besideGap));
  return row(fields);
}

Grid& Grid::row(std::initializer_list<Field> fields) {
  Twips left = fields_;
  bool visible = false;
  for (const Field& field : fields) {
    field.control.setPlace(centred(field.control.kind(), left, top_, field.width));
    left += field.width + besideGap;
    visible = visible || field.control.visible();
  }
  last_ = top_;
  if (visible) top_ += design::rowPitch;
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
