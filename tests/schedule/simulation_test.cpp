// The evaluator against a plain reference that walks every minute: random schedules, ten years, several
// zones.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <vector>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "platform/MessagePost.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTimer.h"
#include "schedule/SimulatedClock.h"

namespace sonaro {
namespace {

// Ten years in every zone where minutes are cheap; with the sanitizers, which make them ten times as dear, a
// year north and a year south of the equator.
#ifdef __SANITIZE_ADDRESS__
constexpr int kYears = 1;
constexpr int kItems = 200;
const std::vector<int> kZones = {0, 1};
#else
constexpr int kYears = 10;
constexpr int kItems = 600;
const std::vector<int> kZones = {0, 1, 2, 3};
#endif

struct Truth {
  int minuteOfDay = 0;
  std::set<int> weekdays;  // 0 = Monday; empty for a single day
  Date once;
};

// A window that is always there, and a tray that writes down what it is told.
class Recorder : public ScheduleTimerView, public ScheduleTimerListener, public MessagePost {
 public:
  bool IsLoaded() override { return loaded_; }
  void Load() override { loaded_ = true; }
  void SetCloseItCaption(const char*) override {}
  void RestartTimer(unsigned) override {}
  void TickOnceIn(unsigned) override {}
  void Unload() override { loaded_ = false; }
  std::vector<Occurrence> LiveStarts(const DateTime&, const DateTime&) override { return {}; }
  void WhileYouWereAway(const std::vector<Occurrence>&) override {}
  bool WindowExists(const std::string&) override { return true; }
  bool PostTo(const std::string&, std::uint32_t, std::uintptr_t slot, std::intptr_t) override {
    told.push_back(slot);
    return true;
  }
  bool EarlierInstanceRuns() override { return false; }

  std::vector<std::size_t> told;  // the slots, since they were last looked at

 private:
  bool loaded_ = false;
};

std::int64_t NthSunday(int year, int month, int nth, int gmtHour) {  // nth < 0: the last one
  Date day{year, month, 1};
  day = DateFromDays(DaysFromEpoch(day) + (6 - Weekday(day)));
  if (nth > 0) {
    day = DateFromDays(DaysFromEpoch(day) + 7 * (nth - 1));
  } else {
    while (DateFromDays(DaysFromEpoch(day) + 7).month == month) day = DateFromDays(DaysFromEpoch(day) + 7);
  }
  return SimulatedClock::Seconds({day, {gmtHour, 0, 0}});
}

// Summer time from `begin` to `end` of each year; on the southern half of the globe it ends in the year
// after.
SimulatedClock::OffsetAt SummerTime(std::int64_t standard, int beginMonth, int beginNth, int endMonth,
                                    int endNth, int beginGmtHour, int endGmtHour) {
  struct Change {
    std::int64_t gmt = 0;
    std::int64_t offset = 0;
  };
  std::vector<Change> changes;
  for (int year = 1999; year < 2015; ++year) {
    changes.push_back({NthSunday(year, beginMonth, beginNth, beginGmtHour), standard + 3600});
    changes.push_back({NthSunday(year, endMonth, endNth, endGmtHour), standard});
  }
  std::sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) { return a.gmt < b.gmt; });
  return [changes](std::int64_t gmt) {
    return std::prev(
               std::upper_bound(changes.begin(), changes.end(), gmt,
                                [](std::int64_t now, const Change& change) { return now < change.gmt; }))
        ->offset;
  };
}

class Simulation : public testing::TestWithParam<int> {
 protected:
  static SimulatedClock::OffsetAt Zone(int number) {
    switch (number) {
      case 0:
        return SummerTime(3600, 3, -1, 10, -1, 1, 1);  // western Europe
      case 1:
        return SummerTime(10 * 3600, 10, -1, 3, -1, 16, 16);  // south-eastern Australia
      case 2:
        return [](std::int64_t) { return std::int64_t{19800}; };  // India, no summer time
      default:
        return SummerTime(-5 * 3600, 4, 1, 10, -1, 7, 6);  // eastern North America
    }
  }

