// The list of what is scheduled, and of the personal shows, with the ways to add, change and delete.
#pragma once

#include <vector>

#include "forms/Form.h"
#include "forms/ListView.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleServices.h"

namespace sonaro {

class frmSched final : public Form {
 public:
  frmSched(FormContext& context, ScheduleServices& services)
      : Form(context, Design()), context_(context), services_(services) {}

  // The table was changed elsewhere, or time went by: makes the rows anew.
  void FillLists();

 private:
  class Rows final : public ListModel {
   public:
    int RowCount() const override { return static_cast<int>(rows.size()); }
    std::string Cell(int row, int column) const override;
    std::vector<ScheduleRow> rows;
  };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowKeys();
  // The key of the selected row of the list that was used last; "" without one.
  std::string SelectedKey();

  void lst_ItemSelected(int row);
  void lstShows_ItemSelected(int row);
  void lstSched_ItemActivate(int row);
  void butAddIt_Click();
  void butChangeIt_Click();
  void butDeleteIt_Click();
  void butAboutTimeIt_Click();
  void butExportIt_Click();
  void butCloseIt_Click() { Close(); }
  void butHelp_Click();

  FormContext& context_;
  ScheduleServices& services_;
  Rows scheduled_;
  Rows shows_;
  bool showsUsed_ = false;
};

}  // namespace sonaro
