// The windows of the kinds of controls, one file each.
#pragma once

#include <memory>

#include "windows/forms/ControlWindow.h"

namespace nv::forms {
class Button;
class CheckBox;
class ComboBox;
class DropDownList;
class Frame;
class Hyperlink;
class Image;
class Label;
class OptionButton;
class TextBox;
}  // namespace nv::forms

namespace nv::windows {

/// The window of a control by its kind; not yet created.
std::unique_ptr<ControlWindow> makeControlWindow(FormWindow& owner, forms::Control& control);

std::unique_ptr<ControlWindow> makeLabelWindow(FormWindow& owner, forms::Label& label);
std::unique_ptr<ControlWindow> makeTextBoxWindow(FormWindow& owner, forms::TextBox& textBox);
std::unique_ptr<ControlWindow> makeFrameWindow(FormWindow& owner, forms::Frame& frame);
std::unique_ptr<ControlWindow> makeCheckBoxWindow(FormWindow& owner, forms::CheckBox& checkBox);
std::unique_ptr<ControlWindow> makeOptionButtonWindow(FormWindow& owner, forms::OptionButton& optionButton);
std::unique_ptr<ControlWindow> makeComboBoxWindow(FormWindow& owner, forms::ComboBox& comboBox);
std::unique_ptr<ControlWindow> makeDropDownListWindow(FormWindow& owner, forms::DropDownList& list);
/// Command buttons and styled buttons.
std::unique_ptr<ControlWindow> makeButtonWindow(FormWindow& owner, forms::Button& button);
std::unique_ptr<ControlWindow> makeHyperlinkWindow(FormWindow& owner, forms::Hyperlink& hyperlink);
/// Images and pictures.
std::unique_ptr<ControlWindow> makeImageWindow(FormWindow& owner, forms::Image& image);

}  // namespace nv::windows
