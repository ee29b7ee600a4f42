// Instead of comparing the word at every place, two of its bytes are compared at sixteen places at a time.
// The two are the rarest in the text that is searched, so that few places are left for a full comparison: of
// "jazz" it is "j" and a "z" that are looked for, not the "a". A word of one byte uses it twice.
#include "directory/WordFinder.h"

#include <bit>
#include <cstring>

#include "directory/ByteScan.h"

namespace sonaro {
namespace {

// Of folded text. Bytes above ASCII are taken for parts of letters.
bool IsInWord(char c) {
  return static_cast<unsigned char>(c) >= 0x80 || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

}  // namespace

ByteFrequencies::ByteFrequencies(std::string_view column) {
  // A sample spread over the column; exact counts would cost a pass over it and change no choice. Counts
  // start at 1 so that a product of two is never 0.
  constexpr std::size_t kSamples = 4096;
  counts_.fill(1);
  const std::size_t step = column.size() / kSamples + 1;
  for (std::size_t at = 0; at < column.size(); at += step) ++counts_[static_cast<unsigned char>(column[at])];
}

WordFinder::WordFinder(std::string word, const ByteFrequencies& frequencies) : word_(std::move(word)) {
  const auto count = [&](std::size_t at) { return frequencies.Of(word_[at]); };
  for (std::size_t i = 1; i < word_.size(); ++i) {
    if (count(i) < count(first_)) first_ = i;
  }
  second_ = first_ == 0 ? word_.size() - 1 : 0;
  for (std::size_t i = 0; i < word_.size(); ++i) {
    if (i != first_ && count(i) < count(second_)) second_ = i;
  }
  commonness_ =
      first_ == second_ ? std::uint64_t{count(first_)} << 16 : std::uint64_t{count(first_)} * count(second_);
}

bool WordFinder::MatchesAt(const char* place) const {
  return std::memcmp(place, word_.data(), word_.size()) == 0;
}

const char* WordFinder::FindPlain(const char* from, const char* end) const {
  const std::string_view text(from, static_cast<std::size_t>(end - from));
  const std::size_t at = text.find(word_);
  return at == std::string_view::npos ? end : from + at;
}

#if SONARO_SSE2

template <typename Accept>
const char* WordFinder::FindWhere(const char* from, const char* end, Accept accept) const {
  if (end - from < static_cast<std::ptrdiff_t>(word_.size())) return end;
  const char* const stop = end - word_.size() + 1;  // behind the last place where the word can stand
  const __m128i firstByte = _mm_set1_epi8(word_[first_]);
  const __m128i secondByte = _mm_set1_epi8(word_[second_]);
  const auto load = [](const char* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); };
  const auto candidates = [&](const char* at) {
    return _mm_and_si128(_mm_cmpeq_epi8(load(at + first_), firstByte),
                         _mm_cmpeq_epi8(load(at + second_), secondByte));
  };
  const auto bits = [](__m128i bytes) {
    return std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(bytes))};
  };

  // Four vectors for each test: mostly there is no candidate in any, and the test is what costs. The last
  // ones reach beyond `end`, for which the column is padded; what is found behind `stop` does not count.
  for (const char* at = from; at < stop; at += 64) {
    const __m128i c[] = {candidates(at), candidates(at + 16), candidates(at + 32), candidates(at + 48)};
    if (bits(_mm_or_si128(_mm_or_si128(c[0], c[1]), _mm_or_si128(c[2], c[3]))) == 0) continue;
    std::uint64_t places = bits(c[0]) | bits(c[1]) << 16 | bits(c[2]) << 32 | bits(c[3]) << 48;
    for (; places != 0; places &= places - 1) {
      const char* const place = at + std::countr_zero(places);
      if (place >= stop) return end;
      if (MatchesAt(place) && accept(place)) return place;
    }
  }
  return end;
}

#else

template <typename Accept>
const char* WordFinder::FindWhere(const char* from, const char* end, Accept accept) const {
  const char* at = FindPlain(from, end);
  while (at != end && !accept(at)) at = FindPlain(at + 1, end);
  return at;
}

#endif

const char* WordFinder::Find(const char* from, const char* end) const {
  return FindWhere(from, end, [](const char*) { return true; });
}

const char* WordFinder::FindBeginning(const char* from, const char* end) const {
  return FindWhere(from, end, [](const char* place) { return !IsInWord(place[-1]); });
}

}  // namespace sonaro
