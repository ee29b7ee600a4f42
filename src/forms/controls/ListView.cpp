#include "forms/controls/ListView.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "forms/WideText.h"
#include "forms/paint/Painter.h"

namespace sonaro {

namespace {

// What is selected stays to be seen while the list has no focus. The column names are
// there for screen readers only; buttons of the form stand where the system's header would.
constexpr DWORD kListStyle =
    LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER;

}  // namespace

int ListModel::FindRow(const std::string& start, int from) const {
  const int count = RowCount();
  for (int step = 0; step < count; ++step) {
    const int row = (from + step) % count;
    if (StartsWithIgnoringCase(Cell(row, 0), start)) return row;
  }
  return -1;
}

// Messages reach the class from Hook on; what they use is made before.
ListView::ListView(HWND form, int id, FormServices& services)
    : ScrolledView(form, id, services, WC_LISTVIEWW, kListStyle) {
  ListView_SetExtendedListViewStyle(Window(), LVS_EX_DOUBLEBUFFER | LVS_EX_FULLROWSELECT);
  tip_ = std::make_unique<CellTip>(Window());
  Hook(Window());
  UseRowHeight();
}

// The system's list may still ask for rows while its window goes, so messages are cut off first.
ListView::~ListView() {
  EndWindow();
  if (rowHeight_ != nullptr) ImageList_Destroy(rowHeight_);
}

// The widths are set by PlaceColumns, which knows the place; 10 is anything but 0.
void ListView::SetColumns(std::vector<Column> columns) {
  const Unpainted unpainted(Window());
  while (ListView_DeleteColumn(Window(), 0)) {
  }
  columns_ = std::move(columns);
  edges_.clear();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::wstring name = Widen(columns_[i].name);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = name.data();
    column.cx = 10;
    column.iSubItem = static_cast<int>(i);
    SendMessageW(Window(), LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
  PlaceColumns();
}

void ListView::SetModel(const ListModel* model, bool withSymbols) {
  model_ = model;
  withSymbols_ = withSymbols;
  RowsChanged();
}

void ListView::SetEmptyText(std::string heading, std::string help) {
  emptyHeading_ = std::move(heading);
  emptyHelp_ = std::move(help);
  RepaintWithGround();
}

void ListView::SetRowHeight(int design) {
  designRow_ = design;
  UseRowHeight();
}

// A report list takes its row height from its small image list.
void ListView::UseRowHeight() {
  HIMAGELIST fresh = ImageList_Create(1, std::max(1, Theme().Px(designRow_) - 1), ILC_COLOR, 1, 1);
  ListView_SetImageList(Window(), fresh, LVSIL_SMALL);
  if (rowHeight_ != nullptr) ImageList_Destroy(rowHeight_);
  rowHeight_ = fresh;
}

// The count goes by a call that keeps the scroll position: without the flag the list jumps to its top, which
// a change of one row must not do. With redrawing switched off nothing is painted from a model that is ahead
// of the count.
void ListView::RowsChanged() {
  hover_ = -1;
  tip_->Clear();
  {
    const Unpainted unpainted(Window());
    ListView_SetItemCountEx(Window(), model_ != nullptr ? model_->RowCount() : 0, LVSICF_NOSCROLL);
  }
  RepaintWithGround();
  SyncScrollBar();
}

void ListView::RepaintRows() { Repaint(); }

// What lies right of
// the width that is seen is the hidden native scroll bar.
int ListView::RowAt(POINT screen) const {
  ScreenToClient(Window(), &screen);
  if (screen.x < 0 || screen.x >= Width()) return -1;
  LVHITTESTINFO hit{};
  hit.pt = {1, screen.y};
  return ListView_HitTest(Window(), &hit);
}

RECT ListView::RowBox(int row) const {
  RECT box = ItemBox(row);
  MapWindowPoints(Window(), GetParent(Window()), reinterpret_cast<POINT*>(&box), 2);
  return box;
}

// The system's box is as wide as the columns, which leave out what the bar covers; a row is painted from
// edge to edge.
RECT ListView::ItemBox(int row) const {
  RECT box{};
  ListView_GetItemRect(Window(), row, &box, LVIR_BOUNDS);
  box.left = 0;
  box.right = Width();
  return box;
}

void ListView::MoveTo(const RECT& place) {
  ScrolledView::MoveTo(place);
  PlaceColumns();
}

void ListView::ThemeChanged() {
  UseRowHeight();
  PlaceColumns();
  ScrolledView::ThemeChanged();
}

void ListView::SetColumnEdges(std::vector<int> edges) {
  if (edges == headers_) return;
  headers_ = std::move(edges);
  PlaceColumns();
  RepaintWithGround();
}

int ListView::HeaderOf(std::size_t column) const {
  int header = 0;
  for (std::size_t i = 1; i <= column; ++i) header += columns_[i].figure ? 0 : 1;
  return header;
}

// Edges are scaled, not widths, so that the columns meet their header buttons at every dpi.
int ListView::ColumnEdge(std::size_t column) const {
  const auto header = static_cast<std::size_t>(HeaderOf(column));
  if (header < headers_.size()) {
    const bool shared = HeaderOf(column + 1) == static_cast<int>(header);
    return headers_[header] - Theme().Line() - (shared ? Theme().Px(columns_[column + 1].width) : 0);
  }
  int design = 0;
  for (std::size_t i = 0; i <= column; ++i) design += columns_[i].width;
  return Theme().Px(design);
}

// The last one takes what is left. Setting a width costs the system a look at the whole list; most often only
// the last one is another.
void ListView::PlaceColumns() {
  const std::vector<int> before = std::exchange(edges_, {});
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const bool last = i + 1 == columns_.size();
    edges_.push_back(std::max(i == 0 ? 0 : edges_.back(), last ? Width() - BarWidth() : ColumnEdge(i)));
  }
  if (edges_ == before) return;
  const Unpainted unpainted(Window());
  int left = 0;
  for (std::size_t i = 0; i < edges_.size(); ++i) {
    const bool stays = i < before.size() && before[i] == edges_[i] && (i == 0 || before[i - 1] == left);
    if (!stays) ListView_SetColumnWidth(Window(), static_cast<int>(i), edges_[i] - left);
    left = edges_[i];
  }
}

// The bar comes and goes with the rows; the last column gets narrower and the cells must be cut anew.
void ListView::SyncScrollBar() {
  const bool had = HasBar();
  const int total = model_ != nullptr ? model_->RowCount() : 0;
  SetRange({total, std::max(1, ListView_GetCountPerPage(Window())), ListView_GetTopIndex(Window())});
  if (HasBar() != had) {
    PlaceColumns();
    RepaintWithGround();
  }
}

// A report list scrolls by pixels, whole rows of them.
void ListView::ScrollTo(int first) {
  const RECT row = ItemBox(0);
  ListView_Scroll(Window(), 0, (first - ListView_GetTopIndex(Window())) * (row.bottom - row.top));
  SyncScrollBar();
}

LRESULT ListView::HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MOUSEMOVE) ShowTipAt(lParam);  // before the tip hears of it
  tip_->Relay(message, wParam, lParam);
  switch (message) {
    case WM_ERASEBKGND:
      PaintBelowRows(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_GETDLGCODE:
      return DialogCode(wParam, lParam, Selected() >= 0);
    case WM_KEYDOWN:
      if (several_ && wParam == 'A' && GetKeyState(VK_CONTROL) < 0) {
        SelectAll();
        return 0;
      }
      SelectByKey(wParam, lParam);
      return 0;
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONDOWN: {
      const int row = RowUnder(lParam);
      if (row < 0) return FocusOnly();
      if (HitsStar(row, lParam)) {  // the selection stays, and a double click is two presses
        Raise({.kind = FormEvent::Kind::ItemStarred, .row = row});
        return 0;
      }
      if (message == WM_LBUTTONDBLCLK) break;
      if (const int before = Selected(); row != before && SelectsOne()) Deselect(before);
      break;
    }
    case WM_RBUTTONDOWN:
      if (RowUnder(lParam) < 0) return FocusOnly();
      break;
    case WM_MOUSEMOVE:
      SetHover(RowUnder(lParam));
      break;
    case WM_MOUSELEAVE:
      SetHover(-1);
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      RepaintWithGround();  // the frame of an empty list stands on its ground
      break;
    case WM_CONTEXTMENU:
      ShowContextMenu({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    default:
      break;
  }
  const LRESULT result =
      message == WM_LBUTTONDOWN ? PassOnGathering(message, wParam, lParam) : PassOn(message, wParam, lParam);
  // Whatever scrolled, by wheel, key or program, paints.
  if (message == WM_PAINT || message == WM_MOUSEWHEEL) SyncScrollBar();
  if (message == WM_MOUSEWHEEL) {  // another row came below the pointer
    tip_->Clear();
    SetHover(RowAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}));
  }
  return result;
}

