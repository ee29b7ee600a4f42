#include "playback/PlayerLaunch.h"

#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "playback/Players.h"
#include "playback/WebPages.h"
#include "resources/texts/playback.h"
#include "settings/Strings.h"
#include "stations/PlayLink.h"
#include "stations/RecentList.h"

namespace sonaro {

namespace {

bool IsBlank(std::string_view text) { return TrimBlanks(text).empty(); }

// The link of the station that this mode asks for.
std::string LinkOf(const Station& station, PlayMode mode) {
  const auto& links = station.links;
  if (mode != PlayMode::Personal) return links[static_cast<std::size_t>(mode) - 1];
  const auto found = std::find_if(links.begin(), links.end(), [](const auto& link) { return !link.empty(); });
  return found != links.end() ? *found : std::string();
}

LaunchOutcome FromWebPage(WebPageOutcome outcome) {
  switch (outcome) {
    case WebPageOutcome::Opened:
      return LaunchOutcome::WebPage;
    case WebPageOutcome::NoAddress:
      return LaunchOutcome::NoLink;
    case WebPageOutcome::Refused:
      return LaunchOutcome::RefusedPage;
    case WebPageOutcome::NotStarted:
      break;
  }
  return LaunchOutcome::PageNotStarted;
}

}  // namespace

LaunchOutcome PlayerLaunch::LaunchStation(const PlayRequest& request) {
  LaunchOutcome outcome{};
  do {
    outcome = TryLaunch(request);  // until it works or the user gives up
  } while (Tell(outcome));
  return outcome;
}

// True when the user has chosen a player, so that it is worth another try.
bool PlayerLaunch::Tell(LaunchOutcome outcome) {
  const std::string sentence = ErrorText(outcome);
  if (!view_ || sentence.empty()) return false;
  switch (outcome) {
    case LaunchOutcome::NoPlayer:
      return ShowNoPlayer();
    case LaunchOutcome::NoAsxProgram:
    case LaunchOutcome::NotStarted:
      return view_->OfferPlayers(sentence);
    default:
      view_->ShowErrorText(sentence);
      return false;
  }
}

LaunchOutcome PlayerLaunch::TryLaunch(const PlayRequest& request) {
  if (request.mode == PlayMode::KeyItself) return Launch(request.link);
  if (request.mode == PlayMode::BeforeTab) return Launch(request.link.substr(0, request.link.find('\t')));
  const Station station = stations_.Find(request.station);
  recent_.AddRecent(request.station);
  const std::string link = LinkOf(station, request.mode);
  if (!IsBlank(link)) return Launch(link);
  if (!station.alternateLink.empty()) return Launch(station.alternateLink);
  return station.webSite.empty() ? LaunchOutcome::NoLink : FromWebPage(pages_.Open(station.webSite));
}

LaunchOutcome PlayerLaunch::TryLaunch(const StationKey& station) {
  const Station found = stations_.Find(station);
  PlayRequest request{station};
  std::string link = found.alternateLink;
  // Backwards, so that the first link that there is wins.
  for (int number = 3; number >= 1; --number) {
    const std::string& own = found.links[static_cast<std::size_t>(number) - 1];
    if (IsBlank(own)) continue;
    link = own;
    request.mode = station.IsOfUser() ? PlayMode::Personal : static_cast<PlayMode>(number);
  }
  if (link.empty()) return LaunchOutcome::NoLink;
  recent_.AddRecent(station);
  return Launch(link);
}

// The player is looked up first, whatever the link turns out to be: its marker file is then always in place.
LaunchOutcome PlayerLaunch::Launch(const std::string& linkText) {
  if (IsBlank(linkText)) return LaunchOutcome::NoLink;
  std::string player(TrimBlanks(players_.FindRealPlayer(false)));
  const PlayLink link = PlayLink::FromText(linkText);
  if (link.way == PlayWay::WebPage) return FromWebPage(pages_.Open(link.address));
  if (TrimBlanks(link.address).empty()) return LaunchOutcome::NoLink;
  const std::optional<std::string> argument = PlayerArgument(link.address);
  if (!argument) return LaunchOutcome::RefusedLink;
  if (const std::string chosen = players_.Chosen(); !chosen.empty()) {
    player = chosen;
  } else if (link.way == PlayWay::AsxProgram) {
    player = players_.FindAsxProgram();
    if (player.empty()) return LaunchOutcome::NoAsxProgram;
  } else if (!Players::IsRealPlayer(player)) {
    return LaunchOutcome::NoPlayer;
  }
  return players_.Play(player, *argument) ? LaunchOutcome::Started : LaunchOutcome::NotStarted;
}

// A launch by a timer can come while the dialog of an earlier one is open; there is only ever one.
bool PlayerLaunch::ShowNoPlayer() {
  if (!view_ || noPlayerGuard_ == kNoPlayerShown) return false;
  noPlayerGuard_ = kNoPlayerShown;
  const bool chosen = view_->ShowNoPlayer();
  noPlayerGuard_ = 0;
  return chosen;
}

bool PlayerLaunch::AnythingPlays() const {
  return !players_.Chosen().empty() || Players::IsRealPlayer(players_.FindRealPlayer(false)) ||
         !players_.FindAsxProgram().empty();
}

std::string PlayerLaunch::ErrorText(LaunchOutcome outcome) const {
  switch (outcome) {
    case LaunchOutcome::NoLink:
      return strings_.Load(IDS_WHYNOT_NO_LINK);
    case LaunchOutcome::RefusedPage:
      return pages_.ErrorText(WebPageOutcome::Refused);
    case LaunchOutcome::PageNotStarted:
      return pages_.ErrorText(WebPageOutcome::NotStarted);
    case LaunchOutcome::RefusedLink:
      return strings_.Load(IDS_WHYNOT_REFUSED_LINK);
    case LaunchOutcome::NoPlayer:
      return strings_.Load(IDS_WHYNOT_NO_PLAYER);
    case LaunchOutcome::NoAsxProgram:
      return strings_.Load(IDS_WHYNOT_NO_ASX_PROGRAM);
    case LaunchOutcome::NotStarted:
      return strings_.Load(IDS_WHYNOT_NOT_STARTED);
    case LaunchOutcome::Started:
    case LaunchOutcome::WebPage:
      break;
  }
  return {};
}

}  // namespace sonaro
