// The window of the station scan, full with queue and history or compact with the labels and buttons only.
// The main window owns it, so that it stays above that one. StationScan decides everything; this window shows
// it and hands the presses on.
#pragma once

#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "forms/controls/ListView.h"
#include "playback/StationScan.h"

namespace sonaro {

class FavoriteGroups;
class HelpPages;
class ProgramCommands;
class UndoList;

class frmScan final : public Form, private ScanView {
 public:
  frmScan(FormContext& context, StationScan& scan, HelpPages& help, const FavoriteGroups& groups,
          ProgramCommands& program, UndoList& undo);
  ~frmScan() override;

  // Whether the window is what the user sees at the point of the screen.
  bool IsAt(POINT screen) const;
  // A station was dropped there: it comes before the row of the queue at the point, else at the end.
  void TakeDropped(const StationKey& station, POINT screen);

 private:
  class QueueRows final : public ListModel {
   public:
    explicit QueueRows(const StationScan& scan) : scan_(scan) {}
    int RowCount() const override { return static_cast<int>(scan_.QueueCount()); }
    std::string Cell(int row, int column) const override;

   private:
    const StationScan& scan_;
  };
  class HistoryRows final : public ListModel {
   public:
    explicit HistoryRows(const StationScan& scan) : scan_(scan) {}
    int RowCount() const override { return static_cast<int>(scan_.HistoryCount()); }
    std::string Cell(int row, int column) const override;
    int Symbol(int row) const override;

   private:
    const StationScan& scan_;
  };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override;
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  void ShowState() override;
  void ShowTimeLeft() override;
  void ShowLists() override;
  void SelectQueueRow(std::size_t row) override;
  void QueueRowsChanged(const RowsChange& change) override;
  void EnableTimer(bool on) override;

  std::optional<std::size_t> QueueRow();
  void UseFullLayout(bool full);
  std::vector<MenuEntry> GroupEntries() const;
  void lstToScan_BeginDrag(int row);

  void butStartIt_Click() { scan_.StartPauseContinue(); }
  void butMoveNextIt_Click() { scan_.MoveNext(); }
  void butMoveUpIt_Click();
  void butMoveDownIt_Click();
  void butRemoveStationIt_Click();
  void butClearIt_Click();
  void mnuUndo_Click();
  void butFullIt_Click() { UseFullLayout(CurrentLayout() != 0); }
  void butKeepIt_Click();
  void butScanTimeIt_Click();
  void butCloseIt_Click() { Close(); }
  void butHelp_Click();
  void tmrScan_Timer() { scan_.Tick(); }
  void lblStationsAdd_Change();
  void lstToScan_ItemSelected(int row);
  void lstToScan_ContextMenu(int row, POINT at);
  void lstScanedAlready_ItemActivate(int row);
  void lstScanedAlready_ContextMenu(int row, POINT at);
  void mnuScanRemove_Click();
  void mnuScanPlay_Click();
  void mnuScanPutBack_Click();
  void mnuScanToGroup_Click(int group);

  FormContext& context_;
  StationScan& scan_;
  HelpPages& help_;
  const FavoriteGroups& groups_;
  ProgramCommands& program_;
  UndoList& undo_;
  QueueRows queue_;
  HistoryRows history_;
  StationKey menuStation_;  // whose context menu is open
  int menuHistoryRow_ = -1;
  int draggedRow_ = -1;

  ListHandle lstToScan_{*this, lstToScan};
  ListHandle lstScanedAlready_{*this, lstScanedAlready};
  ProgressHandle picScan_{*this, picScan};
  Button butStartIt_{*this, butStartIt};
  Label lblCurrentScaning_{*this, lblCurrentScaning};
  Label lblTimeLeft_{*this, lblTimeLeft};
  Button butMoveNextIt_{*this, butMoveNextIt};
  Button butMoveUpIt_{*this, butMoveUpIt};
  Button butMoveDownIt_{*this, butMoveDownIt};
  Button butRemoveStationIt_{*this, butRemoveStationIt};
  Button butClearIt_{*this, butClearIt};
  Button butKeepIt_{*this, butKeepIt};
  Label lblQueueCount_{*this, lblQueueCount};
  Panel panScanFull_{*this, panScanFull};
  Panel panScanCompact_{*this, panScanCompact};
  Button butFullIt_{*this, butFullIt};
  Label lblStationsAdd_{*this, lblStationsAdd};
};

}  // namespace sonaro
