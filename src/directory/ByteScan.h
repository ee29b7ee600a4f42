// Scanning and folding of bytes sixteen at a time where the machine can, for the hot loops of building and
// searching tables. Nothing here reads a byte outside the texts that it is given.
#pragma once

#include <cstddef>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#define SONARO_SSE2 1
#endif

namespace sonaro {

// The position of the first `wanted` in `text`; its size when there is none.
std::size_t FindByte(std::string_view text, char wanted);

// Copies `text` to `out` (room for as many bytes) with A-Z folded to a-z, as long as it is ASCII. Returns how
// many bytes at the start were; bytes behind these may have been written too.
std::size_t CopyFoldedAscii(std::string_view text, char* out);

// Asks for the bytes at `at` and behind, a few hundred, to be brought near; any address is allowed.
inline void Prefetch(const char* at) {
#if SONARO_SSE2
  for (int i = 0; i < 4; ++i) _mm_prefetch(at + 64 * i, _MM_HINT_T0);
#else
  static_cast<void>(at);
#endif
}

}  // namespace sonaro
