#include "playback/frmScan.h"

#include <algorithm>

#include "forms/Menu.h"
#include "forms/controls/ProgressScale.h"
#include "playback/frmScanTime.h"
#include "resources/texts/playback.h"
#include "settings/HelpPages.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"
#include "stations/Commands.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

namespace {

constexpr unsigned kSecond = 1000;

}  // namespace

// Rows are made when the list asks for them: a queue can hold thousands, of which a dozen are seen.
std::string frmScan::QueueRows::Cell(int row, int column) const {
  const ScanRow shown = scan_.QueueRow(static_cast<std::size_t>(row));
  return column == 0 ? shown.name : shown.second;
}

std::string frmScan::HistoryRows::Cell(int row, int column) const {
  const ScanRow& shown = scan_.HistoryRow(static_cast<std::size_t>(row));
  if (column == 0) return shown.name;
  return shown.reason.empty() ? shown.second : shown.reason;
}

int frmScan::HistoryRows::Symbol(int row) const {
  return scan_.HistoryRow(static_cast<std::size_t>(row)).symbol;
}

frmScan::frmScan(FormContext& context, StationScan& scan, HelpPages& help, const FavoriteGroups& groups,
                 ProgramCommands& program, UndoList& undo)
    : Form(context, Design()),
      context_(context),
      scan_(scan),
      help_(help),
      groups_(groups),
      program_(program),
      undo_(undo),
      queue_(scan),
      history_(scan) {}

// The scan outlives its window, so that undoing needs none.
void frmScan::butClearIt_Click() {
  StationScan& scan = scan_;
  const StationScan::Lists lists = scan.Contents();
  scan.Clear();
  undo_.Add(LoadText(IDS_SCAN_CLEARED), [&scan, lists] {
    scan.Restore(lists);
    return UndoResult::Done;
  });
}

void frmScan::mnuUndo_Click() { undo_.Undo(); }

// When the owner goes while the window is open, OnUnload does not run; the scan must not keep a view that is
// gone.
frmScan::~frmScan() {
  if (IsOpen()) scan_.Close();
}

void frmScan::OnLoad() {
  // Owned windows have no button in the task bar otherwise, and the main window may be in the tray.
  SetWindowLongPtrW(Window(), GWL_EXSTYLE, GetWindowLongPtrW(Window(), GWL_EXSTYLE) | WS_EX_APPWINDOW);
  lstToScan_->SetColumns(
      {{LoadText(IDS_SCAN_W_COLUMN_NAME), 163}, {LoadText(IDS_SCAN_W_COLUMN_LOCATION), 136}});
  lstToScan_->SetEmptyText(LoadText(IDS_SCAN_W_EMPTY), LoadText(IDS_SCAN_W_EMPTY_HELP));
  lstToScan_->SetModel(&queue_, false);
  lstScanedAlready_->SetColumns(
      {{LoadText(IDS_SCAN_W_COLUMN_NAME), 169}, {LoadText(IDS_SCAN_W_COLUMN_WHAT), 118}});
  lstScanedAlready_->SetEmptyText(LoadText(IDS_SCAN_W_HISTORY_EMPTY),
                                  LoadText(IDS_SCAN_W_HISTORY_EMPTY_HELP));
  lstScanedAlready_->SetModel(&history_, true);
  scan_.Open(*this);
  ShowLists();
  ShowState();
}

void frmScan::OnUnload() { scan_.Close(); }

// What lies on top counts: a point of the window that another one covers is not this window.
bool frmScan::IsAt(POINT screen) const {
  return IsOpen() && GetAncestor(WindowFromPoint(screen), GA_ROOT) == Window();
}

// Dropped on a row the station goes before it, anywhere else to the end of the queue.
void frmScan::TakeDropped(const StationKey& station, POINT screen) {
  const bool onQueue = WindowFromPoint(screen) == lstToScan_.Window();
  const int row = onQueue ? lstToScan_->RowAt(screen) : -1;
  scan_.Add({&station, 1}, row >= 0 ? std::optional(static_cast<std::size_t>(row)) : std::nullopt);
}

