#include "net/ServiceRequest.h"

#include <algorithm>
#include <random>

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "platform/HttpControl.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr std::uint16_t kUsualPort = 80;
constexpr std::int64_t kLastPort = 65535;

bool UsesProxy(const CReg& reg) { return reg.Get(setting::kProxyUse); }

// A setting or a field: what is no port means the usual one, rather than no request at all.
std::uint16_t PortOf(std::string_view text) {
  const std::int64_t port = IsNumeric(text) ? NumberValue(text) : 0;
  return port >= 1 && port <= kLastPort ? static_cast<std::uint16_t>(port) : kUsualPort;
}

// What follows the first "//"; nothing when there is none.
std::string_view BehindScheme(std::string_view url) {
  const std::size_t slashes = url.find("//");
  return slashes == std::string_view::npos ? std::string_view() : url.substr(slashes + 2);
}

// Of the system's source of chance. They need not be secret, only different from everybody else's.
std::string RandomDigits(std::size_t count) {
  std::random_device random;
  std::uniform_int_distribution<std::size_t> digit(0, 15);
  std::string digits;
  while (digits.size() < count) digits += "0123456789abcdef"[digit(random)];
  return digits;
}

}  // namespace

std::string ServerHostFor(const CReg& reg, std::string_view url) {
  if (UsesProxy(reg)) return std::string(TrimBlanks(reg.Get(setting::kProxyAddress)));
  const std::string_view rest = BehindScheme(url);
  return std::string(rest.substr(0, rest.find('/')));
}

// A proxy has to be told the host too, so it gets the whole address.
std::string RequestTargetFor(const CReg& reg, std::string_view url) {
  if (UsesProxy(reg)) return std::string(url);
  const std::string_view rest = BehindScheme(url);
  const std::size_t path = rest.find('/');
  return path == std::string_view::npos ? "/" : std::string(rest.substr(path));
}

std::uint16_t ProxyPortSetting(const CReg& reg) {
  return UsesProxy(reg) ? PortOf(reg.Get(setting::kProxyPort)) : kUsualPort;
}

std::string ProxyProperty(std::string_view host, std::string_view port) {
  return std::string("http://").append(host).append(":").append(port);
}

ServiceRequest BuildServiceRequest(const CReg& reg, std::string_view url, std::string_view query) {
  ServiceRequest request;
  request.host = ServerHostFor(reg, url);
  request.port = ProxyPortSetting(reg);
  request.requestText = "GET " + RequestTargetFor(reg, url).append(query);
  if (UsesProxy(reg)) request.proxy = ProxyProperty(request.host, std::to_string(request.port));
  return request;
}

// The proxy first: the request begins with the second call.
void Send(const ServiceRequest& request, HttpControl& http, HttpEvents& events) {
  http.SetProxy(request.proxy);
  http.Request(request.host, request.port, request.requestText, events);
}

ServiceRequest BuildProxyTest(std::string_view address, std::string_view port, std::string_view url) {
  ServiceRequest request;
  request.host = TrimBlanks(address);
  request.port = PortOf(port);
  request.requestText = std::string("GET ").append(url);
  request.proxy = ProxyProperty(request.host, std::to_string(request.port));
  return request;
}

std::string QueryStart(const CReg& reg) { return "?ajfsfsr=" + UrlEncodeQuery(reg.Get(setting::kInstallId)); }

// Addresses come out of settings, which an update may have set.
bool IsServiceAddress(std::string_view url) {
  constexpr std::string_view kScheme = "http://";
  if (!StartsWithIgnoringCase(url, kScheme)) return false;
  const std::string_view rest = url.substr(kScheme.size());
  return !rest.empty() && rest.front() != '/' && std::none_of(url.begin(), url.end(), [](char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7F';
  });
}

void EnsureInstallId(CReg& reg) {
  if (reg.Get(setting::kInstallId).empty()) reg.Set(setting::kInstallId, RandomDigits(32));
}

// The headers come from HttpResponse, which spells this name and ends each line in one way only.
std::string RedirectTarget(std::string_view headers) {
  constexpr std::string_view kMark = "\nLocation: ";
  const std::size_t at = headers.find(kMark);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = headers.substr(at + kMark.size());
  const std::size_t end = rest.find('\n');
  if (end == std::string_view::npos || end == 0) return {};
  return std::string(rest.substr(0, end - 1));  // without the carriage return
}

}  // namespace sonaro
