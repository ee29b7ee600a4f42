// Scanning and folding of bytes sixteen at a time where the machine can, for the hot loops of building and
// searching tables. Nothing here reads a byte outside the texts that it is given.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#define SONARO_SSE2 1
#endif

namespace sonaro {

// The position of the first `wanted` in `text`; its size when there is none.
std::size_t FindByte(std::string_view text, char wanted);

// The position of the `count`th tab in `text`, its size when there are fewer; `count` is at least 1.
std::size_t FindTab(std::string_view text, std::size_t count);

// Cuts `text` at its tabs. The last piece takes what is left, tabs included; pieces that are missing become
// empty.
void SplitAtTabs(std::string_view text, std::span<std::string_view> pieces);

// Whether every byte is ASCII.
bool IsAscii(std::string_view text);

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
