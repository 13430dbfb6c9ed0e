// A STAND-IN for the account verifier, a component of a host installation. It decides nothing: it notes what is put to
// it and what it is asked, and answers as Answers.h says, by default that everything is valid.
#include "AccountVerifier.h"

#include <wrl/client.h>

#include <atomic>
#include <string_view>

#include "host/standins/Answers.h"

extern "C" IMAGE_DOS_HEADER
    __ImageBase;  // NOLINT(bugprone-reserved-identifier): the linker's name for the module's start

namespace nv::host {

namespace {

using Microsoft::WRL::ComPtr;

std::atomic<long> objects;

std::wstring text(BSTR value) {
  return {value == nullptr ? L"" : value, SysStringLen(value)};
}
BSTR newText(std::wstring_view value) {
  return SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
}
bool truth(VARIANT_BOOL value) {
  return value != VARIANT_FALSE;
}

/// Leaves an error object with the description for the caller.
void describeError(const std::wstring& description) {
  ComPtr<ICreateErrorInfo> error;
  ComPtr<IErrorInfo> info;
  if (FAILED(CreateErrorInfo(&error)) || FAILED(error.As(&info))) return;
  std::wstring source = L"AccountVerifier";
  std::wstring copy = description;
  error->SetSource(source.data());
  error->SetDescription(copy.data());
  SetErrorInfo(0, info.Get());
}

/// What a call returns: S_OK, or the failure that the answer tells of.
HRESULT outcome(const Answer& answer) {
  if (FAILED(answer.failure) && !answer.description.empty()) describeError(answer.description);
  return answer.failure;
}

/// Lets everything happen that is waiting for the thread: input, timers, what was posted.
void workOffMessages() {
  for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE; DispatchMessageW(&message)) {
    TranslateMessage(&message);
  }
}

/// Has nothing but an HRESULT leave a COM method.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
  try {
    return body();
  } catch (...) {
    return E_FAIL;
  }
}

HRESULT loadTypeInfo(ITypeInfo** info) {
  *info = nullptr;
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(reinterpret_cast<HMODULE>(&__ImageBase), path, MAX_PATH);
  ComPtr<ITypeLib> library;
  const HRESULT loaded = LoadTypeLibEx(path, REGKIND_NONE, &library);
  return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(IID__AccountVerifier, info);
}

