// A form with one of each thing that the rules of the toolkit speak of, and a journal of what happens to it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/FormList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextField.h"
#include "forms/Toggle.h"
#include "tests/support/Expect.h"
#include "tests/support/User.h"
#include "tests/support/Windowless.h"

namespace nv::test {

class SampleForm : public forms::Form {
 public:
  SampleForm(forms::Widgetset& widgetset, forms::FormList& loadedForms, std::wstring_view windowName,
             forms::Border border = forms::Border::dialog)
      : Form(widgetset, loadedForms, L"Sample", windowName, border) {
    leave.setCancels(true);
    for (forms::Control* control : controls()) {
      const auto note = [this, name = control->fullName()](const wchar_t* what) {
        return [this, name, what] { journal.push_back(name + what); };
      };
      control->gotFocus = note(L" got focus");
      control->lostFocus = note(L" lost focus");
      control->click = note(L" click");
      if (auto* field = dynamic_cast<forms::TextField*>(control)) field->change = note(L" change");
    }
  }

  // In tab order.
  forms::Label lblFirst{*this, L"lblFirst", L"&First:"};
  forms::TextBox first{*this, L"first"};
  forms::Frame box{*this, L"box", L"Fish && ch&ips"};
  forms::TextBox second{box, L"second"};
  forms::OptionButton optA{box, {L"opt", 0}, L"&A"};
  forms::OptionButton optB{box, {L"opt", 1}, L"&B"};
  forms::OptionButton optC{box, {L"opt", 2}, L"C"};
  forms::OptionButton optOutside{*this, L"optOutside", L"Outside"};
  forms::Label lblTick{*this, L"lblTick", L"&Please tick:"};
  forms::CheckBox tick{*this, L"tick", L"&Tick"};
  forms::ComboBox combo{*this, L"combo"};
  forms::DropDownList list{*this, L"list", {{L"Country", 2000}, {L"Code", 600}}, 1};
  forms::Button go{*this, L"go", L"&Go"};
  forms::Hyperlink link{*this, L"link", L"More"};
  forms::Button leave{*this, L"leave", L"Leave"};

  Texts journal;
  std::vector<std::int32_t> failures;  // the numbers of the run-time errors that came out of what the user did
  std::function<void()> whenLoading;
  std::function<void()> whenActivated;
  std::function<void(bool& cancel, forms::UnloadMode mode)> whenAsked;
  std::function<void(wchar_t& key)> whenKeyPressed;

  void failed(const RuntimeError& error) noexcept override { failures.push_back(error.number()); }

 protected:
  void Form_Load() override {
    journal.push_back(L"Load");
    if (whenLoading) whenLoading();
  }
  void Form_Activate() override {
    journal.push_back(L"Activate");
    if (whenActivated) whenActivated();
  }
  void Form_QueryUnload(bool& cancel, forms::UnloadMode mode) override {
    journal.push_back(L"QueryUnload " + std::to_wstring(static_cast<int>(mode)));
    if (whenAsked) whenAsked(cancel, mode);
  }
  void Form_KeyPress(wchar_t& key) override {
    if (whenKeyPressed) whenKeyPressed(key);
  }
};

class FormTest : public testing::Test {
 protected:
  std::shared_ptr<SampleForm> make(std::wstring_view windowName) {
    return std::make_shared<SampleForm>(widgetset, forms, windowName);
  }
  /// The user of the form, shown; the journal begins afterwards.
  User shown() {
    form->show();
    form->journal.clear();
    return User(widgetset, *form);
  }

  WindowlessWidgetset widgetset;
  forms::FormList forms;
  std::shared_ptr<SampleForm> form = make(L"sample");
};

}  // namespace nv::test
