// A complete host: shows the biller dialog in a window of its own, prints its events and the record that comes back.
// It needs Windows and the interface header alone; in the folder of the package:
//
//   cl /EHsc /std:c++17 /I include samples\embed.cpp ole32.lib oleaut32.lib user32.lib gdi32.lib
//   embed C:\Apps\NORVIK\Bin\                                              (the folder of your installation)
#include <comutil.h>
#include <wrl/client.h>

#include <cstdio>
#include <utility>

#include "NVRandom.h"
using Microsoft::WRL::ComPtr;

/// Listens to the dialog. It lives as long as the program, so nobody needs to count its references.
class Listener final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(__ClsRandom);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    if (event == 1) wprintf(L"CSBOK\n");
    if (event == 2) wprintf(L"CurrentFieldTop %d\n", arguments->rgvarg[0].iVal);  // scroll to it here
    if (event == 3) wprintf(L"Cancel\n");
    if (event == 1 || event == 3) PostQuitMessage(0);  // the dialog is done
    return S_OK;
  }
};

LRESULT CALLBACK hostProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_SETFOCUS) SetFocus(GetWindow(window, GW_CHILD));  // the dialog
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wparam, lparam);
}

const std::pair<HRESULT (STDMETHODCALLTYPE _ClsRandom::*)(BSTR), const wchar_t*> record[] = {
    {&_ClsRandom::put_Provpostalstr, L"ONKONLONMONNONP"},
    {&_ClsRandom::put_PayeeIndBusnTag, L"2"},
    {&_ClsRandom::put_PayeeIndBussFlg, L" "},
    {&_ClsRandom::put_PayeeName, L"LAKEHEAD HYDRO AND POWER"},
    {&_ClsRandom::put_PayeeBillAccount, L"4410772903"},
    {&_ClsRandom::put_PayeeStreet, L"1200 HARBOUR STREET"},
    {&_ClsRandom::put_PayeeCity, L"THUNDER BAY"},
    {&_ClsRandom::put_PayeeProv, L"ON"},
    {&_ClsRandom::put_PayeePostal, L"P7B1A1"},
    {&_ClsRandom::put_PayeePhoneArea, L"807"},
    {&_ClsRandom::put_PayeePhoneNumber, L"5550142"},
    {&_ClsRandom::put_PayeeEmail, L"billing@lakeheadhydro.example"},
};

int wmain(int argc, wchar_t** argv) {
  CoInitialize(nullptr);
  Listener listener;
  ComPtr<_ClsRandom> biller;
  if (FAILED(CoCreateInstance(__uuidof(ClsRandom), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&biller)))) return 1;
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> events;
  DWORD cookie = 0;
  biller.As(&container);
  container->FindConnectionPoint(__uuidof(__ClsRandom), &events);
  events->Advise(&listener, &cookie);

  biller->put_DLLPath(_bstr_t(argc > 1 ? argv[1] : L""));
  for (const auto& [put, value] : record) (biller.Get()->*put)(_bstr_t(value));

  long handle = 0;
  biller->Get_hWnd(&handle);
  const HWND dialog = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));

  WNDCLASSW hostClass{};
  hostClass.lpfnWndProc = hostProcedure;
  hostClass.lpszClassName = L"Sample host";
  RegisterClassW(&hostClass);
  RECT place;
  GetClientRect(dialog, &place);  // the size of Get_Width and Get_Height, in pixels
  AdjustWindowRect(&place, WS_OVERLAPPEDWINDOW, FALSE);
  const HWND host =
      CreateWindowW(L"Sample host", L"Sample host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 40, 40,
                    place.right - place.left, place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
  ShowWindow(host, SW_SHOW);
  SetParent(dialog, host);
  biller->ShowForm_Remote(&handle);

  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0; DispatchMessageW(&message)) TranslateMessage(&message);

  _bstr_t city;
  biller->get_PayeeCity(city.GetAddress());
  wprintf(L"PayeeCity %ls\n", static_cast<const wchar_t*>(city));
  events->Unadvise(cookie);
  return 0;
}