class Verifier final : public _AccountVerifier, public ISupportErrorInfo {
 public:
  Verifier() { ++objects; }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == IID__AccountVerifier) {
      *object = static_cast<_AccountVerifier*>(this);
    } else if (iid == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(this);
    } else {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++references_); }
  STDMETHODIMP_(ULONG) Release() override {
    const long left = --references_;
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override { return iid == IID__AccountVerifier ? S_OK : S_FALSE; }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    *info = nullptr;
    return index == 0 ? loadTypeInfo(info) : DISP_E_BADINDEX;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    ComPtr<ITypeInfo> info;
    const HRESULT loaded = loadTypeInfo(&info);
    return FAILED(loaded) ? loaded : info->GetIDsOfNames(names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* exception, UINT* wrongArgument) override {
    ComPtr<ITypeInfo> info;
    const HRESULT loaded = loadTypeInfo(&info);
    if (FAILED(loaded)) return loaded;
    return info->Invoke(static_cast<_AccountVerifier*>(this), member, flags, arguments, result, exception,
                        wrongArgument);
  }

  STDMETHODIMP put_PlayByPlay(VARIANT_BOOL value) override { return put(L"PlayByPlay", truth(value)); }
  STDMETHODIMP put_BusinessPIN(BSTR value) override { return put(L"BusinessPIN", text(value)); }
  STDMETHODIMP get_BillerSearchID(BSTR* value) override {
    return guarded([&] {
      noteAsked(L"BillerSearchID", {}, puts_);
      const Answer answer = answerOf(L"BillerSearchID").value_or(Answer());
      const bool other = answer.handedOut != Answer::Text::asItCame;
      *value = answer.handedOut == Answer::Text::null ? nullptr : newText(other ? answer.text : searchId_);
      return outcome(answer);
    });
  }
  STDMETHODIMP put_BillerSearchID(BSTR value) override {
    searchId_ = text(value);
    return put(L"BillerSearchID", searchId_);
  }
  STDMETHODIMP put_AccessNumber(BSTR value) override { return put(L"AccessNumber", text(value)); }
  STDMETHODIMP put_ProgramVersion(BSTR value) override { return put(L"ProgramVersion", text(value)); }
  STDMETHODIMP put_BillerSearchURL(BSTR value) override { return put(L"BillerSearchURL", text(value)); }
  STDMETHODIMP put_SessionNumber(BSTR value) override { return put(L"SessionNumber", text(value)); }
  STDMETHODIMP put_DataPath(BSTR value) override { return put(L"DataPath", text(value)); }
  STDMETHODIMP VerifyAccount(BSTR bankId, BSTR account, VARIANT_BOOL flag, BSTR* errorMessage, short* secondResult,
                             short* result) override {
    return answer(L"VerifyAccount",
                  {text(bankId), text(account), truth(flag), text(*errorMessage), std::int16_t{*secondResult}},
                  errorMessage, secondResult, result);
  }
  STDMETHODIMP put_RequestSourceCode(BSTR value) override { return put(L"RequestSourceCode", text(value)); }
  STDMETHODIMP put_BankIdLength(short value) override { return put(L"BankIdLength", std::int16_t{value}); }
  STDMETHODIMP put_AccountLength(short value) override { return put(L"AccountLength", std::int16_t{value}); }
  STDMETHODIMP ValidateBankId(BSTR bankId, VARIANT_BOOL flag, BSTR* errorMessage, short* errorLength,
                              short* result) override {
    return answer(L"ValidateBankId", {text(bankId), truth(flag), text(*errorMessage), std::int16_t{*errorLength}},
                  errorMessage, errorLength, result);
  }
  STDMETHODIMP ValidateBankAccount(BSTR bankId, BSTR transit, BSTR account, BSTR* errorMessage, short* errorLength,
                                   VARIANT_BOOL flag, short* result) override {
    return answer(
        L"ValidateBankAccount",
        {text(bankId), text(transit), text(account), text(*errorMessage), std::int16_t{*errorLength}, truth(flag)},
        errorMessage, errorLength, result);
  }

 private:
  ~Verifier() { --objects; }

  HRESULT put(const std::wstring& property, const scenario::Value& value) {
    return guarded([&] {
      puts_.append(L" ").append(property).append(L" ").append(scenario::shown(value));
      return outcome(answerOf(L"put " + property).value_or(Answer()));
    });
  }

  HRESULT answer(const wchar_t* method, std::initializer_list<scenario::Value> arguments, BSTR* message, short* number,
                 short* result) {
    return guarded([&] {
      noteAsked(method, arguments, puts_);
      const Answer answer = answerOf(method).value_or(Answer());
      if (answer.pumps) workOffMessages();
      *result = answer.result;
      if (answer.handedOut != Answer::Text::asItCame) {
        SysFreeString(*message);
        *message = answer.handedOut == Answer::Text::null ? nullptr : newText(answer.text);
      }
      if (answer.length) *number = *answer.length;
      return outcome(answer);
    });
  }

  std::atomic<long> references_ = 1;
  std::wstring puts_;
  std::wstring searchId_;
};

class Factory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return guarded([&] {
      noteAsked(L"create", {});
      const HRESULT told = outcome(answerOf(L"create").value_or(Answer()));
      if (FAILED(told)) return told;
      auto* const verifier = new Verifier;
      const HRESULT found = verifier->QueryInterface(iid, object);
      verifier->Release();
      return found;
    });
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    objects += lock != FALSE ? 1 : -1;
    return S_OK;
  }
};

}  // namespace

}  // namespace nv::host

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, LPVOID* object) {
  static nv::host::Factory factory;
  *object = nullptr;
  return classId == CLSID_AccountVerifier ? factory.QueryInterface(iid, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
  return nv::host::objects == 0 ? S_OK : S_FALSE;
}
