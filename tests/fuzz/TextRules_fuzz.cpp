// Arbitrary texts for every text rule. No input may crash a rule or make it report an error; beyond that, each rule is
// held to what follows from its description, whatever the text.
//
// The first byte of an input chooses the rule, the rest is its text: a byte is a character, one from 0xF0 on begins a
// character of two bytes.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "dialogs/biller/CountryFile.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"
#include "tests/support/ComponentTest.h"
#include "validation/AddressRules.h"
#include "validation/BankChecks.h"
#include "validation/BusinessNumber.h"
#include "validation/TextHelpers.h"

namespace nv::test {

namespace {

/// A component whose message boxes nobody expects, so that one fails the run.
class World : public ComponentTest {
 public:
  void TestBody() override {}

  using ComponentTest::component;
  using ComponentTest::installation;
  using ComponentTest::messages;

  /// Its creation fills the store with what the rules compare texts with.
  const ClsRandom object{component, host};
  const std::shared_ptr<frmRandomInfo> form = std::make_shared<frmRandomInfo>(component, forms::Border::dialog);
};

/// Takes the text of an input apart.
class Input {
 public:
  explicit Input(std::wstring_view text) : rest_(text) {}

  wchar_t character() {
    if (rest_.empty()) return 0;
    const wchar_t first = rest_.front();
    rest_.remove_prefix(1);
    return first;
  }
  /// Up to the next NUL.
  std::wstring_view text() {
    const std::wstring_view text = rest_.substr(0, rest_.find(L'\0'));
    rest_.remove_prefix(std::min(text.size() + 1, rest_.size()));
    return text;
  }
  std::wstring_view all() const { return rest_; }

