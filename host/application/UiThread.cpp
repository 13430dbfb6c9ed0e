#include "host/application/UiThread.h"

#include <objbase.h>

namespace nv::host {

namespace {

constexpr UINT workMessage = WM_APP;
constexpr UINT checkMessage = WM_APP + 1;
constexpr UINT_PTR restTimer = 1;
constexpr UINT systemTimer = 0x0118;  // WM_SYSTIMER

/// The object of the thread that asks; its hooks have no other way to it.
thread_local UiThread* running = nullptr;

/// Carets, and the question whether the mouse has left a window, go on for ever and are no work.
bool isWork(UINT message) {
  return message != systemTimer && message != WM_NCHITTEST;
}

bool isPress(UINT message) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCRBUTTONDBLCLK:
      return true;
    default:
      return false;
  }
}

/// Keeps a hook of the calling thread for as long as it lives.
class ThreadHook {
 public:
  ThreadHook(int kind, HOOKPROC procedure) : hook_(SetWindowsHookExW(kind, procedure, nullptr, GetCurrentThreadId())) {}
  ~ThreadHook() { UnhookWindowsHookEx(hook_); }
  ThreadHook(const ThreadHook&) = delete;
  ThreadHook& operator=(const ThreadHook&) = delete;

 private:
  HHOOK hook_;
};

}  // namespace

template <class Change>
void UiThread::change(Change&& change) {
  {
    const std::lock_guard lock(mutex_);
    change();
    ++changes_;
  }
  changed_.notify_all();
}

UiThread::UiThread() {
  std::promise<void> started;
  thread_ = std::thread([this, &started] { run(started); });
  started.get_future().wait();
}

UiThread::~UiThread() {
  begin([] { PostQuitMessage(0); });
  thread_.join();
}

void UiThread::run(std::promise<void>& started) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  running = this;
  id_ = GetCurrentThreadId();
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = windowProcedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"NVHost.Thread";
  RegisterClassW(&windowClass);
  window_ = CreateWindowExW(0, windowClass.lpszClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                            windowClass.hInstance, nullptr);
  {
    const ThreadHook retrieving(WH_GETMESSAGE, onRetrieved);
    const ThreadHook handling(WH_CALLWNDPROCRET, onHandled);
    started.set_value();
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  DestroyWindow(window_);
  CoUninitialize();
}

LRESULT CALLBACK UiThread::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case workMessage:
      running->runWork();
      return 0;
    case checkMessage:
      running->checkRest();
      return 0;
    case WM_TIMER:
      KillTimer(window, restTimer);
      running->checkRest();
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

// Work

void UiThread::queue(std::function<void()> work) {
  const std::lock_guard lock(mutex_);
  work_.push_back(std::move(work));
  PostMessageW(window_, workMessage, 0, 0);
}

void UiThread::runWork() {
  std::unique_lock lock(mutex_);
  const auto work = std::move(work_.front());
  work_.pop_front();
  lock.unlock();
  work();
  change([] {});
}

// Waiting

bool UiThread::waitUntil(const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  std::unique_lock lock(mutex_);
  for (;;) {
    const unsigned seen = changes_;
    lock.unlock();
    if (condition()) return true;
    lock.lock();
    if (!changed_.wait_until(lock, deadline, [this, seen] { return changes_ != seen; })) return false;
  }
}

bool UiThread::waitUntil(Rest rest) {
  change([this, rest] {
    wanted_ = rest;
    rests_ = false;
  });
  PostMessageW(window_, checkMessage, 0, 0);
  return waitUntil([this] {
    const std::lock_guard lock(mutex_);
    return rests_;
  });
}

/// Posted messages overtake input, so input that is pending cannot be waited for by posting again. The next message of
/// input to be retrieved repeats the question; a timer, which fires when nothing else is left, repeats it when what was
/// pending vanished with its window.
///
/// A handler that lets pending events run empties the queue, too, before it goes on. It is done when the timer finds
/// that no message has been handled since it was set.
void UiThread::checkRest() {
  const DWORD pending = HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE));
  checkOwed_ = (pending & QS_INPUT) != 0;
  if (checkOwed_) {
    SetTimer(window_, restTimer, USER_TIMER_MINIMUM, nullptr);
    return;
  }
  if ((pending & QS_POSTMESSAGE) != 0) {
    PostMessageW(window_, checkMessage, 0, 0);
    return;
  }
  std::unique_lock lock(mutex_);
  if (wanted_ == Rest::quiet && changes_ != quietChanges_) {
    quietChanges_ = changes_ + 1;  // the timer's own message
    SetTimer(window_, restTimer, USER_TIMER_MINIMUM, nullptr);
    return;
  }
  lock.unlock();
  change([this] { rests_ = true; });
}

void UiThread::retrieved(const MSG& message) {
  if (!isWork(message.message)) return;
  const bool isInput = (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) ||
                       (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) ||
                       (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
  if (isInput && std::exchange(checkOwed_, false)) {
    KillTimer(window_, restTimer);
    PostMessageW(window_, checkMessage, 0, 0);
  }
  change([&] {
    if (isPress(message.message)) ++presses_;
  });
}

unsigned UiThread::pressesSeen() {
  const std::lock_guard lock(mutex_);
  return presses_;
}

LRESULT CALLBACK UiThread::onRetrieved(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && wParam == PM_REMOVE) running->retrieved(*reinterpret_cast<const MSG*>(lParam));
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK UiThread::onHandled(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && isWork(reinterpret_cast<const CWPRETSTRUCT*>(lParam)->message)) running->change([] {});
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace nv::host
