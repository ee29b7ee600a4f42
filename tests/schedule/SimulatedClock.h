// A clock that a test moves second by second, in a zone with summer-time rules: the local wall clock jumps
// where the zone says so.
#pragma once

#include <functional>

#include "base/Dates.h"
#include "platform/Clock.h"

namespace sonaro {

class SimulatedClock : public Clock {
 public:
  using OffsetAt = std::function<std::int64_t(std::int64_t gmtSeconds)>;  // seconds east of GMT

  SimulatedClock(const DateTime& gmt, OffsetAt offset) : offset_(std::move(offset)) { SetGmt(gmt); }

  void SetGmt(const DateTime& gmt) { gmt_ = Seconds(gmt); }
  void Advance(std::int64_t seconds) { gmt_ += seconds; }

  std::int64_t LocalSeconds() const { return gmt_ + offset_(gmt_); }

  DateTime LocalNow() override { return At(LocalSeconds()); }
  DateTime GmtNow() override { return At(gmt_); }
  std::uint64_t Ticks() override { return static_cast<std::uint64_t>(gmt_) * 1000; }
  ZoneReport Zone() override { return {}; }

  static std::int64_t Seconds(const DateTime& at) {
    return DaysFromEpoch(at.date) * 86400 + at.time.hour * 3600 + at.time.minute * 60 + at.time.second;
  }
  static DateTime At(std::int64_t seconds) {
    const std::int64_t days = seconds / 86400;
    const auto rest = static_cast<int>(seconds % 86400);
    return {DateFromDays(days), {rest / 3600, rest / 60 % 60, rest % 60}};
  }

 private:
  std::int64_t gmt_ = 0;
  OffsetAt offset_;
};

}  // namespace sonaro
