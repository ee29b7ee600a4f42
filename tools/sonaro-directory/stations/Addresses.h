// Judges addresses out of strangers' lists: what can be handed to a player or a browser, and in which order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

struct CheckedAddress {
  std::string address;       // empty when it cannot be used
  std::string_view problem;  // why not, a clause in lower case; empty when it can be used
};

// A stream's address: http, https or one of the streaming schemes, a host, one argument without control
// characters, blanks, double quotes and backslashes. Blanks at the ends and "%20" in front are cut off, "icy"
// becomes http, the scheme is put in small letters.
CheckedAddress CheckStreamAddress(std::string_view raw);

// A web page's address: http or https, under the same rules; "www.x.org" gets "http://" in front.
CheckedAddress CheckWebSite(std::string_view raw);

// The host of an address in small letters, without user, port and "www."; "" when there is none.
std::string HostOfAddress(std::string_view address);

// What two addresses of one stream have in common: no scheme, no slash at the end, the host in small letters.
std::string AddressKey(std::string_view address);

// The addresses best first: as the list orders them, but playlists behind streams, and numeric hosts and very
// long addresses (often tied to one listener's session) behind all others.
std::vector<std::string> BestFirst(std::vector<std::string> addresses);

}  // namespace sonaro
