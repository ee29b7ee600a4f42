// What a notification window shows and offers for one schedule item. The partner of frmNotify; plays and
// opens nothing itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleItem.h"
#include "stations/StationSource.h"

namespace sonaro {

class ExtraLinks;
class ScheduleStore;
class ScheduleTexts;

// One play button: its caption, a second line, and what LaunchStation is given.
struct PlayChoice {
  std::string caption;  // "Play (MP3)"
  std::string detail;   // "128 kbit/s", the server of a further link, or ""
  PlayRequest request;
};

struct Notification {
  static constexpr std::size_t kPlayButtons = 3;

  ScheduleItem item;  // as it was when it came on
  std::string eventName;
  std::string notice;
  std::string when;  // of one that was missed: "8:00 PM", with the day unless it is today
  std::string note;
  std::string webSite;            // an address that begins with "http", or ""
  bool opensWebSite = false;      // by itself, when it comes
  std::vector<PlayChoice> plays;  // at most kPlayButtons
};

Notification NotificationFor(const ScheduleItem& item, const StationSource& stations,
                             const ExtraLinks& extraLinks, const ScheduleTexts& texts);

// The number before the first "XX" of the text that asks for a notification; -1 when there is none.
int AskedItem(std::string_view bringUpText);
std::string BringUpText(std::size_t slot);

// What was missed "while you were away", in the same order.
std::vector<Notification> MissedNotifications(const std::vector<Occurrence>& missed,
                                              const ScheduleStore& store, const StationSource& stations,
                                              const ExtraLinks& extraLinks, const DateTime& now,
                                              const ScheduleTexts& texts);

}  // namespace sonaro
