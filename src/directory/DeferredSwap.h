// Puts the files in place that an update downloaded. A file's copy lies beside it under its name with a "t"
// in front; the setting "UpdateHold" names the files, each name followed by a TAB.
//
// Nothing is lost on the way: a copy takes its file's place in one step, a file without a copy stays, and a
// run that dies anywhere is finished by the next one, because the setting is cleared last.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;
class HeldNames;

// Of the downloaded copy of "\name", with the backslash.
std::string TemporaryName(std::string_view name);

// Puts the downloaded copy of "\name" in its place. False, with the old file as it was, when there is no
// copy, the file is in use, or `name` is not a plain file name.
bool SwapInDownloaded(DataFolder& data, std::string_view name);

// True for the station list, whose arrival makes a new station table necessary.
bool IsStationList(std::string_view name);

// The files whose copies may lie about, whatever becomes of the update that brings them: written down before
// the first copy is made, so that the copies of an update that dies are known to be nobody's file. False when
// that could not be saved.
[[nodiscard]] bool NoteTemporaries(DataFolder& data, const HeldNames& names);
HeldNames NotedTemporaries(DataFolder& data);
// Removes every noted copy but those that wait. One that cannot be removed stays noted.
void RemoveTemporaries(DataFolder& data, const HeldNames& waiting);

// The date and the version that wait with "UpdateHold" are of no use any more.
void ForgetHeldDate(CReg& reg);

// Swaps in everything that "UpdateHold" names and clears it, and removes what an update that died has left.
// `rebuildStations` makes the station table and tells whether it could; it is called after "Station.snr" was
// swapped, also when there was no copy of it: a run that died before the table was made is made good so. The
// date that waited with the list is stored as "LastUpdate" once list and table are in place. Returns whether
// it was called.
bool RunDeferredSwap(DataFolder& data, CReg& reg, const std::function<bool()>& rebuildStations);

}  // namespace sonaro
