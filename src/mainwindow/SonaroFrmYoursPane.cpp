#include "mainwindow/SonaroFrmYoursPane.h"

#include <algorithm>

#include "forms/ControlIds.h"
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

YoursPane::YoursPane(const MainContext& context)
    : context_(context),
      form_(context.form),
      groups_(context.data.favorites),
      listing_(context.models.listing) {}

// Both lists of this view: groups on the left, coming events in the middle.
std::span<const EventRow> YoursPane::Events() const {
  static const EventRow kRows[] = {
      {lstGroups, ItemSelected, &YoursPane::lstGroups_ItemSelected},
      {lstGroups, ItemActivated, &YoursPane::lstGroups_ItemActivate},
      {lstGroups, ContextMenu, &YoursPane::lstGroups_ContextMenu},
      {lstEvents, ItemSelected, &YoursPane::lstEvents_ItemSelected},
      {lstEvents, ItemActivated, &YoursPane::lstEvents_ItemActivate},
      {lstEvents, ContextMenu, &YoursPane::lstEvents_ContextMenu},
      {butNotifyMe, Click, &YoursPane::butNotifyMe_Click},
      {butPersonalShow, Click, &YoursPane::butPersonalShow_Click},
      {mnuEventNotifyMe, Click, &YoursPane::butNotifyMe_Click},
      {mnuEventPersonalShow, Click, &YoursPane::butPersonalShow_Click},
  };
  return kRows;
}

void YoursPane::LoadGroups() {
  ListView& groups = *lstGroups_;
  groups.SetRowHeight(26);
  groups.SetColumns({{.name = "#", .width = 24, .figure = true},
                     {.name = form_.LoadText(IDS_COLUMN_GROUP), .width = 130},
                     {.name = form_.LoadText(IDS_COLUMN_STATIONS), .rightAligned = true, .figure = true}});
  groups.SetColumnLines(false);
  groups.SetModel(&groupRows_, false);
}

void YoursPane::LoadEvents() {
  ListView& events = *lstEvents_;
  events.SetColumns({{form_.LoadText(IDS_COLUMN_WHEN), 150},
                     {form_.LoadText(IDS_COLUMN_EVENT), 190},
                     {form_.LoadText(IDS_COLUMN_STATION), 0}});
  events.SetModel(&eventRows_, false);
  events.SetEmptyText(form_.LoadText(IDS_EMPTY_EVENTS), form_.LoadText(IDS_EMPTY_EVENTS_HELP));
}

void YoursPane::Show() {
  ShowEvents();
  ShowGroups();
  ShowNextNotice();
}

void YoursPane::ShowCaption() {
  lblListing_.SetText(form_.LoadText(IDS_COMING_EVENTS));
  lblCount_.SetText("");
}

StationKey YoursPane::SelectedStation() const {
  const EventLine* event = SelectedEvent();
  return event ? event->key : StationKey();
}

// The selected row follows from what is on show and is never kept apart from it.
void YoursPane::ShowGroups() {
  ListView& list = *lstGroups_;
  list.RowsChanged();
  list.Select(SelectedGroupRow());
}

int YoursPane::RowOf(const EventKey& event) const {
  const auto same = std::find_if(events_.begin(), events_.end(),
                                 [&](const EventLine& line) { return line.event == event; });
  return same != events_.end() ? static_cast<int>(same - events_.begin()) : -1;
}

// The selection stays with its event, known by its key: the list is made anew every minute, and rows move up
// as events begin.
void YoursPane::ShowEvents() {
  ListView& list = *lstEvents_;
  const EventKey chosen = SelectedEvent() ? SelectedEvent()->event : EventKey();
  events_ = context_.services.schedule.ComingEvents();
  list.RowsChanged();
  const int same = RowOf(chosen);
  list.Select(same < 0 && !events_.empty() ? 0 : same);
  ShowEventButtons(list.Selected());
}

// An event that is noticed already cannot be noticed once more; a show can be added and removed.
void YoursPane::ShowEventButtons(int row) {
  const EventLine* event = EventAt(row);
  butNotifyMe_.Enable(event && !event->noticed);
  butPersonalShow_.Enable(event != nullptr);
  butPersonalShow_.SetText(form_.LoadText(event && event->personalShow ? IDS_SHOW_REMOVE : IDS_SHOW_ADD));
}

