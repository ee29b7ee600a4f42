// Every minute, on the full minute, the timer looks which items have come on since it looked last. The items
// of this hour and the next are collected every half hour (EvaluateSchedule), so that a tick compares a few
// times of day only.
//
// Clocks jump: daylight saving time begins and ends, users correct the time, machines sleep. Local time and
// GMT since the last tick together tell which (PaceSinceLastTick):
//
//   local time went back                        WentBack      nothing comes on twice, unless the clock that
//                                                             told it was far ahead (ForgetAhead)
//   local time went on by a few minutes at most Even          the usual case
//   local time jumped an hour or two, GMT not   SkippedAhead  what was skipped comes on now
//   anything else                               WasAway       recent items come on, older ones are listed
//
// notified_ holds what has come on, by slot and time, for two days: an item comes on once however often its
// minute is lived through.
#include "schedule/ScheduleTimer.h"

#include <algorithm>
#include <utility>

#include "platform/Clock.h"
#include "platform/MessagePost.h"

namespace sonaro {

namespace {

constexpr unsigned kMinute = 60000;  // milliseconds
constexpr int kTicksBetweenRuns = 30;
constexpr int kFiredMark = -1;
constexpr const char* kTrayCaption = "frmSysTrayMenu";
constexpr const char* kInUse = "ahahaha";

constexpr std::int64_t kSecondsInHour = 60 * 60;
constexpr std::int64_t kSecondsInDay = 24 * kSecondsInHour;
constexpr int kSecondsInMinute = 60;
// A tick this far behind the full minute or nearer needs no other.
constexpr int kOnTheMinute = 2;
// How much later than the clock says a tick is asked for: timers keep their time to about a fiftieth second.
constexpr unsigned kAfterTheMinute = 200;  // milliseconds
// A tick later than this did not come from a busy machine: the clock jumped or the machine slept.
constexpr std::int64_t kLateTick = 5 * 60;
// The largest step of a summer-time change anywhere.
constexpr std::int64_t kMaxTimeChange = 2 * kSecondsInHour + kLateTick;
// The largest correction after which what was told stays told. A clock that was further ahead told it at a
// wrong time.
constexpr std::int64_t kSmallCorrection = 30 * 60;

// From GMT to local time, in seconds; the two clocks are read one after the other.
// Rounded to whole minutes, since the two clocks may be read on two sides of a second. A day is added and
// taken off again so that the division rounds the same way for negative offsets.
std::int64_t OffsetOf(const DateTime& now, const DateTime& gmt) {
  return (SecondsBetween(gmt, now) + kSecondsInDay + kSecondsInMinute / 2) / kSecondsInMinute *
             kSecondsInMinute -
         kSecondsInDay;
}

}  // namespace

unsigned MillisecondsToFullMinute(const DateTime& since, const DateTime& now) {
  const std::int64_t left = kSecondsInMinute - since.time.second - SecondsBetween(since, now);
  return static_cast<unsigned>(std::clamp<std::int64_t>(left, 0, kSecondsInMinute)) * 1000 + kAfterTheMinute;
}

ScheduleTimer::ScheduleTimer(ScheduleCalendar& calendar, Clock& clock, MessagePost& messages,
                             ScheduleTimerView& view, ScheduleTimerListener& listener)
    : calendar_(calendar), clock_(clock), messages_(messages), view_(view), listener_(listener) {
  Remember(clock_.LocalNow(), clock_.GmtNow());
}

void ScheduleTimer::EvaluateSchedule() {
  FillDueList(clock_.LocalNow());
  if (dueCount_ == 0) return;
  if (view_.IsLoaded()) {
    view_.SetCloseItCaption(kInUse);
  } else {
    command_ = "DOWN";
    Remember(clock_.LocalNow(), lastGmt_);  // no live item is passed over
    view_.Load();
  }
}

void ScheduleTimer::FillDueList(const DateTime& now) {
  due_.fill(0);
  std::vector<std::size_t> slots = calendar_.DueThisOrNextHour(now);
  dueOverflowed_ = slots.size() > kDuePlaces;
  if (dueOverflowed_) {
    // The places go to what comes on soonest and was not told yet; the next run, which follows as soon as
    // something has fired, brings the rest.
    const auto ahead = [&](std::size_t slot) {
      const DateTime at{now.date, calendar_.TimeOf(slot).value_or(TimeOfDay{})};
      const std::int64_t seconds = SecondsBetween(lastTick_, at);
      return seconds > 0 && notified_.count({slot, at}) == 0 ? seconds : seconds + kSecondsInDay;
    };
    std::stable_sort(slots.begin(), slots.end(),
                     [&](std::size_t a, std::size_t b) { return ahead(a) < ahead(b); });
    slots.resize(kDuePlaces);
  }
  dueCount_ = slots.size();
  for (std::size_t i = 0; i < slots.size(); ++i) {
    due_[i] = static_cast<int>(slots[i]);
    dueTimes_[i] = calendar_.TimeOf(slots[i]).value_or(TimeOfDay{});
  }
}

// The commands are texts because other code steers the timer by them through SetCommand; each is read by one
// tick and gone.
void ScheduleTimer::Timer1_Timer() {
  if (command_ == "DOWN") {
    command_.clear();
    view_.RestartTimer(kMinute);
    view_.TickOnceIn(MillisecondsToFullMinute(lastTick_, clock_.LocalNow()));
    return;
  }
  if (command_ == "CLOSE") {
    command_.clear();
    view_.Unload();
    return;
  }
  Tick();
}

void ScheduleTimer::FullMinute_Timer() {
  view_.RestartTimer(kMinute);
  Timer1_Timer();
}

void ScheduleTimer::KeepWatch() {
  if (!view_.IsLoaded() || PaceSinceLastTick(clock_.LocalNow(), clock_.GmtNow()) != Pace::Even) Tick();
}

void ScheduleTimer::Tick() {
  const DateTime now = clock_.LocalNow();
  const DateTime gmt = clock_.GmtNow();
  const Pace pace = PaceSinceLastTick(now, gmt);
  std::vector<Occurrence> live = LiveSince(lastGmt_, now, gmt);
  switch (pace) {
    case Pace::Even:
      FireDue(now);
      break;
    case Pace::SkippedAhead:
      FireNew(calendar_.Between(lastTick_, now));
      break;
    case Pace::WasAway:
      TellLate(lastTick_, std::exchange(live, {}), now, kSecondsInHour);
      break;
    case Pace::WentBack:
      ForgetAhead(now, gmt);
      break;
  }
  FireNew(live);
  Remember(now, gmt);
  if (view_.IsLoaded() && now.time.second > kOnTheMinute) {
    view_.TickOnceIn(MillisecondsToFullMinute(now, now));
  }
  if (++tickCounter_ >= kTicksBetweenRuns || pace != Pace::Even) {
    EvaluateSchedule();
    tickCounter_ = 0;
  }
}

ScheduleTimer::Pace ScheduleTimer::PaceSinceLastTick(const DateTime& now, const DateTime& gmt) const {
  const std::int64_t local = SecondsBetween(lastTick_, now);
  if (local < 0) return Pace::WentBack;
  if (local <= kLateTick) return Pace::Even;
  const std::int64_t world = SecondsBetween(lastGmt_, gmt);
  const bool worldRanEvenly = world >= 0 && world <= kLateTick;
  return worldRanEvenly && local <= kMaxTimeChange ? Pace::SkippedAhead : Pace::WasAway;
}

void ScheduleTimer::FireDue(const DateTime& now) {
  while (FireEntries(now) && dueOverflowed_) FillDueList(now);
}

// An entry has come on when its time of day lies behind the last tick and not behind now. Over midnight the
// interval is two: from the last tick to the end of the day, and from its beginning until now.
bool ScheduleTimer::FireEntries(const DateTime& now) {
  const bool wrapped = now.time < lastTick_.time;
  bool fired = false;
  for (std::size_t i = 0; i < dueCount_; ++i) {
    if (due_[i] == kFiredMark) continue;
    const bool afterLast = dueTimes_[i] > lastTick_.time;
    const bool reached = dueTimes_[i] <= now.time;
    if (wrapped ? !(afterLast || reached) : !(afterLast && reached)) continue;
    const auto slot = static_cast<std::size_t>(due_[i]);
    due_[i] = kFiredMark;
    // Not reached today means that it came on before midnight.
    const Date day = reached ? now.date : lastTick_.date;
    if (!FirstTime({slot, {day, dueTimes_[i]}})) continue;
    fired = true;
    Fire(slot);
  }
  return fired;
}

void ScheduleTimer::FireNew(const std::vector<Occurrence>& occurrences) {
  for (const Occurrence& occurrence : occurrences) {
    if (FirstTime(occurrence)) Fire(occurrence.slot);
  }
}

// In local time; a day back at most.
std::vector<Occurrence> ScheduleTimer::LiveSince(const DateTime& fromGmt, const DateTime& now,
                                                 const DateTime& gmt) {
  if (gmt <= fromGmt) return {};
  std::vector<Occurrence> live =
      listener_.LiveStarts(std::max(fromGmt, AddSeconds(gmt, -kSecondsInDay)), gmt);
  for (Occurrence& occurrence : live) occurrence.at = AddSeconds(occurrence.at, OffsetOf(now, gmt));
  return live;
}

// At a start: what came on while the program was closed is told in one notice, never as usual, since an item
// of before the start must not come on.
void ScheduleTimer::CatchUp(const DateTime& lastSeen) {
  const DateTime now = clock_.LocalNow();
  const DateTime gmt = clock_.GmtNow();
  // A last look far ahead of now was by a wrong clock and does not say what has been told.
  const bool unknown = SecondsBetween(now, lastSeen) > kMaxTimeChange;
  const DateTime from = unknown ? AddSeconds(now, -kSecondsInDay) : lastSeen;
  TellLate(from, LiveSince(AddSeconds(from, -OffsetOf(now, gmt)), now, gmt), now, 0);
  Remember(now, gmt);
}

// What came on after `from`, a day back at most, and the live items: as usual while no older than said and of
// this day.
void ScheduleTimer::TellLate(const DateTime& from, std::vector<Occurrence> live, const DateTime& now,
                             std::int64_t asUsualSeconds) {
  std::vector<Occurrence> late = calendar_.Between(std::max(from, AddSeconds(now, -kSecondsInDay)), now);
  late.insert(late.end(), live.begin(), live.end());
  std::sort(late.begin(), late.end(), ComesBefore);
  std::erase_if(late, [&](const Occurrence& occurrence) { return !FirstTime(occurrence); });
  const auto recent = std::find_if(late.begin(), late.end(), [&](const Occurrence& occurrence) {
    return occurrence.at.date == now.date && SecondsBetween(occurrence.at, now) <= asUsualSeconds;
  });
  for (auto occurrence = recent; occurrence != late.end(); ++occurrence) Fire(occurrence->slot);
  late.erase(recent, late.end());
  if (!late.empty()) listener_.WhileYouWereAway(late);
}

// What a clock that was ahead has told comes on again when its time has come.
void ScheduleTimer::ForgetAhead(const DateTime& now, const DateTime& gmt) {
  if (SecondsBetween(gmt, lastGmt_) <= kSmallCorrection) return;
  std::erase_if(notified_, [&](const Occurrence& occurrence) { return occurrence.at > now; });
}

void ScheduleTimer::Fire(std::size_t slot) {
  // Posted, not called: a dialog that the item opens must not hold up the timer.
  messages_.PostTo(kTrayCaption, kDueMessage, slot, static_cast<std::intptr_t>(slot));
}

bool ScheduleTimer::FirstTime(const Occurrence& occurrence) { return notified_.insert(occurrence).second; }

void ScheduleTimer::Remember(const DateTime& now, const DateTime& gmt) {
  const bool newDay = now.date != lastTick_.date;
  lastTick_ = now;
  lastGmt_ = gmt;
  if (!newDay) return;
  std::erase_if(notified_, [&](const Occurrence& occurrence) {
    return std::abs(SecondsBetween(occurrence.at, now)) > 2 * kSecondsInDay;
  });
}

}  // namespace sonaro
