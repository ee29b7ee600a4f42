#include "net/ProxyDetection.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr std::string_view kDefaultUser = ".Default\\";
constexpr const char* kNetscapeUsers = "SOFTWARE\\Netscape\\Netscape Navigator\\Users";
constexpr std::string_view kHostLine = "user_pref(\"network.proxy.http\",";
constexpr std::string_view kPortLine = "user_pref(\"network.proxy.http_port\",";

std::string ReadIn(CReg& reg, RootKey root, const std::string& key, const char* value) {
  const MainKeyScope scope(reg, root);
  return reg.GetData(key, value);
}

// The text from `from` on, trimmed, up to the first `end`.
std::string ValueIn(std::string_view line, std::size_t from, char end) {
  if (line.size() <= from) return {};
  const std::string_view value = TrimBlanks(line.substr(from));
  return std::string(value.substr(0, value.find(end)));
}

// Hosts and ports hold no control characters; a setting with one is damaged and does not count.
std::string WithoutControls(std::string proxy) {
  const bool damaged =
      std::any_of(proxy.begin(), proxy.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
  return damaged ? std::string() : std::move(proxy);
}

}  // namespace

// "ProxyEnable" is a number of four bytes on most systems: as text it is empty exactly when it is 0.
std::string DetectIeProxy(CReg& reg) {
  const std::string key = systemkey::kInternetSettings;
  const std::string defaultKey = std::string(kDefaultUser) + key;
  std::string enabled = ReadIn(reg, RootKey::Users, defaultKey, systemkey::kProxyEnable);
  if (enabled.empty()) enabled = ReadIn(reg, RootKey::CurrentUser, key, systemkey::kProxyEnable);
  if (enabled.empty()) return {};
  std::string server = ReadIn(reg, RootKey::CurrentUser, key, systemkey::kProxyServer);
  if (server.empty()) server = ReadIn(reg, RootKey::Users, defaultKey, systemkey::kProxyServer);

  // A list of one entry for each protocol: "ftp=other:21;http=proxy:8080". "https=" does not contain "http=".
  constexpr std::string_view kHttpEntry = "http=";
  std::string_view proxy = server;
  if (const std::size_t entry = proxy.find(kHttpEntry); entry != std::string_view::npos) {
    proxy.remove_prefix(entry + kHttpEntry.size());
  }
  proxy = proxy.substr(0, proxy.find(';'));  // without an entry for it the first one is taken as it stands
  return WithoutControls(std::string(proxy));
}

// The browser writes its settings as lines of script: user_pref("network.proxy.http", "host"); and the same
// for the port, without the quotes.
std::string DetectNetscapeProxy(const CReg& reg, Files& files) {
  const std::string user = reg.GetData(kNetscapeUsers, "CurrentUser");
  if (user.empty()) return {};
  const std::string folder = reg.GetData(std::string(kNetscapeUsers) + '\\' + user, "DirRoot");
  if (folder.empty()) return {};
  const ReadResult preferences = ReadWholeFile(files, folder + "\\prefs.js");
  std::string host;
  std::string port;
  for (const std::string_view line : SplitLines(preferences.bytes)) {
    if (line.starts_with(kHostLine)) host = ValueIn(line, kHostLine.size() + 2, '"');  // a blank, a quote
    if (line.starts_with(kPortLine)) port = ValueIn(line, kPortLine.size(), ')');
  }
  return host.empty() || port.empty() ? std::string() : WithoutControls(host + ':' + port);
}

}  // namespace sonaro
