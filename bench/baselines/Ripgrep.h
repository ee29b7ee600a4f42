// The second baseline of the search: ripgrep as its own program over the text list. It looks at whole lines,
// links and numbers included, and knows no order; its time includes the start of the program.
#pragma once

#include <string>

#include "baselines/SyntheticList.h"

namespace sonaro {

// False when ripgrep is not installed.
bool RipgrepIsThere();
// Searches the list for the query and waits for the end. False when the program could not be run.
bool SearchByRipgrep(const Query& query, const std::string& listPath);

}  // namespace sonaro
