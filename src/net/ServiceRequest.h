// How a request to the service is put together: where to connect, what to ask for, by way of which proxy and
// with which identifier; and where a redirect leads. One set of rules for every window that talks to the
// service. Reads the proxy settings; sends nothing itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class HttpControl;
class HttpEvents;

// The proxy's address when a proxy is used, else the host of the URL: what stands between its first "//" and
// the next "/". "" when there is no "//".
std::string ServerHostFor(const CReg& reg, std::string_view url);
// The whole URL when a proxy is used, else its path with what follows; "/" when it has none.
std::string RequestTargetFor(const CReg& reg, std::string_view url);
// The proxy's port when a proxy is used and its setting is a number that is a port, else 80. Without a proxy
// every URL is reached on port 80, whatever it says.
std::uint16_t ProxyPortSetting(const CReg& reg);

// "http://" + host + ":" + port.
std::string ProxyProperty(std::string_view host, std::string_view port);

struct ServiceRequest {
  std::string proxy;  // "" for none
  std::string host;
  std::uint16_t port = 80;
  std::string requestText;
};

// The request for `url` with `query` behind its target.
ServiceRequest BuildServiceRequest(const CReg& reg, std::string_view url, std::string_view query);
void Send(const ServiceRequest& request, HttpControl& http, HttpEvents& events);

// The request that tries a proxy which is not set: the whole URL, asked of the proxy. An invalid
// port means 80.
ServiceRequest BuildProxyTest(std::string_view address, std::string_view port, std::string_view url);

// The start of the query of every first request: the key and this installation's identifier.
std::string QueryStart(const CReg& reg);

// Whether the program contacts such an address at all: "http://" and a host, without control characters or
// blanks.
bool IsServiceAddress(std::string_view url);

// Makes the identifier of this installation, the setting "InstallId", at the first start: 32 random
// hexadecimal digits, which say nothing about the user or the machine. A value that is there stays.
void EnsureInstallId(CReg& reg);

// The address behind "Location: " in the headers of a redirect; "" when there is none. `headers` begin with
// the status line and end their lines with CR LF.
std::string RedirectTarget(std::string_view headers);

}  // namespace sonaro
