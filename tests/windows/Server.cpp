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
  static Server& server = *new Server(serverPath());  // never unloaded: programs end anywhere
  return server;
}

Server::Server(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {
  if (module_ == nullptr) {
    fprintf(stderr, "NVRANDOM_DLL must name the DLL under test; '%ls' cannot be loaded\n", path.c_str());
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
  EXPECT_HRESULT_SUCCEEDED(getClassObject(CLSID_ClsRandom, IID_IClassFactory, &factory));
  return factory;
}

ComPtr<_ClsRandom> Server::create() const {
  ComPtr<_ClsRandom> object;
  EXPECT_HRESULT_SUCCEEDED(factory()->CreateInstance(nullptr, IID__ClsRandom, &object));
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
  EXPECT_HRESULT_SUCCEEDED(object->QueryInterface(IID_IConnectionPointContainer, &container));
  EXPECT_HRESULT_SUCCEEDED(container->FindConnectionPoint(DIID___ClsRandom, &point));
  return point;
}

std::wstring getText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*getter)(BSTR*)) {
  Bstr text;
  EXPECT_HRESULT_SUCCEEDED((object->*getter)(text.out()));
  return std::wstring(view(text.get()));
}

void putText(_ClsRandom* object, HRESULT (STDMETHODCALLTYPE _ClsRandom::*setter)(BSTR), const wchar_t* text) {
  const Bstr value = Bstr::copyOf(text);
  EXPECT_HRESULT_SUCCEEDED((object->*setter)(value.get()));
}

std::wstring nameOf(HWND window) {
  const auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, L"NVRandom.Name")));
  wchar_t marked[256] = L"";
  if (atom != 0) GlobalGetAtomNameW(atom, marked, 256);
  std::wstring name(marked);
  std::erase(name, L'^');  // in front of each capital
  return name;
}

HWND findControl(HWND parent, const wchar_t* name) {
  Search search{name, nullptr};
  EnumChildWindows(parent, visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND shownEmbedded(_ClsRandom* object) {
  long result = -1;
  long handle = 0;
  EXPECT_EQ(S_OK, object->ShowForm_Remote(&result));
  EXPECT_EQ(0, result);
  EXPECT_EQ(S_OK, object->Get_hWnd(&handle));
  return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

void press(HWND dialog, const wchar_t* button) {
  SendMessageW(findControl(dialog, button), BM_CLICK, 0, 0);
}

}  // namespace nv::windows::test
