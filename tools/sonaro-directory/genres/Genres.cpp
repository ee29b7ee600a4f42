// How a station gets its genres. Lists know free tags only, in any language and spelling, and a table maps
// the common ones to genres and sub-genres. A tag is looked up as a whole first; failing that, the longest
// runs of its words that the table knows are taken from the left, so that "classic rock jazz" is Classic
// Rock and Jazz rather than Classical, Rock and Jazz. A station whose tags give nothing is classified by
// its name and slogan, with more caution, since names use the same words for other purposes.
//
// All comparisons are by MatchKey: without letter case, accents and punctuation.
#include "genres/Genres.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "base/Text.h"
#include "places/Countries.h"
#include "places/Places.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

constexpr std::size_t kMaxTermLength = 4;  // words
constexpr std::size_t kMaxTagWords = 6;    // a longer tag is a sentence, and its words mean something else

using TagMap = std::unordered_map<std::string, std::vector<GenreEntry>>;

const TagMap& GenresByTag() {
  static const TagMap kMap = [] {
    TagMap map;
    for (const GenreLine& line : Tags().lines) {
      const GenreEntry entry{GenreByCode(line.genre), line.subGenre};
      for (const std::string_view tag : line.tags) {
        std::vector<GenreEntry>& entries = map[MatchKey(tag)];
        if (std::find(entries.begin(), entries.end(), entry) == entries.end()) entries.push_back(entry);
      }
      // A sub-genre's name is a tag for it as well, unless an earlier line has it among its tags.
      if (!line.subGenre.empty()) map.try_emplace(MatchKey(line.subGenre), std::vector{entry});
    }
    return map;
  }();
  return kMap;
}

bool IsOneOf(std::span<const std::string_view> words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

void Append(std::vector<GenreEntry>& entries, const std::vector<GenreEntry>& more) {
  for (const GenreEntry& entry : more) {
    if (std::find(entries.begin(), entries.end(), entry) == entries.end()) entries.push_back(entry);
  }
}

// Names are often written in one word, "RockFM", "jazzradio": what is left of a word without that counts when
// it is long enough not to be a piece of something else.
std::string_view WithoutRadio(std::string_view word) {
  constexpr std::size_t kShortest = 4;
  for (const std::string_view part : {std::string_view("radio"), std::string_view("fm")}) {
    if (word.size() < part.size() + kShortest) continue;
    if (word.ends_with(part)) return word.substr(0, word.size() - part.size());
    if (word.starts_with(part)) return word.substr(part.size());
  }
  return word;
}

// Returns the genres of the longest terms in `words`, taken from the left. A single word counts only when it
// is not ambiguous; `name` says that the words are of a name, where more of them are. The words must be
// pieces of one key with a blank between them: a term is cut out of it from its first word to its last.
std::vector<GenreEntry> GenresInWords(const std::vector<std::string_view>& words, bool name) {
  std::vector<GenreEntry> entries;
  for (std::size_t start = 0; start < words.size();) {
    std::size_t taken = 1;
    for (std::size_t length = std::min(kMaxTermLength, words.size() - start); length > 0; --length) {
      const std::string_view last = words[start + length - 1];
      std::string term(words[start].data(), last.data() + last.size());
      auto found = GenresByTag().find(term);
      if (length == 1 && name && found == GenresByTag().end()) {
        term = WithoutRadio(term);
        found = GenresByTag().find(term);
      }
      if (length == 1 && (IsOneOf(Tags().onlyAsWholeTag, term) || (name && IsOneOf(Tags().notInNames, term))))
        continue;
      if (found == GenresByTag().end()) continue;
      Append(entries, found->second);
      taken = length;
      break;
    }
    start += taken;
  }
  return entries;
}

// "104", "fm", "128kbps".
bool IsFrequencyWord(std::string_view word) {
  constexpr std::string_view kUnits[] = {"fm",    "am", "khz", "mhz", "kbps",   "kbit",
                                         "kbits", "kb", "s",   "k",   "region", "hz"};
  const std::size_t digits = std::min(word.find_first_not_of("0123456789"), word.size());
  return digits == word.size() || IsOneOf(kUnits, word.substr(digits));
}

bool SaysNothing(std::string_view tag, std::string_view key, const Country* country) {
  static const std::unordered_set<std::string> kFillers = [] {
    std::unordered_set<std::string> set;
    for (const std::string_view filler : Tags().fillers) set.insert(MatchKey(filler));
    return set;
  }();
  if (key.empty() || kFillers.count(std::string(key)) > 0) return true;
  const std::vector<std::string_view> words = KeyWords(key);
  if (std::all_of(words.begin(), words.end(), IsFrequencyWord)) return true;
  if (CountryByName(tag) || IsLanguage(tag)) return true;
  return country && !KnownRegion(*country, tag).empty();
}

std::string FirstTellingTag(const SourceStation& station) {
  const Country* country = CountryByCode(station.countryCode);
  for (const std::string& tag : station.tags) {
    if (!SaysNothing(tag, MatchKey(tag), country)) return tag;
  }
  return {};
}

// Puts the entry first that the list should show: variety says less than anything else, and a sub-genre more
// than its genre.
void PutMainFirst(std::vector<GenreEntry>& entries) {
  if (entries.empty()) return;
  const auto telling = std::find_if(entries.begin(), entries.end(),
                                    [](const GenreEntry& entry) { return entry.genre->code != 'v'; });
  auto main = telling == entries.end() ? entries.begin() : telling;
  if (main->subGenre.empty()) {
    const auto closer = std::find_if(main, entries.end(), [&](const GenreEntry& entry) {
      return entry.genre == main->genre && !entry.subGenre.empty();
    });
    if (closer != entries.end()) main = closer;
  }
  std::rotate(entries.begin(), main, main + 1);
}

}  // namespace

std::string Classification::Format() const {
  if (entries.empty()) return std::string(GenreByCode(kOtherGenre)->name);
  return std::string(entries.front().subGenre.empty() ? entries.front().genre->name
                                                      : entries.front().subGenre);
}

const Genre* GenreByCode(char code) {
  const std::span<const Genre> genres = GenreList();
  const auto found =
      std::find_if(genres.begin(), genres.end(), [&](const Genre& genre) { return genre.code == code; });
  return found == genres.end() ? nullptr : &*found;
}

std::vector<GenreEntry> GenresOfTag(std::string_view tag) {
  const std::string key = MatchKey(tag);
  if (const auto found = GenresByTag().find(key); found != GenresByTag().end()) return found->second;
  const std::vector<std::string_view> words = KeyWords(key);
  if (words.size() < 2 || words.size() > kMaxTagWords) return {};
  return GenresInWords(words, /*name=*/false);
}

bool TellsNothing(std::string_view tag, const SourceStation& station) {
  return SaysNothing(tag, MatchKey(tag), CountryByCode(station.countryCode));
}

// In the order of the tags: the first genre is the main one unless PutMainFirst finds a better one.
Classification ClassifyStation(const SourceStation& station) {
  Classification result;
  for (const std::string& tag : station.tags) Append(result.entries, GenresOfTag(tag));
  if (result.entries.empty()) {
    for (const std::string* text : {&station.name, &station.slogan}) {
      const std::string key = MatchKey(*text);
      Append(result.entries, GenresInWords(KeyWords(key), /*name=*/true));
    }
  }
  PutMainFirst(result.entries);
  // After PutMainFirst, so that the main genre is never cut off.
  if (result.entries.size() > kMaxGenres) result.entries.resize(kMaxGenres);
  if (result.entries.empty()) result.otherTag = FirstTellingTag(station);
  return result;
}

}  // namespace sonaro
