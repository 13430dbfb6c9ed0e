// What the stand-ins for the account verifier and the closed libraries are told and asked in the installation in use.
// See scenario/Answers.h.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "host/standins/Record.h"
#include "scenario/Answers.h"

namespace nv::host {

using scenario::Answer;
using scenario::answersFile;
using scenario::askedFile;

/// What the member has been told last; nothing when it has been told nothing.
inline std::optional<Answer> answerOf(const std::wstring& member) {
  return scenario::answerOf(member, recorded(answersFile), installationInUse());
}

/// Notes that the member was called. By-reference arguments are noted as they came.
/// @param puts what was put to the object before: names and values.
inline void noteAsked(std::wstring member, std::initializer_list<scenario::Value> arguments,
                      const std::wstring& puts = {}) {
  record(askedFile, scenario::question(std::move(member), arguments, puts));
}

}  // namespace nv::host
