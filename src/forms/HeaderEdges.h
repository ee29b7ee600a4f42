// The edges between the header buttons of a form with FormDesign::keptColumns: they are dragged by the mouse,
// fitted by a double click and moved by Ctrl with the arrow keys, and the columns below go with them. What
// share of the list each column has is kept from one time to the next.
#pragma once

#include <windows.h>

#include <vector>

#include "forms/Columns.h"
#include "forms/ControlInstance.h"

namespace sonaro {

class HeaderEdges {
 public:
  HeaderEdges(FormWindow& form, const FormContext& context) : form_(form), context_(context) {}

  void ReadShares();  // before the controls are placed
  // Gives the header buttons their shares of the room between the first one's left and the last one's right
  // edge, where the design has put them. Without shares they stay as designed.
  void Arrange() const;
  // A message of a header button; true: it was about an edge, and the button must not see it.
  bool HandleHeader(const ControlInstance& header, UINT message, LPARAM lParam);
  // A message of the form, which has the mouse while an edge is dragged; true: it was the drag's.
  bool HandleDrag(UINT message, LPARAM lParam);
  // Of the focused header button: its right edge, the last one's left edge, goes one step.
  bool RunKey(const ControlInstance& focused, WPARAM key);

 private:
  std::vector<ControlInstance*> Headers() const;              // none: its columns are as designed
  int EdgeUnder(const ControlInstance& header, int x) const;  // -1: none
  void Fit(int edge);
  void MoveEdge(int edge, int to);
  void KeepShares() const;

  FormWindow& form_;
  const FormContext& context_;
  ColumnShares shares_;  // empty: as designed
  int dragged_ = -1;     // the edge, as the number of the header button left of it
  int grip_ = 0;         // from the pointer to the edge, while one is dragged
};

}  // namespace sonaro
