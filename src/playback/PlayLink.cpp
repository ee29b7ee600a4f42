#include "playback/PlayLink.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr char kWebPage = 'w';
constexpr char kAsxProgram = 'm';

// Schemes that name something of this computer or make it run something, in lower case; those that begin with
// "ms-" besides.
constexpr std::string_view kLocalSchemes[] = {"file", "res",   "mk",    "javascript", "vbscript",
                                              "data", "about", "shell", "search",     "search-ms",
                                              "ldap", "smb",   "jar"};

// Of ASCII only: letter cases of other scripts would let look-alikes pass.
constexpr char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool IsLetter(char c) { return LowerAscii(c) >= 'a' && LowerAscii(c) <= 'z'; }

}  // namespace

PlayLink PlayLink::FromText(std::string_view text) {
  if (text.starts_with(kWebPage)) return {PlayWay::WebPage, std::string(text.substr(1))};
  if (text.starts_with(kAsxProgram)) return {PlayWay::AsxProgram, std::string(text.substr(1))};
  return {PlayWay::RealPlayer, std::string(text)};
}

std::string PlayLink::ToText() const {
  if (address.empty()) return {};
  if (way == PlayWay::WebPage) return kWebPage + address;
  const bool readsAsPrefix = address[0] == kWebPage || address[0] == kAsxProgram;
  return way == PlayWay::AsxProgram || readsAsPrefix ? kAsxProgram + address : address;
}

namespace {

bool IsPlayerScheme(std::string_view scheme) {
  std::string lower(scheme);
  for (char& c : lower) c = LowerAscii(c);
  const bool driveLetter = lower.size() == 1 && IsLetter(lower[0]);
  const bool plain = !lower.empty() && std::all_of(lower.begin(), lower.end(), [](char c) {
    return IsLetter(c) || IsDigit(c) || c == '+' || c == '-' || c == '.';
  });
  return plain && !driveLetter && lower[0] != '-' && !lower.starts_with("ms-") &&
         std::find(std::begin(kLocalSchemes), std::end(kLocalSchemes), lower) == std::end(kLocalSchemes);
}

// A host that needs no scheme to be known for one: "a.example", "a.example:8000", "server:8000".
bool IsBareHost(std::string_view authority) {
  const std::size_t colon = authority.find(':');
  const std::string_view host = authority.substr(0, colon);
  const std::string_view port =
      colon == std::string_view::npos ? std::string_view() : authority.substr(colon + 1);
  if (colon != std::string_view::npos && (port.empty() || !std::all_of(port.begin(), port.end(), IsDigit)))
    return false;
  const std::size_t dot = host.find('.');
  return host.size() > 1 && dot != 0 && (dot != std::string_view::npos || !port.empty()) &&
         host.find("..") == std::string_view::npos;
}

bool IsHexDigit(char c) { return IsDigit(c) || (LowerAscii(c) >= 'a' && LowerAscii(c) <= 'f'); }

// "%20" stands for a byte; any other percent sign may begin the name of a variable.
bool EveryPercentIsACode(std::string_view text) {
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
    if (at + 2 >= text.size() || !IsHexDigit(text[at + 1]) || !IsHexDigit(text[at + 2])) return false;
  }
  return true;
}

bool IsOneArgument(std::string_view text) {
  return !text.empty() && text[0] != '-' && text[0] != '/' &&
         std::none_of(text.begin(), text.end(),
                      [](unsigned char c) { return c <= 0x20 || c == 0x7F || c == '"' || c == '\\'; });
}

std::string PercentEncodeBeyondAscii(std::string_view text) {
  constexpr const char* kHex = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      encoded += c;
    } else {
      encoded += {'%', kHex[byte >> 4], kHex[byte & 15]};
    }
  }
  return encoded;
}

}  // namespace

std::optional<std::string> PlayerArgument(std::string_view address) {
  const std::string_view text = TrimBlanks(address);
  if (!IsOneArgument(text) || !EveryPercentIsACode(text)) return std::nullopt;
  const std::size_t schemeEnd = text.find("://");
  const std::size_t pathBegin = text.find_first_of("/?#");
  if (schemeEnd != std::string_view::npos && schemeEnd < pathBegin) {
    const std::string_view rest = text.substr(schemeEnd + 3);
    if (!IsPlayerScheme(text.substr(0, schemeEnd)) || rest.find_first_of("/?#") == 0 || rest.empty())
      return std::nullopt;
    return PercentEncodeBeyondAscii(text);
  }
  if (!IsBareHost(text.substr(0, pathBegin))) return std::nullopt;
  return "http://" + PercentEncodeBeyondAscii(text);
}

}  // namespace sonaro
