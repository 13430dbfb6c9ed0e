#include "host/base/Crash.h"

#include <windows.h>

#include <cwchar>

#include "host/base/Text.h"

namespace nv::host {

namespace {

std::function<std::wstring()> introduce;

LONG WINAPI crashed(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  HMODULE module = nullptr;
  wchar_t name[MAX_PATH] = L"no module";
  if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         static_cast<LPCWSTR>(record.ExceptionAddress), &module)) {
    GetModuleFileNameW(module, name, MAX_PATH);
  }
  const auto offset = static_cast<const char*>(record.ExceptionAddress) - reinterpret_cast<const char*>(module);
  wchar_t words[MAX_PATH + 100];
  std::swprintf(words, std::size(words), L"the process crashed with 0x%08lX at 0x%llX in %ls", record.ExceptionCode,
                static_cast<unsigned long long>(offset), name);
  printLine(introduce() + words);
  TerminateProcess(GetCurrentProcess(), 1);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void reportCrashes(std::function<std::wstring()> introduction) {
  introduce = std::move(introduction);
  SetUnhandledExceptionFilter(crashed);
}

}  // namespace nv::host
