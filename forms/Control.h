// What all controls have in common: name, place, flags, look, focus and keys. A control holds its own state and tells
// the attached window, if there is one, what changed.
#pragma once

#include <string>
#include <string_view>

#include "forms/Accessible.h"
#include "forms/Appearance.h"
#include "forms/Event.h"
#include "forms/Geometry.h"
#include "forms/Keys.h"
#include "forms/Widgetset.h"

namespace nv::forms {

class Form;
class Frame;

/// The kinds of controls, for the widgetset and for restyling.
enum class Kind {
  label,
  textBox,
  frame,
  checkBox,
  optionButton,
  comboBox,
  dropDownList,
  commandButton,
  styledButton,
  hyperlink,
  image,
  picture,
};

/// Where a control is put: on a form itself or in a frame of it.
struct Parent {
  Parent(Form& itself) : form(itself) {}  // NOLINT(google-explicit-constructor): a form is a parent
  Parent(Frame& itself);                  // NOLINT(google-explicit-constructor): and so is a frame
  Form& form;
  Frame* frame = nullptr;
};

/// A control's name; `index` is its place in a control array, or `noIndex`.
struct Name {
  static constexpr int noIndex = -1;
  Name(const wchar_t* name, int arrayIndex = noIndex)  // NOLINT(google-explicit-constructor): names are literals
      : text(name), index(arrayIndex) {}
  std::wstring_view text;  // must outlive the control: a literal
  int index;
};

class Control {
 public:
  Control(Parent parent, Kind kind, Name name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind kind() const { return kind_; }
  std::wstring_view name() const { return name_.text; }
  int index() const { return name_.index; }
  /// "lblAsterisk(2)" for a member of a control array, else the plain name.
  std::wstring fullName() const;

  Form& form() const { return parent_.form; }
  /// The frame that the control stands in, or nullptr when it stands on the form itself.
  Frame* frame() const { return parent_.frame; }

  const Place& place() const { return place_; }
  void setPlace(const Place& place);
  void move(Twips left, Twips top) { setPlace({left, top, place_.width, place_.height}); }
  /// Distance from the top of the form, whatever frames lie between.
  Twips topInForm() const;

  /// The control's own flags, whatever its frame's are.
  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void setVisible(bool visible);
  void setEnabled(bool enabled);

  /// Visible and enabled by its own flags: what handlers ask before they move the focus.
  bool available() const { return visible_ && enabled_; }
  /// Available, and so is every frame around it.
  bool reachable() const;
  /// Whether the control is disabled, by itself or by a frame around it. What is hidden is not asked: it has no look.
  bool blocked() const;
  /// Reachable, and the form is not busy. Whatever a widgetset reports of the user, by whichever route, is asked this.
  bool takesInput() const;

  /// Whether there is a text to be entered in it.
  bool isField() const;
  /// Whether it is a button, of either kind: a forms::Button.
  bool isButton() const { return kind_ == Kind::commandButton || kind_ == Kind::styledButton; }
  /// Whether it is a field of a form for reading: nothing but its text is seen, in as many lines as that takes.
  bool isReadingText() const;
  /// How it is drawn: by its own colours, its kind, and whether it can be used. The only place that decides about it.
  Look look() const;
  /// The control's own colours, whatever it looks like.
  const Colours& colours() const { return colours_; }
  void setColours(const Colours& colours);
  const Font& font() const { return font_; }
  void setFont(Font font);

  /// Free text of the form's author, for example to exempt the control from restyling.
  const std::wstring& tag() const { return tag_; }
  void setTag(std::wstring tag) { tag_ = std::move(tag); }

  /// What the form says of the control for those who do not see it (forms/Accessible.h).
  const Description& description() const { return description_; }
  void describe(const Description& description) { description_ = description; }

  /// The text that a user sees on the control.
  virtual const std::wstring& caption() const { return noCaption(); }
  /// Whether "&" in the caption marks a mnemonic.
  virtual bool usesMnemonic() const { return true; }

  /// Whether the control can have the keyboard focus at all.
  virtual bool takesFocus() const { return false; }
  /// Whether Tab stops here (asked of reachable controls that take the focus).
  virtual bool tabStop() const { return true; }
  /// Whether there is something to do with it while it is not blocked.
  virtual bool usable() const { return true; }
  bool hasFocus() const;
  /// Asks for the focus. Does nothing when the control does not take it, is not reachable, or its form is not shown.
  void setFocus();

  Event<> gotFocus;
  Event<> lostFocus;
  Event<KeyDown&> keyDown;
  Event<wchar_t&> keyPress;  // a handler changes the character, or discards it by setting 0
  Event<const MouseDown&> mouseDown;
  Event<> click;

  /// For the form: what the control does of itself with a key that no navigation rule took; true when it used the key.
  virtual bool useKey(const KeyDown&) { return false; }
  /// For the form: called when Tab or a mnemonic moves the focus here, or when the form first sets it.
  virtual void onKeyboardFocus() {}
  /// For the form: what the control's mnemonic does once the control has the focus.
  virtual void useMnemonic() {}

  /// For the form: the look is another one, though no attribute of the control is.
  void lookChanged() { changed(Attribute::enabled); }

  /// For the widgetset: connects or (nullptr) disconnects the control's window.
  void attach(ControlPeer* peer) { peer_ = peer; }
  ControlPeer* peer() const { return peer_; }

 protected:
  void changed(Attribute attribute) {
    if (peer_ != nullptr) peer_->update(attribute);
  }

 private:
  static const std::wstring& noCaption();
  bool standsIn(const Control& frame) const;

  Parent parent_;
  Kind kind_;
  Name name_;
  Place place_;
  bool visible_ = true;
  bool enabled_ = true;
  Colours colours_ = colours::buttonFace;
  Font font_;
  std::wstring tag_;
  Description description_;
  ControlPeer* peer_ = nullptr;
};

/// A control whose caption is its own text.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Parent parent, Kind kind, Name name, std::wstring caption)
      : Control(parent, kind, name), caption_(std::move(caption)) {}

  const std::wstring& caption() const override { return caption_; }
  void setCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    changed(Attribute::text);
  }

 private:
  std::wstring caption_;
};

}  // namespace nv::forms