int ListView::RowUnder(LPARAM pointer) const {
  POINT at = {GET_X_LPARAM(pointer), GET_Y_LPARAM(pointer)};
  ClientToScreen(Window(), &at);
  return RowAt(at);
}

// A click below the rows: the system would take the selection away, and the keys would act on nothing.
LRESULT ListView::FocusOnly() {
  SetFocus(Window());
  return 0;
}

// The whole row: what the system takes for one may begin a little further right. -1: all rows.
void ListView::RepaintRow(int row) {
  const RECT box = ItemBox(row);
  Repaint(row >= 0 ? &box : nullptr);
}

void ListView::SetHover(int row) {
  if (row == hover_) return;
  const int before = hover_;
  hover_ = row;
  for (int changed : {before, row}) {
    if (changed >= 0) RepaintRow(changed);
  }
  if (row >= 0) {
    TrackLeave();
  }
}

void ListView::ShowContextMenu(POINT screen) {
  int row = Selected();
  if (screen.x == -1 && screen.y == -1) {  // by keyboard: at the selected row
    const RECT box = row >= 0 ? ItemBox(row) : RECT{0, 0, 0, Theme().Px(designRow_)};
    screen = {box.left + Theme().Px(28), box.bottom};
    ClientToScreen(Window(), &screen);
  } else {
    row = RowAt(screen);
  }
  Raise({.kind = FormEvent::Kind::ContextMenu, .row = row, .point = screen});
}

