// Checks and stores what the service sends about live events.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;

// Stores the downloaded `body` as "\eventup.txt" and its date stamp as "LastEventUpdate". Returns the stamp,
// or
// "" when the body is cut short, carries no valid date or could not be written; nothing is changed then.
std::string SaveLiveEventUpdate(std::string_view body, std::string_view shortDatePattern, DataFolder& data,
                                CReg& reg);

}  // namespace sonaro
