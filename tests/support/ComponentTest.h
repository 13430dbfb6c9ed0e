// What tests of the component share: a component on a machine in memory, and a host that writes down the events it
// gets.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "component/ClsRandom.h"
#include "component/core/Component.h"
#include "tests/support/Expect.h"
#include "tests/support/FakeInstallation.h"
#include "tests/support/FakeServices.h"
#include "tests/support/User.h"
#include "tests/support/Windowless.h"

namespace nv::test {

/// The host's side of the events.
class Host : public ClsRandomEvents {
 public:
  Texts events;                    // in order, but for the tops
  std::vector<std::int16_t> tops;  // of the fields that got the focus, in twips
  std::function<void()> whenTold;
  std::function<void()> whenFocusMoves;

  void CSBOK() override { told(L"CSBOK"); }
  void CurrentFieldTop(std::int16_t top) override {
    tops.push_back(top);
    if (whenFocusMoves) whenFocusMoves();
  }
  void Cancel() override { told(L"Cancel"); }
  void ViewSampleCheque() override { told(L"ViewSampleCheque"); }

 private:
  void told(std::wstring event) {
    events.push_back(std::move(event));
    if (whenTold) whenTold();
  }
};

class ComponentTest : public testing::Test {
 public:
  ~ComponentTest() override { EXPECT_TRUE(component.forms.empty()) << "a form outlived whoever showed it"; }

  static constexpr const wchar_t* dllPath = L"C:\\Apps\\NORVIK\\Bin";
  static constexpr const wchar_t* countryFile = L"C:\\Apps\\NORVIK\\Bin\\FXCountries";
  static constexpr const wchar_t* decipheredFile = L"C:\\Apps\\NORVIK\\Bin\\FXCountries.dec";
  static constexpr const wchar_t* traceFile = L"C:\\Apps\\Norvik\\PBP.txt";
  static constexpr const wchar_t* errorLog = L"C:\\Apps\\error.log";

  /// A whole installation: a folder, and a country file that can be deciphered.
  void install() {
    files.makeFolder(dllPath);
    files.put(countryFile, L"enciphered");
    installation.decipher = [this](const std::wstring& /*from*/, const std::wstring& to) { files.put(to, countries); };
    component.store.DLLPath = dllPath;
  }
  /// An installation with the trace switched on.
  void startTrace() {
    files.makeFolder(dllPath);
    component.store.DLLPath = dllPath;
    component.store.PlayByPlayEnabled = flagTrue;
  }
  /// The labels traced since the last call, in order.
  Texts traced() {
    const std::wstring begin = machine.clock + L" NVRANDOM - ";
    Texts labels;
    const std::wstring trace = files.text(traceFile);
    for (std::size_t at = 0; at < trace.size();) {
      const std::size_t end = trace.find(L"\r\n", at);
      const std::wstring line = trace.substr(at, end - at);
      labels.push_back(line.starts_with(begin) ? line.substr(begin.size()) : line);
      at = end == std::wstring::npos ? trace.size() : end + 2;
    }
    files.put(traceFile, {});
    return labels;
  }

  /// What the country file holds.
  std::wstring countries =
      L"Countries\r\nCanada,CA,1\r\nFrance,FR,33\r\n\"Korea, Republic of\",KR,82\r\nSwitzerland,CH,41\r\n"
      L"United States,US,1\r\n";

  FakeMessageBoxes messages;
  FakeFiles files;
  FakeMachine machine;
  FakeShell shell;
  FakeInstallation installation;
  const platform::Services services{messages, files, machine, shell, installation};
  WindowlessWidgetset widgetset;
  Component component{services, widgetset};
  Host host;
};

}  // namespace nv::test
