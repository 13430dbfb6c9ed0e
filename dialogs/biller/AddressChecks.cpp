// What the biller dialog accepts as an e-mail address and as a web site.
#include <algorithm>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"

namespace nv {

namespace {

bool isLetterOrDigit(wchar_t c) {
  return isDigit(c) || (asciiUpper(c) >= L'A' && asciiUpper(c) <= L'Z');
}

/// [a-z0-9!#$%&'*+/=?^_`{|}~-]+
bool isMailboxPart(std::wstring_view part) {
  constexpr std::wstring_view others = L"!#$%&'*+/=?^_`{|}~-";
  const auto fits = [others](wchar_t c) { return isLetterOrDigit(c) || others.find(c) != others.npos; };
  return !part.empty() && std::ranges::all_of(part, fits);
}

/// [a-z0-9](?:[a-z0-9-]*[a-z0-9])?
bool isDomainLabel(std::wstring_view label) {
  const auto fits = [](wchar_t c) { return isLetterOrDigit(c) || c == L'-'; };
  return !label.empty() && label.front() != L'-' && label.back() != L'-' && std::ranges::all_of(label, fits);
}

/// How many parts a text has between its dots; 0 when one of them does not fit.
std::size_t fittingParts(std::wstring_view text, bool (*fits)(std::wstring_view)) {
  std::size_t count = 0;
  for (bool more = true; more; ++count) {
    more = text.find(L'.') != text.npos;
    if (!fits(taken(text, L'.'))) return 0;
  }
  return count;
}

/// Whether a text matches, letters counting alike in both cases, the pattern
/// ^[a-z0-9!#$%&'*+/=?^_`{|}~-]+(?:\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*@(?:[a-z0-9](?:[a-z0-9-]*[a-z0-9])?\.)+
/// [a-z0-9](?:[a-z0-9-]*[a-z0-9])?$
bool isEmailAddress(std::wstring_view text) {
  const std::wstring_view mailbox = taken(text, L'@');
  return fittingParts(mailbox, isMailboxPart) > 0 && fittingParts(text, isDomainLabel) > 1;
}

/// Whether a text matches the pattern (www\.)?.+\. anywhere: it has a dot behind another character of its line.
bool isWebSite(std::wstring_view text) {
  constexpr std::wstring_view lineEnds = L"\r\n\u2028\u2029";
  const auto dotBehind = [lineEnds](wchar_t before, wchar_t c) {
    return c == L'.' && lineEnds.find(before) == lineEnds.npos;
  };
  return std::ranges::adjacent_find(text, dotBehind) != text.end();
}

}  // namespace

bool frmRandomInfo::ValidateEmailAddress(std::wstring_view address, std::wstring& message, bool allowEmpty) {
  trace(component(), L"RandomInfo - ValidateEmailAddress");
  constexpr std::size_t shortest = 5;
  const std::wstring_view given = trimmed(address);
  if (given.size() < shortest) {
    if (given.empty() && allowEmpty) return true;
    message = L"Please enter a complete e-mail address with the form 'name@example.com'.";
    return false;
  }
  if (isEmailAddress(address)) return true;
  message = invalidMail;
  return false;
}

bool frmRandomInfo::ValidateWebsite(std::wstring_view site, std::wstring& message) {
  trace(component(), L"RandomInfo - ValidateWebsite");
  if (isWebSite(site)) return true;
  message = invalidWebsite;
  return false;
}

bool frmRandomInfo::IsEmailValid(std::wstring_view address) {
  trace(component(), L"RandomInfo - IsEmailValid");
  constexpr std::wstring_view allowed = L"abcdefghijklmnopqrstuvwxyz_-.";
  const std::wstring lower = component().services.machine.lowerCase(address);
  const std::wstring_view whole = lower;

  const auto at = whole.find(L'@');
  if (at == std::wstring_view::npos || whole.find(L'@', at + 1) != std::wstring_view::npos) return false;
  const std::wstring_view domain = whole.substr(at + 1);
  for (const std::wstring_view part : {whole.substr(0, at), domain}) {
    if (part.empty() || part.front() == L'.' || part.back() == L'.') return false;
    if (!std::ranges::all_of(part, [allowed](wchar_t c) { return allowed.find(c) != allowed.npos || isDigit(c); })) {
      return false;
    }
  }
  const auto lastDot = domain.rfind(L'.');
  if (lastDot == std::wstring_view::npos) return false;
  const std::size_t topLevel = domain.size() - lastDot - 1;
  return topLevel >= 2 && topLevel <= 4 && whole.find(L"..") == std::wstring_view::npos;
}

}  // namespace nv
