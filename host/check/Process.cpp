#include "host/check/Process.h"

#include "host/base/Deadline.h"
#include "host/base/Text.h"

namespace nv::host {

Job::Job() : job_(CreateJobObjectW(nullptr, nullptr)) {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  if (!job_ || !SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits)))
    throw Failure(L"programs cannot be run together (" + std::to_wstring(GetLastError()) + L")");
}

void Job::stop() {
  stopped_ = true;
  TerminateJobObject(job_.get(), ERROR_CANCELLED);
}

DWORD Job::run(const std::filesystem::path& program, const std::wstring& arguments,
               const std::function<void(const std::wstring&)>& said) {
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
  if (!CreatePipe(&reading, &writing, &inherited, 0)) throw Failure(L"there is no pipe");
  const Handle own(reading);
  Handle childs(writing);
  SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = writing;
  start.hStdError = writing;
  std::wstring command = L"\"" + program.wstring() + L"\" " + arguments;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr, nullptr,
                      &start, &process)) {
    throw Failure(program.wstring() + L" cannot be started (" + std::to_wstring(GetLastError()) + L")");
  }
  const Handle thread(process.hThread);
  const Handle running(process.hProcess);
  AssignProcessToJobObject(job_.get(), running.get());
  if (stopped_) stop();
  ResumeThread(thread.get());
  childs.reset();  // the last one to write closes the pipe
  const Deadline deadline(longestRun, [this] { TerminateJobObject(job_.get(), ERROR_TIMEOUT); });

  std::string text;
  char bytes[4096];
  for (DWORD count = 0; ReadFile(own.get(), bytes, sizeof(bytes), &count, nullptr) && count != 0;) {
    text.append(bytes, count);
    for (std::size_t end = 0; (end = text.find('\n')) != std::string::npos; text.erase(0, end + 1)) {
      said(wide(std::string_view(text).substr(0, end > 0 && text[end - 1] == '\r' ? end - 1 : end)));
    }
  }
  WaitForSingleObject(running.get(), INFINITE);
  DWORD exit = 1;
  GetExitCodeProcess(running.get(), &exit);
  return exit;
}

}  // namespace nv::host
