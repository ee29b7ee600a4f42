// Operations on texts. A text is a std::string in the process's ANSI code page, which the program's manifest
// sets to UTF-8; positions and lengths count bytes. Nothing here knows files, settings or windows.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// Of ASCII, whatever the locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The text without the blanks (0x20, nothing else) at both ends. The view points into `text`.
std::string_view TrimBlanks(std::string_view text);

// The text with every character replaced by its full Unicode case folding (UTF-8 in, UTF-8 out; a sharp s
// becomes "ss"). Bytes that are not valid UTF-8 are copied, with A-Z folded to a-z.
std::string FoldCase(std::string_view text);
// The same, appended to `out`.
void AppendFoldCase(std::string& out, std::string_view text);
// Changes whenever FoldCase gives another result for some text; stored folded text of another version is
// void.
inline constexpr std::uint32_t kFoldCaseVersion = 14;

// A folded text with plain letters in the place of Latin, Greek and some Cyrillic ones that carry accents
// ("e" for "é", "o" for "ø", "ae" for "æ") and without combining marks. Other bytes are copied.
std::string WithoutAccents(std::string_view folded);
// The same, appended to `out`.
void AppendWithoutAccents(std::string& out, std::string_view folded);

// Comparisons that ignore letter case in the sense of FoldCase.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view start);
bool EndsWithIgnoringCase(std::string_view text, std::string_view end);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

// Three-way order of two texts, letter case ignored: negative, 0 or positive.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// Gives a text's sort key: bytes whose order is the order of the texts. FoldCase is one; the order of the
// user's language is SystemInfo::SortKey.
using SortKeyOf = std::function<std::string(std::string_view text)>;

// The lines of a whole file: CR LF, LF and a last line without an end are all read; the ends are cut off.
std::vector<std::string_view> SplitLines(std::string_view text);

// Cuts `text` at each `separator`: always one piece more than separators. "" gives one empty piece.
std::vector<std::string_view> Split(std::string_view text, char separator);

// The words of `text`: what stands between blanks (0x20), none of them empty.
std::vector<std::string_view> SplitWords(std::string_view text);

// Cuts `text` at its first `count - 1` separators; the last piece takes the rest, separators included.
std::vector<std::string_view> SplitAtMost(std::string_view text, char separator, std::size_t count);

// The text before the first `separator`, which is removed from `rest` together with that text. Without a
// separator the whole rest is taken and `rest` becomes empty.
std::string_view NextField(std::string_view& rest, char separator);

// The bytes at the beginning of `rest` whose count the text `length` tells; they are removed from it.
// Nothing, with `rest` as it was, when there are not so many or `length` is no count.
std::optional<std::string> TakeCounted(std::string_view& rest, std::string_view length);

// `text` with the first occurrence of `part` replaced; unchanged when there is none.
std::string ReplaceFirst(std::string_view text, std::string_view part, std::string_view by);

// At most `maxBytes` bytes from the start of `text`, never ending inside a UTF-8 character.
std::string_view TruncateUtf8(std::string_view text, std::size_t maxBytes);

// The text with a blank for each carriage return and line feed: fit for one line of a file of lines.
std::string OnOneLine(std::string_view text);

// A text that the user typed or imported, made fit to stand in a field of a line that TABs divide: `text`
// with every control character replaced by a blank, without blanks at its ends, at most `maxBytes` long and
// never cut inside a character.
std::string CleanField(std::string_view text, std::size_t maxBytes);

}  // namespace sonaro