const EventLine* YoursPane::SelectedEvent() const { return EventAt(lstEvents_->Selected()); }

void YoursPane::ShowNextNotice() {
  const NextNotice next = context_.services.schedule.SoonestNotice();
  const bool none = next.when.empty();
  lblNextNotice_.SetText(none ? form_.LoadText(IDS_NEXT_NONE) : next.when);
  lblNextStation_.SetText(none ? form_.LoadText(IDS_NEXT_NONE_HELP) : next.name);
  lblNextOften_.SetText(next.howOften);
}

// A file may hold more groups than there are buttons; they are kept, and not shown.
int YoursPane::GroupCount() const {
  return static_cast<int>(std::min(groups_.Count(), FavoriteGroups::kSlots));
}

// -1 for a list that is not in the left column, such as a ranking.
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

// The arrow keys walk through the groups: each is shown at once, and the focus stays here.
void YoursPane::lstGroups_ItemSelected(int row) {
  if (const auto group = GroupAt(row)) {
    listing_.ShowGroupInPlace(*group);
    context_.view.ShowEverything();
  } else if (IsRecent(row)) {
    listing_.ShowRecentInPlace();
    context_.view.ShowEverything();
  } else {
    context_.view.ShowView(View::YourSonaro);
  }
}

void YoursPane::lstGroups_ItemActivate(int row) {
  if (GroupAt(row) || IsRecent(row)) lstFavs_.Focus();
}

void YoursPane::lstGroups_ContextMenu(int row, POINT at) {
  const auto group = GroupAt(row);
  context_.PopUpMenuFor({.group = group ? std::string(groups_.Name(*group)) : ""},
                        context_.models.actions.GroupMenu(group.value_or(groups_.Count())), at);
}

void YoursPane::lstEvents_ItemSelected(int row) {
  ShowEventButtons(row);
  context_.view.ShowSelection();
}

void YoursPane::lstEvents_ItemActivate(int row) {
  const EventLine* event = EventAt(row);
  if (event && !event->noticed) butNotifyMe_Click();
}

void YoursPane::lstEvents_ContextMenu(int, POINT at) {
  const EventLine* event = SelectedEvent();
  if (event == nullptr) return;
  const StationDetail& station = context_.models.subject.Shown();
  context_.PopUpMenuFor({.station = station, .event = *event},
                        context_.models.actions.EventMenu(*event, station), at);
}

// From a menu the event for which it was opened, although the list may have changed under it.
std::optional<EventKey> YoursPane::EventMeant() const {
  if (const CommandSubject::Menu* menu = context_.models.subject.OpenMenu()) return menu->event.event;
  const EventLine* selected = SelectedEvent();
  return selected ? std::optional(selected->event) : std::nullopt;
}

void YoursPane::butNotifyMe_Click() {
  const std::optional<EventKey> event = EventMeant();
  if (!event) return;
  context_.services.schedule.NotifyMe(form_, *event);
  ShowEvents();
  ShowNextNotice();
}

void YoursPane::butPersonalShow_Click() {
  const std::optional<EventKey> event = EventMeant();
  if (!event) return;
  context_.services.schedule.ChangePersonalShow(*event);
  ShowEvents();
}

// Two rows that are always there, then the groups.
int YoursPane::GroupRows::RowCount() const { return kFirstGroupRow + pane_.GroupCount(); }

std::string YoursPane::GroupRows::Cell(int row, int column) const {
  const auto group = pane_.GroupAt(row);
  switch (column) {
    case 0:
      // The digit of its key on the keyboard: the tenth has 0.
      return group ? std::to_string((*group + 1) % FavoriteGroups::kSlots) : std::string();
    case 1:
      if (group) return pane_.groups_.Name(*group);
      return pane_.form_.LoadText(pane_.IsRecent(row) ? IDS_LISTING_YOUR_RECENT : IDS_COMING_EVENTS);
    default:
      if (group) return std::to_string(pane_.groups_.Keys(*group).size());
      return std::to_string(pane_.IsRecent(row) ? pane_.context_.data.recent.Keys().size()
                                                : pane_.events_.size());
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
