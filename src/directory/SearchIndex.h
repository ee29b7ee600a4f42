// What is known of a search column before it is searched: how often each byte occurs, and where a word cannot
// stand. For every eight records, a block, there is a Bloom filter over their 4-grams, the runs of four
// bytes; the filters of a group of blocks lie bit-sliced, a slot's bits for all of them side by side, so that
// a word costs a few reads for two thousand records. 32 bytes a record, made in memory when a column is first
// searched.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
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
  SearchColumn column_;
  std::size_t record_;
};

class SearchIndex {
 public:
  static constexpr std::size_t kBlockRecords = 8;
  static constexpr std::size_t kGroupBlocks = 256;
  static constexpr std::size_t kGroupRecords = kGroupBlocks * kBlockRecords;

  explicit SearchIndex(const SearchColumn& column);

  const ByteFrequencies& Frequencies() const { return frequencies_; }
  std::size_t GroupCount() const { return slots_.size() / kSlots; }

  // The slots that a word sets wherever it stands; none for a word of fewer than four bytes.
  static std::vector<std::uint16_t> SlotsOf(std::string_view word);
  // A bit for each block of a group, the first one in the lowest bit of the first number.
  struct alignas(kGroupBlocks / 8) Blocks {
    std::array<std::uint64_t, kGroupBlocks / 64> bits{};
    bool Has(std::size_t block) const { return (bits[block / 64] >> (block % 64) & 1) != 0; }
    bool Empty() const {
      return std::all_of(bits.begin(), bits.end(), [](std::uint64_t number) { return number == 0; });
    }
    std::size_t Count() const {
      std::size_t count = 0;
      for (const std::uint64_t number : bits) count += static_cast<std::size_t>(std::popcount(number));
      return count;
    }
    void KeepOnly(const Blocks& others) {
      for (std::size_t i = 0; i < bits.size(); ++i) bits[i] &= others.bits[i];
    }
  };
  static Blocks AllBlocks();
  // Keeps of a group's blocks those that can hold a word with these slots: all that hold it and a few others,
  // perhaps also such behind the last record.
  void KeepBlocksWith(std::span<const std::uint16_t> slots, std::size_t group, Blocks& blocks) const;

 private:
  static constexpr unsigned kSlotBits = 11;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;

  static std::uint16_t SlotAt(const char* fourBytes);

  ByteFrequencies frequencies_;
  std::vector<Blocks> slots_;  // kSlots for every group
};

}  // namespace sonaro