  void MakeItems(ScheduleStore& store, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const Date first{2001, 1, 1};
    for (int i = 0; i < kItems; ++i) {
      Truth truth;
      truth.minuteOfDay = below(24 * 60);
      const TimeOfDay time{truth.minuteOfDay / 60, truth.minuteOfDay % 60, 0};
      ScheduleFields item;
      item.name = "item " + std::to_string(i);
      item.time = FormatTime(time, below(2) == 0 ? ClockStyle::Hours12 : ClockStyle::Hours24);
      if (const int kind = below(4); kind == 0) {
        truth.once = DateFromDays(DaysFromEpoch(first) + below(365 * kYears));
        item.kind = "once";
        item.date = FormatShortDate(truth.once);
      } else if (kind == 1) {
        const int day = below(7);
        truth.weekdays = {day};
        item.kind = "Weekly";
        item.weekday = EnglishDayName(day);
      } else {
        DayFlags days{};
        for (int day = 0; day < 7; ++day) {
          if (kind == 2 || below(2) == 0) {
            days[static_cast<std::size_t>(day)] = true;
            truth.weekdays.insert(day);
          }
        }
        item.kind = DailyKind(days);
      }
      const std::size_t slot = store.FirstFreeSlot();
      store.SetItem(slot, item);
      byMinute_[static_cast<std::size_t>(truth.minuteOfDay)].emplace_back(slot, truth);
    }
  }

  // Everything that comes on after `from` and not after `to`, minute by minute.
  std::vector<std::size_t> Due(std::int64_t from, std::int64_t to) const {
    std::vector<std::size_t> due;
    for (std::int64_t minute = from / 60 + 1; minute * 60 <= to; ++minute) {
      const Date day = DateFromDays(minute / (24 * 60));
      for (const auto& [slot, truth] : byMinute_[static_cast<std::size_t>(minute % (24 * 60))]) {
        if (truth.weekdays.empty() ? truth.once == day : truth.weekdays.count(Weekday(day)) > 0)
          due.push_back(slot);
      }
    }
    return due;
  }

  std::array<std::vector<std::pair<std::size_t, Truth>>, 24 * 60> byMinute_;
};

// What a minute must tell is what the local clock passed in it: an hour's worth where summer time skips an
// hour, and nothing in the hour that it repeats, which was told the first time.
TEST_P(Simulation, TellsEveryItemOnceInItsMinute) {
  FakeFiles files;
  DataFolder data(files, "", '/');
  ScheduleStore store(data, "");
  MakeItems(store, 4000u + static_cast<unsigned>(GetParam()));
  ScheduleCalendar calendar(store);
  SimulatedClock clock({{2001, 1, 1}, {12, 0, 17}}, Zone(GetParam()));
  Recorder recorder;
  ScheduleTimer timer(calendar, clock, recorder, recorder, recorder);
  timer.EvaluateSchedule();
  timer.Timer1_Timer();  // takes the command that starts the minute ticks

  std::size_t count = 0;
  std::int64_t latest = clock.LocalSeconds();
  for (std::int64_t minute = 0; minute < std::int64_t{kYears} * 365 * 24 * 60; ++minute) {
    clock.Advance(60);
    timer.Timer1_Timer();
    std::vector<std::size_t> expected = Due(latest, clock.LocalSeconds());
    latest = std::max(latest, clock.LocalSeconds());
    std::sort(expected.begin(), expected.end());
    std::sort(recorder.told.begin(), recorder.told.end());
    ASSERT_EQ(recorder.told, expected) << "minute " << minute;
    count += expected.size();
    recorder.told.clear();
  }
  ASSERT_GT(count, static_cast<std::size_t>(kYears * kItems * 50));
}

INSTANTIATE_TEST_SUITE_P(Zones, Simulation, testing::ValuesIn(kZones));

}  // namespace
}  // namespace sonaro
