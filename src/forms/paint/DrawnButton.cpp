#include "forms/paint/DrawnButton.h"

#include <algorithm>

#include "forms/controls/TabDial.h"
#include "forms/paint/IconPainter.h"
#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

// 96-dpi pixels that the corners of the buttons are cut by.
constexpr int kCut = 5;
constexpr int kPlayCut = 7;

// One button being painted: the box is cut up in design units from its top-left corner.
struct Canvas {
  HDC dc;
  RECT box;
  const ButtonPicture& button;
  const Painter& painter;
  ButtonFace face;

  int Px(int design) const { return painter.Px(design); }
  int Down() const { return face.shiftDown ? painter.Line() : 0; }
  int Height() const { return static_cast<int>(box.bottom - box.top); }
  UINT Prefix() const {
    if (button.noPrefix) return DT_NOPREFIX;
    return button.hideAccel ? DT_HIDEPREFIX : 0;
  }
  TextStyle BodyStyle() const { return face.strong ? TextStyle::BodyStrong : TextStyle::Body; }

  void DrawText(const RECT& place, std::wstring_view text, TextStyle style, Color color, UINT format) const {
    painter.Text(dc, {place.left, place.top + Down(), place.right, place.bottom + Down()}, text, style, color,
                 format);
  }
  void DrawIcon(Icon icon, int x, int designSize, Color color) const {
    if (icon == Icon::None) return;
    const int y = static_cast<int>(box.top) + (Height() - Px(designSize)) / 2 + Down();
    painter.DrawIcon(dc, icon, x, y, designSize, color);
  }
};

// The milled line leaves out the corner that is cut.
void PaintShape(const Canvas& c, int cut) {
  if (!c.face.hasFace) return;
  c.painter.CutShape(c.dc, c.box, cut, c.face.top, c.face.bottom, c.face.edge);
  if (!c.face.hasMilledLine) return;
  const int line = c.painter.Line();
  c.painter.Fill(
      c.dc, {c.box.left + std::max(cut, line), c.box.top + line, c.box.right - line, c.box.top + 2 * line},
      c.face.milledLine);
}

// Inside the edge, with corners cut along.
void PaintFocus(const Canvas& c, int cut) {
  if (!c.button.focused) return;
  RECT inner = c.box;
  const int inset = c.painter.Px(2);
  InflateRect(&inner, -inset, -inset);
  c.painter.CutFrame(c.dc, inner, std::max(0, cut - inset / 2), c.face.focus, c.painter.FocusLine());
}

// Where icon and text of a push button lie: centred together, the text cut when the button is too narrow.
struct Centred {
  int iconX = 0;
  RECT text{};
};

// 96-dpi pixels: the icon, from it to the text, and what stays free at either side.
constexpr int kPushIcon = 14;
constexpr int kIconGap = 6;
constexpr int kSideRoom = 4;

Centred CentreTogether(const Canvas& c) {
  const int margin = c.Px(kSideRoom);
  const int icon = c.button.icon == Icon::None ? 0 : c.Px(kPushIcon);
  const int gap = icon != 0 && !c.button.text.empty() ? c.Px(kIconGap) : 0;
  const int room = static_cast<int>(c.box.right - c.box.left) - 2 * margin - icon - gap;
  const int needed = static_cast<int>(c.painter.Measure(c.button.text, c.BodyStyle(), c.Prefix()).cx);
  const int text = std::min(room, needed);
  Centred result;
  result.iconX = static_cast<int>(c.box.left) + margin + (room - text) / 2;
  result.text = {result.iconX + icon + gap, c.box.top, result.iconX + icon + gap + text + 1, c.box.bottom};
  return result;
}

// A primary button has the same parts; its face alone is another.
void PaintPushButton(const Canvas& c) {
  PaintShape(c, c.Px(kCut));
  const Centred place = CentreTogether(c);
  c.DrawIcon(c.button.icon, place.iconX, kPushIcon, c.face.icon);
  c.DrawText(place.text, c.button.text, c.BodyStyle(), c.face.text, c.Prefix());
  PaintFocus(c, c.Px(kCut));
}

