// The properties of ClsRandom as a host uses them.
#include <algorithm>
#include <array>

#include "tests/support/ComponentTest.h"

namespace nv::test {
namespace {

/// A variant that holds a text, a truth value and an array at once, or nothing of the kind.
struct Variant : HostValue {
  std::wstring itsText = L"text";
  bool itsTruth = true;
  StringArray itsArray{{{0, 1}, {0, 2}}};
  bool convertible = true;

  std::wstring text() const override { return converted(itsText); }
  bool truth() const override { return converted(itsTruth); }
  StringArray array() const override {
    for (const std::wstring& element : itsArray.elements()) elementOf(element);
    return converted(itsArray);
  }
  std::int32_t upperBound(std::size_t dimension) const override { return converted(itsArray).bounds(dimension).upper; }
  std::wstring element(std::int32_t row, std::int32_t column) const override {
    return elementOf(itsArray.at({row, column}));
  }

 private:
  static const std::wstring& elementOf(const std::wstring& element) {
    if (element == L"Null") throw RuntimeError(ErrorNumber::invalidUseOfNull);
    return element;
  }
  template <class Value>
  const Value& converted(const Value& value) const {
    if (!convertible) throw RuntimeError(ErrorNumber::typeMismatch);
    return value;
  }
};

/// A value for a property of whatever type.
struct AnyValue {
  Variant variant;
  operator std::int16_t() const { return 1; }                       // NOLINT(google-explicit-constructor)
  operator std::wstring_view() const { return variant.itsText; }    // NOLINT(google-explicit-constructor)
  operator const StringArray&() const { return variant.itsArray; }  // NOLINT(google-explicit-constructor)
  operator const HostValue&() const { return variant; }             // NOLINT(google-explicit-constructor)
};

class PropertiesTest : public ComponentTest {
 protected:
  ClsRandom random{component, host};
};

TEST_F(PropertiesTest, EachWritesItsLabelButThoseThatTraceNothing) {
  // Written out here, not read from the table that the class is made of.
  const auto silent = [](std::wstring_view name) {
    return name == L"WhatKindOfBiller" || name == L"CurrencyCodeFromMain" || name == L"DescCurrencyCodeFromMain" ||
           name == L"FormTitleFromMain";
  };
  const auto label = [](const std::wstring& name) {
    return name == L"CountryListAll" || name == L"CountryListPartial" ? L"gstr" + name : name;
  };
  const AnyValue any;
  Texts expected;
  Texts seen;
  const auto note = [&](const wchar_t* access, const std::wstring& name, bool writes) {
    if (writes) expected.push_back(L"ClsRandom - " + (access + label(name)));
    std::ranges::copy(traced(), std::back_inserter(seen));
    startTrace();  // DLLPath and PlayByPlayEnabled are properties too
  };
  startTrace();
#define NV_USE_Let(Name) random.let##Name(any), note(L"Let ", L## #Name, !silent(L## #Name) && L## #Name != trace)
#define NV_USE_LetGet(Name) NV_USE_Let(Name), random.get##Name(), note(L"Get ", L## #Name, !silent(L## #Name))
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_USE_##Access(Name);
  const std::wstring trace = L"PlayByPlayEnabled";
#include "component/core/properties.def"
  EXPECT_EQ(seen, expected);
}

/// What hosts read of it is in record.scenario.
TEST_F(PropertiesTest, ANewInstanceSetsItsFewDefaults) {
  random.letCountryListAll(L"N");
  Variant currencies;
  currencies.itsArray = StringArray({{0, 8}});
  random.letIPCurrencyList(currencies);
  component.store.verifyBusinessNumberFlag = flagTrue;

  const ClsRandom second(component, host);
  const Store& store = component.store;
  EXPECT_EQ(store.CountryListAll, L"Y");
  EXPECT_EQ(store.verifyBusinessNumberFlag, 0);
  EXPECT_EQ(store.IPCurrencyList.dimensions(), 2U);
  EXPECT_EQ(store.IPCurrencyList.elements(), Texts{L""});
}

TEST_F(PropertiesTest, FlagsKeepTheHostsNumberAndVariantsAreConverted) {
  for (const std::int16_t number : std::initializer_list<std::int16_t>{1, -1, 0, 7, -32768}) {
    random.letPlayByPlayEnabled(number);
    EXPECT_EQ(random.getPlayByPlayEnabled(), number);
  }
  Variant value;
  random.letIPBillerNameAcctExist(value);
  EXPECT_EQ(component.store.IPBillerNameAcctExist, -1);
  random.letNVMemberType(value);
  EXPECT_EQ(component.store.NVMemberType, L"text");

  value.convertible = false;
  EXPECT_EQ(errorOf([&] { random.letIPBillerNameAcctExist(value); }), 13);
  EXPECT_EQ(errorOf([&] { random.letNVMemberType(value); }), 13);
  EXPECT_EQ(errorOf([&] { random.letIPCurrencyList(value); }), 13);
  EXPECT_EQ(errorOf([&] { random.letProv_areacode(value); }), 13);
  EXPECT_EQ(component.store.IPBillerNameAcctExist, -1) << "what failed changed nothing";
  EXPECT_EQ(component.store.NVMemberType, L"text");
}

TEST_F(PropertiesTest, ProvAreacodeCopiesEveryColumnButTheLast) {
  struct Case {
    const char* what;
    std::vector<StringArray::Bounds> bounds;
    std::int32_t error;
    std::size_t copied;  // elements, in turn
  };
  const Case cases[] = {
      {"two columns too few for one row", {{0, 1}, {0, 0}}, 0, 0},
      {"2 x 3", {{0, 1}, {0, 2}}, 0, 4},
      {"just full", {{0, 1}, {0, 21}}, 0, 42},
      {"one too many", {{0, 1}, {0, 22}}, 9, 42},
      {"more rows than are read", {{0, 5}, {0, 2}}, 0, 4},
      {"the first column missing", {{0, 1}, {1, 3}}, 9, 0},
      {"the second row missing", {{0, 0}, {0, 2}}, 9, 1},
      {"one dimension", {{0, 5}}, 9, 0},
      {"no dimension", {}, 9, 0},
      {"empty", {{0, 1}, {0, -1}}, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    component.store.Prov_areacode = {};
    Variant value;
    value.itsArray = StringArray(c.bounds);
    if (c.bounds.size() == 2 && c.bounds[1].size() > 0) {
      for (std::int32_t column = c.bounds[1].lower; column <= c.bounds[1].upper; ++column) {
        value.itsArray.at({0, column}) = L"P" + std::to_wstring(column);
        if (c.bounds[0].upper > 0) value.itsArray.at({1, column}) = L"A" + std::to_wstring(column);
      }
      value.itsArray.at({0, c.bounds[1].upper}) = L"Null";  // that is nobody's business
    }
    EXPECT_EQ(errorOf([&] { random.letProv_areacode(value); }), c.error);
    const auto& rows = component.store.Prov_areacode;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      EXPECT_EQ(rows[row].code, 2 * row < c.copied ? L"P" + std::to_wstring(row) : L"") << row;
      EXPECT_EQ(rows[row].areaCodes, 2 * row + 1 < c.copied ? L"A" + std::to_wstring(row) : L"") << row;
    }
  }
}

TEST_F(PropertiesTest, TheInstallationRootComesFromDLLPath) {
  struct Case {
    std::wstring_view dllPath;
    std::wstring root;
  };
  const Case cases[] = {
      {L"C:\\Apps\\NORVIK\\Bin", L"C:\\Apps\\"},
      {L"C:\\NORVIK", L"C:\\"},
      {L"C:\\x\\NORVIKS\\NORVIK\\y", L"C:\\x\\"},
      {L"\\\\server\\share\\NORVIK\\", L"\\\\server\\share\\"},
      {L"C:\\Apps\\norvik\\Bin", L""},
      {L"C:\\Apps\\Norvik\\Bin", L""},
      {L"NORVIK\\Bin", L""},
      {L"C:/Apps/NORVIK/Bin", L"C:\\Apps\\"},
      {L"", L""},
  };
  for (const Case& c : cases) {
    random.letDLLPath(c.dllPath);
    EXPECT_EQ(component.store.gstrInstallRoot(), c.root) << c.dllPath.data();
  }
}

}  // namespace
}  // namespace nv::test
