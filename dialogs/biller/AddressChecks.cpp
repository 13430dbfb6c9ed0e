// What the biller dialog accepts as an e-mail address and as a web site.
#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"

namespace nv {

namespace {

/// What a character is in an e-mail address. Each kind may stand wherever the one before it may, but for the dot.
enum class Kind : std::uint8_t {
  none,
  dot,
  sign,    // in the mailbox
  hyphen,  // and inside a part of the domain
  letter   // and at its ends; or a digit
};

constexpr auto kinds = [] {
  std::array<Kind, 128> table{};
  table['.'] = Kind::dot;
  for (const char c : std::string_view("!#$%&'*+/=?^_`{|}~")) table[static_cast<unsigned char>(c)] = Kind::sign;
  table['-'] = Kind::hyphen;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto c = static_cast<wchar_t>(i);
    if (isDigit(c) || isCapital(asciiUpper(c))) table[i] = Kind::letter;
  }
  return table;
}();

Kind kindOf(wchar_t c) {
  const bool ascii = (c & ~0x7F) == 0;
  return ascii ? kinds[static_cast<unsigned char>(c)] : Kind::none;
}

/// How many parts a text has between its dots; 0 when one is empty or has a character that may not stand there.
/// @param inside the least of the kinds that may stand inside a part.
/// @param atEnds the least that may stand first or last in it.
std::size_t partsOf(std::wstring_view text, Kind inside, Kind atEnds) {
  std::size_t count = 1;
  Kind before = Kind::dot;
  for (const wchar_t c : text) {
    const Kind kind = kindOf(c);
    if (kind == Kind::dot) ++count;
    if (kind == Kind::dot ? before < atEnds : kind < (before == Kind::dot ? atEnds : inside)) return 0;
    before = kind;
  }
  return before < atEnds ? 0 : count;
}

/// Whether a text matches, letters counting alike in both cases, the pattern
/// ^[a-z0-9!#$%&'*+/=?^_`{|}~-]+(?:\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*@(?:[a-z0-9](?:[a-z0-9-]*[a-z0-9])?\.)+
/// [a-z0-9](?:[a-z0-9-]*[a-z0-9])?$
bool isEmailAddress(std::wstring_view text) {
  const std::wstring_view mailbox = taken(text, L'@');
  return partsOf(mailbox, Kind::sign, Kind::sign) > 0 && partsOf(text, Kind::hyphen, Kind::letter) > 1;
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
