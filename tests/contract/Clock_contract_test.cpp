#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "fakes/FakeClock.h"
#ifdef _WIN32
#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

struct ClockByHand {
  ClockByHand() {
    clock.zone.result = 2;
    clock.zone.bias = 300;
    clock.zone.daylightBias = -60;
  }
  FakeClock clock;
  void Wait() { clock.Advance(1); }
};

#ifdef _WIN32
struct ClockOnMachine {
  ClockWin clock;
  void Wait() { std::this_thread::sleep_for(std::chrono::milliseconds(30)); }
};
using ClockWorlds = testing::Types<ClockByHand, ClockOnMachine>;
#else
using ClockWorlds = testing::Types<ClockByHand>;
#endif

template <typename World>
class ClockContract : public testing::Test {};
TYPED_TEST_SUITE(ClockContract, ClockWorlds);

TYPED_TEST(ClockContract, LocalTimeIsGmtLessTheBiasInForce) {
  TypeParam world;
  const ZoneReport zone = world.clock.Zone();
  ASSERT_LE(zone.result, 2u);
  const int bias = zone.bias + (zone.result == 2 ? zone.daylightBias : zone.standardBias);
  const DateTime gmt = world.clock.GmtNow();
  const DateTime local = world.clock.LocalNow();
  EXPECT_TRUE(IsValid(gmt.date) && IsValid(local.date));
  EXPECT_LE(std::abs(SecondsBetween(gmt, local) + bias * 60), 2);
}

TYPED_TEST(ClockContract, TicksGrow) {
  TypeParam world;
  const std::uint64_t before = world.clock.Ticks();
  world.Wait();
  const std::uint64_t passed = world.clock.Ticks() - before;
  EXPECT_GE(passed, 10u);      // milliseconds, not a coarser unit
  EXPECT_LT(passed, 60'000u);  // nor a finer one
}

}  // namespace
}  // namespace sonaro
