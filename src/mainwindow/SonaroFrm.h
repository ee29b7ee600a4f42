// The main window: its views and what is on show in each. The panes know its controls and have the handlers
// of their events; the logic is in MainModels. Owned by Application.
#pragma once

#include <string_view>

#include "mainwindow/MainPane.h"
#include "mainwindow/SonaroFrmBrowsePane.h"
#include "mainwindow/SonaroFrmDetailPane.h"
#include "mainwindow/SonaroFrmDragPane.h"
#include "mainwindow/SonaroFrmFilterPane.h"
#include "mainwindow/SonaroFrmGroupsPane.h"
#include "mainwindow/SonaroFrmListPane.h"
#include "mainwindow/SonaroFrmPersonalPane.h"
#include "mainwindow/SonaroFrmSearchPane.h"
#include "mainwindow/SonaroFrmStatusPane.h"
#include "mainwindow/SonaroFrmTitlePane.h"
#include "mainwindow/SonaroFrmYoursPane.h"

namespace sonaro {

class SonaroFrm final : public Form, private MainView {
 public:
  SonaroFrm(FormContext& context, const GuideData& data, const MainServices& services);

  // Brings up the view with this name; a name that no view has changes nothing.
  void BringUpView(std::string_view name);
  // What changed elsewhere and must be shown: plays, groups, personal stations and extra links, the
  // directory after an update, the schedule.
  void RecentChanged();
  void GroupsChanged();
  void PersonalStationsChanged() override;
  void DirectoryChanged();
  void ScheduleChanged();
  // A removal was undone: everything is shown anew, and the sentence in the status line.
  void RemovalUndone(const std::string& sentence);

  // For other windows: the groups, and the status line with the progress of an update.
  GroupsPane& Groups() { return groups_; }
  StatusPane& Status() { return status_; }

 private:
  static const FormDesign& Design();
  void OnLoad() override;
  void OnPaneMade(int pane) override;
  void OnEscape() override {}  // the main window is not a dialog: nothing closes it by mistake
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void ShowView(View view) override;
  void ShowEverything() override;
  void ShowSelection() override;
  void Typed() override;
  void PrepareTyping() override;
  void TakeTyped();
  void tmrTyped_Timer();
  std::span<const TimerRow> Timers() const override;
  void ShowPanes();

  MainModels models_;
  const MainContext context_;
  TitlePane title_{context_};
  StatusPane status_{context_};
  GroupsPane groups_{context_, status_};
  FilterPane filter_{context_};
  BrowsePane browse_{context_, filter_};
  SearchPane search_{context_};
  YoursPane yours_{context_};
  DetailPane detail_{context_};
  PersonalPane personal_{context_};
  ListPane list_{context_, groups_, detail_, personal_, filter_};
  bool typed_ = false;  // TakeTyped is on its way
  DragPane drag_{context_, list_, groups_};
  Label lblSide_{*this, lblSide};
  ListHandle lstFavs_{*this, lstFavs};
  ListHandle lstEvents_{*this, lstEvents};
  ComboBox txtQuickSearch_{*this, txtQuickSearch};
};

}  // namespace sonaro
