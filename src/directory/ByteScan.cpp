#include "directory/ByteScan.h"

#include <bit>
#include <cstdint>

namespace sonaro {
namespace {

char FoldAsciiByte(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

#if SONARO_SSE2
constexpr std::size_t kStep = 16;

__m128i Load(const char* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }

std::uint32_t Mask(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

__m128i FoldAscii(__m128i bytes) {
  const __m128i fromA = _mm_cmpgt_epi8(bytes, _mm_set1_epi8('A' - 1));
  const __m128i toZ = _mm_cmpgt_epi8(_mm_set1_epi8('Z' + 1), bytes);
  return _mm_or_si128(bytes, _mm_and_si128(_mm_and_si128(fromA, toZ), _mm_set1_epi8(0x20)));
}
#endif

}  // namespace

std::size_t FindByte(std::string_view text, char wanted) {
  std::size_t at = 0;
#if SONARO_SSE2
  const __m128i pattern = _mm_set1_epi8(wanted);
  for (; text.size() - at >= kStep; at += kStep) {
    const std::uint32_t hits = Mask(_mm_cmpeq_epi8(Load(text.data() + at), pattern));
    if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
  }
  if (at != 0 && at < text.size()) {  // the last sixteen bytes; those seen before hold no hit
    const std::size_t last = text.size() - kStep;
    const std::uint32_t hits = Mask(_mm_cmpeq_epi8(Load(text.data() + last), pattern));
    return hits != 0 ? last + static_cast<std::size_t>(std::countr_zero(hits)) : text.size();
  }
#endif
  while (at < text.size() && text[at] != wanted) ++at;
  return at;
}

std::size_t CopyFoldedAscii(std::string_view text, char* out) {
  std::size_t at = 0;
#if SONARO_SSE2
  for (; text.size() - at >= kStep; at += kStep) {
    const __m128i bytes = Load(text.data() + at);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + at), FoldAscii(bytes));
    const std::uint32_t foreign = Mask(bytes);
    if (foreign != 0) return at + static_cast<std::size_t>(std::countr_zero(foreign));
  }
#endif
  for (; at < text.size(); ++at) {
    if (static_cast<unsigned char>(text[at]) >= 0x80) return at;
    out[at] = FoldAsciiByte(text[at]);
  }
  return at;
}

}  // namespace sonaro
