// The tray's menu is made with each opening. Entries are numbers in a row; what they stand for is kept here
// by value until the next opening, so a list that changes under the open menu starts no other station.
#include "tray/TrayMenu.h"

#include <algorithm>
#include <utility>

#include "forms/ControlIds.h"
#include "resources/texts/tray.h"
#include "settings/Strings.h"
#include "stations/FavoriteGroups.h"
#include "stations/RecentList.h"
#include "stations/StationSource.h"

namespace sonaro {

namespace {

// An entry that says why there are none.
constexpr int kNoCommand = -1;

}  // namespace

MenuEntry TrayMenu::Entry(int command, int text) const {
  return {.command = command, .text = strings_.Load(text)};
}

// A station that has gone from the guide has no name; nothing would play.
void TrayMenu::AddStation(MenuEntries& menu, const StationKey& station, int text) {
  const std::string name = station ? source_.NameOf(station) : std::string();
  if (name.empty() || stations_.size() >= static_cast<std::size_t>(kMaxStations)) return;
  const int command = mnuTrayStation + static_cast<int>(stations_.size());
  const std::string shown = MenuText(name);
  menu.push_back({.command = command, .text = text == 0 ? shown : FormatText(strings_.Load(text), {shown})});
  stations_.push_back(station);
}

MenuEntries TrayMenu::RecentStations() {
  MenuEntries menu;
  for (std::size_t i = 0; i < std::min(recent_.Keys().size(), kMaxRecent); ++i)
    AddStation(menu, recent_.Keys()[i]);
  return menu;
}

// The group itself and a line come first; a group with nothing more has no menu of its own.
MenuEntries TrayMenu::StationsOf(std::size_t group) {
  MenuEntries menu = {Entry(mnuTrayGroup + static_cast<int>(group), IDS_TRAY_SHOW_GROUP), {}};
  for (const StationKey& station : groups_.Keys(group)) {
    if (menu.size() < kMaxInGroup + 2) AddStation(menu, station);
  }
  return menu;
}

MenuEntries TrayMenu::Groups() {
  MenuEntries menu;
  for (std::size_t group = 0; group < std::min<std::size_t>(groups_.Count(), kMaxGroups); ++group) {
    names_.push_back(groups_.Name(group));
    MenuEntry entry = {.command = mnuTrayGroup + static_cast<int>(group), .text = MenuText(names_.back())};
    MenuEntries stations = StationsOf(group);
    if (stations.size() > 2) entry = {.text = std::move(entry.text), .children = std::move(stations)};
    menu.push_back(std::move(entry));
  }
  if (menu.empty()) {
    menu.push_back(Entry(kNoCommand, IDS_TRAY_NO_GROUPS));
    menu.back().enabled = false;
  }
  return menu;
}

MenuEntries TrayMenu::Make() {
  stations_.clear();
  names_.clear();
  MenuEntries menu = {Entry(mnuTrayOpen, IDS_TRAY_OPEN), Entry(mnuTrayYourSonaro, IDS_TRAY_YOUR_SONARO),
                      Entry(mnuTrayBrowse, IDS_TRAY_BROWSE), Entry(mnuTraySearch, IDS_TRAY_SEARCH)};
  menu.push_back({});
  if (!recent_.Keys().empty()) AddStation(menu, recent_.Keys().front(), IDS_TRAY_PLAY_AGAIN);
  if (MenuEntries recent = RecentStations(); !recent.empty())
    menu.push_back({.text = strings_.Load(IDS_TRAY_RECENT), .children = std::move(recent)});
  menu.push_back({.text = strings_.Load(IDS_TRAY_GROUPS), .children = Groups()});
  menu.push_back({});
  for (const auto& [command, text] :
       {std::pair(mnuTrayScan, IDS_TRAY_SCAN), std::pair(mnuTraySchedule, IDS_TRAY_SCHEDULE),
        std::pair(mnuTrayUpdate, IDS_TRAY_UPDATE), std::pair(mnuTrayOptions, IDS_TRAY_OPTIONS),
        std::pair(mnuTrayHelp, IDS_TRAY_HELP)}) {
    menu.push_back(Entry(command, text));
  }
  menu.push_back({});
  menu.push_back(Entry(mnuTrayExit, IDS_TRAY_EXIT));
  return menu;
}

StationKey TrayMenu::StationAt(int entry) const {
  const auto index = static_cast<std::size_t>(entry);
  return index < stations_.size() ? stations_[index] : StationKey();
}

std::string TrayMenu::GroupAt(int entry) const {
  const auto index = static_cast<std::size_t>(entry);
  return index < names_.size() ? names_[index] : std::string();
}

}  // namespace sonaro
