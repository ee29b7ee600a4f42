// A 64-bit checksum for files that are rebuilt when damaged. Fast (four independent lanes of 8 bytes each)
// and sure: every step is reversible, so a change within any one aligned group of 8 bytes always changes the
// result; wider damage goes unseen once in 2^64. It is no protection against somebody who forges a file on
// purpose.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sonaro {

// The bytes' checksum; another `seed` gives an unrelated one. The result depends on the bytes alone on every
// machine whose numbers are stored little-endian.
std::uint64_t Checksum(std::string_view bytes, std::uint64_t seed = 0);

// A stream's checksum is chained over blocks of this size, so that it can be made while the stream goes by.
inline constexpr std::size_t kChecksumBlock = 64 * 1024;

// The checksum of a stream, chained over its blocks. A stream can be given in pieces,
// each with the checksum of what came before; all but the last must be whole blocks.
std::uint64_t ChainedChecksum(std::string_view stream, std::uint64_t before = 0);

// One reversible mixing step: for a given `state` no two values of `word` give the same result.
constexpr std::uint64_t MixChecksum(std::uint64_t state, std::uint64_t word) {
  return std::rotl(state ^ word, 29) * 0x9E3779B97F4A7C15u;
}

}  // namespace sonaro
