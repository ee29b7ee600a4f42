// Lists write countries in every way: as a code, in English, in the country's own language, by a city. All
// of them are spellings of one line here, compared as match keys.
#include "places/Countries.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

using enum Continent;

// ISO 3166-1 codes in ascending order, with Kosovo's "XK", which is in common use. Each with the English
// short name, its continent, and other spellings that lists use.
constexpr Country kCountries[] = {
    {"AD", "Andorra", Europe, ""},
    {"AE", "United Arab Emirates", Asia, "UAE|Emirates|Dubai"},
    {"AF", "Afghanistan", Asia, ""},
    {"AG", "Antigua and Barbuda", NorthAmerica, "Antigua"},
    {"AI", "Anguilla", NorthAmerica, ""},
    {"AL", "Albania", Europe, "Shqipëria"},
    {"AM", "Armenia", Asia, ""},
    {"AO", "Angola", Africa, ""},
    {"AQ", "Antarctica", Antarctica, ""},
    {"AR", "Argentina", SouthAmerica, ""},
    {"AS", "American Samoa", Oceania, ""},
    {"AT", "Austria", Europe, "Österreich"},
    {"AU", "Australia", Oceania, ""},
    {"AW", "Aruba", NorthAmerica, ""},
    {"AX", "Åland Islands", Europe, "Aland"},
    {"AZ", "Azerbaijan", Asia, ""},
    {"BA", "Bosnia and Herzegovina", Europe, "Bosnia|Bosna i Hercegovina|BiH"},
    {"BB", "Barbados", NorthAmerica, ""},
    {"BD", "Bangladesh", Asia, ""},
    {"BE", "Belgium", Europe, "Belgique|België|Belgien"},
    {"BF", "Burkina Faso", Africa, ""},
    {"BG", "Bulgaria", Europe, "България"},
    {"BH", "Bahrain", Asia, ""},
    {"BI", "Burundi", Africa, ""},
    {"BJ", "Benin", Africa, ""},
    {"BL", "Saint Barthélemy", NorthAmerica, ""},
    {"BM", "Bermuda", NorthAmerica, ""},
    {"BN", "Brunei", Asia, "Brunei Darussalam"},
    {"BO", "Bolivia", SouthAmerica, "Plurinational State of Bolivia"},
    {"BQ", "Caribbean Netherlands", NorthAmerica, "Bonaire|Bonaire Sint Eustatius And Saba"},
    {"BR", "Brazil", SouthAmerica, "Brasil"},
    {"BS", "Bahamas", NorthAmerica, ""},
    {"BT", "Bhutan", Asia, ""},
    {"BV", "Bouvet Island", Antarctica, ""},
    {"BW", "Botswana", Africa, ""},
    {"BY", "Belarus", Europe, "Беларусь"},
    {"BZ", "Belize", NorthAmerica, ""},
    {"CA", "Canada", NorthAmerica, ""},
    {"CC", "Cocos Islands", Oceania, "Cocos Keeling Islands"},
    {"CD", "DR Congo", Africa, "Democratic Republic of the Congo"},
    {"CF", "Central African Republic", Africa, ""},
    {"CG", "Congo", Africa, "Republic of the Congo"},
    {"CH", "Switzerland", Europe, "Schweiz|Suisse|Svizzera"},
    {"CI", "Ivory Coast", Africa, "Cote d'Ivoire|Coted Ivoire"},
    {"CK", "Cook Islands", Oceania, ""},
    {"CL", "Chile", SouthAmerica, ""},
    {"CM", "Cameroon", Africa, "Cameroun"},
    {"CN", "China", Asia, "People's Republic of China"},
    {"CO", "Colombia", SouthAmerica, ""},
    {"CR", "Costa Rica", NorthAmerica, ""},
    {"CU", "Cuba", NorthAmerica, ""},
    {"CV", "Cape Verde", Africa, "Cabo Verde"},
    {"CW", "Curaçao", NorthAmerica, ""},
    {"CX", "Christmas Island", Oceania, ""},
    {"CY", "Cyprus", Europe, "Κύπρος"},
    {"CZ", "Czech Republic", Europe, "Czechia|Česko|Česká republika|ČR"},
    {"DE", "Germany", Europe, "Deutschland|Deutschland (Germany)"},
    {"DJ", "Djibouti", Africa, ""},
    {"DK", "Denmark", Europe, "Danmark"},
    {"DM", "Dominica", NorthAmerica, ""},
    {"DO", "Dominican Republic", NorthAmerica, "República Dominicana"},
    {"DZ", "Algeria", Africa, "Algérie"},
    {"EC", "Ecuador", SouthAmerica, ""},
    {"EE", "Estonia", Europe, "Eesti"},
    {"EG", "Egypt", Africa, "مصر"},
    {"EH", "Western Sahara", Africa, ""},
    {"ER", "Eritrea", Africa, ""},
    {"ES", "Spain", Europe, "España"},
    {"ET", "Ethiopia", Africa, ""},
    {"FI", "Finland", Europe, "Suomi"},
    {"FJ", "Fiji", Oceania, ""},
    {"FK", "Falkland Islands", SouthAmerica, "Falkland Islands Malvinas"},
    {"FM", "Micronesia", Oceania, ""},
    {"FO", "Faroe Islands", Europe, ""},
    {"FR", "France", Europe, ""},
    {"GA", "Gabon", Africa, ""},
    {"GB", "United Kingdom", Europe, "UK|Great Britain|United Kingdom of Great Britain and Northern Ireland"},
    {"GD", "Grenada", NorthAmerica, ""},
    {"GE", "Georgia", Asia, ""},
    {"GF", "French Guiana", SouthAmerica, "Guyane"},
    {"GG", "Guernsey", Europe, ""},
    {"GH", "Ghana", Africa, ""},
    {"GI", "Gibraltar", Europe, ""},
    {"GL", "Greenland", NorthAmerica, ""},
    {"GM", "Gambia", Africa, ""},
    {"GN", "Guinea", Africa, ""},
    {"GP", "Guadeloupe", NorthAmerica, ""},
    {"GQ", "Equatorial Guinea", Africa, ""},
    {"GR", "Greece", Europe, "Ελλάδα|Hellas"},
    {"GS", "South Georgia", Antarctica, ""},
    {"GT", "Guatemala", NorthAmerica, ""},
    {"GU", "Guam", Oceania, ""},
    {"GW", "Guinea-Bissau", Africa, ""},
    {"GY", "Guyana", SouthAmerica, ""},
    {"HK", "Hong Kong", Asia, ""},
    {"HM", "Heard Island", Antarctica, ""},
    {"HN", "Honduras", NorthAmerica, ""},
    {"HR", "Croatia", Europe, "Hrvatska"},
    {"HT", "Haiti", NorthAmerica, "Haïti"},
    {"HU", "Hungary", Europe, "Magyarország"},
    {"ID", "Indonesia", Asia, ""},
    {"IE", "Ireland", Europe, "Éire"},
    {"IL", "Israel", Asia, ""},
    {"IM", "Isle of Man", Europe, ""},
    {"IN", "India", Asia, "Bharat"},
    {"IO", "British Indian Ocean Territory", Asia, ""},
    {"IQ", "Iraq", Asia, ""},
    {"IR", "Iran", Asia, "Islamic Republic Of Iran"},
    {"IS", "Iceland", Europe, ""},
    {"IT", "Italy", Europe, "Italia|Italien"},
    {"JE", "Jersey", Europe, ""},
    {"JM", "Jamaica", NorthAmerica, ""},
    {"JO", "Jordan", Asia, ""},
    {"JP", "Japan", Asia, "日本"},
    {"KE", "Kenya", Africa, ""},
    {"KG", "Kyrgyzstan", Asia, ""},
    {"KH", "Cambodia", Asia, ""},
    {"KI", "Kiribati", Oceania, ""},
    {"KM", "Comoros", Africa, ""},
    {"KN", "Saint Kitts and Nevis", NorthAmerica, "St. Kitts"},
    {"KP", "North Korea", Asia, "Democratic Peoples Republic Of Korea"},
    {"KR", "South Korea", Asia, "Korea|Republic Of Korea"},
    {"KW", "Kuwait", Asia, ""},
    {"KY", "Cayman Islands", NorthAmerica, ""},
    {"KZ", "Kazakhstan", Asia, "Қазақстан"},
    {"LA", "Laos", Asia, "Lao Peoples Democratic Republic"},
    {"LB", "Lebanon", Asia, "Liban"},
    {"LC", "Saint Lucia", NorthAmerica, "St. Lucia"},
    {"LI", "Liechtenstein", Europe, ""},
    {"LK", "Sri Lanka", Asia, ""},
    {"LR", "Liberia", Africa, ""},
    {"LS", "Lesotho", Africa, ""},
    {"LT", "Lithuania", Europe, "Lietuva"},
    {"LU", "Luxembourg", Europe, ""},
    {"LV", "Latvia", Europe, "Latvija"},
    {"LY", "Libya", Africa, ""},
    {"MA", "Morocco", Africa, "Maroc"},
    {"MC", "Monaco", Europe, ""},
    {"MD", "Moldova", Europe, "Republic Of Moldova"},
    {"ME", "Montenegro", Europe, "Crna Gora"},
    {"MF", "Saint Martin", NorthAmerica, ""},
    {"MG", "Madagascar", Africa, ""},
    {"MH", "Marshall Islands", Oceania, ""},
    {"MK", "North Macedonia", Europe, "Macedonia|Republic Of North Macedonia|FYROM"},
    {"ML", "Mali", Africa, ""},
    {"MM", "Myanmar", Asia, "Burma"},
    {"MN", "Mongolia", Asia, ""},
    {"MO", "Macao", Asia, "Macau"},
    {"MP", "Northern Mariana Islands", Oceania, ""},
    {"MQ", "Martinique", NorthAmerica, ""},
    {"MR", "Mauritania", Africa, ""},
    {"MS", "Montserrat", NorthAmerica, ""},
    {"MT", "Malta", Europe, ""},
    {"MU", "Mauritius", Africa, ""},
    {"MV", "Maldives", Asia, ""},
    {"MW", "Malawi", Africa, ""},
    {"MX", "Mexico", NorthAmerica, "México"},
    {"MY", "Malaysia", Asia, ""},
    {"MZ", "Mozambique", Africa, "Moçambique"},
    {"NA", "Namibia", Africa, ""},
    {"NC", "New Caledonia", Oceania, "Nouvelle-Calédonie"},
    {"NE", "Niger", Africa, ""},
    {"NF", "Norfolk Island", Oceania, ""},
    {"NG", "Nigeria", Africa, ""},
    {"NI", "Nicaragua", NorthAmerica, ""},
    {"NL", "Netherlands", Europe, "Nederland|Holland|Kingdom of the Netherlands"},
    {"NO", "Norway", Europe, "Norge"},
    {"NP", "Nepal", Asia, ""},
    {"NR", "Nauru", Oceania, ""},
    {"NU", "Niue", Oceania, ""},
    {"NZ", "New Zealand", Oceania, "Aotearoa"},
    {"OM", "Oman", Asia, ""},
    {"PA", "Panama", NorthAmerica, "Panamá"},
    {"PE", "Peru", SouthAmerica, "Perú"},
    {"PF", "French Polynesia", Oceania, ""},
    {"PG", "Papua New Guinea", Oceania, ""},
    {"PH", "Philippines", Asia, "Pilipinas"},
    {"PK", "Pakistan", Asia, ""},
    {"PL", "Poland", Europe, "Polska"},
    {"PM", "Saint Pierre and Miquelon", NorthAmerica, ""},
    {"PN", "Pitcairn", Oceania, ""},
    {"PR", "Puerto Rico", NorthAmerica, ""},
    {"PS", "Palestine", Asia, "State Of Palestine"},
    {"PT", "Portugal", Europe, ""},
    {"PW", "Palau", Oceania, ""},
    {"PY", "Paraguay", SouthAmerica, ""},
    {"QA", "Qatar", Asia, ""},
    {"RE", "Réunion", Africa, "La Réunion"},
    {"RO", "Romania", Europe, "România"},
    {"RS", "Serbia", Europe, "Srbija"},
    {"RU", "Russia", Europe, "Russian Federation|Россия"},
    {"RW", "Rwanda", Africa, ""},
    {"SA", "Saudi Arabia", Asia, ""},
    {"SB", "Solomon Islands", Oceania, ""},
    {"SC", "Seychelles", Africa, ""},
    {"SD", "Sudan", Africa, ""},
    {"SE", "Sweden", Europe, "Sverige"},
    {"SG", "Singapore", Asia, ""},
    {"SH", "Saint Helena", Africa, "Ascension And Tristan Da Cunha Saint Helena"},
    {"SI", "Slovenia", Europe, "Slovenija"},
    {"SJ", "Svalbard", Europe, ""},
    {"SK", "Slovakia", Europe, "Slovensko"},
    {"SL", "Sierra Leone", Africa, ""},
    {"SM", "San Marino", Europe, ""},
    {"SN", "Senegal", Africa, "Sénégal"},
    {"SO", "Somalia", Africa, ""},
    {"SR", "Suriname", SouthAmerica, ""},
    {"SS", "South Sudan", Africa, ""},
    {"ST", "São Tomé and Príncipe", Africa, ""},
    {"SV", "El Salvador", NorthAmerica, ""},
    {"SX", "Sint Maarten", NorthAmerica, ""},
    {"SY", "Syria", Asia, "Syrian Arab Republic"},
    {"SZ", "Eswatini", Africa, "Swaziland"},
    {"TC", "Turks and Caicos Islands", NorthAmerica, ""},
    {"TD", "Chad", Africa, ""},
    {"TF", "French Southern Territories", Antarctica, ""},
    {"TG", "Togo", Africa, ""},
    {"TH", "Thailand", Asia, ""},
    {"TJ", "Tajikistan", Asia, ""},
    {"TK", "Tokelau", Oceania, ""},
    {"TL", "East Timor", Asia, "Timor Leste"},
    {"TM", "Turkmenistan", Asia, ""},
    {"TN", "Tunisia", Africa, "Tunisie"},
    {"TO", "Tonga", Oceania, ""},
    {"TR", "Turkey", Asia, "Türkiye"},
    {"TT", "Trinidad and Tobago", NorthAmerica, "Trinidad"},
    {"TV", "Tuvalu", Oceania, ""},
    {"TW", "Taiwan", Asia, "Taiwan, Republic Of China"},
    {"TZ", "Tanzania", Africa, "United Republic Of Tanzania"},
    {"UA", "Ukraine", Europe, "Україна"},
    {"UG", "Uganda", Africa, ""},
    {"UM", "US Minor Outlying Islands", Oceania, "United States Minor Outlying Islands"},
    {"US", "United States", NorthAmerica, "USA|United States of America|U.S.A.|America"},
    {"UY", "Uruguay", SouthAmerica, ""},
    {"UZ", "Uzbekistan", Asia, ""},
    {"VA", "Vatican City", Europe, "Holy See|Vatican"},
    {"VC", "Saint Vincent and the Grenadines", NorthAmerica, "St. Vincent"},
    {"VE", "Venezuela", SouthAmerica, "Bolivarian Republic Of Venezuela"},
    {"VG", "British Virgin Islands", NorthAmerica, ""},
    {"VI", "US Virgin Islands", NorthAmerica, ""},
    {"VN", "Vietnam", Asia, "Viet Nam"},
    {"VU", "Vanuatu", Oceania, ""},
    {"WF", "Wallis and Futuna", Oceania, ""},
    {"WS", "Samoa", Oceania, ""},
    {"XK", "Kosovo", Europe, "Kosova"},
    {"YE", "Yemen", Asia, ""},
    {"YT", "Mayotte", Africa, ""},
    {"ZA", "South Africa", Africa, ""},
    {"ZM", "Zambia", Africa, ""},
    {"ZW", "Zimbabwe", Africa, ""},
};

