#include "stations/StationSource.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "directory/TypedSearch.h"
#include "resources/texts/playback.h"
#include "settings/Strings.h"
#include "stations/ExtraLinks.h"
#include "stations/PersonalStations.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

// There are five pictures, 0 to 4.
constexpr std::int64_t kMaxReliability = 4;

// The fields that are scrambled in the guide. All others are plain.
constexpr StationField kScrambled[] = {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                       StationField::AlternateLink, StationField::WebSite};

// The field of the name (0) or a sub-item.
StationField FieldOf(int subItem) {
  switch (static_cast<SubItem>(subItem)) {
    case SubItem::Location:
      return StationField::Location;
    case SubItem::MediaType:
      return StationField::MediaType;
    case SubItem::Format:
      return StationField::Format;
    case SubItem::Overall:
      return StationField::OverallRating;
    case SubItem::Sound:
      return StationField::SoundRating;
    case SubItem::Speed:
      return StationField::SpeedRating;
    case SubItem::WebSite:
      return StationField::WebSiteRating;
    case SubItem::Reliability:
      return StationField::Reliability;
  }
  return StationField::Name;
}

bool IsBlank(std::string_view text) { return TrimBlanks(text).empty(); }

}  // namespace

// A number out of a file: anything outside the five pictures becomes the nearest.
int StationInfo::Symbol() const {
  return static_cast<int>(std::clamp<std::int64_t>(NumberValue(reliability), 0, kMaxReliability));
}

// Copies: what a visitor is shown is gone with the next record.
StationInfo InfoOf(const StationView& station) {
  const auto text = [&](StationField field) { return std::string(station[field]); };
  return {StationKey::OfGuide(station.StationId),
          text(StationField::Name),
          text(StationField::Location),
          text(StationField::MediaType),
          text(StationField::Format),
          text(StationField::OverallRating),
          text(StationField::SoundRating),
          text(StationField::SpeedRating),
          text(StationField::WebSiteRating),
          text(StationField::Reliability)};
}

StationInfo InfoOf(const StationRecord& record) {
  const std::vector<std::string_view> fields(record.fields.begin(), record.fields.end());
  return InfoOf(StationView{record.StationId, fields});
}

const std::string& CellOf(const StationInfo& row, int subItem) {
  switch (static_cast<SubItem>(subItem)) {
    case SubItem::Location:
      return row.location;
    case SubItem::MediaType:
      return row.mediaType;
    case SubItem::Format:
      return row.format;
    case SubItem::Overall:
      return row.overall;
    case SubItem::Sound:
      return row.sound;
    case SubItem::Speed:
      return row.speed;
    case SubItem::WebSite:
      return row.webSiteRating;
    case SubItem::Reliability:
      return row.reliability;
  }
  return row.name;
}

// Nobody has rated it, and where others show a place it says that it is the user's own.
StationInfo StationSource::InfoOfOwn(const PersonalStation& station) const {
  return {StationKey::OfUser(station.index),
          station.name,
          strings_.Load(IDS_YOUR_STATION),
          station.type,
          {},
          "0",
          "0",
          "0",
          "0",
          "0"};
}

// A station without a key is one that is not there: an identifier of the last guide, one of the user's own
// that was deleted.
Station StationSource::Find(const StationKey& key) const {
  Station station;
  if (key.IsOfGuide()) {
    StationRecord record = stations_.FindStation(key.number);
    if (record.Empty()) return station;
    // The only place where a record becomes a Station: from here on links are plain.
    for (const StationField field : kScrambled) UnscrambleText(record[field], alphabets_);
    static_cast<StationInfo&>(station) = InfoOf(record);
    station.description = record[StationField::Description];
    station.bitRate = record[StationField::BitRate];
    station.links = {record[StationField::LinkOne], record[StationField::LinkTwo],
                     record[StationField::LinkThree]};
    station.alternateLink = record[StationField::AlternateLink];
    station.webSite = record[StationField::WebSite];
  } else if (const PersonalStation* own = Personal(key)) {
    static_cast<StationInfo&>(station) = InfoOfOwn(*own);
    station.description = own->note;
    station.links = own->links;
    station.webSite = own->webSite;
  }
  return station;
}

// The user's own are in memory; those of the guide come in the order of their keys, unknown ones missing.
void StationSource::VisitInfos(std::span<const StationKey> keys, const InfoVisitor& visit) const {
  std::vector<std::int32_t> ids;
  for (std::size_t place = 0; place < keys.size(); ++place) {
    if (keys[place].IsOfGuide()) ids.push_back(keys[place].number);
    if (const PersonalStation* own = Named(keys[place])) visit(place, InfoOfOwn(*own));
  }
  std::size_t place = 0;
  // The table gives them in the order of `ids` without those that it lacks, so one walk over the keys finds
  // the place of each.
  stations_.VisitStations(ids, [&](const StationView& station) {
    StationInfo info = InfoOf(station);
    while (keys[place] != info.key) ++place;
    visit(place++, std::move(info));
  });
}

// In the order of `keys`, without those that are unknown.
std::vector<StationInfo> StationSource::InfosOf(std::span<const StationKey> keys) const {
  std::vector<StationInfo> infos(keys.size());
  VisitInfos(keys, [&](std::size_t place, StationInfo info) { infos[place] = std::move(info); });
  std::erase_if(infos, [](const StationInfo& info) { return !info.key; });
  return infos;
}

