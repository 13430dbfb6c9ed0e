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

/// A show, and a user who does something of everything in it.
class Show : public WholeShow {
 public:
  explicit Show(const std::function<void(Show&)>& arrange = nullptr) {
    widgetset.whenAnyModal = [this](User& user) { work(user); };
    if (arrange) arrange(*this);
    before = record();
  }

  /// What every user does in every dialog, as far as it has it: looks at the cheque and the foreign bank, types a
  /// letter, presses OK, cancels and closes.
  void work(User& user) {
    attempt([&] {
      if (tryToClick(user, typedInto) && user.open() && user.control(typedInto).hasFocus()) user.type(L"x");
    });
    for (const wchar_t* button : {L"cmdCheque", L"cmdFXBankingInfo", L"cmd_ok", L"cmd_ok", L"cmd_cancel"}) {
      attempt([&] { tryToClick(user, button); });
    }
    if (user.open()) attempt([&] { user.closeBox(); });
    if (!user.open()) return;
    memoryIsBack();
    user.closeBox();
  }

  /// A failure that comes out of a call is the host's to handle.
  template <class Act>
  bool attempt(Act&& act) {
    try {
      act();
      return true;
    } catch (const UserGaveUp&) {
      throw;
    } catch (...) {
      return false;
    }
  }

  static void memoryIsBack() {
    untilFailure = 0;
    failed = false;
  }

  static constexpr const wchar_t* typedInto = L"ran_payee_email";

 private:
  /// Clicks if a user can: a dialog that was set up without memory may lack what is to be clicked.
  static bool tryToClick(User& user, const wchar_t* name) {
    if (!user.open()) return false;
    for (const forms::Control* control : user.form().controls()) {
      if (control->fullName() != name || !control->reachable()) continue;
      user.click(name);
      return true;
    }
    return false;
  }
};

struct Mode {
  const char* name;
  bool accepted;  // by OK, unharmed
  std::function<void(Show&)> arrange;
  std::function<void(Show&)> show;
};

const Mode modes[] = {
    {"modal", true, [](Show& show) { show.bankAccount(); }, [](Show& show) { show.random.ShowForm(); }},
    {"embedded", true, [](Show& show) { show.individual(); },
     [](Show& show) {
       show.random.ShowForm_Remote();
       User user = show.widgetset.user(L"frmRandomInfo");
       show.work(user);
     }},
    {"international", true, [](Show& show) { show.international(); }, [](Show& show) { show.random.ShowForm(); }},
    {"United States", false, [](Show& show) { show.unitedStates(); }, [](Show& show) { show.random.ShowForm(); }},
    {"read-only", false, [](Show& show) { show.bankAccount(); }, [](Show& show) { show.random.ShowForm_Import(); }},
};

/// What a show that nothing befell leaves, and how many allocations it takes.
struct Unharmed {
  Texts record;
  long allocations = 0;
};

Unharmed unharmed(const Mode& mode) {
  Show show(mode.arrange);
  const long begin = allocations;
  mode.show(show);
  const long count = allocations - begin;
  EXPECT_EQ(show.boxes, Texts()) << mode.name;
  EXPECT_EQ(show.component.store.PayeeEmail == L"pay@acme.examplex", mode.accepted) << mode.name;
  return {show.record(), count};
}

/// Lets the `nth` allocation of a show fail.
void harm(const Mode& mode, long nth, const Unharmed& whole) {
  Show show(mode.arrange);
  untilFailure = nth;
  const bool returned = show.attempt([&] { mode.show(show); });
  Show::memoryIsBack();
  show.random.Unload_From_Remote();
  std::wstring& email = show.component.store.PayeeEmail;
  if (show.record() != show.before) {  // accepted, with the letter where and if it arrived
    const Texts arrived = {L"pay@acme.examplex", L"pay@acme.example", L"xpay@acme.example"};
    EXPECT_NE(std::ranges::find(arrived, email), arrived.end()) << email;
    email = arrived.front();
    EXPECT_EQ(show.record(), whole.record) << "the record is half accepted";
  }
  EXPECT_TRUE(returned || show.attempt([&] { mode.show(show); })) << "showing it again fails, too";
  show.random.Unload_From_Remote();
}

class OutOfMemory : public testing::TestWithParam<bool> {};

TEST_P(OutOfMemory, HarmsNoShow) {
  failsOn = GetParam();
  const bool all = std::getenv("NVRANDOM_SECONDS") != nullptr;
  for (const Mode& mode : modes) {
    unharmed(mode);  // what is made once and kept is made now
    const Unharmed whole = unharmed(mode);
    const long step = all ? 1 : 1 + whole.allocations / 150;
    for (long nth = 1; nth <= whole.allocations && !HasFailure(); nth += step) {
      SCOPED_TRACE(testing::Message() << mode.name << ", allocation " << nth);
      const long aliveBefore = alive;
      harm(mode, nth, whole);
      EXPECT_EQ(alive, aliveBefore) << "something was not given back";
    }
    printf("  %s: %ld allocations\n", mode.name, whole.allocations);
  }
}

INSTANTIATE_TEST_SUITE_P(OnceAndForAll, OutOfMemory, testing::Bool());

}  // namespace
}  // namespace nv::test
