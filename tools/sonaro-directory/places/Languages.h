// The names of languages: lists give them in English, in the language itself, and misspelt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// The languages that `text` names, in English where it is a known name ("deutsch", "castellano. español" and
// "engilsh" are), each once, at most four. Names may be joined by commas, semicolons or slashes.
std::vector<std::string> LanguagesIn(std::string_view text);

// True for the name of a known language in any of its spellings.
bool IsLanguage(std::string_view text);

}  // namespace sonaro
