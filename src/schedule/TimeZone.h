// From GMT to the user's clock: the zone in force, service time stamps, service addresses that carry the
// offset, and the machine profile that background requests send.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Dates.h"

namespace sonaro {

class Clock;
class SystemInfo;

// Seconds to add to GMT for local time, east positive. Also sets the name of the zone in force and "Y" or "N"
// for daylight saving. When the platform cannot tell: 0, and both texts stay as they were.
std::int32_t GetZoneOffset(Clock& clock, std::string& zoneName, std::string& daylightFlag);
std::int32_t GetZoneOffset(Clock& clock);

// A service time stamp (12 digits, GMT: yyyymmddhhmm) as a date and time; nothing for any other text.
std::optional<DateTime> ParseServiceTime(std::string_view stamp);
// The same moment on the local clock, by the offset in force now.
std::optional<DateTime> ServiceTimeToLocal(Clock& clock, std::string_view stamp);

// The address with its first "<<gmtoff>>" replaced by the offset in minutes; unchanged when it has none.
std::string ApplyGmtOffsetToAddress(Clock& clock, std::string_view address);

// "OSXWinNT 10.0CPUX..." as the service expects it.
std::string BuildMachineProfile(SystemInfo& system);

}  // namespace sonaro
