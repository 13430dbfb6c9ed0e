// Arbitrary texts for every text rule. No input may crash a rule or make it report an error; what was cleaned, padded
// or read once stays as it is the second time. What the rules say stands in tests/validation and tests/dialogs.
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

void cleansing(World& world, Input input) {
  const std::wstring cleansed = Random::CleanseCharacters(world.component, input.all());
  EXPECT_EQ(Random::CleanseCharacters(world.component, cleansed), cleansed);
}

void padding(World& world, Input input) {
  const int length = input.character() - 16;
  for (const auto pad : {Random::PadLeft, Random::PadRight}) {
    const std::wstring padded = pad(world.component, input.all(), length);
    EXPECT_EQ(pad(world.component, padded, length), padded);
  }
}

void addresses(World& world, Input input) {
  Store& store = world.component.store;
  std::wstring message;
  store.Provpostalstr = input.text();
  Random::lookupProvince(world.component, input.all());
  Random::LookupPostcode(world.component, input.all());
  Random::IsAlpha(world.component, input.all());
  Random::Has_PO_Box_Address(world.component, input.all());
  world.form->IsEmailValid(input.all());
  world.form->ValidateEmailAddress(input.all(), message, false);
  world.form->ValidateWebsite(input.all(), message);
}

/// A number that is accepted is accepted whatever follows its nine characters.
void businessNumbers(World& world, Input input) {
  const std::wstring text(input.all());
  if (!Random::VerifyBusinessNumber(world.component, text)) return;
  EXPECT_TRUE(Random::VerifyBusinessNumber(world.component, text.substr(0, 9)));
  EXPECT_TRUE(Random::VerifyBusinessNumber(world.component, text + L"X"));
}

void accounts(World& world, Input input) {
  const std::wstring_view bankId = input.text();
  const std::wstring_view transit = input.text();
  const std::wstring_view account = input.all();
  std::wstring message;
  std::int16_t length = 0;
  if (account.find(L' ') != account.npos) {
    world.messages.expect({.text = L"Please do not enter any blank characters in the account number.",
                           .icon = platform::MessageBoxes::Icon::critical});
  }
  Random::VerifyAccount(world.component, bankId, account, message, 0, false);
  Random::ValidateBankId(world.component, bankId, message, length, false);
  Random::ValidateBankAccount(world.component, bankId, transit, account, message, length, false);
  Random::ValidateABANumber(world.component, account, false);
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
    for (std::size_t column = 0; column < rows.columns(); ++column) {
      const std::wstring_view cell = rows.cell(row, column);
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
Rule* const rules[] = {cleansing, padding, addresses, businessNumbers, accounts, countryFiles};

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
