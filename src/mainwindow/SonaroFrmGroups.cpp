// The handlers of the favourite groups and of the page of the user's own things.
#include <algorithm>

#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "settings/Strings.h"
#include "stations/StationSource.h"

namespace sonaro {

void SonaroFrm::butFavs_ContextMenu(int slot, POINT at) {
  const auto group = static_cast<std::size_t>(slot);
  const std::string name(group < data_.favorites.Count() ? data_.favorites.Name(group) : "");
  PopUpMenuFor({.station = {}, .group = name, .event = {}}, models_.actions.GroupMenu(group), at);
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
  const auto group = yours_.GroupAt(row);
  const std::string name(group ? data_.favorites.Name(*group) : "");
  PopUpMenuFor({.station = {}, .group = name, .event = {}},
               models_.actions.GroupMenu(group.value_or(data_.favorites.Count())), at);
}

std::optional<std::size_t> SonaroFrm::GroupOnShow() const {
  const ListingState& state = models_.listing.State();
  if (state.holds != Holds::Group || state.middle != Middle::StationList) return std::nullopt;
  return data_.favorites.Find(state.group);
}

// The group that a command means: in a menu the one that it was opened for, else the one on show, whose key
// is lit.
std::optional<std::size_t> SonaroFrm::GroupMeant() const {
  return menu_ ? data_.favorites.Find(menu_->group) : GroupOnShow();
}

std::string SonaroFrm::NameOfGroupMeant() const {
  const auto group = GroupMeant();
  return group ? std::string(data_.favorites.Name(*group)) : std::string();
}

// The focus can stand on the key of a group that is not on show. A key that means one brings it there first,
// so that the user sees which. True when it did.
bool SonaroFrm::ShowFocusedGroup() {
  const int focused = FocusedControl() - butFavs;
  if (menu_ || focused < 0 || static_cast<std::size_t>(focused) >= FavoriteGroups::kSlots) return false;
  const auto group = static_cast<std::size_t>(focused);
  if (group >= data_.favorites.Count() || GroupOnShow() == group) return false;
  butFavs_Click(focused);
  return true;
}

void SonaroFrm::butNewGroup_Click() {
  if (favorites_.AddFavoriteGroup()) models_.listing.ShowGroupInPlace(data_.favorites.Count() - 1);
  ShowEverything();
}

// A station was dropped on a group button; on a free one it founds a group.
void SonaroFrm::DropOnGroup(const std::string& rowKey, int slot) {
  const std::string token = StationKey::FromRowKey(rowKey).Token();
  auto group = static_cast<std::size_t>(slot);
  if (group >= data_.favorites.Count()) {
    if (!favorites_.AddFavoriteGroup()) return;
    group = data_.favorites.Count() - 1;
  }
  favorites_.AddStationToGroup(data_.favorites.Name(group), token);
  ShowEverything();
}

void SonaroFrm::MoveGroup(const std::string& name, int to) {
  const auto from = data_.favorites.Find(name);
  const int last = static_cast<int>(data_.favorites.Count()) - 1;
  if (from) favorites_.MoveFavoriteGroup(*from, static_cast<std::size_t>(std::min(to, last)));
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

// Deleting may not ask, so that the press that brings the group on show does no more.
void SonaroFrm::mnuRemoveFocusedGroup_Click() {
  if (!ShowFocusedGroup()) butRemoveGroup_Click();
}

void SonaroFrm::butMissing_Click() {
  favorites_.TakeOutMissing();
  ShowEverything();
}

void SonaroFrm::mnuFavRenameFav_Click() {
  ShowFocusedGroup();
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
  const StationDetailBuilder& station = StationMeant();
  if (!station.station || !calls_.askGroupForStation) return;
  const std::string token = station.station.Token();
  const std::string group = calls_.askGroupForStation(station.name);
  if (!group.empty()) favorites_.AddStationToGroupOrNew(group, token);
  ShowEverything();
}

void SonaroFrm::mnuActionStationToGroup_Click(int group) {
  const auto index = static_cast<std::size_t>(group);
  if (!StationMeant().station || index >= data_.favorites.Count()) return;
  favorites_.AddStationToGroup(data_.favorites.Name(index), StationMeant().station.Token());
  ShowEverything();
}

void SonaroFrm::AddStationToGroup(const std::string& groupName, const std::string& token) {
  favorites_.AddStationToGroup(groupName, token);
  if (IsOpen()) ShowEverything();
}

void SonaroFrm::mnuActionRemoveFromFavList_Click() {
  favorites_.RemoveStation(NameOfGroupMeant(), StationMeant().station.Token());
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
  const std::string key = StationMeant().station.RowKey();
  const auto row = models_.listing.Rows().Find(key);
  if (row && GroupMeant() == GroupOnShow()) MoveRow(key, static_cast<int>(*row) + by);
}

// Rows of a group change places only where the list shows them in the group's own order.
void SonaroFrm::MoveRow(const std::string& rowKey, int to) {
  const StationRows& rows = models_.listing.Rows();
  if (rows.Sort().on || !rows.Find(rowKey) || to < 0 || to >= static_cast<int>(rows.Count())) return;
  favorites_.PlaceStation(StationKey::FromRowKey(rowKey).Token(),
                          rows.At(static_cast<std::size_t>(to)).Token());
  ShowEverything();
}

void SonaroFrm::lstEvents_ItemSelected(int row) {
  yours_.ShowEventButtons(row);
  ShowSelection();
}

void SonaroFrm::lstEvents_ItemActivate(int row) {
  const EventLine* event = yours_.EventAt(row);
  if (event && !event->noticed) butNotifyMe_Click();
}

void SonaroFrm::lstEvents_ContextMenu(int, POINT at) {
  const EventLine* event = yours_.SelectedEvent();
  if (event == nullptr) return;
  PopUpMenuFor({.station = shown_, .group = {}, .event = *event}, models_.actions.EventMenu(*event, shown_),
               at);
}

int SonaroFrm::EventRowMeant() { return menu_ ? yours_.RowOf(menu_->event) : List(lstEvents).Selected(); }

void SonaroFrm::butNotifyMe_Click() {
  const int row = EventRowMeant();
  if (row < 0 || !calls_.notifyMe) return;
  calls_.notifyMe(static_cast<std::size_t>(row));
  yours_.ShowEvents();
  yours_.ShowNextNotice();
}

void SonaroFrm::butPersonalShow_Click() {
  const int row = EventRowMeant();
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

void SonaroFrm::SayDone(int textId, std::string_view token, std::string_view group) {
  if (!IsOpen()) return;
  status_.Say(FormatText(LoadText(textId), {data_.source.NameOf(StationKey::FromToken(token)), group}));
}

void SonaroFrm::TellTray(const std::string& text) {
  if (calls_.tellTray) calls_.tellTray(text);
}

}  // namespace sonaro
