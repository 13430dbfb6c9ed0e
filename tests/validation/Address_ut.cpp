// The address rules of module Random.
#include <algorithm>

#include "tests/support/ComponentTest.h"
#include "validation/AddressRules.h"

namespace nv::test {
namespace {

using AddressTest = ComponentTest;

TEST_F(AddressTest, ProvincesAndPostalLettersComeFromTheHost) {
  EXPECT_FALSE(Random::lookupProvince(component, L"ON")) << "nothing is known before the host says it";
  EXPECT_FALSE(Random::LookupPostcode(component, L"ONM"));

  component.store.Provpostalstr = L"ABTBCVMBRONKONLONMQCHSKS";
  const auto known = [this](const Texts& codes, auto isKnown) {
    Texts found;
    std::ranges::copy_if(codes, std::back_inserter(found), [&](const auto& code) { return isKnown(component, code); });
    return found;
  };
  EXPECT_EQ(known({L"AB", L"ON", L"SK", L"on", L"NO", L"BC", L"TB", L"O", L"ONK", L"", L"  "}, Random::lookupProvince),
            (Texts{L"AB", L"ON", L"SK", L"BC"}));
  EXPECT_EQ(known({L"ONK", L"ONM", L"ONT", L"BCV", L"KON", L"onk", L"ON", L"", L"ONKX"}, Random::LookupPostcode),
            (Texts{L"ONK", L"ONM", L"BCV"}));
}

TEST_F(AddressTest, FiveLettersNeverBeginAPostalCode) {
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    component.store.Provpostalstr = std::wstring(L"ON") + letter;
    const bool refused = std::wstring_view(L"DFIOQ").find(letter) != std::wstring_view::npos;
    EXPECT_EQ(Random::LookupPostcode(component, component.store.Provpostalstr), !refused)
        << component.store.Provpostalstr;
    EXPECT_FALSE(Random::LookupPostcode(component, std::wstring(L"QC") + letter)) << component.store.Provpostalstr;
  }
}

TEST_F(AddressTest, APostOfficeBoxIsOneThatBeginsTheAddress) {
  const ClsRandom creates(component, host);  // brings the list of words
  const auto isBox = [this](const wchar_t* street) { return Random::Has_PO_Box_Address(component, street); };
  for (const wchar_t* street :
       {L"PO BOX 12", L"p.o.   box 12", L"  Po Box 12  ", L"P.O.BOX 1", L"P.O BOX 1", L"post office box 1",
        L"POSTAL BOX 1", L"POST-OFFICE BOX 1", L"CP 55", L"C.P. 55", L"C.P.POSTALE 5", L"BOITE 5", L"BOITE  POSTALE 5",
        L"CASE POSTALE 5", L"BP 5", L"B.P. 5"}) {
    EXPECT_EQ(isBox(street), 1) << street;
  }
  for (const wchar_t* street : {L"POBOX 12", L"CPL STREET", L"12 MAIN ST PO BOX 5", L"BP", L"PO BOX", L"PO BOX ", L"",
                                L"    ", L"PO  BOXES 5", L"CASE 5", L"P.O. 12"}) {
    EXPECT_EQ(isBox(street), 0) << street;
  }

  struct : FakeMachine {
    std::wstring upperCase(std::wstring_view) override { throw RuntimeError(ErrorNumber::outOfMemory); }
  } failing;
  const platform::Services others{messages, files, failing, shell, installation};
  Component other{others, widgetset};
  messages.expect({.text = L"The following error: 'Out of memory (Error 7)' occurred in procedure "
                           L"'Random.Has_PO_Box_Address'.",
                   .icon = platform::MessageBoxes::Icon::critical});
  EXPECT_EQ(Random::Has_PO_Box_Address(other, L"PO BOX 12"), 0);
}

}  // namespace
}  // namespace nv::test
