// What real windows tell by oleacc beyond names and roles, which scenarios compare: values, states, actions, rows; and
// what becomes of a reader that holds on to a window that is gone.
#include "tests/support/FormTest.h"
#include "tests/windows/Server.h"
#include "windows/forms/Accessibility.h"
#include "windows/forms/WindowsWidgetset.h"

namespace nv::windows::test {

namespace {

struct Reader : testing::Test {
  Reader() {
    form->tick.describe({.label = &form->link, .before = L"Tick "});
    form->first.setText(L"secret");
    form->first.setPasswordChar(L'*');
    form->tick.setPlace({0, 0, 300, 300});
    form->list.addItem(L"Canada;CA");
    form->list.addItem(L"France;FR");
    form->show();
  }
  ~Reader() override { form->unload(); }
  HWND window(const wchar_t* name) const { return findControl(reinterpret_cast<HWND>(form->handle()), name); }
  static ComPtr<IAccessible> objectOf(HWND window) {
    ComPtr<IAccessible> object;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
    return object;
  }
  static VARIANT child(long number) {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
  }
  using TextOf = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
  static std::wstring text(HWND window, TextOf read, long number = CHILDID_SELF) {
    Bstr text;
    EXPECT_HRESULT_SUCCEEDED((objectOf(window).Get()->*read)(child(number), text.out()));
    return std::wstring(view(text.get()));
  }
  static bool has(HWND window, long state, long number = CHILDID_SELF) {
    VARIANT states{};
    EXPECT_HRESULT_SUCCEEDED(objectOf(window)->get_accState(child(number), &states));
    return (states.lVal & state) == state;
  }
  void act(HWND window, long number = CHILDID_SELF) {
    EXPECT_HRESULT_SUCCEEDED(objectOf(window)->accDoDefaultAction(child(number)));
    widgetset.runPendingEvents();
  }

  const Apartment apartment;
  WindowsWidgetset widgetset;
  forms::FormList forms;
  const std::shared_ptr<nv::test::SampleForm> form =
      std::make_shared<nv::test::SampleForm>(widgetset, forms, L"sample");
};

TEST_F(Reader, LearnsAndDoesWhatAUserCan) {
  Bstr value;
  EXPECT_EQ(objectOf(window(L"first"))->get_accValue(child(0), value.out()), E_ACCESSDENIED);
  EXPECT_TRUE(has(window(L"first"), STATE_SYSTEM_PROTECTED | STATE_SYSTEM_FOCUSABLE));
  EXPECT_EQ(text(window(L"first"), &IAccessible::get_accKeyboardShortcut), L"Alt+F");
  EXPECT_EQ(text(window(L"tick"), &IAccessible::get_accName), L"Tick More");
  EXPECT_EQ(text(window(L"box"), &IAccessible::get_accName), L"Fish & chips");

  EXPECT_FALSE(has(window(L"tick"), STATE_SYSTEM_CHECKED));
  act(window(L"tick"));
  EXPECT_TRUE(has(window(L"tick"), STATE_SYSTEM_CHECKED));
  EXPECT_EQ(text(window(L"tick"), &IAccessible::get_accDefaultAction), L"Uncheck");
  form->journal.clear();
  EXPECT_TRUE(has(window(L"link"), STATE_SYSTEM_LINKED));
  act(window(L"link"));
  EXPECT_EQ(form->journal.back(), L"link click");
  form->box.setEnabled(false);
  for (const bool forReading : {false, true}) {
    if (forReading) form->setForReading();
    for (const wchar_t* name : {L"box", L"second", L"opt(0)"}) {
      EXPECT_EQ(has(window(name), STATE_SYSTEM_UNAVAILABLE), !forReading) << name;
      EXPECT_EQ(has(window(name), STATE_SYSTEM_READONLY), forReading && name != std::wstring_view(L"box")) << name;
      EXPECT_FALSE(has(window(name), STATE_SYSTEM_FOCUSABLE)) << name;
    }
  }
}

TEST_F(Reader, GoesThroughTheRowsOfAnOpenList) {
  const HWND list = window(L"list");
  EXPECT_TRUE(has(list, STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_HASPOPUP));
  act(list);
  EXPECT_TRUE(has(list, STATE_SYSTEM_EXPANDED));
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof(parts);
  SendMessageW(list, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&parts));
  long rows = 0;
  EXPECT_HRESULT_SUCCEEDED(objectOf(parts.hwndList)->get_accChildCount(&rows));
  EXPECT_EQ(rows, 2);
  EXPECT_EQ(text(parts.hwndList, &IAccessible::get_accName, 2), L"France, Code FR");
  POINT place{};
  POINT size{};
  EXPECT_HRESULT_SUCCEEDED(objectOf(parts.hwndList)->accLocation(&place.x, &place.y, &size.x, &size.y, child(2)));
  VARIANT hit{};
  EXPECT_HRESULT_SUCCEEDED(objectOf(parts.hwndList)->accHitTest(place.x + size.x / 2, place.y + size.y / 2, &hit));
  EXPECT_EQ(hit.lVal, 2);
  Bstr beyond;
  EXPECT_HRESULT_FAILED(objectOf(parts.hwndList)->get_accName(child(3), beyond.out()));
  act(parts.hwndList, 2);
  EXPECT_TRUE(has(list, STATE_SYSTEM_COLLAPSED));
  EXPECT_TRUE(has(parts.hwndList, STATE_SYSTEM_SELECTED, 2));
  EXPECT_EQ(text(list, &IAccessible::get_accValue), L"FR");
}

TEST_F(Reader, IsToldThatAWindowIsGone) {
  auto object = objectOf(window(L"go"));
  form->unload();
  Bstr name;
  EXPECT_EQ(object->get_accName(child(0), name.out()), CO_E_OBJNOTCONNECTED);
  EXPECT_HRESULT_FAILED(object->accDoDefaultAction(child(0)));
  EXPECT_EQ(object.Reset(), 0U);
}

}  // namespace

}  // namespace nv::windows::test
