#include "schedule/Notification.h"

#include <set>

#include "base/Numbers.h"
#include "base/Text.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "stations/ExtraLinks.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

constexpr std::string_view kAskMark = "XX";
constexpr PlayMode kLinkModes[] = {PlayMode::LinkOne, PlayMode::LinkTwo, PlayMode::LinkThree};

std::string PlayCaption(std::string_view linkName) { return "Play (" + std::string(linkName) + ")"; }

// "http://user@host.example:8000/path" is on "host.example:8000".
std::string_view ServerOf(std::string_view address) {
  constexpr std::string_view kMark = "://";
  const auto scheme = address.find(kMark);
  if (scheme == std::string_view::npos) return {};
  address = address.substr(scheme + kMark.size());
  address = address.substr(0, address.find_first_of("/?#"));
  return address.substr(address.rfind('@') + 1);
}

// Names that tell the links of one station apart. The station's media type is that of its first link; a
// further link has the name of its server, or a number when an earlier one is on the same.
class LinkNames {
 public:
  explicit LinkNames(std::string mediaType) : mediaType_(std::move(mediaType)) {}

  std::string Next(std::string_view link, int number) {
    const PlayLink play = PlayLink::FromText(link);
    const std::string server(ServerOf(play.address));
    const bool first = servers_.empty();
    const bool newServer = servers_.insert(server).second;
    if (first && !mediaType_.empty()) return mediaType_;
    if (!first && newServer && !server.empty()) return server;
    return (mediaType_.empty() ? "Link" : mediaType_) + " " + std::to_string(number);
  }

 private:
  std::string mediaType_;
  std::set<std::string> servers_;
};

void AddDirectoryLinks(std::vector<PlayChoice>& plays, const StationKey& key, const StationSource& stations,
                       const ExtraLinks& extraLinks) {
  const StationRecord record = stations.Record(key.number);
  const std::string& bitRate = record[StationField::BitRate];
  LinkNames names(record[StationField::MediaType]);
  for (int number = 1; number <= 3; ++number) {
    const std::string link = stations.LinkOf(key, number);
    if (link.empty()) continue;
    std::string detail(ServerOf(PlayLink::FromText(link).address));
    if (number == 1) detail = bitRate.empty() ? "" : bitRate + " kbit/s";
    plays.push_back(
        {PlayCaption(names.Next(link, number)), detail, std::to_string(key.number), kLinkModes[number - 1]});
  }
  for (const ExtraLink& extra : extraLinks.Of(key.number)) {
    plays.push_back({PlayCaption("Extra Link"), extra.name, extra.link, PlayMode::KeyItself});
  }
}

void AddPersonalLinks(std::vector<PlayChoice>& plays, const StationKey& key, const StationSource& stations) {
  LinkNames names("");
  for (int number = 1; number <= 3; ++number) {
    const std::string link = stations.LinkOf(key, number);
    if (link.empty()) continue;
    const bool first = number == 1;
    plays.push_back({PlayCaption(names.Next(link, number)), "", first ? std::to_string(key.number) : link,
                     first ? PlayMode::Personal : PlayMode::KeyItself});
  }
}

}  // namespace

Notification NotificationFor(const ScheduleItem& item, const StationSource& stations,
                             const ExtraLinks& extraLinks) {
  Notification shown;
  shown.eventName = item.name.Shown();
  shown.notice = NoticeText(item);
  shown.note = item.note;
  shown.webSite = item.name.Address();
  shown.opensWebSite = item.opensWebSite && !shown.webSite.empty();
  const StationKey key = StationKey::FromRowKey(item.stationKey);
  if (key.kind == StationKey::Kind::Directory) AddDirectoryLinks(shown.plays, key, stations, extraLinks);
  if (key.kind == StationKey::Kind::Personal) AddPersonalLinks(shown.plays, key, stations);
  if (shown.plays.size() > Notification::kPlayButtons) shown.plays.resize(Notification::kPlayButtons);
  return shown;
}

int AskedItem(std::string_view bringUpText) {
  const auto mark = bringUpText.find(kAskMark);
  if (mark == std::string_view::npos || !IsNumeric(bringUpText.substr(0, mark))) return -1;
  return static_cast<int>(NumberValue(bringUpText));
}

std::string BringUpText(std::size_t slot) { return std::to_string(slot) + std::string(kAskMark); }

std::vector<std::string> AwayLines(const std::vector<Occurrence>& missed, const ScheduleStore& store,
                                   const DateTime& now, ClockStyle style) {
  std::vector<std::string> lines;
  for (const Occurrence& occurrence : missed) {
    if (occurrence.slot >= store.SlotCount()) continue;
    const bool today = occurrence.at.date == now.date;
    lines.push_back((today ? "" : FormatMonthDay(occurrence.at.date) + ", ") +
                    FormatTime(occurrence.at.time, style) + "  " + store.Item(occurrence.slot).name.Shown());
  }
  return lines;
}

}  // namespace sonaro
