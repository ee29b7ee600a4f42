// The machine's clock and time zone. Tests crank their own by hand.
#pragma once

#include <array>
#include <cstdint>

#include "base/Dates.h"

namespace sonaro {

// What the platform reports of the zone in force (TIME_ZONE_INFORMATION): biases in minutes, local = GMT -
// bias.
struct ZoneReport {
  static constexpr std::uint32_t kFailed = 0xFFFFFFFF;
  std::uint32_t result = 0;  // 0 zone unknown, 1 standard time, 2 daylight time, kFailed
  std::int32_t bias = 0;
  std::int32_t standardBias = 0;
  std::int32_t daylightBias = 0;
  std::array<char16_t, 32> standardName{};  // ends at the first zero unit, if there is one
  std::array<char16_t, 32> daylightName{};
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime LocalNow() = 0;
  virtual DateTime GmtNow() = 0;
  // Milliseconds that only ever grow, not counting the time that the machine slept.
  virtual std::uint64_t Ticks() = 0;
  virtual ZoneReport Zone() = 0;
};

}  // namespace sonaro
