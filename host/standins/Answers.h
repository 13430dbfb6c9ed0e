// What passes between a scenario and the stand-ins for the account verifier and the closed libraries: what they are
// told to answer, and what they were asked. Both are lines in files of the installation in use, in the notation of
// scenarios:
//
//   Answers.txt   ValidateBankId 0 "Bank 999 is not known." length 22
//   Asked.txt     ValidateBankId "000999" false "" 0 with PlayByPlay false DataPath "C:\\Apps" BusinessPIN ""
//
// Members are named as the verifier's interface and the libraries name them; "create" is the making of a verifier, and
// "put BusinessPIN" the setting of a property. For the stand-ins and nvhost alone.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "host/base/Tokens.h"

namespace nv::host {

inline constexpr const wchar_t* answersFile = L"Answers.txt";
inline constexpr const wchar_t* askedFile = L"Asked.txt";

/// What a stand-in does when a member is called.
struct Answer {
  enum class Text { asItCame, given, null };

  std::int16_t result = 1;
  Text handedOut = Text::asItCame;  // what becomes of the text that is handed in and out
  std::wstring text;
  std::optional<std::int16_t> length;  // the number beside the text; nothing: as it came
  HRESULT failure = S_OK;              // what the call fails with
  std::wstring description;            // of the failure; empty for a failure without an error object
  bool pumps = false;                  // works off the thread's messages first, until none is left
};

/// Takes a member's name from the line. Fails with Failure when no stand-in has such a member.
std::wstring readMember(Tokens& tokens);

/// Takes a member's name and an answer that the member can give. Fails with Failure.
std::pair<std::wstring, Answer> readAnswer(Tokens& tokens);

/// What the member has been told last; nothing when it has been told nothing.
std::optional<Answer> answerOf(const std::wstring& member);

/// Notes that the member was called. By-reference arguments are noted as they came.
/// @param puts what was put to the object before: names and values.
void noteAsked(std::wstring member, std::initializer_list<Value> arguments, const std::wstring& puts = {});

/// The last call of the member, as noted; nothing when it has not been called.
std::optional<std::wstring> lastAsked(const std::wstring& member);

}  // namespace nv::host
