#include "directory/CheckDataFiles.h"

#include <string>
#include <string_view>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "resources/texts/app.h"
#include "settings/CReg.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

// Without these the window would open empty: rankings, the station table's two files, the list of categories.
// What is optional (alphabets, events, places, the user's files) does not count as missing.
constexpr std::string_view kNeeded[] = {guide_file::kRanking, guide_file::kTable, guide_file::kTableIndex,
                                        guide_file::kCategories};

}  // namespace

// The list is named in the third field; a line with fewer than three separators names none.
bool CategoryListMissing(std::string_view categories,
                         const std::function<bool(const std::string& name)>& isThere) {
  while (!categories.empty()) {
    const auto fields = SplitAtMost(NextField(categories, '\n'), '\t', 4);
    if (fields.size() < 4) continue;
    if (!isThere(std::string("\\").append(fields[2]).append(".snr"))) return true;
  }
  return false;
}

bool DataFilesMissing(DataFolder& data) {
  for (const std::string_view name : kNeeded) {
    if (!data.Exists(name)) return true;
  }
  return CategoryListMissing(data.Read(guide_file::kCategories).bytes,
                             [&data](const std::string& name) { return data.Exists(name); });
}

bool AskToGetMissingFiles(CReg& reg, const Strings& strings, MessageBoxView& messages) {
  // With the date of the last update gone the service sends everything; with it, it could answer that
  // nothing is new.
  reg.Set(setting::kLastUpdate, "");
  Message message;
  message.key = kMissingFilesKey;
  message.caption = strings.Load(IDS_FILES_MISSING_CAPTION);
  message.text = strings.Load(IDS_FILES_MISSING_TEXT);
  message.firstButton = strings.Load(IDS_FILES_MISSING_GET);
  message.secondButton = strings.Load(IDS_FILES_MISSING_CLOSE);
  message.isTrouble = true;
  // Closing the box declines as well: nobody who did not ask for a download should get one.
  return messages.Ask(message).answer == MessageAnswer::First;
}

}  // namespace sonaro
