#include "mainwindow/StationRows.h"

#include <gtest/gtest.h>

#include <random>

#include "base/Text.h"
#include "directory/StationRecord.h"
#include "fakes/FakeSystemInfo.h"

namespace sonaro {
namespace {

StationInfo Row(int id, std::string name, std::string location = "", std::string overall = "") {
  StationInfo row;
  row.key = StationKey::OfGuide(id);
  row.name = std::move(name);
  row.location = std::move(location);
  row.overall = std::move(overall);
  return row;
}

std::string Shown(const StationRows& rows) {
  std::string keys;
  for (std::size_t i = 0; i < rows.Count(); ++i) keys += rows.At(i).key.RowKey() + " ";
  return keys;
}

TEST(StationRows, SubItemsComeOutOfTheRecordInTheirOwnOrder) {
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

TEST(StationRows, KeepTheOrderOfTheFillUntilTheyAreSorted) {
  StationRows rows;
  rows.Fill({Row(3, "b"), Row(1, "C"), Row(2, "a")});
  EXPECT_EQ(Shown(rows), "S3 S1 S2 ");
  EXPECT_EQ(rows.Selected(), 0U);
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(Shown(rows), "S2 S3 S1 ");
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(3)) << "the selected station stays selected";
  rows.Fill({Row(9, "z"), Row(8, "Y")});
  EXPECT_EQ(Shown(rows), "S8 S9 ") << "a sort chosen earlier stays in force";
  EXPECT_EQ(rows.SelectedKey(), StationKey::OfGuide(8)) << "the first row as shown";
}

TEST(StationRows, EqualTextsKeepTheOrderOfTheFillInBothOrders) {
  StationRows rows;
  rows.Fill({Row(1, "x", "", "5"), Row(2, "y", "", "9"), Row(3, "z", "", "5"), Row(4, "w", "", "")});
  rows.SortBy(4, SortOrder::Descending);
  EXPECT_EQ(Shown(rows), "S2 S1 S3 S4 ");
  rows.SortBy(4, SortOrder::Ascending);
  EXPECT_EQ(Shown(rows), "S4 S1 S3 S2 ");
}

TEST(StationRows, SortIgnoresLetterCaseInEveryScript) {
  StationRows rows;
  rows.Fill({Row(1, "Жук"), Row(2, "été"), Row(3, "ZEBRA"), Row(4, "Été 2"), Row(5, "жар"), Row(6, "zebra")});
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(Shown(rows), "S3 S6 S2 S4 S5 S1 ");
}

TEST(StationRows, SortFollowsTheLanguageAndAsksOnceForEachRow) {
  FakeSystemInfo system;
  int asked = 0;
  StationRows rows([&](std::string_view text) {
    ++asked;
    return system.SortKey(text);
  });
  rows.Fill(
      {Row(1, "Zulu"), Row(2, "Łódź FM"), Row(3, "Lodz"), Row(4, "Évora"), Row(5, "Faro"), Row(6, "lyon")});
  rows.SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(Shown(rows), "S4 S5 S3 S2 S6 S1 ");
  EXPECT_EQ(asked, 6);
}

TEST(StationRows, SortAgreesWithAPlainSortOfFoldedTexts) {
  std::mt19937 random(7);
  std::vector<StationInfo> filled;
  for (int id = 1; id <= 3000; ++id) {
    std::string name;
    for (auto length = random() % 14; length > 0; --length) name += "aAbB\xC3\xA9 "[random() % 7];
    filled.push_back(Row(id, name));
  }
  auto expected = filled;
  std::stable_sort(expected.begin(), expected.end(), [](const StationInfo& a, const StationInfo& b) {
    return FoldCase(a.name) > FoldCase(b.name);
  });
  StationRows rows;
  rows.SortBy(0, SortOrder::Descending);
  rows.Fill(filled);
  for (std::size_t i = 0; i < expected.size(); ++i) ASSERT_EQ(rows.At(i).key, expected[i].key) << i;
}

TEST(StationRows, ARowThatIsNoStationIsNeitherSelectedNorCounted) {
  StationRows rows;
  rows.Fill({RowOfNoStation("No Stations Found")});
  EXPECT_EQ(rows.Count(), 1U);
  EXPECT_EQ(rows.StationCount(), 0U);
  EXPECT_EQ(rows.Selected(), std::nullopt);
  rows.Select(0);
  EXPECT_EQ(rows.SelectedRow(), nullptr);
  rows.Clear();
  EXPECT_EQ(rows.Selected(), std::nullopt);
}

TEST(StationRows, FindsRowsByKeyAndByTheStartOfTheirName) {
  StationRows rows;
  rows.Fill({Row(1, "Alpha"), Row(2, "beta"), Row(3, "Alphabet")});
  EXPECT_EQ(rows.Find(StationKey::OfGuide(2)), 1U);
  EXPECT_EQ(rows.Find(StationKey::OfGuide(22)), std::nullopt);
  EXPECT_EQ(rows.FindByName("alPHA", 1), 2U);
  EXPECT_EQ(rows.FindByName("BETA", 2), 1U) << "wraps round";
  EXPECT_EQ(rows.FindByName("gamma", 0), std::nullopt);
  rows.Clear();
  EXPECT_EQ(rows.FindByName("a", 0), std::nullopt);
}

}  // namespace
}  // namespace sonaro
