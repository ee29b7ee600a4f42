// Where the service is: the one place that names its hosts. The build option SONARO_SERVICE_HOST puts another
// web host in the place of the built-in one; the other hosts follow it.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

#ifdef SONARO_SERVICE_HOST
inline constexpr std::string_view kWebHost = SONARO_SERVICE_HOST;
#else
inline constexpr std::string_view kWebHost = "www.sonaro.example";
#endif

enum class ServiceHost { Web, Database, StationInformation, Search };

// The host of one of the services: the web host itself, or "db.", "stations." and "search." under its domain,
// which is the web host without a "www." at its start.
std::string HostOf(ServiceHost host);

// "http://" + host + `path`, which begins with "/".
std::string ServiceAddress(ServiceHost host, std::string_view path);

}  // namespace sonaro
