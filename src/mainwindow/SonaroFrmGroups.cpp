// The handlers of the favourite groups and of the page of the user's own things.
#include <algorithm>

#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"

namespace sonaro {

void SonaroFrm::butFavs_ContextMenu(int group, POINT at) {
  menuGroup_ = static_cast<std::size_t>(group);
  PopUpMenu(models_.actions.GroupMenu(*menuGroup_), at);
  menuGroup_.reset();
}

void SonaroFrm::lstGroups_ItemSelected(int row) {
  if (const auto group = yours_.GroupAt(row)) {
    models_.listing.ShowGroupInPlace(*group);
    ShowEverything();
  } else if (yours_.IsRecent(row)) {
    models_.listing.ShowRecentInPlace();
    ShowEverything();
  } else {
    ShowView(View::YourSonaro);
  }
}

void SonaroFrm::lstGroups_ItemActivate(int row) {
  if (yours_.GroupAt(row) || yours_.IsRecent(row)) Focus(lstFavs);
}

void SonaroFrm::lstGroups_ContextMenu(int row, POINT at) {
  menuGroup_ = yours_.GroupAt(row);
  PopUpMenu(models_.actions.GroupMenu(menuGroup_.value_or(FavoriteGroups::kSlots)), at);
  menuGroup_.reset();
}

// The group that a command without a menu means: that of the key with the focus, else the one on show.
std::optional<std::size_t> SonaroFrm::GroupOnShow() const {
  const ListingState& state = models_.listing.State();
  if (state.holds != Holds::Group || state.middle != Middle::StationList) return std::nullopt;
  return data_.favorites.Find(state.group);
}

std::optional<std::size_t> SonaroFrm::GroupMeant() const {
  std::optional<std::size_t> group = menuGroup_;
  const int focused = FocusedControl() - butFavs;
  if (!group && focused >= 0 && focused < static_cast<int>(FavoriteGroups::kSlots)) {
    group = static_cast<std::size_t>(focused);
  }
  if (!group) group = GroupOnShow();
  return group && *group < data_.favorites.Count() ? group : std::nullopt;
}

void SonaroFrm::butNewGroup_Click() {
  if (favorites_.AddFavoriteGroup()) models_.listing.ShowGroupInPlace(data_.favorites.Count() - 1);
  ShowEverything();
}

// A station was dropped on a group key; on a free one it founds a group.
void SonaroFrm::DropRowOnGroup(int row, int slot) {
  if (row < 0 || row >= static_cast<int>(models_.listing.Rows().Count())) return;
  const std::string token = models_.listing.Rows().At(static_cast<std::size_t>(row)).Token();
  if (token.empty()) return;
  auto group = static_cast<std::size_t>(slot);
  if (group >= data_.favorites.Count()) {
    if (!favorites_.AddFavoriteGroup()) return;
    group = data_.favorites.Count() - 1;
  }
  favorites_.AddStationToGroup(data_.favorites.Name(group), token);
  ShowEverything();
}

void SonaroFrm::MoveGroup(int from, int to) {
  const int last = static_cast<int>(data_.favorites.Count()) - 1;
  favorites_.MoveFavoriteGroup(static_cast<std::size_t>(from), static_cast<std::size_t>(std::min(to, last)));
  ShowEverything();
}

void SonaroFrm::mnuAddFavGroup_Click() {
  favorites_.AddFavoriteGroup();
  ShowEverything();
}

void SonaroFrm::butRemoveGroup_Click() {
  if (const auto group = GroupMeant()) favorites_.DeleteFavoriteGroup(*group);
  ShowEverything();
}

void SonaroFrm::mnuFavRenameFav_Click() {
  if (const auto group = GroupMeant()) favorites_.RenameFavoriteGroup(*group);
  ShowEverything();
}

void SonaroFrm::mnuFavMoveLeft_Click() {
  const auto group = GroupMeant();
  if (group && *group > 0) favorites_.MoveFavoriteGroup(*group, *group - 1);
  ShowEverything();
}

void SonaroFrm::mnuFavMoveRight_Click() {
  if (const auto group = GroupMeant()) favorites_.MoveFavoriteGroup(*group, *group + 1);
  ShowEverything();
}

void SonaroFrm::mnuFavScanGroup_Click() {
  const auto group = GroupMeant();
  if (!group || !calls_.addToScan) return;
  std::vector<std::string> keys;
  for (const std::string_view token : data_.favorites.Tokens(*group)) {
    if (const StationKey key = StationKey::FromToken(token)) keys.push_back(key.RowKey());
  }
  calls_.addToScan(keys);
}

void SonaroFrm::mnuActionStationToFavList_Click() {
  if (!shown_.station || !calls_.askGroupForStation) return;
  const std::string token = shown_.station.Token();
  const std::string group = calls_.askGroupForStation(shown_.name);
  if (!group.empty()) favorites_.AddStationToGroup(group, token);
  ShowEverything();
}

void SonaroFrm::mnuActionStationToGroup_Click(int group) {
  const auto index = static_cast<std::size_t>(group);
  if (!shown_.station || index >= data_.favorites.Count()) return;
  favorites_.AddStationToGroup(data_.favorites.Name(index), shown_.station.Token());
  ShowEverything();
}

std::string SonaroFrm::SelectedToken() const {
  const StationRow* row = models_.listing.Rows().SelectedRow();
  return row ? row->Token() : std::string();
}

void SonaroFrm::mnuActionRemoveFromFavList_Click() {
  favorites_.RemoveStation(SelectedToken());
  ShowEverything();
}

// What removing means for the list on show: a group loses a member, the user's own stations one of them.
void SonaroFrm::mnuRemoveRow_Click() {
  if (models_.listing.State().holds == Holds::PersonalStations) {
    mnuPersonalDelete_Click();
  } else {
    mnuActionRemoveFromFavList_Click();
  }
}

void SonaroFrm::mnuActionMoveUp_Click() { MoveStation(-1); }

void SonaroFrm::mnuActionMoveDown_Click() { MoveStation(1); }

void SonaroFrm::MoveStation(int by) {
  const auto row = models_.listing.Rows().Selected();
  if (row) MoveRow(static_cast<int>(*row), static_cast<int>(*row) + by);
}

// Rows of a group change places only where the list shows them in the group's own order.
void SonaroFrm::MoveRow(int from, int to) {
  const StationRows& rows = models_.listing.Rows();
  const auto count = static_cast<int>(rows.Count());
  if (rows.Sort().on || from < 0 || to < 0 || from >= count || to >= count) return;
  favorites_.PlaceStation(rows.At(static_cast<std::size_t>(from)).Token(),
                          rows.At(static_cast<std::size_t>(to)).Token());
  ShowEverything();
}

void SonaroFrm::lstEvents_ItemSelected(int row) {
  yours_.ShowEventKeys(row);
  ShowSelection();
}

void SonaroFrm::lstEvents_ItemActivate(int row) {
  const EventLine* event = yours_.EventAt(row);
  if (event && !event->noticed) butNotifyMe_Click();
}

void SonaroFrm::lstEvents_ContextMenu(int, POINT at) {
  if (const EventLine* event = yours_.SelectedEvent())
    PopUpMenu(models_.actions.EventMenu(*event, shown_), at);
}

void SonaroFrm::butNotifyMe_Click() {
  const int row = List(lstEvents).Selected();
  if (row < 0 || !calls_.notifyMe) return;
  calls_.notifyMe(static_cast<std::size_t>(row));
  yours_.ShowEvents();
  yours_.ShowNextNotice();
}

void SonaroFrm::butPersonalShow_Click() {
  const int row = List(lstEvents).Selected();
  if (row < 0 || !calls_.changePersonalShow) return;
  calls_.changePersonalShow(static_cast<std::size_t>(row));
  yours_.ShowEvents();
}

MessageResult SonaroFrm::Ask(const Message& message) {
  return calls_.ask ? calls_.ask(message) : MessageResult();
}

std::string SonaroFrm::AskNewGroupName() {
  return calls_.askNewGroupName ? calls_.askNewGroupName() : std::string();
}

std::string SonaroFrm::AskGroupName(const std::string& present) {
  return calls_.askGroupName ? calls_.askGroupName(present) : std::string();
}

void SonaroFrm::TellTray(const std::string& text) {
  if (calls_.tellTray) calls_.tellTray(text);
}

}  // namespace sonaro
