// The events of the class under hard use: listeners that fail, come and go, or let the object go while they are called.
#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

constexpr DISPID okEvent = 1;
constexpr DISPID fieldEvent = 2;
constexpr DISPID cancelEvent = 3;

/// Shows the embedded dialog and closes it as the user does, which raises Cancel.
void showAndClose(_ClsRandom* object) {
  long result = -1;
  ASSERT_EQ(S_OK, object->ShowForm_Remote(&result));
  EXPECT_EQ(0, result);
  long handle = 0;
  ASSERT_EQ(S_OK, object->Get_hWnd(&handle));
  SendMessageW(reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle)), WM_CLOSE, 0, 0);
}

class Events : public testing::Test {
 protected:
  Events() { putText(object.Get(), &_ClsRandom::put_DLLPath, countries.path().c_str()); }

  /// A listener that notes the events under a letter and then does something.
  Sink::Handler noting(
      char letter, std::function<HRESULT()> then = [] { return S_OK; }) {
    return [this, letter, then](DISPID event, const DISPPARAMS& arguments) {
      if (event != cancelEvent) return S_OK;
      EXPECT_EQ(0U, arguments.cArgs);
      heard += letter;
      return then();
    };
  }

  Apartment apartment;
  CountryFolder countries;
  ComPtr<_ClsRandom> object = Server::get().create();
  ComPtr<IConnectionPoint> point = eventsOf(object.Get());
  std::string heard;
};

TEST_F(Events, ReachEveryListenerWhateverTheOthersReturn) {
  Sink failing(noting('f', [] { return E_FAIL; }));
  Sink raising(noting('r', [] { return DISP_E_EXCEPTION; }));
  Sink last(noting('l'));
  DWORD cookies[3];
  point->Advise(&failing, &cookies[0]);
  point->Advise(&raising, &cookies[1]);
  point->Advise(&last, &cookies[2]);
  showAndClose(object.Get());
  EXPECT_EQ("frl", heard);
  for (const DWORD cookie : cookies) point->Unadvise(cookie);
}

TEST_F(Events, ListenersComeAndGoWhileOneIsRaised) {
  DWORD firstCookie = 0;
  DWORD secondCookie = 0;
  DWORD newCookie = 0;
  Sink newcomer(noting('n'));
  Sink second(noting('s'));
  Sink first(noting('f', [&] {
    point->Unadvise(firstCookie);
    point->Unadvise(secondCookie);
    return point->Advise(&newcomer, &newCookie);
  }));
  point->Advise(&first, &firstCookie);
  point->Advise(&second, &secondCookie);
  showAndClose(object.Get());
  EXPECT_EQ("f", heard) << "one that left is not called, one that came waits for the next event";
  showAndClose(object.Get());
  EXPECT_EQ("fn", heard);
  point->Unadvise(newCookie);
  EXPECT_EQ(0U, first.references + second.references + newcomer.references);
}

/// What the user does, and the event in which the host then lets the object go.
struct LastEvent {
  const char* what;
  DISPID event;
  std::function<void(HWND dialog)> happens;
};

void clickOnTransit(HWND dialog) {
  const HWND transit = findControl(dialog, L"txtTransit");
  SendMessageW(transit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  if (IsWindow(transit)) SendMessageW(transit, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

using ReleasingHost = StandInsTest;

TEST_F(ReleasingHost, MayLetGoInsideEveryEvent) {
  const LastEvent events[] = {
      {"OK", okEvent, [](HWND dialog) { SendMessageW(findControl(dialog, L"cmd_ok"), BM_CLICK, 0, 0); }},
      {"another field", fieldEvent, clickOnTransit},
      {"Cancel", cancelEvent, [](HWND dialog) { SendMessageW(findControl(dialog, L"cmd_cancel"), BM_CLICK, 0, 0); }},
      {"the close box", cancelEvent, [](HWND dialog) { SendMessageW(dialog, WM_CLOSE, 0, 0); }},
  };
  for (const LastEvent& c : events) {
    SCOPED_TRACE(c.what);
    auto object = Server::get().create();
    set(object.Get(), "individual");
    object->put_Add(1);
    auto point = eventsOf(object.Get());
    long handle = 0;
    long result = -1;
    ASSERT_EQ(S_OK, object->ShowForm_Remote(&result));
    ASSERT_EQ(0, result);
    ASSERT_EQ(S_OK, object->Get_hWnd(&handle));
    const HWND dialog = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    Sink sink([&](DISPID event, const DISPPARAMS&) {
      if (event != c.event) return S_OK;
      point.Reset();
      object.Reset();
      return S_OK;
    });
    DWORD cookie = 0;
    point->Advise(&sink, &cookie);
    c.happens(dialog);
    EXPECT_EQ(nullptr, object.Get()) << "the event was raised";
    EXPECT_FALSE(IsWindow(dialog));
    EXPECT_EQ(0U, sink.references) << "the object is gone and has let go of its listener";
  }
}

TEST_F(Events, ReleasingTheObjectTakesItsDialogAwayInSilence) {
  Sink sink(noting('x'));
  DWORD cookie = 0;
  point->Advise(&sink, &cookie);
  long handle = 0;
  long result = 0;
  object->ShowForm_Remote(&result);
  object->Get_hWnd(&handle);
  point.Reset();
  object.Reset();
  EXPECT_FALSE(IsWindow(reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle))));
  EXPECT_EQ("", heard);
  EXPECT_EQ(0U, sink.references);
}

}  // namespace

}  // namespace nv::windows::test
