#include "validation/BusinessNumber.h"

#include <algorithm>

#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "platform/Text.h"
#include "validation/BankChecks.h"

namespace nv::Random {

namespace {

/// The general number test: an optional sign, digits with group separators, at most one decimal point, an exponent.
bool isNumeric(std::wstring_view text) {
  std::size_t at = 0;
  const auto next = [&](auto&& accepts) { return at < text.size() && accepts(text[at]) && ++at != 0; };
  const auto isSign = [](wchar_t c) { return c == L'+' || c == L'-'; };
  const auto digits = [&](bool grouped) {
    std::size_t count = 0;
    while (next(isDigit) || (grouped && count > 0 && next([](wchar_t c) { return c == L','; }))) ++count;
    return count;
  };
  next(isSign);
  std::size_t count = digits(true);
  if (next([](wchar_t c) { return c == L'.'; })) count += digits(false);
  if (count == 0) return false;
  if (next([](wchar_t c) { return c == L'e' || c == L'E'; })) {
    next(isSign);
    if (digits(false) == 0) return false;
  }
  return at == text.size();
}

/// The first eight digits of obvious placeholders; the ninth does not count.
constexpr std::wstring_view placeholderNumbers[] = {L"12345678", L"11111111", L"22222222", L"33333333",
                                                    L"44444444", L"55555555", L"66666666", L"77777777",
                                                    L"88888888", L"99999999", L"00000000"};

}  // namespace

bool VerifyBusinessNumber(Component& component, std::wstring_view businessNumber) {
  trace(component, L"Random - VerifyBusinessNumber");
  return reportedTrap(component, L"Random.VerifyBusinessNumber", false, [&] {
    constexpr std::size_t length = 9;
    if (trimmed(businessNumber).size() < length) return false;
    const std::wstring_view number = businessNumber.substr(0, length);
    if (!isNumeric(number)) return false;
    if (std::ranges::find(placeholderNumbers, number.substr(0, length - 1)) != std::end(placeholderNumbers))
      return false;

    // To the verifier, business numbers are accounts of an institution reserved for them.
    std::wstring ignoredMessage;
    const std::int16_t result = VerifyAccount(component, L"001003", std::wstring(number) + L"RT0001", ignoredMessage, 0,
                                              component.store.verifyBusinessNumberFlag != flagFalse);
    return result != 0;
  });
}

}  // namespace nv::Random
