// A search runs in three steps, each of which leaves less for the next. The index tells for 64 blocks of
// sixteen records at a time which of them can hold the words (SearchIndex). Runs of such blocks are scanned
// for a word (WordFinder), which yields places in the column. A cursor turns places into records; it only
// ever moves forwards, so that all hits together cost one walk.
#include "directory/StationSearch.h"

#include <algorithm>
#include <bit>
#include <bitset>

#include "base/Text.h"
#include "directory/VmxFormat.h"
#include "directory/WordFinder.h"

namespace sonaro {
namespace {

// Walks over the records of a column from place to place, forwards only.
class RecordCursor {
 public:
  RecordCursor(const SearchColumn& column, std::size_t record) : column_(column), record_(record) {}

  // Moves to the record that holds `place`, at or behind the current one.
  void MoveTo(const char* place) {
    const auto offset = static_cast<std::uint32_t>(place - column_.text.data());
    // Steps that double, then a binary search within the last one: cheap when the next hit is near, which is
    // usual, and logarithmic when it is far.
    std::size_t step = 1;
    while (record_ + step < column_.starts.size() && column_.starts[record_ + step] <= offset) {
      record_ += step;
      step *= 2;
    }
    const auto from = column_.starts.begin() + static_cast<std::ptrdiff_t>(record_);
    const auto to =
        column_.starts.begin() + static_cast<std::ptrdiff_t>(std::min(record_ + step, column_.starts.size()));
    record_ += static_cast<std::size_t>(std::upper_bound(from, to, offset) - from) - 1;
  }
  std::uint32_t Record() const { return static_cast<std::uint32_t>(record_); }
  const char* Begin() const { return column_.text.data() + column_.starts[record_]; }
  const char* End() const { return column_.text.data() + column_.starts[record_ + 1]; }

 private:
  const SearchColumn& column_;
  std::size_t record_;
};

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

std::vector<Wanted> WantedWords(const std::vector<std::string>& words, const SearchIndex& index) {
  std::vector<Wanted> wanted;
  for (const std::string& word : words) wanted.emplace_back(word, index);
  return wanted;
}

// Calls `visit(first, last)` for the records, from `first` to before `last`, of each run of blocks of a
// group. One run over all of them is faster than many short ones.
template <typename Visit>
void ForEachRun(std::uint64_t blocks, std::size_t group, std::size_t recordCount, Visit visit) {
  const std::size_t start = group * SearchIndex::kGroupRecords;
  // More than half of the blocks: scanning the others too costs less than starting anew so often.
  if (std::popcount(blocks) > 32) blocks = ~std::uint64_t{0};
  while (blocks != 0) {
    const int from = std::countr_zero(blocks);
    const int to = from + std::countr_one(blocks >> from);
    const std::size_t first = start + static_cast<std::size_t>(from) * SearchIndex::kBlockRecords;
    const std::size_t last = start + static_cast<std::size_t>(to) * SearchIndex::kBlockRecords;
    if (first >= recordCount) return;
    visit(first, std::min(last, recordCount));
    // A shift by 64 is undefined.
    blocks = to == 64 ? 0 : blocks & ~std::uint64_t{0} << to;
  }
}

// Calls `visit(cursor)` for each record from `first` to before `last` in which the word stands.
template <typename Visit>
void ForEachRecord(const WordFinder& finder, const SearchColumn& column, std::size_t first, std::size_t last,
                   Visit visit) {
  const char* const end = column.text.data() + column.starts[last];
  RecordCursor cursor(column, first);
  // After a hit the search goes on at the end of its record: a record counts once, however often it has the
  // word.
  for (const char* at = cursor.Begin(); (at = finder.Find(at, end)) != end; at = cursor.End()) {
    cursor.MoveTo(at);
    visit(cursor);
  }
}

// The rarest word leads through the column; the others are looked for only in the records where it stands.
std::vector<std::uint32_t> FindAll(const SearchColumn& column, const SearchIndex& index,
                                   const std::vector<std::string>& words) {
  std::vector<Wanted> wanted = WantedWords(words, index);
  std::sort(wanted.begin(), wanted.end(), [](const Wanted& a, const Wanted& b) {
    return a.finder.EstimatedHits() < b.finder.EstimatedHits();
  });
  std::vector<std::uint32_t> records;
  const auto take = [&](const RecordCursor& cursor) {
    const auto stands = [&](const Wanted& word) {
      return word.finder.Find(cursor.Begin(), cursor.End()) != cursor.End();
    };
    if (std::all_of(wanted.begin() + 1, wanted.end(), stands)) records.push_back(cursor.Record());
  };
  for (std::size_t group = 0; group < index.GroupCount(); ++group) {
    std::uint64_t blocks = ~std::uint64_t{0};
    for (const Wanted& word : wanted) blocks &= index.BlocksWith(word.slots, group);
    ForEachRun(blocks, group, column.starts.size() - 1, [&](std::size_t first, std::size_t last) {
      ForEachRecord(wanted.front().finder, column, first, last, take);
    });
  }
  return records;
}

// Word after word over a group at a time, which stays in the cache meanwhile.
std::vector<std::uint32_t> FindAny(const SearchColumn& column, const SearchIndex& index,
                                   const std::vector<std::string>& words) {
  const std::vector<Wanted> wanted = WantedWords(words, index);
  std::vector<std::uint32_t> records;
  for (std::size_t group = 0; group < index.GroupCount(); ++group) {
    // Records in which several words stand are marked several times and reported once, in ascending order.
    std::bitset<SearchIndex::kGroupRecords> matches;
    const std::size_t start = group * SearchIndex::kGroupRecords;
    const auto mark = [&](const RecordCursor& cursor) { matches.set(cursor.Record() - start); };
    for (const Wanted& word : wanted) {
      ForEachRun(index.BlocksWith(word.slots, group), group, column.starts.size() - 1,
                 [&](std::size_t first, std::size_t last) {
                   ForEachRecord(word.finder, column, first, last, mark);
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

}  // namespace sonaro
