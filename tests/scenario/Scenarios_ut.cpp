// Every scenario of nvhost, played without windows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "scenario/Player.h"
#include "scenario/Text.h"
#include "scenario/native/NativeStage.h"

namespace nv::test {
namespace {

std::vector<std::filesystem::path> scenarios() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(NV_SCENARIOS)) {
    if (entry.path().extension() == ".scenario") files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

/// The sample list of countries, in the ANSI code page of western Europe.
std::wstring countries() {
  std::ifstream file(NV_COUNTRIES, std::ios::binary);
  std::wstring text;
  for (auto at = std::istreambuf_iterator<char>(file); at != std::istreambuf_iterator<char>(); ++at) {
    text += static_cast<unsigned char>(*at);
  }
  EXPECT_FALSE(text.empty());
  return text;
}

/// What this stage left out of all that was played.
std::map<std::wstring, int> passedOver;

class Scenarios : public testing::TestWithParam<std::filesystem::path> {
 protected:
  static void TearDownTestSuite() {
    std::string text;
    for (const auto& [what, count] : passedOver) {
      text += (text.empty() ? "" : ", ") + std::string(what.begin(), what.end()) + " " + std::to_string(count);
    }
    std::cout << "  passed over without windows: " << text << '\n';
  }
};

TEST_P(Scenarios, PlayWithoutWindows) {
  scenario::NativeStage stage(countries());
  scenario::Player player(stage, GetParam());
  player.renewsModels = std::getenv("NVRANDOM_RENEW") != nullptr;
  const auto failure = player.play();
  EXPECT_FALSE(failure) << failure.value_or(L"");
  for (const auto& [what, count] : player.passedOver()) passedOver[what] += count;
}

INSTANTIATE_TEST_SUITE_P(All, Scenarios, testing::ValuesIn(scenarios()), [](const auto& file) {
  std::string name = file.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});

}  // namespace
}  // namespace nv::test
