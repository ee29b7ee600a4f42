#include <gtest/gtest.h>

#include <fstream>

#include "contract/ScratchFolder.h"
#include "fakes/FakeSystemInfo.h"
#ifdef _WIN32
#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

struct SystemChosen {
  FakeSystemInfo info;
  std::string file = "other.ini";
  void Put(const std::string& text) { info.PutProfile(file, "Section", "Key", text); }
};

#ifdef _WIN32
struct SystemOnMachine {
  SystemInfoWin info;
  ScratchFolder scratch;
  std::string file = scratch.Path() + "\\other.ini";
  void Put(const std::string& text) { std::ofstream(file) << "[Section]\nKey=" << text << '\n'; }
};
using SystemWorlds = testing::Types<SystemChosen, SystemOnMachine>;
#else
using SystemWorlds = testing::Types<SystemChosen>;
#endif

template <typename World>
class SystemInfoContract : public testing::Test {};
TYPED_TEST_SUITE(SystemInfoContract, SystemWorlds);

TYPED_TEST(SystemInfoContract, RegionalSamples) {
  TypeParam world;
  const std::string number = world.info.FormattedEightAndAHalf();
  EXPECT_TRUE(number.starts_with('8') && number.ends_with('5') && number.size() >= 3) << number;
  const std::string date = world.info.FormattedSampleDate();
  EXPECT_NE(date.find("25"), std::string::npos) << date;
  EXPECT_NE(date.find("03"), std::string::npos) << date;
}

TYPED_TEST(SystemInfoContract, ProfileStrings) {
  TypeParam world;
  EXPECT_EQ(world.info.ProfileString("Section", "Key", "default", world.file), "default");
  world.Put("value");
  EXPECT_EQ(world.info.ProfileString("SECTION", "key", "default", world.file), "value");
  EXPECT_EQ(world.info.ProfileString("Section", "Other", "", world.file), "");
}

TYPED_TEST(SystemInfoContract, LongProfileStringsAreCut) {
  TypeParam world;
  world.Put(std::string(300, 'x'));
  EXPECT_EQ(world.info.ProfileString("Section", "Key", "", world.file), std::string(254, 'x'));
}

// Whatever the language of the machine: these places are the same in all that are written in Latin letters.
TYPED_TEST(SystemInfoContract, SortKeysFollowTheLanguageAndNotTheCodePoints) {
  TypeParam world;
  const auto key = [&world](const char* text) { return world.info.SortKey(text); };
  const char* const inOrder[] = {"",     " Zero",  "90s",   "Ante",    "Évora", "Faro",
                                 "Łódź", "Madrid", "zebra", "Zebra 2", "Жук"};
  for (std::size_t i = 1; i < std::size(inOrder); ++i) {
    EXPECT_LT(key(inOrder[i - 1]), key(inOrder[i])) << inOrder[i];
  }
  EXPECT_EQ(key("ROCK fm"), key("Rock FM"));
  EXPECT_EQ(key("ÉVORA"), key("évora"));
  EXPECT_NE(key("Evora"), key("Évora"));
  EXPECT_LT(key(std::string(5000, 'a').c_str()), key("b")) << "a name of any length";
}

#ifdef _WIN32
TEST(SystemInfoWin, MachineFacts) {
  const MachineFacts facts = SystemInfoWin().Machine();
  EXPECT_TRUE(facts.version.known);
  EXPECT_TRUE(facts.version.ntFamily);
  EXPECT_GE(facts.version.major, 6u);
  EXPECT_GT(facts.processorType, 0u);
  EXPECT_GE(facts.processorCount, 1u);
  EXPECT_GT(facts.memoryBytes, std::uint64_t{64} << 20);
  EXPECT_GT(facts.processorMegahertz, 0u);
}
#endif

}  // namespace
}  // namespace sonaro
