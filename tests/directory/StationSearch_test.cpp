#include "directory/StationSearch.h"

#include <gtest/gtest.h>

#include <bit>
#include <random>

#include "base/Text.h"
#include "directory/StationFolder.h"
#include "directory/VmxFormat.h"
#include "directory/WordFinder.h"

namespace sonaro {
namespace {

constexpr StationField kSearched[] = {StationField::Name, StationField::MediaType, StationField::Location,
                                      StationField::Description, StationField::Format};

// The rule, word by word and field by field.
bool Matches(const StationRecord& record, const std::vector<std::string>& words, bool allWords) {
  const auto occurs = [&](const std::string& word) {
    return std::any_of(std::begin(kSearched), std::end(kSearched),
                       [&](StationField field) { return ContainsIgnoringCase(record[field], word); });
  };
  if (words.empty()) return false;
  return allWords ? std::all_of(words.begin(), words.end(), occurs)
                  : std::any_of(words.begin(), words.end(), occurs);
}

struct Directory : StationFolder {
  std::vector<StationRecord> records;

  void Build() { ASSERT_TRUE(Rebuild(ListOf(records))); }
  std::vector<std::int32_t> Expected(const std::string& text, bool allWords) const {
    std::vector<std::int32_t> ids;
    for (const StationRecord& record : records) {
      if (Matches(record, SearchWords(text), allWords)) ids.push_back(record.StationId);
    }
    return ids;
  }
};

TEST(StationSearch, WordsStandBetweenSingleBlanks) {
  EXPECT_EQ(SearchWords("  rock   jazz "), (std::vector<std::string>{"rock", "jazz"}));
  EXPECT_TRUE(SearchWords("   ").empty());
  EXPECT_EQ(SearchWords("a\tb c").size(), 2u) << "only the blank divides";
  std::string text;
  for (int i = 1; i <= 101; ++i) text += "w" + std::to_string(i) + "  ";
  EXPECT_EQ(SearchWords(text).size(), 100u);
  EXPECT_EQ(SearchWords(text).back(), "w100");
}

TEST(StationSearch, TheRuleByExamples) {
  Directory directory;
  directory.records = {{-4, {"Acid JAZZ", "WM", "Praha", "Jazz", "Müßig ΟΔΟΣ", "linked"}},
                       {3, {"Rock", "RM", "Rio", "Oldies", "", "jazz", "", "", "", "jazz"}},
                       {9, {"", "", "", "", ""}},
                       {70, {"Radio ЁЖ", "WM", "Москва", "Talk", "jazz-rock"}}};
  directory.Build();
  const struct {
    std::string text;
    bool allWords;
    std::vector<std::int32_t> ids;
  } cases[] = {{"jazz", true, {-4, 70}},
               {"ROCK", true, {3, 70}},
               {"rock jazz", true, {70}},
               {"rock jazz", false, {-4, 3, 70}},
               {"rock absent", true, {}},
               {"absent rock", false, {3, 70}},
               {"linked", false, {}},
               {"a", true, {-4, 70}},
               {"wm praha jazz mÜSSig οδος", true, {-4}},
               {"ёж", true, {70}},
               {"МОСК", true, {70}},
               {"jazzwm", true, {}},
               {"jazz\twm", false, {}},
               {"jazz\twm rock", false, {3, 70}},
               {"jazz\twm rock", true, {}},
               {"rock rock", true, {3, 70}},
               {"", false, {}},
               {"  ", true, {}}};
  for (const auto& c : cases) {
    EXPECT_EQ(directory.stations.SearchStationIds(c.text, c.allWords), c.ids) << c.text << c.allWords;
    const std::vector<StationRecord> found = directory.stations.SearchStations(c.text, c.allWords);
    ASSERT_EQ(found.size(), c.ids.size());
    for (std::size_t i = 0; i < found.size(); ++i) EXPECT_EQ(found[i].StationId, c.ids[i]);
  }
}

TEST(StationSearch, RandomWordsInRandomStations) {
  std::mt19937 random(11);
  const auto pick = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
  const std::vector<std::string> pieces = {"a",    "b", "AB", "ba", "Rock", "ß",      "SS", "É", "é",
                                           "Σ",    "ς", "Й",  "й",  "İ",    "\xC3",   "中", "☂", "K",
                                           "\xFF", "x", "-",  "FM", "fm ",  "abcabc", "ŉ",  "ﬁ", "fi"};
  const auto text = [&](std::size_t most) {
    std::string result;
    for (std::size_t n = pick(most + 1); n > 0; --n) result += pieces[pick(pieces.size())];
    return result;
  };
  Directory directory;
  for (std::int32_t id = 1; id <= 1100; ++id) {  // more than the search takes at once
    StationRecord record{id, {}};
    for (const StationField field : kSearched) record[field] = text(pick(8));
    record[StationField::LinkOne] = text(3);
    directory.records.push_back(record);
  }
  directory.Build();
  std::size_t hits = 0;
  for (int round = 0; round < 100; ++round) {
    std::string query;
    for (std::size_t words = pick(4) + (round % 10 == 0 ? 26 + pick(90) : 1); words > 0; --words)
      query += text(3) + ' ';
    const bool allWords = pick(2) == 0;
    const std::vector<std::int32_t> expected = directory.Expected(query, allWords);
    ASSERT_EQ(directory.stations.SearchStationIds(query, allWords), expected) << query;
    hits += expected.size();
  }
  EXPECT_GT(hits, 1000u);
}

// The wide and the plain search agree on texts with many near misses, whatever the length of the word and the
// text.
TEST(StationSearch, WideAndPlainSearchAgree) {
  std::mt19937 random(3);
  for (int round = 0; round < 20'000; ++round) {
    std::string text(random() % 300, '\0');
    for (char& c : text) c = static_cast<char>('a' + random() % 3);
    std::string word(1 + random() % (round % 10 == 0 ? 90 : 6), '\0');
    for (char& c : word) c = static_cast<char>('a' + random() % 3);
    const WordFinder finder(word, ByteFrequencies(text));
    // The padding continues the text: a word must not be found across its end.
    const std::string padded = text + word + std::string(kColumnPadding, 'a');
    const char* const end = padded.data() + text.size();
    ASSERT_EQ(finder.Find(padded.data(), end) - padded.data(),
              finder.FindPlain(padded.data(), end) - padded.data())
        << word << " in " << text;
  }
}

// A block is passed over only when the word is not in it, and a word that is nowhere is looked for almost
// nowhere.
TEST(StationSearch, TheIndexLeavesOutWhatCannotHoldTheWord) {
  std::mt19937 random(4);
  const auto word = [&] {
    std::string letters(1 + random() % 9, 'a');
    for (char& c : letters) c = static_cast<char>('a' + random() % 12);
    return letters;
  };
  std::string text;
  std::vector<std::uint32_t> starts;
  std::vector<std::string> words;  // one of each record, somewhere in it
  for (int record = 0; record < 2500; ++record) {
    starts.push_back(static_cast<std::uint32_t>(text.size()));
    words.push_back(word());
    for (int n = 0; n < 12; ++n)
      text += word() + (n == record % 12 ? words.back() : "") + (n % 3 == 2 ? '\t' : ' ');
  }
  starts.push_back(static_cast<std::uint32_t>(text.size()));
  text.append(kColumnPadding, '\0');
  const SearchIndex index({{text.data(), starts.back()}, starts});
  ASSERT_EQ(index.GroupCount(), 2u);
  const auto blocksWith = [&](std::string_view wanted, std::size_t group) {
    SearchIndex::Blocks blocks = SearchIndex::AllBlocks();
    index.KeepBlocksWith(SearchIndex::SlotsOf(wanted), group, blocks);
    return blocks;
  };
  for (std::size_t record = 0; record < words.size(); ++record) {
    const std::size_t block = record % SearchIndex::kGroupRecords / SearchIndex::kBlockRecords;
    ASSERT_TRUE(blocksWith(words[record], record / SearchIndex::kGroupRecords).Has(block))
        << words[record] << " of record " << record;
  }
  EXPECT_LE(blocksWith("xyzzyxyz", 0).Count(), SearchIndex::kGroupBlocks / 20);
  EXPECT_EQ(blocksWith("xyz", 0).Count(), SearchIndex::kGroupBlocks) << "too short to tell";
}

}  // namespace
}  // namespace sonaro
