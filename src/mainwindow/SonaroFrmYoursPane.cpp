#include "mainwindow/SonaroFrmYoursPane.h"

#include <algorithm>

#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "mainwindow/StationListState.h"
#include "resources/texts/mainwindow.h"
#include "stations/FavoriteGroups.h"
#include "stations/RecentList.h"

namespace sonaro {
namespace {

// The rows of the left column's list.
constexpr int kEventsRow = 0;
constexpr int kRecentRow = 1;
constexpr int kFirstGroupRow = 2;

}  // namespace

YoursPane::YoursPane(Form& form, const FavoriteGroups& groups, const RecentList& recent,
                     const StationListState& listing, const MainWindowCalls& calls)
    : form_(form), groups_(groups), recent_(recent), listing_(listing), calls_(calls) {}

void YoursPane::Load() {
  ListView& groups = form_.List(lstGroups);
  groups.SetRowHeight(26);
  groups.SetColumns({{.name = "#", .width = 24, .figure = true},
                     {.name = form_.LoadText(IDS_COLUMN_GROUP), .width = 130},
                     {.name = form_.LoadText(IDS_COLUMN_STATIONS), .rightAligned = true, .figure = true}});
  groups.SetColumnLines(false);
  groups.SetModel(&groupRows_, false);
  ListView& events = form_.List(lstEvents);
  events.SetColumns({{form_.LoadText(IDS_COLUMN_WHEN), 150},
                     {form_.LoadText(IDS_COLUMN_EVENT), 190},
                     {form_.LoadText(IDS_COLUMN_STATION), 0}});
  events.SetModel(&eventRows_, false);
  events.SetEmptyText(form_.LoadText(IDS_EMPTY_EVENTS), form_.LoadText(IDS_EMPTY_EVENTS_HELP));
}

void YoursPane::ShowGroups() {
  ListView& list = form_.List(lstGroups);
  list.RowsChanged();
  list.Select(SelectedGroupRow());
}

int YoursPane::RowOf(const EventLine& event) const {
  const auto same = std::find_if(events_.begin(), events_.end(), [&](const EventLine& line) {
    return line.name == event.name && line.station == event.station;
  });
  return same != events_.end() ? static_cast<int>(same - events_.begin()) : -1;
}

void YoursPane::ShowEvents() {
  ListView& list = form_.List(lstEvents);
  const EventLine chosen = SelectedEvent() ? *SelectedEvent() : EventLine();
  events_ = calls_.comingEvents ? calls_.comingEvents() : std::vector<EventLine>();
  list.RowsChanged();
  const int same = RowOf(chosen);
  list.Select(same < 0 && !events_.empty() ? 0 : same);
  ShowEventButtons(list.Selected());
}

void YoursPane::ShowEventButtons(int row) {
  const EventLine* event = EventAt(row);
  form_.Enable(butNotifyMe, event && !event->noticed);
  form_.Enable(butPersonalShow, event != nullptr);
  form_.SetText(butPersonalShow,
                form_.LoadText(event && event->personalShow ? IDS_SHOW_REMOVE : IDS_SHOW_ADD));
}

const EventLine* YoursPane::SelectedEvent() const { return EventAt(form_.List(lstEvents).Selected()); }

void YoursPane::ShowNextNotice() {
  const NextNotice next = calls_.nextNotice ? calls_.nextNotice() : NextNotice();
  const bool none = next.when.empty();
  form_.SetText(lblNextNotice, none ? form_.LoadText(IDS_NEXT_NONE) : next.when);
  form_.SetText(lblNextStation, none ? form_.LoadText(IDS_NEXT_NONE_HELP) : next.name);
  form_.SetText(lblNextOften, next.howOften);
}

int YoursPane::GroupCount() const {
  return static_cast<int>(std::min(groups_.Count(), FavoriteGroups::kSlots));
}

int YoursPane::SelectedGroupRow() const {
  const ListingState& state = listing_.State();
  if (state.middle == Middle::EventPage) return kEventsRow;
  if (state.holds == Holds::Recent) return kRecentRow;
  const auto group = groups_.Find(state.group);
  return state.holds == Holds::Group && group ? static_cast<int>(*group) + kFirstGroupRow : -1;
}

std::optional<std::size_t> YoursPane::GroupAt(int row) const {
  if (row < kFirstGroupRow || row >= kFirstGroupRow + GroupCount()) return std::nullopt;
  return static_cast<std::size_t>(row - kFirstGroupRow);
}

bool YoursPane::IsRecent(int row) const { return row == kRecentRow; }

const EventLine* YoursPane::EventAt(int row) const {
  return row >= 0 && static_cast<std::size_t>(row) < events_.size() ? &events_[static_cast<std::size_t>(row)]
                                                                    : nullptr;
}

int YoursPane::GroupRows::RowCount() const { return kFirstGroupRow + pane_.GroupCount(); }

std::string YoursPane::GroupRows::Cell(int row, int column) const {
  const auto group = pane_.GroupAt(row);
  switch (column) {
    case 0:
      return group ? std::to_string((*group + 1) % FavoriteGroups::kSlots) : std::string();
    case 1:
      if (group) return std::string(pane_.groups_.Name(*group));
      return pane_.form_.LoadText(pane_.IsRecent(row) ? IDS_LISTING_YOUR_RECENT : IDS_COMING_EVENTS);
    default:
      if (group) return std::to_string(pane_.groups_.Tokens(*group).size());
      return std::to_string(pane_.IsRecent(row) ? pane_.recent_.Tokens().size() : pane_.events_.size());
  }
}

int YoursPane::EventRows::RowCount() const { return static_cast<int>(pane_.events_.size()); }

std::string YoursPane::EventRows::Cell(int row, int column) const {
  const EventLine* event = pane_.EventAt(row);
  if (!event) return {};
  switch (column) {
    case 0:
      return event->when;
    case 1:
      return event->name;
    default:
      return event->station;
  }
}

}  // namespace sonaro
