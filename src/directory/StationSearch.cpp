// A search runs in three steps, each of which leaves less for the next. The index tells for a group of blocks
// of records at a time which of them can hold the words (SearchIndex). Runs of such blocks are scanned
// for a word (WordFinder), which yields places in the column. A cursor turns places into records; it only
// ever moves forwards, so that all hits together cost one walk.
#include "directory/StationSearch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <bitset>

#include "base/Text.h"
#include "directory/ByteScan.h"
#include "directory/VmxFormat.h"
#include "directory/WordFinder.h"

namespace sonaro {
namespace {

// The words as they stand in a column. Tabs divide it: no field that is searched holds a word with one.
std::vector<std::string> FoldedWords(const std::vector<std::string>& words) {
  std::vector<std::string> folded;
  for (const std::string& word : words) {
    if (word.find(kFieldSeparator) == std::string::npos) folded.push_back(FoldCase(word));
  }
  return folded;
}

// A word on its way through a column.
struct Wanted {
  Wanted(const std::string& word, const SearchIndex& index)
      : finder(word, index.Frequencies()), slots(SearchIndex::SlotsOf(word)) {}
  WordFinder finder;
  std::vector<std::uint16_t> slots;
};

std::vector<Wanted> WantedWords(std::span<const std::string> words, const SearchIndex& index) {
  std::vector<Wanted> wanted;
  for (const std::string& word : words) wanted.emplace_back(word, index);
  return wanted;
}

// Runs of records that can hold a word, each from `first` to before `last`.
struct Run {
  std::size_t first;
  std::size_t last;
};
struct Runs {
  std::array<Run, SearchIndex::kGroupBlocks / 2> runs;
  std::size_t count = 0;
};

// The first block from `block` on that is in `blocks`, or is not when `flip` has all bits.
std::size_t NextBlock(const SearchIndex::Blocks& blocks, std::size_t block, std::uint64_t flip) {
  std::size_t word = block / 64;
  if (word == blocks.bits.size()) return block;
  std::uint64_t bits = (blocks.bits[word] ^ flip) & ~std::uint64_t{0} << (block % 64);
  while (bits == 0 && ++word != blocks.bits.size()) bits = blocks.bits[word] ^ flip;
  return word * 64 + (bits == 0 ? 0 : static_cast<std::size_t>(std::countr_zero(bits)));
}

Runs RunsOf(const SearchIndex::Blocks& blocks, std::size_t group, std::size_t recordCount) {
  Runs runs;
  const std::size_t start = group * SearchIndex::kGroupRecords;
  for (std::size_t to = 0;;) {
    const std::size_t from = NextBlock(blocks, to, 0);
    const std::size_t first = start + from * SearchIndex::kBlockRecords;
    if (from == SearchIndex::kGroupBlocks || first >= recordCount) return runs;
    to = NextBlock(blocks, from, ~std::uint64_t{0});
    runs.runs[runs.count++] = {first, std::min(start + to * SearchIndex::kBlockRecords, recordCount)};
  }
}

// Calls `visit(first, last)` for each run of a group's blocks, or for the whole group at once when there are
// many: reading on is cheaper than jumping over a few records. What lies between them is jumped over, so the
// machine cannot guess what is read next and is told. Ends with the first false, which it returns.
template <typename Visit>
bool ForEachRun(const SearchColumn& column, const SearchIndex::Blocks& blocks, std::size_t group,
                Visit visit) {
  constexpr std::size_t kAhead = 3;
  constexpr std::size_t kMany = SearchIndex::kGroupBlocks / 8;
  if (blocks.Count() > kMany) {
    const std::size_t first = group * SearchIndex::kGroupRecords;
    return visit(first, std::min(first + SearchIndex::kGroupRecords, column.starts.size() - 1));
  }
  const Runs runs = RunsOf(blocks, group, column.starts.size() - 1);
  const auto bring = [&](std::size_t run) {
    if (run < runs.count) Prefetch(column.text.data() + column.starts[runs.runs[run].first]);
  };
  for (std::size_t i = 0; i < kAhead; ++i) bring(i);
  for (std::size_t i = 0; i < runs.count; ++i) {
    bring(i + kAhead);
    if (!visit(runs.runs[i].first, runs.runs[i].last)) return false;
  }
  return true;
}

// Calls `visit(cursor)` for each record from `first` to before `last` in which the word stands. Ends with the
// first false, which it returns.
template <typename Visit>
bool ForEachRecord(const WordFinder& finder, const SearchColumn& column, std::size_t first, std::size_t last,
                   Visit visit) {
  const char* const end = column.text.data() + column.starts[last];
  RecordCursor cursor(column, first);
  // After a hit the search goes on at the end of its record: a record counts once, however often it has the
  // word.
  for (const char* at = cursor.Begin(); (at = finder.Find(at, end)) != end; at = cursor.End()) {
    cursor.MoveTo(at);
    if (!visit(cursor)) return false;
  }
  return true;
}

// The rarest word leads through the column; the others are looked for only in the records where it stands.
template <typename Take>
void ForEachWithAll(const SearchColumn& column, const SearchIndex& index, std::span<const std::string> words,
                    Take take) {
  std::vector<Wanted> wanted = WantedWords(words, index);
  std::sort(wanted.begin(), wanted.end(), [](const Wanted& a, const Wanted& b) {
    return a.finder.EstimatedHits() < b.finder.EstimatedHits();
  });
  const auto visit = [&](const RecordCursor& cursor) {
    const auto stands = [&](const Wanted& word) {
      return word.finder.Find(cursor.Begin(), cursor.End()) != cursor.End();
    };
    return !std::all_of(wanted.begin() + 1, wanted.end(), stands) || take(cursor.Record());
  };
  for (std::size_t group = 0; group < index.GroupCount(); ++group) {
    SearchIndex::Blocks blocks = SearchIndex::AllBlocks();
    for (const Wanted& word : wanted) index.KeepBlocksWith(word.slots, group, blocks);
    const bool goOn = ForEachRun(column, blocks, group, [&](std::size_t first, std::size_t last) {
      return ForEachRecord(wanted.front().finder, column, first, last, visit);
    });
    if (!goOn) return;
  }
}

std::vector<std::uint32_t> FindAll(const SearchColumn& column, const SearchIndex& index,
                                   std::span<const std::string> words) {
  std::vector<std::uint32_t> records;
  ForEachWithAll(column, index, words, [&](std::uint32_t record) {
    records.push_back(record);
    return true;
  });
  return records;
}

// Word after word over a group at a time, which stays in the cache meanwhile.
std::vector<std::uint32_t> FindAny(const SearchColumn& column, const SearchIndex& index,
                                   std::span<const std::string> words) {
  const std::vector<Wanted> wanted = WantedWords(words, index);
  std::vector<std::uint32_t> records;
  for (std::size_t group = 0; group < index.GroupCount(); ++group) {
    // Records in which several words stand are marked several times and reported once, in ascending order.
    std::bitset<SearchIndex::kGroupRecords> matches;
    const std::size_t start = group * SearchIndex::kGroupRecords;
    const auto mark = [&](const RecordCursor& cursor) {
      matches.set(cursor.Record() - start);
      return true;
    };
    for (const Wanted& word : wanted) {
      SearchIndex::Blocks blocks = SearchIndex::AllBlocks();
      index.KeepBlocksWith(word.slots, group, blocks);
      ForEachRun(column, blocks, group, [&](std::size_t first, std::size_t last) {
        return ForEachRecord(word.finder, column, first, last, mark);
      });
    }
    for (std::size_t i = 0; i < matches.size(); ++i) {
      if (matches[i]) records.push_back(static_cast<std::uint32_t>(start + i));
    }
  }
  return records;
}

}  // namespace

std::vector<std::string> SearchWords(std::string_view text) {
  std::vector<std::string> words;
  text = TrimBlanks(text);
  while (!text.empty() && words.size() < kMaxSearchWords) {
    const std::string_view word = NextField(text, ' ');
    if (!word.empty()) words.emplace_back(word);
  }
  return words;
}

std::vector<std::uint32_t> FindRecords(const SearchColumn& column, const SearchIndex& index,
                                       const std::vector<std::string>& words, bool allWords) {
  if (column.text.empty()) return {};
  const std::vector<std::string> folded = FoldedWords(words);
  // A word that cannot occur was dropped. With all words wanted nothing can match; with any of them the rest
  // counts.
  if (folded.empty() || (allWords && folded.size() < words.size())) return {};
  return allWords ? FindAll(column, index, folded) : FindAny(column, index, folded);
}

void ForEachMatch(const SearchColumn& column, const SearchIndex& index, std::span<const std::string> folded,
                  const std::function<bool(std::uint32_t record)>& take) {
  if (!column.text.empty()) ForEachWithAll(column, index, folded, take);
}

}  // namespace sonaro
