// The helpers of module Random.
#include "dialogs/support/ComboBoxAutoComplete.h"
#include "tests/support/ComponentTest.h"
#include "tests/support/FormTest.h"
#include "validation/AddressRules.h"
#include "validation/BankChecks.h"
#include "validation/BusinessNumber.h"
#include "validation/SystemHelpers.h"
#include "validation/TextHelpers.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;
using RandomTest = ComponentTest;

TEST_F(RandomTest, CleanseCharactersKeepsWhatMayBeStored) {
  EXPECT_EQ(Random::CleanseCharacters(component, L"\x1f !\"#|}~\x7f\u0080\u00c9\u20ac\U0001F600"), L" !#|}");
  EXPECT_EQ(Random::CleanseCharacters(component, L"  1 \"Main\" St\r\n\t"), L"  1 Main St");
  EXPECT_EQ(Random::CleanseCharacters(component, std::wstring_view(L"a\0b", 3)), L"ab");
  EXPECT_EQ(Random::CleanseCharacters(component, L""), L"");
}

TEST_F(RandomTest, PaddingBringsATextToItsLength) {
  struct Case {
    std::wstring text;
    int length;
    std::wstring left;
    std::wstring right;
  };
  const Case cases[] = {
      {L"1234567", 6, L"234567", L"123456"},
      {L"1234", 6, L"  1234", L"1234  "},
      {L"123456", 6, L"123456", L"123456"},
      {L"", 2, L"  ", L"  "},
      {L"1", 0, L"", L""},
      {L"1", -1, L"", L""},
      {L" 1", 3, L"  1", L" 1 "},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.text << " to " << c.length);
    EXPECT_EQ(Random::PadLeft(component, c.text, c.length), c.left);
    EXPECT_EQ(Random::PadRight(component, c.text, c.length), c.right);
  }
}

TEST_F(RandomTest, IsAlphaAsksForOneLetter) {
  struct Case {
    const wchar_t* text;
    bool result;
  };
  for (const Case& c : {Case{L"", false}, Case{L"12A", true}, Case{L"a", true}, Case{L"z-", true}, Case{L"123", false},
                        Case{L"@[`{", false}, Case{L"\u00e9", false}, Case{L" ", false}}) {
    EXPECT_EQ(Random::IsAlpha(component, c.text), c.result) << c.text;
  }
}

TEST_F(RandomTest, FileexistsNeverFails) {
  files.makeFolder(L"C:\\Apps");
  files.put(L"C:\\Apps\\full", L"x");
  files.put(L"C:\\Apps\\empty", L"");
  files.put(L"C:\\Apps\\locked", L"x");
  files.fail(L"C:\\Apps\\locked", ErrorNumber::permissionDenied);
  struct Case {
    std::wstring path;
    bool result;
  };
  for (const Case& c : {Case{L"C:\\Apps\\full", true}, Case{L"C:\\Apps\\empty", true}, Case{L"C:\\Apps\\none", false},
                        Case{L"C:\\Apps", false}, Case{L"C:\\Apps\\locked", false}, Case{L"", false}}) {
    EXPECT_EQ(Random::Fileexists(component, c.path), c.result) << c.path;
  }
}

TEST_F(RandomTest, DirectoriesEndInABackslash) {
  struct Case {
    std::wstring directory;
    std::wstring stored;
  };
  for (const Case& c : {Case{L"C:\\WINDOWS", L"C:\\WINDOWS\\"}, Case{L"C:\\", L"C:\\"}, Case{L"", L"\\"}}) {
    machine.windows = c.directory;
    machine.system = c.directory;
    Random::Get_Windows_Dir(component);
    EXPECT_EQ(component.store.windowsDirectory, c.stored);
    EXPECT_EQ(component.store.systemDirectory, c.stored);
  }
}

TEST_F(RandomTest, AComboBoxCompletesWhatIsTyped) {
  struct Case {
    std::wstring typed;
    std::wstring text;
    std::wstring selected;
    int index;
  };
  const Case cases[] = {
      {L"to", L"Toronto", L"ronto", 0},
      {L"ti", L"Timmins", L"mmins", 2},  // each letter replaces what the one before completed
      {L"TORONTO ", L"Toronto East", L"East", 1},
      {L"toronto", L"Toronto", L"", 0},
      {L"x", L"x", L"", -1},
      {L"tox", L"Tox", L"", -1},
      {L"\u00e9", L"\u00c9tobicoke", L"tobicoke", 3},
      {L"x\b", L"Toronto", L"Toronto", 0},  // an empty text begins every entry
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    const auto form = std::make_shared<SampleForm>(widgetset, component.forms, L"sample");
    for (const wchar_t* entry : {L"Toronto", L"Toronto East", L"Timmins", L"\u00c9tobicoke"}) form->combo.add(entry);
    form->combo.change = [&] { Random::ComboBoxAutoComplete(component, form->combo); };
    form->show();
    User user(widgetset, *form);
    user.type(L"combo", c.typed);
    EXPECT_EQ(user.text(L"combo"), c.text);
    EXPECT_EQ(user.selected(L"combo"), c.selected);
    EXPECT_EQ(form->combo.listIndex(), c.index);
    form->unload();
  }
}

