#include "base/Text.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Utf8.h"

namespace sonaro {

// A view of nothing still points into the text, so that callers can tell where it was.
std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return text.substr(0, 0);
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// A text that ends with a line end has no empty line behind it.
std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    std::string_view line = NextField(text, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  return SplitAtMost(text, separator, std::string_view::npos);
}

std::vector<std::string_view> SplitWords(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    if (const std::string_view word = NextField(text, ' '); !word.empty()) words.push_back(word);
  }
  return words;
}

std::vector<std::string_view> SplitAtMost(std::string_view text, char separator, std::size_t count) {
  std::vector<std::string_view> pieces;
  std::size_t cut = 0;
  while (pieces.size() + 1 < count && (cut = text.find(separator)) != std::string_view::npos) {
    pieces.push_back(text.substr(0, cut));
    text.remove_prefix(cut + 1);
  }
  pieces.push_back(text);
  return pieces;
}

std::string_view NextField(std::string_view& rest, char separator) {
  const std::size_t cut = rest.find(separator);
  const std::string_view taken = rest.substr(0, cut);
  rest.remove_prefix(cut == std::string_view::npos ? rest.size() : cut + 1);
  return taken;
}

std::optional<std::string> TakeCounted(std::string_view& rest, std::string_view length) {
  const std::int64_t count = IsNumeric(length) ? NumberValue(length) : -1;
  if (count < 0 || static_cast<std::uint64_t>(count) > rest.size()) return std::nullopt;
  std::string bytes(rest.substr(0, static_cast<std::size_t>(count)));
  rest.remove_prefix(bytes.size());
  return bytes;
}

std::string ReplaceFirst(std::string_view text, std::string_view part, std::string_view by) {
  std::string result(text);
  const std::size_t at = result.find(part);
  if (at != std::string::npos) result.replace(at, part.size(), by);
  return result;
}

// Looks back from the cut for the character that spans it. Text that is not UTF-8 has none and is cut
// anywhere.
std::string_view TruncateUtf8(std::string_view text, std::size_t maxBytes) {
  if (text.size() <= maxBytes) return text;
  constexpr std::size_t kMaxCharacterLength = 4;
  const std::size_t nearest = maxBytes < kMaxCharacterLength ? 0 : maxBytes - kMaxCharacterLength + 1;
  for (std::size_t start = maxBytes; start-- > nearest;) {
    const std::size_t length = DecodeUtf8(text, start).length;
    if (length != 0) return text.substr(0, start + length <= maxBytes ? maxBytes : start);
  }
  return text.substr(0, maxBytes);
}

std::string OnOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

// Trimmed twice: before the cut so that blanks do not take room, behind it because the cut may leave one at
// the end.
std::string CleanField(std::string_view text, std::size_t maxBytes) {
  std::string clean(text);
  std::replace_if(
      clean.begin(), clean.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
  return std::string(TrimBlanks(TruncateUtf8(TrimBlanks(clean), maxBytes)));
}

}  // namespace sonaro
