// The machine around a native scenario: the account verifier and the closed libraries, told and asked by lines of the
// same files as nvhost's stand-ins; help viewer and browser, which note what they are to show.
#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/HostInstallation.h"
#include "platform/Services.h"
#include "scenario/Answers.h"
#include "tests/support/FakeServices.h"

namespace nv::scenario {

using test::FakeFiles;

/// A host installation in memory.
class StandIns final : public platform::HostInstallation, public platform::Shell {
 public:
  /// @param root with a trailing backslash; answers, questions and notes are files there.
  StandIns(FakeFiles& files, std::wstring root) : files_(files), root_(std::move(root)) {}

  /// Whether the machine knows of an account verifier.
  bool verifierRegistered = true;
  /// The name of the window that has this handle.
  std::function<std::wstring(std::intptr_t handle)> windowName;

  /// What a library's file holds, and how the country file of a text is enciphered.
  static constexpr const wchar_t* library = L"library";
  static std::wstring enciphered(const std::wstring& text) { return L"enciphered:" + text; }

  std::unique_ptr<platform::AccountVerifier> createVerifier() override;
  std::int16_t checkBankId(const std::wstring& folder, const std::wstring& bankId) override;
  std::int16_t checkBankAccount(const std::wstring& folder, const std::wstring& bankId, const std::wstring& transit,
                                const std::wstring& account, std::wstring& message) override;
  bool decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) override;

  int open(const std::wstring& address) override;
  void showHelp(const std::wstring& file, std::uint32_t topic, std::intptr_t window) override;

  // For the verifier.

  std::optional<Answer> answerOf(const std::wstring& member) const;
  void note(const wchar_t* file, const std::wstring& line);

 private:
  void load(const std::wstring& folder, const wchar_t* name);

  FakeFiles& files_;
  std::wstring root_;
  std::set<std::wstring> loaded_;
};

}  // namespace nv::scenario
