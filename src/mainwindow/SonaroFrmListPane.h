// The middle of the main window: the header buttons, the station list, what it holds and how many. Part of
// SonaroFrm.
#pragma once

#include "forms/controls/ListView.h"
#include "mainwindow/MainPane.h"

namespace sonaro {

class DetailPane;
class FilterPane;
class GroupsPane;
class PersonalPane;

class ListPane final : public EventTarget, private ListModel {
 public:
  ListPane(const MainContext& context, GroupsPane& groups, DetailPane& detail, PersonalPane& personal,
           FilterPane& filter)
      : context_(context),
        form_(context.form),
        listing_(context.models.listing),
        groups_(groups),
        detail_(detail),
        personal_(personal),
        filter_(filter) {}

  void Load();
  // The rows are others, or in another order: shows them with their selection, caption and count.
  void ShowRows();
  void ShowSort();
  // The marks of the rows are others: a station was played, came into a group or left one.
  void ShowMarks() { lstFavs_->RepaintRows(); }
  StationKey KeyAt(int row) const;  // None for a row that stands for no station
  // Puts the row in the place of another one; only where the list shows a group in the group's own order.
  void MoveRow(const StationKey& station, int to);
  // Narrows the list to what stands in the filter's box by now.
  void TakeTyped();

 private:
  std::span<const EventRow> Events() const override;
  int RowCount() const override;
  std::string Cell(int row, int column) const override;
  int Symbol(int row) const override;
  int FindRow(const std::string& start, int from) const override;
  RowMarks Marks(int row) const override;
  std::string MarksSpoken(int row) const override;
  bool IsNotice() const override;

  void SetColumns();
  void ShowEmptyText();
  void ShowBesideCaption();
  void ShowCount();
  void ShowFilterBox();
  void SortBy(int command);
  void MoveStation(int by);

  void lstFavs_ItemSelected(int row);
  void lstFavs_ItemActivate(int row);
  void lstFavs_ItemStarred(int row);
  void lstFavs_ContextMenu(int row, POINT at);
  void butSplit_Click(int column);
  void butSplit_ContextMenu(int column, POINT at);
  void mnuSort_Click(int entry);
  void mnuOwnOrder_Click();
  void mnuFilter_Click();
  void butFilter_Click();
  void mnuEndFilter_Click();
  void mnuFiltered_Click() { lstFavs_.Focus(); }
  void txtFilter_Change() { context_.view.Typed(); }
  void butMissing_Click();
  void mnuRemoveRow_Click();
  void mnuActionMoveUp_Click() { MoveStation(-1); }
  void mnuActionMoveDown_Click() { MoveStation(1); }
  void mnuActionAddListToScan_Click();
  void mnuSomethingElse_Click();
  void mnuShowValues_Click();

  const MainContext& context_;
  Form& form_;
  StationListState& listing_;
  GroupsPane& groups_;
  DetailPane& detail_;
  PersonalPane& personal_;
  FilterPane& filter_;
  ListHandle lstFavs_{form_, lstFavs};
  ControlArray<ColumnButton> butSplit_{form_, butSplit1, 4};
  Label lblListing_{form_, lblListing};
  Label lblCount_{form_, lblCount};
  Button butMissing_{form_, butMissing};
  Label lblFilter_{form_, lblFilter};
  Edit txtFilter_{form_, txtFilter};
  Button butOwnOrder_{form_, butOwnOrder};
  bool filterOpen_ = false;
  std::string takenFilter_;  // by which the list is narrowed
};

}  // namespace sonaro
