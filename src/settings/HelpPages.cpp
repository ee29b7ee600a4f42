#include "settings/HelpPages.h"

#include "base/Text.h"
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
  std::string address = reg_.Get(setting::kHelpUrl);
  if (address.empty()) {
    address = ServiceAddress(ServiceHost::Web, kDefaultHelpPath);
    reg_.Set(setting::kHelpUrl, address);
  }
  address.append(kHelpEdition).append(page);
  // The setting may have been written without a scheme.
  if (!StartsWithIgnoringCase(address, "http://")) address.insert(0, "http://");
  browser_.OpenWebPage(address);
}

}  // namespace sonaro
