// Checks that the directory's files are there, and asks the user what to do when they are not.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;
class MessageBoxView;
class Strings;

// True when one of the files is missing that the program cannot work without: the rankings, the station
// table, the list of categories and the list of every category that it names.
bool DataFilesMissing(DataFolder& data);

// True when a line of a file of categories names a list file (with the backslash) that is not there.
bool CategoryListMissing(std::string_view categories,
                         const std::function<bool(const std::string& name)>& isThere);

// The key of the "Files Missing" question, which selects its help page.
inline constexpr const char* kMissingFilesKey = "MissingDataFilesNeedToDownloadThem";

// Asks it. Clears "LastUpdate", so that the next update fetches everything. True: go on without the files.
// False: the user declined, or closed the box, and the program is to end.
[[nodiscard]] bool AskToGetMissingFiles(CReg& reg, const Strings& strings, MessageBoxView& messages);

}  // namespace sonaro
