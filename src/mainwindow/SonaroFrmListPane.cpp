#include "mainwindow/SonaroFrmListPane.h"

#include "forms/ControlIds.h"
#include "forms/WideText.h"
#include "mainwindow/SonaroFrmDetailPane.h"
#include "mainwindow/SonaroFrmFilterPane.h"
#include "mainwindow/SonaroFrmGroupsPane.h"
#include "mainwindow/SonaroFrmPersonalPane.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "mainwindow/SortEntries.h"
#include "playback/StationScan.h"
#include "resources/texts/mainwindow.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "stations/RecentList.h"

namespace sonaro {

// Header buttons, both menus and the keys lead to the same handlers: what the list does is decided in one
// place.
std::span<const EventRow> ListPane::Events() const {
  static const EventRow kRows[] = {
      {lstFavs, ItemSelected, &ListPane::lstFavs_ItemSelected},
      {lstFavs, ItemActivated, &ListPane::lstFavs_ItemActivate},
      {lstFavs, ItemStarred, &ListPane::lstFavs_ItemStarred},
      {lstFavs, ContextMenu, &ListPane::lstFavs_ContextMenu},
      {butSplit1, Click, &ListPane::butSplit_Click, 4},
      {butSplit1, ContextMenu, &ListPane::butSplit_ContextMenu, 4},
      {mnuSortByName, Click, &ListPane::mnuSort_Click, 18},  // the sort menu's and the action menu's
      {mnuOwnOrder, Click, &ListPane::mnuOwnOrder_Click},
      {butOwnOrder, Click, &ListPane::mnuOwnOrder_Click},
      {mnuFilter, Click, &ListPane::mnuFilter_Click},
      {butFilter, Click, &ListPane::butFilter_Click},
      {mnuEndFilter, Click, &ListPane::mnuEndFilter_Click},
      {mnuFiltered, Click, &ListPane::mnuFiltered_Click},
      {txtFilter, Change, &ListPane::txtFilter_Change},
      {txtFilter, EnterPressed, &ListPane::mnuFiltered_Click},
      {butMissing, Click, &ListPane::butMissing_Click},
      {mnuRemoveRow, Click, &ListPane::mnuRemoveRow_Click},
      {mnuActionMoveUp, Click, &ListPane::mnuActionMoveUp_Click},
      {mnuActionMoveDown, Click, &ListPane::mnuActionMoveDown_Click},
      {mnuActionAddListToScan, Click, &ListPane::mnuActionAddListToScan_Click},
      {mnuSomethingElse, Click, &ListPane::mnuSomethingElse_Click},
      {mnuShowValues, Click, &ListPane::mnuShowValues_Click},
  };
  return kRows;
}

void ListPane::Load() {
  listing_.ShowValues(context_.data.settings.Get(setting::kListValues));
  SetColumns();
  lstFavs_->SetModel(this, true);
  lstFavs_->AllowSeveral();
}

// Values stand below the right end of the first header button, and take their room from the names.
void ListPane::SetColumns() {
  constexpr int kValueWidth = 34;
  const bool values = listing_.State().showsValues;
  std::vector<ListView::Column> columns = {
      {form_.LoadText(IDS_COLUMN_NAME), values ? 185 - kValueWidth : 185},
      {form_.LoadText(IDS_COLUMN_LOCATION), 112},
      {form_.LoadText(IDS_COLUMN_MEDIA_TYPE), 82},
      {form_.LoadText(IDS_COLUMN_FORMAT), 0}};
  if (values)
    columns.insert(columns.begin() + 1, {form_.LoadText(IDS_COLUMN_VALUE), kValueWidth, true, true});
  lstFavs_->SetColumns(std::move(columns));
}

// The rows are those of the listing; the window asks for the texts of those that are seen.
void ListPane::ShowRows() {
  ListView& list = *lstFavs_;
  const StationRows& rows = listing_.Rows();
  ShowEmptyText();
  list.RowsChanged();
  list.Select(rows.Selected() ? static_cast<int>(*rows.Selected()) : -1);
  if (const std::vector<std::size_t> several = rows.SelectedRows(); several.size() > 1)
    list.SelectRows(std::vector<int>(several.begin(), several.end()));
  const ListingState& state = listing_.State();
  lblListing_.SetText(state.caption);
  ShowFilterBox();
  ShowBesideCaption();
  ShowCount();
}

// A narrowed list tells both figures, so that nobody takes a filter for the whole list. Before anything was
// chosen there is nothing to count.
void ListPane::ShowCount() {
  const StationRows& rows = listing_.Rows();
  const auto figure = [&](std::size_t count) { return FormatCount(count, context_.data.state.decimalMode); };
  const std::size_t count = rows.StationCount();
  const int textId = count == 1 ? IDS_COUNT_ONE_STATION : IDS_COUNT_STATIONS;
  if (const std::size_t selected = rows.SelectedRows().size(); selected > 1) {
    lblCount_.SetText(
        FormatText(form_.LoadText(IDS_COUNT_SELECTED), {figure(selected), figure(rows.FilledCount())}));
  } else if (count != rows.FilledCount()) {
    lblCount_.SetText(
        FormatText(form_.LoadText(IDS_COUNT_FILTERED), {figure(count), figure(rows.FilledCount())}));
  } else if (listing_.State().holds == Holds::Nothing && count == 0) {
    lblCount_.SetText("");
  } else {
    lblCount_.SetText(FormatText(form_.LoadText(textId), {figure(count)}));
  }
}

// What stands beside the caption and between it and the list, which are smaller then.
void ListPane::ShowBesideCaption() {
  const ListingState& state = listing_.State();
  const bool room = state.middle == Middle::StationList && !filterOpen_;
  const std::size_t count = room ? state.missing.size() : 0;
  const int textId = count == 1 ? IDS_GROUP_MISSING_ONE : IDS_GROUP_MISSING;
  butMissing_.SetText(
      FormatText(form_.LoadText(textId), {FormatCount(count, context_.data.state.decimalMode)}));
  butMissing_.Show(count > 0);
  const bool filterRow =
      state.middle == Middle::StationList && (filterOpen_ || context_.models.filter.IsOn());
  filter_.Show(filterRow);
  int layout = count > 0 ? kMainLayoutWithMissing : 0;
  if (filterRow) layout = count > 0 ? kMainLayoutWithMissingAndFilterRow : kMainLayoutWithFilterRow;
  form_.UseLayout(filterOpen_ ? kMainLayoutWithFilter : layout);
}

// The box goes when the list for which it was opened does: the words have been taken, and narrow nothing now.
void ListPane::ShowFilterBox() {
  if (filterOpen_ && !takenFilter_.empty() && listing_.State().narrowedBy.empty()) filterOpen_ = false;
  if (!filterOpen_) {
    takenFilter_.clear();
    txtFilter_.SetText("");
  }
  lblFilter_.Show(filterOpen_);
  txtFilter_.Show(filterOpen_);
}

// An empty list says why it is empty and what to do about it; that depends on what it would hold.
void ListPane::ShowEmptyText() {
  int heading = IDS_EMPTY_LIST;
  int help = IDS_EMPTY_LIST_HELP;
  if (!listing_.State().narrowedBy.empty()) {
    lstFavs_->SetEmptyText(form_.LoadText(IDS_EMPTY_FILTER), form_.LoadText(IDS_EMPTY_FILTER_HELP));
    return;
  }
  if (context_.models.filter.IsOn() && listing_.Rows().FilledCount() > 0) {
    lstFavs_->SetEmptyText(form_.LoadText(IDS_EMPTY_PARTS), form_.LoadText(IDS_EMPTY_PARTS_HELP));
    return;
  }
  switch (listing_.State().holds) {
    case Holds::Nothing:  // with the name of a category that was clicked
      if (!listing_.State().caption.empty()) {
        lstFavs_->SetEmptyText(FormatText(form_.LoadText(IDS_EMPTY_CATEGORY), {listing_.State().caption}),
                               form_.LoadText(IDS_EMPTY_CATEGORY_HELP));
        return;
      }
      heading = IDS_EMPTY_CHOOSE;
      help = IDS_EMPTY_CHOOSE_HELP;
      break;
    case Holds::Group:
      heading = listing_.State().missing.empty() ? IDS_EMPTY_GROUP : IDS_EMPTY_MISSING;
      help = listing_.State().missing.empty() ? IDS_EMPTY_GROUP_HELP : IDS_EMPTY_MISSING_HELP;
      break;
    case Holds::Recent:
      heading = IDS_EMPTY_RECENT;
      help = IDS_EMPTY_RECENT_HELP;
      break;
    case Holds::PersonalStations:
      heading = IDS_EMPTY_PERSONAL;
      help = IDS_EMPTY_PERSONAL_HELP;
      break;
    case Holds::Search:
    case Holds::Matches:
      heading = IDS_LISTING_NO_STATIONS;
      help = IDS_EMPTY_SEARCH_HELP;
      break;
    case Holds::Node:
    case Holds::Ranking:
      break;
  }
  lstFavs_->SetEmptyText(form_.LoadText(heading), form_.LoadText(help));
}

// The mark on a header, and for what has no header the name of the sorting on the button that ends it.
void ListPane::ShowSort() {
  const SortState& sort = listing_.Rows().Sort();
  butOwnOrder_.Show(sort.on);
  for (const SortEntry& entry : SortEntries()) {  // a rating has no header that could show it
    if (entry.key != sort.key) continue;
    const std::string by = Narrow(WithoutAccessKey(Widen(form_.LoadText(entry.captionId))));
    butOwnOrder_.SetText(FormatText(form_.LoadText(IDS_OWN_ORDER_KEY), {by}));
    butOwnOrder_.SetTip(butOwnOrder_.Text());
  }
  for (const SortEntry& entry : SortEntries()) {
    if (entry.headerButton == 0) continue;
    const bool active = sort.on && sort.key == entry.key;
    butSplit_[entry.headerButton - butSplit1].SetSortMark(active ? SortMark::Up : SortMark::None);
  }
}

// The list tells the focused row of several; the detail shows that one, the commands mean all.
void ListPane::lstFavs_ItemSelected(int row) {
  StationRows& rows = listing_.Rows();
  const std::vector<int> all = lstFavs_->SelectedRows();
  if (row < 0) {
    rows.Select(std::nullopt);
  } else {
    rows.SelectSeveral(static_cast<std::size_t>(row), std::vector<std::size_t>(all.begin(), all.end()));
  }
  ShowCount();
  context_.view.ShowSelection();
}

void ListPane::lstFavs_ItemActivate(int) { detail_.PlayFirst(); }

void ListPane::lstFavs_ItemStarred(int row) { groups_.ToggleStar(KeyAt(row)); }

// The menu is for the station and group as they are now; both are remembered by key and name until it closes.
void ListPane::lstFavs_ContextMenu(int, POINT at) {
  const CommandSubject& subject = context_.models.subject;
  const auto group = subject.GroupOnShow();
  context_.PopUpMenuFor({.station = subject.Shown(),
                         .stations = listing_.Rows().SelectedKeys(),
                         .group = group ? std::string(context_.data.favorites.Name(*group)) : ""},
                        context_.models.actions.ActionMenu(subject.Shown()), at);
}

void ListPane::butSplit_Click(int column) { SortBy(butSplit1 + column); }

void ListPane::butSplit_ContextMenu(int, POINT at) {
  form_.PopUpMenu(context_.models.actions.SortMenu(), at);
}

// A press of a header clicks by itself; the same from a menu is made to sound alike.
void ListPane::mnuSort_Click(int entry) {
  if (context_.forms.listener) context_.forms.listener->ButtonPressed();
  SortBy(mnuSortByName + entry);
}

void ListPane::SortBy(int command) {
  const auto entry = SortEntryOf(command);
  if (!entry) return;
  listing_.Rows().SortBy(entry->key, entry->order);
  ShowSort();
  ShowRows();
}

// For this list and the next ones: a sort holds until it is ended, whatever is listed meanwhile.
void ListPane::mnuOwnOrder_Click() {
  listing_.Rows().EndSort();
  ShowSort();
  ShowRows();
}

// Opened again the words are selected, so that typing replaces them.
void ListPane::mnuFilter_Click() {
  if (listing_.State().middle != Middle::StationList) return;
  filterOpen_ = true;
  ShowFilterBox();
  ShowBesideCaption();
  txtFilter_.Focus();
  txtFilter_.SelectAll();
  context_.view.PrepareTyping();
}

void ListPane::butFilter_Click() { filterOpen_ ? mnuEndFilter_Click() : mnuFilter_Click(); }

// All rows come back with the selected one among them, and the keys go on in the list.
void ListPane::mnuEndFilter_Click() {
  if (!filterOpen_) return;
  lstFavs_.Focus();  // before its own window goes
  filterOpen_ = false;
  listing_.NarrowByWords("");
  context_.view.ShowEverything();
}

// Words that are the same as before are not looked for again: typing a blank changes nothing.
void ListPane::TakeTyped() {
  const std::string words(TrimBlanks(txtFilter_.Text()));
  if (!filterOpen_ || words == takenFilter_) return;
  takenFilter_ = words;
  listing_.NarrowByWords(words);
  context_.view.ShowEverything();
}

void ListPane::butMissing_Click() {
  groups_.Commands().TakeOutMissing();
  context_.view.ShowEverything();
}

// What removing means for the list on show: a group loses a member, the user's own stations one of them.
void ListPane::mnuRemoveRow_Click() {
  if (listing_.State().holds == Holds::PersonalStations) return personal_.Delete();
  groups_.RemoveStations();
}

// Only in the list of the group that is meant, since places are those of the group and not of any other list.
void ListPane::MoveStation(int by) {
  const CommandSubject& subject = context_.models.subject;
  const StationKey key = subject.Station().station;
  const auto row = listing_.Rows().Find(key);
  if (row && subject.Group() == subject.GroupOnShow()) MoveRow(key, static_cast<int>(*row) + by);
}

// The target is told by the key of the station there. Rows and places of the group differ where stations are
// missing.
void ListPane::MoveRow(const StationKey& station, int to) {
  const StationRows& rows = listing_.Rows();
  if (!rows.InOwnOrder() || !rows.Find(station) || to < 0 || to >= static_cast<int>(rows.Count())) return;
  groups_.Commands().PlaceStation(station, rows.KeyAt(static_cast<std::size_t>(to)));
  context_.view.ShowEverything();
}

// In the shown order and only what is shown: what was filtered away is not meant.
void ListPane::mnuActionAddListToScan_Click() {
  if (listing_.Rows().StationCount() > 0) context_.services.scan.Add(listing_.Rows().Keys());
}

// Chosen by the moment of the click, which nobody hits on purpose.
void ListPane::mnuSomethingElse_Click() {
  const auto row = listing_.Rows().AnyOther(GetTickCount());
  if (!row || listing_.State().middle != Middle::StationList) return;
  listing_.Rows().Select(row);
  ShowRows();
  context_.view.ShowSelection();
  detail_.PlayFirst();
}

void ListPane::mnuShowValues_Click() {
  const bool wanted = !listing_.State().showsValues;
  context_.data.settings.Set(setting::kListValues, wanted);
  listing_.ShowValues(wanted);
  SetColumns();
  ShowRows();
}

StationKey ListPane::KeyAt(int row) const {
  if (row < 0 || row >= RowCount()) return {};
  return listing_.Rows().KeyAt(static_cast<std::size_t>(row));
}

int ListPane::RowCount() const { return static_cast<int>(listing_.Rows().Count()); }

// The rows know a way that does not read every name.
int ListPane::FindRow(const std::string& start, int from) const {
  const auto found = listing_.Rows().FindByName(start, static_cast<std::size_t>(from));
  return found ? static_cast<int>(*found) : -1;
}

std::string ListPane::Cell(int row, int column) const {
  const StationRows& rows = listing_.Rows();
  const auto position = static_cast<std::size_t>(row);
  if (!listing_.State().showsValues || column == 0) return std::string(rows.Cell(position, column));
  if (column > 1) return std::string(rows.Cell(position, column - 1));
  const int rating = listing_.ValueShown();
  if (rating == 0 || IsNotice()) return {};
  return context_.models.details.RatingText(CellOf(rows.At(position), rating));
}

int ListPane::Symbol(int row) const { return listing_.Rows().At(static_cast<std::size_t>(row)).Symbol(); }

RowMarks ListPane::Marks(int row) const {
  const StationKey station = KeyAt(row);
  const std::vector<StationKey>& recent = context_.data.recent.Keys();
  return {.star = context_.data.favorites.IsMember(station),
          .offer = static_cast<bool>(station),
          .sound = station && !recent.empty() && recent.front() == station};
}

std::string ListPane::MarksSpoken(int row) const {
  const RowMarks marks = Marks(row);
  std::string spoken = marks.star ? form_.LoadText(IDS_ROW_FAVORITE) : std::string();
  if (marks.sound) spoken += (spoken.empty() ? "" : ", ") + form_.LoadText(IDS_ROW_PLAYED_LAST);
  return spoken;
}

bool ListPane::IsNotice() const { return listing_.Rows().IsNotice(); }

}  // namespace sonaro
