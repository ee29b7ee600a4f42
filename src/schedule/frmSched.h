// The list of what is scheduled, and of the personal shows, with the ways to add, change and delete.
#pragma once

#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "forms/controls/ListView.h"
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
  // One of the two lists, sorted by one of its columns.
  class Rows final : public ListModel {
   public:
    Rows(Form& form, int list, int firstHeader)
        : form_(form), list_(form, list), headers_(form, firstHeader, kScheduleColumns) {}
    int RowCount() const override { return static_cast<int>(rows_.size()); }
    std::string Cell(int row, int column) const override;

    void Load(int nameText, int emptyText, int emptyHelp);
    // One selected row follows the rule of base/RowSelection.h, several stay those that are still there.
    void Fill(std::vector<ScheduleRow> rows);
    void SortBy(int column);
    // "" without one.
    std::string SelectedKey() const;
    std::vector<std::string> SelectedKeys() const;

   private:
    std::vector<std::string> Keys() const;
    void ShowSorted(const std::vector<std::string>& before);
    void SelectKeys(const std::vector<std::string>& keys);

    Form& form_;
    ListHandle list_;
    ControlArray<ColumnButton> headers_;
    int sortedBy_ = kNextColumn;
    std::vector<ScheduleRow> rows_;
  };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowKeys();
  // The key of the selected row of the list that was used last; "" without one.
  std::string SelectedKey() const { return (showsUsed_ ? shows_ : scheduled_).SelectedKey(); }

  void butSchedSplit_Click(int column) { scheduled_.SortBy(column); }
  void butShowSplit_Click(int column) { shows_.SortBy(column); }
  void lstSched_ItemSelected(int row);
  void lstShows_ItemSelected(int row);
  void lstSched_ItemActivate(int row);
  void butAddIt_Click();
  void butChangeIt_Click();
  void butDeleteIt_Click();
  void mnuUndo_Click();
  void butAboutTimeIt_Click();
  void butExportIt_Click();
  void butCloseIt_Click() { Close(); }
  void butHelp_Click();

  FormContext& context_;
  ScheduleServices& services_;
  Rows scheduled_{*this, lstSched, butSchedSplit};
  Rows shows_{*this, lstShows, butShowSplit};
  bool showsUsed_ = false;

  ListHandle lstSched_{*this, lstSched};
  ListHandle lstShows_{*this, lstShows};
  Button butChangeIt_{*this, butChangeIt};
  Button butDeleteIt_{*this, butDeleteIt};
  Button butExportIt_{*this, butExportIt};
};

}  // namespace sonaro
