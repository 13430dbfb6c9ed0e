// Showing the dialog again and again costs nothing that is not given back.
#include "tests/windows/Server.h"

#include <psapi.h>

#include <cstdlib>

namespace nv::windows::test {

namespace {

/// Presses the close box of every dialog of the thread as soon as it is active.
LRESULT CALLBACK closeWhenActive(int code, WPARAM wparam, LPARAM lparam) {
  const HWND window = reinterpret_cast<HWND>(wparam);
  if (code == HCBT_ACTIVATE && GetPropW(window, L"NVRandom.Name") != nullptr) PostMessageW(window, WM_CLOSE, 0, 0);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

BOOL CALLBACK countWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

struct Usage {
  int gdiObjects = 0;
  int windows = 0;
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

Usage usage() {
  Usage now;
  now.gdiObjects = gdiObjects();
  EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&now.windows));
  PROCESS_MEMORY_COUNTERS memory{};
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory));
  now.privateBytes = memory.PagefileUsage;
  return now;
}

/// How often the dialog is shown: as the environment's NVRANDOM_SHOWS says, else just often enough for a leak to show.
int showsWanted() {
  const char* wanted = std::getenv("NVRANDOM_SHOWS");
  return wanted != nullptr ? std::atoi(wanted) : 60;
}

/// Many shows, each cancelled by its close box: what is in use after the last is what was after the tenth.
TEST(Endurance, ShowingAndCancellingGivesEverythingBack) {
  const int shows = showsWanted();
  ASSERT_GT(shows, 10);
  const Apartment apartment;
  const auto object = Server::get().create();
  const CountryFolder countries;
  putText(object.get(), &_ClsRandom::put_DLLPath, countries.path().c_str());
  putText(object.get(), &_ClsRandom::put_PayeeStreet, L"1 MAIN STREET");
  const Hook hook(SetWindowsHookExW(WH_CBT, closeWhenActive, nullptr, GetCurrentThreadId()));
  Usage early;
  for (int show = 1; show <= shows; ++show) {
    long result = 0;
    ASSERT_EQ(S_OK, object->ShowForm(&result));
    ASSERT_EQ(50000, result);
    if (show == 10) early = usage();
  }
  const Usage late = usage();
  EXPECT_EQ(early.gdiObjects, late.gdiObjects);
  EXPECT_EQ(early.windows, late.windows);
  EXPECT_EQ(0, GlobalFindAtomW(L"ran_payee_street")) << "names of windows are given back";
  constexpr std::size_t noise = 256 * 1024;  // what the heap holds back for itself
  EXPECT_LE(late.privateBytes, early.privateBytes + noise);
  printf("  after 10 shows: %d GDI objects, %d windows, %zu KB; after %d: %d, %d, %zu KB\n", early.gdiObjects,
         early.windows, early.privateBytes / 1024, shows, late.gdiObjects, late.windows, late.privateBytes / 1024);
}

}  // namespace

}  // namespace nv::windows::test