 private:
  std::wstring_view rest_;
};

bool isAsciiLetter(wchar_t c) {
  return asciiUpper(c) >= L'A' && asciiUpper(c) <= L'Z';
}

bool isBlank(std::wstring_view text) {
  return trimmed(text).empty();
}

void cleansing(World& world, Input input) {
  const auto isKept = [](wchar_t c) { return c >= 32 && c <= 125 && c != 34; };
  const std::wstring cleansed = Random::CleanseCharacters(world.component, input.all());
  EXPECT_TRUE(std::ranges::all_of(cleansed, isKept));
  EXPECT_EQ(static_cast<std::ptrdiff_t>(cleansed.size()), std::ranges::count_if(input.all(), isKept));
  EXPECT_EQ(Random::CleanseCharacters(world.component, cleansed), cleansed);
}

void padding(World& world, Input input) {
  const int length = input.character() - 16;
  const std::wstring_view text = input.all();
  const auto wanted = static_cast<std::size_t>(std::max(length, 0));
  const std::size_t kept = std::min(wanted, text.size());
  const std::wstring left = Random::PadLeft(world.component, text, length);
  EXPECT_EQ(left.size(), wanted);
  EXPECT_TRUE(left.ends_with(text.substr(text.size() - kept)));
  EXPECT_TRUE(isBlank(left.substr(0, wanted - kept)));
  const std::wstring right = Random::PadRight(world.component, text, length);
  EXPECT_EQ(right.size(), wanted);
  EXPECT_TRUE(right.starts_with(text.substr(0, kept)));
  EXPECT_TRUE(isBlank(right.substr(kept)));
}

void letters(World& world, Input input) {
  const bool alpha = Random::IsAlpha(world.component, input.all());
  if (std::ranges::any_of(input.all(), isAsciiLetter)) {
    EXPECT_TRUE(alpha);
  } else if (std::ranges::all_of(input.all(), [](wchar_t c) { return c < 128; })) {
    EXPECT_FALSE(alpha);
  }
}

/// A unit that the host's text ends with is found in it; one that the text does not contain is not.
void provinces(World& world, Input input) {
  std::wstring unit{input.character(), input.character(), input.character()};
  std::wstring& units = world.component.store.Provpostalstr;
  units = input.all();
  const auto found = [&] {
    return std::pair(Random::lookupProvince(world.component, unit.substr(0, 2)),
                     Random::LookupPostcode(world.component, unit));
  };
  const bool neverFirst = std::wstring_view(L"DFIOQ").find(unit.back()) != std::wstring_view::npos;
  const auto [province, postcode] = found();
  if (province) EXPECT_NE(units.find(unit.substr(0, 2)), units.npos);
  if (postcode) EXPECT_NE(units.find(unit), units.npos);
  units.resize((units.size() + 2) / 3 * 3, L'-');
  units += unit;
  EXPECT_EQ(found(), std::pair(true, !neverFirst));
}

void postOfficeBoxes(World& world, Input input) {
  const std::wstring street(input.all());
  const auto isBox = [&world](const std::wstring& text) { return Random::Has_PO_Box_Address(world.component, text); };
  std::wstring spaced = L"  ";
  for (const wchar_t c : street) spaced.append(c == L' ' ? 3 : 1, c);
  EXPECT_EQ(isBox(spaced + L" "), isBox(street)) << "blanks that do not count";
  for (const std::wstring_view word : world.component.store.postOfficeBoxWords) {
    EXPECT_EQ(isBox(std::wstring(word) + L" 12" + street), 1);
  }
}

void businessNumbers(World& world, Input input) {
  const std::wstring text(input.all());
  const bool accepted = Random::VerifyBusinessNumber(world.component, text);
  if (!accepted) return;
  ASSERT_GE(text.size(), 9U);
  EXPECT_GE(text.find(L' '), 9U) << "a blank is no part of a number";
  EXPECT_TRUE(std::ranges::any_of(text.substr(0, 9), isDigit));
  EXPECT_NE(text.substr(0, 8), std::wstring(8, text[0]));
  EXPECT_TRUE(Random::VerifyBusinessNumber(world.component, text.substr(0, 9)));
  EXPECT_TRUE(Random::VerifyBusinessNumber(world.component, text + L"X"));
}

void accounts(World& world, Input input) {
  const std::wstring_view bankId = input.text();
  const std::wstring_view account = input.all();
  const bool blank = account.find(L' ') != account.npos;
  if (blank) {
    world.messages.expect({.text = L"Please do not enter any blank characters in the account number.",
                           .icon = platform::MessageBoxes::Icon::critical});
  }
  std::wstring message;
  const std::int16_t result = Random::VerifyAccount(world.component, bankId, account, message, 0, false);
  const bool asked = !world.installation.asked.empty();
  if (asked) {
    EXPECT_EQ(result, 1) << "what the verifier answers";
    EXPECT_FALSE(isBlank(bankId));
    EXPECT_GE(account.size(), 4U);
    EXPECT_TRUE(std::ranges::all_of(account, [](wchar_t c) { return isDigit(c) || (c >= L'A' && c <= L'Z'); }));
  } else {
    EXPECT_EQ(result, isBlank(message) && !blank ? 2 : 0) << "an account that is neither asked nor complained about";
  }
}

void bankNumbers(World& world, Input input) {
  const std::wstring_view bankId = input.text();
  const std::wstring_view transit = input.text();
  const std::wstring_view account = input.all();
  std::wstring message = L"old";
  std::int16_t length = 0;
  const auto expectAskedUnless = [&](bool missing, std::int16_t result) {
    EXPECT_EQ(world.installation.asked.empty(), missing);
    EXPECT_EQ(result, missing ? 0 : 1);
    EXPECT_EQ(message.empty(), !missing);
    if (missing) EXPECT_EQ(static_cast<std::size_t>(length), message.size());
    world.installation.asked.clear();
  };
  expectAskedUnless(isBlank(bankId), Random::ValidateBankId(world.component, bankId, message, length, false));
  expectAskedUnless(isBlank(bankId) || isBlank(transit) || isBlank(account),
                    Random::ValidateBankAccount(world.component, bankId, transit, account, message, length, false));
}

void emailCharacters(World& world, Input input) {
  const std::wstring_view address = input.all();
  const bool accepted = world.form->IsEmailValid(address);
  if (accepted) {
    const auto at = address.find(L'@');
    EXPECT_EQ(std::ranges::count(address, L'@'), 1);
    EXPECT_TRUE(at > 0 && address.find(L'.', at + 2) != address.npos);
    EXPECT_EQ(address.find(L".."), address.npos);
  }
  std::wstring upper(address);
  std::ranges::transform(upper, upper.begin(), asciiUpper);
  EXPECT_EQ(world.form->IsEmailValid(upper), accepted);
}

using Cells = std::vector<std::wstring>;

Cells cellsOf(const forms::RowTable& rows) {
  Cells cells;
  for (std::size_t i = 0; i < rows.size() * rows.columns(); ++i) {
    cells.emplace_back(rows.cell(i / rows.columns(), i % rows.columns()));
  }
  return cells;
}

/// What was read and is written as a file again, is read as the same.
void countryFiles(World&, Input input) {
  const auto everyone = [](std::wstring_view code) { return code.size() == 2; };
  const forms::RowTable rows = countryRows(input.all(), everyone);
  const Cells cells = cellsOf(rows);
  ASSERT_GE(rows.size(), 2U);
  std::wstring file = L"Countries\r\n";
  for (std::size_t row = 2; row < rows.size(); ++row) {
    const std::wstring_view code = rows.cell(row, countryCode);
    EXPECT_TRUE(code.size() == 2 && isAsciiLetter(code[0]) && isAsciiLetter(code[1]));
    EXPECT_TRUE(code != L"CA" && code != L"US");
    for (std::size_t column = 0; column < rows.columns(); ++column) {
      const std::wstring_view cell = rows.cell(row, column);
      EXPECT_EQ(cell, trimmed(cell));
      file += column == 0 ? L"\"" : L",\"";
      for (const wchar_t c : cell) file.append(c == L'"' ? 2 : 1, c);
      file += L'"';
    }
    file += L"\r\n";
  }
  EXPECT_EQ(cellsOf(countryRows(file, everyone)), cells);
  EXPECT_EQ(countryRows(file, [](std::wstring_view) { return false; }).size(), 2U);
}

using Rule = void(World&, Input);
Rule* const rules[] = {cleansing,       padding,  letters,     provinces,       postOfficeBoxes,
                       businessNumbers, accounts, bankNumbers, emailCharacters, countryFiles};

std::wstring textOf(const std::uint8_t* data, std::size_t size) {
  std::wstring text;
  for (std::size_t i = 0; i < size; ++i) {
    constexpr std::uint8_t beginsTwo = 0xF0;
    if (data[i] < beginsTwo || i + 1 == size) {
      text += static_cast<wchar_t>(data[i]);
    } else {
      text += static_cast<wchar_t>((data[i] - beginsTwo) << 12 | data[i + 1]);
      ++i;
    }
  }
  return text;
}

}  // namespace

}  // namespace nv::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace nv::test;
  static World& world = []() -> World& {
    GTEST_FLAG_SET(break_on_failure, true);
    return *new World;
  }();
  if (size == 0) return 0;
  rules[data[0] % std::size(rules)](world, Input(textOf(data + 1, size - 1)));
  world.installation.asked.clear();
  return 0;
}