void PaintStripButton(const Canvas& c) {
  PaintShape(c, c.Px(kCut));
  c.DrawIcon(c.button.icon,
             static_cast<int>(c.box.left) + (static_cast<int>(c.box.right - c.box.left) - c.Px(14)) / 2, 14,
             c.face.icon);
  PaintFocus(c, c.Px(kCut));
}

// The bar at the left edge is the needle of the lists, and says the same: this one.
void PaintRankingButton(const Canvas& c) {
  PaintShape(c, c.Px(kCut));
  if (c.button.state.active) {
    c.painter.Fill(c.dc, {c.box.left, c.box.top + c.Px(7), c.box.left + c.Px(3), c.box.bottom - c.Px(1)},
                   c.painter.Colors().accent);
  }
  c.DrawIcon(c.button.icon, static_cast<int>(c.box.left) + c.Px(12), 16, c.face.icon);
  c.DrawText({c.box.left + c.Px(38), c.box.top, c.box.right - c.Px(6), c.box.bottom}, c.button.text,
             c.BodyStyle(), c.face.text, c.Prefix());
  PaintFocus(c, c.Px(kCut));
}

// An empty socket shows its plus only under the pointer or the focus; its text is for screen readers.
void PaintGroupButton(const Canvas& c) {
  PaintShape(c, c.Px(kCut));
  if (c.button.state.active) {
    c.painter.Fill(c.dc, {c.box.left + c.Px(1), c.box.bottom - c.Px(2), c.box.right - c.Px(6), c.box.bottom},
                   c.painter.Colors().accent);
  }
  const TextStyle figure = c.button.state.empty ? TextStyle::Small : TextStyle::SmallStrong;
  c.DrawText({c.box.left + c.Px(8), c.box.top, c.box.left + c.Px(22), c.box.bottom}, c.button.detail, figure,
             c.face.secondText, DT_NOPREFIX);
  if (c.button.state.empty) {
    const int middle = static_cast<int>(c.box.left + c.box.right) / 2;
    if (c.button.state.hover || c.button.focused) c.DrawIcon(Icon::Add, middle - c.Px(7), 14, c.face.icon);
  } else {
    c.DrawText({c.box.left + c.Px(20), c.box.top, c.box.right - c.Px(6), c.box.bottom}, c.button.text,
               c.BodyStyle(), c.face.text, c.Prefix());
  }
  PaintFocus(c, c.Px(kCut));
}

// The detail is "64 kbit/s" or "64 kbit/s<tab>2". With a number the button has a divider and the number at
// its end.
void PaintPlayButton(const Canvas& c) {
  PaintShape(c, c.Px(kPlayCut));
  const std::wstring_view detail = c.button.detail;
  const std::size_t tab = detail.find(L'\t');
  const bool numbered = tab != std::wstring_view::npos;
  const int left = static_cast<int>(c.box.left);
  const int top = static_cast<int>(c.box.top);
  c.DrawIcon(c.button.icon == Icon::None ? Icon::Play : c.button.icon, left + c.Px(numbered ? 13 : 11), 16,
             c.face.icon);
  const int textLeft = left + c.Px(numbered ? 52 : 36);
  const int textRight =
      numbered ? static_cast<int>(c.box.right) - c.Px(28) : static_cast<int>(c.box.right) - c.Px(6);
  if (numbered) {
    const int x = left + c.Px(40);
    const Color line = c.button.secondary ? c.painter.Colors().milled : c.face.text;
    c.painter.Fill(c.dc, {x, top + c.Px(8), x + c.painter.Line(), top + c.Px(32)}, line);
    c.DrawText({c.box.right - c.Px(26), top, c.box.right - c.Px(10), c.box.bottom}, detail.substr(tab + 1),
               TextStyle::BodyStrong, c.face.secondText, DT_NOPREFIX | DT_RIGHT);
  }
  const std::wstring_view bitRate = detail.substr(0, tab);
  const int lines = top + c.Px(bitRate.empty() ? 11 : 4);  // one line stands in the middle
  c.DrawText({textLeft, lines, textRight, lines + c.Px(18)}, c.button.text, TextStyle::MessageStrong,
             c.face.text, c.Prefix());
  c.DrawText({textLeft, top + c.Px(20), textRight, top + c.Px(35)}, bitRate, TextStyle::Small,
             c.face.secondText, DT_NOPREFIX);
  PaintFocus(c, c.Px(kPlayCut));
}

