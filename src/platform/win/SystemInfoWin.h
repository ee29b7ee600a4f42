// What Windows tells of the machine and of the user's regional settings.
#pragma once

#include "platform/SystemInfo.h"

namespace sonaro {

class SystemInfoWin : public SystemInfo {
 public:
  MachineFacts Machine() override;
  std::string FormattedEightAndAHalf() override;
  std::string FormattedSampleDate() override;
  std::string ProfileString(const std::string& section, const std::string& key,
                            const std::string& defaultText, const std::string& fileName) override;
  std::string SortKey(std::string_view text) override;
};

}  // namespace sonaro
