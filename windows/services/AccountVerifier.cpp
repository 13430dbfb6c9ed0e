#include "windows/services/AccountVerifier.h"

#include "platform/RuntimeError.h"

namespace nv::windows {

namespace {

constexpr const wchar_t* progId = L"AccountVerifier.AccountVerifier";
constexpr std::size_t slots = 7 + 15;  // of IDispatch and of the verifier's own members

/// Throws what a failed call of the verifier has to say: its HRESULT, with the description that it left, if any.
void check(HRESULT result) {
  if (SUCCEEDED(result)) return;
  if (result == E_OUTOFMEMORY) throw RuntimeError(ErrorNumber::outOfMemory);
  std::wstring description = L"Automation error";
  ComPtr<IErrorInfo> info;
  Bstr text;
  if (GetErrorInfo(0, info.out()) == S_OK && SUCCEEDED(info->GetDescription(text.out())) && text) {
    description = view(text.get());
  }
  throw RuntimeError(result, std::move(description));
}

/// The verifier's dual interface, whose identifier its type information tells.
ComPtr<IAccountVerifier> dualInterface(IDispatch& object) {
  ComPtr<ITypeInfo> info;
  TYPEATTR* attributes = nullptr;
  ComPtr<IAccountVerifier> dual;
  if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, info.out())) || FAILED(info->GetTypeAttr(&attributes))) {
    return dual;
  }
  const IID iid = attributes->guid;
  const bool isDual = (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0 && attributes->cbSizeVft >= slots * sizeof(void*);
  info->ReleaseTypeAttr(attributes);
  if (isDual) object.QueryInterface(iid, dual.outVoid());
  return dual;
}

class AccountVerifier final : public platform::AccountVerifier {
 public:
  explicit AccountVerifier(ComPtr<IAccountVerifier> verifier) : verifier_(std::move(verifier)) {}

  void putPlayByPlay(bool enabled) override { check(verifier_->put_PlayByPlay(truth(enabled))); }
  void putDataPath(const std::wstring& path) override { put(&IAccountVerifier::put_DataPath, path); }
  void putBusinessPIN(const std::wstring& pin) override { put(&IAccountVerifier::put_BusinessPIN, pin); }
  void putBillerSearchID(const std::wstring& id) override { put(&IAccountVerifier::put_BillerSearchID, id); }
  std::wstring getBillerSearchID() override {
    Bstr id;
    check(verifier_->get_BillerSearchID(id.out()));
    return std::wstring(view(id.get()));
  }
  void putAccessNumber(const std::wstring& number) override { put(&IAccountVerifier::put_AccessNumber, number); }
  void putProgramVersion(const std::wstring& version) override { put(&IAccountVerifier::put_ProgramVersion, version); }
  void putBillerSearchURL(const std::wstring& url) override { put(&IAccountVerifier::put_BillerSearchURL, url); }
  void putSessionNumber(const std::wstring& number) override { put(&IAccountVerifier::put_SessionNumber, number); }
  void putRequestSourceCode(const std::wstring& code) override { put(&IAccountVerifier::put_RequestSourceCode, code); }
  void putBankIdLength(std::int16_t length) override { check(verifier_->put_BankIdLength(length)); }
  void putAccountLength(std::int16_t length) override { check(verifier_->put_AccountLength(length)); }

  std::int16_t VerifyAccount(const std::wstring& bankId, const std::wstring& account, bool flag,
                             std::wstring& errorMessage, std::int16_t& secondResult) override {
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->VerifyAccount(text(bankId).get(), text(account).get(), truth(flag), message, &secondResult,
                                      result);
    });
  }
  std::int16_t ValidateBankId(const std::wstring& bankId, bool flag, std::wstring& errorMessage,
                              std::int16_t& errorLength) override {
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->ValidateBankId(text(bankId).get(), truth(flag), message, &errorLength, result);
    });
  }
  std::int16_t ValidateBankAccount(const std::wstring& bankId, const std::wstring& transit, const std::wstring& account,
                                   std::wstring& errorMessage, std::int16_t& errorLength, bool flag) override {
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->ValidateBankAccount(text(bankId).get(), text(transit).get(), text(account).get(), message,
                                            &errorLength, truth(flag), result);
    });
  }

 private:
  static VARIANT_BOOL truth(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

  static Bstr text(const std::wstring& value) {
    Bstr made{std::wstring_view(value)};
    if (!made) throw RuntimeError(ErrorNumber::outOfMemory);
    return made;
  }

  void put(HRESULT (STDMETHODCALLTYPE IAccountVerifier::*property)(BSTR), const std::wstring& value) {
    check((verifier_.get()->*property)(text(value).get()));
  }

  template <class Ask>
  static std::int16_t ask(std::wstring& errorMessage, Ask&& call) {
    Bstr message = text(errorMessage);
    BSTR inAndOut = message.release();
    short result = 0;
    const HRESULT called = call(&inAndOut, &result);
    message.reset(inAndOut);
    check(called);
    errorMessage = view(message.get());
    return result;
  }

  ComPtr<IAccountVerifier> verifier_;
};

}  // namespace

std::unique_ptr<platform::AccountVerifier> createAccountVerifier() {
  CLSID classId;
  ComPtr<IDispatch> object;
  if (FAILED(CLSIDFromProgID(progId, &classId)) ||
      FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.outVoid()))) {
    throw RuntimeError(ErrorNumber::cannotCreateObject);
  }
  ComPtr<IAccountVerifier> verifier = dualInterface(*object.get());
  if (!verifier) throw RuntimeError(ErrorNumber::cannotCreateObject);
  return std::make_unique<AccountVerifier>(std::move(verifier));
}

}  // namespace nv::windows
