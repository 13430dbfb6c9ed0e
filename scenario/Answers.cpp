#include "scenario/Answers.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

/// What a member has to give: a result, a text by reference with a number beside it, a text alone, an HRESULT; and
/// whether it can let messages through before it gives anything.
enum Gives : unsigned { result = 1, textAndLength = 2, noText = 4, textAlone = 8, failure = 16, pumping = 32 };

struct Member {
  const wchar_t* name;
  unsigned gives;
};

constexpr Member members[] = {
    {L"create", failure},
    {L"put PlayByPlay", failure},
    {L"put DataPath", failure},
    {L"put BusinessPIN", failure},
    {L"put BillerSearchID", failure},
    {L"put AccessNumber", failure},
    {L"put ProgramVersion", failure},
    {L"put BillerSearchURL", failure},
    {L"put SessionNumber", failure},
    {L"put RequestSourceCode", failure},
    {L"put BankIdLength", failure},
    {L"put AccountLength", failure},
    {L"BillerSearchID", textAlone | noText | failure},
    {L"VerifyAccount", result | textAndLength | noText | failure | pumping},
    {L"ValidateBankId", result | textAndLength | noText | failure | pumping},
    {L"ValidateBankAccount", result | textAndLength | noText | failure | pumping},
    {L"Check_bank_id", result},
    {L"Check_bank_account2", result | textAndLength},
    {L"DES_decrypt_file", result},
};

const Member& takeMember(Tokens& tokens) {
  std::wstring name = tokens.word();
  if (name == L"put") name += L" " + tokens.word();
  const auto member = std::ranges::find(members, name, &Member::name);
  if (member == std::end(members)) {
    std::vector<std::wstring> names;
    for (const Member& known : members) names.emplace_back(known.name);
    throw Failure(L"nothing that a stand-in is asked is called " + name + didYouMean(name, names));
  }
  return *member;
}

void readText(Tokens& tokens, Answer& answer) {
  answer.handedOut = Answer::Text::given;
  answer.text = tokens.text();
  if (!tokens.take(L"times")) return;
  const std::wstring once = answer.text;
  answer.text.clear();
  for (std::int32_t times = tokens.number(); times > 0; --times) answer.text += once;
}

/// Whether a noted line is a call of the member.
bool isOf(const std::wstring& member, const std::wstring& line) {
  return line == member || line.starts_with(member + L" ");
}

}  // namespace

std::wstring readMember(Tokens& tokens) {
  return takeMember(tokens).name;
}

std::pair<std::wstring, Answer> readAnswer(Tokens& tokens) {
  const Member& member = takeMember(tokens);
  const auto gives = [&member](unsigned what) { return (member.gives & what) != 0; };

  Answer answer;
  if (gives(failure) && tokens.take(L"fails")) {
    answer.failure = tokens.number();
    if (!tokens.atEnd()) answer.description = tokens.text();
    return {member.name, answer};
  }
  if (member.gives == failure) throw Failure(std::wstring(member.name) + L" can be told to fail, and nothing else");
  if (gives(result)) answer.result = tokens.shortNumber();
  if (gives(noText) && tokens.take(L"null")) {
    answer.handedOut = Answer::Text::null;
  } else if (gives(textAlone) || (gives(textAndLength) && tokens.nextIsText())) {
    readText(tokens, answer);
  }
  if (answer.handedOut == Answer::Text::given) answer.length = static_cast<std::int16_t>(answer.text.size());
  if (gives(textAndLength) && tokens.take(L"length")) answer.length = tokens.shortNumber();
  answer.pumps = gives(pumping) && tokens.take(L"pumping");
  return {member.name, answer};
}

std::optional<Answer> answerOf(const std::wstring& member, const std::vector<std::wstring>& answers,
                               const std::wstring& root) {
  const auto told = lastAsked(member, answers);
  if (!told) return std::nullopt;
  Tokens tokens(*told, {{L"root", root}});
  return readAnswer(tokens).second;
}

std::wstring question(std::wstring member, std::initializer_list<Value> arguments, const std::wstring& puts) {
  for (const Value& argument : arguments) member.append(L" ").append(shown(argument));
  return puts.empty() ? member : member + L" with" + puts;
}

std::optional<std::wstring> lastAsked(const std::wstring& member, const std::vector<std::wstring>& asked) {
  const auto last = std::find_if(asked.rbegin(), asked.rend(), [&](const auto& line) { return isOf(member, line); });
  if (last == asked.rend()) return std::nullopt;
  return *last;
}

}  // namespace nv::scenario
