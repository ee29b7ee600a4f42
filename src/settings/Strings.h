// Dialog texts by their number in the string table (resources/texts, 10000 upward), and what is filled into
// them. The program loads them from its resources; tests give each number's own decimal text, so that they do
// not depend on the wording.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "settings/AppState.h"

namespace sonaro {

class Strings {
 public:
  virtual ~Strings() = default;
  virtual std::string Load(int id) const = 0;  // "" for a number that is not in the table
};

// Fills "{0}", "{1}" ... in a text. A brace that is not such a mark stays.
std::string FormatText(std::string_view text, std::initializer_list<std::string_view> values);

// A count with its thousands apart: "12,418", or "12.418" where decimals are written with a comma.
std::string FormatCount(std::size_t figure, DecimalMode mode);

}  // namespace sonaro
