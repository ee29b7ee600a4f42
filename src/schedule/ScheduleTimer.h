// Decides once a minute which schedule items come on, and hands them to the tray window. The partner of the
// hidden window frmschedtime, which only owns the system's timer. Owned by Application.
//
// While the machine runs evenly, the due list is everything: the items of this and the next clock hour,
// rebuilt every 30 ticks. The ticks fall on the full minute, when items come on.
//
// Where the clock does not run evenly, further rules hold: an occurrence is told once, unless the clock that
// told it was found to be ahead; what a summer-time change skips is told when the clock has jumped; and of
// what came on while the machine slept or the clock was set forward (a day at most), this day's last hour is
// told as usual and the rest in one notice "while you were away". So is all that came on while the program
// was closed.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "schedule/ScheduleCalendar.h"

namespace sonaro {

class Clock;
class MessagePost;

// The hidden timer window as the logic sees it.
class ScheduleTimerView {
 public:
  virtual ~ScheduleTimerView() = default;
  virtual bool IsLoaded() = 0;
  virtual void Load() = 0;  // create it, its timer running
  virtual void SetCloseItCaption(const char* caption) = 0;
  virtual void RestartTimer(unsigned milliseconds) = 0;
  // Asks for one FullMinute_Timer; a later call takes the place of an earlier one.
  virtual void TickOnceIn(unsigned milliseconds) = 0;
  virtual void Unload() = 0;
};

// What the timer asks of its owner, and tells it. Never called from the timer's constructor.
class ScheduleTimerListener {
 public:
  virtual ~ScheduleTimerListener() = default;
  // The live items whose event began after `from` and not after `to`. All moments are GMT.
  virtual std::vector<Occurrence> LiveStarts(const DateTime& from, const DateTime& to) = 0;
  // In order of time; never none.
  virtual void WhileYouWereAway(const std::vector<Occurrence>& missed) = 0;
};

// How long it is from `now` to just after the first full minute that follows `since`; a tick a moment early
// would tell what comes on in that minute a minute late. At most a minute, whatever the clock does.
unsigned MillisecondsToFullMinute(const DateTime& since, const DateTime& now);

class ScheduleTimer {
 public:
  static constexpr std::uint32_t kDueMessage = 1795;
  static constexpr std::size_t kDuePlaces = 101;

  ScheduleTimer(ScheduleCalendar& calendar, Clock& clock, MessagePost& messages, ScheduleTimerView& view,
                ScheduleTimerListener& listener);

  // Rebuilds the due list from the table and sees to it that the timer window lives while something is due.
  void EvaluateSchedule();

  // Timer1 of frmschedtime.
  void Timer1_Timer();
  // The one tick that the view was asked for: the minute ticks count from here.
  void FullMinute_Timer();
  // Called every minute by the tray window, and when the clock was set or the machine woke: stands in for the
  // timer window while that is not loaded, so that an item which is hours away is found when its hour comes,
  // and where the clock has jumped, so that nobody waits for that window's next tick.
  void KeepWatch();
  // Steers the timer window at its next tick: "DOWN" starts the minute ticks, "CLOSE" unloads it.
  void SetCommand(std::string command) { command_ = std::move(command); }

  // Tells what came on since `lastSeen` while the program was closed. Called once when the program has
  // loaded.
  void CatchUp(const DateTime& lastSeen);
  // The local time up to which everything has been told: the next start's `lastSeen`.
  const DateTime& ToldUntil() const { return lastTick_; }

  const std::array<int, kDuePlaces>& DueList() const { return due_; }
  std::size_t DueCount() const { return dueCount_; }

 private:
  void Tick();

  enum class Pace { Even, SkippedAhead, WentBack, WasAway };

  Pace PaceSinceLastTick(const DateTime& now, const DateTime& gmt) const;
  void FillDueList(const DateTime& now);
  void FireDue(const DateTime& now);
  bool FireEntries(const DateTime& now);
  void FireNew(const std::vector<Occurrence>& occurrences);
  std::vector<Occurrence> LiveSince(const DateTime& fromGmt, const DateTime& now, const DateTime& gmt);
  void TellLate(const DateTime& from, std::vector<Occurrence> live, const DateTime& now,
                std::int64_t asUsualSeconds);
  void ForgetAhead(const DateTime& now, const DateTime& gmt);
  void Fire(std::size_t slot);
  bool FirstTime(const Occurrence& occurrence);
  void Remember(const DateTime& now, const DateTime& gmt);

  ScheduleCalendar& calendar_;
  Clock& clock_;
  MessagePost& messages_;
  ScheduleTimerView& view_;
  ScheduleTimerListener& listener_;

  std::array<int, kDuePlaces> due_{};             // slots; -1 has fired
  std::array<TimeOfDay, kDuePlaces> dueTimes_{};  // of the items in due_
  std::size_t dueCount_ = 0;
  bool dueOverflowed_ = false;  // more items qualified than there are places
  int tickCounter_ = 0;
  std::string command_;

  DateTime lastTick_;
  DateTime lastGmt_;
  std::set<Occurrence> notified_;  // within about a day of the clock
};

}  // namespace sonaro
