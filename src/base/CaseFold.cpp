// The folding behind Text.h: a table of ranges for all of Unicode, unpacked when compiled for the two-byte
// characters (Latin, Greek, Cyrillic, Armenian, Hebrew, Arabic), because whole directories are folded with
// it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "base/Text.h"
#include "base/Utf8.h"

namespace sonaro {
namespace {

// Every `step`th character from `first` to `last` folds to itself plus `delta`.
struct FoldRange {
  char32_t first;
  char32_t last;
  std::uint32_t step;
  std::int32_t delta;
};

// A character that folds to two or three; unused places are 0.
struct FoldExpansion {
  char32_t code;
  char32_t folded[3];
};

#include "base/CaseFoldTable.inc"

// The ranges are sorted by their first character and do not overlap: the last range that begins at or before
// a character is the only one that can hold it. A step of 2 covers alphabets that alternate large and small
// letters.
constexpr char32_t FoldByRange(char32_t code) {
  const auto* range = std::upper_bound(std::begin(kFoldRanges), std::end(kFoldRanges), code,
                                       [](char32_t c, const FoldRange& r) { return c < r.first; });
  if (range == std::begin(kFoldRanges)) return code;
  --range;
  if (code > range->last || (code - range->first) % range->step != 0) return code;
  return static_cast<char32_t>(static_cast<std::int32_t>(code) + range->delta);
}

constexpr const FoldExpansion* FindExpansion(char32_t code) {
  const auto* found = std::lower_bound(std::begin(kFoldExpansions), std::end(kFoldExpansions), code,
                                       [](const FoldExpansion& e, char32_t c) { return e.code < c; });
  return found != std::end(kFoldExpansions) && found->code == code ? found : nullptr;
}

constexpr char32_t kShortTableEnd = 0x800;

// Folding of the characters below kShortTableEnd; 0 where the character expands.
constexpr auto kShortTable = [] {
  std::array<std::uint16_t, kShortTableEnd> table{};
  for (char32_t code = 0; code < kShortTableEnd; ++code) {
    table[code] = FindExpansion(code) ? std::uint16_t{0} : static_cast<std::uint16_t>(FoldByRange(code));
  }
  return table;
}();

constexpr char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

constexpr bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

// Bytes at the start of `text` that are ASCII, found eight at a time.
std::size_t AsciiRun(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t i = 0;
  for (std::uint64_t word = 0; text.size() - i >= sizeof word; i += sizeof word) {
    std::memcpy(&word, text.data() + i, sizeof word);
    if ((word & kHighBits) != 0) break;
  }
  while (i < text.size() && IsAscii(text[i])) ++i;
  return i;
}

void AppendFolded(std::string& out, char32_t code) {
  if (code != 0 && code < kShortTableEnd && kShortTable[code] != 0) {
    AppendUtf8(out, kShortTable[code]);
    return;
  }
  const FoldExpansion* expansion = FindExpansion(code);
  if (!expansion) {
    AppendUtf8(out, FoldByRange(code));
    return;
  }
  for (const char32_t folded : expansion->folded) {
    if (folded != 0) AppendUtf8(out, folded);
  }
}

// How many characters both texts have in common at their start, as long as they are ASCII.
std::size_t CommonAsciiStart(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  std::size_t i = 0;
  while (i < shorter && IsAscii(a[i]) && IsAscii(b[i]) && FoldAscii(a[i]) == FoldAscii(b[i])) ++i;
  return i;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  AppendFoldCase(out, text);
  return out;
}

void AppendFoldCase(std::string& out, std::string_view text) {
  while (!text.empty()) {
    // ASCII in runs, anything else a character at a time. A byte that is not UTF-8 stays as it is, so that
    // folding never loses text of another encoding.
    const std::size_t run = AsciiRun(text);
    const auto start = static_cast<std::ptrdiff_t>(out.size());
    out.append(text.substr(0, run));
    std::transform(out.begin() + start, out.end(), out.begin() + start, FoldAscii);
    text.remove_prefix(run);
    while (!text.empty() && !IsAscii(text.front())) {
      const Utf8Character character = DecodeUtf8(text, 0);
      if (character.length == 0) {
        out.push_back(text.front());
      } else {
        AppendFolded(out, character.code);
      }
      text.remove_prefix(std::max<std::size_t>(character.length, 1));
    }
  }
}

// The comparisons walk over what is plain ASCII on both sides and fold only from the first other character
// on: an ASCII character is exactly one character of the folded text, so both sides stay in step.

bool EqualIgnoringCase(std::string_view a, std::string_view b) { return CompareIgnoringCase(a, b) == 0; }

int CompareIgnoringCase(std::string_view a, std::string_view b) {
  const std::size_t common = CommonAsciiStart(a, b);
  a.remove_prefix(common);
  b.remove_prefix(common);
  if (a.empty() || b.empty()) return a.empty() ? (b.empty() ? 0 : -1) : 1;
  if (IsAscii(a[0]) && IsAscii(b[0])) return FoldAscii(a[0]) < FoldAscii(b[0]) ? -1 : 1;
  return FoldCase(a).compare(FoldCase(b));
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view start) {
  const std::size_t common = CommonAsciiStart(text, start);
  text.remove_prefix(common);
  start.remove_prefix(common);
  if (start.empty()) return true;
  if (text.empty() || (IsAscii(text[0]) && IsAscii(start[0]))) return false;
  return FoldCase(text).starts_with(FoldCase(start));
}

// From the back, for the same reason: a byte below 0x80 is a whole character wherever it is met.
bool EndsWithIgnoringCase(std::string_view text, std::string_view end) {
  while (!text.empty() && !end.empty() && IsAscii(text.back()) && IsAscii(end.back())) {
    if (FoldAscii(text.back()) != FoldAscii(end.back())) return false;
    text.remove_suffix(1);
    end.remove_suffix(1);
  }
  if (end.empty()) return true;
  return FoldCase(text).ends_with(FoldCase(end));
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return FoldCase(text).find(FoldCase(part)) != std::string::npos;
}

}  // namespace sonaro
