// Threads that come and go: short apartments that end while others work.
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>
#include <utility>

#include "host/application/Automation.h"
#include "tests/windows/Server.h"

namespace nv::windows::test {

namespace {

/// What a script does: makes an object, sets a value by name and lets go of the object.
/// @return whether the record held nothing before.
bool useLateBound() {
  const auto object = Server::get().create();
  const bool empty = getText(object.Get(), &_ClsRandom::get_PayeeCity).empty();
  host::putProperty(*object.Get(), L"PayeeCity", std::wstring(L"KENORA"));
  return empty;
}

/// How many apartments come and go: many in the long run, else enough for what stops them for ever.
int apartmentsWanted() {
  return std::getenv("NVRANDOM_SHOWS") != nullptr ? 10'000 : 400;
}

/// A thread ends under the system's loader lock, which others need to read the type library.
TEST(Threads, EndWhileOthersMakeLateBoundCalls) {
  Server::get();
  const int wanted = apartmentsWanted();
  std::atomic<int> begun = 0;
  std::atomic<int> notEmpty = 0;
  std::atomic<int> calls = 0;
  const auto comeAndGo = [&] {
    while (begun++ < wanted) {
      std::thread([&] {
        const Apartment apartment;
        if (!useLateBound()) ++notEmpty;
      }).join();
    }
  };
  const auto call = [&] {
    const Apartment apartment;
    for (; begun < wanted; ++calls) useLateBound();
  };
  std::future<void> threads[] = {std::async(std::launch::async, comeAndGo), std::async(std::launch::async, comeAndGo),
                                 std::async(std::launch::async, call), std::async(std::launch::async, call)};
  for (const std::future<void>& thread : threads) {
    int before = -1;
    while (thread.wait_for(std::chrono::seconds(20)) == std::future_status::timeout) {
      if (begun == std::exchange(before, begun)) {
        printf("  after %d apartments all threads stand still\n", before);
        fflush(stdout);
        TerminateProcess(GetCurrentProcess(), 1);  // nothing else ends a process whose loader lock is held
      }
    }
  }
  EXPECT_EQ(notEmpty, 0) << "a thread begins with a record of its own";
  printf("  after %d apartments, with %d late-bound calls beside them, all threads have ended\n", wanted, calls.load());
}

}  // namespace

}  // namespace nv::windows::test
