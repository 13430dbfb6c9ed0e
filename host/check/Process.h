// A program that is run to its end, and what it says meanwhile.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "host/base/File.h"

namespace nv::host {

/// Programs that end when it ends, whatever becomes of this process.
class Job {
 public:
  /// Fails with Failure.
  Job();

  /// Runs a program without a window of its own and returns its exit code. Fails with Failure when it cannot be
  /// started.
  /// @param program its file; @param arguments a command line without it.
  /// @param said is handed each line that it writes, as it comes.
  DWORD run(const std::filesystem::path& program, const std::wstring& arguments,
            const std::function<void(const std::wstring&)>& said) const;
  /// Ends what runs now, and all that it has started. From any thread.
  void stop() const { TerminateJobObject(job_.get(), ERROR_CANCELLED); }

 private:
  Handle job_;
};

}  // namespace nv::host
