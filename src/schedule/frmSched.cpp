// Two lists in one window: what is scheduled, and the personal shows. Rows are made anew from the table every
// time, sorted by a column of each list's own, and found again by their keys.
#include "schedule/frmSched.h"

#include <algorithm>

#include "base/DataFolder.h"
#include "base/RowSelection.h"
#include "forms/FileDialog.h"
#include "platform/Clock.h"
#include "resources/texts/app.h"
#include "resources/texts/schedule.h"
#include "schedule/ScheduleChanges.h"
#include "schedule/ScheduleStore.h"
#include "schedule/frmAboutEventTime.h"
#include "schedule/frmSchedChange.h"
#include "settings/HelpPages.h"
#include "settings/Message.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"

namespace sonaro {

// The list asks for what it paints only.
std::string frmSched::Rows::Cell(int row, int column) const {
  return rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
}

void frmSched::Rows::Load(int nameText, int emptyText, int emptyHelp) {
  ListView& list = *list_;
  list.SetColumns({{form_.LoadText(IDS_SCHED_COLUMN_NEXT), 129},
                   {form_.LoadText(nameText), 180},
                   {form_.LoadText(IDS_SCHED_COLUMN_OFTEN), 172},
                   {form_.LoadText(IDS_SCHED_COLUMN_NOTE), 190}});
  list.SetEmptyText(form_.LoadText(emptyText), form_.LoadText(emptyHelp));
  list.SetModel(this, false);
}

std::vector<std::string> frmSched::Rows::Keys() const {
  std::vector<std::string> keys;
  keys.reserve(rows_.size());
  for (const ScheduleRow& row : rows_) keys.push_back(row.key);
  return keys;
}

// Filled anew every minute, as times like "Today" move on; the user must not lose his row by that.
void frmSched::Rows::Fill(std::vector<ScheduleRow> rows) {
  const std::vector<std::string> before = Keys();
  rows_ = std::move(rows);
  ShowSorted(before);
}

void frmSched::Rows::SortBy(int column) {
  sortedBy_ = column;
  ShowSorted(Keys());
}

void frmSched::Rows::ShowSorted(const std::vector<std::string>& before) {
  ListView& list = *list_;
  const int selected = list.Selected();
  std::vector<std::string> several;
  if (list.SelectedCount() > 1) {
    for (const int row : list.SelectedRows()) several.push_back(before[static_cast<std::size_t>(row)]);
  }
  SortRows(rows_, sortedBy_);
  for (int column = 0; column < kScheduleColumns; ++column) {
    headers_[column].SetSortMark(column == sortedBy_ ? SortMark::Up : SortMark::None);
  }
  list.RowsChanged();
  if (!several.empty()) return SelectKeys(several);
  const auto after =
      selected >= 0 ? SelectionAfterFill(before, static_cast<std::size_t>(selected), Keys()) : std::nullopt;
  list.Select(after ? static_cast<int>(*after) : -1);
}

// Rows that went are not replaced by others: several were chosen one by one.
void frmSched::Rows::SelectKeys(const std::vector<std::string>& keys) {
  std::vector<int> found;
  for (int row = 0; row < RowCount(); ++row) {
    if (std::find(keys.begin(), keys.end(), rows_[static_cast<std::size_t>(row)].key) != keys.end()) {
      found.push_back(row);
    }
  }
  list_->SelectRows(found);
}

std::vector<std::string> frmSched::Rows::SelectedKeys() const {
  std::vector<std::string> keys;
  for (const int row : list_->SelectedRows()) {
    if (row >= 0 && row < RowCount()) keys.push_back(rows_[static_cast<std::size_t>(row)].key);
  }
  return keys;
}

std::string frmSched::Rows::SelectedKey() const {
  const int row = list_->Selected();
  return row >= 0 && row < RowCount() ? rows_[static_cast<std::size_t>(row)].key : "";
}

void frmSched::OnLoad() {
  scheduled_.Load(IDS_SCHED_COLUMN_STATION, IDS_SCHED_LIST_EMPTY, IDS_SCHED_LIST_EMPTY_HELP);
  shows_.Load(IDS_SCHED_COLUMN_SHOW, IDS_SCHED_SHOWS_EMPTY, IDS_SCHED_SHOWS_EMPTY_HELP);
  // Not the shows: each one that is deleted is told of in a box of its own.
  lstSched_->AllowSeveral();
  showsUsed_ = false;
  FillLists();
}

// Of the two lists one has the selection; it is the one that the buttons mean.
void frmSched::FillLists() {
  if (!IsOpen()) return;
  const DateTime now = services_.clock.LocalNow();
  scheduled_.Fill(ScheduleRows(services_.store, services_.calendar, now, services_.texts));
  shows_.Fill(
      ShowRows(services_.shows, services_.store, services_.calendar, services_.events, now, services_.texts));
  showsUsed_ = showsUsed_ && shows_.RowCount() > 0;
  if (SelectedKey().empty()) lstSched_->Select(std::min(0, scheduled_.RowCount() - 1));
  ShowKeys();
}

// A personal show has nothing to modify, and several items have no one dialog.
void frmSched::ShowKeys() {
  const std::string key = SelectedKey();
  butChangeIt_.Enable(SlotOfKey(key) >= 0 && lstSched_->SelectedCount() == 1);
  butDeleteIt_.Enable(!key.empty());
  butExportIt_.Enable(scheduled_.RowCount() > 0);
}

void frmSched::lstSched_ItemSelected(int) {
  showsUsed_ = false;
  lstShows_->Select(-1);
  ShowKeys();
}

void frmSched::lstShows_ItemSelected(int) {
  showsUsed_ = true;
  lstSched_->Select(-1);
  ShowKeys();
}

// A double click, or Enter.
void frmSched::lstSched_ItemActivate(int) { butChangeIt_Click(); }

// A new item knows no station yet, and asks for it first.
void frmSched::butAddIt_Click() {
  frmSchedChange dialog(context_, services_, ScheduleDraft::ForStation({}, {}, services_.clock.LocalNow()));
  if (dialog.ShowModal(Window()) == 1) FillLists();
}

void frmSched::butChangeIt_Click() {
  const int slot = SlotOfKey(SelectedKey());
  if (slot < 0 || lstSched_->SelectedCount() != 1) return;
  const auto index = static_cast<std::size_t>(slot);
  frmSchedChange dialog(context_, services_, ScheduleDraft::FromItem(services_.store.Item(index)), index);
  if (dialog.ShowModal(Window()) == 1) FillLists();
}

void frmSched::butDeleteIt_Click() {
  const std::vector<std::string> keys = (showsUsed_ ? shows_ : scheduled_).SelectedKeys();
  if (keys.empty()) return;
  services_.changes.Delete(keys);
  FillLists();
  (showsUsed_ ? lstShows_ : lstSched_).Focus();  // the button may be out of use now
}

void frmSched::mnuUndo_Click() { services_.undo.Undo(); }

void frmSched::butAboutTimeIt_Click() {
  frmAboutEventTime(context_, services_.clock, services_.shell, services_.help).ShowModal(Window());
}

// All items, whatever is selected: a calendar that imports the file again knows them by their identity.
void frmSched::butExportIt_Click() {
  const std::string path = AskSavePath(Window(), LoadText(IDS_SCHED_EXPORT_FILTER), "Sonaro.ics");
  if (path.empty()) return;
  const std::string calendar = ExportCalendar(services_.store, services_.clock.LocalNow().date,
                                              services_.clock.GmtNow(), services_.texts);
  if (SavedOrSaid(SaveWholeFile(services_.files, path, calendar), path, services_.messages,
                  context_.strings)) {
    services_.listener.ActDone(FormatText(LoadText(IDS_SCHED_EXPORTED), {path}));
  }
}

void frmSched::butHelp_Click() { services_.help.OpenHelpPage("9019.html"); }

}  // namespace sonaro
