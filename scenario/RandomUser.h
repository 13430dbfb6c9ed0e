// Somebody who does anything at all in the dialogs that are up; a seed decides what. The same user wanders in
// scenarios, on either stage, and in the native tests where host and outside parties go astray, too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "scenario/Keys.h"

namespace nv::scenario {

class Player;

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

/// What a random user works with: the dialog that takes input. Once it takes none any more, nothing is done.
class Hands {
 public:
  virtual ~Hands() = default;
  /// The controls that can be reached, by name.
  virtual std::vector<std::wstring> reachable() = 0;
  virtual std::wstring textOf(const std::wstring& control) = 0;
  virtual void click(const std::wstring& control) = 0;
  virtual void rightClick(const std::wstring& control) = 0;
  virtual void press(const Chord& chord) = 0;
  virtual void type(const std::wstring& text) = 0;
  virtual void paste(const std::wstring& text) = 0;
  virtual void close() = 0;
  virtual void endSession() = 0;
};

class RandomUser {
 public:
  explicit RandomUser(Dice& dice) : dice_(dice) {}

  /// Hears what the user is about to do, in words.
  std::function<void(const std::wstring& act)> told;

  /// Does one thing.
  void act(Hands& hands);

 private:
  void say(const std::wstring& what) const {
    if (told) told(what);
  }
  /// One of the controls that can be reached and are wanted; none when there is no such.
  std::wstring reachable(Hands& hands, const std::function<bool(const std::wstring& name)>& wanted);
  std::wstring someText();

  void clickAnything(Hands& hands);
  void clickOK(Hands& hands);
  void typeText(Hands& hands);
  void confirm(Hands& hands);
  void pressKey(Hands& hands);
  void mnemonic(Hands& hands);
  void pasteText(Hands& hands);
  void pickRow(Hands& hands);
  void rightClick(Hands& hands);
  void close(Hands& hands);

  Dice& dice_;
};

/// Lets a random user work in the dialogs of the show that is up, and closes what is still up after so many steps.
/// Fails when a rule is broken that every dialog keeps: no run-time error is told, the focus is where it can be, and
/// the record changes only by a dialog that goes, or by the bank of a biller in the United States.
void wander(Player& player, std::int32_t steps, std::uint32_t seed);

}  // namespace nv::scenario
