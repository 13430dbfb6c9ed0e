// One line in the notation of scenarios, taken apart: words, texts in double quotes, and the brackets of arrays.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/Value.h"

namespace nv::scenario {

/// A name that a text may hold in braces, as in "{root}NORVIK", and what stands for it.
struct Substitution {
  std::wstring name;
  std::wstring value;
};

/// Read from left to right by the command that the line begins with. Whatever is not as the command needs it is a
/// Failure.
class Tokens {
 public:
  Tokens() = default;
  Tokens(std::wstring_view line, const std::vector<Substitution>& substitutions);

  bool atEnd() const { return next_ == tokens_.size(); }
  bool nextIsWord() const { return nextIs(Kind::word); }
  bool nextIsText() const { return nextIs(Kind::text); }
  /// The next token when it is a word, else an empty text.
  std::wstring_view peekWord() const {
    return nextIsWord() ? std::wstring_view(tokens_[next_].text) : std::wstring_view();
  }
  /// Takes the next token when it is this word.
  bool take(std::wstring_view word);

  std::wstring word();
  std::wstring text();
  std::wstring wordOrText();
  /// A number in decimal, or in hexadecimal behind "0x"; up to 32 bits.
  std::int32_t number();
  std::int16_t shortNumber();
  /// A text, a 16-bit number, true, false, or an array of texts with one or two dimensions.
  Value value();
  void end() const;
  /// Cuts off what stands from the first of these words on, the next one not counted, nor those that a truth follows.
  Tokens cutFrom(std::span<const std::wstring_view> words);

 private:
  enum class Kind { word, text, open, close };
  struct Token {
    Kind kind;
    std::wstring text;
  };

  bool nextIs(Kind kind) const { return !atEnd() && tokens_[next_].kind == kind; }
  const std::wstring& take(Kind kind, const wchar_t* missing);
  TextList list();
  Value array();

  std::vector<Token> tokens_;
  std::size_t next_ = 0;
};

}  // namespace nv::scenario
