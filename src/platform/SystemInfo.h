// Facts about the machine and the user's regional settings that do not live in the registry.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

struct SystemVersion {
  bool known = false;
  bool ntFamily = true;  // false: the 9x family
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
};

struct MachineFacts {
  SystemVersion version;
  std::uint32_t processorType = 0;
  std::uint32_t processorCount = 0;
  std::uint64_t memoryBytes = 0;
  int screenWidth = 0;
  int screenHeight = 0;
  int bitsPerPixel = 0;
  bool networkPresent = false;
  std::uint32_t processorMegahertz = 0;
};

class SystemInfo {
 public:
  virtual ~SystemInfo() = default;
  virtual MachineFacts Machine() = 0;
  // 8.5 as the user's locale writes it: "8.5" or "8,5".
  virtual std::string FormattedEightAndAHalf() = 0;
  // 25 December 2003 in the platform's default short form, for a machine without a short-date pattern.
  virtual std::string FormattedSampleDate() = 0;
  // One entry of an INI file through the platform's profile-string reader: at most 254 bytes.
  virtual std::string ProfileString(const std::string& section, const std::string& key,
                                    const std::string& defaultText, const std::string& fileName) = 0;
  // Bytes whose order is that of the texts in the user's language, letter case ignored: texts that differ in
  // letter case only have the same key, and accented letters stand where the language has them. Made once for
  // each text of a list, never for each comparison.
  virtual std::string SortKey(std::string_view text) = 0;
};

}  // namespace sonaro
