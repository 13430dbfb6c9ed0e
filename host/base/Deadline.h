// What is done when something takes too long.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace nv::host {

/// Calls a function, on a thread of its own, unless it is destroyed in time.
class Deadline {
 public:
  Deadline(std::chrono::minutes time, std::function<void()> late)
      : watch_([time, late = std::move(late)](const std::stop_token& done) {
          std::mutex mutex;
          std::unique_lock lock(mutex);
          std::condition_variable_any never;
          never.wait_for(lock, done, time, [] { return false; });
          if (!done.stop_requested()) late();
        }) {}

 private:
  std::jthread watch_;
};

}  // namespace nv::host
