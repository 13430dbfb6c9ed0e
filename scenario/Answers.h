// What passes between a scenario and the stand-ins for the account verifier and the closed libraries: what they are
// told to answer, and what they were asked. Both are lines of a file in the root of the installation, in the notation
// of scenarios:
//
//   Answers.txt   ValidateBankId 0 "Bank 999 is not known." length 22
//   Asked.txt     ValidateBankId "000999" false "" 0 with PlayByPlay false DataPath "C:\\Apps" BusinessPIN ""
//
// Members are named as the verifier's interface and the libraries name them; "create" is the making of a verifier, and
// "put BusinessPIN" the setting of a property.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "scenario/Tokens.h"

namespace nv::scenario {

inline constexpr const wchar_t* answersFile = L"Answers.txt";
inline constexpr const wchar_t* askedFile = L"Asked.txt";

/// What a stand-in does when a member is called.
struct Answer {
  enum class Text { asItCame, given, null };

  std::int16_t result = 1;
  Text handedOut = Text::asItCame;  // what becomes of the text that is handed in and out
  std::wstring text;
  std::optional<std::int16_t> length;  // the number beside the text; nothing: as it came
  std::int32_t failure = 0;            // the HRESULT that the call fails with
  std::wstring description;            // of the failure; empty for a failure without an error object
  bool pumps = false;                  // works off the thread's messages first, until none is left
};

/// Takes a member's name from the line. Fails with Failure when no stand-in has such a member.
std::wstring readMember(Tokens& tokens);

/// Takes a member's name and an answer that the member can give. Fails with Failure.
std::pair<std::wstring, Answer> readAnswer(Tokens& tokens);

/// What the member has been told last, as the lines of Answers.txt have it; nothing when it has been told nothing.
/// @param root of the installation.
std::optional<Answer> answerOf(const std::wstring& member, const std::vector<std::wstring>& answers,
                               const std::wstring& root);

/// The line that a call of the member is noted with. By-reference arguments are noted as they came.
/// @param puts what was put to the object before: names and values.
std::wstring question(std::wstring member, std::initializer_list<Value> arguments, const std::wstring& puts = {});

/// The last of the lines of Asked.txt that is a call of the member; nothing when it has not been called.
std::optional<std::wstring> lastAsked(const std::wstring& member, const std::vector<std::wstring>& asked);

}  // namespace nv::scenario
