// The start-up state that the whole program reads, a member of Application. It is set once while the program
// starts: the command line by Application, the user's conventions out of the system's regional settings
// below.
#pragma once

#include <string>

#include "base/Dates.h"

namespace sonaro {

class CReg;
class SystemInfo;

enum class DecimalMode : int { Comma = 10, Point = 20 };

struct AppState {
  bool startedWithWindows = false;  // no splash, no first-run dialogs, main window hidden
  ClockStyle clockStyle = ClockStyle::Hours24;
  DecimalMode decimalMode = DecimalMode::Point;
  std::string shortDatePattern;  // of the user's regional settings, such as "M/d/yyyy"
  std::string commandLine;       // what followed the program's name
};

inline constexpr const char* kVersionText = "4.00.2";

// Sets `state`'s clock style: 12-hour when the user's time format has an AM/PM mark; without a time format,
// when the setting "sLocal" names the user's locale.
void ReadClockStyle(CReg& reg, AppState& state);

// Sets `state`'s short-date pattern: the user's own, or one read off how the platform writes a known date.
void ReadShortDatePattern(CReg& reg, SystemInfo& systemInfo, AppState& state);

// Sets `state`'s decimal mode by how the user's locale writes 8.5.
void ReadDecimalMode(SystemInfo& systemInfo, AppState& state);

}  // namespace sonaro
