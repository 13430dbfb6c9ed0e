#include "component/core/StringArray.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/Expect.h"

namespace nv::test {
namespace {

TEST(StringArray, HasOneElementForEachSubscriptWithinItsBounds) {
  StringArray array({{-1, 1}, {2, 3}});
  std::int32_t n = 0;
  for (std::wstring& element : array.elements()) element = std::to_wstring(n++);
  EXPECT_EQ(n, 6);
  EXPECT_EQ(array.at({-1, 2}), L"0");
  EXPECT_EQ(array.at({0, 2}), L"1");
  EXPECT_EQ(array.at({-1, 3}), L"3");
  EXPECT_EQ(array.at({1, 3}), L"5");
}

TEST(StringArray, RefusesEverySubscriptOutsideItsBounds) {
  const StringArray array({{-1, 1}, {2, 3}});
  const StringArray none;
  const StringArray empty({{0, -1}});
  const std::function<void()> uses[] = {
      [&] { array.at({-2, 2}); }, [&] { array.at({2, 2}); },    [&] { array.at({0, 1}); }, [&] { array.at({0, 4}); },
      [&] { array.at({0}); },     [&] { array.at({0, 2, 0}); }, [&] { array.at({}); },     [&] { array.bounds(2); },
      [&] { none.at({}); },       [&] { none.at({0}); },        [&] { none.bounds(0); },   [&] { empty.at({0}); },
      [&] { empty.at({-1}); },
  };
  for (std::size_t i = 0; i < std::size(uses); ++i) EXPECT_EQ(errorOf(uses[i]), 9) << "use " << i;
  EXPECT_EQ(errorOf([] { StringArray({{0, 0x7FFFFFFF}, {0, 0x7FFFFFFF}, {0, 3}}); }), 7) << "2 to the power of 64";
}

}  // namespace
}  // namespace nv::test
