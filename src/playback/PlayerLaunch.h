// Turns a request to play a station into a running player. Owned by Application; everything that plays
// something (lists, groups, the scan, notifications) comes through here.
#pragma once

#include <string>

#include "playback/WebPages.h"
#include "stations/StationKey.h"
#include "stations/StationSource.h"

namespace sonaro {

class InstalledPlayers;
class Players;
class RecentList;
class Strings;
// What became of a request.
enum class LaunchOutcome {
  Started,        // a player was given the link
  WebPage,        // the browser was given the page
  NoLink,         // there is nothing to play
  RefusedLink,    // the link is not one that a player may be handed
  RefusedPage,    // nor the page one that the browser may be
  NoPlayer,       // no RealPlayer-compatible player on this machine
  NoAsxProgram,   // no program for .asx files
  NotStarted,     // the player was found but did not start
  PageNotStarted  // the program that opens web pages did not start
};

// What only a window can do.
class LaunchView : public ErrorView {
 public:
  // Shows the "NoPlayer" page of frmStartUpInfo and returns when it is closed. True when the user has chosen
  // a player there.
  virtual bool ShowNoPlayer() = 0;
  // Says why nothing plays, with the choice of a player as a way out. True when the user has chosen one.
  virtual bool OfferPlayers(const std::string& sentence) = 0;
  // A program has been given the link; `sentence` says to whom what was handed.
  virtual void HandedOver(const std::string& sentence) = 0;
};

class PlayerLaunch {
 public:
  PlayerLaunch(const StationSource& stations, RecentList& recent, Players& players,
               const InstalledPlayers& installed, WebPages& pages, const Strings& strings)
      : stations_(stations),
        recent_(recent),
        players_(players),
        installed_(installed),
        pages_(pages),
        strings_(strings) {}

  // The view may be set late; without one nothing is shown. No play is reported to anybody else.
  void SetView(LaunchView* view) { view_ = view; }

  // Plays a station's link, or one that the request brings along; a link that the station lacks gives way to
  // the alternate one, then to the web site. Says to the user why nothing plays; when a player is chosen
  // thereupon, it plays after all.
  LaunchOutcome LaunchStation(const PlayRequest& request);
  LaunchOutcome LaunchStation(const StationKey& station);
  // The same without a dialog, for those who play by themselves and must not stop in one.
  LaunchOutcome TryLaunch(const PlayRequest& request);
  // The same for a station as a whole: the first link that it has, or the alternate one. Never opens its web
  // site instead.
  LaunchOutcome TryLaunch(const StationKey& station);

  // Shows the "NoPlayer" page unless it is shown already. True when the user has chosen a player there.
  bool ShowNoPlayer();
  // False when no program on this computer plays any stream link.
  bool AnythingPlays() const;

  // One sentence for the user; "" for an outcome that needs none.
  std::string ErrorText(LaunchOutcome outcome) const;

 private:
  LaunchOutcome HandOver(const std::string& name, const std::string& linkText);
  LaunchOutcome OpenPage(const std::string& name, const std::string& address);
  void SayHandedOver(const std::string& name, const std::string& program);
  bool Tell(LaunchOutcome outcome);

  static constexpr int kNoPlayerShown = 100;

  const StationSource& stations_;
  RecentList& recent_;
  Players& players_;
  const InstalledPlayers& installed_;
  WebPages& pages_;
  const Strings& strings_;
  LaunchView* view_ = nullptr;
  int noPlayerGuard_ = 0;
};

}  // namespace sonaro
