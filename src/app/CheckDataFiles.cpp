#include "app/CheckDataFiles.h"

#include <string>
#include <string_view>

#include "app/CReg.h"
#include "app/HelpPages.h"
#include "app/Message.h"
#include "app/SettingNames.h"
#include "app/Strings.h"
#include "base/DataFolder.h"
#include "base/Text.h"
#include "resources/texts/app.h"

namespace sonaro {

namespace {

constexpr std::string_view kCategories = "\\cat.snr";
constexpr std::string_view kNeeded[] = {"\\fun.snr", "\\Statorg.isd", "\\Statorg.ism", kCategories};

// True when a list file is missing that the file of categories names in the third field of a line.
bool CategoryListMissing(DataFolder& data) {
  const ReadResult categories = data.Read(kCategories);
  for (const std::string_view line : SplitLines(categories.bytes)) {
    const auto fields = SplitAtMost(line, '\t', 4);
    if (fields.size() < 4) continue;
    if (!data.Exists(std::string("\\").append(fields[2]).append(".snr"))) return true;
  }
  return false;
}

}  // namespace

bool DataFilesMissing(DataFolder& data) {
  for (const std::string_view name : kNeeded) {
    if (!data.Exists(name)) return true;
  }
  return CategoryListMissing(data);
}

bool AskToGetMissingFiles(CReg& reg, const Strings& strings, MessageBoxView& messages, HelpPages& help) {
  reg.SetSetting(setting::kLastUpdate, "");
  Message message;
  message.key = "MissingDataFilesNeedToDownloadThem";
  message.caption = strings.Load(IDS_FILES_MISSING_CAPTION);
  message.text = strings.Load(IDS_FILES_MISSING_TEXT);
  message.firstButton = strings.Load(IDS_FILES_MISSING_GET);
  message.secondButton = strings.Load(IDS_FILES_MISSING_CLOSE);
  // Closing the box declines as well: nobody who did not ask for a download should get one.
  if (messages.Ask(message).answer == MessageAnswer::First) return true;
  help.OpenHelpPage(HelpPageForMessage(message.key));
  return false;
}

}  // namespace sonaro
