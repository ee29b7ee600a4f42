// The schedule as the program has it: store, timer, notices and dialogs, put together once. Whatever may have
// told something ends with RememberSeen; whatever changes items ends with an evaluation, so that the list of
// what is due is never older than the schedule.
#include "app/ApplicationSchedule.h"

#include <optional>

#include "base/Text.h"
#include "directory/StatList.h"
#include "forms/ControlIds.h"
#include "platform/Clock.h"
#include "playback/PlayerLaunch.h"
#include "playback/WebPages.h"
#include "schedule/Notification.h"
#include "schedule/ScheduleList.h"
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

// Local date and time in the form of a service time stamp: sorts, and is read back by ParseServiceTime.
std::string StampOf(const DateTime& at) {
  const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return std::to_string(at.date.year) + two(at.date.month) + two(at.date.day) + two(at.time.hour) +
         two(at.time.minute);
}

}  // namespace

ApplicationSchedule::ApplicationSchedule(const Dependencies& dependencies)
    : dependencies_(dependencies),
      texts_(dependencies.strings, dependencies.state.clockStyle),
      events_(dependencies.data),
      diary_(events_),
      store_(dependencies.data, dependencies.state.shortDatePattern),
      calendar_(store_),
      shows_(dependencies.data, dependencies.messages, dependencies.strings),
      coming_({diary_, store_, shows_, dependencies.source, dependencies.platform.clock, texts_}),
      picker_(dependencies.stations, dependencies.source, dependencies.favorites, dependencies.recent,
              dependencies.reg, dependencies.strings),
      changes_({store_, shows_, dependencies.reg, dependencies.undo, dependencies.messages,
                dependencies.strings, texts_, *this}),
      services_{store_,
                calendar_,
                shows_,
                picker_,
                dependencies.source,
                dependencies.platform.clock,
                dependencies.platform.files,
                dependencies.platform.shell,
                dependencies.messages,
                dependencies.help,
                coming_,
                *this,
                texts_,
                changes_,
                dependencies.undo,
                dependencies.state.shortDatePattern},
      timerWindow_(dependencies.context, *this),
      timer_(calendar_, dependencies.platform.clock, dependencies.platform.messages, timerWindow_, *this),
      notices_(dependencies.context, *this),
      list_(dependencies.context, services_) {
  // Read at once, not with the first tick: what is due in the first minute must be known by then.
  store_.LoadSchedule(dependencies_.platform.clock.LocalNow().date);
  static_cast<void>(shows_.List());  // what cannot be read is told with the other files
  diary_.Reload();
}

bool ApplicationSchedule::Play(const PlayChoice& choice) {
  PlayerLaunch& player = dependencies_.player;
  return player.ErrorText(player.LaunchStation(choice.request)).empty();
}

bool ApplicationSchedule::Snooze(const ScheduleItem& item, int minutes) {
  return changes_.Snooze(item, minutes, dependencies_.platform.clock.LocalNow());
}

void ApplicationSchedule::OpenPage(const std::string& address) { dependencies_.pages.OpenWebPage(address); }

// The setting is read with each notice, so a change holds without a new start.
void ApplicationSchedule::PlaySound() {
  if (dependencies_.reg.Get(setting::kSoundNotify)) dependencies_.program.PlayNoticeSound();
}

void ApplicationSchedule::ShowHelp() { dependencies_.help.OpenHelpPage("9008.html"); }

void ApplicationSchedule::Tick() {
  timer_.Timer1_Timer();
  RememberSeen();
}

void ApplicationSchedule::FullMinute() {
  timer_.FullMinute_Timer();
  RememberSeen();
}

std::vector<Occurrence> ApplicationSchedule::LiveStarts(const DateTime& from, const DateTime& to) {
  return diary_.Starting(store_, from, to);
}

void ApplicationSchedule::WhileYouWereAway(const std::vector<Occurrence>& missed) {
  notices_.ShowMissed(MissedNotifications(missed, store_, dependencies_.source, dependencies_.extra,
                                          dependencies_.platform.clock.LocalNow(), texts_));
}