// The scan calls this whenever anything may have changed, also while the window is not open yet or not any
// more.
void frmScan::ShowState() {
  if (!IsOpen()) return;
  butStartIt_.SetText(scan_.StartCaption());
  butStartIt_.SetIcon(scan_.State() == ScanState::Scanning ? Icon::Pause : Icon::Play);
  lblCurrentScaning_.SetText(scan_.CurrentText());
  lblTimeLeft_.Show(scan_.TimeLeftVisible());
  ShowTimeLeft();
  const ScanButtons can = scan_.Buttons(QueueRow());
  butStartIt_.Enable(can.start);
  butMoveNextIt_.Enable(can.moveNext);
  butMoveUpIt_.Enable(can.moveUp);
  // Left to itself the focus would go on to Remove, below a finger that is still pressing Enter.
  if (can.moveUp && !can.moveDown && butMoveDownIt_.HasFocus()) butMoveUpIt_.Focus();
  butMoveDownIt_.Enable(can.moveDown);
  butRemoveStationIt_.Enable(can.remove);
  butClearIt_.Enable(can.clear);
  const bool kept = groups_.IsMember(scan_.Current());
  butKeepIt_.SetText(LoadText(kept ? IDS_SCAN_W_KEPT : IDS_SCAN_W_KEEP));
  butKeepIt_.Enable(can.keep && !kept);
}

void frmScan::ShowTimeLeft() {
  lblTimeLeft_.SetText(scan_.TimeLeftText());
  const bool counts = scan_.TimeLeftVisible();
  picScan_->SetProgress(counts ? scan_.ScanTime() - scan_.TimeLeft() : 0, counts ? scan_.ScanTime() : 0);
}

// The selection stays at its row number; where rows have moved, QueueRowsChanged has moved the selection
// before.
void frmScan::ShowLists() {
  if (!IsOpen()) return;
  const int selected = lstToScan_->Selected();
  lstToScan_->RowsChanged();
  lstToScan_->Select(std::min(std::max(selected, 0), queue_.RowCount() - 1));
  lstScanedAlready_->RowsChanged();
  const std::size_t count = scan_.QueueCount();
  lblQueueCount_.SetText(FormatText(LoadText(count == 1 ? IDS_SCAN_W_QUEUE_ONE : IDS_SCAN_W_QUEUE_COUNT),
                                    {std::to_string(count)}));
}

void frmScan::SelectQueueRow(std::size_t row) { lstToScan_->Select(static_cast<int>(row)); }

void frmScan::QueueRowsChanged(const RowsChange& change) {
  if (!IsOpen()) return;
  const std::size_t count = scan_.QueueCount();
  const auto after = [&](int row) {
    const auto place = SelectionAfter(change, static_cast<std::size_t>(row), count);
    return place ? static_cast<int>(*place) : -1;
  };
  const int at = static_cast<int>(change.at);
  if (draggedRow_ >= at && draggedRow_ < at + static_cast<int>(change.removed)) {
    ReleaseCapture();  // the dragged station itself went to play
  } else if (draggedRow_ >= 0) {
    draggedRow_ = after(draggedRow_);
  }
  const int selected = lstToScan_->Selected();
  lstToScan_->RowsChanged();
  if (selected >= 0) lstToScan_->Select(after(selected));
}

void frmScan::EnableTimer(bool on) {
  if (on) {
    StartTimer(tmrScan, kSecond);
  } else {
    StopTimer(tmrScan);
  }
}

std::optional<std::size_t> frmScan::QueueRow() {
  const int row = lstToScan_->Selected();
  return row >= 0 ? std::optional(static_cast<std::size_t>(row)) : std::nullopt;
}

void frmScan::UseFullLayout(bool full) {
  UseLayout(full ? 0 : 1);
  panScanFull_.Show(full);
  panScanCompact_.Show(!full);
  butFullIt_.SetText(LoadText(full ? IDS_SCAN_W_COMPACT : IDS_SCAN_W_FULL));
}

void frmScan::butMoveUpIt_Click() {
  if (const auto row = QueueRow()) scan_.MoveUp(*row);
}

void frmScan::butMoveDownIt_Click() {
  if (const auto row = QueueRow()) scan_.MoveDown(*row);
}

void frmScan::butRemoveStationIt_Click() {
  if (const auto row = QueueRow()) scan_.Remove(*row);
}

void frmScan::butKeepIt_Click() {
  program_.KeepStation(*this, scan_.Current());
  ShowState();
}

void frmScan::butScanTimeIt_Click() {
  frmScanTime dialog(context_, scan_.StoredScanTime());
  if (dialog.ShowModal(Window()) == 1) scan_.SetScanTime(dialog.Chosen());
}

void frmScan::butHelp_Click() { help_.OpenHelpPage("9018.html"); }

