// Four lanes take the words in turn, so that the processor can work on four multiplications at a time instead
// of waiting for each. The lanes start from different constants (digits of pi) and are mixed into one at the
// end; a change in one word changes one lane for certain, and then the sum.
#include "directory/Checksum.h"

#include <cstring>

namespace sonaro {
namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);

std::uint64_t WordAt(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, kWord);
  return word;
}

// The last `length` bytes, less than a word of them, before `end`; `total` bytes stand there in all.
// Reading the whole word that ends at `end` and shifting is one load. Only a text shorter than a word would
// be read before its start that way.
std::uint64_t LastBytes(const char* end, std::size_t length, std::size_t total) {
  if (length == 0) return 0;
  if (total >= kWord) return WordAt(end - kWord) >> (8 * (kWord - length));
  std::uint64_t word = 0;
  std::memcpy(&word, end - length, length);
  return word;
}

}  // namespace

std::uint64_t Checksum(std::string_view bytes, std::uint64_t seed) {
  std::uint64_t a = seed ^ 0x243F6A8885A308D3u;
  std::uint64_t b = seed ^ 0x13198A2E03707344u;
  std::uint64_t c = seed ^ 0xA4093822299F31D0u;
  std::uint64_t d = seed ^ 0x082EFA98EC4E6C89u;
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  for (; left >= 4 * kWord; left -= 4 * kWord, at += 4 * kWord) {
    a = MixChecksum(a, WordAt(at));
    b = MixChecksum(b, WordAt(at + kWord));
    c = MixChecksum(c, WordAt(at + 2 * kWord));
    d = MixChecksum(d, WordAt(at + 3 * kWord));
  }
  if (left >= kWord) a = MixChecksum(a, WordAt(at));
  if (left >= 2 * kWord) b = MixChecksum(b, WordAt(at + kWord));
  if (left >= 3 * kWord) c = MixChecksum(c, WordAt(at + 2 * kWord));
  d = MixChecksum(d, LastBytes(at + left, left % kWord, bytes.size()));

  std::uint64_t sum = bytes.size();  // tells a text from the same text with zeros behind it
  for (const std::uint64_t lane : {a, b, c, d}) sum = MixChecksum(sum, lane);
  sum ^= sum >> 32;  // the last multiplication left the low bits poorly mixed
  return MixChecksum(sum, 0);
}

std::uint64_t ChainedChecksum(std::string_view stream, std::uint64_t before) {
  std::uint64_t check = before;
  for (; !stream.empty(); stream.remove_prefix(std::min(stream.size(), kChecksumBlock))) {
    check = Checksum(stream.substr(0, kChecksumBlock), check);
  }
  return check;
}

}  // namespace sonaro
