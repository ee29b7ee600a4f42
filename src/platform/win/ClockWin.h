// The machine's own clock.
#pragma once

#include "platform/Clock.h"

namespace sonaro {

class ClockWin : public Clock {
 public:
  DateTime LocalNow() override;
  DateTime GmtNow() override;
  std::uint64_t Ticks() override;
  ZoneReport Zone() override;
};

}  // namespace sonaro