// Keys of all names; the first country to claim one keeps it.
const std::unordered_map<std::string, const Country*>& ByName() {
  static const std::unordered_map<std::string, const Country*> names = [] {
    std::unordered_map<std::string, const Country*> map;
    // Proper names before other spellings, so that a nickname never hides a country.
    for (const Country& country : kCountries) map.emplace(MatchKey(country.name), &country);
    for (const Country& country : kCountries) {
      for (const std::string_view other : Split(country.otherNames, '|')) {
        if (!other.empty()) map.emplace(MatchKey(other), &country);
      }
    }
    return map;
  }();
  return names;
}

}  // namespace

// In the order of the enumeration.
std::string_view ContinentName(Continent continent) {
  constexpr std::array<std::string_view, kContinents> kNames = {
      "Africa", "Antarctica", "Asia", "Europe", "North America", "Oceania", "South America"};
  return kNames[static_cast<std::size_t>(continent)];
}

std::span<const Country> Countries() { return kCountries; }

const Country* CountryByCode(std::string_view code) {
  if (code.size() != 2) return nullptr;
  const auto found = std::find_if(std::begin(kCountries), std::end(kCountries), [&](const Country& country) {
    return EqualIgnoringCase(country.code, code);
  });
  return found == std::end(kCountries) ? nullptr : found;
}

// A leading article does not count: "The Netherlands" is found like "Netherlands".
const Country* CountryByName(std::string_view name) {
  std::string key = MatchKey(name);
  if (key.starts_with("the ")) key.erase(0, 4);
  const auto found = ByName().find(key);
  return found == ByName().end() ? nullptr : found->second;
}

}  // namespace sonaro
