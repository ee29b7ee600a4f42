#include "stations/FavoriteGroups.h"

#include <gtest/gtest.h>

#include "stations/StationModels.h"

namespace sonaro {
namespace {

class FavoriteGroupsTest : public testing::Test {
 protected:
  void Load(std::string_view text) {
    files.Put("/d/favs.snr", text);
    groups.LoadFavoriteGroups();
  }
  std::string File() const { return files.Get("/d/favs.snr").value_or("(no file)"); }

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  FavoriteGroups groups{data};
};

TEST_F(FavoriteGroupsTest, LoadingNormalisesTheFile) {
  Load("  Morning\t1204 877 P3 \r\nno tab\r\n\r\nJazz\t\nNight Owls\t5  6\n \t7");
  EXPECT_EQ(File(), "Morning\t1204 877 P3\r\nJazz\t\r\nNight Owls\t5  6\r\nGroup\t7\r\n");
  ASSERT_EQ(groups.Count(), 4U);
  EXPECT_EQ(groups.Name(2), "Night Owls");
  EXPECT_EQ(groups.Keys(0), KeysOf("1204 877 P3"));
  EXPECT_EQ(groups.Keys(2), KeysOf("5 6"));
  files.ClearLog();
  groups.LoadFavoriteGroups();
  EXPECT_TRUE(files.Log().empty()) << "a normal file is not written again";
}

TEST_F(FavoriteGroupsTest, EveryGroupHasANameOfItsOwn) {
  Load("Jazz\t1\njazz\t2\n\t3\nJazz 2\t4\n \t5\nGroup\t6\nJAZZ \t7\n\t8\n");
  EXPECT_EQ(File(),
            "Jazz\t1\r\njazz 3\t2\r\nGroup 2\t3\r\nJazz 2\t4\r\nGroup 3\t5\r\nGroup\t6\r\n"
            "JAZZ 4\t7\r\nGroup 4\t8\r\n");
  for (std::size_t group = 0; group < groups.Count(); ++group)
    EXPECT_EQ(groups.Find(groups.Name(group)), group);
}

TEST_F(FavoriteGroupsTest, NoFileMeansNoGroupsAndMakesNone) {
  groups.LoadFavoriteGroups();
  EXPECT_EQ(groups.Count(), 0U);
  EXPECT_EQ(File(), "(no file)");
}

TEST_F(FavoriteGroupsTest, AddingAStationNeverGrowsAnotherToken) {
  Load("Jazz\t12 P3\r\nEmpty\t\r\nBlank\t  \r\nOdd\tjunk  012 P03\r\n");
  EXPECT_EQ(groups.AddStation(0, Key("5")), FavoriteChange::Saved);
  EXPECT_EQ(groups.AddStation(0, Key("3")), FavoriteChange::Saved) << "3 is not P3";
  EXPECT_EQ(groups.AddStation(0, Key("12")), FavoriteChange::Nothing);
  EXPECT_EQ(groups.AddStation(0, Key("P3")), FavoriteChange::Nothing);
  EXPECT_EQ(groups.AddStation(0, StationKey()), FavoriteChange::Nothing);
  EXPECT_EQ(groups.AddStation(1, Key("7")), FavoriteChange::Saved);
  EXPECT_EQ(groups.AddStation(2, Key("8")), FavoriteChange::Saved);
  EXPECT_EQ(groups.AddStation(3, Key("12")), FavoriteChange::Nothing) << "however it is written";
  EXPECT_EQ(groups.AddStation(4, Key("8")), FavoriteChange::Nothing) << "no such group";
  EXPECT_EQ(File(), "Jazz\t12 P3 5 3 \r\nEmpty\t7 \r\nBlank\t8 \r\nOdd\tjunk  012 P03\r\n");
}

TEST_F(FavoriteGroupsTest, RemovingAStationLeavesEveryOtherByte) {
  struct Case {
    const char* members;
    const char* token;
    const char* left;
  };
  const Case cases[] = {
      {"1 12 2 ", "12", "1 2 "}, {"12", "12", ""},         {"12 ", "12", ""},
      {"121 12", "12", "121"},   {"12 1 12 ", "12", "1 "}, {"1  junk 12", "12", "1  junk"},
      {"P1 1 ", "1", "P1 "},
  };
  for (const Case& c : cases) {
    Load(std::string("G\t") + c.members + "\r\n");
    // Loading trims the line's end, as the program does at its start.
    std::string left = c.left;
    if (std::string_view(c.members).ends_with(' ') && !left.empty()) left.pop_back();
    EXPECT_EQ(groups.RemoveStation(0, Key(c.token)), FavoriteChange::Saved) << c.members;
    EXPECT_EQ(File(), "G\t" + left + "\r\n") << c.members;
  }
  EXPECT_EQ(groups.RemoveStation(0, Key("99")), FavoriteChange::Nothing);
}

TEST_F(FavoriteGroupsTest, GroupsAreAddedRenamedMovedAndRemoved) {
  Load("A\t1 \r\nB\t2 \r\nC\t3 \r\n");
  EXPECT_EQ(groups.Add(" d\te\r\n"), FavoriteChange::Saved) << "a name keeps to its place in the file";
  EXPECT_EQ(groups.Add("b"), FavoriteChange::Nothing) << "the same name in another letter case";
  EXPECT_EQ(groups.Add(" "), FavoriteChange::Nothing);
  EXPECT_EQ(groups.Rename(1, "a"), FavoriteChange::Nothing) << "taken";
  EXPECT_EQ(groups.Rename(1, "b"), FavoriteChange::Saved) << "its own name in another letter case";
  EXPECT_EQ(groups.Move(0, 2), FavoriteChange::Saved);
  EXPECT_EQ(File(), "b\t2\r\nC\t3\r\nA\t1\r\nd e\t\r\n");
  EXPECT_EQ(groups.Move(3, 0), FavoriteChange::Saved);
  EXPECT_EQ(groups.Remove(1), FavoriteChange::Saved);
  EXPECT_EQ(File(), "d e\t\r\nC\t3\r\nA\t1\r\n");
  EXPECT_EQ(groups.Move(0, 3), FavoriteChange::Nothing);
  EXPECT_EQ(groups.Remove(3), FavoriteChange::Nothing);
  EXPECT_EQ(groups.Find("c"), 1U);
}

TEST_F(FavoriteGroupsTest, MembersChangePlacesAndLostOnesStay) {
  Load("G\t1 junk P2 4\r\n");
  EXPECT_EQ(groups.MoveStation(0, 3, 1), FavoriteChange::Saved);
  EXPECT_EQ(File(), "G\t1 4 junk P2 \r\n");
  EXPECT_EQ(groups.MoveStation(0, 0, 2), FavoriteChange::Saved);
  EXPECT_EQ(File(), "G\t4 junk 1 P2 \r\n");
  EXPECT_EQ(groups.MoveStation(0, 0, 4), FavoriteChange::Nothing);
}

TEST_F(FavoriteGroupsTest, AChangeIsRefusedWhileTheFileCannotBeReadOrWrittenAndKeepsAllOfItAfterwards) {
  files.Put("/d/favs.snr", "Jazz\t1\r\n");
  files.Lock("/d/favs.snr");
  groups.LoadFavoriteGroups();
  EXPECT_EQ(groups.Add("New"), FavoriteChange::NotSaved);
  EXPECT_EQ(groups.Count(), 0U) << "what is shown is what is on disk";
  files.Unlock("/d/favs.snr");
  EXPECT_EQ(groups.Add("jazz"), FavoriteChange::Nothing) << "read again before the first change";
  EXPECT_EQ(groups.Add("New"), FavoriteChange::Saved);
  EXPECT_EQ(File(), "Jazz\t1\r\nNew\t\r\n");

  files.SetSpaceLeft(3);
  EXPECT_EQ(groups.Remove(0), FavoriteChange::NotSaved);
  EXPECT_EQ(groups.MoveStation(0, 0, 0), FavoriteChange::Nothing);
  EXPECT_EQ(groups.AddStation(0, Key("2")), FavoriteChange::NotSaved);
  EXPECT_EQ(groups.Name(0), "Jazz");
  EXPECT_EQ(groups.Keys(0), KeysOf("1"));
  EXPECT_EQ(File(), "Jazz\t1\r\nNew\t\r\n");
}

TEST_F(FavoriteGroupsTest, TwoSessionsOnOneFolderChangeTheGroupsThatTheyMean) {
  Load("A\t1\r\nB\t2 3\r\n");
  FavoriteGroups other(data);
  other.LoadFavoriteGroups();
  EXPECT_EQ(other.Remove(0), FavoriteChange::Saved);
  EXPECT_EQ(groups.AddStation(1, Key("4")), FavoriteChange::Saved);
  EXPECT_EQ(other.Add("C"), FavoriteChange::Saved);
  EXPECT_EQ(groups.MoveStation(0, 2, 0), FavoriteChange::Saved);
  EXPECT_EQ(other.Rename(0, "Bee"), FavoriteChange::Saved);
  EXPECT_EQ(groups.AddStation(0, Key("5")), FavoriteChange::Nothing) << "the other session renamed it";
  EXPECT_EQ(File(), "Bee\t4 2 3\r\nC\t\r\n");
}

TEST_F(FavoriteGroupsTest, LinesThatAreDroppedAreKeptBesideFirst) {
  const std::string text = "Jazz\t1\r\nsomebody's shopping list\r\n\r\n";
  files.SetSpaceLeft(5);
  Load(text);
  EXPECT_EQ(File(), text) << "no room for the copy";
  EXPECT_EQ(groups.Add("New"), FavoriteChange::NotSaved);
  files.SetSpaceLeft(std::nullopt);
  EXPECT_EQ(groups.Add("New"), FavoriteChange::Saved);
  EXPECT_EQ(File(), "Jazz\t1\r\nNew\t\r\n");
  EXPECT_EQ(files.Get("/d/favs.snr.bad"), text);
}

}  // namespace
}  // namespace sonaro
