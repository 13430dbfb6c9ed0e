// What scenarios are played on: a host, its user and the machine around them. The language says what is done and what
// must be seen; a stage does it and looks. The real one is nvhost, with COM, windows, input and the DLL; the tests have
// one without windows. A difference between them is a fault of one of them.
//
// Every function returns when all is at rest that it set in motion. What cannot be done is a Failure, a call that the
// component fails a CallError.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/Keys.h"
#include "scenario/Value.h"

namespace nv::scenario {

/// How the host shows the dialog.
enum class Showing { modal, import, remote, remoteEmbeddedAfterwards };

/// A message box as the user sees it.
struct Message {
  std::wstring text;
  std::wstring caption;
  std::wstring icon;     // critical, exclamation, information, question or none
  std::wstring buttons;  // the answers that the buttons give, joined: "ok", "yesno"
};

/// One of the dialogs that are or were up. No two of a scenario have the same.
using Dialog = std::intptr_t;
inline constexpr Dialog noDialog = 0;

enum class MouseButton { left, right };

class Stage {
 public:
  /// The stages that a command can be played on.
  enum Kind : unsigned { real = 1, native = 2, both = real | native };

  virtual ~Stage() = default;

  virtual Kind kind() const = 0;
  /// The root of the installation, with a trailing backslash.
  virtual std::wstring root() const = 0;
  /// Makes what every scenario begins with, but for the first instance.
  virtual void begin() = 0;
  /// Lets everything go. Fails when a dialog stays.
  virtual void finish() = 0;
  /// Where a picture of the present state stands, for whoever reads of a failure.
  virtual std::wstring picture() { return {}; }

  // The host. The instance in use is the one that was created or chosen last.

  virtual void create(const std::wstring& instance) = 0;
  virtual void use(const std::wstring& instance) = 0;
  virtual void release(const std::wstring& instance) = 0;
  virtual void put(const std::wstring& property, const Value& value) = 0;
  virtual Value get(const std::wstring& property) = 0;
  /// The properties that a host can read, in the order of the interface.
  virtual const std::vector<std::wstring>& readable() = 0;
  /// The events of the instance in use since all events were forgotten, as "Cancel" or "CurrentFieldTop(1200)".
  virtual std::vector<std::wstring> events() = 0;
  virtual void forgetEvents() = 0;
  virtual void unload() = 0;

  /// Begins a show, and returns when its dialog is up, a message box asks for an answer, or the call has returned.
  virtual void beginShow(Showing kind) = 0;
  /// The dialog of the show begun last, once it is up; waits for it, or for a message box. None when the call returned
  /// without one.
  virtual Dialog awaitShown() = 0;
  /// Ends the show begun last: a modal one must have returned by now. An embedded dialog may stay.
  virtual void endShow() = 0;
  /// What the last show method to return has returned.
  virtual std::int32_t result() const = 0;

  // The user.

  /// Waits for a dialog of that name.
  virtual Dialog awaitDialog(const std::wstring& name) = 0;
  virtual bool isUp(Dialog dialog) = 0;
  /// The dialog that takes input, the foremost of them; none when there is none.
  virtual Dialog front() = 0;
  /// The controls of the dialog that a click reaches, by name.
  virtual std::vector<std::wstring> reachable(Dialog dialog) = 0;
  /// The control of the dialog that has the keyboard; empty when none has.
  virtual std::wstring focus(Dialog dialog) = 0;
  /// A click on a control, into a field behind the end of its text.
  virtual void click(Dialog dialog, const std::wstring& control, MouseButton button) = 0;
  virtual void choose(Dialog dialog, const std::wstring& list, const std::wstring& cell) = 0;
  /// Keystrokes into whatever has the keyboard.
  virtual void press(const Chord& chord) = 0;
  virtual void type(const std::wstring& text) = 0;
  /// The close box of the dialog, or of the host's window around it.
  virtual void close(Dialog dialog) = 0;
  virtual void closeHost() = 0;
  virtual void endSession(Dialog dialog) = 0;
  /// An aspect of a control, of the dialog ("form") or of the host's window around or behind it ("host"): a text as it
  /// is, a truth as true or false, a number in decimal.
  virtual std::wstring look(Dialog dialog, const std::wstring& window, const std::wstring& aspect) = 0;

  /// The message box that asks for an answer now.
  virtual std::optional<Message> messageBox() = 0;
  /// The same, waited for.
  virtual Message awaitMessageBox() = 0;
  /// Gives the message box that answer.
  virtual void answer(const std::wstring& button) = 0;

  /// Saves a picture of the dialog's top-level window.
  virtual void shot(Dialog dialog, const std::wstring& file) = 0;
  /// Fails unless the connected dialog's window is as large as the component says.
  virtual void compareSize() = 0;

  // What is around. Files are named by their path from the root of the installation.

  /// Nothing when the file cannot be read.
  virtual std::optional<std::vector<std::wstring>> lines(const std::wstring& file) = 0;
  virtual bool exists(const std::wstring& fileOrFolder) = 0;
  /// Makes or replaces the file, and folders on the way to it.
  virtual void write(const std::wstring& file, const std::wstring& text) = 0;
  virtual void append(const std::wstring& file, const std::wstring& text) = 0;
  virtual void copy(const std::wstring& from, const std::wstring& to) = 0;
  virtual void makeFolder(const std::wstring& folder) = 0;
  virtual void remove(const std::wstring& fileOrFolder) = 0;
  /// Keeps the file, made if missing, open so that nobody else can open it.
  virtual void lock(const std::wstring& file) = 0;
  virtual void unlock(const std::wstring& file) = 0;
  virtual void makeReadOnly(const std::wstring& fileOrFolder) = 0;
  /// Waits until `condition` holds, which looks at files that other programs write. False when it does not come true.
  virtual bool waitUntil(const std::function<bool()>& condition) = 0;

  virtual std::wstring clipboard() = 0;
  virtual void setClipboard(const std::wstring& text) = 0;

  /// Makes the country file of this text, or anew as it was at the beginning.
  virtual void setCountries(const std::wstring& text) = 0;
  virtual void setSampleCountries() = 0;
  /// Takes the account verifier out of the machine's registry, or puts it back.
  virtual void setVerifierRegistered(bool registered) = 0;
};

}  // namespace nv::scenario
