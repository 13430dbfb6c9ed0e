// The line between a form and what draws it. A form works with or without windows: whoever draws it implements these
// three interfaces. `windows/forms` is the real widgetset; the tests bring a windowless one. A widgetset reports what
// the user does by calling the functions of Form and of the controls that say so in their comments; it never decides
// anything.
#pragma once

#include <cstdint>
#include <memory>

#include "forms/Geometry.h"

namespace nv::forms {

class Form;

/// What of a control or form has changed; the window reads the new state from the control itself.
enum class Attribute {
  place,
  size,  // of a form, which stays where it is
  visible,
  enabled,     // of the control or of what it stands in: whether and how it can be used
  text,        // text of a field, caption of anything else
  selection,   // selected part of a field's text
  limit,       // maximum length
  mask,        // password character
  appearance,  // colours, font, button style
  value,       // check mark of check boxes and option buttons
  rows,        // entries of a list
  row,         // selected entry of a list
};

/// A part of a text: `start` is the position before its first character.
struct Selection {
  int start = 0;
  int length = 0;
  friend bool operator==(const Selection&, const Selection&) = default;
};

/// The window of one control. Lives as long as the FormPeer that made it.
class ControlPeer {
 public:
  virtual ~ControlPeer() = default;

  virtual void update(Attribute attribute) = 0;

  /// Gives the window the keyboard focus; the form has made its control the active one before.
  virtual void takeFocus() = 0;

  /// What the user has selected; asked of text fields only.
  virtual Selection selection() const = 0;
};

/// The window of one form, with the windows of all its controls.
class FormPeer {
 public:
  virtual ~FormPeer() = default;

  virtual void update(Attribute attribute) = 0;

  /// Makes the window visible. `modal` prepares for `runModal`: owned by the host's active window and centred on it.
  virtual void show(bool modal) = 0;

  /// Runs the nested message loop until `close`; all other windows of the thread refuse input meanwhile.
  virtual void runModal() = 0;

  /// Destroys the windows at once. The peer objects stay until the form lets go of them.
  virtual void close() = 0;

  /// Queues a keystroke: it reaches the control that has the focus once the keys before it are handled.
  virtual void sendKey(wchar_t key) = 0;

  /// Whether the user holds the mouse down. Form::released is called when that is over.
  virtual bool pressed() const = 0;

  /// The window as a host sees it.
  virtual std::intptr_t handle() const = 0;
};

class Widgetset {
 public:
  virtual ~Widgetset() = default;

  /// Makes the (still invisible) windows of a form in its present state and attaches them to its controls.
  virtual std::unique_ptr<FormPeer> createWindows(Form& form) = 0;

  /// Lets the window events that are waiting run.
  virtual void runPendingEvents() = 0;
};

}  // namespace nv::forms
