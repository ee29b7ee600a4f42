// What changed between two texts, as the steps that an update carries (net/UpdateChanges.h).
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

// Steps that make `after` of `before`, each on a line ended by CR LF. The same texts give the same steps.
// They are short where lines, or words in a line, were added, taken out or changed in place; what has moved
// may be carried again.
std::string StepsBetween(std::string_view before, std::string_view after);

}  // namespace sonaro
