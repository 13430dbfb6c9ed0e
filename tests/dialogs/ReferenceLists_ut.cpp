// The provinces, currencies and countries to choose from, and the keys of their lists.
#include "dialogs/biller/ReferenceLists.h"

#include <algorithm>
#include <new>

#include "dialogs/biller/CountryFile.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

const Texts alwaysThere = {L"Canada;CA;1", L"United States;US;1"};

Texts joined(const forms::RowTable& table) {
  Texts rows;
  for (std::size_t row = 0; row < table.size(); ++row) {
    std::wstring text;
    for (std::size_t column = 0; column < table.columns(); ++column) {
      text += (column == 0 ? L"" : L";") + std::wstring(table.cell(row, column));
    }
    rows.push_back(std::move(text));
  }
  return rows;
}

StringArray array(std::vector<StringArray::Bounds> bounds, const Texts& elements) {
  StringArray array(std::move(bounds));
  array.elements() = elements;
  return array;
}

class ReferenceListsTest : public BillerTest {
 protected:
  /// What the opening dialog offers.
  Texts offered(const wchar_t* list) {
    const Texts rows = shown().rows(list);
    random.Unload_From_Remote();
    return rows;
  }
};

TEST_F(ReferenceListsTest, ProvincesComeSortedAndRunsOfOneOnce) {
  EXPECT_EQ(provinceCodes(L"QCGQCHQCJONKONLNBE"), (Texts{L"NB", L"ON", L"QC"}));
  EXPECT_EQ(provinceCodes(L"ONKQCHONL"), (Texts{L"ON", L"ON", L"QC"})) << "not one behind the other";
  EXPECT_EQ(provinceCodes(L"ONKQC"), (Texts{L"ON", L"QC"})) << "cut behind the code";
  EXPECT_EQ(provinceCodes(L"ONKQ"), Texts{L"ON"});
  EXPECT_EQ(provinceCodes(L""), Texts{});
  EXPECT_EQ(offered(L"ran_payee_prov"), (Texts{L"AB", L"BC", L"NB", L"ON", L"QC"}));

  unitedStates();
  std::wstring states;
  for (const std::wstring& state : offered(L"ran_payee_prov")) states += state;
  EXPECT_EQ(states,
            L"AKALARASAZCACOCTDCDEFLFMGAGUHIIAIDILINKSKYLAMAMDMEMHMIMNMOMPMSMTNCNDNENHNJNMNVNYOHOKORPAPRPW"
            L"RISCSDTNTXUTVAVIVTWAWIWVWY");
}

TEST_F(ReferenceListsTest, TheHostsCurrenciesFollowTheCommonOnes) {
  const Texts common = {L"Canadian Dollar;CAD", L"US Dollar;USD",    L"Euro;EUR",
                        L"British Pound;GBP",   L"Japanese Yen;JPY", L"Australian Dollar;AUD"};
  const auto with = [&](Texts others) {
    Texts rows = common;
    rows.push_back(L"--------------------;---");
    rows.insert(rows.end(), others.begin(), others.end());
    return rows;
  };
  struct Case {
    const char* what;
    StringArray offered;
    Texts rows;
  };
  const Case cases[] = {
      {"none", {}, with({})},
      {"the empty array that hosts begin with", array({{0, 0}, {0, 0}}, {L""}), with({})},
      {"common ones only", array({{0, 1}}, {L"USD", L"EUR;"}), with({})},
      {"codes, descriptions, blanks and repetitions",
       array({{1, 7}}, {L"XXB - Swedish Krona", L" ", L"XXA;Swiss Franc", L"XXB", L"XXC", L" XXD - Rupee - new ", L""}),
       with({L"Swedish Krona;XXB", L"Swiss Franc;XXA", L";XXC", L"Rupee - new;XXD"})},
      {"two rows",
       array({{0, 1}, {0, 3}}, {L"XXA", L"Swiss Franc", L"", L"Nothing", L"XXB", L"Swedish Krona", L"XXA", L"Again"}),
       with({L"Swiss Franc;XXA", L"Swedish Krona;XXB"})},
      {"other bounds, and a third row", array({{1, 3}, {5, 5}}, {L"XXA", L"Franc", L"?"}), with({L"Franc;XXA"})},
      {"one row of two dimensions", array({{0, 0}, {0, 1}}, {L"XXA;Franc", L"XXB"}), with({L"Franc;XXA", L";XXB"})},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(joined(currencyRows(c.offered)), c.rows);
  }
  Texts described = with({});
  described[1] = L"Greenback;USD";
  EXPECT_EQ(joined(currencyRows(array({{0, 1}}, {L"USD - Greenback", L"EUR"}))), described);

  component.store.IPCurrencyList = array({{0, 0}}, {L"XXA"});
  EXPECT_EQ(offered(L"cmbCurrencyCode"), with({L";XXA"}));
}

