// The text of a file that some stranger's program wrote.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonaro {

// The character at `position`, which moves behind it. A byte that begins no valid UTF-8 character counts as
// one U+FFFD.
char32_t NextCharacter(std::string_view text, std::size_t& position);

// A file's bytes as valid UTF-8 without a byte-order mark. They are read as UTF-16 when a mark says so, as
// Windows-1252 when more bytes break the rules of UTF-8 than characters keep them, else as UTF-8.
std::string DecodeFileText(std::string_view bytes);

}  // namespace sonaro
