// An account verifier that lets messages through while it is asked: what the user and the host do meanwhile reaches the
// dialog in the middle of its own OK.
#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

/// Has the thread run a function from whatever message loop it is in.
class Postbox {
 public:
  Postbox() {
    WNDCLASSW definition{};
    definition.lpfnWndProc = procedure;
    definition.lpszClassName = L"Postbox";
    RegisterClassW(&definition);
    window_ = CreateWindowExW(0, L"Postbox", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  }
  ~Postbox() { DestroyWindow(window_); }
  Postbox(const Postbox&) = delete;
  Postbox& operator=(const Postbox&) = delete;

  void post(std::function<void()> work) {
    work_ = std::move(work);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&work_));
    PostMessageW(window_, WM_APP, 0, 0);
  }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_APP) return DefWindowProcW(window, message, wparam, lparam);
    (*reinterpret_cast<const std::function<void()>*>(GetWindowLongPtrW(window, GWLP_USERDATA)))();
    return 0;
  }

  std::function<void()> work_;
  HWND window_ = nullptr;
};

/// What a host holds of the component.
struct Held {
  ComPtr<_ClsRandom> object = Server::get().create();
  ComPtr<IConnectionPoint> point = eventsOf(object.Get());
  HWND dialog = nullptr;
};

using Reentry = StandInsTest;

TEST_F(Reentry, WhatHappensWhileTheVerifierIsAsked) {
  struct Case {
    const char* what;
    std::function<void(Held&)> meanwhile;
    std::string events;  // o: OK, c: Cancel
    bool accepted;
  };
  const auto type = [](const Held& held, WPARAM key) {
    PostMessageW(findControl(held.dialog, L"ran_payee_email"), WM_KEYDOWN, key, 1);
  };
  const auto disturb = [](HWND field) {
    SendMessageW(field, EM_SETSEL, 0, -1);
    for (const UINT message : std::initializer_list<UINT>{WM_CUT, WM_PASTE, WM_UNDO, WM_CLEAR, EM_UNDO})
      SendMessageW(field, message, 0, 0);
    for (const UINT message : std::initializer_list<UINT>{EM_REPLACESEL, WM_SETTEXT}) {
      SendMessageW(field, message, 0, reinterpret_cast<LPARAM>(L"other@mail.example"));
    }
  };
  long result = -1;
  const Case cases[] = {
      {"nothing", [](Held&) {}, "o", true},
      {"OK again", [](Held& held) { press(held.dialog, L"cmd_ok"); }, "o", true},
      {"typing", [&](Held& held) { type(held, L'X'); }, "o", true},
      {"a character that a tool sends",
       [](Held& held) { SendMessageW(findControl(held.dialog, L"ran_payee_email"), WM_UNICHAR, L'X', 1); }, "o", true},
      {"texts that a tool sets", [&](Held& held) { disturb(findControl(held.dialog, L"ran_payee_email")); }, "o", true},
      {"Escape", [&](Held& held) { type(held, VK_ESCAPE); }, "o", true},
      {"another show", [&](Held& held) { held.object->ShowForm_Remote(&result); }, "o", true},
      {"the close box", [](Held& held) { SendMessageW(held.dialog, WM_CLOSE, 0, 0); }, "c", false},
      {"unloading", [](Held& held) { held.object->Unload_From_Remote(); }, "", false},
      {"the window goes", [](Held& held) { DestroyWindow(held.dialog); }, "", false},
      {"the object goes", [](Held& held) { held.point.Reset(), held.object.Reset(); }, "", false},
  };
  tell(L"ValidateBankAccount 1 pumping");
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Held held;
    set(held.object.Get(), "individual");
    held.object->put_Add(1);
    std::string events;
    Sink sink([&](DISPID event, const DISPPARAMS&) {
      if (event == 1) events += 'o';
      if (event == 3) events += 'c';
      return S_OK;
    });
    DWORD cookie = 0;
    held.point->Advise(&sink, &cookie);
    held.dialog = shownEmbedded(held.object.Get());
    const HWND mail = findControl(held.dialog, L"ran_payee_email");
    SendMessageW(mail, EM_SETSEL, 0, -1);
    for (const wchar_t typed : std::wstring_view(L"new@mail.example")) PostMessageW(mail, WM_CHAR, typed, 1);
    SendMessageW(mail, WM_KEYDOWN, VK_TAB, 1);  // used up, and takes nothing with it that a tool has posted
    for (MSG next; PeekMessageW(&next, mail, WM_CHAR, WM_CHAR, PM_REMOVE) != 0;) DispatchMessageW(&next);

    bool happened = false;
    Postbox postbox;
    postbox.post([&] { happened = true, c.meanwhile(held); });
    press(held.dialog, L"cmd_ok");

    EXPECT_TRUE(happened) << "the verifier was asked";
    EXPECT_FALSE(IsWindow(held.dialog));
    EXPECT_EQ(c.events, events);
    if (held.object.Get() == nullptr) continue;
    EXPECT_EQ(c.accepted ? L"new@mail.example" : L"anne.martin@mail.example",
              getText(held.object.Get(), &_ClsRandom::get_PayeeEmail));
    held.point->Unadvise(cookie);
  }
}

}  // namespace

}  // namespace nv::windows::test
