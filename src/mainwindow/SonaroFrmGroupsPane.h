// The bar of the favourite groups, and the commands on groups and their members. In a menu the commands mean
// the group that it was opened for, else the one on show. Part of SonaroFrm.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mainwindow/FavoriteCommands.h"
#include "mainwindow/MainPane.h"
#include "mainwindow/PlaylistDialogs.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

class StatusPane;

class GroupsPane final : public EventTarget, private FavoritePrompts {
 public:
  GroupsPane(const MainContext& context, StatusPane& status);

  FavoriteCommands& Commands() { return commands_; }

  void Show();
  void ShowOutsideTheBar();  // the groups once more, in what is made late
  // Something dragged is over the button of this slot; -1: over none.
  void ShowDropOn(int slot);
  std::string NameOf(std::size_t group) const;  // "" for a free slot
  void ShowGroupNamed(std::string_view name);
  // A station was dropped on a slot, or a group's button on another slot.
  void TakeDropped(const std::vector<StationKey>& stations, int slot);
  void MoveGroup(const std::string& name, int to);
  // Playlists were dropped on the window: into the group on show, if one is.
  void ImportDropped(const std::vector<std::string>& paths) {
    playlists_.ImportDropped(paths, subject_.GroupOnShow());
  }
  // For a window that has no groups of its own.
  void AddStationToGroup(const std::string& groupName, const StationKey& station);
  // Adds the station to the group that was used last in this session, or the only one; else `owner` asks.
  void Keep(Form& owner, const StationKey& station);
  // The star of a station: kept when no group holds it, else taken out of the group on show or the first that
  // holds it.
  void ToggleStar(const StationKey& station);
  // Takes the station that the command means out of the group that it means.
  void RemoveStations();

 private:
  std::span<const EventRow> Events() const override;
  MessageResult Ask(const Message& message) override;
  std::string AskNewGroupName() override;
  std::string AskGroupName(const std::string& present) override;
  void TellTray(const std::string& text) override;
  std::string NameOf(const StationKey& station) override;
  void SayDone(const std::string& sentence) override;
  bool ShowFocusedGroup();

  void butFavs_Click(int group);
  void butFavs_ContextMenu(int slot, POINT at);
  void cmbFavs_SelChange();
  void butRecent_Click();
  void butNewGroup_Click();
  void butRemoveGroup_Click();
  void mnuAddFavGroup_Click();
  void mnuRemoveFocusedGroup_Click();
  void mnuFavRenameFav_Click();
  void mnuFavMoveLeft_Click();
  void mnuFavMoveRight_Click();
  void mnuFavScanGroup_Click();
  void mnuFavExport_Click();
  void mnuFavImport_Click();
  void AskGroupFor(Form& owner, std::vector<StationKey> stations);
  void AddTo(const std::string& groupName, const std::vector<StationKey>& stations);
  void mnuActionStationToFavList_Click();
  void mnuActionStar_Click();
  void mnuActionStationToGroup_Click(int group);

  const MainContext& context_;
  Form& form_;
  // What the group bar shows.
  struct Bar {
    std::vector<std::string> names;
    std::size_t onShow = 0;
    bool operator==(const Bar&) const = default;
  };

  const FavoriteGroups& groups_;
  const CommandSubject& subject_;
  StatusPane& status_;
  ControlArray<GroupButton> butFavs_{form_, butFavs, static_cast<int>(FavoriteGroups::kSlots)};
  ComboBox cmbFavs_{form_, cmbFavs};
  Button butRemoveGroup_{form_, butRemoveGroup};
  PlaylistDialogs playlists_;
  FavoriteCommands commands_;
  std::optional<Bar> bar_;
  std::string lastUsed_;  // the name of the group that a station came into last
};

}  // namespace sonaro
