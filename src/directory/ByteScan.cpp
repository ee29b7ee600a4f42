// All loops here have the same shape: whole vectors of sixteen bytes, then one last vector that ends where
// the text ends and overlaps the one before, and byte by byte only for texts shorter than a vector. Nothing
// outside the text is read, so a text may end at the end of a page.
#include "directory/ByteScan.h"

#include <bit>
#include <cstdint>

namespace sonaro {
namespace {

// The same folding as FoldAscii below; the two must agree.
char FoldAsciiByte(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

#if SONARO_SSE2
constexpr std::ptrdiff_t kVector = 16;

__m128i Load(const char* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }

std::uint32_t Mask(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

// The comparisons are of signed bytes. Bytes above ASCII are negative, hence below 'A', and stay as they are.
__m128i FoldAscii(__m128i bytes) {
  const __m128i fromA = _mm_cmpgt_epi8(bytes, _mm_set1_epi8('A' - 1));
  const __m128i toZ = _mm_cmpgt_epi8(_mm_set1_epi8('Z' + 1), bytes);
  return _mm_or_si128(bytes, _mm_and_si128(_mm_and_si128(fromA, toZ), _mm_set1_epi8(0x20)));
}
#endif

// Calls `found` with the place of every `wanted` between `at` and `end` in turn, until it returns true.
template <typename Found>
inline void ForEachByte(const char* at, const char* end, char wanted, Found found) {
#if SONARO_SSE2
  const __m128i pattern = _mm_set1_epi8(wanted);
  const auto hitsIn = [&](const char* from) { return Mask(_mm_cmpeq_epi8(Load(from), pattern)); };
  const auto report = [&](const char* from, std::uint64_t hits) {
    for (; hits != 0; hits &= hits - 1) {
      if (found(from + std::countr_zero(hits))) return true;
    }
    return false;
  };
  const char* const start = at;
  // Four vectors at a time: what ends the loop over a mask is guessed wrong once in 64 bytes, not in 16.
  for (; end - at >= 4 * kVector; at += 4 * kVector) {
    std::uint64_t hits = 0;
    for (int i = 0; i < 4; ++i) hits |= std::uint64_t{hitsIn(at + i * kVector)} << (i * kVector);
    if (report(at, hits)) return;
  }
  for (; end - at >= kVector; at += kVector) {
    if (report(at, hitsIn(at))) return;
  }
  if (at != start) {  // the last sixteen bytes, without those that were looked at before
    // The bits of bytes that were looked at before are shifted out, so that no place is reported twice.
    report(at, hitsIn(end - kVector) >> (kVector - (end - at)));
    return;
  }
#endif
  for (; at != end; ++at) {
    if (*at == wanted && found(at)) return;
  }
}

#if SONARO_SSE2
// Goes on by 64 bytes as long as none of them is wanted.
const char* SkipWithout(const char* at, const char* end, char wanted) {
  const __m128i pattern = _mm_set1_epi8(wanted);
  const auto hits = [&](const char* from) { return _mm_cmpeq_epi8(Load(from), pattern); };
  while (end - at >= 4 * kVector &&
         Mask(_mm_or_si128(_mm_or_si128(hits(at), hits(at + kVector)),
                           _mm_or_si128(hits(at + 2 * kVector), hits(at + 3 * kVector)))) == 0) {
    at += 4 * kVector;
  }
  return at;
}
#else
const char* SkipWithout(const char* at, const char*, char) { return at; }
#endif

}  // namespace

// Lines are long compared with a vector, so the bytes before the match are first skipped in the cheapest way.
std::size_t FindByte(std::string_view text, char wanted) {
  const char* const end = text.data() + text.size();
  const char* place = end;
  ForEachByte(SkipWithout(text.data(), end, wanted), end, wanted, [&](const char* at) {
    place = at;
    return true;
  });
  return static_cast<std::size_t>(place - text.data());
}

std::size_t FindTab(std::string_view text, std::size_t count) {
  const char* const end = text.data() + text.size();
  const char* place = end;
  ForEachByte(text.data(), end, '\t', [&](const char* at) {
    if (--count == 0) place = at;
    return count == 0;
  });
  return static_cast<std::size_t>(place - text.data());
}

void SplitAtTabs(std::string_view text, std::span<std::string_view> pieces) {
  if (pieces.empty()) return;
  std::string_view* piece = pieces.data();
  std::string_view* const last = piece + pieces.size() - 1;
  const char* start = text.data();
  const char* const end = start + text.size();
  if (piece != last) {
    ForEachByte(start, end, '\t', [&](const char* tab) {
      *piece++ = {start, static_cast<std::size_t>(tab - start)};
      start = tab + 1;
      return piece == last;
    });
  }
  *piece = {start, static_cast<std::size_t>(end - start)};
  while (piece != last) *++piece = {};
}

bool IsAscii(std::string_view text) {
  std::size_t at = 0;
#if SONARO_SSE2
  for (; text.size() - at >= 16; at += 16) {
    if (Mask(Load(text.data() + at)) != 0) return false;
  }
#endif
  for (; at < text.size(); ++at) {
    if (static_cast<unsigned char>(text[at]) >= 0x80) return false;
  }
  return true;
}

std::size_t CopyFoldedAscii(std::string_view text, char* out) {
  const char* const start = text.data();
  const char* const end = start + text.size();
  const char* at = start;
#if SONARO_SSE2
  std::uint32_t foreign = 0;  // the bytes above ASCII of the last step
  const auto copy = [&](const char* from) {
    const __m128i bytes = Load(from);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + (from - start)), FoldAscii(bytes));
    foreign = Mask(bytes);
    return static_cast<std::size_t>(from - start + std::countr_zero(foreign));
  };
  for (; end - at >= kVector; at += kVector) {
    const std::size_t ascii = copy(at);
    if (foreign != 0) return ascii;
  }
  if (at != start) {  // the last sixteen bytes; folding some of them again changes nothing
    const std::size_t ascii = copy(end - kVector);
    return foreign != 0 ? ascii : text.size();
  }
#endif
  for (; at != end; ++at) {
    if (static_cast<unsigned char>(*at) >= 0x80) break;
    out[at - start] = FoldAsciiByte(*at);
  }
  return static_cast<std::size_t>(at - start);
}

}  // namespace sonaro
