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
// slots more than needed, which does no harm.
SearchIndex::SearchIndex(const SearchColumn& column) : frequencies_(column.text) {
  const std::size_t count = column.starts.size() - 1;
  slots_.resize((count + kGroupRecords - 1) / kGroupRecords * kSlots);
  for (std::size_t first = 0; first < count; first += kBlockRecords) {
    Blocks* const slots = &slots_[first / kGroupRecords * kSlots];
    const std::size_t block = first % kGroupRecords / kBlockRecords;
    const char* const end = column.text.data() + column.starts[std::min(first + kBlockRecords, count)];
    for (const char* at = column.text.data() + column.starts[first]; at < end; ++at)
      slots[SlotAt(at)].Set(block);
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
