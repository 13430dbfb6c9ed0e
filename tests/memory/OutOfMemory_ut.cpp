// Memory that runs out in the middle of a show, at each allocation in turn: nothing crashes, nothing leaks, the host
// gets an error or the dialog goes on, and the record is as it was or as it was accepted.
//
// A program of its own, since it replaces the allocator. Of a show's thousands of allocations an ordinary run tries
// some; with NVRANDOM_SECONDS in the environment it tries them all.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "tests/support/WholeShow.h"

namespace {

/// Counts down to the allocation that fails; 0 when none is to.
long untilFailure = 0;
/// Whether all that come after the first one fail, too.
bool failsOn = false;
bool failed = false;
long allocations = 0;  // so far
long alive = 0;        // not given back yet

bool refuses() {
  if (failed && failsOn) return true;
  if (untilFailure == 0 || --untilFailure > 0) return false;
  failed = true;
  return true;
}

}  // namespace

void* operator new(std::size_t size) {
  if (refuses()) throw std::bad_alloc();
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  ++allocations;
  ++alive;
  return block;
}
void operator delete(void* block) noexcept {
  if (block != nullptr) --alive;
  std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
  operator delete(block);
}

namespace nv::test {
namespace {

void memoryIsBack() {
  untilFailure = 0;
  failed = false;
}

/// Plays a show that nothing befalls, and counts its allocations.
long playWhole(WholeShow& whole, const Scene& scene) {
  const long begin = allocations;
  EXPECT_EQ(whole.play(), 0);
  const long count = allocations - begin;
  EXPECT_EQ(whole.boxes, Texts());
  EXPECT_EQ(whole.record() != whole.before, scene.way != Scene::readOnly);
  return count;
}

/// Lets the `nth` allocation of a show fail.
void harm(const Scene& scene, long nth, Record whole) {
  WholeShow show(scene);
  show.whenStuck = memoryIsBack;
  untilFailure = nth;
  const bool shown = show.play() == 0;
  memoryIsBack();
  if (scene.way == Scene::embedded) show.random.Unload_From_Remote();  // which might still be shown
  EXPECT_TRUE(show.component.forms.empty());
  if (Record now = show.record(); now != show.before) {  // accepted, with the letter where and if it arrived
    const Texts arrived = {L"pay@acme.examplex", L"pay@acme.example", L"xpay@acme.example"};
    std::wstring& email = now[L"PayeeEmail"];
    EXPECT_NE(std::ranges::find(arrived, email), arrived.end()) << email;
    email = whole[L"PayeeEmail"];
    EXPECT_EQ(now, whole) << "the record is half accepted";
  }
  EXPECT_TRUE(shown || show.play() == 0) << "showing it again fails, too";
}

class OutOfMemory : public testing::TestWithParam<bool> {};

TEST_P(OutOfMemory, HarmsNoShow) {
  failsOn = GetParam();
  const bool all = std::getenv("NVRANDOM_SECONDS") != nullptr;
  for (const Scene& scene : scenes) {
    WholeShow first(scene), whole(scene);
    playWhole(first, scene);  // what is made once and kept is made now
    const long count = playWhole(whole, scene);
    const long step = all ? 1 : 1 + count / 150;
    for (long nth = 1; nth <= count && !HasFailure(); nth += step) {
      SCOPED_TRACE(testing::Message() << scene.name << ", allocation " << nth);
      const long aliveBefore = alive;
      harm(scene, nth, whole.record());
      EXPECT_EQ(alive, aliveBefore) << "something was not given back";
    }
    printf("  %s: %ld allocations\n", scene.name, count);
  }
}

INSTANTIATE_TEST_SUITE_P(OnceAndForAll, OutOfMemory, testing::Bool());

}  // namespace
}  // namespace nv::test
