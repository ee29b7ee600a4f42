// The row above the station list in which its filter stands: a box for the place, the genre and the bit rate,
// each with a key beside it that takes that part away, and the key for stations that answered. Part of
// SonaroFrm.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "mainwindow/MainPane.h"

namespace sonaro {

class FilterPane final : public EventTarget {
 public:
  explicit FilterPane(const MainContext& context)
      : context_(context), form_(context.form), filter_(context.models.filter) {}

  // Shows the filter as it is.
  void Show(bool shown);
  void FocusFirst() const { cmbListFilter_[0].Focus(); }
  // The places and genres of the guide are others.
  void GuideChanged();
  // Every list shows only the place or genre with this value from now on.
  void Set(StationFilter::Part part, std::string_view value);

 private:
  static constexpr int kBoxes = 3;  // the parts with something to choose from

  std::span<const EventRow> Events() const override;
  void FillBoxes();
  void ShowBox(int box);

  void cmbListFilter_Change(int box);
  void butEndListFilter_Click(int box);
  void butOnlyAnswering_Click();

  const MainContext& context_;
  Form& form_;
  StationFilter& filter_;
  ControlArray<ComboBox> cmbListFilter_{form_, cmbListFilter, kBoxes};
  ControlArray<Button> butEndListFilter_{form_, butEndListFilter, kBoxes};
  ToggleButton butOnlyAnswering_{form_, butOnlyAnswering};
  std::array<std::vector<std::string>, kBoxes> values_;  // of the rows of each box; empty: not filled
};

}  // namespace sonaro
