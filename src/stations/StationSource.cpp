#include "stations/StationSource.h"

#include "base/Text.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "stations/PersonalStations.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

constexpr StationField kScrambled[] = {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                       StationField::AlternateLink, StationField::WebSite};

StationField LinkField(int number) {
  return static_cast<StationField>(static_cast<int>(StationField::LinkOne) + number - 1);
}

}  // namespace

StationRecord StationSource::Record(std::int32_t stationId) const {
  if (stationId == 0) return {};
  StationRecord record = stations_.FindStation(stationId);
  for (const StationField field : kScrambled) UnscrambleText(record[field], alphabets_);
  return record;
}

std::string StationSource::NameOf(const StationKey& key) const {
  if (key.kind == StationKey::Kind::Directory) return stations_.FindStation(key.number)[StationField::Name];
  const PersonalStation* personal = Personal(key);
  return personal ? personal->name : std::string();
}

std::string StationSource::WebSiteOf(const StationKey& key) const {
  if (key.kind == StationKey::Kind::Directory) return Record(key.number)[StationField::WebSite];
  const PersonalStation* personal = Personal(key);
  return personal ? personal->webSite : std::string();
}

std::string StationSource::LinkOf(const StationKey& key, int number) const {
  if (number < 1 || number > 3) return {};
  if (key.kind == StationKey::Kind::Directory) return Record(key.number)[LinkField(number)];
  const PersonalStation* personal = Personal(key);
  return personal ? personal->links[static_cast<std::size_t>(number) - 1] : std::string();
}

std::string StationSource::FirstLinkOf(const StationKey& key) const {
  std::string link;
  for (int number = 1; number <= 3 && link.empty(); ++number) link = LinkOf(key, number);
  return link;
}

std::string StationSource::AlternateLinkOf(const StationKey& key) const {
  if (key.kind != StationKey::Kind::Directory) return {};
  return Record(key.number)[StationField::AlternateLink];
}

LinkCounts StationSource::CountLinks() const {
  LinkCounts counts;
  stations_.VisitAllStations([&](const StationRecord& record) {
    std::string link;
    for (const StationField field : {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                     StationField::AlternateLink}) {
      if (!TrimBlanks(link).empty()) break;
      link = record[field];
      UnscrambleText(link, alphabets_);
    }
    if (TrimBlanks(link).empty()) return;
    const PlayWay way = PlayLink::FromText(link).way;
    ++(way == PlayWay::AsxProgram ? counts.asxProgram
       : way == PlayWay::WebPage  ? counts.webPage
                                  : counts.realPlayer);
  });
  return counts;
}

const PersonalStation* StationSource::Personal(const StationKey& key) const {
  return key.kind == StationKey::Kind::Personal ? personal_.Find(key.number) : nullptr;
}

}  // namespace sonaro
