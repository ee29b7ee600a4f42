#include "stations/Addresses.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/Text.h"
#include "stations/PlayLink.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

// Addresses come from strangers and end up on the command line of a player. What is refused here is what a
// player could take for a switch or a second argument, what cannot be an address, and what is certain not to
// answer.
constexpr std::size_t kMaxAddressLength = 2000;
// An address of this length is likely to carry a session, which ends; it stays, but comes last.
constexpr std::size_t kSuspiciousLength = 300;

// What players open. "icy" is HTTP by another name and becomes "http" (Check).
constexpr std::array<std::string_view, 11> kStreamSchemes = {"http",  "https", "mms",  "mmsh", "mmst", "rtsp",
                                                             "rtsps", "rtspt", "rtmp", "pnm",  "icy"};
constexpr std::array<std::string_view, 2> kWebSchemes = {"http", "https"};

bool IsControlOrBlank(char c) { return static_cast<unsigned char>(c) <= 0x20 || c == 0x7F; }

// Also "%20" in front: a blank that was copied with the address and encoded by a form.
std::string_view TrimControls(std::string_view text) {
  for (;;) {
    if (!text.empty() && IsControlOrBlank(text.front())) {
      text.remove_prefix(1);
    } else if (!text.empty() && IsControlOrBlank(text.back())) {
      text.remove_suffix(1);
    } else if (text.starts_with("%20")) {
      text.remove_prefix(3);
    } else {
      return text;
    }
  }
}

std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

// The host of an authority, which may name a user before it and a port behind it; of one in brackets the
// closing bracket is missing.
std::string_view HostIn(std::string_view authority) {
  if (const std::size_t user = authority.rfind('@'); user != std::string_view::npos)
    authority.remove_prefix(user + 1);
  const std::size_t end = authority.find(authority.starts_with('[') ? ']' : ':');
  return authority.substr(0, end);
}

bool IsUsableHost(std::string_view authority) {
  const std::string_view host = HostIn(authority);
  if (host.starts_with('[')) return host.size() > 1 && authority.find(']') != std::string_view::npos;
  return host.find('.') != std::string_view::npos && !host.starts_with('.') &&
         !EqualIgnoringCase(host, "www.") &&
         authority.find_first_of("<>{}|^`%!$&*()+,;='") == std::string_view::npos;
}

// Where the host begins and how long it is with user and port.
std::string_view Authority(std::string_view address) {
  const std::size_t scheme = address.find("://");
  if (scheme == std::string_view::npos) return {};
  address.remove_prefix(scheme + 3);
  return address.substr(0, address.find_first_of("/?#"));
}

std::string_view ProblemOf(std::string_view address, std::span<const std::string_view> schemes) {
  if (address.empty()) return "no address";
  if (address.size() > kMaxAddressLength) return "longer than 2,000 characters";
  if (std::any_of(address.begin(), address.end(),
                  [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; })) {
    return "control character in the address";
  }
  if (address.find('"') != std::string_view::npos) return "double quote in the address";
  if (address.find(' ') != std::string_view::npos) return "blank in the address";
  if (address.find('\\') != std::string_view::npos) return "backslash in the address";
  if (address[0] == '-' || address[0] == '/') return "begins like a switch";
  const std::size_t schemeEnd = address.find("://");
  if (schemeEnd == std::string_view::npos) return "not an address on the web";
  if (std::find(schemes.begin(), schemes.end(), address.substr(0, schemeEnd)) == schemes.end()) {
    return "a kind of address that cannot be opened";
  }
  if (address.find("${") != std::string_view::npos) return "a placeholder that nobody filled in";
  // Proxies and redirectors hold an address within the address, which is fine; more are a generator gone
  // wrong.
  if (CountOf(address, "://") > 3) return "repeats itself";
  if (!IsUsableHost(Authority(address))) return "no host in the address";
  return {};
}

// Only "&amp;" is decoded. In an address any other "&name;" may be a parameter that is meant as it stands.
std::string WithPlainAmpersands(std::string_view text) {
  std::string result(text);
  for (std::size_t at = result.find("&amp;"); at != std::string::npos; at = result.find("&amp;", at + 1)) {
    result.erase(at + 1, 4);
  }
  return result;
}

CheckedAddress Check(std::string_view raw, std::span<const std::string_view> schemes) {
  std::string address = WithPlainAmpersands(TrimControls(raw));
  const std::size_t schemeEnd = address.find("://");
  if (schemeEnd != std::string::npos) {
    std::string scheme = FoldCase(std::string_view(address).substr(0, schemeEnd));
    if (scheme == "icy") scheme = "http";
    address.replace(0, schemeEnd, scheme);
  }
  const std::string_view problem = ProblemOf(address, schemes);
  if (!problem.empty()) address.clear();
  return {std::move(address), problem};
}

// Higher is worse. A playlist needs another request before anything is heard, a numeric host changes when the
// station moves, and a very long address is likely to have expired; each outweighs all before it together.
int Disadvantage(const std::string& address) {
  const std::string ending = AddressEnding(address);
  const bool playlist =
      ending == ".pls" || ending == ".m3u" || ending == ".asx" || ending == ".xspf" || ending == ".ram";
  const std::string host = HostOfAddress(address);
  const bool numeric = host.find_first_not_of("0123456789.") == std::string::npos || host.starts_with('[');
  return (playlist ? 1 : 0) + (numeric ? 2 : 0) + (address.size() > kSuspiciousLength ? 4 : 0);
}

}  // namespace

CheckedAddress CheckStreamAddress(std::string_view raw) { return Check(raw, kStreamSchemes); }

CheckedAddress CheckWebSite(std::string_view raw) {
  const std::string_view text = TrimControls(raw);
  if (StartsWithIgnoringCase(text.substr(0, 4), "www."))
    return Check("http://" + std::string(text), kWebSchemes);
  return Check(text, kWebSchemes);
}

std::string HostOfAddress(std::string_view address) {
  std::string folded = FoldCase(HostIn(Authority(address)));
  if (folded.starts_with("www.")) folded.erase(0, 4);
  return folded;
}

// Two addresses are the same stream when they differ only in scheme, in the letter case of the host and in
// slashes at the end. The path keeps its letter case: servers tell it apart.
std::string AddressKey(std::string_view address) {
  const std::string_view authority = Authority(address);
  if (authority.empty()) return std::string(address);
  std::string_view path = address.substr(static_cast<std::size_t>(authority.end() - address.begin()));
  while (path.ends_with('/')) path.remove_suffix(1);
  return FoldCase(authority).append(path);
}

std::vector<std::string> BestFirst(std::vector<std::string> addresses) {
  std::stable_sort(addresses.begin(), addresses.end(), [](const std::string& a, const std::string& b) {
    return Disadvantage(a) < Disadvantage(b);
  });
  return addresses;
}

}  // namespace sonaro
