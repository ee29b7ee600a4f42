// Facts that a test chooses; an English machine unless told otherwise.
#pragma once

#include <map>
#include <string>
#include <tuple>

#include "base/Text.h"
#include "platform/SystemInfo.h"

namespace sonaro {

class FakeSystemInfo : public SystemInfo {
 public:
  MachineFacts machine;
  std::string eightAndAHalf = "8.5";
  std::string sampleDate = "12/25/2003";

  void PutProfile(const std::string& fileName, const std::string& section, const std::string& key,
                  const std::string& text) {
    profile_[{FoldCase(fileName), FoldCase(section), FoldCase(key)}] = text;
  }

  MachineFacts Machine() override { return machine; }
  std::string FormattedEightAndAHalf() override { return eightAndAHalf; }
  std::string FormattedSampleDate() override { return sampleDate; }
  std::string ProfileString(const std::string& section, const std::string& key,
                            const std::string& defaultText, const std::string& fileName) override {
    const auto found = profile_.find({FoldCase(fileName), FoldCase(section), FoldCase(key)});
    return (found == profile_.end() ? defaultText : found->second).substr(0, 254);
  }

 private:
  std::map<std::tuple<std::string, std::string, std::string>, std::string> profile_;
};

}  // namespace sonaro
