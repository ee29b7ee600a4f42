// The start-up state that the whole program reads: set once while the program starts, a member of
// Application.
#pragma once

#include <string>

#include "base/Dates.h"

namespace sonaro {

enum class DecimalMode : int { Comma = 10, Point = 20 };

struct AppState {
  bool startedWithWindows = false;  // no splash, no first-run dialogs, main window hidden
  ClockStyle clockStyle = ClockStyle::Hours24;
  DecimalMode decimalMode = DecimalMode::Point;
  std::string shortDatePattern;  // of the user's regional settings, such as "M/d/yyyy"
  std::string commandLine;       // what followed the program's name
};

inline constexpr const char* kVersionText = "4.00.2";

}  // namespace sonaro
