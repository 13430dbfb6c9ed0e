// What the component asks of the operating system: interfaces only, no implementation and no operating-system type.
// `windows/services` implements them for real; the tests bring their own. Everything above may include this header.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace nv::platform {

/// Message boxes: modal to the component's window that the user works in (or to the host's).
class MessageBoxes {
 public:
  enum class Icon { critical, exclamation, information };
  enum class Buttons { ok, yesNo };
  enum class Answer { ok, yes, no };

  virtual ~MessageBoxes() = default;

  /// Shows the box and waits for the user. A box that cannot be shown, or that vanishes with its owner, answers `ok`
  /// for `Buttons::ok` and `no` for `Buttons::yesNo`.
  virtual Answer show(std::wstring_view text, std::wstring_view caption, Icon icon, Buttons buttons) = 0;
};

/// Files by path. Every failure is a RuntimeError (53, 70, 75 or 76).
class Files {
 public:
  enum class Opening { append, truncate };

  virtual ~Files() = default;

  /// Opens the file (made if missing), writes `text` in the ANSI code page and closes it again. Other processes may
  /// have the file open for writing at the same time; a text is written whole.
  virtual void write(const std::wstring& path, std::wstring_view text, Opening opening) = 0;

  /// The file's length in bytes; fails for a missing file and for a folder.
  virtual std::uint64_t length(const std::wstring& path) = 0;

  /// The whole file, read as text in the ANSI code page.
  virtual std::wstring read(const std::wstring& path) = 0;

  virtual void remove(const std::wstring& path) = 0;

  /// Copies a file over whatever is at the other path.
  virtual void copy(const std::wstring& from, const std::wstring& to) = 0;
};

/// A turn at something that only one may do at a time; it lasts as long as the object.
class Turn {
 public:
  virtual ~Turn() = default;
};

/// Facts about the machine and the user's settings.
class Machine {
 public:
  virtual ~Machine() = default;

  /// The current local date and time in the general date-and-time form of the user's regional settings.
  virtual std::wstring now() = 0;

  /// The Windows and the system directory as the system names them, with or without a trailing backslash.
  virtual std::wstring windowsDirectory() = 0;
  virtual std::wstring systemDirectory() = 0;

  /// Upper and lower case by the user's language, character by character: the length never changes.
  virtual std::wstring upperCase(std::wstring_view text) = 0;
  virtual std::wstring lowerCase(std::wstring_view text) = 0;

  /// Adds a font file to the fonts that programs can use until the system restarts. Returns how many fonts were added.
  virtual int addFont(const std::wstring& path) = 0;

  virtual void emptyClipboard() = 0;

  /// Waits until nobody else on this machine, in whatever thread, process or session, has a turn of that name; five
  /// seconds at most, after which the others are taken for stuck. A thread that has the turn may take it again.
  virtual std::unique_ptr<Turn> takeTurn(const std::wstring& name) = 0;
};

/// Other programs that the component starts for the user.
class Shell {
 public:
  virtual ~Shell() = default;

  /// Opens the address with the program registered for it, maximised. Returns the system's result code: above 32 is
  /// success (ShellExecute's contract).
  virtual int open(const std::wstring& address) = 0;

  /// Shows the help topic with this context number. The viewer itself reports a missing help file.
  /// @param file path of the help file, followed by ">" and the window type.
  /// @param window handle of the window that asks.
  virtual void showHelp(const std::wstring& file, std::uint32_t topic, std::intptr_t window) = 0;
};

class HostInstallation;

/// All services; the implementations outlive every user of this bundle.
struct Services {
  MessageBoxes& messages;
  Files& files;
  Machine& machine;
  Shell& shell;
  HostInstallation& installation;
};

}  // namespace nv::platform
