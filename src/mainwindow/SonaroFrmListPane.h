// The middle of the main window: the header buttons, the station list, what it holds and how many. Part of
// SonaroFrm.
#pragma once

#include "forms/controls/ListView.h"

namespace sonaro {

class Form;
class StationListState;
struct AppState;

class ListPane final : private ListModel {
 public:
  ListPane(Form& form, StationListState& listing, const AppState& state)
      : form_(form), listing_(listing), state_(state) {}

  void Load();
  // The rows are others, or in another order: shows them with their selection, caption and count.
  void ShowRows();
  void ShowSort();
  // Takes the row that the list has selected into the model.
  void TakeSelection(int row);
  std::string KeyAt(int row) const;  // of a row that stands for no station: ""

 private:
  int RowCount() const override;
  std::string Cell(int row, int column) const override;
  int Symbol(int row) const override;
  bool IsNotice() const override;

  void ShowEmptyText();
  void ShowMissing();

  Form& form_;
  StationListState& listing_;
  const AppState& state_;
};

}  // namespace sonaro
