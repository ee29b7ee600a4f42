// The main window's events as a table: which member answers which control and menu entry.
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"

namespace sonaro {

std::span<const EventRow> SonaroFrm::Events() const {
  static const EventRow kRows[] = {
      {butTabs, Click, &SonaroFrm::butTabs_Click, 5},
      {mnuViewYourSonaro, Click, &SonaroFrm::mnuView_Click, 5},
      {mnuViewPersonalPage, Click, &SonaroFrm::mnuViewPersonalPage_Click},
      {butFavs, Click, &SonaroFrm::butFavs_Click, 10},
      {cmdFavHit, Click, &SonaroFrm::butFavs_Click, 10},
      {cmbFavs, SelChange, &SonaroFrm::cmbFavs_SelChange},
      {butFavs, ContextMenu, &SonaroFrm::butFavs_ContextMenu, 10},
      {butRecent, Click, &SonaroFrm::butRecent_Click},
      {mnuRecent, Click, &SonaroFrm::butRecent_Click},

      {butNewStations, Click, &SonaroFrm::butRanking_Click, 7},
      {mnuActionNewStations, Click, &SonaroFrm::mnuActionRanking_Click, 8},
      {treeBrowse, NodeClick, &SonaroFrm::treeBrowse_NodeClick},
      {treeBrowse, ContextMenu, &SonaroFrm::treeBrowse_ContextMenu},
      {txtQuickSearch, EnterPressed, &SonaroFrm::txtQuickSearch_EnterPressed},
      {butSearchList, Click, &SonaroFrm::butSearchList_Click},
      {butWebOpen, Click, &SonaroFrm::butWebOpen_Click},
      {lstGroups, ItemSelected, &SonaroFrm::lstGroups_ItemSelected},
      {lstGroups, ItemActivated, &SonaroFrm::lstGroups_ItemActivate},
      {lstGroups, ContextMenu, &SonaroFrm::lstGroups_ContextMenu},
      {butNewGroup, Click, &SonaroFrm::butNewGroup_Click},
      {butRemoveGroup, Click, &SonaroFrm::butRemoveGroup_Click},
      {lstEvents, ItemSelected, &SonaroFrm::lstEvents_ItemSelected},
      {lstEvents, ItemActivated, &SonaroFrm::lstEvents_ItemActivate},
      {lstEvents, ContextMenu, &SonaroFrm::lstEvents_ContextMenu},
      {butNotifyMe, Click, &SonaroFrm::butNotifyMe_Click},
      {butPersonalShow, Click, &SonaroFrm::butPersonalShow_Click},
      {mnuEventNotifyMe, Click, &SonaroFrm::butNotifyMe_Click},
      {mnuEventPersonalShow, Click, &SonaroFrm::butPersonalShow_Click},

      {butSplit1, Click, &SonaroFrm::butSplit_Click, 4},
      {mnuSortByName, Click, &SonaroFrm::mnuSort_Click, 18},  // the sort menu's and the action menu's
      {lstFavs, ItemSelected, &SonaroFrm::lstFavs_ItemSelected},
      {lstFavs, ItemActivated, &SonaroFrm::lstFavs_ItemActivate},
      {lstFavs, ContextMenu, &SonaroFrm::lstFavs_ContextMenu},

      {butGoMediaLinkOneIt, Click, &SonaroFrm::butGoMediaLink_Click, 3},
      {butGoWebPageIt, Click, &SonaroFrm::butGoWebPageIt_Click},
      {mnuActionPlayOne, Click, &SonaroFrm::mnuActionPlay_Click, 3},
      {mnuActionPlayExtra, Click, &SonaroFrm::mnuActionPlayExtra_Click, 20},
      {mnuActionWebSite, Click, &SonaroFrm::butGoWebPageIt_Click},
      {mnuActionCopyLink, Click, &SonaroFrm::mnuActionCopyLink_Click},
      {mnuActionAddToScan, Click, &SonaroFrm::mnuActionAddToScan_Click},
      {mnuActionAddListToScan, Click, &SonaroFrm::mnuActionAddListToScan_Click},
      {mnuActionSchedule, Click, &SonaroFrm::mnuActionSchedule_Click},
      {mnuActionExtraLink, Click, &SonaroFrm::mnuActionExtraLink_Click},
      {mnuPersonalAdd, Click, &SonaroFrm::mnuPersonalAdd_Click},
      {mnuPersonalChange, Click, &SonaroFrm::mnuPersonalChange_Click},
      {mnuPersonalDelete, Click, &SonaroFrm::mnuPersonalDelete_Click},

      {mnuAddFavGroupButton, Click, &SonaroFrm::mnuAddFavGroup_Click},
      {mnuFavoritesAdd, Click, &SonaroFrm::mnuAddFavGroup_Click},
      {mnuFavRenameFav, Click, &SonaroFrm::mnuFavRenameFav_Click},
      {mnuItemRename, Click, &SonaroFrm::mnuFavRenameFav_Click},
      {mnuFavDeleteFav, Click, &SonaroFrm::butRemoveGroup_Click},
      {mnuItemDelete, Click, &SonaroFrm::butRemoveGroup_Click},
      {mnuFavMoveLeft, Click, &SonaroFrm::mnuFavMoveLeft_Click},
      {mnuFavMoveRight, Click, &SonaroFrm::mnuFavMoveRight_Click},
      {mnuFavScanGroup, Click, &SonaroFrm::mnuFavScanGroup_Click},
      {mnuFavExport, Click, &SonaroFrm::mnuFavExport_Click},
      {mnuFavImport, Click, &SonaroFrm::mnuFavImport_Click},
      {mnuPersonalExport, Click, &SonaroFrm::mnuPersonalExport_Click},
      {mnuPersonalImport, Click, &SonaroFrm::mnuPersonalImport_Click},
      {mnuActionStationToFavList, Click, &SonaroFrm::mnuActionStationToFavList_Click},
      {mnuActionStationToGroup, Click, &SonaroFrm::mnuActionStationToGroup_Click, 10},
      {mnuActionRemoveFromFavList, Click, &SonaroFrm::mnuActionRemoveFromFavList_Click},
      {mnuActionMoveUp, Click, &SonaroFrm::mnuActionMoveUp_Click},
      {mnuActionMoveDown, Click, &SonaroFrm::mnuActionMoveDown_Click},

      {butUpdate, Click, &SonaroFrm::butUpdate_Click},
      {mnuUpdate, Click, &SonaroFrm::butUpdate_Click},
      {butScan, Click, &SonaroFrm::butScan_Click},
      {mnuScan, Click, &SonaroFrm::butScan_Click},
      {butSchedule, Click, &SonaroFrm::butSchedule_Click},
      {mnuSchedule, Click, &SonaroFrm::butSchedule_Click},
      {butOptions, Click, &SonaroFrm::butOptions_Click},
      {mnuOptions, Click, &SonaroFrm::butOptions_Click},
      {butMenu, Click, &SonaroFrm::butMenu_Click},
      {butHelp, Click, &SonaroFrm::butHelp_Click},
      {mnuFullHelp, Click, &SonaroFrm::butHelp_Click},
      {mnuQuickStart, Click, &SonaroFrm::mnuQuickStart_Click},
      {butTray, Click, &SonaroFrm::butTray_Click},
      {mnuHideToTray, Click, &SonaroFrm::butTray_Click},
      {butMin, Click, &SonaroFrm::butMin_Click},
      {butCloseIt, Click, &SonaroFrm::butCloseIt_Click},
      {mnuExit, Click, &SonaroFrm::mnuExit_Click},
  };
  return kRows;
}

}  // namespace sonaro
