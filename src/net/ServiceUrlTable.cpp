#include "net/ServiceUrlTable.h"

#include <optional>

#include "base/Text.h"
#include "net/ServiceRequest.h"
#include "settings/CReg.h"
#include "settings/ServiceHosts.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr std::size_t kMaxValueLength = 2048;

enum class Kind { Address, Text };

struct Row {
  std::string_view key;  // in an update file; "" when no update brings it
  setting::Text setting;
  Kind kind;
  ServiceHost host;
  std::string_view fallback;  // an address's path on `host`, or the text; "" for none
  const char* registryKey = kSettingsKey;
};

using enum Kind;
using enum ServiceHost;

// Every address of the service in one row: the key by which an update changes it, the setting that holds it,
// and what it is until an update says otherwise. Keys are spelled as update files spell them, "PriacyPol"
// too.
constexpr Row kRows[] = {
    {"::UpdateURL::", setting::kUpdateUrl, Address, Web, "/sonaroapp/sonaro4vf/asp/appupdate/update.asp"},
    {"::NotifyURL::", setting::kNotifyUrl, Address, Web, "/sonaroapp/sonaro4vf/asp/notify/notify.asp"},
    {"::LiveUpdate::", setting::kLiveUpdate, Address, Web,
     "/sonaroapp/sonaro3/asp/getevents/GetLiveInfo.asp"},
    {"::FacePlateURL::", setting::kFacePlateUrl, Address, Web, "/sonaroapp/sonaro4/asp/faceplate"},
    {"::SendComment::", setting::kSendComment, Address, Web, "/sonaroapp/sonaro3/asp/comments/comments.asp"},
    {"::SendFriend::", setting::kSendFriend, Address, Web, "/sonaroapp/sonaro3/asp/comments/sendfriend.asp"},
    {"::OwnURL::", setting::kOwnUrl, Address, Web, "/sonaroapp/sonaro3/asp/ownlink/SendOwnLink.asp"},
    {"::OwnURLGet::", setting::kOwnUrlGet, Address, Web, "/sonaroapp/sonaro3/asp/ownlink/OwnLink.asp"},
    {"::ProxyTest::", setting::kProxyTest, Address, Web, "/sonaroapp/sonaro3/asp/proxy/test.asp"},
    {"::ProxyTestText::", setting::kProxyTestText, Text, Web, "cool proxy works!"},
    {"::HelpURL::", setting::kHelpUrl, Address, Web, "/sonaroapp/sonaro4vf/apphelp"},
    {"::TestRealURL::", setting::kTestRealUrl, Address, Web, "/sonaroapp/sonaro3/testrealurl.ram"},
    {"::PriacyPol::", setting::kPrivacyPolicy, Address, Web, "/privacy.html"},
    {"::PersonalPage::", setting::kPersonalPage, Address, Database,
     "/sonaroapp/sonaro3/asp/startpage/UserPage.asp?sShows="},
    {"::SchedOnNowInfoURL::", setting::kSchedOnNowInfoUrl, Address, StationInformation,
     "/sonaroapp/sonaro3/asp/stationinfo/GetShowsOnNow4.asp?sStations="},
    {"::SchedStationInfoURL::", setting::kSchedStationInfoUrl, Address, StationInformation,
     "/sonaroapp/sonaro3/asp/stationinfo/GetStationInfo4.asp?sStations="},
    {"::AdLocation::", setting::kGetAdsHere, Address, Web, "/sonaroapp/sonaro3f/asp/adserver/getad.asp"},
    {"::NumberAds::", setting::kNumberOfAds, Text, Web, "", kAdsKey},
    {"::sLocal::", setting::kLocal, Text, Web, ""},
    {"", setting::kSearchShowUrl, Address, Search,
     "/sonaroapp/sonaro3/asp/searchshows/searchshows.asp?sSearchWords="},
};

std::string DefaultOf(const Row& row) {
  if (row.fallback.empty() || row.kind == Text) return std::string(row.fallback);
  return ServiceAddress(row.host, row.fallback);
}

// What stands between `key` and the next "::"; nothing when either is missing.
std::optional<std::string_view> ValueBehind(std::string_view line, std::string_view key) {
  const std::size_t at = line.find(key);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view rest = line.substr(at + key.size());
  const std::size_t end = rest.find("::");
  if (end == std::string_view::npos) return std::nullopt;
  return rest.substr(0, end);
}

}  // namespace

// What an update or the user has set stays; an address that was emptied comes back.
void WriteServiceDefaults(CReg& reg) {
  const SettingsBatch batch(reg);
  for (const Row& row : kRows) {
    if (row.fallback.empty() || !reg.Get(row.setting).empty()) continue;
    reg.Set(row.setting, DefaultOf(row));
  }
}

std::string ServiceDefault(const setting::Text& setting) {
  for (const Row& row : kRows) {
    if (std::string_view(setting.name) == row.setting.name) return DefaultOf(row);
  }
  return {};
}

std::string ServiceSetting(const CReg& reg, const setting::Text& setting) {
  const std::string value = reg.Get(setting);
  return value.empty() ? ServiceDefault(setting) : value;
}

std::string StoredServiceSetting(CReg& reg, const setting::Text& setting) {
  std::string value = ServiceSetting(reg, setting);
  if (reg.Get(setting).empty()) reg.Set(setting, value);
  return value;
}

void FindServiceValues(std::string_view line, std::vector<ServiceValue>& found, std::size_t& refused) {
  if (line.find("::") == std::string_view::npos) return;
  for (const Row& row : kRows) {
    if (row.key.empty()) continue;
    const std::optional<std::string_view> value = ValueBehind(line, row.key);
    if (!value || value->empty()) continue;
    // An address may only lead to the service itself: an update must not send installations elsewhere.
    if (value->size() > kMaxValueLength || (row.kind == Address && !IsServiceAddress(*value))) {
      ++refused;
    } else {
      found.push_back({row.registryKey, row.setting.name, std::string(*value)});
    }
  }
}

}  // namespace sonaro
