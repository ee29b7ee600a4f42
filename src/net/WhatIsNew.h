// The check what is new at the service, made on the text of one of its answers, and the to-do list that comes
// of it: the setting "DoWhat", a row of marks. And what the service sends about live events.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;

inline constexpr std::string_view kToDoStationList = "/SL/";
inline constexpr std::string_view kToDoSideFile = "/SF/";

struct WhatIsNew {
  std::string toDo;  // what was stored as "DoWhat"
  // Of the side file, when it is to be fetched.
  std::string sideFileUrl;
  std::string sideFileValue;
};

// Compares the answer with what is installed and stores the to-do list, empty or not.
WhatIsNew CheckWhatIsNew(std::string_view answer, std::string_view shortDatePattern, DataFolder& data,
                         CReg& reg);

bool StationListIsDue(const CReg& reg);
// Takes the first mark of the station list out of "DoWhat".
void StationListIsDone(CReg& reg);

// Stores the downloaded `body` of live events as "\eventup.txt" and its date stamp as "LastEventUpdate".
// Returns the stamp, or "" when the body is cut short, carries no valid date or could not be written; nothing
// is changed then.
std::string SaveLiveEventUpdate(std::string_view body, std::string_view shortDatePattern, DataFolder& data,
                                CReg& reg);

}  // namespace sonaro
