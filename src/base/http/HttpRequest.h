// Requests over HTTP: which addresses a browser may be given, texts in their query, and the bytes of a
// request as they go over the wire.
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

// Every byte of `text` for use in the query of a web address, the way the service decodes it. Letters, digits
// and $ - _ . + ! * ' ( ) stay; blank, tab and carriage return become "+"; a line feed is dropped; any other
// byte is "%" and its code in upper-case hexadecimal WITHOUT a leading zero (5 gives "%5"), which is what the
// service reads. A "+" in the text stays
// "+" and so looks like a blank on the other side.
std::string UrlEncodeQuery(std::string_view text);

// Whether an address may be opened in the browser: true for "http://" or "https://" in any letter case
// followed by a host, without blanks, control characters and double quotes anywhere.
bool IsWebAddress(std::string_view text);

}  // namespace sonaro
