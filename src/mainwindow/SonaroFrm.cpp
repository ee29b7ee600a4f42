// The main window as a whole: its views and keys.
#include "mainwindow/SonaroFrm.h"

#include <array>

#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "mainwindow/SortEntries.h"
#include "resources/texts/mainwindow.h"
#include "settings/SettingNames.h"
#include "stations/PersonalStations.h"

namespace sonaro {
namespace {

// The views in the order of the tabs and of their menu entries.
constexpr std::array kTabs{View::YourSonaro, View::List, View::Browse, View::BrowseLoc, View::Search};
constexpr int kTabCount = static_cast<int>(kTabs.size());

// In the order of the ranking buttons. The least popular stations have a menu entry only.
constexpr std::array kRankingButtons{Ranking::NewStations, Ranking::MostPop,   Ranking::BestOverall,
                                     Ranking::BestSound,   Ranking::BestSpeed, Ranking::BestWebsite,
                                     Ranking::MostReliable};

constexpr const char* kQuickStartPage = "9070.html";
constexpr const char* kHelpStartPage = "index.html";

void Call(const std::function<void()>& call) {
  if (call) call();
}

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

SonaroFrm::SonaroFrm(FormContext& context, const GuideData& data, PlayerLaunch& player, WebPageOpener& pages,
                     MainWindowCalls calls)
    : Form(context, Design()),
      context_(context),
      data_(data),
      player_(player),
      pages_(pages),
      calls_(std::move(calls)),
      models_(data_, [this](const std::string& text) { TellTray(text); }),
      favorites_(data_.favorites, models_.listing, data_.settings, data_.strings, *this),
      list_(*this, models_.listing, data_.state),
      browse_(*this, models_.tree, data_.state),
      search_(*this, models_.search),
      detail_(*this),
      yours_(*this, data_.favorites, data_.recent, models_.listing, calls_),
      status_(*this, data_),
      drag_(*this) {}

void SonaroFrm::OnLoad() {
  list_.Load();
  search_.Load();
  detail_.Load();
  yours_.Load();
  drag_.Load({.rowKey = [this](int row) { return list_.KeyAt(row); },
              .groupName =
                  [this](int slot) {
                    const auto group = static_cast<std::size_t>(slot);
                    return std::string(group < data_.favorites.Count() ? data_.favorites.Name(group) : "");
                  },
              .over =
                  [this](int slot) {
                    ShowGroupBar();
                    if (slot >= 0) SetToggle(butFavs + slot, true);
                  },
              .scanIsAt = calls_.scanIsAt});
  ShowPane(kProgressPane, false);
  Enable(butUpdate, calls_.showUpdate != nullptr);
  Enable(butOptions, calls_.showOptions != nullptr);
  status_.ShowGuide();
  models_.listing.ShowRanking(Ranking::MostPop);
  ShowEverything();
}

void SonaroFrm::BringUpView(std::string_view name) {
  for (const View view : kTabs) {
    if (NameOf(view) == name) ShowView(view);
  }
  if (name == NameOf(View::PersonalPage)) ShowView(View::PersonalPage);
  if (name == NameOf(View::Search)) Focus(txtQuickSearch);
}

void SonaroFrm::ShowView(View view) {
  models_.listing.ShowView(view);
  ShowEverything();
}

void SonaroFrm::ShowEverything() {
  const int focused = FocusedControl();
  status_.WindowChanged();
  ShowPanes();
  const ListingState& state = models_.listing.State();
  if (state.view == View::Browse || state.view == View::BrowseLoc) browse_.Show(PersonalCount());
  ShowGroupBar();
  for (int key = 0; key < static_cast<int>(kRankingButtons.size()); ++key) {
    SetToggle(butNewStations + key, state.ranking == kRankingButtons[static_cast<std::size_t>(key)]);
  }
  list_.ShowSort();
  list_.ShowRows();
  if (state.view == View::YourSonaro) {
    yours_.ShowEvents();
    yours_.ShowGroups();
    yours_.ShowNextNotice();
    Enable(butRemoveGroup, GroupMeant().has_value());
  }
  if (state.middle == Middle::EventPage) {
    SetText(lblListing, LoadText(IDS_COMING_EVENTS));
    SetText(lblCount, "");
  }
  if (state.middle == Middle::WebSearch) {
    search_.ShowWebSearch();
    SetText(lblListing, models_.search.WebCaption());
    SetText(lblCount, "");
  }
  ShowSelection();
  // What had the focus may have gone with its pane; the focus is then wherever the system put it.
  if (focused != 0 && FocusedControl() != focused) {
    Focus(state.middle == Middle::EventPage ? lstEvents : lstFavs);
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
  SetText(lblSide, LoadText(SideCaptionOf(state.view)));
  for (int tab = 0; tab < kTabCount; ++tab) {
    SetToggle(butTabs + tab, kTabs[static_cast<std::size_t>(tab)] == state.view);
  }
}

void SonaroFrm::ShowGroupBar() {
  const std::size_t count = data_.favorites.Count();
  const std::size_t shown = GroupOnShow().value_or(count);
  for (std::size_t slot = 0; slot < FavoriteGroups::kSlots; ++slot) {
    const int key = butFavs + static_cast<int>(slot);
    const bool used = slot < count;
    const std::string text = used ? std::string(data_.favorites.Name(slot)) : LoadText(IDS_GROUP_SOCKET);
    SetEmptySocket(key, !used);
    SetText(key, text);
    SetTip(key, text);
    SetDetail(key, std::to_string((slot + 1) % FavoriteGroups::kSlots));
    SetToggle(key, used && shown == slot);
  }
  ClearItems(cmbFavs);
  for (std::size_t group = 0; group < count; ++group) {
    AddItem(cmbFavs, data_.favorites.Name(group), static_cast<int>(group) + 1);
  }
  SelectItem(cmbFavs, shown < count ? static_cast<int>(shown) : 0);
}

void SonaroFrm::ShowSelection() {
  if (models_.listing.State().middle == Middle::EventPage) {
    const EventLine* event = yours_.SelectedEvent();
    return ShowDetailOf(event ? StationKey::FromToken(event->token) : StationKey());
  }
  const StationRow* row = models_.listing.Rows().SelectedRow();
  ShowDetailOf(row ? StationKey::FromRowKey(row->key) : StationKey());
}

void SonaroFrm::butTabs_Click(int tab) { ShowView(kTabs[static_cast<std::size_t>(tab)]); }

void SonaroFrm::mnuView_Click(int view) {
  ShowView(kTabs[static_cast<std::size_t>(view)]);
  if (kTabs[static_cast<std::size_t>(view)] == View::Search) {
    Focus(txtQuickSearch);
    SelectAllText(txtQuickSearch);
  }
}

void SonaroFrm::mnuViewPersonalPage_Click() { ShowView(View::PersonalPage); }

void SonaroFrm::butRanking_Click(int key) {
  models_.listing.ShowRanking(kRankingButtons[static_cast<std::size_t>(key)]);
  ShowEverything();
}

void SonaroFrm::mnuActionRanking_Click(int entry) {
  if (const auto ranking = RankingOfCommand(mnuActionNewStations + entry))
    models_.listing.ShowRanking(*ranking);
  ShowEverything();
}

void SonaroFrm::butFavs_Click(int group) {
  if (static_cast<std::size_t>(group) >= data_.favorites.Count()) return mnuAddFavGroup_Click();
  models_.listing.ShowFavoriteGroup(static_cast<std::size_t>(group));
  ShowEverything();
}

void SonaroFrm::cmbFavs_SelChange() {
  const int group = ItemData(cmbFavs, SelectedItem(cmbFavs));
  if (group > 0) butFavs_Click(group - 1);
}

void SonaroFrm::butRecent_Click() {
  models_.listing.ShowRecent();
  ShowEverything();
}

void SonaroFrm::butSplit_Click(int column) { SortBy(butSplit1 + column); }

void SonaroFrm::butSplit_ContextMenu(int, POINT at) { PopUpMenu(models_.actions.SortMenu(), at); }

void SonaroFrm::mnuSort_Click(int entry) {
  Call(context_.clickSound);
  SortBy(mnuSortByName + entry);
}

void SonaroFrm::SortBy(int command) {
  const auto entry = SortEntryOf(command);
  if (!entry) return;
  models_.listing.Rows().SortBy(entry->key, entry->order);
  list_.ShowSort();
  list_.ShowRows();
}

void SonaroFrm::butMenu_Click() {
  std::vector<MenuEntry> menu = models_.actions.ProgramMenu();
  for (MenuEntry& entry : menu) {
    if (entry.command == mnuUpdate) entry.enabled = calls_.showUpdate != nullptr;
    if (entry.command == mnuUndoUpdate) entry.enabled = calls_.canUndoUpdate && calls_.canUndoUpdate();
    if (entry.command == mnuOptions) entry.enabled = calls_.showOptions != nullptr;
  }
  PopUpMenuUnder(menu, butMenu);
}

void SonaroFrm::butHelp_Click() {
  if (calls_.openHelpPage) calls_.openHelpPage(kHelpStartPage);
}

void SonaroFrm::mnuQuickStart_Click() {
  if (calls_.openHelpPage) calls_.openHelpPage(kQuickStartPage);
}

void SonaroFrm::butTray_Click() { Call(calls_.hideToTray); }
void SonaroFrm::butMin_Click() { ShowWindow(Window(), SW_MINIMIZE); }
void SonaroFrm::butCloseIt_Click() { Call(calls_.closeAsked); }
void SonaroFrm::mnuExit_Click() { Call(calls_.exit); }
void SonaroFrm::butUpdate_Click() { Call(calls_.showUpdate); }
void SonaroFrm::mnuUndoUpdate_Click() { Call(calls_.undoUpdate); }
void SonaroFrm::butScan_Click() { Call(calls_.showScan); }
void SonaroFrm::butSchedule_Click() { Call(calls_.showSchedule); }
void SonaroFrm::butOptions_Click() { Call(calls_.showOptions); }

bool SonaroFrm::OnMessage(UINT message, WPARAM, LPARAM, LRESULT& result) {
  const auto drop = drag_.Handle(message);
  if (!drop) return false;
  ShowGroupBar();
  EndDrag(*drop);
  result = 0;
  return true;
}

void SonaroFrm::EndDrag(const DragPane::Drop& drop) {
  using Thing = DragPane::Thing;
  if (drop.what == Thing::Row && drop.onto == Thing::Group) DropOnGroup(drop.name, drop.to);
  if (drop.what == Thing::Row && drop.onto == Thing::Row) MoveRow(drop.name, drop.to);
  if (drop.what == Thing::Row && drop.onto == Thing::Scan) DropOnScan(drop.name, drop.at);
  if (drop.what == Thing::Group && drop.onto == Thing::Group) MoveGroup(drop.name, drop.to);
}

// The main window is not a dialog: nothing closes it by mistake.
void SonaroFrm::OnEscape() {}

std::size_t SonaroFrm::PersonalCount() const { return data_.personal.All().size(); }

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
  if (models_.tree.Mode() != BrowseMode::NotBuilt) models_.tree.FillBrowseTree(models_.tree.Mode());
  browse_.TreeChanged();
  models_.listing.StationsChanged();
  status_.ShowGuide();
  ShowEverything();
}

void SonaroFrm::ScheduleChanged() {
  if (!IsOpen() || models_.listing.State().view != View::YourSonaro) return;
  yours_.ShowEvents();
  yours_.ShowGroups();
  yours_.ShowNextNotice();
}

void SonaroFrm::ShowGroupNamed(std::string_view name) {
  if (const auto group = data_.favorites.Find(name)) butFavs_Click(static_cast<int>(*group));
}

}  // namespace sonaro
