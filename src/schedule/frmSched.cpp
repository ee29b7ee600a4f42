#include "schedule/frmSched.h"

#include <algorithm>

#include "app/HelpPages.h"
#include "app/Message.h"
#include "app/Strings.h"
#include "base/DataFolder.h"
#include "forms/ControlIds.h"
#include "forms/FileDialog.h"
#include "platform/Clock.h"
#include "resources/ids.h"
#include "schedule/CalendarExport.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleStore.h"
#include "schedule/frmAboutEventTime.h"
#include "schedule/frmSchedChange.h"

namespace sonaro {

std::string frmSched::Rows::Cell(int row, int column) const {
  const ScheduleRow& shown = rows[static_cast<std::size_t>(row)];
  switch (column) {
    case 0:
      return shown.next;
    case 1:
      return shown.name;
    case 2:
      return shown.schedule;
    default:
      return shown.action;
  }
}

void frmSched::OnLoad() {
  List(lstSched).SetColumns({{LoadText(IDS_SCHED_COLUMN_NEXT), 129},
                             {LoadText(IDS_SCHED_COLUMN_STATION), 180},
                             {LoadText(IDS_SCHED_COLUMN_OFTEN), 172},
                             {LoadText(IDS_SCHED_COLUMN_NOTE), 190}});
  List(lstSched).SetEmptyText(LoadText(IDS_SCHED_LIST_EMPTY), LoadText(IDS_SCHED_LIST_EMPTY_HELP));
  List(lstSched).SetModel(&scheduled_, false);
  List(lstShows).SetColumns({{LoadText(IDS_SCHED_COLUMN_NEXT), 0}, {LoadText(IDS_SCHED_COLUMN_SHOW), 671}});
  List(lstShows).SetEmptyText(LoadText(IDS_SCHED_SHOWS_EMPTY), LoadText(IDS_SCHED_SHOWS_EMPTY_HELP));
  List(lstShows).SetModel(&shows_, false);
  FillLists();
}

void frmSched::FillLists() {
  if (!IsOpen()) return;
  const int selected = List(lstSched).Selected();
  scheduled_.rows =
      ScheduleRows(services_.store, services_.calendar, services_.clock.LocalNow(), services_.clockStyle);
  shows_.rows = ShowRows(services_.shows);
  List(lstSched).RowsChanged();
  List(lstShows).RowsChanged();
  List(lstSched).Select(std::min(std::max(selected, 0), scheduled_.RowCount() - 1));
  ShowKeys();
}

void frmSched::ShowKeys() {
  const std::string key = SelectedKey();
  Enable(butChangeIt, SlotOfKey(key) >= 0);
  Enable(butDeleteIt, !key.empty());
  Enable(butExportIt, scheduled_.RowCount() > 0);
}

std::string frmSched::SelectedKey() {
  const Rows& rows = showsUsed_ ? shows_ : scheduled_;
  const int row = List(showsUsed_ ? lstShows : lstSched).Selected();
  return row >= 0 && row < rows.RowCount() ? rows.rows[static_cast<std::size_t>(row)].key : "";
}

void frmSched::lst_ItemSelected(int) {
  showsUsed_ = false;
  List(lstShows).Select(-1);
  ShowKeys();
}

void frmSched::lstShows_ItemSelected(int) {
  showsUsed_ = true;
  List(lstSched).Select(-1);
  ShowKeys();
}

void frmSched::lstSched_ItemActivate(int) { butChangeIt_Click(); }

void frmSched::butAddIt_Click() {
  frmSchedChange dialog(context_, services_, ScheduleDraft::ForStation("", "", services_.clock.LocalNow()));
  if (dialog.ShowModal(Window()) == 1) FillLists();
}

void frmSched::butChangeIt_Click() {
  const int slot = SlotOfKey(SelectedKey());
  if (slot < 0) return;
  const auto index = static_cast<std::size_t>(slot);
  frmSchedChange dialog(context_, services_,
                        ScheduleDraft::FromItem(services_.store.Item(index), services_.shortDatePattern),
                        index);
  if (dialog.ShowModal(Window()) == 1) FillLists();
}

void frmSched::butDeleteIt_Click() {
  const std::string key = SelectedKey();
  if (const int show = ShowOfKey(key); show >= 0) {
    const std::vector<std::string> lines = services_.shows.List();
    if (static_cast<std::size_t>(show) < lines.size()) {
      services_.shows.RemovePersonalShow(lines[static_cast<std::size_t>(show)]);
      services_.changed();
    }
  } else if (const int slot = SlotOfKey(key); slot >= 0) {
    services_.store.FreeSlot(static_cast<std::size_t>(slot));
    services_.store.SaveSchedule();
    services_.changed();
  }
  FillLists();
  Focus(showsUsed_ ? lstShows : lstSched);  // the key may be out of use now
}

void frmSched::butAboutTimeIt_Click() {
  frmAboutEventTime(context_, services_.clock, services_.shell, services_.help).ShowModal(Window());
}

void frmSched::butExportIt_Click() {
  const std::string path = AskSavePath(Window(), LoadText(IDS_SCHED_EXPORT_FILTER), "Sonaro.ics");
  if (path.empty()) return;
  const std::string calendar = ExportCalendar(services_.store, services_.clock.LocalNow().date,
                                              services_.clock.GmtNow(), services_.shortDatePattern);
  if (SaveWholeFile(services_.files, path, calendar)) return;
  services_.messages.Ask({.key = "CalendarNotWritten",
                          .caption = LoadText(IDS_SCHED_LIST_TITLE),
                          .text = FillIn(LoadText(IDS_SCHED_EXPORT_FAILED), {path}),
                          .firstButton = LoadText(IDS_APP_OK)});
}

void frmSched::butHelp_Click() { services_.help.OpenHelpPage("9019.html"); }

}  // namespace sonaro
