#include "directory/WordSetFinder.h"

#include <cstring>
#include <utility>

namespace sonaro {

// Reads a fourth byte as well, which is there: in a word it is the final zero.
std::size_t WordSetFinder::PlaceInTable(const char* threeBytes) {
  std::uint32_t value;
  std::memcpy(&value, threeBytes, sizeof value);
  return ((value << 8) * 0x9E3779B1u) >> (32 - kTableBits);
}

void WordSetFinder::Add(std::string word, const ByteFrequencies& frequencies) {
  const auto commonness = [&](std::size_t at) {
    return std::uint64_t{frequencies.Of(word[at])} * frequencies.Of(word[at + 1]) *
           frequencies.Of(word[at + 2]);
  };
  std::size_t rare = 0;
  for (std::size_t at = 1; at + kShortestWord <= word.size(); ++at) {
    if (commonness(at) < commonness(rare)) rare = at;
  }
  std::uint8_t& first = table_[PlaceInTable(word.c_str() + rare)];
  words_.push_back({std::move(word), rare, first});
  first = static_cast<std::uint8_t>(words_.size());
}

const char* WordSetFinder::Find(const char* from, const char* end) const {
  for (const char* at = from; end - at >= static_cast<std::ptrdiff_t>(kShortestWord); ++at) {
    for (std::uint8_t number = table_[PlaceInTable(at)]; number != 0; number = words_[number - 1u].next) {
      const Word& word = words_[number - 1u];
      if (at - from < static_cast<std::ptrdiff_t>(word.rare)) continue;
      const char* const place = at - word.rare;
      const auto room = static_cast<std::size_t>(end - place);
      if (room >= word.text.size() && std::memcmp(place, word.text.data(), word.text.size()) == 0)
        return place;
    }
  }
  return end;
}

}  // namespace sonaro
