// The rest of the program for a window that stands alone: nothing is coming, nothing opens.
#pragma once

#include <string>
#include <vector>

#include "stations/Commands.h"

namespace sonaro {

class FakeCommands final : public ScheduleCommands, public UpdateCommands, public ProgramCommands {
 public:
  std::vector<std::string> told;  // the tray

  void ScheduleStation(Form&, const StationKey&) override {}
  void ExplainTimes(Form&) override {}
  std::vector<EventLine> ComingEvents() override { return {}; }
  void NotifyMe(Form&, const EventKey&) override {}
  void ChangePersonalShow(const EventKey&) override {}
  NextNotice SoonestNotice() override { return {}; }
  bool CanUndoUpdate() override { return false; }
  void OfferUndo(Form&) override {}
  std::string FindProxy() override { return {}; }
  void TestProxy(Form&, const std::string&, const std::string&) override {}
  void TellTray(const std::string& text) override { told.push_back(text); }
  void Open(ProgramWindow, Form*) override {}
  void OpenWhenFree(ProgramWindow) override {}
  void BringForward(std::string_view) override {}
  void ShowGroup(const std::string&) override {}
  void PlayStation(const StationKey&) override {}
  void AddStationToGroup(const std::string&, const StationKey&) override {}
  void KeepStation(Form&, const StationKey&) override {}
  void HideToTray() override {}
  void CloseAsked() override {}
  void Exit() override {}
  void ChoosePlayer(Form&) override {}
  void PlayNoticeSound() override {}
  bool ScanIsAt(int, int) override { return false; }
  void DropOnScan(const StationKey&, int, int) override {}
};

}  // namespace sonaro
