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
  std::wstring texts;
  for (std::int32_t number = 0; number < 1000; ++number) {
    const RuntimeError error(static_cast<ErrorNumber>(number));
    if (error.description() != L"Automation error") texts += std::to_wstring(number).append(error.description());
  }
  EXPECT_EQ(texts,
            L"5Invalid procedure call or argument7Out of memory9Subscript out of range13Type mismatch"
            L"48Error in loading DLL53File not found70Permission denied75Path/File access error76Path not found"
            L"94Invalid use of Null429ActiveX component can't create object453Can't find DLL entry point");
}

}  // namespace nv::test
