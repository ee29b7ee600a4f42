#include "base/http/HttpRequest.h"

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

bool StaysAsItIs(char c) {
  constexpr std::string_view kKept = "$-_.+!*'()";
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
         kKept.find(c) != std::string_view::npos;
}

// Codes below 16 get one digit ("%B"), unlike the usual encoding: the service compares what it is sent as
// text.
void AppendHexWithoutPadding(std::string& out, unsigned char code) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  out += '%';
  if (code >= 16) out += kDigits[code / 16];
  out += kDigits[code % 16];
}

// Letter case of ASCII only: a folding that knows more letters would let look-alikes through.
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool TakeScheme(std::string_view& text, std::string_view scheme) {
  if (text.size() < scheme.size()) return false;
  for (std::size_t i = 0; i < scheme.size(); ++i) {
    if (Lower(text[i]) != scheme[i]) return false;
  }
  text.remove_prefix(scheme.size());
  return true;
}

// A host name or a bracketed address with an optional port, behind an optional user.
bool IsAuthority(std::string_view text) {
  text.remove_prefix(text.rfind('@') + 1);
  const std::size_t hostEnd =
      text.starts_with('[') ? text.find(']') + 1 : std::min(text.find(':'), text.size());
  if (hostEnd == 0) return false;
  const std::string_view port = text.substr(hostEnd);
  return port.empty() || (port.size() > 1 && port[0] == ':' &&
                          port.find_first_not_of("0123456789", 1) == std::string_view::npos);
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

std::string UrlEncodeQuery(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 2);
  for (const char c : text) {
    if (c == '\n') continue;
    if (c == ' ' || c == '\t' || c == '\r') {
      out += '+';
    } else if (StaysAsItIs(c)) {
      out += c;
    } else {
      AppendHexWithoutPadding(out, static_cast<unsigned char>(c));
    }
  }
  return out;
}

bool IsWebAddress(std::string_view text) {
  if (!TakeScheme(text, "http://") && !TakeScheme(text, "https://")) return false;
  return IsAuthority(text.substr(0, text.find_first_of("/?#\\"))) &&
         std::none_of(text.begin(), text.end(),
                      [](unsigned char c) { return c <= 0x20 || c == 0x7F || c == '"'; });
}

}  // namespace sonaro
