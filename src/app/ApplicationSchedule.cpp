#include "app/ApplicationSchedule.h"

#include <optional>

#include "base/Text.h"
#include "directory/StatList.h"
#include "forms/ControlIds.h"
#include "platform/Clock.h"
#include "playback/PlayerLaunch.h"
#include "playback/WebPages.h"
#include "schedule/Notification.h"
#include "schedule/ScheduleTexts.h"
#include "schedule/TimeZone.h"
#include "schedule/frmAboutEventTime.h"
#include "schedule/frmSchedChange.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "settings/SettingNames.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

namespace {

constexpr std::size_t kMaxEvents = 200;

// The show of an event as the list of the personal shows keeps it. The number holds no capital X.
std::string ShowKeyOf(const EventRecord& event) {
  return std::to_string(event.EventId) + "X" + event[EventField::Name];
}

// Local date and time in the form of a service time stamp: sorts, and is read back by ParseServiceTime.
std::string StampOf(const DateTime& at) {
  const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return std::to_string(at.date.year) + two(at.date.month) + two(at.date.day) + two(at.time.hour) +
         two(at.time.minute);
}

}  // namespace

ApplicationSchedule::ApplicationSchedule(const Dependencies& needs)
    : needs_(needs),
      events_(needs.data),
      diary_(events_),
      store_(needs.data, needs.state.shortDatePattern),
      calendar_(store_),
      shows_(needs.data, needs.messages, needs.strings),
      picker_(needs.stations, needs.source, needs.favorites, needs.recent, needs.reg, needs.strings),
      services_(MakeServices()),
      timerWindow_(needs.context, *this),
      timer_(calendar_, needs.platform.clock, needs.platform.messages, timerWindow_),
      notices_(needs.context, *this),
      list_(needs.context, services_) {
  store_.LoadSchedule(needs_.platform.clock.LocalNow().date);
  static_cast<void>(shows_.List());  // what cannot be read is told with the other files
  diary_.Reload();
  timer_.SetLiveStarts(
      [this](const DateTime& from, const DateTime& to) { return diary_.Starting(store_, from, to); });
  timer_.SetAwayNotice([this](const std::vector<Occurrence>& missed) {
    notices_.ShowMissed(AwayLines(missed, store_, needs_.platform.clock.LocalNow(), needs_.state.clockStyle));
  });
}

ScheduleServices ApplicationSchedule::MakeServices() {
  return {store_,
          calendar_,
          shows_,
          picker_,
          needs_.source,
          needs_.platform.clock,
          needs_.platform.files,
          needs_.platform.shell,
          needs_.messages,
          needs_.help,
          needs_.state.clockStyle,
          needs_.state.shortDatePattern,
          [this](std::string_view show) { return NextBroadcast(show); },
          [this] { Changed(); }};
}

std::optional<DateTime> ApplicationSchedule::NextBroadcast(std::string_view show) const {
  Clock& clock = needs_.platform.clock;
  const std::optional<DateTime> gmt = diary_.Next(show, clock.GmtNow());
  return gmt ? std::optional(AddSeconds(*gmt, GetZoneOffset(clock))) : std::nullopt;
}

void ApplicationSchedule::Play(const PlayChoice& choice) { needs_.player.LaunchStation(choice.request); }

void ApplicationSchedule::OpenPage(const std::string& address) { needs_.pages.OpenWebPage(address); }

void ApplicationSchedule::PlaySound() {
  if (needs_.reg.Get(setting::kSoundNotify)) needs_.program.PlayNoticeSound();
}

void ApplicationSchedule::ShowHelp() { needs_.help.OpenHelpPage("9008.html"); }

void ApplicationSchedule::Tick() {
  timer_.Timer1_Timer();
  RememberSeen();
}

void ApplicationSchedule::FullMinute() {
  timer_.FullMinute_Timer();
  RememberSeen();
}

void ApplicationSchedule::StartWatching() {
  if (const auto seen = ParseServiceTime(needs_.reg.Get(setting::kScheduleLastSeen))) timer_.CatchUp(*seen);
  timer_.EvaluateSchedule();
  RememberSeen();
}

unsigned ApplicationSchedule::Minute() {
  const DateTime now = needs_.platform.clock.LocalNow();
  if (store_.LoadUnread()) timer_.EvaluateSchedule();
  timer_.KeepWatch();
  if (store_.BringBack(now.date)) timer_.EvaluateSchedule();
  RememberSeen();
  list_.FillLists();
  needs_.listener.ScheduleChanged();
  return MillisecondsToFullMinute(now, now);
}

// After whatever may have told something, so that the next start, even after a crash, tells neither that
// again nor less than all that follows.
void ApplicationSchedule::RememberSeen() {
  needs_.reg.Set(setting::kScheduleLastSeen, StampOf(timer_.ToldUntil()));
}

