// Showing the dialog again and again costs nothing that is not given back.
#include "tests/windows/StandIns.h"

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

namespace nv::windows::test {

namespace {

enum class Way { accept, cancel };

/// How the user leaves the next dialog.
Way way = Way::cancel;

void leave(HWND dialog) {
  if (way == Way::cancel) {
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    return;
  }
  SendMessageW(findControl(dialog, L"ran_payee_email"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"other@mail.example"));
  if (const HWND bankAccount = findControl(dialog, L"txtBankAccountNumber")) {
    wchar_t account[32] = L"";  // in the United States it is always to be confirmed, in a field that OK shows
    GetWindowTextW(bankAccount, account, static_cast<int>(std::size(account)));
    press(dialog, L"cmd_ok");
    SendMessageW(findControl(dialog, L"txtConfirmBankAccountNumber"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(account));
  }
  PostMessageW(findControl(dialog, L"cmd_ok"), BM_CLICK, 0, 0);
}

/// Leaves every dialog of the thread as soon as it is active.
LRESULT CALLBACK leaveWhenActive(int code, WPARAM wparam, LPARAM lparam) {
  const HWND window = reinterpret_cast<HWND>(wparam);
  if (code == HCBT_ACTIVATE && GetPropW(window, L"NVRandom.Name") != nullptr) leave(window);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

BOOL CALLBACK countWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

struct Usage {
  int gdiObjects = 0;
  std::size_t handles = 0;
  int windows = 0;
  long blocks = 0;  // of all heaps
  std::size_t privateBytes = 0;
};

/// GDI objects of the process, by how many more it may have: the system's own count is not kept everywhere.
int gdiObjects() {
  constexpr int most = 65536;
  static HGDIOBJ brushes[most];
  int free = 0;
  while (free < most && (brushes[free] = CreateSolidBrush(static_cast<COLORREF>(free))) != nullptr) ++free;
  for (int i = 0; i < free; ++i) DeleteObject(brushes[i]);
  return most - free;
}

/// How many handles the process has: files, events and threads that stay open. Wine does not count them, but gives each
/// the lowest value that is free.
std::size_t handles() {
  DWORD count = 0;
  if (GetProcessHandleCount(GetCurrentProcess(), &count) != FALSE && count != 0) return count;
  constexpr std::size_t step = 4;
  const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  CloseHandle(handle);
  return reinterpret_cast<std::size_t>(handle) / step;
}

std::size_t privateBytes() {
  PROCESS_MEMORY_COUNTERS memory{};
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory));
  return memory.PagefileUsage;
}

/// How many blocks of memory the process has in use, but for those of the size that a label of Wine's keeps for ever
/// when it is destroyed.
long blocks() {
  constexpr DWORD keptByLabel = 3 * sizeof(void*);
  HANDLE heaps[256];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps), std::size(heaps));
  long used = 0;
  for (const HANDLE heap : std::span(heaps, count)) {
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry) != FALSE) {
      used += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 && entry.cbData != keptByLabel ? 1 : 0;
    }
    HeapUnlock(heap);
  }
  return used;
}

/// Whether a walk over a heap shows each block. Wine 10 shows small ones by the dozen, however few are in use.
bool walkShowsEachBlock() {
  constexpr long samples = 1000;
  using Sample = std::array<void*, 5>;  // not of the size that blocks() passes over
  std::vector<std::unique_ptr<Sample>> kept(samples);
  const long before = blocks();
  for (auto& sample : kept) sample = std::make_unique<Sample>();
  return blocks() - before >= samples;
}

Usage usage() {
  Usage now;
  now.gdiObjects = gdiObjects();
  now.handles = handles();
  EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&now.windows));
  now.blocks = blocks();
  now.privateBytes = privateBytes();
  return now;
}

/// How often the dialog is shown: as the environment's NVRANDOM_SHOWS says, else just often enough for a leak to show.
int showsWanted() {
  const char* wanted = std::getenv("NVRANDOM_SHOWS");
  return wanted != nullptr ? std::atoi(wanted) : 72;
}