bool ListView::OnNotify(NMHDR& notice, LRESULT& result) {
  result = 0;
  switch (notice.code) {
    case NM_CUSTOMDRAW:
      result = CustomDraw(reinterpret_cast<const NMLVCUSTOMDRAW&>(notice));
      return true;
    case LVN_GETDISPINFOW:
      OnGetDispInfo(reinterpret_cast<NMLVDISPINFOW&>(notice));
      return true;
    case LVN_ODFINDITEMW:
      result = FindTyped(reinterpret_cast<const NMLVFINDITEMW&>(notice));
      return true;
    case LVN_ITEMCHANGED:
      ItemChanged(reinterpret_cast<const NMLISTVIEW&>(notice));
      return true;
    case LVN_ODSTATECHANGED:  // many rows at once
      Repaint();
      if (!quiet_ && gathering_) changed_ = true;
      if (!quiet_ && !gathering_) Raise({.kind = FormEvent::Kind::ItemSelected, .row = Selected()});
      return true;
    case LVN_ITEMACTIVATE: {
      // Not every system says which row it was when it was a key.
      const int row = byKey_ ? Selected() : reinterpret_cast<const NMITEMACTIVATE&>(notice).iItem;
      if (row >= 0) Raise({.kind = FormEvent::Kind::ItemActivated, .row = row});
      return true;
    }
    case LVN_BEGINDRAG:
      Raise({.kind = FormEvent::Kind::BeginDrag, .row = reinterpret_cast<const NMLISTVIEW&>(notice).iItem});
      return true;
    default:
      return false;
  }
}

// Called for every cell that is painted or read out. The list may still ask for rows that the model no
// longer has, between a change of the model and RowsChanged.
void ListView::OnGetDispInfo(NMLVDISPINFOW& info) const {
  if ((info.item.mask & LVIF_TEXT) == 0 || info.item.pszText == nullptr || info.item.cchTextMax <= 0) return;
  std::wstring text;
  if (model_ != nullptr && info.item.iItem < model_->RowCount()) {
    std::string cell = model_->Cell(info.item.iItem, info.item.iSubItem);
    if (info.item.iSubItem + 1 == static_cast<int>(columns_.size())) {
      const std::string spoken = model_->MarksSpoken(info.item.iItem);
      if (!spoken.empty()) cell += (cell.empty() ? "" : ", ") + spoken;
    }
    text = Widen(cell);
  }
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(info.item.cchTextMax - 1));
  text.copy(info.item.pszText, length);
  info.item.pszText[length] = L'\0';
}

// Typing letters goes to the row that begins with them. In owner-data mode only the owner of the rows can
// look.
LRESULT ListView::FindTyped(const NMLVFINDITEMW& find) const {
  if (model_ == nullptr || (find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || find.lvfi.psz == nullptr)
    return -1;
  return model_->FindRow(Narrow(find.lvfi.psz), std::max(0, find.iStart));
}

}  // namespace sonaro
