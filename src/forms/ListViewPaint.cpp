// How a list's rows look.

#include <windowsx.h>

#include <algorithm>

#include "forms/ListView.h"
#include "forms/Painter.h"
#include "forms/ReliabilitySymbol.h"
#include "forms/WideText.h"

namespace sonaro {

namespace {

constexpr int kCellInset = 9;
constexpr int kSymbolInset = 9;
constexpr int kTextAfterSymbol = 28;
constexpr int kCellGap = 5;
// The picture that an empty list shows.
constexpr int kEmptyWidth = 320;
constexpr int kEmptyPitch = 8;
constexpr int kEmptyLineAboveMiddle = 37;
constexpr int kEmptyScaleFrom = 180;  // lists less high show the words only

Color GroundOf(const FaceplateColors& colors, int row) { return row % 2 == 0 ? colors.glass : colors.zebra; }

}  // namespace

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

void ListView::PaintRow(HDC dc, int row) const {
  if (model_ == nullptr || row >= model_->RowCount() || model_->IsNotice()) return;
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const RECT box = ItemBox(row);
  const bool selected = (ListView_GetItemState(list_, row, LVIS_SELECTED) & LVIS_SELECTED) != 0;
  const bool focused = GetFocus() == list_;
  BufferedPaint buffer(dc, box);
  Color ground = row == hover_ ? colors.rowHover : GroundOf(colors, row);
  if (selected) ground = focused ? colors.rowSelected : colors.rowSelectedOff;
  look.Fill(buffer.Dc(), box, ground);
  PaintColumnLines(buffer.Dc(), box.top, box.bottom);
  PaintCells(buffer.Dc(), row, box, selected, focused);
  if (selected)
    look.Fill(buffer.Dc(), {box.left, box.top, box.left + look.Px(kNeedleBar), box.bottom}, colors.accent);
  // While none is selected the frame shows from where the keys would go on.
  if (focused && (selected || (row == std::max(0, FocusedRow()) && Selected() < 0))) {
    const RECT frame = {box.left + look.Px(4), box.top + look.Line(),
                        edges_.empty() ? box.right : edges_.back(), box.bottom - look.Line()};
    look.Frame(buffer.Dc(), frame, colors.focus, look.Line());
  }
}

void ListView::PaintColumnLines(HDC dc, int top, int bottom) const {
  if (!columnLines_) return;
  const Painter& look = services_.Look();
  for (const int edge : edges_) look.Fill(dc, {edge - look.Line(), top, edge, bottom}, look.Colors().hair);
}

void ListView::PaintCells(HDC dc, int row, const RECT& box, bool selected, bool focused) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const int symbol = withSymbols_ ? model_->Symbol(row) : -1;
  bool leading = true;  // until the first text of the row
  for (std::size_t i = 0; i < edges_.size(); ++i) {
    const Column& column = columns_[i];
    const bool strong = leading && !column.figure;
    leading = leading && !strong;
    Color ink = strong || (selected && !column.figure) ? colors.glassText : colors.glassMuted;
    if (selected && focused) ink = colors.rowSelectedText;
    look.Text(dc, TextBox(i, box), model_->Cell(row, static_cast<int>(i)),
              column.figure        ? Type::Small
              : strong && selected ? Type::BodyStrong
                                   : Type::Body,
              ink, DT_NOPREFIX | (column.rightAligned ? DT_RIGHT : 0U));
  }
  if (symbol >= 0) {
    const int top = box.top + (box.bottom - box.top - look.Px(kReliabilitySize)) / 2;
    PaintReliability(dc, look, box.left + look.Px(kSymbolInset), top, symbol, selected && focused);
  }
}

RECT ListView::TextBox(std::size_t column, const RECT& row) const {
  const Painter& look = services_.Look();
  const int left = column == 0 ? static_cast<int>(row.left) : edges_[column - 1];
  const int inset = look.Px(column == 0 && withSymbols_ ? kTextAfterSymbol : kCellInset);
  return {left + inset, row.top, edges_[column] - look.Px(kCellGap), row.bottom};
}