// Square like the column below it; the line at its foot and the triangle are the mark of the order.
void PaintHeaderButton(const Canvas& c) {
  PaintShape(c, 0);
  const bool sorted = c.button.sort != SortMark::None;
  RECT text{c.box.left + c.Px(9), c.box.top, c.box.right - c.Px(2), c.box.bottom};
  if (sorted) {
    c.painter.Fill(c.dc, {c.box.left, c.box.bottom - c.Px(3), c.box.right, c.box.bottom},
                   c.painter.Colors().accent);
    text.bottom -= c.painter.Line();
    const LONG mark = c.box.right - c.Px(18);
    const LONG markInk = mark + c.Px(3);  // the triangle fills the middle of its square only
    // In a button too narrow for both, the whole name says more than the triangle: the lit button tells the
    // order.
    if (text.left + c.painter.Measure(c.button.text, TextStyle::BodyStrong, c.Prefix()).cx <= markInk) {
      text.right = markInk;
      c.painter.DrawIcon(c.dc, c.button.sort == SortMark::Up ? Icon::Sort : Icon::TriDown,
                         static_cast<int>(mark), static_cast<int>(c.box.top) + c.Px(5) + c.Down(), 12,
                         c.painter.Colors().accent);
    }
  }
  c.DrawText(text, c.button.text, TextStyle::BodyStrong, c.face.text, c.Prefix());
  PaintFocus(c, 0);
}

// Row by row like every cut shape, since the system would smooth or shift the slanting edges of a polygon.
void PaintOctagon(const Canvas& c, const RECT& box, int cut, Color fill, Color edge) {
  const int line = c.painter.Line();
  const int height = static_cast<int>(box.bottom - box.top);
  for (int row = 0; row < height; ++row) {
    const auto inset = [&](int r, int rows, int corner) {
      return std::max({0, corner - r, corner - (rows - 1 - r)});
    };
    const int y = static_cast<int>(box.top) + row;
    const int left = static_cast<int>(box.left) + inset(row, height, cut);
    const int right = static_cast<int>(box.right) - inset(row, height, cut);
    c.painter.Fill(c.dc, {left, y, right, y + 1}, edge);
    if (row < line || row >= height - line) continue;
    const int inner = inset(row - line, height - 2 * line, cut - (line + 1) / 2);
    c.painter.Fill(c.dc, {box.left + line + inner, y, box.right - line - inner, y + 1}, fill);
  }
}

void PaintMark(const Canvas& c, const RECT& mark) {
  const FaceplateColors& colors = c.painter.Colors();
  const ButtonState& state = c.button.state;
  const Color edge = state.active && !state.disabled ? colors.accent : colors.edgeControl;
  const Color fill = state.disabled                 ? colors.buttonOff
                     : state.pressed || state.hover ? colors.rowHover
                                                    : colors.glass;
  const Color sign = state.disabled ? colors.textOff : colors.accent;
  if (c.button.kind == ControlKind::RadioButton) {
    PaintOctagon(c, mark, c.Px(5), fill, edge);
    if (!state.active) return;
    RECT dot = mark;
    InflateRect(&dot, -c.Px(4), -c.Px(4));
    PaintOctagon(c, dot, c.Px(2), sign, sign);
    return;
  }
  c.painter.CutShape(c.dc, mark, c.Px(4), fill, fill, edge);
  if (!state.active) return;
  // The check of a box is the icon's path with a pen of its own.
  constexpr double kPen = 8.0 / 3;  // of the icon's grid: heavier than in an icon, 2 pixels at this size
  const int size = c.Px(12);
  const double tolerance = 0.5 / size;
  const Coverage check = Rasterize(StrokePolygons(ParsePath(ShapeOf(Icon::Check).path, tolerance), kPen),
                                   {size / 16.0, 0, 0}, size, size);
  DrawCoverage(c.dc, static_cast<int>(mark.left) + c.Px(2), static_cast<int>(mark.top) + c.Px(2), check,
               sign);
}

