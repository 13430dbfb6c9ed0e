#include "tests/windows/Server.h"

#include <cstdlib>

namespace nv::windows::test {

namespace {

template <class Function>
void bind(HMODULE module, const char* name, Function& function) {
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  if (function == nullptr) std::abort();
}

struct Search {
  const wchar_t* name;
  HWND found;
};

BOOL CALLBACK visit(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (nameOf(window) != search.name) return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

std::wstring serverPath() {
  wchar_t path[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"NVRANDOM_DLL", path, MAX_PATH);
  return path;
}

Server& Server::get() {
  static Server server;
  return server;
}

Server::Server() : module_(LoadLibraryW(serverPath().c_str())) {
  if (module_ == nullptr) {
    fprintf(stderr, "NVRANDOM_DLL must name the DLL under test; '%ls' cannot be loaded\n", serverPath().c_str());
    std::abort();
  }
  bind(module_, "DllGetClassObject", getClassObject_);
  bind(module_, "DllCanUnloadNow", canUnloadNow_);
  bind(module_, "DllRegisterServer", registerServer_);
  bind(module_, "DllUnregisterServer", unregisterServer_);
  bind(module_, "DllInstall", install_);
}

HRESULT Server::getClassObject(REFCLSID classId, REFIID iid, void** object) const {
  return getClassObject_(classId, iid, object);
}

ComPtr<IClassFactory> Server::factory() const {
  ComPtr<IClassFactory> factory;
  EXPECT_HRESULT_SUCCEEDED(getClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.outVoid()));
  return factory;
}

ComPtr<_ClsRandom> Server::create() const {
  ComPtr<_ClsRandom> object;
  EXPECT_HRESULT_SUCCEEDED(factory()->CreateInstance(nullptr, IID__ClsRandom, object.outVoid()));
  return object;
}

STDMETHODIMP Sink::QueryInterface(REFIID iid, void** object) {
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != DIID___ClsRandom) return E_NOINTERFACE;
  *object = this;
  AddRef();
  return S_OK;
}

ComPtr<IConnectionPoint> eventsOf(_ClsRandom* object) {
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  EXPECT_HRESULT_SUCCEEDED(object->QueryInterface(IID_IConnectionPointContainer, container.outVoid()));
  EXPECT_HRESULT_SUCCEEDED(container->FindConnectionPoint(DIID___ClsRandom, point.out()));
  return point;
}

std::wstring getText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*getter)(BSTR*)) {
  Bstr text;
  EXPECT_HRESULT_SUCCEEDED((object->*getter)(text.out()));
  return std::wstring(view(text.get()));
}

void putText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*setter)(BSTR), const wchar_t* text) {
  const Bstr value{std::wstring_view(text)};
  EXPECT_HRESULT_SUCCEEDED((object->*setter)(value.get()));
}

CountryFolder::CountryFolder() {
  wchar_t folder[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  path_ = folder;
  const FileHandle file(CreateFileW((path_ + L"FXCountries").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
}

CountryFolder::~CountryFolder() {
  DeleteFileW((path_ + L"FXCountries").c_str());
}

void setAcceptable(_ClsRandom* object, const std::wstring& dllPath) {
  using Setter = HRESULT (STDMETHODCALLTYPE _ClsRandom::*)(BSTR);
  const std::pair<Setter, const wchar_t*> values[] = {
      {&_ClsRandom::put_DLLPath, dllPath.c_str()},
      {&_ClsRandom::put_Provpostalstr, L"QCGQCHQCJONKONLONMONNONPABTBCVNBE"},
      {&_ClsRandom::put_PayeeName, L"ACME HYDRO"},
      {&_ClsRandom::put_PayeeBillAccount, L"12-345"},
      {&_ClsRandom::put_PayeeStreet, L"1 MAIN STREET"},
      {&_ClsRandom::put_PayeeCity, L"OTTAWA"},
      {&_ClsRandom::put_PayeeProv, L"ON"},
      {&_ClsRandom::put_PayeeCountry, L"CA"},
      {&_ClsRandom::put_PayeePostal, L"K1A0B1"},
      {&_ClsRandom::put_PayeePhoneArea, L"613"},
      {&_ClsRandom::put_PayeePhoneNumber, L"5551234"},
      {&_ClsRandom::put_PayeeFaxArea, L"613"},
      {&_ClsRandom::put_PayeeFaxNumber, L"5559876"},
      {&_ClsRandom::put_PayeeEmail, L"pay@acme.example"},
      {&_ClsRandom::put_PayeeContactName, L"JANE DOE"},
      {&_ClsRandom::put_PayeeIndBusnTag, L"2"},
      {&_ClsRandom::put_PayeeIndBussFlg, L" "},
      {&_ClsRandom::put_PayeeBusinessNum, L"         "},
      {&_ClsRandom::put_PayeeCurrency, L"CAD"},
      {&_ClsRandom::put_PayeePhoneCountryCode, L"1"},
      {&_ClsRandom::put_PayeeFaxCountryCode, L"1"},
      {&_ClsRandom::put_PayeeBankId, L"001"},
      {&_ClsRandom::put_PayeeBankTransit, L"12345"},
      {&_ClsRandom::put_PayeeBankAccount, L"1234567"},
  };
  for (const auto& [setter, value] : values) putText(object, setter, value);
  EXPECT_HRESULT_SUCCEEDED(object->put_UserBankAcctPermission(-1));
}

std::wstring nameOf(HWND window) {
  const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, L"NVRandom.Name")));
  wchar_t name[256] = L"";
  if (atom != 0) GlobalGetAtomNameW(atom, name, 256);
  return name;
}

HWND findControl(HWND parent, const wchar_t* name) {
  Search search{name, nullptr};
  EnumChildWindows(parent, visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

}  // namespace nv::windows::test
