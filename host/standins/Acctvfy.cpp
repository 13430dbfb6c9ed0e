// A STAND-IN for Acctvfy.dll, the closed library of bank checks that belongs to a host installation. It decides
// nothing: it notes what it is asked and answers as Answers.h says, by default that everything is valid.
#include <cstring>

#include "host/base/Text.h"
#include "host/standins/Answers.h"

namespace nv::host {

namespace {

std::wstring text(const char* bytes) {
  return bytes == nullptr ? L"" : wide(bytes, CP_ACP);
}

Answer answer(const wchar_t* function) {
  return answerOf(function).value_or(Answer());
}

}  // namespace

}  // namespace nv::host

using namespace nv::host;

extern "C" short __stdcall Check_bank_id(const char* bankId) {
  noteAsked(L"Check_bank_id", {text(bankId)});
  return answer(L"Check_bank_id").result;
}

/// @param message a buffer of blanks, of whose size this library, like the real one, knows nothing: a message that is
/// too long is written all the same.
extern "C" short __stdcall Check_bank_account2(const char* bankId, const char* transit, const char* account,
                                               char* message, short* errorLength, short flag) {
  const auto blanks = static_cast<std::int16_t>(std::strspn(message, " "));
  noteAsked(L"Check_bank_account2", {text(bankId), text(transit), text(account), blanks, *errorLength, flag});
  const Answer told = answer(L"Check_bank_account2");
  if (told.handedOut == Answer::Text::given) {
    const std::string bytes = narrow(told.text, CP_ACP);
    std::memcpy(message, bytes.c_str(), bytes.size() + 1);
  }
  if (told.length) *errorLength = *told.length;
  return told.result;
}
