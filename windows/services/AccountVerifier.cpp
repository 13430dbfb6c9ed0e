#include "windows/services/AccountVerifier.h"

#include <wrl/client.h>

#include <optional>

#include "platform/RuntimeError.h"

namespace nv::windows {

namespace {

constexpr const wchar_t* progId = L"AccountVerifier.AccountVerifier";
constexpr std::size_t vtableEntries = 7 + 15;  // of IDispatch and of the verifier's own members

struct InterfaceType {
  IID iid;
  TYPEKIND kind;
  bool dual;
  std::size_t vtableSize;  // in bytes
};

std::optional<InterfaceType> typeOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetTypeAttr(&attributes))) return std::nullopt;
  const InterfaceType type{attributes->guid, attributes->typekind, (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0,
                           attributes->cbSizeVft};
  info.ReleaseTypeAttr(attributes);
  return type;
}

/// The type of the object's dual interface; nothing when it has none. An object describes the dispinterface, which
/// refers to the interface with the vtable.
std::optional<InterfaceType> dualInterface(IDispatch& object) {
  ComPtr<ITypeInfo> info;
  if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &info)) || !info) return std::nullopt;
  auto type = typeOf(*info.Get());
  if (!type || !type->dual) return std::nullopt;
  if (type->kind != TKIND_DISPATCH) return type;
  constexpr auto vtableInterface = static_cast<UINT>(-1);
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> own;
  if (FAILED(info->GetRefTypeOfImplType(vtableInterface, &reference)) ||
      FAILED(info->GetRefTypeInfo(reference, &own))) {
    return std::nullopt;
  }
  return typeOf(*own.Get());
}

/// Whether the object has the verifier's methods, whatever else it may be.
bool isVerifier(IDispatch& object) {
  for (std::wstring name : {L"VerifyAccount", L"ValidateBankId", L"ValidateBankAccount"}) {
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return false;
  }
  return true;
}

class AccountVerifier final : public platform::AccountVerifier {
 public:
  explicit AccountVerifier(ComPtr<IAccountVerifier> verifier) : verifier_(std::move(verifier)) {}

  void putPlayByPlay(bool enabled) override {
    call([&] { return verifier_->put_PlayByPlay(truth(enabled)); });
  }
  void putDataPath(const std::wstring& path) override { put(&IAccountVerifier::put_DataPath, path); }
  void putBusinessPIN(const std::wstring& pin) override { put(&IAccountVerifier::put_BusinessPIN, pin); }
  void putBillerSearchID(const std::wstring& id) override { put(&IAccountVerifier::put_BillerSearchID, id); }
  std::wstring getBillerSearchID() override {
    Bstr id;
    call([&] { return verifier_->get_BillerSearchID(id.out()); });
    return std::wstring(view(id.get()));
  }
  void putAccessNumber(const std::wstring& number) override { put(&IAccountVerifier::put_AccessNumber, number); }
  void putProgramVersion(const std::wstring& version) override { put(&IAccountVerifier::put_ProgramVersion, version); }
  void putBillerSearchURL(const std::wstring& url) override { put(&IAccountVerifier::put_BillerSearchURL, url); }
  void putSessionNumber(const std::wstring& number) override { put(&IAccountVerifier::put_SessionNumber, number); }
  void putRequestSourceCode(const std::wstring& code) override { put(&IAccountVerifier::put_RequestSourceCode, code); }
  void putBankIdLength(std::int16_t length) override {
    call([&] { return verifier_->put_BankIdLength(length); });
  }
  void putAccountLength(std::int16_t length) override {
    call([&] { return verifier_->put_AccountLength(length); });
  }

  std::int16_t VerifyAccount(const std::wstring& bankId, const std::wstring& account, bool flag,
                             std::wstring& errorMessage, std::int16_t& secondResult) override {
    const Bstr id = text(bankId);
    const Bstr number = text(account);
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->VerifyAccount(id.get(), number.get(), truth(flag), message, &secondResult, result);
    });
  }
  std::int16_t ValidateBankId(const std::wstring& bankId, bool flag, std::wstring& errorMessage,
                              std::int16_t& errorLength) override {
    const Bstr id = text(bankId);
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->ValidateBankId(id.get(), truth(flag), message, &errorLength, result);
    });
  }
  std::int16_t ValidateBankAccount(const std::wstring& bankId, const std::wstring& transit, const std::wstring& account,
                                   std::wstring& errorMessage, std::int16_t& errorLength, bool flag) override {
    const Bstr id = text(bankId);
    const Bstr branch = text(transit);
    const Bstr number = text(account);
    return ask(errorMessage, [&](BSTR* message, short* result) {
      return verifier_->ValidateBankAccount(id.get(), branch.get(), number.get(), message, &errorLength, truth(flag),
                                            result);
    });
  }

 private:
  static VARIANT_BOOL truth(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

  static Bstr text(const std::wstring& value) {
    Bstr made = Bstr::copyOf(value);
    if (!made) throw RuntimeError(ErrorNumber::outOfMemory);
    return made;
  }

  /// Calls, and throws a failure: its HRESULT, with the description from the verifier's error information, if any.
  template <class Call>
  void call(Call&& member) {
    SetErrorInfo(0, nullptr);  // left by others
    const HRESULT result = member();
    if (SUCCEEDED(result)) return;
    if (result == E_OUTOFMEMORY) throw RuntimeError(ErrorNumber::outOfMemory);
    std::wstring description = L"Automation error";
    ComPtr<IErrorInfo> info;
    Bstr text;
    if (GetErrorInfo(0, &info) == S_OK && SUCCEEDED(info->GetDescription(text.out())) && text) {
      description = view(text.get());
    }
    const bool classic = HRESULT_FACILITY(result) == FACILITY_CONTROL;  // the number of an automation language
    throw RuntimeError(classic ? HRESULT_CODE(result) : result, std::move(description));
  }

  void put(HRESULT (STDMETHODCALLTYPE IAccountVerifier::*property)(BSTR), const std::wstring& value) {
    const Bstr copy = text(value);
    call([&] { return (verifier_.Get()->*property)(copy.get()); });
  }

  /// `method` takes the message and the result by reference.
  template <class Method>
  std::int16_t ask(std::wstring& errorMessage, Method&& method) {
    Bstr message = text(errorMessage);
    short result = 0;
    call([&] {
      BSTR inAndOut = message.release();
      const HRESULT asked = method(&inAndOut, &result);
      message.reset(inAndOut);
      return asked;
    });
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
      FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object))) {
    throw RuntimeError(ErrorNumber::cannotCreateObject);
  }
  const auto type = dualInterface(*object.Get());
  ComPtr<IAccountVerifier> verifier;
  if (!type || type->vtableSize < vtableEntries * sizeof(void*) || !isVerifier(*object.Get()) ||
      FAILED(object->QueryInterface(type->iid, &verifier))) {
    throw RuntimeError(ErrorNumber::cannotCreateObject);
  }
  return std::make_unique<AccountVerifier>(std::move(verifier));
}

}  // namespace nv::windows
