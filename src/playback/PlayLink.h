// A stream link as it stands in a station's fields. Its first character decides who plays it: "w" a web page,
// "m" the program for .asx files, anything else the RealPlayer-compatible player.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

enum class PlayWay { RealPlayer, AsxProgram, WebPage };

struct PlayLink {
  PlayWay way = PlayWay::RealPlayer;
  std::string address;  // what is handed over

  static PlayLink FromText(std::string_view text);
  // The link text of a way and an address. An address that begins with "w" or "m" itself cannot be meant for
  // the RealPlayer-compatible player: it is written for the .asx program.
  std::string ToText() const;
  bool operator==(const PlayLink&) const = default;
};

// True when `link` can be handed to another program as one argument that is nothing but an argument: not
// empty, without control characters, double quotes and blanks inside, and not beginning like a switch ("-",
// "/"). Links come out of downloaded files and are not to be trusted.
bool IsSafeArgument(std::string_view link);

}  // namespace sonaro
