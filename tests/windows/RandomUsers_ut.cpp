// Random users in the real dialog: keys and clicks as messages of a second thread, for as long as NVRANDOM_SECONDS
// says, else for a moment. The dialog neither crashes nor hangs, the focus is where it can be, and a record that nobody
// accepted is as it was. NVRANDOM_SEED begins with that seed.
#include <atomic>
#include <cstdlib>
#include <random>
#include <thread>

#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

constexpr UINT arrived = WM_APP + 1;

/// A window of the host's thread that tells when what was posted before has been taken out of the queue, in whatever
/// loop, and looks where the focus is.
class Witness {
 public:
  Witness() : seen_(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
    WNDCLASSW definition{};
    definition.lpfnWndProc = procedure;
    definition.lpszClassName = L"Witness";
    RegisterClassW(&definition);
    window_ = CreateWindowExW(0, L"Witness", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~Witness() {
    DestroyWindow(window_);
    CloseHandle(seen_);
  }
  Witness(const Witness&) = delete;
  Witness& operator=(const Witness&) = delete;

  /// For the user's thread. False when the host's thread takes no message for half a minute.
  bool waitUntilArrived() const {
    constexpr DWORD timeout = 30'000;  // ms
    PostMessageW(window_, arrived, 0, 0);
    return WaitForSingleObject(seen_, timeout) == WAIT_OBJECT_0;
  }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != arrived) return DefWindowProcW(window, message, wparam, lparam);
    const HWND focus = GetFocus();
    for (HWND each = focus; each != nullptr; each = GetAncestor(each, GA_PARENT)) {
      if (each == GetDesktopWindow()) break;
      EXPECT_TRUE(IsWindowEnabled(each)) << "the focus is in a disabled window";
    }
    EXPECT_TRUE(focus == nullptr || IsWindowVisible(focus)) << "the focus is in a hidden window";
    SetEvent(reinterpret_cast<const Witness*>(GetWindowLongPtrW(window, GWLP_USERDATA))->seen_);
    return 0;
  }

  HANDLE seen_;
  HWND window_ = nullptr;
};

class Clicker {
 public:
  Clicker(std::uint32_t seed, DWORD hostThread, const Witness& witness)
      : engine_(seed), hostThread_(hostThread), witness_(witness), thread_([this] { work(); }) {}
  ~Clicker() {
    done_ = true;
    MSG message;
    while (!finished_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    thread_.join();
  }
  Clicker(const Clicker&) = delete;
  Clicker& operator=(const Clicker&) = delete;

  int steps() const { return steps_; }

 private:
  std::size_t below(std::size_t count) { return engine_() % count; }

  void work() {
    while (!done_) {
      front_ = nullptr;
      EnumThreadWindows(hostThread_, lookForFront, reinterpret_cast<LPARAM>(this));
      if (front_ != nullptr) act();
      if (witness_.waitUntilArrived()) continue;
      fprintf(stderr, "the dialog hangs\n");
      std::abort();
    }
    finished_ = true;
    PostThreadMessageW(hostThread_, WM_NULL, 0, 0);
  }

  /// The top window that takes input; they come from the front backwards.
  static BOOL CALLBACK lookForFront(HWND window, LPARAM parameter) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    reinterpret_cast<Clicker*>(parameter)->front_ = window;
    return FALSE;
  }
  static BOOL CALLBACK addChild(HWND window, LPARAM parameter) {
    auto& children = *reinterpret_cast<std::vector<HWND>*>(parameter);
    wchar_t text[16] = L"";
    InternalGetWindowText(window, text, 16);
    const bool help = std::wstring_view(text).find(L"elp") != std::wstring_view::npos;  // would start another program
    if (IsWindowVisible(window) && IsWindowEnabled(window) && !help) children.push_back(window);
    return TRUE;
  }

  void act() {
    ++steps_;
    if (below(60) == 0) {
      PostMessageW(front_, WM_CLOSE, 0, 0);
      return;
    }
    std::vector<HWND> children;
    EnumChildWindows(front_, addChild, reinterpret_cast<LPARAM>(&children));
    if (children.empty()) return;
    const HWND child = children[below(children.size())];
    switch (below(6)) {
      case 0: {
        const HWND ok = findControl(front_, L"cmd_ok");
        PostMessageW(ok != nullptr ? ok : child, BM_CLICK, 0, 0);
        break;
      }
      case 1:
      case 2: {
        const LPARAM place = MAKELPARAM(3 + below(30), 3 + below(12));
        PostMessageW(child, WM_LBUTTONDOWN, MK_LBUTTON, place);
        PostMessageW(child, WM_LBUTTONUP, 0, place);
        break;
      }
      case 3:
        PostMessageW(front_, WM_SYSCHAR, static_cast<WPARAM>(L'A' + below(26)), 1 << 29);
        break;
      default:
        press();
    }
  }

