// How a list's rows are painted.

#include <windowsx.h>

#include <algorithm>

#include "forms/WideText.h"
#include "forms/controls/ListView.h"
#include "forms/paint/Painter.h"

namespace sonaro {

namespace {

constexpr int kCellInset = 9;
constexpr int kSymbolInset = 9;
constexpr int kTextAfterSymbol = 28;
constexpr int kCellGap = 5;
constexpr int kStarSize = 14;
constexpr int kStarGap = 4;  // behind it, and between the marks
constexpr int kSoundSize = 12;
// The picture that an empty list shows.
constexpr int kEmptyWidth = 320;
constexpr int kEmptyPitch = 8;
constexpr int kEmptyLineAboveMiddle = 37;
constexpr int kEmptyScaleFrom = 180;  // lists less high show the words only

// The four bars that say how reliable a station is.
constexpr int kSymbolSize = 11;
constexpr int kBarHeights[] = {3, 6, 8, 11};
constexpr int kBarWidth = 2;
constexpr int kBarPitch = 3;

Color GroundOf(const FaceplateColors& colors, int row) { return row % 2 == 0 ? colors.glass : colors.zebra; }

// `level` 0 (not known) to 4 (very good); the top-left corner at pixel (x, y). On a selected row a
// high-contrast theme may give the bars the colour of the row's text as well.
void PaintReliability(HDC dc, const Painter& painter, int x, int y, int level, bool selected) {
  const FaceplateColors& colors = painter.Colors();
  Color lit = level == 1 ? colors.alert : colors.signal;
  if (selected && colors.highContrast) lit = colors.rowSelectedText;
  const int bottom = y + painter.Px(kSymbolSize);
  const int width = std::max(2, painter.Px(kBarWidth));
  for (int bar = 0; bar < 4; ++bar) {
    const int left = x + bar * painter.Px(kBarPitch);
    const int height = painter.Px(level == 0 ? kBarHeights[0] : kBarHeights[bar]);
    painter.Fill(dc, {left, bottom - height, left + width, bottom}, bar < level ? lit : colors.tickOff);
  }
}

}  // namespace

// Each row is painted as a whole at its first notice; nothing of the system's own painting is left.
LRESULT ListView::CustomDraw(const NMLVCUSTOMDRAW& draw) const {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      PaintRow(draw.nmcd.hdc, static_cast<int>(draw.nmcd.dwItemSpec));
      return CDRF_SKIPDEFAULT;
    default:
      return CDRF_DODEFAULT;
  }
}

// Between a change of the model and RowsChanged the system may ask for a row that is not there.
void ListView::PaintRow(HDC dc, int row) const {
  if (model_ == nullptr || row >= model_->RowCount() || model_->IsNotice()) return;
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const RECT box = ItemBox(row);
  const bool selected = (ListView_GetItemState(Window(), row, LVIS_SELECTED) & LVIS_SELECTED) != 0;
  const bool focused = GetFocus() == Window();
  // The list buffers itself too, but not on every system, and not with rows of different colours in one
  // step.
  BufferedPaint buffer(dc, box);
  Color ground = row == hover_ ? colors.rowHover : GroundOf(colors, row);
  if (selected) ground = focused ? colors.rowSelected : colors.rowSelectedOff;
  theme.Fill(buffer.Dc(), box, ground);
  PaintColumnLines(buffer.Dc(), box.top, box.bottom);
  PaintCells(buffer.Dc(), row, box, selected, focused);
  if (selected)
    theme.Fill(buffer.Dc(), {box.left, box.top, box.left + theme.Px(kNeedleBar), box.bottom}, colors.accent);
  // While none is selected the frame shows from where the keys would go on.
  // Of several selected rows only one is where the keys go on.
  const bool here = row == std::max(0, FocusedRow());
  if (focused && (selected ? here || SelectedCount() == 1 : here && Selected() < 0)) {
    const RECT frame = {box.left + theme.Px(4), box.top + theme.Line(),
                        edges_.empty() ? box.right : edges_.back(), box.bottom - theme.Line()};
    theme.Frame(buffer.Dc(), frame, colors.focus, theme.Line());
  }
}

// They run on below the last row, so that the list looks full.
void ListView::PaintColumnLines(HDC dc, int top, int bottom) const {
  if (!columnLines_) return;
  const Painter& theme = Theme();
  for (const int edge : edges_) theme.Fill(dc, {edge - theme.Line(), top, edge, bottom}, theme.Colors().hair);
}

