// Finds any of many folded words in a search column in one pass: three bytes of every word, those that are
// rare in the column, are entered in a table that is asked at every place. Pays off from a few dozen words
// on; for fewer, one WordFinder after the other is faster. Lives for one search.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "directory/WordFinder.h"

namespace sonaro {

class WordSetFinder {
 public:
  static constexpr std::size_t kShortestWord = 3;
  static constexpr std::size_t kMostWords = 255;

  // Adds a word of at least kShortestWord bytes, at most kMostWords of them.
  void Add(std::string word, const ByteFrequencies& frequencies);
  std::size_t Count() const { return words_.size(); }

  // A place at or after `from` where one of the words stands before `end`, or `end`. Before that place stands
  // no word that ends before it. Up to kColumnPadding bytes behind `end` must be readable.
  const char* Find(const char* from, const char* end) const;

 private:
  struct Word {
    std::string text;
    std::size_t rare;   // position of its three bytes
    std::uint8_t next;  // the next word in the same place of the table
  };
  static constexpr unsigned kTableBits = 14;

  static std::size_t PlaceInTable(const char* threeBytes);

  std::vector<Word> words_;
  std::array<std::uint8_t, std::size_t{1} << kTableBits> table_{};  // number of a word, from 1; 0: none
};

}  // namespace sonaro
