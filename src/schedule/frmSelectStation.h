// Chooses a station: from a favourite group, from the user's own or recent ones, or by a search.
// StationPicker knows the stations; this window shows them.
#pragma once

#include <optional>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "forms/controls/ListView.h"
#include "schedule/StationPicker.h"

namespace sonaro {

class HelpPages;

class frmSelectStation final : public Form {
 public:
  frmSelectStation(FormContext& context, StationPicker& stations, HelpPages& help)
      : Form(context, Design()), stations_(stations), help_(help) {}

  // Runs the dialog. Nothing when it was cancelled.
  std::optional<StationInfo> Choose(HWND owner);

 private:
  class Rows final : public ListModel {
   public:
    int RowCount() const override { return static_cast<int>(rows.size()); }
    std::string Cell(int row, int column) const override;
    int Symbol(int row) const override { return rows[static_cast<std::size_t>(row)].Symbol(); }
    std::vector<StationInfo> rows;
  };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowRows(std::vector<StationInfo> rows);

  void cmbSelectGroup_Change();
  void butSearchIt_Click();
  void lstResult_ItemClick(int row);
  void lstResult_ItemActivate(int row);
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click();

  StationPicker& stations_;
  HelpPages& help_;
  Rows rows_;
  std::optional<StationInfo> chosen_;

  ListHandle lstResult_{*this, lstResult};
  ComboBox cmbSelectGroup_{*this, cmbSelectGroup};
  ComboBox txtFind_{*this, txtFind};
  Button butOKIt_{*this, butOKIt};
};

}  // namespace sonaro
