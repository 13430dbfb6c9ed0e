// What the biller dialog accepts as an e-mail address and as a web site.
#include <algorithm>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Pattern.h"
#include "platform/Text.h"

namespace nv {

namespace {

/// The longest text that is held against a pattern, in characters: as long as an e-mail address may be, 64 for the
/// mailbox, "@", 255 for the domain. The matcher's depth grows with the text, and the stack is the host's.
constexpr std::size_t longestMatched = 320;

bool matches(std::wstring_view text, const Pattern& pattern) {
  return text.size() <= longestMatched && std::regex_search(text.begin(), text.end(), pattern);
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
  static const Pattern pattern(
      L"^[a-z0-9!#$%&'*+/=?^_`{|}~-]+(?:\\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*@(?:[a-z0-9](?:[a-z0-9-]*[a-z0-9])?\\.)+"
      L"[a-z0-9](?:[a-z0-9-]*[a-z0-9])?$",
      std::regex::ECMAScript | std::regex::icase);
  if (matches(address, pattern)) return true;
  message = invalidMail;
  return false;
}

bool frmRandomInfo::ValidateWebsite(std::wstring_view site, std::wstring& message) {
  trace(component(), L"RandomInfo - ValidateWebsite");
  static const Pattern pattern(L"(www\\.)?.+\\.", std::regex::ECMAScript | std::regex::icase);
  if (matches(site, pattern)) return true;
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
