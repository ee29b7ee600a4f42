#include "mainwindow/SonaroFrmDragPane.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "forms/ControlIds.h"
#include "forms/controls/ListView.h"
#include "mainwindow/SonaroFrmGroupsPane.h"
#include "mainwindow/SonaroFrmListPane.h"

namespace sonaro {
namespace {

HCURSOR SystemCursor(int id) { return LoadCursorW(nullptr, MAKEINTRESOURCEW(id)); }
// Where the pointer was when the message came up; it may be elsewhere by now.
POINT PointOfMessage() {
  const auto at = static_cast<LPARAM>(GetMessagePos());
  return {GET_X_LPARAM(at), GET_Y_LPARAM(at)};
}

constexpr int kHandCursor = 32649;
constexpr int kNoCursor = 32648;

}  // namespace

std::span<const EventRow> DragPane::Events() const {
  static const EventRow kRows[] = {{lstFavs, BeginDrag, &DragPane::lstFavs_BeginDrag},
                                   {butFavs, BeginDrag, &DragPane::butFavs_BeginDrag, 10}};
  return kRows;
}

void DragPane::butFavs_BeginDrag(int slot) {
  Begin(Thing::Group, {}, groups_.NameOf(static_cast<std::size_t>(slot)));
}

// One of several rows that are selected takes the others with it.
void DragPane::lstFavs_BeginDrag(int row) {
  std::vector<StationKey> stations = context_.models.listing.Rows().SelectedKeys();
  const StationKey station = list_.KeyAt(row);
  if (!station) return;
  if (std::ranges::find(stations, station) == stations.end()) stations = {station};
  Begin(Thing::Row, std::move(stations), {});
}

// The station is taken by its key: the list may be filled anew while the mouse is on its way.
void DragPane::Begin(Thing what, std::vector<StationKey> stations, std::string group) {
  if (stations.empty() && group.empty()) return;
  SetCapture(form_.Window());
  what_ = what;
  stations_ = std::move(stations);
  group_ = std::move(group);
  Follow();
}

bool DragPane::Handle(UINT message) {
  if (what_ == Thing::Nothing) return false;
  Drop drop;
  switch (message) {
    case WM_MOUSEMOVE:
      Follow();
      return false;
    case WM_LBUTTONUP:
      drop = DropAt(PointOfMessage());
      break;
    // Another window took the mouse, or the right button gave the drag up: it ends and changes nothing.
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
    case WM_RBUTTONDOWN:
      break;
    default:
      return false;
  }
  // Copies, because End forgets them and what is dropped may open a dialog with a loop of its own.
  const Thing what = what_;
  const std::vector<StationKey> stations = stations_;
  const std::string group = group_;
  End();
  groups_.Show();
  Take(drop, what, stations, group);
  return true;
}

void DragPane::Take(const Drop& drop, Thing what, const std::vector<StationKey>& stations,
                    const std::string& group) {
  if (what == Thing::Row && drop.onto == Thing::Group) groups_.TakeDropped(stations, drop.to);
  if (what == Thing::Row && drop.onto == Thing::Row && stations.size() == 1)
    list_.MoveRow(stations.front(), drop.to);
  if (what == Thing::Row && drop.onto == Thing::Scan) {
    for (const StationKey& station : stations) {
      context_.services.program.DropOnScan(station, static_cast<int>(drop.at.x), static_cast<int>(drop.at.y));
    }
  }
  if (what == Thing::Group && drop.onto == Thing::Group) groups_.MoveGroup(group, drop.to);
}

void DragPane::End() {
  what_ = Thing::Nothing;
  overSlot_ = -1;
  if (GetCapture() == form_.Window()) ReleaseCapture();
}

int DragPane::SlotAt(POINT screen) const {
  for (int slot = 0; slot < butFavs_.Count(); ++slot) {
    RECT box{};
    GetWindowRect(butFavs_[slot].Window(), &box);
    if (PtInRect(&box, screen)) return slot;
  }
  return -1;
}

DragPane::Drop DragPane::DropAt(POINT screen) const {
  Drop drop{Thing::Nothing, 0, screen};
  // First: it may lie over the main window.
  if (what_ == Thing::Row &&
      context_.services.program.ScanIsAt(static_cast<int>(screen.x), static_cast<int>(screen.y))) {
    drop.onto = Thing::Scan;
  } else if (const int slot = SlotAt(screen); slot >= 0) {
    drop.onto = Thing::Group;
    drop.to = slot;
  } else if (what_ == Thing::Row && WindowFromPoint(screen) == lstFavs_.Window()) {
    drop.to = lstFavs_->RowAt(screen);
    drop.onto = drop.to >= 0 ? Thing::Row : Thing::Nothing;
  }
  return drop;
}

// Buttons are drawn anew when the pointer comes to another one, not with every move.
void DragPane::Follow() {
  const Drop drop = DropAt(PointOfMessage());
  SetCursor(SystemCursor(drop.onto == Thing::Nothing ? kNoCursor : kHandCursor));
  const int slot = drop.onto == Thing::Group ? drop.to : -1;
  if (slot == overSlot_) return;
  overSlot_ = slot;
  groups_.ShowDropOn(slot);
}

}  // namespace sonaro
