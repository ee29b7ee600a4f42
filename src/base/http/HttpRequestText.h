// The bytes of a request as they go over the wire.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

// `requestText` ("GET " + target + query) exactly as it is, followed by the protocol and the headers. The
// Host header names the host of an absolute target (a request by way of a proxy), else `host` and the port
// unless it is 80. Nothing when the host is empty or either text holds a control character, which could
// smuggle in a second request.
std::optional<std::string> HttpRequestBytes(std::string_view host, std::uint16_t port,
                                            std::string_view requestText, std::string_view userAgent);

// The name to look up and connect to: `host` without the port that an address may carry behind it, and an
// address of colons without its brackets. The port is decided elsewhere.
std::string HostWithoutPort(std::string_view host);

}  // namespace sonaro
