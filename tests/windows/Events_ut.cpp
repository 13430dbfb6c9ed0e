// The events of the class under hard use: listeners that fail, come and go, or let the object go while they are called.
#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

constexpr DISPID okEvent = 1;
constexpr DISPID fieldEvent = 2;
constexpr DISPID cancelEvent = 3;

/// Shows the embedded dialog and closes it as the user does, which raises Cancel.
void showAndClose(_ClsRandom* object) {
  SendMessageW(shownEmbedded(object), WM_CLOSE, 0, 0);
}

class Events : public StandInsTest {
 protected:
  Events() { putText(object.Get(), &_ClsRandom::put_DLLPath, dllPath().c_str()); }

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

void clickOnTransit(HWND dialog) {
  const HWND transit = findControl(dialog, L"txtTransit");
  SendMessageW(transit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  if (IsWindow(transit)) SendMessageW(transit, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

using ReleasingHost = StandInsTest;

TEST_F(ReleasingHost, MayLetGoInsideEveryEvent) {
  const std::pair<DISPID, std::function<void(HWND dialog)>> events[] = {
      {okEvent, [](HWND dialog) { press(dialog, L"cmd_ok"); }},
      {fieldEvent, clickOnTransit},
      {cancelEvent, [](HWND dialog) { press(dialog, L"cmd_cancel"); }},
  };
  for (const auto& each : events) {
    SCOPED_TRACE(each.first);
    auto object = Server::get().create();
    set(object.Get(), "individual");
    object->put_Add(1);
    auto point = eventsOf(object.Get());
    const HWND dialog = shownEmbedded(object.Get());
    Sink sink([&](DISPID event, const DISPPARAMS&) {
      if (event == each.first) point.Reset(), object.Reset();
      return S_OK;
    });
    DWORD cookie = 0;
    point->Advise(&sink, &cookie);
    each.second(dialog);
    EXPECT_EQ(nullptr, object.Get()) << "the event was raised";
    EXPECT_FALSE(IsWindow(dialog));
    EXPECT_EQ(0U, sink.references) << "the object is gone and has let go of its listener";
  }
}

TEST_F(Events, ReleasingTheObjectTakesItsDialogAwayInSilence) {
  Sink sink(noting('x'));
  DWORD cookie = 0;
  point->Advise(&sink, &cookie);
  const HWND dialog = shownEmbedded(object.Get());
  point.Reset();
  object.Reset();
  EXPECT_FALSE(IsWindow(dialog));
  EXPECT_EQ("", heard);
  EXPECT_EQ(0U, sink.references);
}

}  // namespace

}  // namespace nv::windows::test
