// The user-interface thread of the host application: a single-threaded apartment with the plainest of message loops.
// The component, its dialogs and the host's windows live on it. Whoever acts as the user, or reads what the user sees,
// does so from another thread and waits here until the user-interface thread has done its part.
#pragma once

#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <type_traits>
#include <utility>

#include "host/base/Text.h"

namespace nv::host {

class UiThread {
 public:
  /// How long any wait may take before it fails.
  static constexpr std::chrono::seconds timeout{10};

  UiThread();
  /// Ends the message loop. A dialog that is still modal holds it up.
  ~UiThread();
  UiThread(const UiThread&) = delete;
  UiThread& operator=(const UiThread&) = delete;

  DWORD id() const { return id_; }

  /// Has the thread do some work, from whatever message loop it is in. Work is done in the order in which it is given;
  /// what it throws comes out of the future.
  template <class Work>
  auto begin(Work work) {
    using Result = std::invoke_result_t<Work>;
    auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
    auto result = task->get_future();
    queue([task = std::move(task)] { (*task)(); });
    return result;
  }

  /// The same, and waits for the result.
  template <class Work>
  auto ask(Work work) {
    auto result = begin(std::move(work));
    if (!waitUntil([&result] { return ready(result); })) throw Failure(L"the host's thread does not answer");
    return result.get();
  }

  template <class Result>
  static bool ready(const std::future<Result>& result) {
    return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
  }

  /// Waits until `condition` holds, and looks again whenever the thread has handled a message. The condition is asked
  /// on the caller's thread and sends no message itself. False after `timeout`.
  bool waitUntil(const std::function<bool()>& condition);

  /// How far the thread is with what it was given to do.
  enum class Rest {
    inputHandled,  // no input and no posted message is queued; the last one may still be in its handler
    quiet,         // idle: whatever message loop the thread is in, it waits for input
  };
  /// Waits until the thread has come to rest. False after `timeout`.
  bool waitUntil(Rest rest);

  /// How many keys and mouse buttons the thread has seen going down.
  unsigned pressesSeen();

 private:
  void queue(std::function<void()> work);
  void run(std::promise<void>& started);
  void runWork();
  void checkRest();
  void retrieved(const MSG& message);
  template <class Change>
  void change(Change&& change);

  static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK onRetrieved(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK onHandled(int code, WPARAM wParam, LPARAM lParam);

  std::mutex mutex_;
  std::condition_variable changed_;
  unsigned changes_ = 0;
  std::deque<std::function<void()>> work_;
  unsigned presses_ = 0;
  Rest wanted_ = Rest::quiet;
  bool rests_ = false;

  DWORD id_ = 0;
  HWND window_ = nullptr;
  bool checkOwed_ = false;     // asked for while input was pending; the thread's own, as is the next
  unsigned quietChanges_ = 0;  // what `changes_` will be when the timer fires and nothing else has happened
  std::thread thread_;         // last: it uses the members above
};

}  // namespace nv::host