// The guide ranks its own. With some of the user's own among them all texts are compared: such lists are
// short.
std::vector<std::uint32_t> StationSource::RanksOf(std::span<const StationKey> keys, int subItem,
                                                  const SortKeyOf& sortKey) const {
  if (std::ranges::all_of(keys, &StationKey::IsOfGuide)) {
    std::vector<std::int32_t> ids(keys.size());
    std::ranges::transform(keys, ids.begin(), &StationKey::number);
    return stations_.RanksOf(ids, FieldOf(subItem), sortKey);
  }
  std::vector<std::string> texts(keys.size());
  VisitInfos(keys, [&](std::size_t place, const StationInfo& info) {
    texts[place] = sortKey(CellOf(info, subItem));
  });
  std::vector<std::size_t> places(keys.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::sort(places, {}, [&](std::size_t place) { return std::string_view(texts[place]); });
  std::vector<std::uint32_t> ranks(keys.size());
  for (std::size_t i = 1; i < places.size(); ++i) {
    ranks[places[i]] = ranks[places[i - 1]] + (texts[places[i]] != texts[places[i - 1]] ? 1U : 0U);
  }
  return ranks;
}

// For all at once: the table is asked one time, whatever the number of keys.
std::vector<StationKey> StationSource::KnownOf(std::span<const StationKey> keys) const {
  std::vector<std::int32_t> ids;
  for (const StationKey& key : keys) {
    if (key.IsOfGuide()) ids.push_back(key.number);
  }
  const std::vector<std::int32_t> inGuide = stations_.KnownStations(ids);
  auto next = inGuide.begin();
  std::vector<StationKey> known;
  known.reserve(keys.size());
  for (const StationKey& key : keys) {
    if (key.IsOfGuide() && next != inGuide.end() && *next == key.number) {
      known.push_back(key);
      ++next;
    } else if (Named(key) != nullptr) {
      known.push_back(key);
    }
  }
  return known;
}

std::vector<std::int32_t> StationSource::IdsHolding(std::string_view text) const {
  return stations_.SearchStationIds(text, true);
}

// The fields of an own station that a search of the guide would look at: name, type, and the note as its
// description.
bool StationSource::OwnFits(const StationKey& key, const TypedWords& words) const {
  const PersonalStation* own = Personal(key);
  if (own == nullptr) return false;
  const std::string_view fields[] = {own->name, own->type, own->note};
  return words.StandIn(fields);
}

std::vector<StationKey> StationSource::OwnKeys() const {
  std::vector<StationKey> keys;
  for (const PersonalStation& station : personal_.All()) {
    if (!station.name.empty()) keys.push_back(StationKey::OfUser(station.index));
  }
  return keys;
}

std::string StationSource::NameOf(const StationKey& key) const {
  if (key.IsOfGuide()) return stations_.FindStation(key.number)[StationField::Name];
  const PersonalStation* personal = Personal(key);
  return personal ? personal->name : std::string();
}

// The alternate link takes the place of a missing first one only; a missing second one leaves a gap, so that
// numbers stay with their links.
std::vector<PlayableLink> PlayableLinks(const Station& station, const ExtraLinks& extra) {
  std::vector<PlayableLink> playable;
  for (int number = 1; number <= 3; ++number) {
    const std::string& own = station.links[static_cast<std::size_t>(number) - 1];
    const std::string& link = number == 1 && IsBlank(own) ? station.alternateLink : own;
    if (IsBlank(link)) continue;
    PlayRequest request{station.key, static_cast<PlayMode>(number)};
    // Of the user's own stations only the first link has a mode of its own.
    if (station.key.IsOfUser() && number == 1) request.mode = PlayMode::Personal;
    if (station.key.IsOfUser() && number > 1) request = {station.key, PlayMode::KeyItself, link};
    playable.push_back({number, link, {}, std::move(request)});
  }
  if (!station.key.IsOfGuide()) return playable;
  for (const ExtraLink& added : extra.Of(station.key.number)) {
    playable.push_back({0, added.link, added.name, {station.key, PlayMode::KeyItself, added.link}});
  }
  return playable;
}

// `link` becomes the first one that is no playlist: a test of a player is to play, not to fetch a list first.
void LinkCounts::Add(std::string_view station, const std::string& linkText) {
  const PlayLink played = PlayLink::FromText(linkText);
  if (played.way == PlayWay::WebPage) {
    ++webPage;
    return;
  }
  const bool asx = played.way == PlayWay::AsxProgram;
  ++(asx ? asxProgram : realPlayer);
  if (played.IsPls()) {
    ++(asx ? plsAmongAsx : plsAmongReal);
  } else if (link.empty()) {
    name = station;
    link = linkText;
  }
}

// Counts stations by the link that would be played first.
LinkCounts StationSource::CountLinks() const {
  LinkCounts counts;
  stations_.VisitAllStations([&](const StationView& record) {
    std::string link;
    for (const StationField field : {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                     StationField::AlternateLink}) {
      if (!TrimBlanks(link).empty()) break;
      link = record[field];
      UnscrambleText(link, alphabets_);
    }
    if (!TrimBlanks(link).empty()) counts.Add(record[StationField::Name], link);
  });
  return counts;
}

const PersonalStation* StationSource::Personal(const StationKey& key) const {
  return key.IsOfUser() ? personal_.Find(key.number) : nullptr;
}

const PersonalStation* StationSource::Named(const StationKey& key) const {
  const PersonalStation* own = Personal(key);
  return own != nullptr && !own->name.empty() ? own : nullptr;
}

}  // namespace sonaro
