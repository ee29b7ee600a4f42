#include "mainwindow/SonaroFrmGroupsPane.h"

#include <algorithm>

#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrmStatusPane.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "mainwindow/frmNewFavorite.h"
#include "mainwindow/frmPickGroup.h"
#include "playback/StationScan.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/StationSource.h"

namespace sonaro {

GroupsPane::GroupsPane(const MainContext& context, StatusPane& status)
    : context_(context),
      form_(context.form),
      groups_(context.data.favorites),
      subject_(context.models.subject),
      status_(status),
      playlists_(context),
      commands_(context.data.favorites, context.models.listing, context.data.settings, context.data.strings,
                context.services.undo, *this) {}

// Events of the group buttons, and of every menu that acts on a group. A menu acts on the group that it was
// opened for, which CommandSubject knows.
std::span<const EventRow> GroupsPane::Events() const {
  static const EventRow kRows[] = {
      {butFavs, Click, &GroupsPane::butFavs_Click, 10},
      {cmdFavHit, Click, &GroupsPane::butFavs_Click, 10},
      {cmbFavs, SelChange, &GroupsPane::cmbFavs_SelChange},
      {butFavs, ContextMenu, &GroupsPane::butFavs_ContextMenu, 10},
      {butRecent, Click, &GroupsPane::butRecent_Click},
      {mnuRecent, Click, &GroupsPane::butRecent_Click},
      {butNewGroup, Click, &GroupsPane::butNewGroup_Click},
      {butRemoveGroup, Click, &GroupsPane::butRemoveGroup_Click},
      {mnuRemoveFocusedGroup, Click, &GroupsPane::mnuRemoveFocusedGroup_Click},
      {mnuAddFavGroupButton, Click, &GroupsPane::mnuAddFavGroup_Click},
      {mnuFavoritesAdd, Click, &GroupsPane::mnuAddFavGroup_Click},
      {mnuFavRenameFav, Click, &GroupsPane::mnuFavRenameFav_Click},
      {mnuItemRename, Click, &GroupsPane::mnuFavRenameFav_Click},
      {mnuFavDeleteFav, Click, &GroupsPane::butRemoveGroup_Click},
      {mnuItemDelete, Click, &GroupsPane::butRemoveGroup_Click},
      {mnuFavMoveLeft, Click, &GroupsPane::mnuFavMoveLeft_Click},
      {mnuFavMoveRight, Click, &GroupsPane::mnuFavMoveRight_Click},
      {mnuFavScanGroup, Click, &GroupsPane::mnuFavScanGroup_Click},
      {mnuFavExport, Click, &GroupsPane::mnuFavExport_Click},
      {mnuFavImport, Click, &GroupsPane::mnuFavImport_Click},
      {mnuActionStationToFavList, Click, &GroupsPane::mnuActionStationToFavList_Click},
      {butAddToGroupIt, Click, &GroupsPane::mnuActionStationToFavList_Click},
      {mnuActionStar, Click, &GroupsPane::mnuActionStar_Click},
      {mnuActionStationToGroup, Click, &GroupsPane::mnuActionStationToGroup_Click, 10},
      {mnuActionRemoveFromFavList, Click, &GroupsPane::RemoveStations},
  };
  return kRows;
}

// Ten buttons, whatever the number of groups: a free one is a socket that founds a group.
void GroupsPane::Show() {
  const std::size_t count = groups_.Count();
  const std::size_t shown = subject_.GroupOnShow().value_or(count);
  Bar bar{{}, shown};
  for (std::size_t group = 0; group < count; ++group) bar.names.push_back(NameOf(group));
  if (bar_ == bar) return;  // ten buttons with their tips are felt with every letter that is typed
  bar_ = std::move(bar);
  for (std::size_t slot = 0; slot < FavoriteGroups::kSlots; ++slot) {
    const GroupButton button = butFavs_[static_cast<int>(slot)];
    const bool used = slot < count;
    const std::string text = used ? std::string(groups_.Name(slot)) : form_.LoadText(IDS_GROUP_SOCKET);
    button.SetEmptySocket(!used);
    button.SetText(text);
    button.SetTip(text);
    button.SetFigure(std::to_string((slot + 1) % FavoriteGroups::kSlots));
    button.SetActive(used && shown == slot);
  }
  ShowOutsideTheBar();
}

void GroupsPane::ShowOutsideTheBar() {
  const std::size_t count = groups_.Count();
  if (form_.HasPane(kYoursPane)) butRemoveGroup_.Enable(subject_.Group().has_value());
  if (!form_.HasPane(kOutsidePane)) return;
  const std::size_t shown = subject_.GroupOnShow().value_or(count);
  cmbFavs_.ClearItems();
  for (std::size_t group = 0; group < count; ++group) {
    cmbFavs_.AddItem(groups_.Name(group), static_cast<int>(group) + 1);
  }
  // Without a group on show the first one stands there.
  cmbFavs_.SelectItem(shown < count ? static_cast<int>(shown) : 0);
}

// The button that something dragged would fall on is lit beside the one of the group on show.
void GroupsPane::ShowDropOn(int slot) {
  bar_.reset();
  Show();
  if (slot < 0) return;
  butFavs_[slot].SetActive(true);
  bar_.reset();  // it shows something else now
}

std::string GroupsPane::NameOf(std::size_t group) const {
  return group < groups_.Count() ? std::string(groups_.Name(group)) : std::string();
}

void GroupsPane::ShowGroupNamed(std::string_view name) {
  if (const auto group = groups_.Find(name)) butFavs_Click(static_cast<int>(*group));
}

// A press of a free button asks for the name of a new group.
void GroupsPane::butFavs_Click(int group) {
  if (static_cast<std::size_t>(group) >= groups_.Count()) return mnuAddFavGroup_Click();
  context_.models.listing.ShowFavoriteGroup(static_cast<std::size_t>(group));
  context_.view.ShowEverything();
}

void GroupsPane::cmbFavs_SelChange() {
  const int group = cmbFavs_.ItemData(cmbFavs_.SelectedItem());
  if (group > 0) butFavs_Click(group - 1);
}

void GroupsPane::butFavs_ContextMenu(int slot, POINT at) {
  const auto group = static_cast<std::size_t>(slot);
  context_.PopUpMenuFor({.group = NameOf(group)}, context_.models.actions.GroupMenu(group), at);
}

void GroupsPane::butRecent_Click() {
  context_.models.listing.ShowRecent();
  context_.view.ShowEverything();
}

// The focus can stand on the button of a group that is not on show. A key that means one brings it there
// first, so that the user sees which. True when it did.
bool GroupsPane::ShowFocusedGroup() {
  const int focused = butFavs_.Focused();
  if (subject_.OpenMenu() || focused < 0) return false;
  const auto group = static_cast<std::size_t>(focused);
  if (group >= groups_.Count() || subject_.GroupOnShow() == group) return false;
  butFavs_Click(focused);
  return true;
}

// The new group comes on show, since its button may be beyond those that the user looks at.
void GroupsPane::butNewGroup_Click() {
  if (commands_.AddFavoriteGroup()) context_.models.listing.ShowGroupInPlace(groups_.Count() - 1);
  context_.view.ShowEverything();
}

// A station was dropped on a group button; on a free one it founds a group.
void GroupsPane::TakeDropped(const std::vector<StationKey>& stations, int slot) {
  auto group = static_cast<std::size_t>(slot);
  if (group >= groups_.Count()) {
    if (!commands_.AddFavoriteGroup()) return;
    group = groups_.Count() - 1;
  }
  AddTo(groups_.Name(group), stations);
  context_.view.ShowEverything();
}

// By its name: the groups may have changed during the drag. Dropped on a free button it becomes the last.
void GroupsPane::MoveGroup(const std::string& name, int to) {
  const auto from = groups_.Find(name);
  const int last = static_cast<int>(groups_.Count()) - 1;
  if (from) commands_.MoveFavoriteGroup(*from, static_cast<std::size_t>(std::min(to, last)));
  context_.view.ShowEverything();
}

void GroupsPane::mnuAddFavGroup_Click() {
  commands_.AddFavoriteGroup();
  context_.view.ShowEverything();
}

void GroupsPane::butRemoveGroup_Click() {
  if (const auto group = subject_.Group()) commands_.DeleteFavoriteGroup(*group);
  context_.view.ShowEverything();
}

// Deleting may not ask, so that the press that brings the group on show does no more.
void GroupsPane::mnuRemoveFocusedGroup_Click() {
  if (!ShowFocusedGroup()) butRemoveGroup_Click();
}

void GroupsPane::mnuFavRenameFav_Click() {
  ShowFocusedGroup();
  if (const auto group = subject_.Group()) commands_.RenameFavoriteGroup(*group);
  context_.view.ShowEverything();
}

void GroupsPane::mnuFavMoveLeft_Click() {
  const auto group = subject_.Group();
  if (group && *group > 0) commands_.MoveFavoriteGroup(*group, *group - 1);
  context_.view.ShowEverything();
}

void GroupsPane::mnuFavMoveRight_Click() {
  if (const auto group = subject_.Group()) commands_.MoveFavoriteGroup(*group, *group + 1);
  context_.view.ShowEverything();
}

void GroupsPane::mnuFavScanGroup_Click() {
  const auto group = subject_.Group();
  if (group) context_.services.scan.Add(groups_.Keys(*group));
}

void GroupsPane::mnuFavExport_Click() {
  if (const auto group = subject_.Group()) playlists_.ExportGroup(*group);
}

void GroupsPane::mnuFavImport_Click() {
  if (const auto group = subject_.Group()) playlists_.ImportIntoGroup(*group);
}

void GroupsPane::mnuActionStationToFavList_Click() { AskGroupFor(form_, subject_.Stations()); }

// By value: what is meant may change while the question stands.
void GroupsPane::AskGroupFor(Form& owner, std::vector<StationKey> stations) {
  if (stations.empty()) return;
  std::vector<std::string> names;
  for (std::size_t group = 0; group < groups_.Count(); ++group) names.push_back(NameOf(group));
  const std::string what = stations.size() == 1 ? context_.data.source.NameOf(stations.front())
                                                : FormatText(form_.LoadText(IDS_COUNT_STATIONS),
                                                             {std::to_string(stations.size())});
  const std::string name =
      frmPickGroup(context_.forms, what, std::move(names), lastUsed_).AskGroup(owner.Window());
  if (!name.empty()) commands_.AddStationsToGroupOrNew(name, stations);
  if (!name.empty()) lastUsed_ = name;
  context_.view.ShowEverything();
}

void GroupsPane::AddTo(const std::string& groupName, const std::vector<StationKey>& stations) {
  commands_.AddStationsToGroup(groupName, stations);
  lastUsed_ = groupName;
}

// One click for the usual case: which group it was stands in the status line, and Undo beside it.
void GroupsPane::Keep(Form& owner, const StationKey& station) {
  if (!station) return;
  const auto last = groups_.Find(lastUsed_);
  if (!last && groups_.Count() != 1) return AskGroupFor(owner, {station});
  AddTo(NameOf(last.value_or(0)), {station});
  context_.view.ShowEverything();
}

void GroupsPane::ToggleStar(const StationKey& station) {
  const auto holder = groups_.GroupOf(station);
  if (!holder) return Keep(form_, station);
  const auto shown = subject_.GroupOnShow();
  const std::size_t group = shown && groups_.Contains(*shown, station) ? *shown : *holder;
  commands_.RemoveStations(NameOf(group), {station});
  context_.view.ShowEverything();
}

void GroupsPane::mnuActionStar_Click() { ToggleStar(subject_.Station().station); }

void GroupsPane::mnuActionStationToGroup_Click(int group) {
  const auto index = static_cast<std::size_t>(group);
  if (index >= groups_.Count()) return;
  AddTo(NameOf(index), subject_.Stations());
  context_.view.ShowEverything();
}

// For other windows, which may ask while this one is not there.
void GroupsPane::AddStationToGroup(const std::string& groupName, const StationKey& station) {
  AddTo(groupName, {station});
  if (form_.IsOpen()) context_.view.ShowEverything();
}

void GroupsPane::RemoveStations() {
  const std::vector<StationKey> stations = subject_.Stations();
  if (!stations.empty()) commands_.RemoveStations(subject_.GroupName(), stations);
  context_.view.ShowEverything();
}

MessageResult GroupsPane::Ask(const Message& message) { return context_.services.messages.Ask(message); }

std::string GroupsPane::AskNewGroupName() {
  return frmNewFavorite(context_.forms, context_.services.help).AskName(form_.Window());
}

std::string GroupsPane::AskGroupName(const std::string& present) {
  return frmRenameFav(context_.forms, context_.services.help, present).AskName(form_.Window());
}

void GroupsPane::TellTray(const std::string& text) { context_.services.program.TellTray(text); }

std::string GroupsPane::NameOf(const StationKey& station) { return context_.data.source.NameOf(station); }

void GroupsPane::SayDone(const std::string& sentence) {
  if (form_.IsOpen()) status_.Say(sentence);
}

}  // namespace sonaro
