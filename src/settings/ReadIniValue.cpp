#include "settings/ReadIniValue.h"

#include "platform/SystemInfo.h"

namespace sonaro {

std::string ReadIniValue(SystemInfo& system, const std::string& section, const std::string& key,
                         const std::string& defaultText, const std::string& fileName) {
  return system.ProfileString(section, key, defaultText, fileName);
}

}  // namespace sonaro