// The focus line goes round mark and text, not round the whole place, which is as wide as the column.
void PaintCheck(const Canvas& c) {
  const FaceplateColors& colors = c.painter.Colors();
  const ButtonState& state = c.button.state;
  const int left = static_cast<int>(c.box.left) + c.Px(kMarkMargin);
  const int top = static_cast<int>(c.box.top) + (c.Height() - c.Px(16)) / 2;
  if (c.button.focused) {
    const TextStyle measured =
        c.button.kind == ControlKind::RadioButton && state.active ? TextStyle::BodyStrong : TextStyle::Body;
    const int text = static_cast<int>(c.painter.Measure(c.button.text, measured, c.Prefix()).cx);
    const int right = std::min(static_cast<int>(c.box.right), left + c.Px(24 + 8) + text);
    c.painter.Frame(c.dc, {c.box.left, top - c.Px(4), right, top + c.Px(20)}, colors.focus,
                    c.painter.FocusLine());
  }
  PaintMark(c, {left, top, left + c.Px(16), top + c.Px(16)});
  const bool strong = c.button.kind == ControlKind::RadioButton && state.active;
  c.painter.Text(c.dc, {left + c.Px(24), c.box.top, c.box.right, c.box.bottom}, c.button.text,
                 strong ? TextStyle::BodyStrong : TextStyle::Body,
                 state.disabled ? colors.textOff : colors.text, c.Prefix());
}

// A tab is painted with the dial, whose piece it is.
TabPicture TabOf(const Canvas& c) {
  const ButtonState& state = c.button.state;
  return {c.button.text, c.Prefix(),       state.active,        state.hover,
          state.pressed, c.button.focused, c.button.dialOffset, c.button.needle};
}

}  // namespace

// A header button keeps no state of its own: it is active while its list is sorted by it.
void PaintButton(HDC dc, const RECT& box, const ButtonPicture& button, const Painter& painter) {
  ButtonState state = button.state;
  if (button.kind == ControlKind::HeaderButton) state.active = button.sort != SortMark::None;
  const Canvas canvas = {dc, box, button, painter,
                         PickButtonFace(button.kind, button.secondary, state, painter.Colors())};
  switch (button.kind) {
    case ControlKind::StripButton:
      return PaintStripButton(canvas);
    case ControlKind::RankingButton:
      return PaintRankingButton(canvas);
    case ControlKind::GroupButton:
      return PaintGroupButton(canvas);
    case ControlKind::PlayButton:
      return PaintPlayButton(canvas);
    case ControlKind::HeaderButton:
      return PaintHeaderButton(canvas);
    case ControlKind::TabButton:
      return PaintTab(dc, box, TabOf(canvas), painter);
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
      return PaintCheck(canvas);
    default:
      return PaintPushButton(canvas);
  }
}

// The strong style where the button can become active: the text must fit then, too.
ButtonTextRoom MeasureButton(const RECT& box, const ButtonPicture& button, const Painter& painter) {
  const int width = static_cast<int>(box.right - box.left);
  const auto needed = [&](TextStyle style) {
    return static_cast<int>(painter.Measure(button.text, style, button.noPrefix ? DT_NOPREFIX : 0).cx);
  };
  switch (button.kind) {
    case ControlKind::StripButton:
      return {0, width};
    case ControlKind::RankingButton:
      return {needed(TextStyle::BodyStrong), width - painter.Px(44)};
    case ControlKind::GroupButton:
      return {button.state.empty ? 0 : needed(TextStyle::BodyStrong), width - painter.Px(26)};
    case ControlKind::PlayButton: {
      const bool numbered = button.detail.find(L'\t') != std::wstring::npos;
      return {needed(TextStyle::MessageStrong), width - painter.Px(numbered ? 80 : 42)};
    }
    case ControlKind::HeaderButton:
      return {needed(TextStyle::BodyStrong), width - painter.Px(11)};
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
      return {needed(TextStyle::BodyStrong), width - painter.Px(24 + kMarkMargin)};
    default: {
      const int icon = button.icon == Icon::None ? 0 : painter.Px(kPushIcon + kIconGap);
      return {needed(button.kind == ControlKind::PushButton ? TextStyle::Body : TextStyle::BodyStrong),
              width - icon - 2 * painter.Px(kSideRoom)};
    }
  }
}

}  // namespace sonaro
