// A clock that stands still until a test moves it. Its zone is GMT until a test sets another.
#pragma once

#include "platform/Clock.h"

namespace sonaro {

class FakeClock : public Clock {
 public:
  ZoneReport zone;

  void SetGmt(const DateTime& gmt) { gmt_ = gmt; }
  // Time passes while the machine is awake.
  void Advance(std::int64_t seconds) {
    gmt_ = AddSeconds(gmt_, seconds);
    ticks_ += static_cast<std::uint64_t>(seconds) * 1000;
  }
  // Time passes while the machine sleeps: the ticks do not count it.
  void Sleep(std::int64_t seconds) { gmt_ = AddSeconds(gmt_, seconds); }

  DateTime LocalNow() override { return AddSeconds(gmt_, -BiasMinutes() * 60); }
  DateTime GmtNow() override { return gmt_; }
  std::uint64_t Ticks() override { return ticks_; }
  ZoneReport Zone() override { return zone; }

 private:
  std::int64_t BiasMinutes() const {
    if (zone.result > 2) return 0;
    return std::int64_t{zone.bias} + (zone.result == 2 ? zone.daylightBias : zone.standardBias);
  }

  DateTime gmt_{{2000, 8, 14}, {12, 0, 0}};
  std::uint64_t ticks_ = 1000;
};

}  // namespace sonaro
