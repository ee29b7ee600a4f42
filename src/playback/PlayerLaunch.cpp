// From a request to a player: the link is chosen, judged, and handed to the program that plays its kind. What
// went wrong is an outcome; telling the user of it is a step of its own, since a scan goes on without a word.
#include "playback/PlayerLaunch.h"

#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "playback/InstalledPlayers.h"
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

// A page is an outcome of its own: nothing plays, but the request was served.
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

LaunchOutcome PlayerLaunch::LaunchStation(const StationKey& station) {
  LaunchOutcome outcome{};
  do {
    outcome = TryLaunch(station);
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
  if (request.mode == PlayMode::KeyItself || request.mode == PlayMode::BeforeTab) {
    const std::string name = request.station ? stations_.NameOf(request.station) : std::string();
    return HandOver(name, request.mode == PlayMode::KeyItself
                              ? request.link
                              : request.link.substr(0, request.link.find('\t')));
  }
  const Station station = stations_.Find(request.station);
  recent_.AddRecent(request.station);
  const std::string link = LinkOf(station, request.mode);
  if (!IsBlank(link)) return HandOver(station.name, link);
  if (!station.alternateLink.empty()) return HandOver(station.name, station.alternateLink);
  return station.webSite.empty() ? LaunchOutcome::NoLink : OpenPage(station.name, station.webSite);
}

LaunchOutcome PlayerLaunch::TryLaunch(const StationKey& station) {
  const Station found = stations_.Find(station);
  const auto first = std::find_if_not(found.links.begin(), found.links.end(), IsBlank);
  const std::string& link = first != found.links.end() ? *first : found.alternateLink;
  if (link.empty()) return LaunchOutcome::NoLink;
  recent_.AddRecent(station);
  return HandOver(found.name, link);
}

LaunchOutcome PlayerLaunch::OpenPage(const std::string& name, const std::string& address) {
  const LaunchOutcome outcome = FromWebPage(pages_.Open(address));
  if (outcome == LaunchOutcome::WebPage && view_)
    view_->HandedOver(FormatText(strings_.Load(IDS_HANDED_PAGE), {name}));
  return outcome;
}

// The player is looked up first, whatever the link turns out to be: its marker file is then always in place.
LaunchOutcome PlayerLaunch::HandOver(const std::string& name, const std::string& linkText) {
  if (IsBlank(linkText)) return LaunchOutcome::NoLink;
  const std::string realPlayer(TrimBlanks(players_.FindRealPlayer(false)));
  const PlayLink link = PlayLink::FromText(linkText);
  if (link.way == PlayWay::WebPage) return OpenPage(name, link.address);
  if (TrimBlanks(link.address).empty()) return LaunchOutcome::NoLink;
  const std::optional<std::string> argument = PlayerArgument(link.address);
  if (!argument) return LaunchOutcome::RefusedLink;
  std::string player = players_.Chosen();
  if (player.empty()) player = installed_.ForLink(link, realPlayer);
  if (player.empty())
    return link.way == PlayWay::AsxProgram ? LaunchOutcome::NoAsxProgram : LaunchOutcome::NoPlayer;
  if (!players_.Play(player, *argument)) return LaunchOutcome::NotStarted;
  SayHandedOver(name, player);
  return LaunchOutcome::Started;
}

void PlayerLaunch::SayHandedOver(const std::string& name, const std::string& program) {
  if (!view_) return;
  const int text = name.empty() ? IDS_HANDED_LINK : IDS_HANDED_TO;
  view_->HandedOver(FormatText(strings_.Load(text), {name, installed_.NameOf(program)}));
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
