// The address rules of module Random.
#include "tests/support/ComponentTest.h"
#include "validation/AddressRules.h"

namespace nv::test {
namespace {

using AddressTest = ComponentTest;

TEST_F(AddressTest, ProvincesAndPostalLettersComeFromTheHost) {
  EXPECT_FALSE(Random::lookupProvince(component, L"ON")) << "nothing is known before the host says it";
  EXPECT_FALSE(Random::LookupPostcode(component, L"ONM"));

  component.store.Provpostalstr = L"ABTBCVMBRONKONLONMQCHSKS";
  struct Case {
    const wchar_t* code;
    bool known;
  };
  for (const Case& c : {Case{L"AB", true},
                        {L"ON", true},
                        {L"SK", true},
                        {L"on", false},
                        {L"NO", false},
                        {L"BC", true},
                        {L"TB", false},
                        {L"O", false},
                        {L"ONK", false},
                        {L"", false},
                        {L"  ", false}}) {
    EXPECT_EQ(Random::lookupProvince(component, c.code), c.known) << c.code;
  }
  for (const Case& c : {Case{L"ONK", true},
                        {L"ONM", true},
                        {L"ONT", false},
                        {L"BCV", true},
                        {L"KON", false},
                        {L"onk", false},
                        {L"ON", false},
                        {L"", false},
                        {L"ONKX", false}}) {
    EXPECT_EQ(Random::LookupPostcode(component, c.code), c.known) << c.code;
  }
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
  struct Case {
    const wchar_t* street;
    std::int16_t box;
  };
  const Case cases[] = {
      {L"PO BOX 12", 1},
      {L"p.o.   box 12", 1},
      {L"  Po Box 12  ", 1},
      {L"P.O.BOX 1", 1},
      {L"P.O BOX 1", 1},
      {L"post office box 1", 1},
      {L"POSTAL BOX 1", 1},
      {L"POST-OFFICE BOX 1", 1},
      {L"CP 55", 1},
      {L"C.P. 55", 1},
      {L"C.P.POSTALE 5", 1},
      {L"BOITE 5", 1},
      {L"BOITE  POSTALE 5", 1},
      {L"CASE POSTALE 5", 1},
      {L"BP 5", 1},
      {L"B.P. 5", 1},
      {L"POBOX 12", 0},
      {L"CPL STREET", 0},
      {L"12 MAIN ST PO BOX 5", 0},
      {L"BP", 0},
      {L"PO BOX", 0},
      {L"PO BOX ", 0},
      {L"", 0},
      {L"    ", 0},
      {L"PO  BOXES 5", 0},
      {L"CASE 5", 0},
      {L"P.O. 12", 0},
  };
  for (const Case& c : cases) EXPECT_EQ(Random::Has_PO_Box_Address(component, c.street), c.box) << c.street;

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
