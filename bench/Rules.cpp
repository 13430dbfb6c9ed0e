// The rules by themselves, on a machine in memory where they need one.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench/Rows.h"
#include "bench/Workplace.h"
#include "component/core/Trace.h"
#include "dialogs/biller/CountryFile.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "tests/support/BillerTest.h"
#include "windows/services/Files.h"

namespace nv::bench {

namespace {

class World : public test::BillerTest {
 public:
  void TestBody() override {}

  using BillerTest::component;
};

/// A deciphered country file, for as long as it lives.
class CountryText {
 public:
  explicit CountryText(std::size_t rows) : path_(L"nvbench.countries." + std::to_wstring(rows)), rows_(rows) {
    const std::string text = countries(rows);
    std::ofstream(path_, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
  }
  ~CountryText() { std::filesystem::remove(path_); }
  CountryText(const CountryText&) = delete;
  CountryText& operator=(const CountryText&) = delete;

  /// From the file to the rows of the list.
  Sample loading() const {
    return repeated([path = path_.wstring()] {
      windows::Files files;
      opaque(countryRows(files.read(path), [](std::wstring_view) { return true; }).size());
    });
  }
  Sample loadingOneRow() const {
    return [load = loading(), rows = rows_] { return load() / static_cast<double>(rows); };
  }
  Sample reading() const {
    return repeated([path = path_.wstring()] { opaque(Lines(path.c_str()).count()); });
  }

 private:
  std::filesystem::path path_;
  std::size_t rows_;
};

/// What a trace that is switched off must do at the least, for a call that the compiler does not see through.
[[gnu::noinline]] void lookAt(const std::int16_t& flag) {
  if (*opaque(&flag) != 0) opaque(0);
}

}  // namespace

Comparison mailCheck() {
  World world;
  const auto form = std::make_shared<frmRandomInfo>(world.component, forms::Border::dialog);
  const std::wstring address = L"accounts.receivable@lakehead-hydro.example";
  std::wstring message;
  return compare(repeated([&] { form->ValidateEmailAddress(address, message, false); }), repeated([&] {
                   std::size_t letters = 0;
                   for (const wchar_t c : *opaque(&address)) letters += c >= L'a' && c <= L'z' ? 1 : 0;
                   opaque(letters);
                 }));
}

Comparison switchedOffTrace() {
  World world;
  constexpr int calls = 1000;
  return compare(repeated([&] {
                   for (int i = 0; i < calls; ++i) trace(*opaque(&world.component), L"RandomInfo - cmd_ok_Click");
                 }),
                 repeated([&] {
                   for (int i = 0; i < calls; ++i) lookAt(*opaque(&world.component.store.PlayByPlayEnabled));
                 }));
}

Comparison countryFile(std::size_t rows) {
  const CountryText text(rows);
  return compare(text.loading(), text.reading(), 31);
}

Comparison countryFileGrowth() {
  const CountryText large(100'000);
  const CountryText small(10'000);
  return compare(large.loadingOneRow(), small.loadingOneRow(), 31);
}

}  // namespace nv::bench
