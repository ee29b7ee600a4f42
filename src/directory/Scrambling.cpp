#include "directory/Scrambling.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"

namespace sonaro {
namespace {

// Letters, digits and the marks that addresses are made of. Data files written with one pair can be read only
// with the same pair: never change these two.
constexpr std::string_view kSource =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789:/.-_?=&%~+,;@";
constexpr std::string_view kTarget =
    "BL&baj/whOVWdSe7F3grDiYC60RM2u-9_xmv@4%KUsk,:yJl+tXN8oHcpQT~qGIf;1?E5ZAP=z.n";

// A control character would break the lines of the files that hold scrambled text.
constexpr bool IsControl(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

constexpr bool IsAlphabet(std::string_view text) {
  if (text.size() != kAlphabetSize) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsControl(text[i]) || text.find(text[i]) != i) return false;
  }
  return true;
}

constexpr bool IsPair(std::string_view source, std::string_view target) {
  if (!IsAlphabet(source) || !IsAlphabet(target)) return false;
  for (const char c : source) {
    if (target.find(c) == std::string_view::npos) return false;
  }
  return true;
}

static_assert(IsPair(kSource, kTarget));

// A table of 256 bytes makes it one look-up for each character. Characters outside the alphabet, among them
// all bytes of non-ASCII text, stand for themselves. It is filled from the back so that of a doubled
// character the first place would count.
std::string& Substitute(std::string& text, std::string_view from, std::string_view to) {
  std::array<char, 256> table;
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<char>(i);
  const std::size_t size = std::min(from.size(), to.size());
  for (std::size_t k = size; k-- > 0;) table[static_cast<unsigned char>(from[k])] = to[k];
  for (char& c : text) c = table[static_cast<unsigned char>(c)];
  return text;
}

}  // namespace

std::string& ScrambleText(std::string& text, const ScramblingAlphabets& alphabets) {
  return Substitute(text, alphabets.source, alphabets.target);
}

std::string& UnscrambleText(std::string& text, const ScramblingAlphabets& alphabets) {
  return Substitute(text, alphabets.target, alphabets.source);
}

const ScramblingAlphabets& BuiltInAlphabets() {
  static const ScramblingAlphabets builtIn{std::string(kSource), std::string(kTarget)};
  return builtIn;
}

bool ParseAlphabets(std::string_view fileText, ScramblingAlphabets& alphabets) {
  const std::vector<std::string_view> lines = SplitLines(fileText);
  if (lines.size() != 2 || !IsPair(lines[0], lines[1])) return false;
  alphabets = {std::string(lines[0]), std::string(lines[1])};
  return true;
}

AlphabetSource LoadAlphabets(DataFolder& data, ScramblingAlphabets& alphabets) {
  alphabets = BuiltInAlphabets();
  const ReadResult file = data.Read(guide_file::kAlphabet);
  if (file.status == ReadStatus::Missing) return AlphabetSource::BuiltIn;
  const bool usable = file.status == ReadStatus::Ok && ParseAlphabets(file.bytes, alphabets);
  return usable ? AlphabetSource::DataFolder : AlphabetSource::BuiltInAfterBadFile;
}

}  // namespace sonaro
