// Decoding and encoding of UTF-8, one character at a time, and reading what others wrote as UTF-16. For the
// text operations of Text.h and for code that meets UTF-16 at the edge of the system.
#pragma once

#include <cstddef>
#include <optional>
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

// Byte order marks, as they stand at the start of a file.
inline constexpr std::string_view kMarkOfUtf8 = "\xEF\xBB\xBF";
inline constexpr std::string_view kMarkOfUtf16Little = "\xFF\xFE";
inline constexpr std::string_view kMarkOfUtf16Big = "\xFE\xFF";

struct Utf16Text {
  std::string text;      // as UTF-8; U+FFFD for half a character
  bool damaged = false;  // half a character, or half a unit at the end, was met
};

// The text of a file that begins with a mark of UTF-16, without the mark; nothing when it does not.
std::optional<Utf16Text> DecodeMarkedUtf16(std::string_view bytes);

}  // namespace sonaro
