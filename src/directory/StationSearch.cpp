#include "directory/StationSearch.h"

#include <algorithm>
#include <bitset>

#include "base/Text.h"
#include "directory/WordFinder.h"
#include "directory/WordSetFinder.h"

namespace sonaro {
namespace {

// Walks over the records of a column from place to place, forwards only.
class RecordCursor {
 public:
  RecordCursor(const SearchColumn& column, std::size_t record) : column_(column), record_(record) {}

  // Moves to the record that holds `place`, at or behind the current one.
  void MoveTo(const char* place) {
    const auto offset = static_cast<std::uint32_t>(place - column_.text.data());
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

// The rarest word leads through the column; the others are looked for only in the records where it stands.
std::vector<std::uint32_t> FindAll(const SearchColumn& column, const std::vector<std::string>& words) {
  const ByteFrequencies frequencies(column.text);
  std::vector<WordFinder> finders;
  for (const std::string& word : words) finders.emplace_back(word, frequencies);
  std::sort(finders.begin(), finders.end(),
            [](const WordFinder& a, const WordFinder& b) { return a.Commonness() < b.Commonness(); });
  std::vector<std::uint32_t> records;
  RecordCursor cursor(column, 0);
  const char* const end = column.text.data() + column.text.size();
  for (const char* at = column.text.data(); (at = finders.front().Find(at, end)) != end; at = cursor.End()) {
    cursor.MoveTo(at);
    const auto stands = [&](const WordFinder& finder) {
      return finder.Find(cursor.Begin(), cursor.End()) != cursor.End();
    };
    if (std::all_of(finders.begin() + 1, finders.end(), stands)) records.push_back(cursor.Record());
  }
  return records;
}

constexpr std::size_t kRecordsAtOnce = 1024;
using Matches = std::bitset<kRecordsAtOnce>;

// Marks the records from `first` to before `last` in which the finder finds something.
template <typename Finder>
void Mark(const Finder& finder, const SearchColumn& column, std::size_t first, std::size_t last,
          Matches& matches) {
  const char* const end = column.text.data() + column.starts[last];
  RecordCursor cursor(column, first);
  for (const char* at = cursor.Begin(); (at = finder.Find(at, end)) != end; at = cursor.End()) {
    cursor.MoveTo(at);
    matches.set(cursor.Record() - first);
  }
}

// Word after word over a part of the column at a time, which stays in the cache meanwhile; many words
// together.
std::vector<std::uint32_t> FindAny(const SearchColumn& column, const std::vector<std::string>& words) {
  constexpr std::size_t kManyWords = 24;
  const ByteFrequencies frequencies(column.text);
  std::vector<WordFinder> finders;
  WordSetFinder together;
  for (const std::string& word : words) {
    if (words.size() >= kManyWords && word.size() >= WordSetFinder::kShortestWord) {
      together.Add(word, frequencies);
    } else {
      finders.emplace_back(word, frequencies);
    }
  }
  const std::size_t count = column.starts.size() - 1;
  std::vector<std::uint32_t> records;
  for (std::size_t first = 0; first < count; first += kRecordsAtOnce) {
    const std::size_t last = std::min(first + kRecordsAtOnce, count);
    Matches matches;
    for (const WordFinder& finder : finders) Mark(finder, column, first, last, matches);
    if (together.Count() != 0) Mark(together, column, first, last, matches);
    for (std::size_t i = 0; i < last - first; ++i) {
      if (matches[i]) records.push_back(static_cast<std::uint32_t>(first + i));
    }
  }
  return records;
}

}  // namespace

std::vector<std::string> SearchWords(std::string_view text) {
  std::vector<std::string> words;
  text = TrimBlanks(text);
  while (!text.empty() && words.size() < kMostSearchWords) {
    const std::string_view word = TakeUntil(text, ' ');
    if (!word.empty()) words.emplace_back(word);
  }
  return words;
}

std::vector<std::uint32_t> FindRecords(const SearchColumn& column, const std::vector<std::string>& words,
                                       bool allWords) {
  if (column.text.empty()) return {};
  const std::vector<std::string> folded = FoldedWords(words);
  if (folded.empty() || (allWords && folded.size() < words.size())) return {};
  return allWords ? FindAll(column, folded) : FindAny(column, folded);
}

}  // namespace sonaro
