// The handlers of the station list, the browse tree and the selected station.
#include <utility>

#include "forms/Clipboard.h"
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "playback/PlayerLaunch.h"
#include "settings/WebPageOpener.h"
#include "stations/RecentList.h"

namespace sonaro {

void SonaroFrm::ShowDetailOf(const StationKey& station) {
  shown_ = models_.details.Of(station);
  detail_.Show(shown_);
}

void SonaroFrm::lstFavs_ItemSelected(int row) {
  list_.TakeSelection(row);
  ShowSelection();
}

void SonaroFrm::lstFavs_ItemActivate(int) { butGoMediaLink_Click(0); }

void SonaroFrm::PopUpMenuFor(MenuSubject subject, const MenuEntries& menu, POINT at) {
  const auto before = std::exchange(menu_, std::move(subject));
  PopUpMenu(menu, at);
  menu_ = before;
}

void SonaroFrm::lstFavs_ContextMenu(int, POINT at) {
  const auto group = GroupOnShow();
  PopUpMenuFor(
      {.station = shown_, .group = group ? std::string(data_.favorites.Name(*group)) : "", .event = {}},
      models_.actions.ActionMenu(shown_), at);
}

void SonaroFrm::treeBrowse_NodeClick(HTREEITEM node) {
  const BrowseNode* facts = browse_.NodeAt(node);
  if (!facts) return;
  models_.listing.treeBrowse_NodeClick(*facts);
  ShowEverything();
}

void SonaroFrm::treeBrowse_ContextMenu(int, POINT at) { PopUpMenu(models_.actions.PersonalMenu(), at); }

void SonaroFrm::butGoMediaLink_Click(int link) {
  const StationDetailBuilder& station = StationMeant();
  // A station may lack a first link and have others: what is asked for is the first that plays.
  std::size_t wanted = static_cast<std::size_t>(link);
  while (link == 0 && wanted + 1 < StationDetailBuilder::kPlayButtons && !station.playButtons[wanted].shown)
    ++wanted;
  if (station.playButtons[wanted].shown) {
    Play(station.playButtons[wanted]);
  } else if (link == 0 && station.station) {
    Play(
        station
            .playButtons[0]);  // without a link of its own: its web site, and it was listened to all the same
  }
}

void SonaroFrm::mnuActionPlay_Click(int link) {
  const StationDetailBuilder& station = StationMeant();
  const auto index = static_cast<std::size_t>(link);
  if (station.playButtons[index].shown) Play(station.playButtons[index]);
}

void SonaroFrm::mnuActionPlayExtra_Click(int link) {
  const StationDetailBuilder& station = StationMeant();
  const auto index = static_cast<std::size_t>(link);
  if (index >= station.extraButtons.size()) return;
  Play(station.extraButtons[index]);
}

void SonaroFrm::Play(const PlayButton& key) {
  const PlayRequest request = key.request;  // what is shown changes with the recent list
  // A bare link does not tell whose it is, so the play is noted here.
  if (request.mode == PlayMode::KeyItself) data_.recent.AddRecent(StationMeant().station.Token());
  player_.LaunchStation(request.key, request.mode);
}

void SonaroFrm::butGoWebPageIt_Click() {
  const StationDetailBuilder& station = StationMeant();
  if (station.station && station.hasWebSite) pages_.OpenWebPage(station.station.Token());
}

void SonaroFrm::mnuActionCopyLink_Click() {
  if (!StationMeant().firstLink.empty()) CopyToClipboard(Window(), StationMeant().firstLink);
}

void SonaroFrm::mnuActionAddToScan_Click() {
  const StationKey station = StationMeant().station;
  if (station && calls_.addToScan) calls_.addToScan({station.RowKey()});
}

void SonaroFrm::mnuActionAddListToScan_Click() {
  const StationRows& rows = models_.listing.Rows();
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < rows.Count(); ++i) {
    const StationRow& row = rows.At(i);
    if (row.IsStation() || row.IsPersonal()) keys.push_back(row.key);
  }
  if (!keys.empty() && calls_.addToScan) calls_.addToScan(keys);
}

void SonaroFrm::DropOnScan(const std::string& rowKey, POINT at) {
  if (calls_.dropOnScan) calls_.dropOnScan(rowKey, static_cast<int>(at.x), static_cast<int>(at.y));
}

void SonaroFrm::mnuActionSchedule_Click() {
  const StationKey station = StationMeant().station;
  if (station && calls_.scheduleStation) calls_.scheduleStation(station.RowKey());
}

void SonaroFrm::mnuActionExtraLink_Click() {
  const StationKey station = StationMeant().station;
  if (station.kind != StationKey::Kind::Directory || !calls_.editExtraLinks) return;
  calls_.editExtraLinks(station.number);
  ShowSelection();
}

void SonaroFrm::mnuPersonalAdd_Click() {
  if (calls_.editPersonalStation) calls_.editPersonalStation(0);
  PersonalStationsChanged();
}

void SonaroFrm::mnuPersonalChange_Click() {
  const StationKey station = StationMeant().station;
  if (station.kind != StationKey::Kind::Personal || !calls_.editPersonalStation) return;
  calls_.editPersonalStation(station.number);
  PersonalStationsChanged();
}

void SonaroFrm::mnuPersonalDelete_Click() {
  const StationKey station = StationMeant().station;
  if (station.kind != StationKey::Kind::Personal || !calls_.deletePersonalStation) return;
  calls_.deletePersonalStation(station.number);
  PersonalStationsChanged();
}

}  // namespace sonaro
