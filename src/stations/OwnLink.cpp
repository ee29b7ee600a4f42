#include "stations/OwnLink.h"

#include "base/Text.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

bool HasScheme(std::string_view address) {
  const std::size_t schemeEnd = address.find("://");
  return schemeEnd != std::string_view::npos && schemeEnd < address.find_first_of("/?#");
}

}  // namespace

std::optional<std::string> OwnAddress(std::string_view address) {
  std::string own(TrimBlanks(address));
  if (!IsPlayerAddress(own)) return std::nullopt;
  if (!HasScheme(own)) own.insert(0, "http://");
  if (own.size() >= kMaxOwnLink) return std::nullopt;
  return own;
}

std::optional<std::string> OwnLinkText(std::string_view linkText) {
  PlayLink link = PlayLink::FromText(TrimBlanks(linkText));
  const auto address = OwnAddress(link.address);
  if (!address) return std::nullopt;
  link.address = *address;
  return link.ToText();
}

std::optional<std::string> OwnLinkFromField(std::string_view typed, std::string_view before) {
  if (TrimBlanks(typed).empty()) return std::string();
  const auto address = OwnAddress(typed);
  if (!address) return std::nullopt;
  const PlayWay way = before.empty() ? PlayWay::AsxProgram : PlayLink::FromText(before).way;
  return PlayLink{way, *address}.ToText();
}

std::string CleanedLink(std::string_view linkText) {
  const std::string clean = CleanField(linkText, kMaxOwnLink);
  return OwnLinkText(clean).value_or(clean);
}

}  // namespace sonaro
