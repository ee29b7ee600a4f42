#include "base/http/HttpRequestText.h"

#include <algorithm>

namespace sonaro {

namespace {

constexpr std::uint16_t kUsualPort = 80;

bool IsControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 0x20 || code == 0x7F;
}

bool CanBeSent(std::string_view text) {
  return !text.empty() && std::none_of(text.begin(), text.end(), IsControl);
}

// "host:port" of "GET http://host:port/path"; "" when the target is a path.
std::string_view HostOfTarget(std::string_view requestText) {
  constexpr std::string_view kAbsolute = "GET http://";
  if (!requestText.starts_with(kAbsolute)) return {};
  const std::string_view rest = requestText.substr(kAbsolute.size());
  return rest.substr(0, rest.find_first_of("/? "));
}

}  // namespace

// HTTP/1.0 with a Host header: servers of several sites need the header, and the version keeps the answer in
// one piece and closes the connection behind it. Whatever control characters get in through a setting could
// add headers or a second request, so they make the request invalid. Of a request through a proxy the host is
// that of the target.
std::optional<std::string> HttpRequestBytes(std::string_view host, std::uint16_t port,
                                            std::string_view requestText, std::string_view userAgent) {
  if (!CanBeSent(host) || host.find(' ') != std::string_view::npos || !CanBeSent(requestText)) {
    return std::nullopt;
  }
  std::string named(HostOfTarget(requestText));
  if (named.empty()) {
    named = host;
    if (port != kUsualPort) named += ':' + std::to_string(port);
  }
  std::string bytes(requestText);
  bytes.append(" HTTP/1.0\r\nHost: ").append(named);
  bytes.append("\r\nUser-Agent: ").append(userAgent);
  bytes.append("\r\nConnection: close\r\n\r\n");
  return bytes;
}

std::string HostWithoutPort(std::string_view host) {
  // A numeric IPv6 address in brackets, or without them and then full of colons; only a single colon sets off
  // a port.
  if (host.starts_with('[')) return std::string(host.substr(1, host.find(']') - 1));
  const std::size_t colon = host.find(':');
  return std::string(host.rfind(':') == colon ? host.substr(0, colon) : host);
}

}  // namespace sonaro
