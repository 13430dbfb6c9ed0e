// A program that is run to its end, and what it says meanwhile.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

#include "host/base/File.h"

namespace nv::host {

/// A program that takes longer is ended, with all that it has started.
inline constexpr std::chrono::minutes longestRun(30);

/// Programs that end when it ends, whatever becomes of this process.
class Job {
 public:
  /// Fails with Failure.
  Job();

  /// Runs a program without a window of its own and returns its exit code; ERROR_TIMEOUT when it has hung. Fails with
  /// Failure when it cannot be started.
  /// @param program its file; @param arguments a command line without it.
  /// @param said is handed each line that it writes, as it comes.
  DWORD run(const std::filesystem::path& program, const std::wstring& arguments,
            const std::function<void(const std::wstring&)>& said);
  /// Ends what runs now, all that it has started, and what is run from now on. From any thread.
  void stop();
  bool stopped() const { return stopped_; }

 private:
  std::atomic<bool> stopped_ = false;
  Handle job_;
};

}  // namespace nv::host