  /// A key in whatever has the focus; its character comes of itself.
  void press() {
    static constexpr WPARAM keys[] = {VK_TAB, VK_TAB, VK_TAB,  VK_RETURN, VK_SPACE, VK_BACK, VK_DELETE, VK_HOME,
                                      VK_END, VK_UP,  VK_DOWN, VK_LEFT,   VK_RIGHT, VK_NEXT, VK_F4,     VK_ESCAPE};
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(hostThread_, &info);
    if (info.hwndFocus == nullptr) return;
    const std::size_t kind = below(4);
    const WPARAM key = kind == 0 ? keys[below(std::size(keys))] : kind == 1 ? L'0' + below(10) : L'A' + below(26);
    PostMessageW(info.hwndFocus, WM_KEYDOWN, key, 1);
    PostMessageW(info.hwndFocus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }

  std::mt19937 engine_;
  DWORD hostThread_;
  const Witness& witness_;
  std::atomic<bool> done_ = false;
  std::atomic<bool> finished_ = false;
  std::atomic<int> steps_ = 0;
  HWND front_ = nullptr;
  std::thread thread_;
};

/// Whether the bank dialog has been shown since the flag was last lowered.
bool bankShown = false;

LRESULT CALLBACK noteBank(int code, WPARAM wparam, LPARAM lparam) {
  if (code == HCBT_ACTIVATE && nameOf(reinterpret_cast<HWND>(wparam)) == L"frmFXBankInfo") bankShown = true;
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

using RandomUsers = StandInsTest;

/// Modal shows of every kind of biller, for editing and for reading.
TEST_F(RandomUsers, BreakNothing) {
  const char* const seconds = std::getenv("NVRANDOM_SECONDS");
  const char* const seedWanted = std::getenv("NVRANDOM_SEED");
  const std::uint32_t seed = seedWanted != nullptr ? static_cast<std::uint32_t>(std::strtoul(seedWanted, nullptr, 10))
                                                   : (seconds != nullptr ? std::random_device()() : 1);
  printf("  seed %u\n", seed);
  fflush(stdout);  // whatever becomes of this run
  const ULONGLONG end = GetTickCount64() + (seconds != nullptr ? std::strtoul(seconds, nullptr, 10) : 5) * 1000ULL;
  const auto object = Server::get().create();
  const Hook hook(SetWindowsHookExW(WH_CBT, noteBank, nullptr, GetCurrentThreadId()));
  const Witness witness;
  Clicker clicker(seed, GetCurrentThreadId(), witness);
  int shows = 0;
  int accepted = 0;
  int banks = 0;
  for (; GetTickCount64() < end && !HasFailure(); ++shows) {
    const std::string biller = billers[static_cast<std::size_t>(shows) % std::size(billers)];
    SCOPED_TRACE(testing::Message() << "seed " << seed << ", show " << shows << ", " << biller);
    set(object.Get(), biller);
    object->put_Add(static_cast<short>(shows / 4 % 2));
    const Record before = recordOf(object.Get());
    const bool reading = shows % 9 == 8;
    bankShown = false;
    long result = -1;
    ASSERT_EQ(S_OK, reading ? object->ShowForm_Import(&result) : object->ShowForm(&result));
    EXPECT_TRUE(result == 0 || result == 50000) << result;
    const bool mayChange = result == 0 && !reading;
    for (const auto& [name, value] : recordOf(object.Get())) {
      // What is accepted of a bank is stored at once, whatever becomes of the biller.
      const bool bank = name.starts_with(L"PayeeFXBank") && (bankShown || biller == "us") && !reading;
      EXPECT_TRUE(mayChange || bank || value == before.at(name)) << "nobody accepted " << testing::PrintToString(name);
    }
    accepted += mayChange ? 1 : 0;
    banks += bankShown ? 1 : 0;
  }
  printf("  seed %u: %d steps in %d shows, %d accepted, %d with the bank dialog\n", seed, clicker.steps(), shows,
         accepted, banks);
}

}  // namespace

}  // namespace nv::windows::test
