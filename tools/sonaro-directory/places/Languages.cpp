#include "places/Places.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

// A longer list names every language that its maker knows, and says nothing about the station.
constexpr std::size_t kMaxLanguages = 4;
constexpr std::size_t kMaxNameLength = 30;

// One language with the ways in which lists write it, misspelt ones among them when they are frequent.
struct LanguageLine {
  std::string_view name;
  std::string_view spellings;  // joined by "|"; the name itself is always one
};

constexpr LanguageLine kLanguages[] = {
    {"Albanian", "shqip"},
    {"Arabic", "العربية|عربي|arabe|arab"},
    {"Basque", "euskara|euskera"},
    {"Belarusian", "беларуская"},
    {"Bengali", "bangla"},
    {"Bosnian", "bosanski|bosna"},
    {"Bulgarian", "български"},
    {"Catalan", "catala|català|valencià"},
    {"Chinese", "mandarin|中文|chinese mandarin|putonghua"},
    {"Croatian", "hrvatski"},
    {"Czech", "čeština|cesky|česky"},
    {"Danish", "dansk"},
    {"Dutch", "nederlands|holland|dutch nederlands|nederland"},
    {"English",
     "english uk|american english|british english|engilsh|englsih|english us|inglés|ingles|anglais|eng|en|"
     "australian english|english au|usa english|english international|canadian english"},
    {"Estonian", "eesti|estonia"},
    {"Filipino", "tagalog|pilipino"},
    {"Finnish", "suomi"},
    {"Flemish", "vlaams"},
    {"French", "francaise|français|francais|franch|france|fr|français canada"},
    {"Galician", "galego|gallego"},
    {"Georgian", "ქართული"},
    {"German", "deutsch|deu|gernan|türkisch deutsch|ger|deutsch fränkisch|de|österreichisch|deutsch german"},
    {"Greek", "ελληνικά|hellenic|greece|greek ελληνικά"},
    {"Hebrew", "עברית|ivrit"},
    {"Hungarian", "magyar"},
    {"Icelandic", "íslenska"},
    {"Indonesian", "bahasa indonesia|bahasa"},
    {"Irish", "gaeilge"},
    {"Italian", "italiano|italia|ita"},
    {"Japanese", "日本語"},
    {"Kazakh", "қазақ"},
    {"Korean", "한국어"},
    {"Latvian", "latviešu|latvia"},
    {"Lithuanian", "lietuvių"},
    {"Low German", "plattdeutsch|niederdeutsch"},
    {"Macedonian", "македонски"},
    {"Malay", "bahasa melayu|malaysia"},
    {"Maori", "te reo maori|te reo"},
    {"Montenegrin", "montenegro|crnogorski"},
    {"Norwegian", "norsk|bokmål|nynorsk"},
    {"Persian", "farsi|فارسی"},
    {"Polish", "polski|polska"},
    {"Portuguese",
     "brazilian portuguese|português brasil|português (brasil)|português|portugues do brasil|português (br)|"
     "portugues do braasil|portugues|brazil|brasil|português  brasil|portugal"},
    {"Romanian", "romania|românä|româna|română|moldovian|romana"},
    {"Russian", "язык: русский|rus|русский|ru|russkij|russia"},
    {"Serbian", "srpski|српски"},
    {"Slovak", "slovenský|slovensky|slovencina"},
    {"Slovenian", "slovenski|slovenščina|slovene"},
    {"Spanish",
     "español mexico|castellano. español|español internacional|español argentina|español - latinoamerica|"
     "espanish|espaňol|español colombia|español chile|español peruano|españa|spain|español ecuador|"
     "español paraguay|español|castellano|espanol|esp|es|spanish castilian|español latino|latino|"
     "español uruguay|español venezuela|español españa|mexico|español perú|español bolivia"},
    {"Swahili", "kiswahili"},
    {"Swedish", "svenska|sverige"},
    {"Swiss German", "schweizerdeutsch|schwyzerdütsch"},
    {"Tamil", "தமிழ்"},
    {"Thai", "ไทย|ภาษาไทย"},
    {"Turkish", "türkçe|türkisch|turkce|turk"},
    {"Ukrainian", "ukranian|українська|украинский"},
    {"Urdu", "اردو"},
    {"Vietnamese", "tiếng việt"},
};

// The first line to claim a spelling keeps it.
const std::unordered_map<std::string, std::string_view>& BySpelling() {
  static const std::unordered_map<std::string, std::string_view> map = [] {
    std::unordered_map<std::string, std::string_view> names;
    for (const LanguageLine& line : kLanguages) {
      names.emplace(MatchKey(line.name), line.name);
      for (const std::string_view spelling : Split(line.spellings, '|')) {
        names.emplace(MatchKey(spelling), line.name);
      }
    }
    return names;
  }();
  return map;
}

// Every word of `name` with a capital: lists write language names in small letters.
std::string WithCapitals(std::string_view name) {
  std::string result;
  for (const std::string_view word : Split(name, ' ')) {
    if (!result.empty()) result += ' ';
    result += Capitalized(word);
  }
  return result;
}

}  // namespace

// Compared as a whole: "French" is a language, "French pop" is not.
bool IsLanguage(std::string_view text) { return BySpelling().count(MatchKey(text)) > 0; }

// In the order of the text, each language once. Several separators are in use; a blank is none, since names
// hold blanks.
std::vector<std::string> LanguagesIn(std::string_view text) {
  std::string plain(text);
  std::replace_if(
      plain.begin(), plain.end(), [](char c) { return c == ';' || c == '/'; }, ',');
  std::vector<std::string> languages;
  for (const std::string_view part : Split(plain, ',')) {
    const std::string key = MatchKey(part);
    if (key.empty() || languages.size() == kMaxLanguages) continue;
    const auto known = BySpelling().find(key);
    // An unknown short text is taken for a language that is not in the table; a long one is a sentence.
    if (known == BySpelling().end() && part.size() > kMaxNameLength) continue;
    std::string name =
        known == BySpelling().end() ? WithCapitals(TrimBlanks(part)) : std::string(known->second);
    if (std::find(languages.begin(), languages.end(), name) == languages.end())
      languages.push_back(std::move(name));
  }
  return languages;
}

}  // namespace sonaro
