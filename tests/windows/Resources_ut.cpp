// What the DLL says of itself, and what its windows are made of in a host that asks for nothing.
#include "tests/windows/StandIns.h"
#include "windows/SystemFunction.h"

namespace nv::windows::test {

TEST(Version, IsThatOfTheProject) {
  const std::wstring path = serverPath();
  std::vector<char> block(GetFileVersionInfoSizeW(path.c_str(), nullptr));
  ASSERT_FALSE(block.empty());
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
  void* value = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &value, &size));
  const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
  const std::wstring numbers = std::to_wstring(HIWORD(fixed.dwFileVersionMS)) + L"." +
                               std::to_wstring(LOWORD(fixed.dwFileVersionMS)) + L"." +
                               std::to_wstring(HIWORD(fixed.dwFileVersionLS));
  EXPECT_EQ(numbers, L"" NV_VERSION);
  ASSERT_TRUE(
      VerQueryValueW(block.data(), const_cast<wchar_t*>(L"\\StringFileInfo\\040904B0\\ProductVersion"), &value, &size));
  EXPECT_TRUE(std::wstring_view(static_cast<const wchar_t*>(value)).starts_with(L"" NV_VERSION "+"));  // the commit
}

namespace {

class Resources : public StandInsTest {
 protected:
  Resources() { putText(object.Get(), &_ClsRandom::put_DLLPath, dllPath().c_str()); }

  ComPtr<_ClsRandom> object = Server::get().create();
};

/// Those of version 6 know a text to show in an empty field.
bool isCurrent(HWND edit) {
  return SendMessageW(edit, EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(L"cue")) != FALSE;
}

HANDLE awarenessOfDialog = nullptr;

/// Notes what a dialog knows of its dpi as soon as it is active, and closes it.
LRESULT CALLBACK lookWhenActive(int code, WPARAM wparam, LPARAM lparam) {
  const HWND window = reinterpret_cast<HWND>(wparam);
  if (code == HCBT_ACTIVATE && GetPropW(window, L"NVRandom.Name") != nullptr) {
    awarenessOfDialog = systemFunction<HANDLE(WINAPI*)(HWND)>("GetWindowDpiAwarenessContext")(window);
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

/// This program has no manifest: its own controls are the old ones, before and after.
TEST_F(Resources, WindowsUseTheCurrentControlsInAnyHost) {
  const auto hostsEdit = [] {
    return CreateWindowW(L"EDIT", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  };
  const HWND before = hostsEdit();
  EXPECT_FALSE(isCurrent(before));
  long dialog = 0;
  ASSERT_EQ(S_OK, object->Get_hWnd(&dialog));
  EXPECT_TRUE(isCurrent(findControl(reinterpret_cast<HWND>(static_cast<LONG_PTR>(dialog)), L"ran_payee_email")));
  const HWND after = hostsEdit();
  EXPECT_FALSE(isCurrent(after));
  DestroyWindow(before);
  DestroyWindow(after);
}

/// A dialog of its own knows the dpi of its screen, whatever the host knows, and the host goes on as it was.
TEST_F(Resources, ModalDialogsKnowTheirScreensDpi) {
  const auto setThread = systemFunction<HANDLE(WINAPI*)(HANDLE)>("SetThreadDpiAwarenessContext");
  const auto ofThread = systemFunction<HANDLE(WINAPI*)()>("GetThreadDpiAwarenessContext");
  const auto awareness = systemFunction<int(WINAPI*)(HANDLE)>("GetAwarenessFromDpiAwarenessContext");
  if (setThread == nullptr || ofThread == nullptr || awareness == nullptr) GTEST_SKIP() << "no dpi by screen here";
  constexpr int unaware = 0;
  constexpr int perMonitor = 2;
  const HANDLE before = setThread(reinterpret_cast<HANDLE>(LONG_PTR{-1}));  // the host knows nothing of dpi
  long result = 0;
  const Hook hook(SetWindowsHookExW(WH_CBT, lookWhenActive, nullptr, GetCurrentThreadId()));
  ASSERT_EQ(S_OK, object->ShowForm(&result));
  EXPECT_EQ(perMonitor, awareness(awarenessOfDialog));
  EXPECT_EQ(unaware, awareness(ofThread()));
  setThread(before);
}

}  // namespace

}  // namespace nv::windows::test
