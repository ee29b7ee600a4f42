#include "stations/RecentList.h"

#include <gtest/gtest.h>

#include "stations/StationModels.h"

namespace sonaro {
namespace {

class RecentListTest : public testing::Test {
 protected:
  RecentListTest() { files_.MakeFolder("/d"); }
  std::string File() { return files_.Get("/d/recent.snr").value_or("(none)"); }
  std::string Recent() const { return TextOf(recent_.Keys()); }
  std::vector<StationKey> Numbers(int from, int downTo) {
    std::vector<StationKey> keys;
    for (int i = from; i >= downTo; --i) keys.push_back(StationKey::OfGuide(i));
    return keys;
  }

  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
  RecentList recent_{data_};
};

TEST_F(RecentListTest, MemoryHoldsOneEntryMoreThanTheFile) {
  for (int i = 1; i <= 25; ++i) recent_.AddRecent(StationKey::OfGuide(i));
  EXPECT_EQ(recent_.Keys(), Numbers(25, 5));
  EXPECT_EQ(File(), "25 24 23 22 21 20 19 18 17 16 15 14 13 12 11 10 9 8 7 6\r\n");

  recent_.Load();
  EXPECT_EQ(recent_.Keys(), Numbers(25, 6));
}

TEST_F(RecentListTest, PlayedAgainMovesToTheFront) {
  for (const char* token : {"7", "P3", "", "-12", "P3", "7"}) recent_.AddRecent(Key(token));
  EXPECT_EQ(Recent(), "7 P3 -12 ");
  EXPECT_EQ(File(), "7 P3 -12\r\n");
  // As a full list too, where the moved entry is the one in the slot that is not saved.
  for (int i = 101; i <= 121; ++i) recent_.AddRecent(StationKey::OfGuide(i));
  recent_.AddRecent(Key("101"));
  EXPECT_EQ(recent_.Keys().size(), RecentList::kSlots);
  EXPECT_EQ(recent_.Keys().front(), Key("101"));
  EXPECT_EQ(recent_.Keys().back(), Key("102"));
}

TEST_F(RecentListTest, ReadsWhatIsThere) {
  const struct {
    const char* bytes;
    const char* text;
  } kCases[] = {{"", ""},         {"1 P2 3\r\n", "1 P2 3 "}, {"1  2", "1 2 "}, {"\r\n1 2\r\n", ""},
                {"1\n2\n", "1 "}, {"x 1 P0 01\n", "1 "}};
  for (const auto& c : kCases) {
    files_.Put("/d/Recent.snr", c.bytes);
    recent_.Load();
    EXPECT_EQ(Recent(), c.text) << c.bytes;
  }
}

TEST_F(RecentListTest, PlaysOfALockedFileOfAFullDiskAndOfAnotherSessionComeTogether) {
  files_.Put("/d/recent.snr", "1 2 3\r\n");
  files_.Lock("/d/recent.snr");
  recent_.Load();
  recent_.AddRecent(Key("9"));
  EXPECT_EQ(Recent(), "9 ");
  EXPECT_FALSE(recent_.LoadUnread());
  files_.Unlock("/d/recent.snr");
  EXPECT_TRUE(recent_.LoadUnread());
  EXPECT_EQ(Recent(), "9 1 2 3 ");

  files_.SetSpaceLeft(1);
  recent_.AddRecent(Key("10"));
  files_.SetSpaceLeft(std::nullopt);
  EXPECT_EQ(File(), "1 2 3\r\n");

  RecentList other(data_);
  other.Load();
  other.AddRecent(Key("P4"));
  recent_.AddRecent(Key("11"));
  EXPECT_EQ(File(), "11 10 9 1 2 3 P4\r\n");
  other.AddRecent(Key("12"));
  EXPECT_EQ(File(), "12 11 10 9 1 2 3 P4\r\n");
}

}  // namespace
}  // namespace sonaro