// Other programs hand stations over by setting the text of this hidden label.
void frmScan::lblStationsAdd_Change() { scan_.StationsAdded(lblStationsAdd_.Text()); }

void frmScan::lstToScan_ItemSelected(int) { ShowState(); }

std::vector<MenuEntry> frmScan::GroupEntries() const {
  std::vector<MenuEntry> entries;
  for (std::size_t group = 0; group < std::min(groups_.Count(), FavoriteGroups::kSlots); ++group) {
    entries.push_back({.command = mnuScanToGroup + static_cast<int>(group),
                       .text = FormatText(LoadText(IDS_SCAN_W_MENU_GROUP), {MenuText(groups_.Name(group))})});
  }
  return entries;
}

// The station is remembered by its key: the scan goes on while the menu is open, and rows move up.
void frmScan::lstToScan_ContextMenu(int row, POINT at) {
  if (row < 0) return;
  menuStation_ = scan_.QueueRow(static_cast<std::size_t>(row)).key;
  std::vector<MenuEntry> menu = GroupEntries();
  if (!menu.empty()) menu.push_back({});
  menu.push_back({.command = mnuScanRemove, .text = LoadText(IDS_SCAN_W_MENU_REMOVE)});
  PopUpMenu(menu, at);
  menuStation_ = {};
}

void frmScan::lstScanedAlready_ItemActivate(int row) {
  if (row >= 0) scan_.PlayAgain(static_cast<std::size_t>(row));
}

void frmScan::lstScanedAlready_ContextMenu(int row, POINT at) {
  if (row < 0) return;
  // A row number is enough here: rows of the history are only added at the end.
  menuHistoryRow_ = row;
  menuStation_ = scan_.HistoryRow(static_cast<std::size_t>(row)).key;
  std::vector<MenuEntry> menu = {{.command = mnuScanPlay, .text = LoadText(IDS_SCAN_W_MENU_PLAY)},
                                 {.command = mnuScanPutBack, .text = LoadText(IDS_SCAN_W_MENU_PUT_BACK)}};
  std::vector<MenuEntry> groups = GroupEntries();
  if (!groups.empty()) menu.push_back({});
  menu.insert(menu.end(), groups.begin(), groups.end());
  PopUpMenu(menu, at);
  menuStation_ = {};
}

// While the menu was open the scan may have played its station; the row then holds the next one.
void frmScan::mnuScanRemove_Click() {
  const auto row = QueueRow();
  if (row && (!menuStation_ || scan_.QueueRow(*row).key == menuStation_)) scan_.Remove(*row);
}

void frmScan::mnuScanPlay_Click() { lstScanedAlready_ItemActivate(menuHistoryRow_); }

void frmScan::mnuScanPutBack_Click() {
  if (menuHistoryRow_ >= 0) scan_.PutBack(static_cast<std::size_t>(menuHistoryRow_));
}

void frmScan::mnuScanToGroup_Click(int group) {
  const auto index = static_cast<std::size_t>(group);
  if (index < groups_.Count() && menuStation_)
    program_.AddStationToGroup(std::string(groups_.Name(index)), menuStation_);
}

// Rows of the queue are moved by dragging: while the button is down the window has the mouse.
void frmScan::lstToScan_BeginDrag(int row) {
  draggedRow_ = row;
  SetCapture(Window());
}

bool frmScan::OnMessage(UINT message, WPARAM, LPARAM lParam, LRESULT& result) {
  if (message == WM_SHOWWINDOW && lParam == SW_PARENTCLOSING) {
    result = 0;  // the main window was minimised; the scan goes on before the user's eyes
    return true;
  }
  if (draggedRow_ < 0) return false;
  if (message == WM_LBUTTONUP) {
    POINT at = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    ClientToScreen(Window(), &at);
    const int from = draggedRow_;
    draggedRow_ = -1;
    ReleaseCapture();
    // The row is put before the one below the mouse when it comes from below, and behind it when it comes
    // from above.
    const int to = lstToScan_->RowAt(at);
    if (to >= 0 && to != from) {
      scan_.MoveRow(static_cast<std::size_t>(from), static_cast<std::size_t>(to > from ? to + 1 : to));
    }
    result = 0;
    return true;
  }
  // Taken away by another window, a menu or Esc: the drag is over and nothing moves.
  if (message == WM_CAPTURECHANGED) draggedRow_ = -1;
  return false;
}

}  // namespace sonaro
