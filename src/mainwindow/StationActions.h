// The menus of the main window as data: the action menu of a station, the sort menu and the menu of a
// favourite group's key. Entries and captions follow the selected station; without one they read as for any
// station and are disabled. Decides what can be chosen, never carries it out.
#pragma once

#include <cstddef>
#include <optional>

#include "forms/Menu.h"
#include "mainwindow/Rankings.h"
#include "mainwindow/StationDetailBuilder.h"

namespace sonaro {

class FavoriteGroups;
class StationListState;
class Strings;

// Entries for the user's own links of a station: mnuActionPlayExtra and the numbers after it.
inline constexpr std::size_t kExtraPlayCommands = 20;

// The ranking that a menu command shows.
std::optional<Ranking> RankingOfCommand(int command);

struct EventLine;

class StationActions {
 public:
  StationActions(const StationListState& listing, const FavoriteGroups& groups, const Strings& strings)
      : listing_(listing), groups_(groups), strings_(strings) {}

  // The menu of the selected station, of which `detail` holds the facts.
  MenuEntries ActionMenu(const StationDetail& detail) const;
  // The menu of a coming event; `detail` is of its station, if the guide has it.
  MenuEntries EventMenu(const EventLine& event, const StationDetail& detail) const;
  // What the list can be sorted by; the sort in force is checked.
  MenuEntries SortMenu() const;
  // The menu of a group button; `group` may be a free slot.
  MenuEntries GroupMenu(std::size_t group) const;
  // The menu of the menu key.
  MenuEntries ProgramMenu() const;
  // The menu of the personal stations' node in the browse tree.
  MenuEntries PersonalMenu() const;

 private:
  enum class Place { SortMenu, ActionMenu };
  MenuEntry Entry(int command, int textId, bool enabled = true) const;
  // With the name of the station in the text, or the words for any station.
  MenuEntry StationEntry(int command, int textId, const StationDetail& detail) const;
  MenuEntries SortEntriesFor(Place place) const;
  MenuEntries RankingEntries() const;
  MenuEntries GroupChoices(const StationDetail& detail) const;
  void AddPlayEntries(const StationDetail& detail, MenuEntries& menu) const;
  void AddGroupEntries(const StationDetail& detail, MenuEntries& menu) const;

  const StationListState& listing_;
  const FavoriteGroups& groups_;
  const Strings& strings_;
};

}  // namespace sonaro
