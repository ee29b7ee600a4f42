// The evaluator against a plain reference that walks every minute: random schedules, ten years, several
// zones.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <random>
#include <set>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "platform/MessagePost.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTimer.h"
#include "schedule/SimulatedClock.h"

namespace sonaro {
namespace {

// The sanitizers make each minute about ten times as dear.
#ifdef __SANITIZE_ADDRESS__
constexpr int kYears = 1;
#else
constexpr int kYears = 10;
#endif
constexpr int kItems = 600;

struct Truth {
  int minuteOfDay = 0;
  std::set<int> weekdays;  // 0 = Monday; empty for a single day
  Date once;
};

struct Told {
  std::size_t slot = 0;
  std::int64_t local = 0;  // seconds of the local clock when it was told
  auto operator<=>(const Told&) const = default;
};

// A window that is always there, and a tray that writes down what it is told.
class Recorder : public ScheduleTimerView, public MessagePost {
 public:
  explicit Recorder(SimulatedClock& clock) : clock_(clock) {}
  bool IsLoaded() override { return loaded_; }
  void Load() override { loaded_ = true; }
  void SetCloseItCaption(const char*) override {}
  void RestartTimer(unsigned) override {}
  void Unload() override { loaded_ = false; }
  bool WindowExists(const std::string&) override { return true; }
  bool PostTo(const std::string&, std::uint32_t, std::uintptr_t slot, std::intptr_t) override {
    told.push_back({slot, clock_.LocalSeconds()});
    return true;
  }
  bool EarlierInstanceRuns() override { return false; }

  std::vector<Told> told;

 private:
  SimulatedClock& clock_;
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
  auto years = std::make_shared<std::map<int, std::pair<std::int64_t, std::int64_t>>>();
  for (int year = 1999; year < 2015; ++year) {
    (*years)[year] = {NthSunday(year, beginMonth, beginNth, beginGmtHour),
                      NthSunday(year, endMonth, endNth, endGmtHour)};
  }
  return [=](std::int64_t gmt) {
    const auto& [begin, end] = years->at(SimulatedClock::At(gmt).date.year);
    const bool summer = begin < end ? gmt >= begin && gmt < end : gmt >= begin || gmt < end;
    return standard + (summer ? 3600 : 0);
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
      ScheduleItem item;
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

  // Everything whose local time lies after `from` and not after `to` and that was not told before.
  void TellByWalking(std::int64_t from, std::int64_t to, std::vector<Told>& expected) {
    for (std::int64_t minute = from / 60 + 1; minute * 60 <= to; ++minute) {
      const DateTime at = SimulatedClock::At(minute * 60);
      for (const auto& [slot, truth] :
           byMinute_[static_cast<std::size_t>(at.time.hour * 60 + at.time.minute)]) {
        const bool due =
            truth.weekdays.empty() ? truth.once == at.date : truth.weekdays.count(Weekday(at.date)) > 0;
        if (due && walked_.insert({minute, slot}).second) expected.push_back({slot, to});
      }
    }
    if (walked_.size() > 100000) walked_.erase(walked_.begin());
  }

  std::array<std::vector<std::pair<std::size_t, Truth>>, 24 * 60> byMinute_;
  std::set<std::pair<std::int64_t, std::size_t>> walked_;  // oldest first
};

TEST_P(Simulation, TellsEveryItemOnceInItsMinute) {
  FakeFiles files;
  DataFolder data(files, "data", '/');
  ScheduleStore store(data, "");
  MakeItems(store, 4000u + static_cast<unsigned>(GetParam()));
  ScheduleCalendar calendar(store, "");
  SimulatedClock clock({{2001, 1, 1}, {12, 0, 17}}, Zone(GetParam()));
  Recorder recorder(clock);
  ScheduleTimer timer(calendar, clock, recorder, recorder);
  timer.EvaluateSchedule();
  timer.Timer1_Timer();  // takes the command that starts the minute ticks

  std::vector<Told> expected;
  std::int64_t last = clock.LocalSeconds();
  for (std::int64_t minute = 0; minute < std::int64_t{kYears} * 365 * 24 * 60; ++minute) {
    clock.Advance(60);
    const std::int64_t now = clock.LocalSeconds();
    if (now > last) TellByWalking(last, now, expected);
    last = now;
    timer.Timer1_Timer();
  }
  std::sort(expected.begin(), expected.end());
  std::sort(recorder.told.begin(), recorder.told.end());
  ASSERT_GT(expected.size(), static_cast<std::size_t>(kYears * kItems * 50));
  EXPECT_TRUE(expected == recorder.told)
      << expected.size() << " expected, " << recorder.told.size() << " told";
}

INSTANTIATE_TEST_SUITE_P(Zones, Simulation, testing::Values(0, 1, 2, 3));

}  // namespace
}  // namespace sonaro
