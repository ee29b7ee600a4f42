// The substitution that keeps links in the data files from being read or edited directly. The station fields
// LinkOne to WebSite are stored scrambled and turned into plain text only where they are used.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonaro {

class DataFolder;

inline constexpr std::size_t kAlphabetSize = 76;

// Two alphabets of 76 characters; position k of one maps to position k of the other.
struct ScramblingAlphabets {
  std::string source;
  std::string target;
};

// Replaces every character of the source alphabet by the one at its position in the target alphabet; anything
// else stays. Changes `text` in place and returns it.
std::string& ScrambleText(std::string& text, const ScramblingAlphabets& alphabets);
// The reverse of ScrambleText.
std::string& UnscrambleText(std::string& text, const ScramblingAlphabets& alphabets);

// The alphabets that the program is built with.
const ScramblingAlphabets& BuiltInAlphabets();

// Alphabets out of the two lines of "\alphabet.snr". False, with `alphabets` untouched, when they are not 76
// characters each, none of them twice, and the second a permutation of the first.
bool ParseAlphabets(std::string_view fileText, ScramblingAlphabets& alphabets);

enum class AlphabetSource {
  BuiltIn,             // there is no "\alphabet.snr"
  DataFolder,          // "\alphabet.snr"
  BuiltInAfterBadFile  // "\alphabet.snr" was refused or could not be read: the user should be told
};
// The alphabets to use with the files of `data`; always a usable pair.
AlphabetSource LoadAlphabets(DataFolder& data, ScramblingAlphabets& alphabets);

}  // namespace sonaro
