// Somebody who does anything at all in a dialog that its windows offer; a seed decides what. For tests only.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/support/User.h"

namespace nv::test {

/// What decides by chance. The same seed decides the same on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  /// 0 to `count` - 1.
  std::size_t below(std::size_t count) { return engine_() % count; }
  bool oneIn(std::size_t count) { return below(count) == 0; }
  template <class Choices>
  auto& pick(Choices& choices) {
    return choices[below(std::size(choices))];
  }

 private:
  std::mt19937 engine_;
};

class RandomUser {
 public:
  explicit RandomUser(Dice& dice) : dice_(dice) {}

  /// Hears what the user is about to do, in words.
  std::function<void(const std::wstring& act)> told;

  /// Does one thing, in a form that takes input.
  void act(User& user);

 private:
  void say(const std::wstring& what) {
    if (told) told(what);
  }
  /// A name, or nothing, of those controls that can be reached.
  std::wstring reachable(const User& user, bool onlyLists);
  std::wstring someText(const User& user);

  void clickAnything(User& user);
  void clickOK(User& user);
  void typeText(User& user);
  void clearField(User& user);
  void pressKey(User& user);
  void mnemonic(User& user);
  void pasteText(User& user);
  void pickRow(User& user);
  void rightClick(User& user);
  void close(User& user);

  Dice& dice_;
};

}  // namespace nv::test
