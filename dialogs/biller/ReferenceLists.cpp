#include "dialogs/biller/ReferenceLists.h"

#include <algorithm>

#include "dialogs/biller/CountryFile.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "platform/HostInstallation.h"
#include "platform/Text.h"
#include "validation/SystemHelpers.h"

namespace nv {

namespace {

constexpr const wchar_t* stateCodes[] = {
    L"AK", L"AL", L"AR", L"AS", L"AZ", L"CA", L"CO", L"CT", L"DC", L"DE", L"FL", L"FM", L"GA", L"GU", L"HI",
    L"IA", L"ID", L"IL", L"IN", L"KS", L"KY", L"LA", L"MA", L"MD", L"ME", L"MH", L"MI", L"MN", L"MO", L"MP",
    L"MS", L"MT", L"NC", L"ND", L"NE", L"NH", L"NJ", L"NM", L"NV", L"NY", L"OH", L"OK", L"OR", L"PA", L"PR",
    L"PW", L"RI", L"SC", L"SD", L"TN", L"TX", L"UT", L"VA", L"VI", L"VT", L"WA", L"WI", L"WV", L"WY"};

struct Currency {
  std::wstring code;
  std::wstring description;
};

/// Always offered, in this order; the host's descriptions are preferred.
const Currency commonCurrencies[] = {
    {canadianDollar, L"Canadian Dollar"}, {L"USD", L"US Dollar"},    {L"EUR", L"Euro"},
    {L"GBP", L"British Pound"},           {L"JPY", L"Japanese Yen"}, {L"AUD", L"Australian Dollar"}};

constexpr const wchar_t* separatorDescription = L"--------------------";

/// Takes "CODE", "CODE - description" or "CODE;description" apart.
Currency parsed(std::wstring_view entry) {
  for (const std::wstring_view separator : {std::wstring_view(L";"), std::wstring_view(L" - ")}) {
    const std::size_t at = entry.find(separator);
    if (at == std::wstring_view::npos) continue;
    return {std::wstring(trimmed(entry.substr(0, at))), std::wstring(trimmed(entry.substr(at + separator.size())))};
  }
  return {std::wstring(trimmed(entry)), {}};
}

std::vector<Currency> currenciesOf(const StringArray& offered) {
  std::vector<Currency> currencies;
  const auto take = [&currencies](Currency currency) {
    const auto same = [&](const Currency& other) { return other.code == currency.code; };
    if (currency.code.empty() || std::ranges::any_of(currencies, same)) return;
    currencies.push_back(std::move(currency));
  };
  const bool twoRows = offered.dimensions() == 2 && offered.bounds(0).size() >= 2;
  if (!twoRows) {
    for (const std::wstring& entry : offered.elements()) take(parsed(entry));
    return currencies;
  }
  const std::int32_t codes = offered.bounds(0).lower;
  const StringArray::Bounds columns = offered.bounds(1);
  for (std::int32_t i = columns.lower; i <= columns.upper; ++i) {
    take({std::wstring(trimmed(offered.at({codes, i}))), std::wstring(trimmed(offered.at({codes + 1, i})))});
  }
  return currencies;
}

constexpr const wchar_t* loadCountriesLabel = L"RandomInfo - LoadCountries";

/// Whoever deciphers the country file, in whatever process: the copy in clear has one place.
constexpr const wchar_t* turnAtCountryFile = L"NVRandom.FXCountries";

void removeIfThere(platform::Files& files, const std::wstring& path) {
  try {
    files.remove(path);
  } catch (const RuntimeError& error) {
    if (error.number() != static_cast<std::int32_t>(ErrorNumber::fileNotFound)) throw;
  }
}

/// Leaves no file at a path in the end. That this cannot be done is reported, but not to the user.
class PassingFile {
 public:
  PassingFile(Component& component, const std::wstring& path) : component_(component), path_(path) {}
  ~PassingFile() {
    try {
      removeIfThere(component_.services.files, path_);
    } catch (...) {
      reportSilently(component_, loadCountriesLabel);
    }
  }
  PassingFile(const PassingFile&) = delete;
  PassingFile& operator=(const PassingFile&) = delete;

