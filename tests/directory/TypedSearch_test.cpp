#include "directory/TypedSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include "base/Text.h"
#include "directory/StationFolder.h"
#include "directory/StationSearch.h"

namespace sonaro {
namespace {

std::string Plain(std::string_view text) { return WithoutAccents(FoldCase(text)); }

bool Holds(const std::string& text, const std::string& word, bool asBeginning) {
  const auto inWord = [](char c) {
    return (c & 0x80) != 0 || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
  };
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    if (!asBeginning || at == 0 || !inWord(text[at - 1])) return true;
  }
  return false;
}

// The rule, over stations whose searched fields were made plain before.
struct Oracle {
  std::vector<StationRecord> plain;

  explicit Oracle(std::vector<StationRecord> records) : plain(std::move(records)) {
    for (StationRecord& record : plain) {
      for (std::size_t field = 0; field < 5; ++field) record.fields[field] = Plain(record.fields[field]);
    }
  }
  // 0 to 2 for one that matches, better ones first; 3 for one that does not.
  static int RankOf(const StationRecord& record, const std::vector<std::string>& words) {
    const auto all = [&](const auto& holds) { return std::all_of(words.begin(), words.end(), holds); };
    const std::string& name = record.fields[0];
    if (all([&](const std::string& word) { return Holds(name, word, true); })) return 0;
    if (all([&](const std::string& word) { return Holds(name, word, false); })) return 1;
    const auto somewhere = [&](const std::string& word) {
      return std::any_of(record.fields.begin(), record.fields.begin() + 5,
                         [&](const std::string& field) { return Holds(field, word, false); });
    };
    return all(somewhere) ? 2 : 3;
  }
  std::vector<std::int32_t> Best(const std::string& typed, std::size_t max) const {
    const std::vector<std::string> words = SearchWords(Plain(typed));
    std::array<std::vector<std::int32_t>, 4> ids;
    for (const StationRecord& record : plain)
      ids[static_cast<std::size_t>(words.empty() ? 3 : RankOf(record, words))].push_back(record.StationId);
    for (const std::size_t rank : {1u, 2u}) ids[0].insert(ids[0].end(), ids[rank].begin(), ids[rank].end());
    ids[0].resize(std::min(ids[0].size(), max));
    return ids[0];
  }
};

TEST(TypedSearch, TheRuleByExamples) {
  StationFolder folder;
  ASSERT_TRUE(folder.Rebuild(ListOf({{1, {"News", "MP3", "Orléans", "Jazz", "Música"}},
                                     {2, {"Megajazz"}},
                                     {3, {"Café del Már", "AAC", "Ibiza"}},
                                     {4, {"Rock 'Jazz'"}},
                                     {5, {"Jazz Øresund", "", "Paris"}},
                                     {6, {"Радио Ёлка", "", "", "", "", "jazz"}}})));
  const struct {
    std::string typed;
    std::vector<std::int32_t> best;
  } cases[] = {{"jazz", {4, 5, 2, 1}}, {"JÁZZ orleans", {1}}, {"cafe mar", {3}}, {"del cafe\tmar", {3}},
               {"oresund", {5}},       {"élka", {}},          {"елка", {6}},     {"az", {2, 4, 5, 1}},
               {"jazz paris", {5}},    {"musica", {1}},       {"jazzpari", {}},  {"  ", {}}};
  for (const auto& c : cases) {
    EXPECT_EQ(folder.stations.BestMatches(c.typed), c.best) << c.typed;
    const std::string_view fields[] = {"x", "Jazz Øresund", "Paris"};
    const bool expected = std::find(c.best.begin(), c.best.end(), 5) != c.best.end() || c.typed == "  ";
    EXPECT_EQ(TypedWords(c.typed).StandIn(fields), expected) << c.typed;
  }
  EXPECT_EQ(folder.stations.BestMatches("jazz", 2), (std::vector<std::int32_t>{4, 5}));
  const std::vector<std::int32_t> list = {6, 5, 77, 2, 5, 1, 3};
  EXPECT_EQ(folder.stations.FilterStations(list, "jazz"), (std::vector<std::int32_t>{5, 2, 5, 1}));
  EXPECT_EQ(folder.stations.FilterStations(list, " "), (std::vector<std::int32_t>{6, 5, 2, 5, 1, 3}));
}

TEST(TypedSearch, RandomKeysInRandomStations) {
  std::mt19937 random(5);
  const std::vector<std::string> pieces = {"a", "b", "ab",      "É",       "e",    "ø", "o",
                                           "æ", "ß", "е\u0301", "ё",       "中",   "-", " ",
                                           " ", "1", "\xFF",    "c\u0327", "jazz", "Ja"};
  const auto text = [&](std::size_t most) {
    std::string result;
    for (std::size_t n = random() % (most + 1); n > 0; --n) result += pieces[random() % pieces.size()];
    return result;
  };
  std::vector<StationRecord> records;
  std::vector<std::int32_t> ids;
  for (std::int32_t id = -600; id <= 1600; id += 2) {
    if (id == 0) continue;
    StationRecord record{id, {}};
    for (std::size_t field = 0; field < 6; ++field) record.fields[field] = text(random() % 5);
    records.push_back(record);
    ids.push_back(id);
  }
  StationFolder folder;
  ASSERT_TRUE(folder.Rebuild(ListOf(records)));
  const Oracle oracle(records);
  std::size_t hits = 0;
  for (int round = 0; round < 150; ++round) {
    const std::string typed = text(3) + " " + (round % 2 == 0 ? text(2) : "");
    const std::size_t max = round % 3 == 0 ? 20 : 10'000;
    const std::vector<std::int32_t> expected = oracle.Best(typed, max);
    ASSERT_EQ(folder.stations.BestMatches(typed, max), expected) << typed;
    hits += expected.size();
    std::shuffle(ids.begin(), ids.end(), random);
    if (max == 20 || expected.empty()) continue;
    const std::set<std::int32_t> found(expected.begin(), expected.end());
    std::vector<std::int32_t> left;
    for (const std::int32_t id : ids) {
      if (found.count(id) != 0) left.push_back(id);
    }
    ASSERT_EQ(folder.stations.FilterStations(ids, typed), left) << typed;
  }
  EXPECT_GT(hits, 3000u);
}

}  // namespace
}  // namespace sonaro
