// Figures as windows show them.
#pragma once

#include <cstddef>
#include <string>

#include "settings/AppState.h"

namespace sonaro {

// A count with its thousands apart: "12,418", or "12.418" where decimals are written with a comma.
std::string FormatCount(std::size_t figure, DecimalMode mode);

}  // namespace sonaro
