// A stream link as it stands in a station's fields. Its first character decides who plays it: "w" a web page,
// "m" the program for .asx files, anything else the RealPlayer-compatible player.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

enum class PlayWay { RealPlayer, AsxProgram, WebPage };

struct PlayLink {
  PlayWay way = PlayWay::RealPlayer;
  std::string address;  // what is handed over

  static PlayLink FromText(std::string_view text);
  // Whether the address is that of a .pls playlist, which not every player reads.
  bool IsPls() const;
  // The link text of a way and an address. One for the RealPlayer-compatible player that begins with "w" or
  // "m" itself gets that as a capital, "Mms://host/x": the same address, which reads back as what it is.
  std::string ToText() const;
  bool operator==(const PlayLink&) const = default;
};

// What a player link may be, for everyone who takes one: the launch, the dialogs, imports, the directory
// tool. Links come out of downloaded files and are not to be trusted: a player is told to open one on this
// user's behalf, so nothing that reaches into this computer passes. Allowed is SCHEME://HOST with anything
// behind it, or HOST alone (with a dot or a port), which is meant for the web. Refused are a path of any
// form, a drive letter, a variable between percent signs, the schemes of files, scripts and system commands,
// and what could be more than one argument or a switch: blanks inside, control characters, double quotes, "-"
// or "/" in front.
//
// The argument for the player: `address` (UTF-8, without the letter of its kind) without blanks at its ends,
// with every byte beyond ASCII percent-encoded, since such characters turn into quotes, blanks and dashes on
// their way through other code pages, and with "http://" in front of a bare host. Nothing when refused.
std::optional<std::string> PlayerArgument(std::string_view address);
inline bool IsPlayerAddress(std::string_view address) { return PlayerArgument(address).has_value(); }

}  // namespace sonaro
