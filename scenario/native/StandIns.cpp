#include "scenario/native/StandIns.h"

#include "platform/Text.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

class Verifier final : public platform::AccountVerifier {
 public:
  explicit Verifier(StandIns& standIns) : standIns_(standIns) {}

  void putPlayByPlay(bool enabled) override { put(L"PlayByPlay", enabled); }
  void putDataPath(const std::wstring& path) override { put(L"DataPath", path); }
  void putBusinessPIN(const std::wstring& pin) override { put(L"BusinessPIN", pin); }
  void putBillerSearchID(const std::wstring& id) override {
    searchId_ = id;
    put(L"BillerSearchID", id);
  }
  std::wstring getBillerSearchID() override {
    std::wstring id = searchId_;
    call(L"BillerSearchID", {}, id);
    return id;
  }
  void putAccessNumber(const std::wstring& number) override { put(L"AccessNumber", number); }
  void putProgramVersion(const std::wstring& version) override { put(L"ProgramVersion", version); }
  void putBillerSearchURL(const std::wstring& url) override { put(L"BillerSearchURL", url); }
  void putSessionNumber(const std::wstring& number) override { put(L"SessionNumber", number); }
  void putRequestSourceCode(const std::wstring& code) override { put(L"RequestSourceCode", code); }
  void putBankIdLength(std::int16_t length) override { put(L"BankIdLength", length); }
  void putAccountLength(std::int16_t length) override { put(L"AccountLength", length); }

  std::int16_t VerifyAccount(const std::wstring& bankId, const std::wstring& account, bool flag, std::wstring& message,
                             std::int16_t& secondResult) override {
    return call(L"VerifyAccount", {bankId, account, flag, message, secondResult}, message, &secondResult);
  }
  std::int16_t ValidateBankId(const std::wstring& bankId, bool flag, std::wstring& message,
                              std::int16_t& errorLength) override {
    return call(L"ValidateBankId", {bankId, flag, message, errorLength}, message, &errorLength);
  }
  std::int16_t ValidateBankAccount(const std::wstring& bankId, const std::wstring& transit, const std::wstring& account,
                                   std::wstring& message, std::int16_t& errorLength, bool flag) override {
    return call(L"ValidateBankAccount", {bankId, transit, account, message, errorLength, flag}, message, &errorLength);
  }

 private:
  void put(const std::wstring& property, const Value& value) {
    puts_.append(L" ").append(property).append(L" ").append(shown(value));
    failAsTold(standIns_.answerOf(L"put " + property).value_or(Answer()));
  }

  std::int16_t call(const wchar_t* member, std::initializer_list<Value> arguments, std::wstring& text,
                    std::int16_t* number = nullptr) {
    standIns_.note(askedFile, question(member, arguments, puts_));
    const Answer answer = standIns_.answerOf(member).value_or(Answer());
    if (answer.handedOut != Answer::Text::asItCame) text = answer.text;
    if (answer.length && number != nullptr) *number = *answer.length;
    failAsTold(answer);
    return answer.result;
  }

  /// As a failing automation call arrives: with the number of an automation language, else with its HRESULT.
  static void failAsTold(const Answer& answer) {
    if (answer.failure >= 0) return;
    const auto bits = static_cast<std::uint32_t>(answer.failure);
    const bool classic = bits >> 16 == 0x800A;
    throw RuntimeError(classic ? static_cast<std::int32_t>(bits & 0xFFFF) : answer.failure,
                       answer.description.empty() ? L"Automation error" : answer.description);
  }

  StandIns& standIns_;
  std::wstring puts_;
  std::wstring searchId_;
};

}  // namespace

std::optional<Answer> StandIns::answerOf(const std::wstring& member) const {
  return scenario::answerOf(member, splitLines(files_.text(root_ + answersFile)), root_);
}

void StandIns::note(const wchar_t* file, const std::wstring& line) {
  files_.put(root_ + file, files_.text(root_ + file) + line + L"\r\n");
}

std::unique_ptr<platform::AccountVerifier> StandIns::createVerifier() {
  if (!verifierRegistered || answerOf(L"create").value_or(Answer()).failure != 0) {
    throw RuntimeError(ErrorNumber::cannotCreateObject);
  }
  return std::make_unique<Verifier>(*this);
}

/// A library by full path, which stays loaded once it is.
void StandIns::load(const std::wstring& folder, const wchar_t* name) {
  const std::wstring path = folder + L"\\" + name;
  if (files_.text(path) == library) loaded_.insert(path);
  if (!loaded_.contains(path)) throw RuntimeError(ErrorNumber::libraryNotLoadable);
}

std::int16_t StandIns::checkBankId(const std::wstring& folder, const std::wstring& bankId) {
  load(folder, L"Acctvfy.dll");
  note(askedFile, question(L"Check_bank_id", {bankId}));
  return answerOf(L"Check_bank_id").value_or(Answer()).result;
}

std::int16_t StandIns::checkBankAccount(const std::wstring& folder, const std::wstring& bankId,
                                        const std::wstring& transit, const std::wstring& account,
                                        std::wstring& message) {
  constexpr std::size_t buffer = 256;    // what the library is told nothing of,
  constexpr std::size_t behind = 65536;  // and what it can write beyond it before the check is given up
  load(folder, L"Acctvfy.dll");
  note(askedFile, question(L"Check_bank_account2",
                           {bankId, transit, account, std::int16_t{buffer}, std::int16_t{0}, std::int16_t{0}}));
  const Answer told = answerOf(L"Check_bank_account2").value_or(Answer());
  if (told.text.size() >= buffer + behind) throw RuntimeError(ErrorNumber::invalidCall);
  message = trimmed(std::wstring_view(told.text).substr(0, buffer));
  return told.result;
}

bool StandIns::decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) {
  load(folder, L"kvd8rq3x.dll");
  note(askedFile, question(L"DES_decrypt_file", {from, to}));
  if (const auto answer = answerOf(L"DES_decrypt_file")) return answer->result != 0;
  try {
    const std::wstring bytes = files_.read(from);
    const std::wstring mark = enciphered({});
    if (!bytes.starts_with(mark)) return false;
    files_.write(to, bytes.substr(mark.size()), platform::Files::Opening::truncate);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

int StandIns::open(const std::wstring& address) {
  constexpr int fileNotFound = 2;
  constexpr int noProgram = 31;
  constexpr int done = 42;
  if (!address.starts_with(L"http")) return files_.exists(address) ? noProgram : fileNotFound;
  note(L"Browser.txt", address);
  return done;
}

void StandIns::showHelp(const std::wstring& file, std::uint32_t topic, std::intptr_t window) {
  note(L"Help.txt", file + L" command 15 topic " + std::to_wstring(topic) + L" for " + windowName(window));
}

}  // namespace nv::scenario
