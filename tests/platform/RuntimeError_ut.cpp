#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace nv::test {

TEST(RuntimeError, StandsForWhateverWasThrown) {
  struct Case {
    std::function<void()> fails;
    std::int32_t number;
    std::wstring description;
  };
  const Case cases[] = {
      {[] { throw RuntimeError(ErrorNumber::typeMismatch); }, 13, L"Type mismatch"},
      {[] { throw RuntimeError(-2147467259, L"Unspecified error"); }, -2147467259, L"Unspecified error"},
      {[] { throw RuntimeError(-2147467259, L""); }, -2147467259, L""},
      {[] { throw RuntimeError(1234, L"the server's own"); }, 1234, L"the server's own"},
      {[] { throw std::bad_alloc(); }, 7, L"Out of memory"},
      {[] { static_cast<void>(std::wstring(std::wstring().max_size() + 1, L' ')); }, 7, L"Out of memory"},
      {[] { static_cast<void>(std::vector<int>(3).at(3)); }, 9, L"Subscript out of range"},
      {[] { throw std::runtime_error("any other"); }, 5, L"Invalid procedure call or argument"},
      {[] { throw 1; }, 5, L"Invalid procedure call or argument"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.number);
    try {
      c.fails();
      FAIL();
    } catch (...) {
      const RuntimeError error = RuntimeError::current();
      EXPECT_EQ(error.number(), c.number);
      EXPECT_EQ(error.description(), c.description);
    }
  }
}

}  // namespace nv::test
