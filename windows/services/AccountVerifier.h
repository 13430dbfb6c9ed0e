// The account verifier's dual interface.
#pragma once

#include <memory>

#include "platform/HostInstallation.h"
#include "windows/Handles.h"

namespace nv::windows {

/// The members of the verifier's dual interface in vtable order. Its identifier is the verifier's own and is read
/// from its type information.
struct IAccountVerifier : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE put_PlayByPlay(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_BusinessPIN(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_BillerSearchID(BSTR* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_BillerSearchID(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_AccessNumber(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ProgramVersion(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_BillerSearchURL(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_SessionNumber(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_DataPath(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE VerifyAccount(BSTR bankId, BSTR account, VARIANT_BOOL flag, BSTR* errorMessage,
                                                  short* secondResult, short* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_RequestSourceCode(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_BankIdLength(short value) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_AccountLength(short value) = 0;
  virtual HRESULT STDMETHODCALLTYPE ValidateBankId(BSTR bankId, VARIANT_BOOL flag, BSTR* errorMessage,
                                                   short* errorLength, short* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE ValidateBankAccount(BSTR bankId, BSTR transit, BSTR account, BSTR* errorMessage,
                                                        short* errorLength, VARIANT_BOOL flag, short* result) = 0;
};

/// A new verifier, by its program identifier "AccountVerifier.AccountVerifier". Fails with 429 when it cannot be
/// created or is not what its interface says.
std::unique_ptr<platform::AccountVerifier> createAccountVerifier();

}  // namespace nv::windows
