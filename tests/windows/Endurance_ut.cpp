// Showing the dialog again and again costs nothing that is not given back.
#include "tests/windows/StandIns.h"

#include <psapi.h>

#include <algorithm>
#include <cmath>
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
  std::size_t nextHandle = 0;
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

/// The lowest value that no handle of the process has: files, events and threads that stay open drive it up.
std::size_t nextHandle() {
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

/// How many blocks of memory the process has in use.
long blocks() {
  HANDLE heaps[256];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps), std::size(heaps));
  long used = 0;
  for (const HANDLE heap : std::span(heaps, count)) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry) != FALSE) used += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
  }
  return used;
}

/// How many blocks a label of the current common controls keeps for ever when it is destroyed: with Wine one, its own
/// dozen of bytes, which it forgets.
double keptByLabel() {
  constexpr int samples = 1000;
  ACTCTXW description{};
  description.cbSize = sizeof(description);
  description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
  const std::wstring path = serverPath();
  description.lpSource = path.c_str();
  description.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
  const HANDLE context = CreateActCtxW(&description);
  ULONG_PTR cookie = 0;
  EXPECT_TRUE(ActivateActCtx(context, &cookie));
  const long before = blocks();
  for (int i = 0; i < samples; ++i) {
    const HWND label = CreateWindowW(L"STATIC", L"label", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    DestroyWindow(label);
  }
  const long after = blocks();
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(context);
  return static_cast<double>(after - before) / samples;
}

/// Labels that were made in dialogs so far.
int labels = 0;

LRESULT CALLBACK countLabels(int code, WPARAM wparam, LPARAM lparam) {
  wchar_t name[16] = L"";
  if (code == HCBT_CREATEWND) {
    GetClassNameW(reinterpret_cast<HWND>(wparam), name, static_cast<int>(std::size(name)));
    if (_wcsicmp(name, L"STATIC") == 0) ++labels;
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

Usage usage() {
  Usage now;
  now.gdiObjects = gdiObjects();
  now.nextHandle = nextHandle();
  EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&now.windows));
  now.blocks = blocks();
  now.privateBytes = privateBytes();
  return now;
}

/// How often the dialog is shown: as the environment's NVRANDOM_SHOWS says, else just often enough for a leak to show.
int showsWanted() {
  const char* wanted = std::getenv("NVRANDOM_SHOWS");
  return wanted != nullptr ? std::atoi(wanted) : 60;
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

/// Many shows of every kind of biller in all modes, each accepted or left: what is in use after the last is what was
/// after the first rounds.
TEST_F(Endurance, ShowingGivesEverythingBack) {
  const int shows = showsWanted();
  constexpr int rounds = 24;
  ASSERT_GT(shows, rounds);
  const Hook hook(SetWindowsHookExW(WH_CBT, leaveWhenActive, nullptr, GetCurrentThreadId()));
  const Hook counting(SetWindowsHookExW(WH_CBT, countLabels, nullptr, GetCurrentThreadId()));
  Usage early;
  const ULONGLONG begin = GetTickCount64();
  for (int turn = 0; turn < shows && !HasFatalFailure(); ++turn) {
    if (turn == rounds) {
      early = usage();
      labels = 0;
    }
    show(turn);
  }
  const ULONGLONG took = GetTickCount64() - begin;
  const Usage late = usage();
  EXPECT_EQ(early.gdiObjects, late.gdiObjects);
  EXPECT_EQ(early.windows, late.windows);
  EXPECT_LE(late.nextHandle, early.nextHandle);
  EXPECT_EQ(0, GlobalFindAtomW(L"ran_payee_street")) << "names of windows are given back";
  const int labelsMade = labels;
  const long ofLabels = std::lround(labelsMade * keptByLabel());
  constexpr long noise = 100;  // what the system has in use for a moment
  EXPECT_LE(late.blocks, early.blocks + ofLabels + noise);
  const auto report = [](int turn, const Usage& now) {
    printf("  after %d shows: %d GDI objects, next handle %zu, %d windows, %ld blocks, %zu KB\n", turn, now.gdiObjects,
           now.nextHandle, now.windows, now.blocks, now.privateBytes / 1024);
  };
  report(rounds, early);
  report(shows, late);
  printf("  after these, %ld blocks are of %d labels of the system's; %.1f ms a show\n", ofLabels, labelsMade,
         static_cast<double>(took) / shows);
}

}  // namespace

}  // namespace nv::windows::test