// The first text is the row's name and stands out; figures before it are only its number. A text is asked of
// the model as it is painted, for the rows in sight.
void ListView::PaintCells(HDC dc, int row, const RECT& box, bool selected, bool focused) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int symbol = withSymbols_ ? model_->Symbol(row) : -1;
  const int marks = PaintMarks(dc, row, box, selected, focused);
  bool leading = true;  // until the first text of the row
  for (std::size_t i = 0; i < edges_.size(); ++i) {
    const Column& column = columns_[i];
    const bool strong = leading && !column.figure;
    leading = leading && !strong;
    Color ink = strong || (selected && !column.figure) ? colors.glassText : colors.glassMuted;
    if (selected && focused) ink = colors.rowSelectedText;
    RECT text = TextBox(i, box);
    if (i == 0) text.right -= marks;
    theme.Text(dc, text, model_->Cell(row, static_cast<int>(i)),
               column.figure        ? TextStyle::Small
               : strong && selected ? TextStyle::BodyStrong
                                    : TextStyle::Body,
               ink, DT_NOPREFIX | (column.rightAligned ? DT_RIGHT : 0U));
  }
  if (symbol >= 0) {
    const int top = box.top + (box.bottom - box.top - theme.Px(kSymbolSize)) / 2;
    PaintReliability(dc, theme, box.left + theme.Px(kSymbolInset), top, symbol, selected && focused);
  }
}

RECT ListView::StarBox(const RECT& row) const {
  const Painter& theme = Theme();
  const int right = edges_.front() - theme.Px(kStarGap);
  const int top = row.top + (row.bottom - row.top - theme.Px(kStarSize)) / 2;
  return {right - theme.Px(kStarSize), top, right, top + theme.Px(kStarSize)};
}

// The whole height of the row counts, and what is beside the star up to the column's edge.
bool ListView::HitsStar(int row, LPARAM pointer) const {
  if (model_ == nullptr || edges_.empty() || row >= model_->RowCount()) return false;
  const RowMarks marks = model_->Marks(row);
  const int x = GET_X_LPARAM(pointer);
  return (marks.star || marks.offer) && x >= StarBox(ItemBox(row)).left - Theme().Px(kStarGap) &&
         x < edges_.front();
}

// How much of the first column's width the marks take. An empty star is drawn only where it can be wanted, so
// that the list stays calm.
int ListView::PaintMarks(HDC dc, int row, const RECT& box, bool selected, bool focused) const {
  const RowMarks marks = model_->Marks(row);
  const Painter& theme = Theme();
  const Color ink = selected && focused ? theme.Colors().rowSelectedText : theme.Colors().accent;
  RECT star = StarBox(box);
  int taken = 0;
  if (marks.star || (marks.offer && (selected || row == hover_))) {
    const Color pale = selected && focused ? ink : theme.Colors().glassMuted;
    theme.DrawIcon(dc, marks.star ? Icon::Fav : Icon::Overall, static_cast<int>(star.left),
                   static_cast<int>(star.top), kStarSize, marks.star ? ink : pale);
    taken = theme.Px(kStarSize + kStarGap);
  }
  if (marks.sound) {
    const int top = box.top + (box.bottom - box.top - theme.Px(kSoundSize)) / 2;
    taken += theme.Px(kSoundSize + kStarGap);
    theme.DrawIcon(dc, Icon::Sound, static_cast<int>(star.right) - taken + theme.Px(kStarGap), top,
                   kSoundSize, ink);
  }
  return taken;
}

// Painting and the tip agree on it: what is cut here is what a tip shows whole.
RECT ListView::TextBox(std::size_t column, const RECT& row) const {
  const Painter& theme = Theme();
  const int left = column == 0 ? static_cast<int>(row.left) : edges_[column - 1];
  const int inset = theme.Px(column == 0 && withSymbols_ ? kTextAfterSymbol : kCellInset);
  return {left + inset, row.top, edges_[column] - theme.Px(kCellGap), row.bottom};
}

int ListView::MarksWidth(const RowMarks& marks) const {
  return (marks.star || marks.offer ? Theme().Px(kStarSize + kStarGap) : 0) +
         (marks.sound ? Theme().Px(kSoundSize + kStarGap) : 0);
}

// A figure keeps its column; the first text is strong as soon as its row is selected.
int ListView::WidthBelowHeader(int header) const {
  if (model_ == nullptr || model_->IsNotice()) return 0;
  const Painter& theme = Theme();
  const int first = std::max(0, ListView_GetTopIndex(Window()));
  const int end = std::min(model_->RowCount(), first + ListView_GetCountPerPage(Window()) + 1);
  int widest = 0;
  int figures = 0;
  for (std::size_t column = 0; column < columns_.size() && first < end; ++column) {
    if (HeaderOf(column) != header) continue;
    if (columns_[column].figure) figures += theme.Px(columns_[column].width);
    for (int row = first; row < end && !columns_[column].figure; ++row) {
      const std::wstring text = Widen(model_->Cell(row, static_cast<int>(column)));
      const RECT none = {0, 0, 0, 0};
      const RECT room = TextBox(column, none);  // of a row without a width
      const int left = column == 0 ? 0 : edges_[column - 1];
      const int besides = static_cast<int>(room.left) - left + edges_[column] - static_cast<int>(room.right);
      const int marks = column == 0 ? MarksWidth(model_->Marks(row)) : 0;
      const TextStyle style = column == 0 ? TextStyle::BodyStrong : TextStyle::Body;
      widest = std::max(widest, static_cast<int>(theme.Measure(text, style).cx) + besides + marks);
    }
  }
  return widest == 0 ? 0 : widest + figures + theme.Line();
}

