#include "forms/controls/TreeView.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "forms/WideText.h"
#include "forms/paint/Painter.h"

namespace sonaro {

namespace {

// Lines and marks are painted by this class, at places of its own. The system's tips would show a text where
// it is not.
constexpr DWORD kTreeStyle =
    TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_NOHSCROLL | TVS_NOTOOLTIPS;
constexpr int kRow = 22;
constexpr int kIndent = 14;
constexpr int kMarkInset = 8;
constexpr int kMarkSize = 12;
constexpr int kPlusArm = 4;
constexpr int kLeafSize = 4;
constexpr int kTextAfterMark = 16;
constexpr int kCountGap = 6;

// A blank at the beginning is there for the order among the siblings.
std::wstring_view PaintedText(std::wstring_view text) {
  return text.substr(std::min(text.find_first_not_of(L' '), text.size()));
}

}  // namespace

TreeView::TreeView(HWND form, int id, FormServices& services)
    : ScrolledView(form, id, services, WC_TREEVIEWW, kTreeStyle) {
  SendMessageW(Window(), TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
  Hook(Window());
}

TreeView::~TreeView() { EndWindow(); }

// A thousand nodes are added in a moment when nothing is drawn and no selection is reported meanwhile.
void TreeView::BeginFill() {
  unpainted_.emplace(Window());
  quiet_ = true;
}

void TreeView::EndFill() {
  quiet_ = false;
  unpainted_.reset();
  RepaintWithGround();
  SyncScrollBar();
}

// While the nodes go, the system selects one neighbour after the other; none of that is the user's.
void TreeView::Clear() {
  const bool wasQuiet = std::exchange(quiet_, true);
  hover_ = nullptr;
  TreeView_DeleteAllItems(Window());
  nodes_.clear();
  quiet_ = wasQuiet;
}

// The item's number is an index: pointers into the vector would not survive the next Add.
HTREEITEM TreeView::Add(HTREEITEM parent, std::string_view text, std::string_view figure, int data) {
  std::wstring wide = Widen(text);
  TVINSERTSTRUCTW insert{};
  insert.hParent = parent != nullptr ? parent : TVI_ROOT;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT | TVIF_PARAM;
  insert.item.pszText = wide.data();
  insert.item.lParam = static_cast<LPARAM>(nodes_.size());
  nodes_.push_back({Widen(figure), data});
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(Window(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void TreeView::SetFigure(HTREEITEM node, std::string_view figure) {
  const Node* found = NodeOf(node);
  std::wstring wide = Widen(figure);
  if (found == nullptr || found->figure == wide) return;
  nodes_[static_cast<std::size_t>(found - nodes_.data())].figure = std::move(wide);
  RepaintNode(node);
}

// A node that was deleted meanwhile has no item any more, and then no number.
const TreeView::Node* TreeView::NodeOf(HTREEITEM node) const {
  if (node == nullptr) return nullptr;
  TVITEMW item{};
  item.mask = TVIF_PARAM | TVIF_HANDLE;
  item.hItem = node;
  if (SendMessageW(Window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == 0) return nullptr;
  const auto index = static_cast<std::size_t>(item.lParam);
  return index < nodes_.size() ? &nodes_[index] : nullptr;
}

int TreeView::Data(HTREEITEM node) const {
  const Node* found = NodeOf(node);
  return found != nullptr ? found->data : -1;
}

HTREEITEM TreeView::Selected() const { return TreeView_GetSelection(Window()); }

void TreeView::Select(HTREEITEM node) {
  const bool wasQuiet = std::exchange(quiet_, true);
  TreeView_SelectItem(Window(), node);
  quiet_ = wasQuiet;
}

void TreeView::Expand(HTREEITEM node, bool expanded) {
  TreeView_Expand(Window(), node, expanded ? TVE_EXPAND : TVE_COLLAPSE);
  SyncScrollBar();
}

// The height of the rows first: the page of the scroll bar is counted in them.
void TreeView::MoveTo(const RECT& place) {
  TreeView_SetItemHeight(Window(), Theme().Px(kRow));
  TreeView_SetIndent(Window(), Theme().Px(kIndent));
  ScrolledView::MoveTo(place);
}

// The tree keeps its position in the native bar, which is there but never seen; when everything fits the
// bar's style goes and its numbers are stale.
void TreeView::SyncScrollBar() {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  const int fits = std::max(1, static_cast<int>(TreeView_GetVisibleCount(Window())));
  if ((GetWindowLongW(Window(), GWL_STYLE) & WS_VSCROLL) == 0 || !GetScrollInfo(Window(), SB_VERT, &info)) {
    SetRange({fits, fits, 0});
    return;
  }
  SetRange({info.nMax - info.nMin + 1, static_cast<int>(info.nPage), info.nPos});
}

// There is no call to scroll a tree; it does what its native bar asks.
void TreeView::ScrollTo(int first) {
  SendMessageW(Window(), WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, first), 0);
  SyncScrollBar();
}

// Beside the text counts as well: the whole row is the node, as it is painted.
HTREEITEM TreeView::NodeAt(POINT client) const {
  TVHITTESTINFO hit{};
  hit.pt = client;
  const HTREEITEM node = TreeView_HitTest(Window(), &hit);
  return (hit.flags & TVHT_NOWHERE) == 0 ? node : nullptr;
}

int TreeView::LevelOf(HTREEITEM node) const {
  int level = 0;
  while ((node = TreeView_GetParent(Window(), node)) != nullptr) ++level;
  return level;
}

RECT TreeView::BoxOf(HTREEITEM node) const {
  RECT box{};
  TreeView_GetItemRect(Window(), node, &box, FALSE);
  box.left = 0;
  box.right = Width();
  return box;
}

void TreeView::RepaintNode(HTREEITEM node) {
  if (node == nullptr) return;
  const RECT box = BoxOf(node);
  Repaint(&box);
}

// The mouse is dealt with here; keys, wheel and screen readers are the system's business.
LRESULT TreeView::HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_ERASEBKGND: {
      RECT box{};
      GetClientRect(Window(), &box);
      Theme().Fill(reinterpret_cast<HDC>(wParam), box, Theme().Colors().glass);
      return 1;
    }
    case WM_LBUTTONDOWN:
      Press(at);
      return 0;
    case WM_LBUTTONDBLCLK:
      // The first click opened the node; only on its mark does each click count.
      if (OnMark(NodeAt(at), at)) Press(at);
      return 0;
    case WM_RBUTTONDOWN:  // the system would wait here for the button, and then tell of a menu by itself
      return 0;
    case WM_CONTEXTMENU:
      ShowContextMenu(at);
      return 0;
    case WM_MOUSEMOVE:
      SetHover(NodeAt(at));
      break;
    case WM_MOUSELEAVE:
      SetHover(nullptr);
      break;
    case WM_GETDLGCODE:
      return DialogCode(wParam, lParam, Selected() != nullptr);
    case WM_SETFOCUS: {
      // A tree without a selection then selects its first node, which nobody has clicked.
      const bool wasQuiet = std::exchange(quiet_, true);
      const LRESULT result = PassOn(message, wParam, lParam);
      quiet_ = wasQuiet;
      Repaint();
      return result;
    }
    case WM_KILLFOCUS:
      Repaint();
      break;
    default:
      break;
  }
  const LRESULT result = PassOn(message, wParam, lParam);
  if (message == WM_PAINT || message == WM_MOUSEWHEEL || message == WM_KEYDOWN) SyncScrollBar();
  return result;
}

// The marks stand elsewhere than the system's own, so the mouse is dealt with here; keys stay the system's.
void TreeView::Press(POINT at) {
  SetFocus(Window());
  const HTREEITEM node = NodeAt(at);
  if (node == nullptr) return;
  if (OnMark(node, at)) return Toggle(node);
  // A root opens by a click anywhere on it, and closes by one when it was the selected node already.
  if (TreeView_GetParent(Window(), node) == nullptr) Expand(node, node != Selected() || !IsExpanded(node));
  Select(node);
  Raise({.kind = FormEvent::Kind::NodeClick, .node = node});
}

// A little wider than the mark is painted; it is small.
bool TreeView::OnMark(HTREEITEM node, POINT at) const {
  if (node == nullptr || TreeView_GetChild(Window(), node) == nullptr) return false;
  const int mark = Theme().Px(kMarkInset + kIndent * LevelOf(node));
  return at.x >= mark - Theme().Px(4) && at.x < mark + Theme().Px(kMarkSize + 4);
}

bool TreeView::IsExpanded(HTREEITEM node) const {
  return (TreeView_GetItemState(Window(), node, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

void TreeView::Toggle(HTREEITEM node) {
  if (node == nullptr) return;
  TreeView_Expand(Window(), node, TVE_TOGGLE);
  SyncScrollBar();
}

void TreeView::ShowContextMenu(POINT screen) {
  HTREEITEM node = Selected();
  if (screen.x == -1 && screen.y == -1) {  // by keyboard: at the selected node
    const RECT box = node != nullptr ? BoxOf(node) : RECT{};
    screen = {box.left + Theme().Px(kIndent * 2), box.bottom};
    ClientToScreen(Window(), &screen);
  } else {
    POINT client = screen;
    ScreenToClient(Window(), &client);
    node = NodeAt(client);
  }
  Raise({.kind = FormEvent::Kind::ContextMenu, .row = Data(node), .point = screen});
}

// Two rows at most are painted anew for each move of the pointer.
void TreeView::SetHover(HTREEITEM node) {
  if (node == hover_) return;
  RepaintNode(std::exchange(hover_, node));
  RepaintNode(node);
  if (node == nullptr) return;
  TrackLeave();
}

bool TreeView::OnNotify(NMHDR& notice, LRESULT& result) {
  result = 0;
  switch (notice.code) {
    case NM_CUSTOMDRAW: {
      const auto& draw = reinterpret_cast<const NMTVCUSTOMDRAW&>(notice);
      if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) result = CDRF_NOTIFYITEMDRAW;
      if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
        PaintNode(draw.nmcd.hdc, reinterpret_cast<HTREEITEM>(draw.nmcd.dwItemSpec));
        result = CDRF_SKIPDEFAULT;
      }
      return true;
    }
    case TVN_SELCHANGEDW: {
      const HTREEITEM node = reinterpret_cast<const NMTREEVIEWW&>(notice).itemNew.hItem;
      // By keyboard, by a screen reader, or from outside: it is a click all the same.
      if (!quiet_ && node != nullptr) {
        Raise({.kind = FormEvent::Kind::NodeClick, .node = node});
      }
      return true;
    }
    case TVN_ITEMEXPANDEDW:
      SyncScrollBar();
      return true;
    // Enter opens and closes, like the click on the mark, and it is a click on the node as well.
    case NM_RETURN: {
      const HTREEITEM node = Selected();
      if (node == nullptr) return true;
      if (TreeView_GetChild(Window(), node) != nullptr) Toggle(node);
      Raise({.kind = FormEvent::Kind::NodeClick, .node = node});
      return true;
    }
    default:
      return false;
  }
}

// The whole row, from the ground up. The figure at the right end is measured first: the text gives way to
// it, not the other way round.
void TreeView::PaintNode(HDC dc, HTREEITEM node) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const RECT box = BoxOf(node);
  // The system also asks for nodes that are out of sight.
  if (box.bottom <= box.top) return;
  const bool selected = node == Selected();
  const bool focused = GetFocus() == Window();
  BufferedPaint buffer(dc, box);
  const HDC paint = buffer.Dc();
  Color ground = node == hover_ ? colors.rowHover : colors.glass;
  if (selected) ground = focused ? colors.rowSelected : colors.rowSelectedOff;
  theme.Fill(paint, box, ground);
  const int level = LevelOf(node);
  // One hair line for each level above, below the middle of that level's mark.
  for (int outer = 0; outer < level; ++outer) {
    const int x = theme.Px(13 + kIndent * outer);
    theme.Fill(paint, {x, box.top, x + theme.Line(), box.bottom}, colors.hair);
  }
  const int left = theme.Px(kMarkInset + kIndent * level);
  PaintMark(paint, node, box, left);

  wchar_t text[512] = L"";
  TVITEMW item{};
  item.mask = TVIF_TEXT | TVIF_HANDLE;
  item.hItem = node;
  item.pszText = text;
  item.cchTextMax = 512;
  SendMessageW(Window(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  const int bar = BarWidth();
  const Node* found = NodeOf(node);
  const std::wstring_view figure = found != nullptr ? std::wstring_view(found->figure) : std::wstring_view();
  const int figureWidth = figure.empty() ? 0 : static_cast<int>(theme.Measure(figure, TextStyle::Small).cx);
  const int right = Width() - bar - theme.Px(kCountGap);
  // Two colours that are given together must stay together: text of the selection on its ground.
  const bool highContrastRow = selected && focused;
  theme.Text(paint, {right - figureWidth, box.top, right, box.bottom}, figure, TextStyle::Small,
             highContrastRow ? colors.rowSelectedText : colors.glassMuted, DT_RIGHT | DT_NOPREFIX);
  theme.Text(paint, {left + theme.Px(kTextAfterMark), box.top, right - figureWidth - theme.Px(4), box.bottom},
             PaintedText(text), level == 0 || selected ? TextStyle::BodyStrong : TextStyle::Body,
             highContrastRow ? colors.rowSelectedText : colors.glassText);
  if (!selected) return;
  theme.Fill(paint, {0, box.top, theme.Px(kNeedleBar), box.bottom}, colors.accent);
  if (focused) {
    theme.Frame(paint, {theme.Px(4), box.top + theme.Line(), Width() - bar, box.bottom - theme.Line()},
                colors.focus, theme.Line());
  }
}

void TreeView::PaintMark(HDC dc, HTREEITEM node, const RECT& box, int left) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int middle = (box.top + box.bottom) / 2;
  if (TreeView_GetChild(Window(), node) == nullptr) {
    const int size = theme.Px(kLeafSize);
    const int x = left + (theme.Px(kMarkSize) - size) / 2;
    theme.Fill(dc, {x, middle - size / 2, x + size, middle - size / 2 + size}, colors.tickOff);
    return;
  }
  // A plus, or a minus: an odd number of lines wide, so that the two bars meet in the middle.
  const int line = theme.Line();
  const int arm = theme.Px(kPlusArm);
  const int x = left + theme.Px(kMarkSize) / 2;
  const Color color = IsExpanded(node) ? colors.accent : colors.glassText;
  theme.Fill(dc, {x - arm, middle, x + arm + line, middle + line}, color);
  if (!IsExpanded(node)) theme.Fill(dc, {x, middle - arm, x + line, middle + arm + line}, color);
}

}  // namespace sonaro
