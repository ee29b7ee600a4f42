// Finds one folded word in a search column, sixteen bytes at a time: a place is looked at closely only when
// two bytes of the word, those that are rare in the column, stand where they must. Lives for one search.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

// How often each byte occurs in a column, guessed from a few thousand places.
class ByteFrequencies {
 public:
  explicit ByteFrequencies(std::string_view column);
  std::uint32_t Of(char byte) const { return counts_[static_cast<unsigned char>(byte)]; }

 private:
  std::array<std::uint32_t, 256> counts_;
};

class WordFinder {
 public:
  // `word` is not empty.
  WordFinder(std::string word, const ByteFrequencies& frequencies);

  // The first place at or after `from` where the whole word stands before `end`, or `end`. Up to
  // kColumnPadding bytes behind `end` must be readable.
  const char* Find(const char* from, const char* end) const;
  // The same without the machine's wide registers.
  const char* FindPlain(const char* from, const char* end) const;
  // The first place that is the beginning of a word: no letter or digit stands before it. The byte before
  // `from` must be readable.
  const char* FindBeginning(const char* from, const char* end) const;

  // A guess at how many places need the close look; for comparing words.
  std::uint64_t EstimatedHits() const { return commonness_; }

 private:
  bool MatchesAt(const char* place) const;
  template <typename Accept>
  const char* FindWhere(const char* from, const char* end, Accept accept) const;

  std::string word_;
  std::size_t first_ = 0;  // positions in the word of the two bytes
  std::size_t second_ = 0;
  std::uint64_t commonness_ = 0;
};

}  // namespace sonaro
