#include "schedule/ScheduleTimer.h"

#include <algorithm>

#include "platform/Clock.h"
#include "platform/MessagePost.h"

namespace sonaro {

namespace {

constexpr unsigned kMinute = 60000;  // milliseconds
constexpr int kTicksBetweenRuns = 30;
constexpr int kFiredMark = -1;
constexpr const char* kTrayCaption = "frmSysTrayMenu";
constexpr const char* kInUse = "ahahaha";

constexpr std::int64_t kSecondsInDay = 24 * 60 * 60;
// A tick later than this did not come from a busy machine: the clock jumped or the machine slept.
constexpr std::int64_t kLateTick = 5 * 60;
// The largest step of a summer-time change anywhere.
constexpr std::int64_t kLargestTimeChange = 2 * 60 * 60 + kLateTick;

}  // namespace

ScheduleTimer::ScheduleTimer(ScheduleCalendar& calendar, Clock& clock, MessagePost& messages,
                             ScheduleTimerView& view)
    : calendar_(calendar), clock_(clock), messages_(messages), view_(view) {
  Remember(clock_.LocalNow(), clock_.GmtNow());
}

void ScheduleTimer::EvaluateSchedule() {
  FillDueList(clock_.LocalNow());
  if (dueCount_ == 0) return;
  if (view_.IsLoaded()) {
    view_.SetCloseItCaption(kInUse);
  } else {
    command_ = "DOWN";
    Remember(clock_.LocalNow(), clock_.GmtNow());
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
      return seconds > 0 && told_.count({slot, at}) == 0 ? seconds : seconds + kSecondsInDay;
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

void ScheduleTimer::Timer1_Timer() {
  if (command_ == "DOWN") {
    command_.clear();
    view_.RestartTimer(kMinute);
    return;
  }
  if (command_ == "CLOSE") {
    command_.clear();
    view_.Unload();
    return;
  }
  Tick();
}

void ScheduleTimer::KeepWatch() {
  if (!view_.IsLoaded()) Tick();
}

void ScheduleTimer::Tick() {
  const DateTime now = clock_.LocalNow();
  const DateTime gmt = clock_.GmtNow();
  const Pace pace = PaceSinceLastTick(now, gmt);
  switch (pace) {
    case Pace::Even:
      FireDue(now);
      break;
    case Pace::SkippedAhead:
      FireSkipped(now);
      break;
    case Pace::WasAway:
      TellMissed(lastTick_, now);
      break;
    case Pace::WentBack:
      break;
  }
  if (liveStarts_ && gmt > lastGmt_) {
    const DateTime dayAgo = AddSeconds(gmt, -kSecondsInDay);
    for (std::size_t slot : liveStarts_(std::max(lastGmt_, dayAgo), gmt)) Fire(slot);
  }
  Remember(now, gmt);
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
  return worldRanEvenly && local <= kLargestTimeChange ? Pace::SkippedAhead : Pace::WasAway;
}

void ScheduleTimer::FireDue(const DateTime& now) {
  while (FireEntries(now) && dueOverflowed_) FillDueList(now);
}

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
    const Date day = reached ? now.date : lastTick_.date;
    if (!FirstTime({slot, {day, dueTimes_[i]}})) continue;
    fired = true;
    Fire(slot);
  }
  return fired;
}

void ScheduleTimer::FireSkipped(const DateTime& now) {
  for (const Occurrence& occurrence : calendar_.Between(lastTick_, now)) {
    if (FirstTime(occurrence)) Fire(occurrence.slot);
  }
}

void ScheduleTimer::CatchUp(const DateTime& lastSeen) { TellMissed(lastSeen, clock_.LocalNow()); }

void ScheduleTimer::TellMissed(const DateTime& from, const DateTime& now) {
  const DateTime dayAgo = AddSeconds(now, -kSecondsInDay);
  std::vector<Occurrence> missed = calendar_.Between(std::max(from, dayAgo), now);
  std::erase_if(missed, [&](const Occurrence& occurrence) { return !FirstTime(occurrence); });
  if (!missed.empty() && awayNotice_) awayNotice_(missed);
}

void ScheduleTimer::Fire(std::size_t slot) {
  firedItem_ = static_cast<int>(slot);
  messages_.PostTo(kTrayCaption, kDueMessage, slot, static_cast<std::intptr_t>(slot));
}

bool ScheduleTimer::FirstTime(const Occurrence& occurrence) { return told_.insert(occurrence).second; }

void ScheduleTimer::Remember(const DateTime& now, const DateTime& gmt) {
  const bool newDay = now.date != lastTick_.date;
  lastTick_ = now;
  lastGmt_ = gmt;
  if (!newDay) return;
  std::erase_if(told_, [&](const Occurrence& occurrence) {
    return std::abs(SecondsBetween(occurrence.at, now)) > 2 * kSecondsInDay;
  });
}

}  // namespace sonaro
