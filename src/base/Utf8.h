// Decoding and encoding of UTF-8, one character at a time. For the text operations of Text.h and for code
// that meets UTF-16 at the edge of the system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonaro {

struct Utf8Character {
  char32_t code = 0;       // meaningful when `length` is not 0
  std::size_t length = 0;  // bytes it takes; 0 when the bytes are not valid UTF-8
};

// The character that begins at `position` (less than the text's length). Overlong forms, surrogates and
// values above U+10FFFF are not valid.
Utf8Character DecodeUtf8(std::string_view text, std::size_t position);

// `code` is a Unicode scalar value.
void AppendUtf8(std::string& text, char32_t code);

}  // namespace sonaro
