// UTF-8 as code points. Decoding never fails: a byte that starts no valid character stands for U+FFFD.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonaro {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// The code point at `position`, which moves behind it. Over-long forms, surrogates and values beyond U+10FFFF
// are not valid.
char32_t NextCodePoint(std::string_view text, std::size_t& position);
void AppendUtf8(std::string& text, char32_t codePoint);
bool IsValidUtf8(std::string_view text);

// A file's bytes as valid UTF-8 without a byte-order mark. They are read as UTF-16 when a mark says so, as
// Windows-1252 when more bytes break the rules of UTF-8 than characters keep them, else as UTF-8.
std::string DecodeFileText(std::string_view bytes);

}  // namespace sonaro
