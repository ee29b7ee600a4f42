// What is known of a search column before it is searched: how often each byte occurs, and where a word cannot
// stand. For every sixteen records there is a Bloom filter over their 4-grams, the runs of four bytes; the
// filters of a group of blocks lie bit-sliced, a slot's bits for all of them in one number, so that a word
// costs a few reads for a thousand records. Made in memory when a column is first searched.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "directory/WordFinder.h"

namespace sonaro {

// The folded searched fields of all records in key order, each field followed by a tab.
struct SearchColumn {
  std::string_view text;                  // kColumnPadding more bytes can be read behind it
  std::span<const std::uint32_t> starts;  // where each record begins, and the end of the last one
};

class SearchIndex {
 public:
  static constexpr std::size_t kBlockRecords = 16;
  static constexpr std::size_t kGroupRecords = 64 * kBlockRecords;

  explicit SearchIndex(const SearchColumn& column);

  const ByteFrequencies& Frequencies() const { return frequencies_; }
  std::size_t GroupCount() const { return slots_.size() / kSlots; }

  // The slots that a word sets wherever it stands; none for a word of fewer than four bytes.
  static std::vector<std::uint16_t> SlotsOf(std::string_view word);
  // The blocks of a group, the first one in the lowest bit, that can hold a word with these slots: all that
  // hold it and a few others, perhaps also such behind the last record.
  std::uint64_t BlocksWith(std::span<const std::uint16_t> slots, std::size_t group) const;

 private:
  static constexpr unsigned kSlotBits = 12;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;

  static std::uint16_t SlotAt(const char* fourBytes);

  ByteFrequencies frequencies_;
  std::vector<std::uint64_t> slots_;  // kSlots for every group
};

}  // namespace sonaro
