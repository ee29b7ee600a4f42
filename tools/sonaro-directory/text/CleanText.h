// Makes strangers' files into text, texts out of them fit for a field of the directory, and the keys by which
// they are compared.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// The text on one line: runs of blanks, tabs, line ends, control characters and the wide blanks of Unicode
// become one blank, invisible marks (byte order, writing direction, zero-width space, soft hyphen) go, broken
// UTF-8 becomes U+FFFD, and there is no blank at either end. The joiners that scripts and emoji need stay.
std::string CleanText(std::string_view text);

// The text with "&amp;", "&lt;", "&gt;", "&quot;", "&apos;", "&nbsp;" and numeric references replaced.
std::string DecodeEntities(std::string_view text);

// What two spellings of one thing have in common: case folded, Latin and Greek letters without their accents,
// apostrophes gone, any other punctuation a blank. "Música Romántica!" and "musica-romantica" have one key.
std::string MatchKey(std::string_view text);

// The MatchKey of a station's name; of a name without letters and digits the name itself, case folded.
std::string NameKey(std::string_view name);

// The words of a MatchKey.
std::vector<std::string_view> KeyWords(std::string_view key);

// `text` with its first letter in upper case, for ASCII and Latin-1, Greek and Cyrillic small letters.
std::string Capitalized(std::string_view text);

// "a", "a and b", "a, b and c".
std::string JoinAsSentence(const std::vector<std::string>& parts);

// The character at `position`, which moves behind it. A byte that begins no valid UTF-8 character counts as
// one U+FFFD.
char32_t NextCharacter(std::string_view text, std::size_t& position);

// A file's bytes as valid UTF-8 without a byte-order mark. They are read as UTF-16 when a mark says so, as
// Windows-1252 when more bytes break the rules of UTF-8 than characters keep them, else as UTF-8.
std::string DecodeFileText(std::string_view bytes);

}  // namespace sonaro
