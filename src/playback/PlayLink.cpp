#include "playback/PlayLink.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr char kWebPage = 'w';
constexpr char kAsxProgram = 'm';

}  // namespace

PlayLink PlayLink::FromText(std::string_view text) {
  if (text.starts_with(kWebPage)) return {PlayWay::WebPage, std::string(text.substr(1))};
  if (text.starts_with(kAsxProgram)) return {PlayWay::AsxProgram, std::string(text.substr(1))};
  return {PlayWay::RealPlayer, std::string(text)};
}

std::string PlayLink::ToText() const {
  if (address.empty()) return {};
  if (way == PlayWay::WebPage) return kWebPage + address;
  const bool readsAsPrefix = address[0] == kWebPage || address[0] == kAsxProgram;
  return way == PlayWay::AsxProgram || readsAsPrefix ? kAsxProgram + address : address;
}

bool IsSafeArgument(std::string_view link) {
  const std::string_view argument = TrimBlanks(link);
  if (argument.empty() || argument[0] == '-' || argument[0] == '/') return false;
  return std::none_of(argument.begin(), argument.end(),
                      [](unsigned char c) { return c <= 0x20 || c == 0x7F || c == '"'; });
}

}  // namespace sonaro
