#include "tray/ProxyChoice.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr std::string_view kScheme = "http://";
// Longer numbers are refused before they are read, leading zeros included.
constexpr std::size_t kMaxPortDigits = 5;
constexpr std::int64_t kHighestPort = 65535;

bool IsPort(std::string_view text) {
  const bool digits = !text.empty() && text.size() <= kMaxPortDigits &&
                      text.find_first_not_of("0123456789") == std::string_view::npos;
  return digits && NumberValue(text) >= 1 && NumberValue(text) <= kHighestPort;
}

// A name, an IPv4 or an IPv6 number. One colon alone means that a port stands with it.
bool IsBareAddress(std::string_view text) {
  const auto forbidden = [](char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7F' ||
           std::string_view("/\\\"@?#").find(c) != std::string_view::npos;
  };
  return std::none_of(text.begin(), text.end(), forbidden) && std::count(text.begin(), text.end(), ':') != 1;
}

void SetIfChanged(CReg& reg, const setting::Text& setting, std::string_view text) {
  if (reg.Get(setting) != text) reg.Set(setting, text);
}

}  // namespace

// As browsers store it: with or without scheme, port and slash. The last colon sets off the port.
ProxyServer SplitProxy(std::string_view found) {
  found = TrimBlanks(found);
  if (StartsWithIgnoringCase(found, kScheme)) found.remove_prefix(kScheme.size());
  while (!found.empty() && found.back() == '/') found.remove_suffix(1);
  const auto colon = found.rfind(':');
  if (colon == std::string_view::npos) return {std::string(found), kUsualProxyPort};
  return {std::string(TrimBlanks(found.substr(0, colon))), std::string(TrimBlanks(found.substr(colon + 1)))};
}

ProxyFault CheckProxy(const ProxyServer& server) {
  const std::string_view address = TrimBlanks(server.address);
  if (address.empty()) return ProxyFault::NoAddress;
  if (!IsBareAddress(address)) return ProxyFault::BadAddress;
  return IsPort(TrimBlanks(server.port)) ? ProxyFault::None : ProxyFault::BadPort;
}

void StoreProxy(CReg& reg, bool use, const ProxyServer& server) {
  if (reg.Get(setting::kProxyUse) != use) reg.Set(setting::kProxyUse, use);
  // The address stays stored for the next time that a proxy is wanted.
  if (!use) return;
  SetIfChanged(reg, setting::kProxyAddress, TrimBlanks(server.address));
  SetIfChanged(reg, setting::kProxyPort, TrimBlanks(server.port));
}

}  // namespace sonaro
