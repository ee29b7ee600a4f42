#include "stations/StationTexts.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "places/Places.h"
#include "stations/PlayLink.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

constexpr std::size_t kMaxTagsTold = 12;
constexpr std::size_t kMaxTagsToldLength = 220;

// "@fm", "#101", "https": what lists take over from other services.
bool IsHandle(std::string_view tag) {
  return tag.starts_with('@') || tag.starts_with('#') || tag.find("://") != std::string_view::npos ||
         tag.find("www.") != std::string_view::npos;
}

// The tags that tell something the reader does not know yet: not the words of the name or of an earlier tag
// once more, nor what says nothing about the programme.
std::string TagsTold(const SourceStation& station) {
  const std::string name = MatchKey(station.name);
  std::unordered_set<std::string> known;
  for (const std::string_view word : KeyWords(name)) known.emplace(word);
  std::vector<std::string> told;
  std::size_t length = 0;
  for (const std::string& tag : station.tags) {
    if (IsHandle(tag) || TellsNothing(tag, station)) continue;
    const std::string key = MatchKey(tag);
    bool isNew = false;
    for (const std::string_view word : KeyWords(key)) {
      isNew |= known.emplace(word).second && !TellsNothing(word, station);
    }
    if (!isNew) continue;
    length += tag.size() + 2;
    if (told.size() == kMaxTagsTold || length > kMaxTagsToldLength) break;
    told.push_back(tag);
  }
  return Capitalized(JoinAsSentence(told));
}

// "the Netherlands", "the United States".
bool TakesArticle(std::string_view country) {
  constexpr std::array<std::string_view, 9> kPlain = {"Netherlands", "Philippines", "Bahamas",
                                                      "Maldives",    "Comoros",     "Seychelles",
                                                      "Gambia",      "DR Congo",    "Congo"};
  return country.starts_with("United ") || country.ends_with(" Islands") || country.ends_with(" Republic") ||
         country.ends_with(" Netherlands") ||
         std::find(kPlain.begin(), kPlain.end(), country) != kPlain.end();
}

// "Berlin, Germany", "the Netherlands", or with a town that the list named "Kiel, Schleswig-Holstein,
// Germany".
std::string WhereFrom(const StationPlace& place) {
  const std::string text = place.Text();
  if (place.country && text == place.country->name) return (TakesArticle(text) ? "the " : "") + text;
  // The list's own words for the place often begin with the city already.
  if (place.nearby.empty() || text.starts_with(place.nearby)) return text;
  // A city that the list names beside its region keeps the station findable by it.
  return ContainsIgnoringCase(place.nearby, place.region)
             ? place.nearby + ", " + std::string(place.country->name)
             : place.nearby + ", " + text;
}

std::string SoundTold(const SourceStation& station) {
  const std::string type = MediaTypeOf(station);
  if (station.bitRate == 0) return type.empty() ? "" : type + ".";
  const std::string rate = std::to_string(station.bitRate) + " kbit/s.";
  return type.empty() ? rate : type + " at " + rate;
}

std::string LinkText(const std::string& address, LinkPlayer player) {
  return PlayLink{player == LinkPlayer::Asx ? PlayWay::AsxProgram : PlayWay::RealPlayer, address}.ToText();
}

}  // namespace

std::string MediaTypeOf(const SourceStation& station) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 11> kNames = {
      {{"MP3", "MP3"},
       {"AAC", "AAC"},
       {"AAC+", "AAC+"},
       {"OGG", "Ogg Vorbis"},
       {"OPUS", "Opus"},
       {"FLAC", "FLAC"},
       {"WMA", "Windows Media"},
       {"REAL", "RealAudio"},
       {"FLV", "Flash"},
       {"AAC,H.264", "Video"},
       {"AAC+,H.264", "Video"}}};
  // A codec that is not known is named as the list names it: better than nothing when somebody looks for it.
  for (const auto& [codec, name] : kNames) {
    if (station.codec == codec) return std::string(name);
  }
  if (!station.codec.empty()) return station.codec;
  return station.segmented ? "HLS" : "";
}

// Puts together what the lists tell: "Slogan. Rock and blues in English from Ohio, United States. MP3 at 128
// kbit/s." Every part may be missing. The description is searched too, so it repeats words of the other
// fields.
std::string DescriptionOf(const DirectoryStation& station) {
  const SourceStation& source = station.source;
  std::string text = source.slogan;
  if (!text.empty()) text += text.ends_with('.') || text.ends_with('!') || text.ends_with('?') ? " " : ". ";
  std::string sentence = TagsTold(source);
  if (sentence.empty() && !station.genres.entries.empty()) sentence = station.genres.Format();
  const std::vector<std::string> languages = LanguagesIn(source.language);
  const std::string where = WhereFrom(station.place);
  if (sentence.empty() && (!languages.empty() || !where.empty())) sentence = "Radio";
  if (!languages.empty()) sentence += " in " + JoinAsSentence(languages);
  if (!where.empty()) sentence += " from " + where;
  if (!sentence.empty()) text += sentence + ". ";
  text += SoundTold(source);
  return CleanText(text);
}

StationRecord RecordOf(const DirectoryStation& station, LinkPlayer player,
                       const ScramblingAlphabets& alphabets) {
  const SourceStation& source = station.source;
  StationRecord record;
  record.StationId = station.id;
  record[StationField::Name] = source.name;
  record[StationField::MediaType] = MediaTypeOf(source);
  record[StationField::Location] = station.place.Text();
  record[StationField::Format] = station.genres.Format();
  record[StationField::Description] = DescriptionOf(station);
  // A record has room for four addresses, best first.
  constexpr std::array<StationField, 4> kLinks = {StationField::LinkOne, StationField::LinkTwo,
                                                  StationField::LinkThree, StationField::AlternateLink};
  for (std::size_t i = 0; i < kLinks.size() && i < source.addresses.size(); ++i) {
    record[kLinks[i]] = LinkText(source.addresses[i], player);
    ScrambleText(record[kLinks[i]], alphabets);
  }
  record[StationField::WebSite] = source.webSite;
  ScrambleText(record[StationField::WebSite], alphabets);
  if (source.bitRate > 0) record[StationField::BitRate] = std::to_string(source.bitRate);
  record[StationField::OverallRating] = std::to_string(station.ratings.overall);
  record[StationField::SpeedRating] = std::to_string(station.ratings.speed);
  record[StationField::SoundRating] = std::to_string(station.ratings.sound);
  record[StationField::WebSiteRating] = std::to_string(station.ratings.webSite);
  record[StationField::Reliability] = std::to_string(station.ratings.reliability);
  return record;
}

}  // namespace sonaro
