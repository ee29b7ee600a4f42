#include "settings/ServiceHosts.h"

namespace sonaro {

namespace {

constexpr std::string_view Domain() {
  constexpr std::string_view kWww = "www.";
  return kWebHost.starts_with(kWww) ? kWebHost.substr(kWww.size()) : kWebHost;
}

constexpr std::string_view Prefix(ServiceHost host) {
  switch (host) {
    case ServiceHost::Database:
      return "db.";
    case ServiceHost::StationInformation:
      return "stations.";
    case ServiceHost::Search:
      return "search.";
    case ServiceHost::Web:
      break;
  }
  return "";
}

}  // namespace

std::string HostOf(ServiceHost host) {
  if (host == ServiceHost::Web) return std::string(kWebHost);
  return std::string(Prefix(host)).append(Domain());
}

std::string ServiceAddress(ServiceHost host, std::string_view path) {
  return "http://" + HostOf(host).append(path);
}

}  // namespace sonaro