class Endurance : public StandInsTest {
 protected:
  void showModal() {
    long result = -1;
    ASSERT_EQ(S_OK, object->ShowForm(&result));
    ASSERT_EQ(way == Way::accept ? 0 : 50000, result);
  }
  void showImport() {
    long result = -1;
    ASSERT_EQ(S_OK, object->ShowForm_Import(&result));
    ASSERT_EQ(0, result);
  }
  /// In a window of the host's, which takes the dialog away itself or lets the user leave it.
  void showRemote(bool unload) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 900, 700,
                                        nullptr, nullptr, nullptr, nullptr);
    long handle = 0;
    ASSERT_EQ(S_OK, object->Get_hWnd(&handle));
    const HWND dialog = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    SetParent(dialog, window);
    long result = -1;
    ASSERT_EQ(S_OK, object->ShowForm_Remote(&result));
    ASSERT_EQ(0, result);
    unload ? static_cast<void>(object->Unload_From_Remote()) : leave(dialog);
    MSG message;
    while (IsWindow(dialog) && GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    DestroyWindow(window);
  }
  void show(int turn) {
    set(object.Get(), billers[static_cast<std::size_t>(turn / 6) % std::size(billers)]);
    way = turn % 2 == 0 ? Way::accept : Way::cancel;
    switch (turn / 2 % 3) {
      case 0:
        return showModal();
      case 1:
        return showRemote(turn % 4 == 3);
      default:
        return showImport();
    }
  }

  ComPtr<_ClsRandom> object = Server::get().create();
};

/// Rounds of shows of every kind of biller in all modes, each accepted or left: what is in use after the last is what
/// was after the first, as both end with the same biller.
TEST_F(Endurance, ShowingGivesEverythingBack) {
  constexpr int round = 6 * static_cast<int>(std::size(billers));
  const int shows = showsWanted() / round * round;
  ASSERT_GT(shows, round);
  const Hook hook(SetWindowsHookExW(WH_CBT, leaveWhenActive, nullptr, GetCurrentThreadId()));
  constexpr const wchar_t* name = L"ran_payee_street";
  const ATOM before = GlobalFindAtomW(name);  // of other programs, or of one that was ended in the middle
  Usage early;
  const ULONGLONG begin = GetTickCount64();
  for (int turn = 0; turn < shows && !HasFatalFailure(); ++turn) {
    if (turn == round) early = usage();
    show(turn);
  }
  const ULONGLONG took = GetTickCount64() - begin;
  const Usage late = usage();
  EXPECT_EQ(early.gdiObjects, late.gdiObjects);
  EXPECT_EQ(early.windows, late.windows);
  constexpr std::size_t ofSystem = 20;  // which opens some now and then
  EXPECT_LE(late.handles, early.handles + ofSystem);
  EXPECT_EQ(before, GlobalFindAtomW(name)) << "names of windows are given back";
  constexpr long noise = 100;  // what the system has in use for a moment
  EXPECT_TRUE(late.blocks <= early.blocks + noise || !walkShowsEachBlock()) << early.blocks << ", " << late.blocks;
  constexpr std::size_t ofLabels = 32 * 1024;  // a show's, which Wine forgets, in a heap that they leave full of holes
  EXPECT_LE(late.privateBytes, early.privateBytes + static_cast<std::size_t>(shows) * ofLabels);
  const auto report = [](int turn, const Usage& now) {
    printf("  after %d shows: %d GDI objects, %zu handles, %d windows, %ld blocks, %zu KB\n", turn, now.gdiObjects,
           now.handles, now.windows, now.blocks, now.privateBytes / 1024);
  };
  report(round, early);
  report(shows, late);
  printf("  %.1f ms a show\n", static_cast<double>(took) / shows);
}

}  // namespace

}  // namespace nv::windows::test
