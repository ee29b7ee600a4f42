// Verifies a data folder: that every file the program reads can be read, says what its format allows, and
// fits the other files. Reads only.
#pragma once

#include "base/DataFolder.h"
#include "check/Findings.h"

namespace sonaro {

void CheckFolder(DataFolder& data, Findings& findings);

}  // namespace sonaro