TEST_F(ReferenceListsTest, TheCountryFileIsReadAsItComes) {
  struct Case {
    const char* what;
    std::wstring_view text;
    Texts rows;  // behind those that are always there
  };
  const Case cases[] = {
      {"empty", L"", {}},
      {"a heading alone", L"Countries of the world", {}},
      {"the file's order, from the heading's second value on",
       L"H,Atlantis,AX,1\nGermany,DE,49\nAustria,AT,43\n",
       {L"Atlantis;AX;1", L"Germany;DE;49", L"Austria;AT;43"}},
      {"the two neighbours once", L"H\r\nCANADA,CA,001\r\nUSA,US,001\r\nAustria,AT,43", {L"Austria;AT;43"}},
      {"trimmed", L"H\n \t Austria\t, AT ,\t 43 \t\n", {L"Austria;AT;43"}},
      {"quoted",
       L"H\n\"Korea, Republic of\",\"KR\" ?,82\n\"The \"\"X\"\"\",XX,1\n\"\"\"Y\",YY,\"\"",
       {L"Korea, Republic of;KR;82", L"The \"X\";XX;1", L"\"Y;YY;"}},
      {"cut short", L"H\nAustria\nGermany,D\n\nFrance,FR,33\nSpain,", {L"France;FR;33"}},
      {"no code", L"H\nAustria,AUT,43\nGermany,D,49\nSpain,E1,34\nFrance,FR,33", {L"France;FR;33"}},
      {"without a number", L"H\nAustria,AT,\nGermany,DE\r,FR\n", {L"Austria;AT;", L"Germany;DE;", L";FR;"}},
      {"commas in the name",
       L"H\nKorea , Republic of,KR,82\n,,BB,1\nA,\"B, C\",D,XX,\nAustria,AT,43,x,y",
       {L"Korea, Republic of;KR;82", L",;BB;1", L"A, B, C, D;XX;"}},
      {"an open quote ends with its line",
       L"H\n\"Austria,AT,43\nFrance,\"FR\nSpain,ES,34",
       {L"France;FR;", L"Spain;ES;34"}},
      {"the filling of a last block", L"H\nFrance,FR,33\n\x1ASpain,ES,34", {L"France;FR;33"}},
      {"a NUL", {L"H\nFrance,FR,33\0\nSpain,ES,34", 26}, {L"France;FR;33"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Texts rows = alwaysThere;
    rows.insert(rows.end(), c.rows.begin(), c.rows.end());
    EXPECT_EQ(joined(countryRows(c.text, [](std::wstring_view) { return true; })), rows);
  }
}

/// What goes wrong with the file otherwise is in lists.scenario.
TEST_F(ReferenceListsTest, NoCopyOfTheCountryFileStays) {
  installation.decipher = [this](const std::wstring&, const std::wstring& to) {
    EXPECT_EQ(machine.turns, 1) << "others wait";
    files.put(to, L"H\r\nAustria,AT,43");
  };
  EXPECT_EQ(offered(L"ran_payee_country").size(), 3U);
  EXPECT_EQ(machine.turns, 0);
  EXPECT_FALSE(files.exists(decipheredFile));

  const auto written = std::exchange(installation.decipher, [&](const std::wstring&, const std::wstring& to) {
    files.put(to, L"H\r\nAustria,AT,43");
    throw std::bad_alloc();
  });
  EXPECT_EQ(errorOf([&] { random.ShowForm_Remote(); }), 7) << "half way";
  EXPECT_FALSE(files.exists(decipheredFile));

  installation.decipher = written;
  installation.answers[L"DES_decrypt_file"].result = 0;  // it says that it stopped half way
  EXPECT_EQ(offered(L"ran_payee_country"), alwaysThere);
  EXPECT_FALSE(files.exists(decipheredFile));
}

}  // namespace
}  // namespace nv::test
