// The rules by themselves, on a machine in memory where they need one.
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Rows.h"
#include "component/core/Trace.h"
#include "dialogs/biller/CountryFile.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "forms/Button.h"
#include "tests/support/BillerTest.h"
#include "windows/services/Files.h"

namespace nv::bench {

namespace {

class World : public test::BillerTest {
 public:
  void TestBody() override {}

  using BillerTest::component;
  using BillerTest::files;

  /// A dialog that is accepted as soon as OK is pressed, without anybody outside being asked.
  forms::Button& ok() {
    const auto user = shown();
    return dynamic_cast<forms::Button&>(user.control(L"cmd_ok"));
  }
  /// How many lines an acceptance writes into the trace.
  std::size_t tracedLines() {
    forms::Button& button = ok();
    component.store.PlayByPlayEnabled = flagTrue;
    const std::size_t before = files.written().size();
    button.press();
    component.store.PlayByPlayEnabled = flagFalse;
    if (!component.forms.empty()) throw std::runtime_error("the biller is not accepted");
    return files.written().size() - before;
  }
};

/// A deciphered country file, for as long as it lives.
class CountryText {
 public:
  explicit CountryText(std::size_t rows) : path_(L"nvbench.countries." + std::to_wstring(rows)) {
    std::ofstream file(path_, std::ios::binary);
    file << "Countries\r\n";
    for (std::size_t row = 0; row < rows; ++row) {
      const char code[] = {static_cast<char>('A' + row / 26 % 26), static_cast<char>('A' + row % 26), '\0'};
      file << "Country number " << row << ',' << code << ',' << row % 1000 << "\r\n";
    }
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
  /// The file's lines, kept as they are.
  Sample reading() const {
    return repeated([path = path_] {
      std::ifstream file(path, std::ios::binary);
      std::vector<std::string> lines;
      for (std::string line; std::getline(file, line);) lines.push_back(line);
      opaque(lines.size());
    });
  }
  /// Its bytes alone, which nobody looks at.
  Sample fetching() const {
    return repeated([path = path_] {
      std::string bytes(static_cast<std::size_t>(std::filesystem::file_size(path)), '\0');
      std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      opaque(bytes.size());
    });
  }

 private:
  std::filesystem::path path_;
};

}  // namespace

Medians mailCheck() {
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

Medians switchedOffTraceOfAcceptance() {
  World world;
  const std::size_t lines = world.tracedLines();
  const auto accepting = [&world](std::size_t furtherTraces) {
    forms::Button& ok = world.ok();
    return timed([&] {
      ok.press();
      for (std::size_t i = 0; i < furtherTraces; ++i) trace(*opaque(&world.component), L"RandomInfo - cmd_ok_Click");
    });
  };
  return compare([&] { return accepting(lines); }, [&] { return accepting(0); }, 501);
}

Medians countryFile(std::size_t rows) {
  const CountryText text(rows);
  return compare(text.loading(), text.reading(), 31);
}

Medians countryFileBesideItsBytes() {
  const CountryText text(100'000);
  return compare(text.loading(), text.fetching(), 31);
}

Medians countryFileGrowth() {
  constexpr std::size_t many = 100'000;
  constexpr std::size_t fewer = 10'000;
  const CountryText large(many);
  const CountryText small(fewer);
  const Medians took = compare(large.loading(), small.loading(), 31);
  return {took.ours / many, took.bare / fewer};
}

}  // namespace nv::bench