TEST_F(RandomTest, OpenBrowserTellsWhatWentWrong) {
  const auto notWorking = [](const wchar_t* number) {
    return std::wstring(
               L"Problem running your web browser. You should check that your browser is correctly installed. "
               L"(Error ") +
           number + L")";
  };
  const std::wstring noAssociation =
      L"NVRandom could not find a file association for https://www.norvik.example/ on your system. You should check "
      L"that your browser is correctly installed and associated with this type of file.";
  struct Case {
    int result;
    std::wstring message;
  };
  for (const Case& c : {Case{0, notWorking(L"0")}, Case{2, notWorking(L"2")}, Case{30, notWorking(L"30")},
                        Case{31, L""}, Case{32, noAssociation}, Case{33, L""}, Case{42, L""}}) {
    SCOPED_TRACE(c.result);
    shell.result = c.result;
    if (!c.message.empty()) {
      messages.expect({.text = c.message, .caption = L"Browser Unavailable", .icon = MessageBoxes::Icon::exclamation});
    }
    Random::OpenBrowser(component);
    EXPECT_EQ(shell.opened.back(), L"https://www.norvik.example/");
  }

  // A web page is opened and nothing else.
  for (const wchar_t* address : {L"https://payments.example/us?a=b#c", L"HTTP://x", L"http://192.168.0.1:8080/"}) {
    Random::OpenBrowser(component, address);
    EXPECT_EQ(shell.opened.back(), address);
  }
  for (const wchar_t* address :
       {L"www.example.com/pay", L"example.com", L"Payments.Example.com:8080?x=a:b", L"caf\u00e9.ca"}) {
    Random::OpenBrowser(component, address);
    EXPECT_EQ(shell.opened.back(), std::wstring(L"http://") + address);
  }
  shell.opened.clear();
  for (const wchar_t* address : {L"C:\\Windows\\notepad.exe",
                                 L"C:/Windows/notepad.exe",
                                 L"notepad.EXE?x",
                                 L"notepad",
                                 L"../pay.example",
                                 L"pay.htm",
                                 L"pay.vbs",
                                 L"\\\\server\\share\\x",
                                 L"//server.example/x",
                                 L"file:///C:/pay.htm",
                                 L"ftp://example.com",
                                 L"javascript:alert(1)",
                                 L"mailto:pay@example.com",
                                 L"pay@example.com",
                                 L"example.com:x",
                                 L"www..com",
                                 L".com",
                                 L"a.",
                                 L"http://",
                                 L"http:\\\\example.com",
                                 L"https://example.com/\" --x",
                                 L"www.example.com/a pay",
                                 L""}) {
    files.put(L"error.log", {});
    Random::OpenBrowser(component, address);
    EXPECT_EQ(files.text(L"error.log"), machine.clock + L",NVRandom, , ,5,\"Invalid procedure call or argument\"," +
                                            L"\"Random.OpenBrowser\"\r\n")
        << address;
  }
  EXPECT_EQ(shell.opened, Texts());

  shell.whenAsked = [] { throw RuntimeError(ErrorNumber::libraryNotLoadable); };
  messages.expect(
      {.text = L"The following error: 'Error in loading DLL (Error 48)' occurred in procedure 'Random.OpenBrowser'.",
       .icon = MessageBoxes::Icon::critical});
  Random::OpenBrowser(component, L"http://payments.example/");
}

/// The labels of the others are in trace.scenario.
TEST_F(RandomTest, HelpersWriteTheirLabels) {
  startTrace();
  const auto form = std::make_shared<SampleForm>(widgetset, component.forms, L"sample");
  Random::PadLeft(component, L"", 1);
  Random::PadRight(component, L"", 1);
  Random::ComboBoxAutoComplete(component, form->combo);
  Random::OpenBrowser(component);
  Random::Has_PO_Box_Address(component, L"");
  Random::ValidateABANumber(component, L"", true);
  Random::VerifyBusinessNumber(component, L"");
  std::wstring refusal;
  Random::VerifyAccount(component, L"", L"", refusal, 0, false);
  EXPECT_EQ(traced(), (Texts{L"Random - PadLeft", L"Random - PadRight", L"Random - ComboBoxAutoComplete",
                             L"Random - OpenBrowser", L"Random - Has_PO_Box_Address", L"Random - ValidateABANumber",
                             L"Random - VerifyBusinessNumber", L"Random - VerifyAccount"}));
}

}  // namespace
}  // namespace nv::test
