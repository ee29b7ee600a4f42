#include "forms/paint/NeedleSlide.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(NeedleSlide, GoesTheWholeWayInTimeToEitherSide) {
  constexpr std::uint64_t kStart = 5'000'000'000;  // a clock that has run for weeks
  for (const auto& [from, to] : {std::pair{110, 870}, {870, 110}, {1305, 165}, {40, 40}}) {
    const NeedleSlide slide{from, to, kStart};
    EXPECT_EQ(slide.At(kStart - 20), from) << "the clock was set back";
    EXPECT_EQ(slide.At(kStart), from);
    EXPECT_EQ(slide.At(kStart + 60), (from + to) / 2);
    EXPECT_EQ(slide.At(kStart + 120), to);
    EXPECT_EQ(slide.At(kStart + 90'000), to);
    for (std::uint64_t time = 0; time < 120; time += NeedleSlide::kFrame) {
      EXPECT_FALSE(slide.IsOver(kStart + time)) << time;
      const int step = slide.At(kStart + time + NeedleSlide::kFrame) - slide.At(kStart + time);
      EXPECT_NEAR(step, (to - from) / 6.0, 1) << time;
    }
    EXPECT_TRUE(slide.IsOver(kStart + 120));
  }
}

}  // namespace
}  // namespace sonaro