// A text that its column cuts short can be read whole.
void ListView::ShowTipAt(LPARAM pointer) {
  const int row = RowUnder(pointer);
  const auto edge = std::upper_bound(edges_.begin(), edges_.end(), GET_X_LPARAM(pointer));
  if (row < 0 || model_->IsNotice() || edge == edges_.end()) return tip_->Clear();
  const auto column = static_cast<std::size_t>(edge - edges_.begin());
  const RECT box = TextBox(column, ItemBox(row));
  const std::wstring text = Widen(model_->Cell(row, static_cast<int>(column)));
  const Type type = row == Selected() && column == 0 ? Type::BodyStrong : Type::Body;
  if (services_.Look().Measure(text, type).cx <= box.right - box.left) return tip_->Clear();
  tip_->Set(box, text);
}

// Rows go on to the bottom as empty ones.
void ListView::PaintBelowRows(HDC dc) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  RECT box{};
  GetClientRect(list_, &box);
  box.right = width_;
  const int count = model_ != nullptr ? model_->RowCount() : 0;
  const bool notice = count > 0 && model_->IsNotice();
  if (notice || (count == 0 && !emptyHeading_.empty())) {
    look.Fill(dc, box, colors.glass);
    PaintEmpty(dc, box);
    return;
  }
  const int height = std::max(1, look.Px(designRow_));
  int top = 0;
  int row = 0;
  if (count > 0) {
    row = std::min(count, ListView_GetTopIndex(list_) + ListView_GetCountPerPage(list_) + 1);
    top = ItemBox(row - 1).bottom;
  }
  for (; top < box.bottom; top += height, ++row) {
    look.Fill(dc, {0, top, width_, std::min<int>(top + height, box.bottom)}, GroundOf(colors, row));
    PaintColumnLines(dc, top, std::min<int>(top + height, box.bottom));
  }
}

// Where a station would stand: a scale without one, a heading, and help of one or two lines.
void ListView::PaintEmpty(HDC dc, const RECT& box) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const int centre = (box.left + box.right) / 2;
  int top = box.top + look.Px(8);
  if (box.bottom - box.top >= look.Px(kEmptyScaleFrom)) {
    const int line = (box.top + box.bottom) / 2 - look.Px(kEmptyLineAboveMiddle);
    PaintEmptyScale(dc, centre, line);
    top = line + look.Px(24);
  }
  const RECT heading = {box.left, top, box.right, top + look.Px(28)};
  look.Text(dc, heading, emptyHeading_, Type::Notice, colors.glassText, DT_CENTER | DT_NOPREFIX);
  const RECT help = {box.left + look.Px(16), top + look.Px(30), box.right - look.Px(16), top + look.Px(70)};
  look.Text(dc, help, emptyHelp_, Type::Body, colors.glassMuted, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
  if (GetFocus() == list_) look.Frame(dc, box, colors.focus, look.FocusLine());
}

void ListView::PaintEmptyScale(HDC dc, int centre, int line) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const int pitch = look.Px(kEmptyPitch);
  const int ticks = std::min(look.Px(kEmptyWidth), width_ - look.Px(40)) / pitch / 2;
  for (int tick = -ticks; tick <= ticks; ++tick) {
    if (tick == 0) continue;
    const int height = look.Px(tick % 5 == 0 ? 22 : 11);
    const int x = centre + tick * pitch;
    look.Fill(dc, {x, line - height, x + look.Line(), line}, colors.tickOff);
  }
  look.Fill(dc,
            {centre - ticks * pitch, line + look.Px(4), centre + ticks * pitch + look.Line(),
             line + look.Px(4) + look.Line()},
            colors.hair);
  const int bar = look.Px(kNeedleBar);
  look.Fill(dc, {centre - bar / 2, line - look.Px(34), centre - bar / 2 + bar, line + look.Px(2)},
            colors.accent);
  const int head = look.Px(13);
  DrawNeedleHead(dc, centre - head / 2, line - look.Px(40), head, look.Px(9), colors.accent);
}

}  // namespace sonaro
