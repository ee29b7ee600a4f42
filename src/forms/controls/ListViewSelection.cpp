// Which rows of a list are selected: by program, and by the keys and clicks that the system works.

#include <utility>

#include "forms/controls/ListView.h"

namespace sonaro {
namespace {

constexpr int kAllRows[] = {-1};

}  // namespace

int ListView::FocusedRow() const { return ListView_GetNextItem(Window(), -1, LVNI_FOCUSED); }

int ListView::Selected() const {
  // The search for a selected row asks for each one; in 40,000 rows that is felt.
  const int focused = FocusedRow();  // nearly always the one, and found at once
  if (focused >= 0 && (ListView_GetItemState(Window(), focused, LVIS_SELECTED) & LVIS_SELECTED) != 0)
    return focused;
  return ListView_GetNextItem(Window(), -1, LVNI_SELECTED);
}

// Some systems look at every row of the list when a selected one gives way to another or all are deselected;
// with 40,000 rows that is felt. Taking the mark away from the one row first spares it.
void ListView::Deselect(int row) {
  const bool wasQuiet = std::exchange(quiet_, true);
  if (row >= 0) ListView_SetItemState(Window(), row, 0, LVIS_SELECTED);
  quiet_ = wasQuiet;
}

// The style can be changed while the window lives; only the next key or click looks at it.
void ListView::AllowSeveral() {
  several_ = true;
  SetWindowLongPtrW(Window(), GWL_STYLE,
                    GetWindowLongPtrW(Window(), GWL_STYLE) & ~static_cast<LONG_PTR>(LVS_SINGLESEL));
}

int ListView::SelectedCount() const { return static_cast<int>(ListView_GetSelectedCount(Window())); }

// One row, the usual case, is found by the focus; the search for the others asks the system row by row.
std::vector<int> ListView::SelectedRows() const {
  std::vector<int> rows;
  if (SelectedCount() == 1) return {Selected()};
  for (int row = -1; (row = ListView_GetNextItem(Window(), row, LVNI_SELECTED)) >= 0;) rows.push_back(row);
  return rows;
}

// Some systems deal with each row by itself; nothing is painted or told meanwhile.
void ListView::ChangeMany(std::span<const int> rows, UINT state) {
  const bool wasQuiet = std::exchange(quiet_, true);
  many_ = true;
  {
    const Unpainted unpainted(Window());
    for (const int row : rows) ListView_SetItemState(Window(), row, state, LVIS_SELECTED);
  }
  many_ = false;
  quiet_ = wasQuiet;
  Repaint();
}

void ListView::SelectRows(std::span<const int> rows) {
  if (SelectedCount() > 0) ChangeMany(kAllRows, 0);
  ChangeMany(rows, LVIS_SELECTED);
}

// Some row has to have the focus: it is the one that the event tells and the keys go on from.
void ListView::SelectAll() {
  if (!several_ || ListView_GetItemCount(Window()) == 0 || (model_ != nullptr && model_->IsNotice())) return;
  if (FocusedRow() < 0) ListView_SetItemState(Window(), 0, LVIS_FOCUSED, LVIS_FOCUSED);
  ChangeMany(kAllRows, LVIS_SELECTED);
  Raise({.kind = FormEvent::Kind::ItemSelected, .row = Selected()});
}

// What the user does next takes the place of the one row that is selected.
bool ListView::SelectsOne() const {
  return !several_ || (SelectedCount() <= 1 && GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_CONTROL) >= 0);
}

void ListView::Select(int row) {
  quiet_ = true;
  const int before = Selected();
  if (SelectedCount() > 1) {
    ChangeMany(kAllRows, 0);
  } else if (row != before) {
    Deselect(before);
  }
  if (row >= 0) {
    ListView_SetItemState(Window(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(Window(), row, FALSE);
  }
  quiet_ = false;
  SyncScrollBar();
}

// The keys begin from the row that has the focus mark; without one the first arrow key would do nothing but
// set it.
void ListView::SelectNone() {
  Select(-1);
  if (ListView_GetItemCount(Window()) == 0) return;
  quiet_ = true;
  ListView_SetItemState(Window(), 0, LVIS_FOCUSED, LVIS_FOCUSED);
  ListView_EnsureVisible(Window(), 0, FALSE);
  quiet_ = false;
  SyncScrollBar();
}

LRESULT ListView::PassOnGathering(UINT message, WPARAM wParam, LPARAM lParam) {
  gathering_ = true;
  changed_ = false;
  const LRESULT result = PassOn(message, wParam, lParam);
  gathering_ = false;
  if (std::exchange(changed_, false)) Raise({.kind = FormEvent::Kind::ItemSelected, .row = Selected()});
  return result;
}

// The keys are the system's; only its way of moving the selection is shortened.
void ListView::SelectByKey(WPARAM key, LPARAM lParam) {
  const bool moves = key >= VK_PRIOR && key <= VK_DOWN && SelectsOne();
  const int before = Selected();
  byKey_ = true;
  if (moves) Deselect(before);
  PassOnGathering(WM_KEYDOWN, key, lParam);
  byKey_ = false;
  if (moves && before >= 0 && Selected() < 0) Select(before);  // already at the end: stays where it was
  SyncScrollBar();
}

// A list of one row at a time tells only of the row that became selected; the one that gave way is no news.
void ListView::ItemChanged(const NMLISTVIEW& change) {
  if (many_) return;
  RepaintRow(change.iItem);
  if (change.iItem > 0) RepaintRow(0);  // it may have had the frame
  const UINT turned = (change.uNewState ^ change.uOldState) & LVIS_SELECTED;
  if (turned == 0 || quiet_) return;
  if (several_ && gathering_ && SelectedCount() != 1) {
    changed_ = true;  // one event for all rows that this key or click changes
  } else if (several_) {
    changed_ = false;
    Raise({.kind = FormEvent::Kind::ItemSelected, .row = Selected()});
  } else if ((change.uNewState & LVIS_SELECTED) != 0 && change.iItem >= 0) {
    Raise({.kind = FormEvent::Kind::ItemSelected, .row = change.iItem});
  }
}

}  // namespace sonaro
