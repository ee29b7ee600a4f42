#include "mainwindow/SonaroFrm.h"

#include <utility>

#include "directory/StatList.h"
#include "forms/ControlIds.h"
#include "forms/FileDialog.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

constexpr UINT kTypedMessage = WM_APP + 40;

// The heading of the left column.
int SideCaptionOf(View view) {
  switch (view) {
    case View::Browse:
      return IDS_SIDE_CATEGORIES;
    case View::BrowseLoc:
      return IDS_SIDE_PLACES;
    case View::Search:
      return IDS_SIDE_SEARCH;
    case View::YourSonaro:
      return IDS_SIDE_GROUPS;
    case View::List:
    case View::PersonalPage:
      break;
  }
  return IDS_SIDE_RANKINGS;
}

}  // namespace

SonaroFrm::SonaroFrm(FormContext& context, const GuideData& data, const MainServices& services)
    : Form(context, Design()), models_(data, services.program), context_{*this,    context, data,
                                                                         services, models_, *this} {
  for (EventTarget* pane :
       std::initializer_list<EventTarget*>{&title_, &groups_, &browse_, &search_, &yours_, &list_, &filter_,
                                           &detail_, &personal_, &status_, &drag_}) {
    AddPart(*pane);
  }
}

void SonaroFrm::OnLoad() {
  browse_.Load();
  list_.Load();
  detail_.Load();
  SetWindowLongPtrW(Window(), GWL_EXSTYLE, GetWindowLongPtrW(Window(), GWL_EXSTYLE) | WS_EX_ACCEPTFILES);
  status_.ShowGuide();
  models_.listing.ShowRanking(Ranking::MostPop);
  ShowEverything();
}

void SonaroFrm::OnPaneMade(int pane) {
  if (pane == kSearchPane) search_.Load();
  if (pane == kYoursPane) yours_.LoadGroups();
  if (pane == kEventPane) yours_.LoadEvents();
  if (pane == kNoStationPane) detail_.LoadNoStation();
  if (pane == kYoursPane || pane == kOutsidePane) groups_.ShowOutsideTheBar();
}

void SonaroFrm::BringUpView(std::string_view name) {
  for (const View view :
       {View::YourSonaro, View::List, View::Browse, View::BrowseLoc, View::Search, View::PersonalPage}) {
    if (NameOf(view) == name) ShowView(view);
  }
  if (name == NameOf(View::Search)) txtQuickSearch_.Focus();
}

void SonaroFrm::ShowView(View view) {
  models_.listing.ShowView(view);
  ShowEverything();
  if (view == View::Search) PrepareTyping();
}

// Once the window is painted, so that the first letter does not wait for it.
void SonaroFrm::PrepareTyping() {
  UpdateWindow(Window());
  context_.data.stations.PrepareTyping();
}

// Everything that is shown follows from the models, so after any change all of it is shown anew. No pane has
// to know what else its change touches.
void SonaroFrm::ShowEverything() {
  const int focused = FocusedControl();
  status_.WindowChanged();
  ShowPanes();
  title_.Show();
  browse_.Show();
  groups_.Show();
  list_.ShowSort();
  list_.ShowRows();
  const ListingState& state = models_.listing.State();
  if (state.view == View::YourSonaro) yours_.Show();
  if (state.middle == Middle::EventPage) yours_.ShowCaption();
  if (state.middle == Middle::WebSearch) search_.ShowWebSearch();
  ShowSelection();
  // What had the focus may have gone with its pane; the focus is then wherever the system put it.
  if (focused != 0 && FocusedControl() != focused) {
    (state.middle == Middle::EventPage ? lstEvents_ : lstFavs_).Focus();
  }
}

// The left column goes by the front tab, the middle by what the listing holds.
void SonaroFrm::ShowPanes() {
  const ListingState& state = models_.listing.State();
  const View front = state.Front();
  ShowPane(kRankingPane, front == View::List || front == View::PersonalPage);
  ShowPane(kTreePane, front == View::Browse || front == View::BrowseLoc);
  ShowPane(kSearchPane, front == View::Search);
  ShowPane(kYoursPane, front == View::YourSonaro);
  ShowPane(kListPane, state.middle == Middle::StationList);
  ShowPane(kWebPane, state.middle == Middle::WebSearch);
  ShowPane(kEventPane, state.middle == Middle::EventPage);
  lblSide_.SetText(LoadText(SideCaptionOf(front)));
}

// The detail belongs to the one list that is on show in the middle.
void SonaroFrm::ShowSelection() {
  if (models_.listing.State().middle == Middle::EventPage) return detail_.Show(yours_.SelectedStation());
  detail_.Show(models_.listing.Rows().SelectedKey());
}

// One message however many letters come before it is read.
void SonaroFrm::Typed() {
  if (std::exchange(typed_, true)) return;
  PostMessageW(Window(), kTypedMessage, 0, 0);
}

// A posted message comes before the keys that wait, a timer after them: the newest words are taken, once, and
// no key waits for a search of the words before it.
void SonaroFrm::TakeTyped() {
  if (HIWORD(GetQueueStatus(QS_KEY)) != 0) return StartTimer(tmrTyped, USER_TIMER_MINIMUM);
  StopTimer(tmrTyped);
  typed_ = false;
  if (FocusedControl() != 0) UpdateWindow(GetFocus());  // the letter first
  search_.TakeTyped();
  list_.TakeTyped();
}

void SonaroFrm::tmrTyped_Timer() { TakeTyped(); }

std::span<const TimerRow> SonaroFrm::Timers() const {
  static const TimerRow kRows[] = {{tmrTyped, &SonaroFrm::tmrTyped_Timer}};
  return kRows;
}

// A drag has the mouse captured, so its messages come to this window and not to the list.
bool SonaroFrm::OnMessage(UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
  if (message == WM_DROPFILES) {
    result = 0;
    const std::vector<std::string> paths = TakeDroppedPaths(wParam);
    if (IsWindowEnabled(Window())) groups_.ImportDropped(paths);  // else a dialog waits for its answer
    return true;
  }
  if (message == kTypedMessage) {
    result = 0;
    TakeTyped();
    return true;
  }
  if (!drag_.Handle(message)) return false;
  result = 0;
  return true;
}

// Every play changes the recent list; other lists keep their rows and their place.
void SonaroFrm::RecentChanged() {
  if (!IsOpen()) return;
  const ListingState& state = models_.listing.State();
  if (state.holds == Holds::Recent) {
    models_.listing.StationsChanged();
    ShowEverything();
    return;
  }
  list_.ShowMarks();
  if (state.view == View::YourSonaro) yours_.ShowGroups();
}

void SonaroFrm::GroupsChanged() {
  if (!IsOpen()) return;
  models_.listing.GroupsChanged();
  ShowEverything();
}

void SonaroFrm::PersonalStationsChanged() {
  if (!IsOpen()) return;
  models_.listing.StationsChanged();
  ShowEverything();
}

// All that comes out of the guide's files: the tree, the rows on show, the date in the status line.
void SonaroFrm::DirectoryChanged() {
  if (!IsOpen()) return;
  browse_.GuideChanged();
  filter_.GuideChanged();
  models_.listing.StationsChanged();
  status_.ShowGuide();
  ShowEverything();
}

void SonaroFrm::RemovalUndone(const std::string& sentence) {
  if (!IsOpen()) return;
  status_.Say(FormatText(LoadText(IDS_STATUS_UNDONE), {sentence}));
  ShowEverything();
}

void SonaroFrm::ScheduleChanged() {
  if (IsOpen() && models_.listing.State().view == View::YourSonaro) yours_.Show();
}

}  // namespace sonaro
