#include "stations/SearchHistory.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(SearchHistory, KeepsAtMostElevenAndMovesWhatIsSearchedAgain) {
  SearchHistory history("");
  EXPECT_EQ(history.ToSetting(), "\t");
  for (int i = 1; i <= 11; ++i) history.Add("s" + std::to_string(i));
  EXPECT_EQ(history.ToSetting(), "\ts1\ts2\ts3\ts4\ts5\ts6\ts7\ts8\ts9\ts10\ts11\t");
  history.Add("S2");
  EXPECT_EQ(history.ToSetting(), "\ts1\ts3\ts4\ts5\ts6\ts7\ts8\ts9\ts10\ts11\tS2\t")
      << "moved, in the letter case of now; none dropped";
  history.Add("s");
  EXPECT_EQ(history.ToSetting(), "\ts3\ts4\ts5\ts6\ts7\ts8\ts9\ts10\ts11\tS2\ts\t")
      << "a part of an entry is no entry; the oldest went";
}

TEST(SearchHistory, ReadsWhatEarlierProgramsLeft) {
  EXPECT_EQ(SearchHistory("\tjazz\trock and roll\t").Entries(),
            (std::vector<std::string>{"jazz", "rock and roll"}));
  EXPECT_EQ(SearchHistory("jazz\t\trock").ToSetting(), "\tjazz\trock\t");
}

}  // namespace
}  // namespace sonaro
