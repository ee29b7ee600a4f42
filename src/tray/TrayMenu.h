// The menu of the tray icon: the windows, what was played last, and the groups with their stations, which
// play without a window. Owned by frmSysTrayMenu. What an entry stands for is remembered when the menu is
// made: groups and plays may change while it is open.
#pragma once

#include <string>
#include <vector>

#include "forms/Menu.h"
#include "stations/StationKey.h"

namespace sonaro {

class FavoriteGroups;
class RecentList;
class StationSource;
class Strings;

class TrayMenu {
 public:
  static constexpr int kMaxGroups = 10;     // entries from mnuTrayGroup on
  static constexpr int kMaxStations = 200;  // entries from mnuTrayStation on
  static constexpr std::size_t kMaxRecent = 10;
  static constexpr std::size_t kMaxInGroup = 18;  // the window shows the others

  TrayMenu(const FavoriteGroups& groups, const RecentList& recent, const StationSource& source,
           const Strings& strings)
      : groups_(groups), recent_(recent), source_(source), strings_(strings) {}

  MenuEntries Make();
  // Of the menu that was made last. None and "" for an entry that it does not have.
  StationKey StationAt(int entry) const;
  std::string GroupAt(int entry) const;

 private:
  MenuEntry Entry(int command, int text) const;
  void AddStation(MenuEntries& menu, const StationKey& station, int text = 0);
  MenuEntries RecentStations();
  MenuEntries Groups();
  MenuEntries StationsOf(std::size_t group);

  const FavoriteGroups& groups_;
  const RecentList& recent_;
  const StationSource& source_;
  const Strings& strings_;
  std::vector<StationKey> stations_;
  std::vector<std::string> names_;  // of the groups
};

}  // namespace sonaro
