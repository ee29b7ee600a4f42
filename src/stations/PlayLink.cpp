// A link is an address with the way to play it in front: "w" for a web page, "m" for the program of .asx
// files, nothing for RealPlayer. An address for RealPlayer that itself begins with one of these letters is
// written with a capital one: schemes and hosts, which addresses begin with, ignore letter case.
//
// Addresses end up on the command line of a program. PlayerArgument lets through what is one argument, is no
// switch, names nothing on this computer and holds nothing that the system would expand.
#include "stations/PlayLink.h"

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

bool PlayLink::IsPls() const {
  constexpr std::string_view kEnding = ".pls";
  const std::string_view path = std::string_view(address).substr(0, address.find_first_of("?#;"));
  return path.size() > kEnding.size() &&
         EqualIgnoringCase(path.substr(path.size() - kEnding.size()), kEnding);
}

std::string PlayLink::ToText() const {
  if (address.empty()) return {};
  if (way == PlayWay::WebPage) return kWebPage + address;
  if (way == PlayWay::AsxProgram) return kAsxProgram + address;
  std::string text = address;
  if (text[0] == kWebPage || text[0] == kAsxProgram) text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
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

// "%20" at the position, which stands for a byte.
bool IsCode(std::string_view text, std::size_t at) {
  return at + 2 < text.size() && IsHexDigit(text[at + 1]) && IsHexDigit(text[at + 2]);
}

bool IsVariableName(std::string_view text) {
  return !text.empty() && (IsLetter(text[0]) || text[0] == '_') &&
         std::all_of(text.begin(), text.end(),
                     [](char c) { return IsLetter(c) || IsDigit(c) || c == '_' || c == '(' || c == ')'; });
}

// "%TEMP%": a name between two percent signs of which not both begin a code. A single percent sign stays what
// it is, as some services write their addresses.
bool NamesAVariable(std::string_view text) {
  std::size_t before = text.find('%');
  while (before != std::string_view::npos) {
    const std::size_t next = text.find('%', before + 1);
    if (next == std::string_view::npos) return false;
    if (IsVariableName(text.substr(before + 1, next - before - 1)) &&
        !(IsCode(text, before) && IsCode(text, next))) {
      return true;
    }
    before = next;
  }
  return false;
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
  if (!IsOneArgument(text) || NamesAVariable(text)) return std::nullopt;
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
