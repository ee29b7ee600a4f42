// A 64-bit checksum for files that are rebuilt when damaged. Fast (four independent lanes of 8 bytes each)
// and sure: every step is reversible, so a change within any one aligned group of 8 bytes always changes the
// result; wider damage goes unseen once in 2^64. It is no protection against somebody who forges a file on
// purpose.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

namespace sonaro {

// The bytes' checksum; another `seed` gives an unrelated one. The result depends on the bytes alone on every
// machine whose numbers are stored little-endian.
std::uint64_t Checksum(std::string_view bytes, std::uint64_t seed = 0);

// One reversible mixing step: for a given `state` no two values of `word` give the same result.
constexpr std::uint64_t MixChecksum(std::uint64_t state, std::uint64_t word) {
  return std::rotl(state ^ word, 29) * 0x9E3779B97F4A7C15u;
}

}  // namespace sonaro
