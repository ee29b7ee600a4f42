// Facts that a test chooses; an English machine unless told otherwise.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <tuple>

#include "base/Text.h"
#include "base/Utf8.h"
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
  // The order of English for Latin letters: an accent counts only between texts that are alike without it.
  std::string SortKey(std::string_view text) override {
    const std::string folded = FoldCase(text);
    std::string letters;
    for (std::size_t at = 0; at < folded.size();) {
      const std::size_t length = std::max<std::size_t>(DecodeUtf8(folded, at).length, 1);
      const auto plain = Plain().find(folded.substr(at, length));
      letters += plain == Plain().end() ? folded.substr(at, length) : plain->second;
      at += length;
    }
    return letters + '\1' + folded;
  }

 private:
  static const std::map<std::string, std::string>& Plain() {
    static const std::map<std::string, std::string> letters = {
        {"à", "a"}, {"á", "a"}, {"â", "a"}, {"ä", "a"}, {"å", "a"}, {"ç", "c"}, {"è", "e"}, {"é", "e"},
        {"ê", "e"}, {"ë", "e"}, {"í", "i"}, {"ł", "l"}, {"ñ", "n"}, {"ó", "o"}, {"ô", "o"}, {"ö", "o"},
        {"ø", "o"}, {"ś", "s"}, {"š", "s"}, {"ú", "u"}, {"ü", "u"}, {"ź", "z"}, {"ż", "z"}, {"ž", "z"}};
    return letters;
  }

  std::map<std::tuple<std::string, std::string, std::string>, std::string> profile_;
};

}  // namespace sonaro
