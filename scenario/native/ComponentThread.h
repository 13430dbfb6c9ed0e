// The thread that the component lives on. Whoever plays the host and the user does so from another one, and both never
// run at the same time: work is handed over, and the giver goes on when the thread waits for more - in its own loop, or
// in that of a modal form or a message box that the work has opened.
#pragma once

#include <condition_variable>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <type_traits>
#include <utility>

namespace nv::scenario {

class ComponentThread {
 public:
  ComponentThread() = default;
  ~ComponentThread() { leave(); }
  ComponentThread(const ComponentThread&) = delete;
  ComponentThread& operator=(const ComponentThread&) = delete;

  /// Has the thread do some work. What is returned is ready when the work is done, and not when it waits in a loop of
  /// its own; what the work throws comes out of it.
  template <class Work>
  auto begin(Work work) {
    auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Work>()>>(std::move(work));
    auto result = task->get_future();
    std::unique_lock lock(mutex_);
    work_ = [task = std::move(task)] { (*task)(); };
    changed_.notify_all();
    changed_.wait(lock, [this] { return !work_ && resting_; });
    return result;
  }

  /// For the thread: works off what it is given until `over`, or until everything is to end.
  void loop(const std::function<bool()>& over) {
    std::unique_lock lock(mutex_);
    while (!over()) {
      resting_ = true;
      changed_.notify_all();
      changed_.wait(lock, [this] { return work_ || leaving_; });
      if (!work_) return;
      resting_ = false;
      const auto work = std::exchange(work_, nullptr);
      lock.unlock();
      work();
      lock.lock();
    }
  }

  /// Ends every loop that the thread is in, the innermost first, and then the thread.
  void leave() {
    {
      const std::lock_guard lock(mutex_);
      leaving_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::function<void()> work_;
  bool resting_ = false;
  bool leaving_ = false;
  std::thread thread_{[this] { loop([] { return false; }); }};  // last: it uses the members above
};

template <class Result>
bool ready(const std::future<Result>& result) {
  return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace nv::scenario