 private:
  Component& component_;
  const std::wstring& path_;
};

}  // namespace

std::span<const wchar_t* const> unitedStatesCodes() {
  return stateCodes;
}

std::vector<std::wstring> provinceCodes(std::wstring_view provpostalstr) {
  constexpr std::size_t unit = 3;
  std::vector<std::wstring> codes;
  for (std::size_t at = 0; at + 2 <= provpostalstr.size(); at += unit) {
    const std::wstring_view code = provpostalstr.substr(at, 2);
    if (codes.empty() || codes.back() != code) codes.emplace_back(code);
  }
  std::ranges::sort(codes);
  return codes;
}

forms::RowTable currencyRows(const StringArray& offered) {
  const std::vector<Currency> others = currenciesOf(offered);
  forms::RowTable rows(currencyColumns);
  for (const Currency& common : commonCurrencies) {
    const auto described = std::ranges::find_if(
        others, [&](const Currency& other) { return other.code == common.code && !other.description.empty(); });
    rows.add({described == others.end() ? common.description : described->description, common.code});
  }
  rows.add({separatorDescription, separatorCode});
  for (const Currency& other : others) {
    if (std::ranges::any_of(commonCurrencies, [&](const Currency& common) { return common.code == other.code; }))
      continue;
    rows.add({other.description, other.code});
  }
  return rows;
}

std::vector<std::wstring> countryCodes(std::wstring_view list) {
  std::vector<std::wstring> codes;
  for (const std::wstring_view part : split(list, L",;| ")) {
    if (part.empty()) continue;
    std::ranges::transform(part, std::back_inserter(codes.emplace_back()), asciiUpper);
  }
  return codes;
}

// The dialog's lists

void frmRandomInfo::LoadProvinces() {
  trace(component(), L"RandomInfo - LoadProvinces");
  ran_payee_prov.clear();
  if (domestic()) {
    for (std::wstring& code : provinceCodes(store().Provpostalstr)) ran_payee_prov.add(std::move(code));
  } else {
    for (const wchar_t* code : unitedStatesCodes()) ran_payee_prov.add(code);
  }
}

void frmRandomInfo::LoadCurrencyCodes() {
  trace(component(), L"RandomInfo - LoadCurrencyCodes");
  cmbCurrencyCode.setRows(currencyRows(store().IPCurrencyList));
}

void frmRandomInfo::LoadCountries() {
  trace(component(), loadCountriesLabel);
  std::wstring file = store().DLLPath;
  if (!file.empty() && file.back() != L'\\') file += L'\\';
  file += L"FXCountries";
  std::wstring text;
  if (!Random::Fileexists(component(), file)) {
    message(L"The list of countries cannot be loaded, the country file is missing.");
  } else {
    text = deciphered(file);
  }
  if (trimmed(store().CountryListAll) == L"Y") {
    ran_payee_country.setRows(countryRows(text, [](std::wstring_view) { return true; }));
  } else {
    const std::vector<std::wstring> offered = countryCodes(store().CountryListPartial);
    ran_payee_country.setRows(
        countryRows(text, [&](std::wstring_view code) { return std::ranges::find(offered, code) != offered.end(); }));
  }
}

/// The text of an enciphered file; empty when it cannot be deciphered, which is reported, but not to the user. The
/// deciphered copy stands beside the file no longer than it takes to read it.
std::wstring frmRandomInfo::deciphered(const std::wstring& file) {
  const std::wstring copy = file + L".dec";
  const platform::Services& services = component().services;
  const auto turn = services.machine.takeTurn(turnAtCountryFile);
  try {
    removeIfThere(services.files, copy);  // somebody may have left an old one
    const PassingFile passing(component(), copy);
    if (!services.installation.decipherFile(store().DLLPath, file, copy)) throw RuntimeError(ErrorNumber::pathAccess);
    return services.files.read(copy);
  } catch (const RuntimeError&) {
    reportSilently(component(), loadCountriesLabel);
    return {};
  }
}

void frmRandomInfo::setCountry(const std::wstring& code) {
  ran_payee_country.setText(code);
  ran_payee_country.selectWhere(countryCode, code);
}

void frmRandomInfo::setCurrency(const std::wstring& code) {
  cmbCurrencyCode.setText(code);
  cmbCurrencyCode.selectWhere(currencyCode, code);
}

bool frmRandomInfo::inCanada() const {
  const std::wstring& country = ran_payee_country.text();
  return country == canadaCode || country == L"CAN";
}

bool frmRandomInfo::inUnitedStates() const {
  const std::wstring& country = ran_payee_country.text();
  return country == unitedStatesCode || country == L"USA";
}

}  // namespace nv
