// The services of a machine that is all in memory: what the component asks of it can be scripted, made to fail, and
// read back. For tests only.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/Services.h"

namespace nv::test {

/// A message box that the test expects, and what its user does.
struct ExpectedBox {
  std::wstring text{};
  std::wstring caption = L"NVRandom";
  platform::MessageBoxes::Icon icon = platform::MessageBoxes::Icon::information;
  platform::MessageBoxes::Buttons buttons = platform::MessageBoxes::Buttons::ok;
  platform::MessageBoxes::Answer answer = platform::MessageBoxes::Answer::ok;
  std::function<void()> whileOpen{};  // what happens elsewhere meanwhile; what it throws, showing the box fails with
};

/// Message boxes. One that differs from the next expected one, that nobody expects, or that does not come by the end
/// fails the test; or whatever comes is answered by `answerAny`.
class FakeMessageBoxes : public platform::MessageBoxes {
 public:
  std::function<Answer(std::wstring_view text, Buttons buttons)> answerAny;

  ~FakeMessageBoxes() override;
  void expect(ExpectedBox box) { expected_.push_back(std::move(box)); }
  Answer show(std::wstring_view text, std::wstring_view caption, Icon icon, Buttons buttons) override;

 private:
  std::deque<ExpectedBox> expected_;
};

/// Files in memory. Paths are compared as the file system does: whatever the case, a doubled separator counting as one.
/// A path without a folder lies in the current directory.
class FakeFiles : public platform::Files {
 public:
  /// The current directory, without a backslash at its end.
  std::wstring currentFolder;

  void write(const std::wstring& path, std::wstring_view text, Opening opening) override;
  std::uint64_t length(const std::wstring& path) override;
  std::wstring read(const std::wstring& path) override;
  void remove(const std::wstring& path) override;
  void copy(const std::wstring& from, const std::wstring& to) override;

  /// Makes the folder and those above it.
  void makeFolder(std::wstring_view path);
  void put(std::wstring_view path, std::wstring text) { contents_[key(path)] = std::move(text); }
  /// Runs before a file is used; what it throws, the use fails with.
  std::function<void(const std::wstring& path)> whenUsed;
  /// From now on every use of the file fails so: locked, read-only, disk full.
  void fail(std::wstring_view path, ErrorNumber error) { failures_[key(path)] = error; }

  /// What others, or the access rights, keep the component from doing with a file, or with those in a folder. What it
  /// does all the same fails with "Permission denied".
  enum class Barred { nothing, writing, everything };
  void bar(std::wstring_view path, Barred what) { barred_[key(path)] = what; }
  /// Removes a file, or a folder with all in it, whatever bars it. Returns whether there was one.
  bool removeAll(std::wstring_view path);

  bool exists(std::wstring_view path) const { return contents_.contains(key(path)); }
  bool isFolder(std::wstring_view path) const { return folders_.contains(key(path)); }
  /// What the file holds; empty for a missing one.
  std::wstring text(std::wstring_view path) const;
  /// The paths written to so far, to the letter, one entry for each time a file was opened.
  const std::vector<std::wstring>& written() const { return written_; }

 private:
  std::wstring key(std::wstring_view path) const;
  std::wstring used(const std::wstring& path) const;
  /// Fails when a use of the file is to fail.
  void check(const std::wstring& key) const;
  void open(const std::wstring& key, Barred most) const;

  std::map<std::wstring, std::wstring> contents_;
  std::map<std::wstring, ErrorNumber> failures_;
  std::map<std::wstring, Barred> barred_;
  std::set<std::wstring> folders_;
  std::vector<std::wstring> written_;
};

/// A machine whose clock stands still.
class FakeMachine : public platform::Machine {
 public:
  std::wstring clock = L"15/11/2026 1:58:04 PM";
  std::wstring windows = L"C:\\WINDOWS";
  std::wstring system = L"C:\\WINDOWS\\system32";
  /// Runs before anything but letters is asked; what it throws, the question fails with.
  std::function<void()> whenAsked;

  std::wstring now() override { return answer(clock); }
  std::wstring windowsDirectory() override { return answer(windows); }
  std::wstring systemDirectory() override { return answer(system); }
  /// The letters of Latin-1.
  std::wstring upperCase(std::wstring_view text) override;
  std::wstring lowerCase(std::wstring_view text) override;
  int addFont(const std::wstring& path) override {
    if (whenAsked) whenAsked();
    addedFonts.push_back(path);
    return fontsInFile;
  }
  void emptyClipboard() override {
    if (whenAsked) whenAsked();
    clipboard.clear();
  }

  std::unique_ptr<platform::Turn> takeTurn(const std::wstring& /*name*/) override {
    if (whenAsked) whenAsked();
    ++turns;
    return std::make_unique<CountedTurn>(turns);
  }

  int fontsInFile = 1;
  int turns = 0;  // that are taken at present
  std::vector<std::wstring> addedFonts;
  std::wstring clipboard;

 private:
  struct CountedTurn : platform::Turn {
    explicit CountedTurn(int& counted) : turns(counted) {}
    ~CountedTurn() override { --turns; }
    int& turns;
  };

  const std::wstring& answer(const std::wstring& fact) const {
    if (whenAsked) whenAsked();
    return fact;
  }
};

/// A shell that writes down what it is asked to open.
class FakeShell : public platform::Shell {
 public:
  int result = 42;
  std::function<void()> whenAsked;  // what it throws, opening fails with
  std::vector<std::wstring> opened;

  int open(const std::wstring& address) override {
    if (whenAsked) whenAsked();
    opened.push_back(address);
    return result;
  }
  void showHelp(const std::wstring&, std::uint32_t, std::intptr_t) override {
    if (whenAsked) whenAsked();
  }
};

}  // namespace nv::test
