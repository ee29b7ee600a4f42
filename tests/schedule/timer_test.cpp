// The evaluator and its minute ticks where the clock, the list or the machine does something special.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeMessagePost.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTimer.h"
#include "schedule/SimulatedClock.h"
#include "schedule/TimeZone.h"

namespace sonaro {
namespace {

class FakeTimerWindow : public ScheduleTimerView {
 public:
  bool IsLoaded() override { return loaded; }
  void Load() override { loaded = true; }
  void SetCloseItCaption(const char* text) override { closeItCaption = text; }
  void RestartTimer(unsigned milliseconds) override { interval = milliseconds; }
  void TickOnceIn(unsigned milliseconds) override { further = milliseconds; }
  void Unload() override { loaded = false; }

  bool loaded = false;
  std::string closeItCaption;
  unsigned interval = 0;
  unsigned further = 0;
};

class Timer : public testing::Test, private ScheduleTimerListener {
 protected:
  void SetUp() override { messages_.windows.insert("frmSysTrayMenu"); }
  std::vector<Occurrence> LiveStarts(const DateTime& from, const DateTime& to) override {
    return live_ && from < live_->at && live_->at <= to ? std::vector<Occurrence>{*live_}
                                                        : std::vector<Occurrence>{};
  }
  void WhileYouWereAway(const std::vector<Occurrence>& missed) override { away_.push_back(missed); }

  std::size_t Add(const std::string& kind, const std::string& time, const std::string& day = "") {
    const std::size_t slot = store_.FirstFreeSlot();
    store_.SetItem(slot, {.name = "item", .date = day, .time = time, .weekday = day, .kind = kind});
    return slot;
  }
  // Evaluates and takes the command that starts the minute ticks.
  void Start() {
    timer_.EvaluateSchedule();
    if (window_.loaded) timer_.Timer1_Timer();
  }
  void RunMinutes(int minutes) {
    for (int i = 0; i < minutes; ++i) {
      clock_.Advance(60);
      timer_.Timer1_Timer();
    }
  }
  std::size_t Told() const { return messages_.posted.size(); }

