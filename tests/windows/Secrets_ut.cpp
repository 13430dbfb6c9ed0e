// Nothing of an account number stays behind where somebody else might find it: in trace, log and temporary files, and
// in the windows that a dialog gives back.
#include <algorithm>
#include <filesystem>

#include "host/base/File.h"
#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view account = "770912345";
constexpr std::string_view transit = "38164";

/// What the hook has seen: how many windows went, and which texts went with them.
int windowsGone = 0;
std::vector<std::wstring> textsGone;

LRESULT CALLBACK watchLastMessages(int code, WPARAM wparam, LPARAM lparam) {
  const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lparam);
  if (code == HC_ACTION && message.message == WM_NCDESTROY) {
    wchar_t text[64] = L"";
    SendMessageW(message.hwnd, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    ++windowsGone;
    textsGone.emplace_back(text);
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

class Secrets : public StandInsTest {
 protected:
  Secrets() {
    SetEnvironmentVariableW(L"TMP", installation.root().c_str());  // a temporary file would be found there
    set(object.Get(), "individual");
    object->put_Add(1);
    object->put_PlayByPlayEnabled(-1);
    put(&_ClsRandom::put_PayeeBankAccount, account);
    put(&_ClsRandom::put_PayeeBankTransit, transit);
    fs::create_directories(file(L"..") / L".." / L"Norvik");  // where the trace is written
  }

  void put(HRESULT (STDMETHODCALLTYPE _ClsRandom::*setter)(BSTR), std::string_view text) {
    putText(object.Get(), setter, std::wstring(text.begin(), text.end()).c_str());
  }

  ComPtr<_ClsRandom> object = Server::get().create();
};

/// Answers every message box of the thread with OK.
LRESULT CALLBACK answerWhenActive(int code, WPARAM wparam, LPARAM lparam) {
  const HWND window = reinterpret_cast<HWND>(wparam);
  if (code == HCBT_ACTIVATE && GetDlgItem(window, IDOK) != nullptr) PostMessageW(window, WM_COMMAND, IDOK, 0);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

std::string bytesOf(const fs::path& path) {
  return host::readFile(path).value_or("");
}

/// Every file below the folder that holds the text, in either width of character.
std::vector<fs::path> holding(const fs::path& folder, std::string_view text) {
  std::string wide;
  for (const char c : text) wide += {c, '\0'};
  std::vector<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || entry.path().filename() == host::askedFile) continue;
    const std::string bytes = bytesOf(entry.path());
    if (bytes.find(text) != bytes.npos || bytes.find(wide) != bytes.npos) found.push_back(entry.path());
  }
  return found;
}

TEST_F(Secrets, WindowsAreGivenBackWithoutTheirTexts) {
  const Hook hook(SetWindowsHookExW(WH_CALLWNDPROC, watchLastMessages, nullptr, GetCurrentThreadId()));
  for (const wchar_t* const button : {L"cmd_cancel", L"cmd_ok"}) {
    windowsGone = 0;
    textsGone.clear();
    press(shownEmbedded(object.Get()), button);
    EXPECT_GT(windowsGone, 20);
    for (const std::string_view secret : {account, transit}) {
      const std::wstring text(secret.begin(), secret.end());
      EXPECT_TRUE(std::ranges::none_of(textsGone, [&](const auto& gone) { return gone.find(text) != gone.npos; }));
    }
  }
}

TEST_F(Secrets, NoFileTellsOfAnAccount) {
  const Hook hook(SetWindowsHookExW(WH_CBT, answerWhenActive, nullptr, GetCurrentThreadId()));
  for (const wchar_t* const answer :
       {L"ValidateBankAccount 0 \"no such account\"", L"ValidateBankAccount fails -2147467259 \"out of order\"",
        L"ValidateBankAccount 1"}) {
    tell(answer);
    const HWND dialog = shownEmbedded(object.Get());
    press(dialog, L"cmd_ok");
    EXPECT_EQ(IsWindow(dialog) != FALSE, !std::wstring_view(answer).ends_with(L" 1")) << answer;
    press(dialog, L"cmd_cancel");
  }
  const fs::path root = file(L"..") / L"..";
  EXPECT_FALSE(bytesOf(root / L"Norvik" / L"PBP.txt").empty());
  EXPECT_FALSE(bytesOf(root / L"error.log").empty());
  for (const std::string_view secret : {account, transit}) EXPECT_EQ(holding(root, secret), std::vector<fs::path>{});
}

}  // namespace

}  // namespace nv::windows::test
