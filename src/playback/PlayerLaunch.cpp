#include "playback/PlayerLaunch.h"

#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "playback/Players.h"
#include "playback/WebPages.h"
#include "resources/texts/playback.h"
#include "settings/Strings.h"
#include "stations/PlayLink.h"
#include "stations/RecentList.h"

namespace sonaro {

namespace {

// The station that a key means in this mode: none for the modes whose key is a link.
StationKey StationOf(const std::string& key, PlayMode mode) {
  switch (mode) {
    case PlayMode::LinkOne:
    case PlayMode::LinkTwo:
    case PlayMode::LinkThree:
      return StationKey::FromToken(key);
    case PlayMode::Personal:
      return StationKey::FromToken("P" + key);
    case PlayMode::BeforeTab:
    case PlayMode::KeyItself:
      break;
  }
  return {};
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

void PlayerLaunch::LaunchStation(const std::string& key, PlayMode mode) {
  while (Tell(TryLaunch(key, mode))) {
  }
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

LaunchOutcome PlayerLaunch::TryLaunch(const std::string& key, PlayMode mode) {
  const StationKey station = StationOf(key, mode);
  std::string link = LinkFor(station, key, mode);
  if (station) recent_.AddRecent(station.Token());
  if (TrimBlanks(link).empty()) {
    link = stations_.AlternateLinkOf(station);
    if (link.empty()) return OpenWebSite(station);
  }
  const LaunchOutcome outcome = HandOver(link);
  if (outcome == LaunchOutcome::Started && afterLaunch_) afterLaunch_(key, mode);
  return outcome;
}

LaunchOutcome PlayerLaunch::TryLaunch(const StationKey& station) {
  if (station.kind == StationKey::Kind::Personal && !LinkFor(station, {}, PlayMode::Personal).empty()) {
    return TryLaunch(std::to_string(station.number), PlayMode::Personal);
  }
  for (const PlayMode mode : {PlayMode::LinkOne, PlayMode::LinkTwo, PlayMode::LinkThree}) {
    if (!TrimBlanks(LinkFor(station, {}, mode)).empty()) return TryLaunch(station.Token(), mode);
  }
  if (stations_.AlternateLinkOf(station).empty()) return LaunchOutcome::NoLink;
  return TryLaunch(station.Token(), PlayMode::LinkOne);
}

std::string PlayerLaunch::LinkFor(const StationKey& station, const std::string& key, PlayMode mode) const {
  switch (mode) {
    case PlayMode::LinkOne:
    case PlayMode::LinkTwo:
    case PlayMode::LinkThree:
      return stations_.LinkOf(station, static_cast<int>(mode));
    case PlayMode::Personal:
      return stations_.FirstLinkOf(station);
    case PlayMode::BeforeTab:
      return key.substr(0, key.find('\t'));
    case PlayMode::KeyItself:
      break;
  }
  return key;
}

// The player is looked up first, whatever the link turns out to be: its marker file is then always in place.
LaunchOutcome PlayerLaunch::HandOver(const std::string& linkText) {
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

LaunchOutcome PlayerLaunch::OpenWebSite(const StationKey& station) {
  if (stations_.WebSiteOf(station).empty()) return LaunchOutcome::NoLink;
  return FromWebPage(pages_.Open(station.Token()));
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
