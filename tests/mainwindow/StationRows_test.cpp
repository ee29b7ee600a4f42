#include "mainwindow/StationRows.h"

#include <gtest/gtest.h>

#include <random>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeStrings.h"
#include "fakes/FakeSystemInfo.h"
#include "stations/PersonalStations.h"

namespace sonaro {
namespace {

// A guide of stations numbered from 1, with these names and overall ratings.
class StationRowsTest : public testing::Test {
 protected:
  struct Facts {
    std::string name;
    std::string overall = "";
  };
  void Guide(const std::vector<Facts>& all) {
    std::string list;
    for (std::size_t i = 0; i < all.size(); ++i) {
      list += std::to_string(i + 1) + '\t' + all[i].name + "\tMP3\tGhent\tJazz" + std::string(8, '\t') +
              all[i].overall + "\t\t\t\t2\n";
    }
    files.Put("/d/Station.snr", list);
    ASSERT_TRUE(stations.RebuildStationTable());
    std::vector<StationKey> keys;
    for (std::size_t i = 0; i < all.size(); ++i) keys.push_back(StationKey::OfGuide(static_cast<int>(i) + 1));
    rows.Fill(keys);
  }
  std::string Shown() const {
    std::string keys;
    for (std::size_t i = 0; i < rows.Count(); ++i) keys += rows.KeyAt(i).Token() + " ";
    return keys;
  }

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  StatList stations{data};
  PersonalStations personal{data};
  FakeStrings strings;
  StationSource source{stations, personal, BuiltInAlphabets(), strings};
  StationRows rows{source};
};

TEST(StationRow, SubItemsComeOutOfTheRecordInTheirOwnOrder) {
  StationRecord record;
  record.StationId = -7;
  for (int field = 1; field <= 16; ++field) record[static_cast<StationField>(field)] = std::to_string(field);
  record[StationField::Reliability] = "3";
  const StationInfo row = InfoOf(record);
  EXPECT_EQ(row.key.RowKey(), "S-7");
  // Name, location, media type, format, overall, sound, speed, web site, reliability: sound before speed.
  const char* const expected[] = {"1", "3", "2", "4", "12", "14", "13", "15", "3"};
  for (int item = 0; item <= kSubItems; ++item) EXPECT_EQ(CellOf(row, item), expected[item]) << item;
  EXPECT_EQ(row.Symbol(), 3);
}

TEST_F(StationRowsTest, KeepTheOrderOfTheFillUntilTheyAreSorted) {
  Guide({{"b"}, {"C"}, {"a"}});
  EXPECT_EQ(Shown(), "1 2 3 ");
  EXPECT_EQ(rows.Selected(), 0U);
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(Shown(), "3 1 2 ");
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(1)) << "the selected station stays selected";
  EXPECT_EQ(rows.Selected(), 1U);
  rows.Fill({StationKey::OfGuide(2), StationKey::OfGuide(1)});
  EXPECT_EQ(Shown(), "1 2 ") << "a sort chosen earlier stays in force";
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(1)) << "the first row as shown";
  rows.EndSort();
  EXPECT_EQ(Shown(), "2 1 ");
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(1));
  rows.Fill({StationKey::OfGuide(2), StationKey::OfGuide(3)});
  EXPECT_EQ(Shown(), "2 3 ");
}

TEST_F(StationRowsTest, SeveralStaySelectedWhileTheListIsSortedAndNarrowed) {
  Guide({{"b"}, {"C"}, {"a"}, {"d"}});
  const std::vector<std::size_t> all = {0, 2, 3};
  rows.SelectSeveral(2, all);
  EXPECT_EQ(rows.SelectedRows(), all);
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(rows.SelectedRows(), (std::vector<std::size_t>{0, 1, 3}));
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(3));
  const std::vector<StationKey> keys = {StationKey::OfGuide(1), StationKey::OfGuide(2),
                                        StationKey::OfGuide(3)};
  rows.NarrowTo(keys);
  EXPECT_EQ(rows.SelectedKeys(), (std::vector<StationKey>{keys[2], keys[0]}));
  rows.Select(1);
  EXPECT_EQ(rows.SelectedRows(), std::vector<std::size_t>{1});
  rows.SelectSeveral(1, std::vector<std::size_t>{0, 1});
  rows.Fill(keys);
  EXPECT_EQ(rows.SelectedRows(), std::vector<std::size_t>{0});
}

TEST_F(StationRowsTest, EqualTextsKeepTheOrderOfTheFillInBothOrders) {
  Guide({{"x", "5"}, {"y", "9"}, {"z", "5"}, {"w", ""}});
  rows.SortBy(4, SortOrder::Descending);
  EXPECT_EQ(Shown(), "2 1 3 4 ");
  rows.SortBy(4, SortOrder::Ascending);
  EXPECT_EQ(Shown(), "4 1 3 2 ");
  PersonalStation own;
  own.name = "xa";
  ASSERT_EQ(personal.Add(own), 1);
  std::vector<StationKey> keys = rows.Keys();
  keys.insert(keys.begin(), StationKey::OfUser(1));
  rows.Fill(keys);
  rows.SortBy(0, SortOrder::Descending);
  EXPECT_EQ(Shown(), "3 2 P1 1 4 ") << "one of the user's own stands among those of the guide";
}

