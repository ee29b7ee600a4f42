#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "base/Text.h"
#include "directory/StationFolder.h"

namespace sonaro {
namespace {

// What the numbers must say: the order of the keys, and 0 where there is no station.
void ExpectOrder(const std::vector<std::int32_t>& ids, const std::vector<std::uint32_t>& ranks,
                 const std::map<std::int32_t, std::string>& keys) {
  ASSERT_EQ(ranks.size(), ids.size());
  std::map<std::string, std::uint32_t> rankOf;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const auto key = keys.find(ids[i]);
    ASSERT_EQ(ranks[i] == 0, key == keys.end()) << ids[i];
    if (ranks[i] == 0) continue;
    ASSERT_EQ(rankOf.emplace(key->second, ranks[i]).first->second, ranks[i]) << key->second;
  }
  std::uint32_t last = 0;
  for (const auto& [key, rank] : rankOf) {
    ASSERT_GT(rank, last) << key;
    last = rank;
  }
}

// Few and many, a field of the search column and another one, names that differ and places that do not; and
// no more sort keys than texts that differ, none at all the second time.
TEST(FieldRanks, AreTheOrderOfTheSortKeys) {
  std::mt19937 random(8);
  const auto reversed = [](std::string_view text) { return std::string(text.rbegin(), text.rend()); };
  std::size_t keysMade = 0;
  const SortKeyOf sortKey = [&](std::string_view text) {
    ++keysMade;
    return reversed(FoldCase(text));
  };
  std::vector<StationRecord> records;
  std::vector<std::int32_t> ids = {5'000'001, 3};  // not there
  for (std::int32_t id = 10; id < 30'000; id += 10) {
    StationRecord record{
        id,
        {"Name " + std::to_string(random() % 100'000) + " Ä", "", "Place " + std::to_string(random() % 50)}};
    record[StationField::OverallRating] = std::to_string(random() % 10);
    records.push_back(record);
    ids.push_back(id);
  }
  StationFolder folder;
  ASSERT_TRUE(folder.Rebuild(ListOf(records)));
  std::shuffle(ids.begin(), ids.end(), random);
  for (const StationField field : {StationField::Name, StationField::Location, StationField::OverallRating}) {
    std::map<std::int32_t, std::string> keys;
    std::set<std::string> different;
    for (const StationRecord& record : records)
      different.insert(keys[record.StationId] = reversed(FoldCase(record[field])));
    const std::vector<std::int32_t> few(ids.begin(), ids.begin() + 300);
    ExpectOrder(few, folder.stations.RanksOf(few, field, sortKey), keys);
    keysMade = 0;
    EXPECT_EQ(folder.stations.MakeRanks(field, sortKey, 1000), field == StationField::OverallRating);
    ExpectOrder(ids, folder.stations.RanksOf(ids, field, sortKey), keys);
    EXPECT_LE(keysMade, field == StationField::Name ? records.size() : different.size());
    keysMade = 0;
    ExpectOrder(ids, folder.stations.RanksOf(ids, field, sortKey), keys);
    EXPECT_EQ(keysMade, 0u);
  }
  // Another table has other ranks.
  ASSERT_TRUE(folder.Rebuild("10\tB\n20\tA\n"));
  ids.resize(2500, 10);
  ids[7] = 20;
  ExpectOrder({10, 20},
              folder.stations.RanksOf(std::vector<std::int32_t>{10, 20}, StationField::Name, sortKey),
              {{10, "b"}, {20, "a"}});
  ExpectOrder(ids, folder.stations.RanksOf(ids, StationField::Name, sortKey), {{10, "b"}, {20, "a"}});
  EXPECT_TRUE(folder.data.FileSystem().Remove("/data/statorg.ism"));
  EXPECT_EQ(folder.stations.RanksOf(ids, StationField::Name, sortKey),
            std::vector<std::uint32_t>(ids.size()));
}

}  // namespace
}  // namespace sonaro
