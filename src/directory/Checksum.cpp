#include "directory/Checksum.h"

#include <cstring>

namespace sonaro {
namespace {

constexpr std::size_t kLanes = 4;
using Block = std::uint64_t[kLanes];

void MixBlock(Block& lanes, const char* bytes) {
  Block words;
  std::memcpy(words, bytes, sizeof words);
  for (std::size_t i = 0; i < kLanes; ++i) lanes[i] = MixChecksum(lanes[i], words[i]);
}

}  // namespace

std::uint64_t Checksum(std::string_view bytes, std::uint64_t seed) {
  Block lanes = {seed ^ 0x243F6A8885A308D3u, seed ^ 0x13198A2E03707344u, seed ^ 0xA4093822299F31D0u,
                 seed ^ 0x082EFA98EC4E6C89u};
  const std::size_t whole = bytes.size() / sizeof(Block) * sizeof(Block);
  for (std::size_t at = 0; at < whole; at += sizeof(Block)) MixBlock(lanes, bytes.data() + at);
  if (whole != bytes.size()) {
    char rest[sizeof(Block)] = {};
    std::memcpy(rest, bytes.data() + whole, bytes.size() - whole);
    MixBlock(lanes, rest);
  }
  std::uint64_t sum = bytes.size();  // tells a text from the same text with zeros behind it
  for (const std::uint64_t lane : lanes) sum = MixChecksum(sum, lane);
  sum ^= sum >> 32;  // the last multiplication left the low bits poorly mixed
  return MixChecksum(sum, 0);
}

}  // namespace sonaro