// A text that its column cuts short can be read whole.
void ListView::ShowTipAt(LPARAM pointer) {
  const int row = RowUnder(pointer);
  const auto edge = std::upper_bound(edges_.begin(), edges_.end(), GET_X_LPARAM(pointer));
  if (row < 0 || model_->IsNotice() || edge == edges_.end()) return tip_->Clear();
  const auto column = static_cast<std::size_t>(edge - edges_.begin());
  const RECT box = TextBox(column, ItemBox(row));
  const std::wstring text = Widen(model_->Cell(row, static_cast<int>(column)));
  const TextStyle style = row == Selected() && column == 0 ? TextStyle::BodyStrong : TextStyle::Body;
  const int marksTaken = column == 0 ? MarksWidth(model_->Marks(row)) : 0;
  if (Theme().Measure(text, style).cx <= box.right - box.left - marksTaken) return tip_->Clear();
  tip_->Set(box, text);
}

// Rows go on to the bottom as empty ones.
void ListView::PaintBelowRows(HDC dc) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  RECT box{};
  GetClientRect(Window(), &box);
  box.right = Width();
  const int count = model_ != nullptr ? model_->RowCount() : 0;
  const bool notice = count > 0 && model_->IsNotice();
  // An empty list says so in its middle; one without a heading stays striped, as while it is being filled.
  if (notice || (count == 0 && !emptyHeading_.empty())) {
    theme.Fill(dc, box, colors.glass);
    PaintEmpty(dc, box);
    return;
  }
  const int height = std::max(1, theme.Px(designRow_));
  int top = 0;
  int row = 0;
  // From the last row in sight, which may be cut by the lower edge: its box says where the stripes go on.
  if (count > 0) {
    row = std::min(count, ListView_GetTopIndex(Window()) + ListView_GetCountPerPage(Window()) + 1);
    top = ItemBox(row - 1).bottom;
  }
  for (; top < box.bottom; top += height, ++row) {
    theme.Fill(dc, {0, top, Width(), std::min<int>(top + height, box.bottom)}, GroundOf(colors, row));
    PaintColumnLines(dc, top, std::min<int>(top + height, box.bottom));
  }
}

// Where a station would stand: a scale without one, a heading, and help of one or two lines.
void ListView::PaintEmpty(HDC dc, const RECT& box) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int centre = (box.left + box.right) / 2;
  int top = box.top + theme.Px(8);
  if (box.bottom - box.top >= theme.Px(kEmptyScaleFrom)) {
    const int line = (box.top + box.bottom) / 2 - theme.Px(kEmptyLineAboveMiddle);
    PaintEmptyScale(dc, centre, line);
    top = line + theme.Px(24);
  }
  const RECT heading = {box.left, top, box.right, top + theme.Px(28)};
  theme.Text(dc, heading, emptyHeading_, TextStyle::Notice, colors.glassText, DT_CENTER | DT_NOPREFIX);
  const RECT help = {box.left + theme.Px(16), top + theme.Px(30), box.right - theme.Px(16),
                     top + theme.Px(70)};
  theme.Text(dc, help, emptyHelp_, TextStyle::Body, colors.glassMuted,
             DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
  if (GetFocus() == Window()) theme.Frame(dc, box, colors.focus, theme.FocusLine());
}

// A number of ticks to either side of the needle, whatever the list's width, with every fifth a tall one.
void ListView::PaintEmptyScale(HDC dc, int centre, int line) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int pitch = theme.Px(kEmptyPitch);
  const int ticks = std::min(theme.Px(kEmptyWidth), Width() - theme.Px(40)) / pitch / 2;
  for (int tick = -ticks; tick <= ticks; ++tick) {
    if (tick == 0) continue;
    const int height = theme.Px(tick % 5 == 0 ? 22 : 11);
    const int x = centre + tick * pitch;
    theme.Fill(dc, {x, line - height, x + theme.Line(), line}, colors.tickOff);
  }
  theme.Fill(dc,
             {centre - ticks * pitch, line + theme.Px(4), centre + ticks * pitch + theme.Line(),
              line + theme.Px(4) + theme.Line()},
             colors.hair);
  const int bar = theme.Px(kNeedleBar);
  theme.Fill(dc, {centre - bar / 2, line - theme.Px(34), centre - bar / 2 + bar, line + theme.Px(2)},
             colors.accent);
  const int head = theme.Px(13);
  DrawNeedleHead(dc, centre - head / 2, line - theme.Px(40), head, theme.Px(9), colors.accent);
}

}  // namespace sonaro
