// Numbers out of text and into text: the one rule the whole program uses.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

// The whole number that `text` begins with: leading blanks, an optional sign, decimal digits. Whatever
// follows the digits is ignored; a text that does not begin so gives 0. Values beyond 64 bits give the
// nearest limit.
std::int64_t NumberValue(std::string_view text);

// True when `text`, trimmed of blanks, is an optional sign and at least one digit, with an optional fraction
// after one point, and nothing else.
bool IsNumeric(std::string_view text);

// A station identifier out of text: the signed 32-bit number that the whole text is (an optional sign and
// digits, blanks around them allowed). False for anything else, values outside 32 bits included.
bool ParseStationId(std::string_view text, std::int32_t& id);

}  // namespace sonaro
