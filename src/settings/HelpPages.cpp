#include "settings/HelpPages.h"

#include "base/DataFolder.h"
#include "base/Text.h"
#include "platform/Shell.h"
#include "settings/CReg.h"
#include "settings/ServiceHosts.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

// Where the pages lie on the service's host. The edition stands between the stored base and the page, so that
// a newer program can have pages of its own.
constexpr std::string_view kDefaultHelpPath = "/sonaroapp/sonaro4vf/apphelp";
constexpr std::string_view kHelpEdition = "/2/";

struct PageOfMessage {
  std::string_view key;
  std::string_view page;
};

// Pages by message key. The numbers are file names on the service and never change.
constexpr PageOfMessage kPages[] = {
    {"DeletePersonalStation", "9030.html"},
    {"ToAddMorePersonalStationYouNeedMoreInfo", "9031.html"},
    {"ToSendCommentToFriendYouNeedMoreInfo", "9032.html"},
    {"ScheduleStationYourNeedToSelectAStation", "9033.html"},
    {"ScheduleStationYourNeedToSelectADate", "9034.html"},
    {"ChangingFacePlate", "9035.html"},
    {"CantFindProgram", "9036.html"},
    {"MissingDataFilesNeedToDownloadThem", "9037.html"},
    {"DeleteFavoriteGroup", "9038.html"},
    {"AlreadyHave10FavoriteGroups", "9039.html"},
    {"TheFavoriteGroupAlreadyExists", "9040.html"},
    {"ToSendCommentToSonaroYouNeedMoreInfo", "9041.html"},
    {"QuickStart", "9070.html"},
};

}  // namespace

std::string_view HelpPageForMessage(std::string_view messageKey) {
  for (const PageOfMessage& entry : kPages) {
    if (entry.key == messageKey) return entry.page;
  }
  return "index.html";
}

void HelpPages::OpenHelpPage(std::string_view page) {
  const std::string builtIn = ServiceAddress(ServiceHost::Web, kDefaultHelpPath);
  std::string address = reg_.Get(setting::kHelpUrl);
  if (address.empty()) {
    address = builtIn;
    reg_.Set(setting::kHelpUrl, address);
  }
  if (address == builtIn && OpenOnDisk(page)) return;
  address.append(kHelpEdition).append(page);
  // The setting may have been written without a scheme.
  if (!StartsWithIgnoringCase(address, "http://")) address.insert(0, "http://");
  browser_.OpenWebPage(address);
}

// Only a file of the program's own folder is handed to the system, which opens whatever it is given; what
// came from outside goes through the browser's check.
bool HelpPages::OpenOnDisk(std::string_view page) {
  const std::string name = std::string(kHelpFolder).append(page);
  return data_.Exists(name) && shell_.Open(data_.Path(name), "", data_.Folder());
}

}  // namespace sonaro
