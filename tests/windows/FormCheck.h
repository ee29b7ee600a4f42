// What must hold for every form, checked on its real controls. Each problem is a sentence; none is good.
#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"

namespace sonaro {

// Checks an open form in all its layouts, at 96, 120, 144 and 192 dpi, with the texts that its FormContext
// gives: every row has its control, buttons have a text, Tab goes through the rows in order,
// controls neither overlap nor leave the form, texts fit, no two shown controls share an access key, every
// button does something. Leaves the form in layout 0 at 96 dpi.
std::vector<std::string> ProblemsOf(Form& form);

}  // namespace sonaro
