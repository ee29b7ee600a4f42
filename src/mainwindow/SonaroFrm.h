// The main window: the tab dial, the group bar, a left column that changes with the view, the station list in
// the middle, the selected station at the right and the status line. Shows what its models decide
// (MainModels) and hands on what belongs to others (MainWindowCalls). Owned by Application.
//
// The window's parts have classes of their own in SonaroFrmXxxPane; the handlers of the event table are here
// because the controls belong to one form.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "mainwindow/FavoriteCommands.h"
#include "mainwindow/MainModels.h"
#include "mainwindow/MainWindowCalls.h"
#include "mainwindow/SonaroFrmBrowsePane.h"
#include "mainwindow/SonaroFrmDetailPane.h"
#include "mainwindow/SonaroFrmDragPane.h"
#include "mainwindow/SonaroFrmListPane.h"
#include "mainwindow/SonaroFrmSearchPane.h"
#include "mainwindow/SonaroFrmStatusPane.h"
#include "mainwindow/SonaroFrmYoursPane.h"

namespace sonaro {

class PlayerLaunch;
class WebPageOpener;

class SonaroFrm final : public Form, private FavoritePrompts {
 public:
  SonaroFrm(FormContext& context, const GuideData& data, PlayerLaunch& player, WebPageOpener& pages,
            MainWindowCalls calls);

  // Brings up the view with this name; a name that no view has changes nothing.
  void BringUpView(std::string_view name);
  // What changed elsewhere and must be shown: plays, groups, personal stations and extra links, the
  // directory after an update, the schedule.
  void RecentChanged();
  void GroupsChanged();
  void PersonalStationsChanged();
  void DirectoryChanged();
  void ScheduleChanged();
  // The progress of an update in the status line; 0 to 100, below 0 when it is not known.
  void ShowProgress(const std::string& what, int percent) { status_.ShowProgress(what, percent); }
  void EndProgress() { status_.EndProgress(); }
  // Adds a station to a group for a window that has no groups of its own, and says so.
  void AddStationToGroup(const std::string& groupName, const std::string& token);
  // What the tray menu asks for.
  void ShowGroupNamed(std::string_view name);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void OnEscape() override;
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  // SonaroFrm.cpp: views and what is shown of them.
  void ShowView(View view);
  void ShowEverything();
  void ShowPanes();
  void ShowGroupBar();
  void ShowSelection();
  void butTabs_Click(int tab);
  void mnuView_Click(int view);
  void mnuViewPersonalPage_Click();
  void butRanking_Click(int key);
  void mnuActionRanking_Click(int entry);
  void butFavs_Click(int group);
  void cmbFavs_SelChange();
  void butRecent_Click();
  void butSplit_Click(int column);
  void butSplit_ContextMenu(int column, POINT at);
  void mnuSort_Click(int entry);
  void SortBy(int command);
  void butMenu_Click();
  void butHelp_Click();
  void butTray_Click();
  void butMin_Click();
  void butCloseIt_Click();
  void mnuExit_Click();
  void mnuQuickStart_Click();
  void butUpdate_Click();
  void mnuUndoUpdate_Click();
  void butScan_Click();
  void butSchedule_Click();
  void butOptions_Click();

  void EndDrag(const DragPane::Drop& drop);

  // SonaroFrmStation.cpp: the list, the tree, the selected station.
  void lstFavs_ItemSelected(int row);
  void lstFavs_ItemActivate(int row);
  void lstFavs_ContextMenu(int row, POINT at);
  void treeBrowse_NodeClick(HTREEITEM node);
  void treeBrowse_ContextMenu(int row, POINT at);
  void butGoMediaLink_Click(int link);
  void mnuActionPlay_Click(int link);
  void mnuActionPlayExtra_Click(int link);
  void butGoWebPageIt_Click();
  void mnuActionCopyLink_Click();
  void mnuActionAddToScan_Click();
  void mnuActionAddListToScan_Click();
  void DropOnScan(const std::string& rowKey, POINT at);
  void mnuActionSchedule_Click();
  void mnuActionExtraLink_Click();
  void mnuPersonalAdd_Click();
  void mnuPersonalChange_Click();
  void mnuPersonalDelete_Click();
  void ShowDetailOf(const StationKey& station);
  void Play(const PlayButton& key);

  // SonaroFrmSearch.cpp
  void txtQuickSearch_EnterPressed();
  void butSearchList_Click();
  void butWebOpen_Click();
  void FindStation();

  // SonaroFrmGroups.cpp: favourite groups and the page of the user's own things.
  void butFavs_ContextMenu(int slot, POINT at);
  void lstGroups_ItemSelected(int row);
  void lstGroups_ItemActivate(int row);
  void lstGroups_ContextMenu(int row, POINT at);
  void butNewGroup_Click();
  void mnuAddFavGroup_Click();
  void butRemoveGroup_Click();
  void mnuRemoveFocusedGroup_Click();
  void butMissing_Click();
  void mnuFavRenameFav_Click();
  void mnuFavMoveLeft_Click();
  void mnuFavMoveRight_Click();
  void mnuFavScanGroup_Click();
  void mnuActionStationToFavList_Click();
  void mnuActionStationToGroup_Click(int group);
  void mnuActionRemoveFromFavList_Click();
  void mnuRemoveRow_Click();
  void mnuActionMoveUp_Click();
  void mnuActionMoveDown_Click();
  void lstEvents_ItemSelected(int row);
  void lstEvents_ItemActivate(int row);
  void lstEvents_ContextMenu(int row, POINT at);
  void butNotifyMe_Click();
  void butPersonalShow_Click();
  void MoveStation(int by);
  void MoveRow(const std::string& rowKey, int to);
  void MoveGroup(const std::string& name, int to);
  void DropOnGroup(const std::string& rowKey, int slot);
  bool ShowFocusedGroup();
  std::optional<std::size_t> GroupOnShow() const;  // in the middle of the window
  std::optional<std::size_t> GroupMeant() const;
  MessageResult Ask(const Message& message) override;
  std::string AskNewGroupName() override;
  std::string AskGroupName(const std::string& present) override;
  void TellTray(const std::string& text) override;
  void SayDone(int textId, std::string_view token, std::string_view group) override;

  // SonaroFrmTransfer.cpp
  void mnuFavExport_Click();
  void mnuFavImport_Click();
  void mnuPersonalExport_Click();
  void mnuPersonalImport_Click();
  void SayImported(const ImportResult& result);
  void Say(const char* key, const std::string& text);

  // What an open menu was opened for. The list may change behind it; its entries act on this.
  struct MenuSubject {
    StationDetailBuilder station;
    std::string group;  // whose key's menu it is, or which the station's list shows; "" without one
    EventLine event;
  };
  void PopUpMenuFor(MenuSubject subject, const MenuEntries& menu, POINT at);
  const StationDetailBuilder& StationMeant() const { return menu_ ? menu_->station : shown_; }
  std::string NameOfGroupMeant() const;
  int EventRowMeant();

  std::size_t PersonalCount() const;

  FormContext& context_;
  GuideData data_;
  PlayerLaunch& player_;
  WebPageOpener& pages_;
  MainWindowCalls calls_;
  MainModels models_;
  FavoriteCommands favorites_;
  ListPane list_;
  BrowsePane browse_;
  SearchPane search_;
  DetailPane detail_;
  YoursPane yours_;
  StatusPane status_;
  DragPane drag_;
  StationDetailBuilder shown_;       // what the right column shows
  std::optional<MenuSubject> menu_;  // while a menu is open that has one
};

}  // namespace sonaro
