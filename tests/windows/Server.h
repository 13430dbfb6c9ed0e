// The component as a host process meets it: the real DLL, its class and helpers to listen to it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "NVRandom.h"
#include "windows/Handles.h"

namespace nv::windows::test {

/// Path of the DLL under test: the environment's NVRANDOM_DLL.
std::wstring serverPath();

/// The DLL, loaded as long as it lives.
class Server {
 public:
  /// The one that all tests share.
  static Server& get();
  explicit Server(const std::wstring& path);
  ~Server() { FreeLibrary(module_); }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  HRESULT getClassObject(REFCLSID classId, REFIID iid, void** object) const;
  HRESULT canUnloadNow() const { return canUnloadNow_(); }
  HRESULT registerServer() const { return registerServer_(); }
  HRESULT unregisterServer() const { return unregisterServer_(); }
  HRESULT install(bool install, const wchar_t* commandLine) const { return install_(install, commandLine); }
  ComPtr<IClassFactory> factory() const;
  /// A new object; the thread must have entered an apartment.
  ComPtr<_ClsRandom> create() const;

 private:
  HMODULE module_;
  HRESULT(WINAPI* getClassObject_)(REFCLSID, REFIID, void**);
  HRESULT(WINAPI* canUnloadNow_)();
  HRESULT(WINAPI* registerServer_)();
  HRESULT(WINAPI* unregisterServer_)();
  HRESULT(WINAPI* install_)(BOOL, LPCWSTR);
};

/// An apartment for as long as it lives.
struct Apartment {
  Apartment() { EXPECT_HRESULT_SUCCEEDED(CoInitialize(nullptr)); }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// A listener that hands each event to a function and returns what that returns.
class Sink final : public IDispatch {
 public:
  using Handler = std::function<HRESULT(DISPID event, const DISPPARAMS& arguments)>;
  explicit Sink(Handler handler) : handler_(std::move(handler)) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    return handler_(event, *arguments);
  }

  ULONG references = 0;

 private:
  Handler handler_;
};

/// The connection point of the class's events.
ComPtr<IConnectionPoint> eventsOf(_ClsRandom* object);

std::wstring getText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*getter)(BSTR*));
void putText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*setter)(BSTR), const wchar_t* text);

/// An installation with a country file and nothing else, so that the dialog opens without a word.
class CountryFolder {
 public:
  CountryFolder();
  ~CountryFolder();
  CountryFolder(const CountryFolder&) = delete;
  CountryFolder& operator=(const CountryFolder&) = delete;
  /// To be set as DLLPath.
  const std::wstring& path() const { return path_; }

 private:
  std::wstring root_;
  std::wstring path_;
};

/// The name of the form or control that a window belongs to; empty when it is none of ours.
std::wstring nameOf(HWND window);

/// The first window below `parent` that carries this control name; nullptr when there is none.
HWND findControl(HWND parent, const wchar_t* name);

}  // namespace nv::windows::test
