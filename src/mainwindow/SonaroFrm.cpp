#include "mainwindow/SonaroFrm.h"

#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

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
  for (EventTarget* pane : std::initializer_list<EventTarget*>{&title_, &groups_, &browse_, &search_, &yours_,
                                                               &list_, &detail_, &personal_, &status_}) {
    AddPart(*pane);
  }
}

void SonaroFrm::OnLoad() {
  list_.Load();
  search_.Load();
  detail_.Load();
  yours_.Load();
  drag_.Load();
  ShowPane(kProgressPane, false);
  status_.ShowGuide();
  models_.listing.ShowRanking(Ranking::MostPop);
  ShowEverything();
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
}

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

void SonaroFrm::ShowPanes() {
  const ListingState& state = models_.listing.State();
  ShowPane(kRankingPane, state.view == View::List || state.view == View::PersonalPage);
  ShowPane(kTreePane, state.view == View::Browse || state.view == View::BrowseLoc);
  ShowPane(kSearchPane, state.view == View::Search);
  ShowPane(kYoursPane, state.view == View::YourSonaro);
  ShowPane(kListPane, state.middle == Middle::StationList);
  ShowPane(kWebPane, state.middle == Middle::WebSearch);
  ShowPane(kEventPane, state.middle == Middle::EventPage);
  lblSide_.SetText(LoadText(SideCaptionOf(state.view)));
}

void SonaroFrm::ShowSelection() {
  if (models_.listing.State().middle == Middle::EventPage) return detail_.Show(yours_.SelectedStation());
  detail_.Show(models_.listing.Rows().SelectedKey());
}

bool SonaroFrm::OnMessage(UINT message, WPARAM, LPARAM, LRESULT& result) {
  if (!drag_.Handle(message)) return false;
  result = 0;
  return true;
}

void SonaroFrm::RecentChanged() {
  if (!IsOpen()) return;
  const ListingState& state = models_.listing.State();
  if (state.holds == Holds::Recent) {
    models_.listing.StationsChanged();
    ShowEverything();
  } else if (state.view == View::YourSonaro) {
    yours_.ShowGroups();
  }
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

void SonaroFrm::DirectoryChanged() {
  if (!IsOpen()) return;
  browse_.GuideChanged();
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
