// Controls that show a picture.
#pragma once

#include <string_view>

#include "forms/Control.h"

namespace nv::forms {

/// A small picture that can be clicked, such as a help icon.
class Image : public Control {
 public:
  /// @param picture name of the picture in the component's resources; must outlive the control: a literal.
  /// @param caption what the picture stands for, for people who cannot see it.
  Image(Parent parent, Name name, std::wstring_view picture, std::wstring caption)
      : Image(parent, Kind::image, name, picture, std::move(caption)) {}

  std::wstring_view picture() const { return picture_; }
  const std::wstring& caption() const override { return caption_; }

  /// For the widgetset: the user clicked.
  void clicked() {
    if (takesInput()) click.raise();
  }

 protected:
  Image(Parent parent, Kind kind, Name name, std::wstring_view picture, std::wstring caption)
      : Control(parent, kind, name), picture_(picture), caption_(std::move(caption)) {}

 private:
  std::wstring_view picture_;
  std::wstring caption_;
};

/// A picture to look at, fitted into its place with its proportions kept.
class Picture : public Image {
 public:
  Picture(Parent parent, Name name, std::wstring_view picture, std::wstring caption)
      : Image(parent, Kind::picture, name, picture, std::move(caption)) {}
};

}  // namespace nv::forms