TEST_F(StationRowsTest, SortIgnoresLetterCaseInEveryScript) {
  Guide({{"Жук"}, {"été"}, {"ZEBRA"}, {"Été 2"}, {"жар"}, {"zebra"}});
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(Shown(), "3 6 2 4 5 1 ");
}

TEST_F(StationRowsTest, SortFollowsTheLanguageAndAsksOnceForEachRow) {
  FakeSystemInfo system;
  int asked = 0;
  Guide({{"Zulu"}, {"Łódź FM"}, {"Lodz"}, {"Évora"}, {"Faro"}, {"lyon"}});
  StationRows own(source, [&](std::string_view text) {
    ++asked;
    return system.SortKey(text);
  });
  own.Fill(rows.Keys());
  own.SortBy(0, SortOrder::Ascending);
  std::string shown;
  for (const StationKey& key : own.Keys()) shown += key.Token() + " ";
  EXPECT_EQ(shown, "4 5 3 2 6 1 ");
  EXPECT_EQ(asked, 6);
}

TEST_F(StationRowsTest, SortAgreesWithAPlainSortOfFoldedTexts) {
  std::mt19937 random(7);
  std::vector<Facts> all;
  for (int id = 1; id <= 3000; ++id) {
    std::string name;
    for (auto length = random() % 14; length > 0; --length) name += "aAbB\xC3\xA9 "[random() % 7];
    all.push_back({name});
  }
  Guide(all);
  std::vector<StationKey> expected = rows.Keys();
  const auto name = [&](const StationKey& key) {
    return FoldCase(all[static_cast<std::size_t>(key.number) - 1].name);
  };
  std::stable_sort(expected.begin(), expected.end(),
                   [&](const StationKey& a, const StationKey& b) { return name(a) > name(b); });
  rows.SortBy(0, SortOrder::Descending);
  EXPECT_EQ(rows.Keys(), expected);
}

TEST_F(StationRowsTest, ANoticeIsNeitherSelectedNorCounted) {
  rows.SortBy(0, SortOrder::Ascending);
  rows.FillNotice("No Stations Found");
  EXPECT_EQ(rows.Count(), 1U);
  EXPECT_EQ(rows.At(0).name, "No Stations Found");
  EXPECT_EQ(rows.StationCount(), 0U);
  rows.Select(0);
  EXPECT_EQ(rows.Selected(), std::nullopt);
  EXPECT_EQ(rows.FindByName("no", 0), std::nullopt);
  rows.Clear();
  EXPECT_EQ(rows.Count(), 0U);
  EXPECT_EQ(rows.FindByName("a", 0), std::nullopt);
}

TEST_F(StationRowsTest, FindsRowsByKeyAndByTheStartOfTheirName) {
  Guide({{"Alpha"}, {"beta"}, {"Alphabet"}, {"an alpha"}});
  PersonalStation garage;
  garage.name = "Garage";
  ASSERT_EQ(personal.Add(garage), 1);
  std::vector<StationKey> keys = rows.Keys();
  keys.push_back(StationKey::OfUser(1));
  rows.Fill(keys);
  EXPECT_EQ(rows.Find(StationKey::OfGuide(2)), 1U);
  EXPECT_EQ(rows.Find(StationKey::OfGuide(22)), std::nullopt);
  EXPECT_EQ(rows.FindByName("alPHA", 1), 2U);
  EXPECT_EQ(rows.FindByName("alPHA", 3), 0U) << "wraps round";
  EXPECT_EQ(rows.FindByName("gar", 0), 4U);
  EXPECT_EQ(rows.FindByName("gamma", 0), std::nullopt);
}

// What a list of many rows costs is counted in records read.
TEST_F(StationRowsTest, ReadsOnlyTheStationsThatAreShown) {
  std::vector<Facts> all(40000);
  for (std::size_t i = 0; i < all.size(); ++i) all[i].name = "Station " + std::to_string(i + 1);
  all[31000].name = "Zebra FM";
  Guide(all);
  const auto screen = [&](std::size_t top) {
    for (std::size_t row = top; row < top + 20; ++row) {
      EXPECT_EQ(rows.Cell(row, 0), all[row].name);
      EXPECT_EQ(rows.Cell(row, 1), "Ghent");
    }
  };
  std::uint64_t before = stations.LookUps();
  const auto read = [&] { return stations.LookUps() - std::exchange(before, stations.LookUps()); };
  rows.Fill(rows.Keys());
  EXPECT_EQ(read(), 0U);
  screen(0);
  source.Find(rows.SelectedKey());  // for the detail beside the list
  EXPECT_LE(read(), 60U);
  screen(0);
  EXPECT_EQ(read(), 0U) << "painted again";
  screen(39980);
  screen(20011);
  EXPECT_LE(read(), 4 * StationRows::kPageRows);
  EXPECT_EQ(rows.FindByName("zebra", 5), 31000U);
  EXPECT_LE(read(), StationRows::kPageRows);
  rows.SortBy(0, SortOrder::Descending);
  EXPECT_EQ(rows.KeyAt(0), StationKey::OfGuide(31001));
  read();
  rows.SortBy(4, SortOrder::Descending);
  rows.SortBy(0, SortOrder::Descending);
  EXPECT_EQ(read(), 0U) << "a column is looked at once";
  rows.EndSort();
  rows.Fill(rows.Keys());
  screen(0);
  EXPECT_EQ(read(), StationRows::kPageRows) << "what was read before the fill is forgotten";
}

}  // namespace
}  // namespace sonaro