  FakeFiles files_;
  DataFolder data_{files_, "", '/'};
  ScheduleStore store_{data_, ""};
  ScheduleCalendar calendar_{store_};
  SimulatedClock clock_{{{2000, 8, 16}, {10, 0, 30}},
                        [](std::int64_t) { return std::int64_t{0}; }};  // Wednesday
  FakeMessagePost messages_;
  FakeTimerWindow window_;
  ScheduleTimer timer_{calendar_, clock_, messages_, window_, *this};
  std::optional<Occurrence> live_;  // a live item, and when its event begins
  std::vector<std::vector<Occurrence>> away_;
};

TEST_F(Timer, TheWindowLivesFromTheFirstDueItemAndIsMarkedAfterwards) {
  timer_.EvaluateSchedule();
  EXPECT_FALSE(window_.loaded);
  Add("daily", "11:59 AM");
  timer_.EvaluateSchedule();
  EXPECT_TRUE(window_.loaded);
  EXPECT_EQ(window_.interval, 0u);
  timer_.Timer1_Timer();
  EXPECT_EQ(window_.interval, 60000u);
  EXPECT_EQ(window_.closeItCaption, "");
  timer_.EvaluateSchedule();
  EXPECT_EQ(window_.closeItCaption, "ahahaha");
  timer_.SetCommand("CLOSE");
  timer_.Timer1_Timer();
  EXPECT_FALSE(window_.loaded);
}

TEST_F(Timer, TicksComeJustAfterTheFullMinute) {
  Add("daily", "10:01 AM");
  Start();  // half past
  EXPECT_EQ(window_.interval, 60000u);
  EXPECT_EQ(window_.further, 30200u);
  window_.interval = window_.further = 0;
  clock_.Advance(30);
  timer_.FullMinute_Timer();
  EXPECT_EQ(Told(), 1u);
  EXPECT_EQ(window_.interval, 60000u);
  RunMinutes(2);
  EXPECT_EQ(window_.further, 0u);
  clock_.Advance(63);  // the ticks have wandered off
  timer_.Timer1_Timer();
  EXPECT_EQ(window_.further, 57200u);

  // The full minute passes before the command is read.
  EXPECT_EQ(MillisecondsToFullMinute({{2000, 8, 16}, {9, 59, 59}}, {{2000, 8, 16}, {10, 0, 1}}), 200u);
}

TEST_F(Timer, ADueItemIsPostedWithItsSlotInBothPlaces) {
  Add("live", "10:02 AM");
  const std::size_t slot = Add("once", "10:02 AM", "8/16/2000");
  Start();
  RunMinutes(1);
  EXPECT_EQ(Told(), 0u);
  RunMinutes(1);
  ASSERT_EQ(Told(), 1u);
  EXPECT_EQ(messages_.posted[0].caption, "frmSysTrayMenu");
  EXPECT_EQ(messages_.posted[0].message, 1795u);
  EXPECT_EQ(messages_.posted[0].first, slot);
  EXPECT_EQ(messages_.posted[0].second, static_cast<std::intptr_t>(slot));
  EXPECT_EQ(timer_.DueList()[0], -1);
  RunMinutes(24 * 60);
  EXPECT_EQ(Told(), 1u);
}

TEST_F(Timer, WhatQualifiesForTheDueList) {
  struct Case {
    const char* what;
    DateTime now;
    const char* kind;
    const char* time;
    const char* day;
    bool due;
  };
  const Date wednesday{2000, 8, 16};
  const Case cases[] = {
      {"this hour", {wednesday, {10, 59, 0}}, "daily", "10:00 AM", "", true},
      {"next hour", {wednesday, {10, 0, 0}}, "daily", "11:59 AM", "", true},
      {"two hours ahead", {wednesday, {10, 59, 0}}, "daily", "12:00 PM", "", false},
      {"noon is hour 12", {wednesday, {11, 0, 0}}, "daily", "12:05 PM", "", true},
      {"midnight is hour 0", {wednesday, {0, 1, 0}}, "daily", "12:05 AM", "", true},
      {"midnight written 0", {wednesday, {0, 1, 0}}, "daily", "0:05 am", "", true},
      {"24-hour text", {wednesday, {13, 0, 0}}, "daily", "14:05", "", true},
      {"tomorrow's first hour", {wednesday, {23, 30, 0}}, "weekly", "12:05 AM", "Thursday", true},
      {"today's first hour is over", {wednesday, {23, 30, 0}}, "weekly", "12:05 AM", "Wednesday", false},
      {"tomorrow by date", {wednesday, {23, 30, 0}}, "once", "12:05 AM", "8/17/2000", true},
      {"tomorrow by flag", {wednesday, {23, 30, 0}}, "daily|Wed=0|Thr=-1|", "12:05 AM", "", true},
      {"flag not set", {wednesday, {10, 0, 0}}, "daily|Wed=0|Thr=-1|", "10:05 AM", "", false},
      {"weekday in any case", {wednesday, {10, 0, 0}}, "WEEKLY", "10:05 AM", "wednesDAY", true},
      {"no weekday", {wednesday, {10, 0, 0}}, "weekly", "10:05 AM", "Wed", false},
      {"misspelled weekday", {{2000, 8, 17}, {23, 0, 0}}, "weekly", "12:05 AM", "Thusday", false},
      {"no time", {wednesday, {10, 0, 0}}, "daily", "soon", "", false},
      {"live", {wednesday, {10, 0, 0}}, "live", "10:05 AM", "", false},
      {"unknown kind", {wednesday, {10, 0, 0}}, "monthly", "10:05 AM", "", false},
  };
  for (const Case& c : cases) {
    const std::size_t slot = Add(c.kind, c.time, c.day);
    EXPECT_EQ(calendar_.DueThisOrNextHour(c.now).size(), c.due ? 1u : 0u) << c.what;
    store_.FreeSlot(slot);
  }
}

TEST_F(Timer, ItemsPastTheLastPlaceAreStillTold) {
  for (int i = 0; i < 250; ++i) Add("daily", i % 2 == 0 ? "10:05 AM" : "10:50 AM");
  Start();
  EXPECT_EQ(timer_.DueCount(), ScheduleTimer::kDuePlaces);
  RunMinutes(10);
  EXPECT_EQ(Told(), 125u);
  RunMinutes(50);
  EXPECT_EQ(Told(), 250u);
}

TEST_F(Timer, WhatAClockAheadToldComesOnInItsTime) {
  Add("daily", "10:05 AM");
  Start();
  clock_.Advance(24 * 60 * 60);
  RunMinutes(10);
  EXPECT_EQ(Told(), 1u);
  clock_.SetGmt({{2000, 8, 16}, {10, 0, 0}});
  timer_.Timer1_Timer();
  RunMinutes(24 * 60 + 10);
  EXPECT_EQ(Told(), 3u);
  away_.clear();

  // A last look by a clock ahead does not say what has been told; one a moment ahead does.
  Add("daily", "9:00 AM");
  timer_.CatchUp(AddSeconds(clock_.LocalNow(), 60));
  EXPECT_TRUE(away_.empty());
  timer_.CatchUp(AddSeconds(clock_.LocalNow(), 24 * 60 * 60));
  ASSERT_EQ(away_.size(), 1u);
  EXPECT_EQ(away_[0].size(), 1u);
}

TEST_F(Timer, OfWhatCameOnDuringSleepTheLastHourIsToldAsUsual) {
  const std::size_t older = Add("daily", "11:29 AM");
  const std::size_t within = Add("daily", "11:30 AM");
  Add("daily", "12:28 PM");
  const std::size_t live = Add("live", "");
  live_ = Occurrence{live, {{2000, 8, 16}, {11, 0, 0}}};
  Start();
  clock_.SetGmt({{2000, 8, 16}, {12, 30, 0}});
  timer_.KeepWatch();
  ASSERT_EQ(Told(), 2u);
  EXPECT_EQ(messages_.posted[0].first, within);
  ASSERT_EQ(away_.size(), 1u);
  const DateTime olderAt{{2000, 8, 16}, {11, 29, 0}};
  const DateTime liveAt{{2000, 8, 16}, {11, 0, 0}};
  EXPECT_EQ(away_[0], (std::vector<Occurrence>{{live, liveAt}, {older, olderAt}}));

  // Ten to midnight is not this day any more.
  Add("daily", "11:50 PM");
  clock_.SetGmt({{2000, 8, 17}, {0, 10, 0}});
  timer_.KeepWatch();
  EXPECT_EQ(Told(), 2u);
  EXPECT_EQ(away_.size(), 2u);
}

TEST_F(Timer, WhatWasMissedIsToldInOneNoticeADayBackAtMost) {
  Add("daily", "10:30 AM");
  Add("daily", "9:00 PM");
  Add("once", "11:00 AM", "8/17/2000");
  Start();
  RunMinutes(1);
  clock_.Advance(30 * 60 * 60);  // asleep until 16:01 of the next day
  timer_.Timer1_Timer();
  EXPECT_EQ(Told(), 0u);
  ASSERT_EQ(away_.size(), 1u);
  EXPECT_EQ(away_[0].size(), 3u);  // 10:30 of the first day is more than a day ago
  EXPECT_EQ(timer_.ToldUntil(), clock_.LocalNow());
  RunMinutes(24 * 60);
  EXPECT_EQ(Told(), 2u);
  EXPECT_EQ(away_.size(), 1u);

  timer_.CatchUp(AddSeconds(clock_.LocalNow(), -3600));
  EXPECT_EQ(away_.size(), 1u);
}

TEST_F(Timer, KeepsWatchWhileNothingIsNear) {
  Add("daily", "3:15 PM");
  timer_.EvaluateSchedule();
  EXPECT_FALSE(window_.loaded);
  for (int minute = 0; minute < 6 * 60; ++minute) {
    clock_.Advance(60);
    timer_.KeepWatch();
    if (window_.loaded) timer_.Timer1_Timer();
  }
  EXPECT_EQ(Told(), 1u);
}

TEST(ZoneOffset, BiasesNamesAndService) {
  class ZoneClock : public SimulatedClock {
   public:
    using SimulatedClock::SimulatedClock;
    ZoneReport Zone() override { return zone; }
    ZoneReport zone;
  };
  ZoneClock clock({{2000, 8, 16}, {10, 0, 0}}, [](std::int64_t) { return std::int64_t{0}; });
  std::string name = "untouched";
  std::string flag = "?";
  clock.zone.result = ZoneReport::kFailed;
  EXPECT_EQ(GetZoneOffset(clock, name, flag), 0);
  EXPECT_EQ(name + flag, "untouched?");

  clock.zone = {2, 300, 0, -60, {}, {u'E', u'D', u'T'}};
  EXPECT_EQ(GetZoneOffset(clock, name, flag), -14400);
  EXPECT_EQ(name + flag, "EDTY");
  const DateTime evening{{1999, 12, 31}, {20, 30, 0}};
  EXPECT_EQ(ServiceTimeToLocal(clock, "200001010030"), evening);
  EXPECT_FALSE(ServiceTimeToLocal(clock, "20000101003"));
  EXPECT_FALSE(ServiceTimeToLocal(clock, "2000010100300"));
  EXPECT_FALSE(ServiceTimeToLocal(clock, "200013010030"));

  clock.zone = {1, -330, 0, -60, {}, {}};
  clock.zone.standardName.fill(u'x');  // 32 units and no zero
  EXPECT_EQ(GetZoneOffset(clock, name, flag), 19800);
  EXPECT_EQ(name + flag, std::string(32, 'x') + "N");
  EXPECT_EQ(ApplyGmtOffsetToAddress(clock, "http://h/a?o=<<gmtoff>>&b"), "http://h/a?o=330&b");
}

}  // namespace
}  // namespace sonaro
