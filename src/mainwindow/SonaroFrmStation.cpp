// The handlers of the station list, the browse tree and the selected station.
#include "app/WebPageOpener.h"
#include "forms/Clipboard.h"
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "playback/PlayerLaunch.h"
#include "playback/RecentList.h"

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

void SonaroFrm::lstFavs_ContextMenu(int, POINT at) { PopUpMenu(models_.actions.ActionMenu(shown_), at); }

void SonaroFrm::treeBrowse_NodeClick(HTREEITEM node) {
  const BrowseNode* facts = browse_.NodeAt(node);
  if (!facts) return;
  models_.listing.treeBrowse_NodeClick(*facts);
  ShowEverything();
}

void SonaroFrm::treeBrowse_ContextMenu(int, POINT at) { PopUpMenu(models_.actions.PersonalMenu(), at); }

void SonaroFrm::butGoMediaLink_Click(int link) {
  // A station may lack a first link and have others: what is asked for is the first that plays.
  std::size_t wanted = static_cast<std::size_t>(link);
  while (link == 0 && wanted + 1 < StationDetail::kPlayKeys && !shown_.playKeys[wanted].shown) ++wanted;
  if (shown_.playKeys[wanted].shown) {
    Play(shown_.playKeys[wanted]);
  } else if (link == 0 && shown_.station) {
    Play(shown_.playKeys[0]);  // without a link of its own: its web site, and it was listened to all the same
  }
}

void SonaroFrm::mnuActionPlay_Click(int link) {
  const auto index = static_cast<std::size_t>(link);
  if (shown_.playKeys[index].shown) Play(shown_.playKeys[index]);
}

void SonaroFrm::mnuActionPlayExtra_Click(int link) {
  const auto index = static_cast<std::size_t>(link);
  if (index >= shown_.extraKeys.size()) return;
  Play(shown_.extraKeys[index]);
}

void SonaroFrm::Play(const PlayKey& key) {
  const PlayRequest request = key.request;  // what is shown changes with the recent list
  // A bare link does not tell whose it is, so the play is noted here.
  if (request.mode == PlayMode::KeyItself) data_.recent.AddRecent(shown_.station.Token());
  player_.LaunchStation(request.key, request.mode);
}

void SonaroFrm::butGoWebPageIt_Click() {
  if (shown_.station && shown_.hasWebSite) pages_.OpenWebPage(shown_.station.Token());
}

void SonaroFrm::mnuActionCopyLink_Click() {
  if (!shown_.firstLink.empty()) CopyToClipboard(Window(), shown_.firstLink);
}

void SonaroFrm::mnuActionAddToScan_Click() {
  if (shown_.station && calls_.addToScan) calls_.addToScan({shown_.station.RowKey()});
}

void SonaroFrm::mnuActionAddListToScan_Click() {
  const StationRows& rows = models_.listing.Rows();
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < rows.Count(); ++i) {
    const StationRow& row = rows.At(i);
    if (!row.lost && (row.IsStation() || row.IsPersonal())) keys.push_back(row.key);
  }
  if (!keys.empty() && calls_.addToScan) calls_.addToScan(keys);
}

void SonaroFrm::DropRowOnScan(int row, POINT at) {
  const StationRows& rows = models_.listing.Rows();
  if (row < 0 || row >= static_cast<int>(rows.Count()) || !calls_.dropOnScan) return;
  const StationRow& dropped = rows.At(static_cast<std::size_t>(row));
  if (!dropped.lost) calls_.dropOnScan(dropped.key, static_cast<int>(at.x), static_cast<int>(at.y));
}

void SonaroFrm::mnuActionSchedule_Click() {
  if (shown_.station && calls_.scheduleStation) calls_.scheduleStation(shown_.station.RowKey());
}

void SonaroFrm::mnuActionExtraLink_Click() {
  if (shown_.station.kind != StationKey::Kind::Directory || !calls_.editExtraLinks) return;
  calls_.editExtraLinks(shown_.station.number);
  ShowSelection();
}

void SonaroFrm::mnuPersonalAdd_Click() {
  if (calls_.editPersonalStation) calls_.editPersonalStation(0);
  PersonalStationsChanged();
}

void SonaroFrm::mnuPersonalChange_Click() {
  if (shown_.station.kind != StationKey::Kind::Personal || !calls_.editPersonalStation) return;
  calls_.editPersonalStation(shown_.station.number);
  PersonalStationsChanged();
}

void SonaroFrm::mnuPersonalDelete_Click() {
  if (shown_.station.kind != StationKey::Kind::Personal || !calls_.deletePersonalStation) return;
  calls_.deletePersonalStation(shown_.station.number);
  PersonalStationsChanged();
}

}  // namespace sonaro