// What was missed is told before what is due is made out.
void ApplicationSchedule::StartWatching() {
  if (const auto seen = ParseServiceTime(dependencies_.reg.Get(setting::kScheduleLastSeen)))
    timer_.CatchUp(*seen);
  timer_.EvaluateSchedule();
  RememberSeen();
}

// Also tries again what could not be read at the start, and brings back what a clock that was ahead had
// dropped. Gives the milliseconds to the next minute.
unsigned ApplicationSchedule::Minute() {
  const DateTime now = dependencies_.platform.clock.LocalNow();
  if (store_.LoadUnread()) timer_.EvaluateSchedule();
  timer_.KeepWatch();
  if (store_.BringBack(now.date)) timer_.EvaluateSchedule();
  RememberSeen();
  list_.FillLists();
  dependencies_.listener.ScheduleChanged();
  return MillisecondsToFullMinute(now, now);
}

// After whatever may have told something, so that the next start, even after a crash, tells neither that
// again nor less than all that follows.
void ApplicationSchedule::RememberSeen() {
  dependencies_.reg.Set(setting::kScheduleLastSeen, StampOf(timer_.ToldUntil()));
}

void ApplicationSchedule::AskForNotification(Form& window, int slot) {
  // By message, as any window may be asked: the label's new caption is what shows the notification.
  if (slot >= 0) {
    SetWindowTextA(GetDlgItem(window.Window(), lblBringUp),
                   BringUpText(static_cast<std::size_t>(slot)).c_str());
  }
}

// The slot comes from a message that any program can send, so it is checked like one.
void ApplicationSchedule::ShowNotification(const std::string& asked) {
  const int slot = AskedItem(asked);
  if (slot < 0 || static_cast<std::size_t>(slot) >= store_.SlotCount()) return;
  const ScheduleItem& item = store_.Item(static_cast<std::size_t>(slot));
  if (item.Free()) return;
  notices_.ShowNotification(NotificationFor(item, dependencies_.source, dependencies_.extra, texts_));
}

void ApplicationSchedule::ShowSchedule(HWND owner) {
  list_.Show(owner);
  list_.FillLists();
}

void ApplicationSchedule::ScheduleStation(Form& owner, const StationKey& station) {
  const std::string name = dependencies_.source.NameOf(station);
  ScheduleDraft draft = ScheduleDraft::ForStation(name.empty() ? StationKey() : station, name,
                                                  dependencies_.platform.clock.LocalNow());
  frmSchedChange(dependencies_.context, services_, std::move(draft)).ShowModal(owner.Window());
}

void ApplicationSchedule::ExplainTimes(Form& owner) {
  frmAboutEventTime(dependencies_.context, dependencies_.platform.clock, dependencies_.platform.shell,
                    dependencies_.help)
      .ShowModal(owner.Window());
}

std::vector<EventLine> ApplicationSchedule::ComingEvents() { return coming_.Lines(); }

void ApplicationSchedule::NotifyMe(Form& owner, const EventKey& event) {
  std::optional<ScheduleDraft> draft = coming_.DraftFor(event);
  if (draft) frmSchedChange(dependencies_.context, services_, std::move(*draft)).ShowModal(owner.Window());
}

void ApplicationSchedule::ChangePersonalShow(const EventKey& event) {
  coming_.ChangePersonalShow(event);
  list_.FillLists();
}

NextNotice ApplicationSchedule::SoonestNotice() {
  return sonaro::SoonestNotice(store_, calendar_, dependencies_.platform.clock.LocalNow(), texts_);
}

void ApplicationSchedule::DirectoryChanged() {
  diary_.Reload();
  timer_.EvaluateSchedule();
  RememberSeen();
}

void ApplicationSchedule::ItemsChanged() {
  timer_.EvaluateSchedule();
  RememberSeen();
  list_.FillLists();
  dependencies_.listener.ScheduleChanged();
}

}  // namespace sonaro