void ApplicationSchedule::AskForNotification(Form& window, int slot) {
  // By message, as any window may be asked: the label's new caption is what shows the notification.
  if (slot >= 0) {
    SetWindowTextA(GetDlgItem(window.Window(), lblBringUp),
                   BringUpText(static_cast<std::size_t>(slot)).c_str());
  }
}

void ApplicationSchedule::ShowNotification(const std::string& asked) {
  const int slot = AskedItem(asked);
  if (slot < 0 || static_cast<std::size_t>(slot) >= store_.SlotCount()) return;
  const ScheduleItem& item = store_.Item(static_cast<std::size_t>(slot));
  if (item.Free()) return;
  notices_.ShowNotification(NotificationFor(item, needs_.source, needs_.extra));
}

void ApplicationSchedule::ShowSchedule(HWND owner) {
  list_.Show(owner);
  list_.FillLists();
}

void ApplicationSchedule::ScheduleStation(Form& owner, const StationKey& station) {
  const std::string name = needs_.source.NameOf(station);
  ScheduleDraft draft = ScheduleDraft::ForStation(name.empty() ? StationKey() : station, name,
                                                  needs_.platform.clock.LocalNow());
  frmSchedChange(needs_.context, services_, std::move(draft)).ShowModal(owner.Window());
}

void ApplicationSchedule::ExplainTimes(Form& owner) {
  frmAboutEventTime(needs_.context, needs_.platform.clock, needs_.platform.shell, needs_.help)
      .ShowModal(owner.Window());
}

std::vector<EventLine> ApplicationSchedule::ComingEvents() {
  coming_ = diary_.Coming(needs_.platform.clock.GmtNow(), kMaxEvents);
  const DateTime now = needs_.platform.clock.LocalNow();
  const std::int32_t offset = GetZoneOffset(needs_.platform.clock);
  const std::vector<std::string> shows = shows_.List();
  std::vector<EventLine> lines;
  for (const BroadcastEvent& event : coming_) {
    const DateTime local = AddSeconds(event.gmt, offset);
    const StationKey station = StationKey::FromToken(event.record[EventField::StationId]);
    const bool known = station && !needs_.source.NameOf(station).empty();
    lines.push_back({NextShown(local, now, needs_.state.clockStyle), event.record[EventField::Name],
                     event.record[EventField::StationName], known ? station : StationKey(),
                     IsNoticed(event.record, local), PersonalShows::Holds(shows, ShowKeyOf(event.record))});
  }
  return lines;
}

bool ApplicationSchedule::IsNoticed(const EventRecord& event, const DateTime& local) const {
  const std::string date = FormatShortDate(local.date);
  for (std::size_t slot = 0; slot < store_.SlotCount(); ++slot) {
    const ScheduleItem& item = store_.Item(slot);
    if (item.Free() || (item.fields.date != date && item.kind == ScheduleKind::Once)) continue;
    if (item.name.name == event[EventField::Name] && item.name.station == event[EventField::StationName])
      return true;
  }
  return false;
}

void ApplicationSchedule::NotifyMe(Form& owner, std::size_t line) {
  if (line >= coming_.size()) return;
  ScheduleDraft draft = ScheduleDraft::ForEvent(coming_[line].record, needs_.platform.clock);
  frmSchedChange(needs_.context, services_, std::move(draft)).ShowModal(owner.Window());
}

void ApplicationSchedule::ChangePersonalShow(std::size_t line) {
  if (line >= coming_.size()) return;
  const std::string show = ShowKeyOf(coming_[line].record);
  if (PersonalShows::Holds(shows_.List(), show)) {
    shows_.RemovePersonalShow(show);
  } else {
    shows_.AddPersonalShow(show);
  }
  list_.FillLists();
}

NextNotice ApplicationSchedule::SoonestNotice() {
  const DateTime now = needs_.platform.clock.LocalNow();
  std::optional<DateTime> soonest;
  std::size_t found = 0;
  for (std::size_t slot = 0; slot < store_.SlotCount(); ++slot) {
    const std::optional<DateTime> next = calendar_.Next(slot, now);
    if (!next || (soonest && *soonest <= *next)) continue;
    soonest = next;
    found = slot;
  }
  if (!soonest) return {};
  const ScheduleItem& item = store_.Item(found);
  return {NextShown(*soonest, now, needs_.state.clockStyle), item.name.Shown(), ScheduleShown(item)};
}

void ApplicationSchedule::DirectoryChanged() {
  diary_.Reload();
  timer_.EvaluateSchedule();
  RememberSeen();
}

// An item was added, changed or deleted.
void ApplicationSchedule::Changed() {
  timer_.EvaluateSchedule();
  RememberSeen();
  list_.FillLists();
  needs_.listener.ScheduleChanged();
}

}  // namespace sonaro
