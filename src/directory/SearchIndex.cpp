#include "directory/SearchIndex.h"

#include <algorithm>
#include <cstring>

namespace sonaro {
namespace {

// Bytes. Shorter runs occur nearly everywhere and rule little out; longer ones leave short words without any.
constexpr std::size_t kGram = 4;
constexpr std::size_t kMaxGrams = 8;  // of a word; they leave so few blocks that more would not pay

}  // namespace

// Multiplicative hashing: the upper bits of the product depend on all four bytes.
std::uint16_t SearchIndex::SlotAt(const char* fourBytes) {
  std::uint32_t gram;
  std::memcpy(&gram, fourBytes, sizeof gram);
  return static_cast<std::uint16_t>((gram * 0x9E3779B1u) >> (32 - kSlotBits));
}

// The grams that begin in a block's last three bytes reach into the next block or the padding: they set a few
// slots more than needed, which does no harm. The slots lie all over: 64 blocks at a time are written to
// numbers of their own, which stay in the nearest cache, and then put in their places.
SearchIndex::SearchIndex(const SearchColumn& column) : frequencies_(column.text) {
  const std::size_t count = column.starts.size() - 1;
  slots_.resize((count + kGroupRecords - 1) / kGroupRecords * kSlots);
  std::vector<std::uint64_t> blocksOf(kSlots);
  constexpr std::size_t kPartRecords = 64 * kBlockRecords;
  for (std::size_t part = 0; part < count; part += kPartRecords) {
    blocksOf.assign(kSlots, 0);
    for (std::size_t block = 0; block < 64; ++block) {
      const std::size_t first = std::min(part + block * kBlockRecords, count);
      const char* const end = column.text.data() + column.starts[std::min(first + kBlockRecords, count)];
      for (const char* at = column.text.data() + column.starts[first]; at < end; ++at)
        blocksOf[SlotAt(at)] |= std::uint64_t{1} << block;
    }
    Blocks* const slots = &slots_[part / kGroupRecords * kSlots];
    for (std::size_t slot = 0; slot < kSlots; ++slot)
      slots[slot].bits[part % kGroupRecords / kPartRecords] = blocksOf[slot];
  }
}

std::vector<std::uint16_t> SearchIndex::SlotsOf(std::string_view word) {
  std::vector<std::uint16_t> slots;
  for (std::size_t at = 0; at + kGram <= word.size() && slots.size() < kMaxGrams; ++at)
    slots.push_back(SlotAt(word.data() + at));
  return slots;
}

SearchIndex::Blocks SearchIndex::AllBlocks() {
  Blocks blocks;
  blocks.bits.fill(~std::uint64_t{0});
  return blocks;
}

void SearchIndex::KeepBlocksWith(std::span<const std::uint16_t> slots, std::size_t group,
                                 Blocks& blocks) const {
  for (const std::uint16_t slot : slots) {
    blocks.KeepOnly(slots_[group * kSlots + slot]);
    if (blocks.Empty()) return;
  }
}

}  // namespace sonaro
