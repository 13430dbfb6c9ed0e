// A show in a world of its own that goes on whatever fails in it. For tests that let everything fail in turn.
#pragma once

#include "tests/support/BillerTest.h"

namespace nv::test {

class WholeShow : public BillerTest {
 public:
  WholeShow() {
    messages.answerAny = [this](std::wstring_view text, platform::MessageBoxes::Buttons buttons) {
      boxes.emplace_back(text);
      return buttons == platform::MessageBoxes::Buttons::ok ? platform::MessageBoxes::Answer::ok
                                                            : platform::MessageBoxes::Answer::yes;
    };
  }

  void TestBody() override {}

  /// Every text of the record and the context now.
  Texts record() const { return texts(component.store); }

  using BillerTest::bankAccount;
  using BillerTest::component;
  using BillerTest::host;
  using BillerTest::individual;
  using BillerTest::international;
  using BillerTest::random;
  using BillerTest::unitedStates;
  using BillerTest::widgetset;

  Texts before;  // the record as the host set it
  Texts boxes;   // the message boxes that have come; each was acknowledged, or answered with yes
};

}  // namespace nv::test
