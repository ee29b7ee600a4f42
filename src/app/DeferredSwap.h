// Puts the files in place that an update downloaded while the program ran. A file's copy lies beside it under
// its name with a "t" in front; the setting "UpdateHold" names the files, each name followed by a TAB.
//
// Nothing is lost on the way: a copy takes its file's place in one step, a file without a copy stays, and a
// run that dies anywhere is finished by the next one, because the setting is cleared last.
#pragma once

#include <functional>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;

// Puts the downloaded copy of "\name" in its place. False, with the old file as it was, when there is no
// copy, the file is in use, or `name` is not a plain file name.
bool SwapInDownloaded(DataFolder& data, std::string_view name);

// True for the station list, whose arrival makes a new station table necessary.
bool IsStationList(std::string_view name);

// Swaps in everything that "UpdateHold" names and clears it. `rebuildStations` is called after "Station.snr"
// was swapped, also when there was no copy of it: a run that died before the table was made is made good so.
// Returns whether it was called.
bool RunDeferredSwap(DataFolder& data, CReg& reg, const std::function<void()>& rebuildStations);

}  // namespace sonaro
