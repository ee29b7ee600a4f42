// Reading of the INI files of other components. The program's own is read and written by IniSettings.
#pragma once

#include <string>

namespace sonaro {

class SystemInfo;

// The entry `key` of `section`; `defaultText` when it is missing. Entries longer than 254 bytes are cut. A
// fileName without a folder means the system's own folder for such files.
std::string ReadIniValue(SystemInfo& system, const std::string& section, const std::string& key,
                         const std::string& defaultText, const std::string& fileName);

}  // namespace sonaro
