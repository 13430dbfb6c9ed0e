#include "host/check/Report.h"

#include <windows.h>
// after <windows.h>
#include <shlobj.h>
#include <uxtheme.h>

#include <algorithm>

#include "host/base/File.h"
#include "host/base/Text.h"

namespace nv::host {

namespace fs = std::filesystem;

namespace {

template <class Function>
Function ofSystem(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), name)));
}

std::wstring systemVersion() {
  RTL_OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof(version);
  if (const auto get = ofSystem<LONG(WINAPI*)(RTL_OSVERSIONINFOW*)>(L"ntdll", "RtlGetVersion")) get(&version);
  constexpr DWORD first11 = 22000;
  std::wstring text = version.dwBuildNumber >= first11 ? L"Windows 11, as " : L"";
  text += L"Windows " + std::to_wstring(version.dwMajorVersion) + L"." + std::to_wstring(version.dwMinorVersion) +
          L", build " + std::to_wstring(version.dwBuildNumber);
  if (const auto wine = ofSystem<const char*(CDECL*)()>(L"ntdll", "wine_get_version")) {
    text += L", as Wine " + wide(wine()) + L" makes it";
  }
  return text;
}

std::wstring theme() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
  wchar_t file[MAX_PATH] = L"";
  if (IsThemeActive()) GetCurrentThemeName(file, MAX_PATH, nullptr, 0, nullptr, 0);
  std::wstring text = *file == L'\0' ? L"none" : fs::path(file).filename().wstring();
  DWORD light = 1;  // what programs that have dark colours shall use
  DWORD size = sizeof(light);
  RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
               L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  if (light == 0) text += L", dark";
  return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0 ? text + L", contrast theme" : text;
}

int dotsPerInch() {
  const HDC screen = GetDC(nullptr);
  const int dots = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dots;
}

std::wstring region() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
  GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
  return name;
}

std::wstring escaped(std::wstring text) {
  for (const auto& [plain, entity] : {std::pair(L"&", L"&amp;"), {L"<", L"&lt;"}, {L">", L"&gt;"}, {L"\"", L"&quot;"}})
    text = replaced(text, plain, entity);
  return text;
}

std::wstring row(const std::wstring& first, const std::wstring& second, const wchar_t* kind = L"") {
  return L"<tr class=\"" + std::wstring(kind) + L"\"><td>" + first + L"</td><td>" + second + L"</td></tr>\n";
}

std::vector<fs::path> picturesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code none;
  for (const auto& entry : fs::recursive_directory_iterator(folder, none)) {
    if (entry.path().extension() == L".png") files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

constexpr const wchar_t* words[] = {L"passed", L"failed", L"skipped"};

std::size_t countOf(const std::vector<Result>& results, Outcome outcome) {
  return static_cast<std::size_t>(std::ranges::count(results, outcome, &Result::outcome));
}

}  // namespace

std::vector<std::pair<std::wstring, std::wstring>> systemFacts() {
  return {
      {L"System", systemVersion()},
      {L"Screen", std::to_wstring(GetSystemMetrics(SM_CXSCREEN)) + L" x " +
                      std::to_wstring(GetSystemMetrics(SM_CYSCREEN)) + L" pixels, " + std::to_wstring(dotsPerInch()) +
                      L" dpi; screens: " + std::to_wstring(GetSystemMetrics(SM_CMONITORS))},
      {L"ANSI code page", std::to_wstring(GetACP())},
      {L"Theme", theme()},
      {L"Region", region()},
      {L"Rights", IsUserAnAdmin() ? L"an administrator's" : L"a user's"}};
}

std::wstring summary(const std::vector<Result>& results) {
  const std::size_t skipped = countOf(results, Outcome::skipped);
  return std::to_wstring(countOf(results, Outcome::passed)) + L" passed, " +
         std::to_wstring(countOf(results, Outcome::failed)) + L" failed" +
         (skipped == 0 ? L"" : L", " + std::to_wstring(skipped) + L" skipped");
}

void writeReport(const fs::path& file, const std::vector<Result>& results, const fs::path& pictures,
                 const std::wstring& remark) {
  std::wstring page =
      L"<!DOCTYPE html>\n<html lang=\"en\"><meta charset=\"utf-8\"><title>NVRandom on this machine</title>\n"
      L"<style>body{font:15px sans-serif;margin:2em;max-width:70em}td{padding:2px 1em 2px 0;vertical-align:top}"
      L".failed{color:#b00000;font-weight:bold}.skipped{color:#806000}img{margin:4px;max-width:30em}"
      L"pre{margin:0;white-space:pre-wrap;font-weight:normal}</style>\n<h1>NVRandom on this machine</h1>\n<p><b>" +
      summary(results) + L"</b> " + escaped(remark) + L"</p>\n<table>\n";
  for (const auto& [name, value] : systemFacts()) page += row(name, escaped(value));
  page += L"</table>\n";
  std::wstring part;
  for (const Result& result : results) {
    if (result.part != part) page += (part.empty() ? L"<h2>" : L"</table>\n<h2>") + result.part + L"</h2>\n<table>\n";
    part = result.part;
    const wchar_t* const word = words[static_cast<std::size_t>(result.outcome)];
    page += row(escaped(result.test), word + (L"<pre>" + escaped(result.said) + L"</pre>"), word);
  }
  page += std::wstring(part.empty() ? L"" : L"</table>\n") + L"<h2>Pictures</h2>\n";
  for (const fs::path& picture : picturesIn(pictures)) {
    const std::wstring source = fs::relative(picture, file.parent_path()).generic_wstring();
    page +=
        L"<img src=\"" + escaped(source) + L"\" alt=\"" + escaped(source) + L"\" title=\"" + escaped(source) + L"\">\n";
  }
  if (!writeFile(file, narrow(page + L"</html>\n"))) throw Failure(file.wstring() + L" cannot be written");
}

}  // namespace nv::host
