// The proxy that the user gives the program: taking one apart that was found, checking what was typed,
// storing it. What the settings mean for a request is net's business.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;

struct ProxyServer {
  std::string address;
  std::string port;
  friend bool operator==(const ProxyServer&, const ProxyServer&) = default;
};

// The port of a proxy that names none.
inline constexpr const char* kUsualProxyPort = "80";

enum class ProxyFault {
  None,
  NoAddress,
  BadAddress,  // not the bare name or number of a machine
  BadPort      // not a number from 1 to 65535
};

// "host:port" as a browser keeps it, perhaps with "http://" before it. Without a port it is 80; "" gives an
// empty address.
ProxyServer SplitProxy(std::string_view found);

// Both texts are taken without the blanks around them.
ProxyFault CheckProxy(const ProxyServer& server);

// Stores what differs from the settings; address and port only when the proxy is to be used.
void StoreProxy(CReg& reg, bool use, const ProxyServer& server);

}  // namespace sonaro
