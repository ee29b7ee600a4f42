// What a notice offers is taken from the station as it is when the item comes on: links may have changed
// since it was scheduled, and a station that is gone leaves a notice without play buttons.
#include "schedule/Notification.h"

#include <set>

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/texts/schedule.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

constexpr std::string_view kAskMark = "XX";

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
  LinkNames(std::string mediaType, std::string nameless)
      : mediaType_(std::move(mediaType)), nameless_(std::move(nameless)) {}

  std::string Next(std::string_view link, int number) {
    const PlayLink play = PlayLink::FromText(link);
    const std::string server(ServerOf(play.address));
    const bool first = servers_.empty();
    const bool newServer = servers_.insert(server).second;
    if (first && !mediaType_.empty()) return mediaType_;
    if (!first && newServer && !server.empty()) return server;
    return (mediaType_.empty() ? nameless_ : mediaType_) + " " + std::to_string(number);
  }

 private:
  std::string mediaType_;
  std::string nameless_;  // the word for a link without a media type
  std::set<std::string> servers_;
};

// The bit rate of the record is that of its first link; of the others nothing is known but their server.
// A station of the user's own is of no one media type, and of no known bit rate.
std::vector<PlayChoice> PlayChoices(const Station& station, const ExtraLinks& extraLinks,
                                    const ScheduleTexts& texts) {
  const auto caption = [&](std::string_view link) { return texts.Filled(IDS_SCHED_PLAY, {link}); };
  const bool ofGuide = station.key.IsOfGuide();
  LinkNames names(ofGuide ? station.mediaType : std::string(), texts.Filled(IDS_SCHED_PLAY_LINK));
  std::vector<PlayChoice> plays;
  for (const PlayableLink& playable : PlayableLinks(station, extraLinks)) {
    if (playable.number == 0) {
      plays.push_back({caption(texts.Filled(IDS_SCHED_PLAY_EXTRA)), playable.name, playable.request});
      continue;
    }
    std::string detail;
    if (playable.number == 1) {
      if (!station.bitRate.empty()) detail = texts.Filled(IDS_SCHED_PLAY_BIT_RATE, {station.bitRate});
    } else if (ofGuide) {
      detail = ServerOf(PlayLink::FromText(playable.link).address);
    }
    plays.push_back({caption(names.Next(playable.link, playable.number)), detail, playable.request});
  }
  return plays;
}

}  // namespace

Notification NotificationFor(const ScheduleItem& item, const StationSource& stations,
                             const ExtraLinks& extraLinks, const ScheduleTexts& texts) {
  Notification shown;
  shown.item = item;
  shown.eventName = texts.Name(item.name);
  shown.notice = texts.Notice(item);
  shown.note = item.note;
  shown.webSite = item.name.Address();
  shown.opensWebSite = item.opensWebSite && !shown.webSite.empty();
  shown.plays = PlayChoices(stations.Find(item.station), extraLinks, texts);
  if (shown.plays.size() > Notification::kPlayButtons) shown.plays.resize(Notification::kPlayButtons);
  return shown;
}

// The label of a window is how a notification is asked for, by other programs too, so that its text may be
// anything: "12XX", "12XX and more", "XX", "".
int AskedItem(std::string_view bringUpText) {
  const auto mark = bringUpText.find(kAskMark);
  if (mark == std::string_view::npos || !IsNumeric(bringUpText.substr(0, mark))) return -1;
  return static_cast<int>(NumberValue(bringUpText));
}

std::string BringUpText(std::size_t slot) { return std::to_string(slot) + std::string(kAskMark); }

// A slot that was freed meanwhile has nothing to tell. The day is told only when it is not today.
std::vector<Notification> MissedNotifications(const std::vector<Occurrence>& missed,
                                              const ScheduleStore& store, const StationSource& stations,
                                              const ExtraLinks& extraLinks, const DateTime& now,
                                              const ScheduleTexts& texts) {
  std::vector<Notification> notices;
  for (const Occurrence& occurrence : missed) {
    if (occurrence.slot >= store.SlotCount() || store.Item(occurrence.slot).Free()) continue;
    notices.push_back(NotificationFor(store.Item(occurrence.slot), stations, extraLinks, texts));
    const bool today = occurrence.at.date == now.date;
    notices.back().when = (today ? "" : FormatMonthDay(occurrence.at.date) + ", ") +
                          FormatTime(occurrence.at.time, texts.Style());
  }
  return notices;
}

}  // namespace sonaro
