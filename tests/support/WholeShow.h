// A whole show in a world of its own: a host shows a biller, and a user uses all that the dialog has, whatever fails
// meanwhile. For tests that let everything go wrong, in turn or at random.
#pragma once

#include <optional>

#include "tests/support/BillerTest.h"

namespace nv::test {

class WholeShow;

/// Which biller is shown, how, and who is asked about its account.
struct Scene {
  const char* name;
  enum Way { modal, embedded, readOnly } way;
  void (WholeShow::*biller)();
  Flag16 library = flagFalse;  // instead of the verifier
  std::int16_t style = 0;      // the third's font is still to be installed
};

class WholeShow : public BillerTest {
 public:
  explicit WholeShow(const Scene& scene);
  ~WholeShow() override { random.Unload_From_Remote(); }

  void TestBody() override {}

  /// The host shows the dialog, and the user works in it until it is closed.
  /// @return what the host is told: 0, that the user cancelled, or the run-time error that the call failed with.
  std::int32_t play();
  /// The record and the context now.
  Record record() const { return recordOf(component.store); }
  /// Whether an outside party lets user and host go on while it is asked.
  static bool letsOthersGoOn(const std::wstring& whom) {
    return !whom.starts_with(L"C:") && !whom.starts_with(L"the ");
  }

  /// Runs at each question to an outside party; what it throws, the question fails with.
  std::function<void()> whenAsked;
  /// Runs when OK has not closed the dialog; the user tries again.
  std::function<void()> whenRefused;
  /// Runs when not even the close box has closed it; afterwards it has to.
  std::function<void()> whenStuck;

  const Record before;         // as the host set it
  Texts asked;                 // whom, question by question: a procedure, the path of a file, "the machine"
  Texts boxes;                 // the message boxes that have come; each was acknowledged, or answered with yes
  std::optional<User> biller;  // in the dialog that was shown first

 private:
  Record arranged(const Scene& scene);
  void question(const std::wstring& whom);
  void work(User user);

  Scene::Way way_;
};

/// Every kind of biller, every way of showing it, every outside party.
inline constexpr Scene scenes[] = {
    {"an account for the verifier", Scene::embedded, &WholeShow::bankAccount},
    {"an account for the library", Scene::modal, &WholeShow::bankAccount, flagTrue},
    {"a person", Scene::modal, &WholeShow::individual},
    {"the United States", Scene::embedded, &WholeShow::unitedStates, flagFalse, 3},
    {"abroad", Scene::modal, &WholeShow::international},
    {"read-only", Scene::readOnly, &WholeShow::bankAccount},
};

}  // namespace nv::test
