// What the user waits for: the dialog on the screen, a character in a field, and OK.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/PlainDialog.h"
#include "bench/Rows.h"
#include "bench/Workplace.h"
#include "tests/windows/Server.h"
#include "windows/ThreadWindows.h"

namespace nv::bench {

using windows::ComPtr;
using windows::Hook;
using windows::test::findControl;

namespace {

/// Works off everything that is due, painting included.
void settle() {
  for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// The host's window.
class HostWindow {
 public:
  HostWindow()
      : window_(CreateWindowW(L"STATIC", L"nvbench", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, 1200,
                              900, nullptr, nullptr, nullptr, nullptr)) {
    SetForegroundWindow(window_);
    settle();
  }
  ~HostWindow() { DestroyWindow(window_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;
  HWND get() const { return window_; }

 private:
  HWND window_;
};

HWND dialogOfThread() {
  HWND dialog = nullptr;
  windows::forEachThreadWindow([&dialog](HWND window) {
    if (GetPropW(window, L"NVRandom.Name") != nullptr) dialog = window;
    return dialog == nullptr;
  });
  return dialog;
}

std::function<void(HWND)> whenShown;

/// The dialog's own loop has taken its first message: from here on the dialog is in the test's hands.
LRESULT CALLBACK loopRuns(int code, WPARAM wparam, LPARAM lparam) {
  if (code != MSGF_DIALOGBOX || !whenShown) return CallNextHookEx(nullptr, code, wparam, lparam);
  const auto act = std::exchange(whenShown, nullptr);
  const auto& message = *reinterpret_cast<const MSG*>(lparam);
  TranslateMessage(&message);
  DispatchMessageW(&message);
  settle();
  act(dialogOfThread());
  return TRUE;
}

/// Shows the dialog modally; once it is painted `act` does what is wanted with it, then it is closed if it is still
/// there.
void show(_ClsRandom* object, const std::function<void(HWND)>& act) {
  const Hook hook(SetWindowsHookExW(WH_MSGFILTER, loopRuns, nullptr, GetCurrentThreadId()));
  whenShown = [&act](HWND dialog) {
    act(dialog);
    if (IsWindow(dialog)) PostMessageW(dialog, WM_CLOSE, 0, 0);
  };
  long result = 0;
  EXPECT_HRESULT_SUCCEEDED(object->ShowForm(&result));
}

/// From the call to the painted dialog.
double opening(_ClsRandom* object) {
  double took = 0;
  const auto start = Clock::now();
  show(object, [&](HWND) { took = secondsSince(start); });
  settle();
  return took;
}

/// The same of the plain dialog.
double opening(
    const PlainDialog& plain, HWND host, const std::function<void()>& andThen = [] {}) {
  const auto start = Clock::now();
  const HWND dialog = made(plain, host);
  ShowWindow(dialog, SW_SHOW);
  if (GetAncestor(dialog, GA_PARENT) == GetDesktopWindow()) SetForegroundWindow(dialog);
  settle();
  andThen();
  const double took = secondsSince(start);
  DestroyWindow(dialog);
  settle();
  return took;
}

/// The embedded dialog, shown in the host's window and painted, until it is accepted or this is gone.
class Embedded {
 public:
  Embedded(_ClsRandom* object, HWND host) : object_(object) {
    long result = 0;
    EXPECT_HRESULT_SUCCEEDED(object->Get_hWnd(&result));
    window_ = reinterpret_cast<HWND>(static_cast<LONG_PTR>(result));
    SetParent(window_, host);
    EXPECT_HRESULT_SUCCEEDED(object->ShowForm_Remote(&result));
    settle();
  }
  ~Embedded() {
    object_->Unload_From_Remote();
    settle();
  }
  Embedded(const Embedded&) = delete;
  Embedded& operator=(const Embedded&) = delete;
  HWND window() const { return window_; }
  HWND control(const wchar_t* name) const { return findControl(window_, name); }

 private:
  _ClsRandom* object_;
  HWND window_ = nullptr;
};

PlainDialog plainDialogOf(_ClsRandom* object) {
  PlainDialog plain;
  show(object, [&](HWND dialog) { plain = plainDialog(dialog); });
  settle();
  return plain;
}

/// Drops the list down. Returns its windows.
COMBOBOXINFO dropped(HWND list) {
  SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  if (SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == 0) throw std::runtime_error("the list does not drop down");
  settle();
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof(parts);
  SendMessageW(list, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&parts));
  return parts;
}

/// Types a key, until what comes of it is on the screen.
void strike(HWND window, WPARAM key) {
  PostMessageW(window, WM_KEYDOWN, key, 1);
  PostMessageW(window, WM_KEYUP, key, 1);
  settle();
}

/// A letter that is typed into an empty field, or taken back, until that is on the screen.
double typing(HWND edit) {
  SetForegroundWindow(GetAncestor(edit, GA_ROOT));
  SetFocus(edit);
  SetWindowTextW(edit, L"");
  const auto type = [edit](WPARAM key, int length) {
    strike(edit, key);
    if (GetWindowTextLengthW(edit) != length) throw std::runtime_error("what is typed does not arrive");
  };
  settle();
  constexpr int letters = 20;
  const double took = timed([&] {
    for (int i = 0; i < letters; ++i) {
      type('Q', 1);
      type(VK_BACK, 0);
    }
  });
  return took / (2 * letters);
}

/// Where the plain dialog is handed to the processes that open it once.
const char* const plainFile = "nvbench.dialog";

/// Listens for CSBOK.
class Accepted {
 public:
  explicit Accepted(_ClsRandom* object) : point_(windows::test::eventsOf(object)) {
    EXPECT_HRESULT_SUCCEEDED(point_->Advise(&sink_, &cookie_));
  }
  ~Accepted() { point_->Unadvise(cookie_); }
  Accepted(const Accepted&) = delete;
  Accepted& operator=(const Accepted&) = delete;

  Clock::time_point when{};

 private:
  windows::test::Sink sink_{[this](DISPID event, const DISPPARAMS&) {
    if (event == 1) when = Clock::now();
    return S_OK;
  }};
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

const wchar_t* const fields[] = {
    L"ran_payee_street",    L"ran_payee_city",    L"ran_payee_prov",  L"ran_payee_country",  L"ran_payee_postal",
    L"cmbCurrencyCode",     L"ran_payee_ph_area", L"ran_payee_phone", L"ran_payee_fax_area", L"ran_payee_faxnumber",
    L"txtPhoneCountryCode", L"txtFaxCountryCode", L"ran_payee_email", L"ran_payee_www",      L"ran_payee_contact",
    L"txtBusinessNum",      L"txtTransit",        L"txtBankID",       L"txtAccount"};

}  // namespace

const Alone openDialog{L"--open", [] {
                         const HostWindow host;
                         return opening(Workplace(L"openDialog").object().Get());
                       }};
const Alone openPlainDialog{
    L"--open-plain", [] {
      const HostWindow host;
      PlainDialog plain(static_cast<std::size_t>(std::filesystem::file_size(plainFile)) / sizeof(WORD));
      std::ifstream(plainFile, std::ios::binary)
          .read(reinterpret_cast<char*>(plain.data()), static_cast<std::streamsize>(plain.size() * sizeof(WORD)));
      return opening(plain, host.get());
    }};

Comparison firstOpening() {
  {
    const HostWindow host;
    const PlainDialog plain = plainDialogOf(Workplace(L"firstOpening").object().Get());
    std::ofstream(plainFile, std::ios::binary)
        .write(reinterpret_cast<const char*>(plain.data()), static_cast<std::streamsize>(plain.size() * sizeof(WORD)));
  }
  const Comparison took = compare([] { return elsewhere(openDialog); }, [] { return elsewhere(openPlainDialog); }, 15);
  std::filesystem::remove(plainFile);
  return took;
}

Comparison nextOpening() {
  const HostWindow host;
  const Workplace workplace(L"nextOpening");
  const auto object = workplace.object();
  const PlainDialog plain = plainDialogOf(object.Get());
  return compare([&] { return opening(object.Get()); }, [&] { return opening(plain, host.get()); }, 41);
}

Comparison embeddedOpening() {
  const HostWindow host;
  const Workplace workplace(L"embeddedOpening");
  const auto object = workplace.object();
  const PlainDialog plain = plainDialog(Embedded(object.Get(), host.get()).window());
  return compare(
      [&] {
        const auto start = Clock::now();
        const Embedded dialog(object.Get(), host.get());
        return secondsSince(start);
      },
      [&] { return opening(plain, host.get()); }, 41);
}

Comparison countryList(std::size_t rows) {
  const HostWindow host;
  const Workplace workplace(L"countryList." + std::to_wstring(rows), rows);
  const auto object = workplace.object();
  PlainDialog plain;
  RECT place{};
  const auto ours = [&] {
    const auto start = Clock::now();
    const Embedded dialog(object.Get(), host.get());
    const COMBOBOXINFO list = dropped(dialog.control(L"ran_payee_country"));
    const double took = secondsSince(start);
    GetWindowRect(list.hwndList, &place);
    if (plain.empty()) plain = plainDialog(dialog.window());
    return took;
  };
  const auto bare = [&] {
    HWND list = nullptr;
    std::optional<Lines> lines;
    const double took = opening(plain, host.get(), [&] {
      lines.emplace(workplace.deciphered().c_str());
      list = plainList(host.get(), place, *lines);
      settle();
    });
    DestroyWindow(GetParent(list));
    return took;
  };
  return compare(ours, bare, 31);
}

Comparison letterInOpenList() {
  const HostWindow host;
  const Workplace workplace(L"letterInOpenList", 100'000);
  const auto object = workplace.object();
  const Lines lines(workplace.deciphered().c_str());
  RECT place{};
  const auto typing = [](HWND window, HWND list) {
    const double took = timed([window] { strike(window, 'Z'); });
    if (ListView_GetNextItem(list, -1, LVNI_SELECTED) < 90'000) throw std::runtime_error("the letter finds nothing");
    return took;
  };
  const auto ours = [&] {
    const Embedded dialog(object.Get(), host.get());
    const HWND country = dialog.control(L"ran_payee_country");
    SetForegroundWindow(host.get());
    SetFocus(country);
    const COMBOBOXINFO list = dropped(country);
    SendMessageW(list.hwndItem, EM_SETSEL, 0, -1);
    GetWindowRect(list.hwndList, &place);
    return typing(list.hwndItem, list.hwndList);
  };
  const auto bare = [&] {
    const HWND list = plainList(host.get(), place, lines);
    SetFocus(list);
    settle();
    const double took = typing(list, list);
    DestroyWindow(GetParent(list));
    return took;
  };
  return compare(ours, bare, 31);
}

Comparison keystroke() {
  const HostWindow host;
  const Workplace workplace(L"keystroke");
  const auto object = workplace.object();
  const Embedded dialog(object.Get(), host.get());
  const HWND ours = dialog.control(L"ran_payee_street");

  const HostWindow bareHost;
  const HWND plain = made(plainDialog(dialog.window()), bareHost.get());
  ShowWindow(plain, SW_SHOW);
  const HWND bare = GetDlgItem(plain, LOWORD(reinterpret_cast<ULONG_PTR>(ours)));

  return compare([&] { return typing(ours); }, [&] { return typing(bare); });
}

Comparison dialogMemory() {
  const HostWindow host;
  const Workplace workplace(L"dialogMemory");
  const auto object = workplace.object();
  const PlainDialog plain = plainDialog(Embedded(object.Get(), host.get()).window());
  const auto shown = [&](const std::function<void()>& show) {
    const double before = bytesOfHeaps();
    show();
    settle();
    return bytesOfHeaps() - before;
  };
  HWND bare = nullptr;
  std::optional<Embedded> dialog;
  const double ours = shown([&] { dialog.emplace(object.Get(), host.get()); });
  dialog.reset();
  const double bareOnes = shown([&] { ShowWindow(bare = made(plain, host.get()), SW_SHOW); });
  DestroyWindow(bare);
  return exactly(ours, bareOnes);
}

Comparison acceptance() {
  const HostWindow host;
  const Workplace workplace(L"acceptance");
  const auto object = workplace.object();
  Accepted accepted(object.Get());
  double bareTook = 0;
  const auto press = [&] {
    const Embedded dialog(object.Get(), host.get());
    std::vector<HWND> windows;
    for (const wchar_t* field : fields) windows.push_back(dialog.control(field));
    std::vector<std::wstring> texts(windows.size());
    bareTook = timed([&] {
      wchar_t text[512];
      for (std::size_t i = 0; i < windows.size(); ++i) {
        texts[i].assign(text, static_cast<std::size_t>(GetWindowTextW(windows[i], text, 512)));
      }
    });
    const HWND ok = dialog.control(L"cmd_ok");
    accepted.when = {};
    const auto start = Clock::now();
    SendMessageW(GetParent(ok), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED), reinterpret_cast<LPARAM>(ok));
    if (accepted.when == Clock::time_point{}) throw std::runtime_error("the biller is not accepted");
    return std::chrono::duration<double>(accepted.when - start).count();
  };
  return compare(
      press, [&] { return bareTook; }, 41);
}

}  // namespace nv::bench
