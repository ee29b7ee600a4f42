// Texts that the user typed or imported, made fit to stand in a field of a line that TABs divide.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

// `text` with every control character replaced by a blank, without blanks at its ends, at most `maxBytes`
// long and never cut inside a character.
std::string CleanField(std::string_view text, std::size_t maxBytes);

}  // namespace sonaro
