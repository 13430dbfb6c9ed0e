#include "windows/services/Machine.h"

#include "platform/RuntimeError.h"
#include "windows/Handles.h"
#include "windows/Paths.h"

namespace nv::windows {

namespace {

/// A directory that is too long for the component is none.
std::wstring unlessTooLong(const std::wstring& directory) {
  constexpr std::size_t bufferSize = 145;  // in characters, the terminating null included
  return directory.size() < bufferSize ? directory : std::wstring();
}

}  // namespace

std::wstring Machine::now() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  DATE date = 0;
  Bstr text;
  if (!SystemTimeToVariantTime(&time, &date) || FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, text.out()))) {
    throw RuntimeError(ErrorNumber::invalidCall);
  }
  return std::wstring(view(text.get()));
}

std::wstring Machine::windowsDirectory() {
  return unlessTooLong(directory(GetWindowsDirectoryW));
}

std::wstring Machine::systemDirectory() {
  return unlessTooLong(directory(GetSystemDirectoryW));
}

std::wstring Machine::upperCase(std::wstring_view text) {
  std::wstring upper(text);
  CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
  return upper;
}

std::wstring Machine::lowerCase(std::wstring_view text) {
  std::wstring lower(text);
  CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

int Machine::addFont(const std::wstring& path) {
  return AddFontResourceW(path.c_str());
}

void Machine::emptyClipboard() {
  if (!OpenClipboard(nullptr)) return;
  EmptyClipboard();
  CloseClipboard();
}

}  // namespace nv::windows
