#include "forms/FormPaint.h"

#include <algorithm>
#include <utility>

#include "faceplate/Faceplate.h"
#include "forms/FormWindow.h"
#include "forms/Screen.h"
#include "forms/WideText.h"
#include "forms/controls/TabDial.h"

namespace sonaro {
namespace {

// The row's own colour, else what its ground asks for.
Color InkColor(const ControlInstance& item, const FaceplateColors& colors) {
  const bool glass = item.Has(kOnGlass);
  switch (item.color) {
    case TextColor::Text:
      return colors.text;
    case TextColor::Muted:
      return colors.muted;
    case TextColor::GlassText:
      return colors.glassText;
    case TextColor::GlassMuted:
      return colors.glassMuted;
    case TextColor::TabText:
      return colors.tabText;
    case TextColor::Accent:
      return colors.accent;
    case TextColor::Signal:
      return colors.signal;
    case TextColor::Alert:
      return colors.alert;
    case TextColor::Off:
      return colors.textOff;
    case TextColor::Default:
      break;
  }
  if (item.Has(kSecondary)) return glass ? colors.glassMuted : colors.muted;
  return glass ? colors.glassText : colors.text;
}

// Access keys are underlined only in labels, and only once the user works with the keyboard.
UINT TextFormat(const ControlInstance& item, bool accessKeys) {
  UINT format = 0;
  if (item.Has(kRightAligned)) format |= DT_RIGHT;
  if (item.Has(kCentred)) format |= DT_CENTER;
  if (item.Has(kWrap)) format |= DT_WORDBREAK;
  if (item.KindOf() != ControlKind::Label || item.Has(kNoPrefix)) return format | DT_NOPREFIX;
  return accessKeys ? format : format | DT_HIDEPREFIX;
}

void PaintText(HDC dc, const RECT& box, const ControlInstance& item, const Painter& painter,
               bool accessKeys) {
  const FaceplateColors& colors = painter.Colors();
  const Color color = IsWindowEnabled(item.window) ? InkColor(item, colors) : colors.textOff;
  if (item.icon != Icon::None) {  // as large as its row is wide
    painter.DrawIcon(dc, item.icon, box.left, box.top, item.row->at.width, color);
    return;
  }
  painter.Text(dc, box, TextOfWindow(item.window), TextStyleOf(*item.row), color,
               TextFormat(item, accessKeys));
}

// Slots of a vent, cut at 45 degrees; the left ones end higher, the right ones start lower, like the
// shoulder.
void PaintSlots(HDC dc, const RECT& box, const Painter& painter) {
  const FaceplateColors& colors = painter.Colors();
  if (colors.highContrast) return;  // mere decoration would be the loudest thing in the window
  const int pitch = painter.Px(10);
  const int width = painter.Px(4);
  const int step = painter.Px(8);
  const int count = static_cast<int>(box.right - box.left) / pitch;
  for (int i = 0; i < count; ++i) {
    const int left = static_cast<int>(box.left) + painter.Px(3) + i * pitch;
    const bool early = i * 100 < count * 45;
    const int top = static_cast<int>(box.top) + (early ? 0 : step);
    const int bottom = static_cast<int>(box.bottom) - (early ? step : 0);
    painter.CutShape(dc, {left, top, left + width, bottom}, width / 2, colors.groove, colors.groove,
                     colors.groove);
    painter.Fill(dc, {left + width, top + width / 2, left + width + painter.Line(), bottom},
                 colors.milledSoft);
  }
}

// Grooves, slots and marks have no size of their own but their row's; only glass has corners to cut.
void PaintDecoration(HDC dc, const ControlInstance& item, const Painter& painter) {
  const RECT box = ToRect(item.place);
  switch (item.KindOf()) {
    case ControlKind::Glass:
      painter.Glass(dc, box, painter.Px(item.row->cut));
      break;
    case ControlKind::Dial:
      PaintDial(dc, box, painter);
      break;
    case ControlKind::Groove:
      painter.Groove(dc, box.left, box.top, box.right - box.left);
      break;
    case ControlKind::Slots:
      PaintSlots(dc, box, painter);
      break;
    case ControlKind::Mark:
      painter.DrawIcon(dc, Icon::ProgramMark, box.left, box.top, item.row->at.width, painter.Colors().text);
      break;
    default:
      break;
  }
}

// FrameRgn paints inwards from the region's edge, so that nothing falls outside of the window.
void FrameRegion(HDC dc, HRGN region, Color color, int width) {
  const HBRUSH brush = CreateSolidBrush(ToColorRef(color));
  FrameRgn(dc, region, brush, width, width);
  DeleteObject(brush);
}

// The outline's line and, just inside, the milled one.
void PaintOutline(HDC dc, HWND window, const Painter& painter, const RECT& client) {
  const int width = painter.Line();
  const HRGN outline = CreateRectRgn(0, 0, 0, 0);
  if (GetWindowRgn(window, outline) == ERROR) SetRectRgn(outline, 0, 0, client.right, client.bottom);
  FrameRegion(dc, outline, painter.Colors().outline, width);

  // The milled line follows the outline one line further inside, round every corner: what all four diagonal
  // shifts of the outline have in common.
  const HRGN inner = CreateRectRgn(0, 0, 0, 0);
  const HRGN moved = CreateRectRgn(0, 0, 0, 0);
  CombineRgn(inner, outline, nullptr, RGN_COPY);
  for (const POINT shift :
       {POINT{width, width}, POINT{width, -width}, POINT{-width, width}, POINT{-width, -width}}) {
    CombineRgn(moved, outline, nullptr, RGN_COPY);
    OffsetRgn(moved, shift.x, shift.y);
    CombineRgn(inner, inner, moved, RGN_AND);
  }
  FrameRegion(dc, inner, painter.Colors().milledInner, width);
  DeleteObject(moved);
  DeleteObject(inner);
  DeleteObject(outline);
}

// The line of the focus is the glass's own, outside of the edit's window.
void PaintEditGlass(HDC dc, const ControlInstance& item, const Painter& painter) {
  const RECT box = ToRect(item.place);
  painter.Glass(dc, box);
  if (!IsWindowEnabled(item.window)) {
    RECT inside = box;
    InflateRect(&inside, -painter.Line(), -painter.Line());
    painter.Fill(dc, inside, painter.Colors().buttonOff);
  }
  if (GetFocus() == item.window) painter.Frame(dc, box, painter.Colors().focus, painter.FocusLine());
}

}  // namespace

FormPaint::FormPaint(const FormWindow& form, const Faceplate& faceplate)
    : form_(form), faceplate_(faceplate) {}

FormPaint::~FormPaint() {
  DiscardGround();
  for (const HBRUSH brush : {glassBrush_, plateBrush_, offBrush_}) {
    if (brush) DeleteObject(brush);
  }
}

// Brushes that were handed out for WM_CTLCOLOR... are not kept by the system beyond that one painting, and
// may go.
std::unique_ptr<Painter> FormPaint::Renew(int dpi) {
  auto former = std::exchange(painter_, std::make_unique<Painter>(faceplate_.Colors(), dpi));
  const auto renew = [](HBRUSH& brush, Color color) {
    if (brush) DeleteObject(brush);
    brush = CreateSolidBrush(ToColorRef(color));
  };
  renew(glassBrush_, painter_->Colors().glass);
  renew(plateBrush_, painter_->Colors().plate);
  renew(offBrush_, painter_->Colors().buttonOff);
  DiscardGround();
  return former;
}

void FormPaint::DiscardGround() {
  if (!ground_) return;
  SelectObject(ground_, before_);
  DeleteObject(bitmap_);
  DeleteDC(ground_);
  ground_ = nullptr;
}

// A bitmap as large as the window. Painting it is slow and copying from it is not; the pointer over a button
// would else paint the whole plate.
HDC FormPaint::Ground() {
  if (ground_) return ground_;
  const HWND window = form_.Window();
  RECT client{};
  GetClientRect(window, &client);
  const HDC screen = GetDC(window);
  ground_ = CreateCompatibleDC(screen);
  bitmap_ = CreateCompatibleBitmap(screen, std::max<int>(1, client.right), std::max<int>(1, client.bottom));
  before_ = SelectObject(ground_, bitmap_);
  ReleaseDC(window, screen);
  PaintGround(client);
  return ground_;
}

// Decorations in the order of their rows: a panel stands before what lies on it.
void FormPaint::PaintGround(const RECT& client) const {
  const Painter& painter = *painter_;
  const int groove = form_.Design().titleGroove;
  painter.Gradient(ground_, client, painter.Colors().plateTop, painter.Colors().plateBottom);
  if (groove > 0) {
    painter.Groove(ground_, painter.Line(), painter.Px(groove), client.right - 2 * painter.Line());
  }
  for (const ControlInstance& item : form_.Controls().All()) {
    if (!item.shown) continue;
    if (IsDecoration(item.KindOf())) PaintDecoration(ground_, item, painter);
    if (item.KindOf() == ControlKind::TitleBar) {
      const int size = 18;
      painter.DrawIcon(ground_, Icon::ProgramMark, item.place.left - painter.Px(26), painter.Px(8), size,
                       painter.Colors().text);
    }
  }
  PaintOutline(ground_, form_.Window(), painter, client);
}

// Most windows of controls lie at whole pixels of the form; the corner is all that is needed.
void FormPaint::CopyGround(HDC dc, HWND control) {
  RECT box{};
  GetClientRect(control, &box);
  POINT corner{};
  MapWindowPoints(control, form_.Window(), &corner, 1);
  BitBlt(dc, 0, 0, box.right, box.bottom, Ground(), corner.x, corner.y, SRCCOPY);
}

// The children are cut out of the device context by WS_CLIPCHILDREN; here is what is between and around
// them.
void FormPaint::PaintWindow(HDC dc, const RECT& dirty) {
  const BufferedPaint buffer(dc, dirty);
  BitBlt(buffer.Dc(), dirty.left, dirty.top, dirty.right - dirty.left, dirty.bottom - dirty.top, Ground(),
         dirty.left, dirty.top, SRCCOPY);
  for (const ControlInstance& item : form_.Controls().All()) {
    if (!item.shown) continue;
    if (IsEdit(item.KindOf())) PaintEditGlass(buffer.Dc(), item, *painter_);
    if (IsFramedView(item.KindOf())) painter_->Glass(buffer.Dc(), ToRect(item.place));
  }
}

// How far a tab lies from the left end of the dial that it stands on.
int FormPaint::DialOffset(const ControlInstance& tab) const {
  for (const ControlInstance& item : form_.Controls().All()) {
    if (item.KindOf() == ControlKind::Dial) return static_cast<int>(tab.place.left - item.place.left);
  }
  return 0;
}

// The text, what is pressed and what is checked are asked of the control at every painting: the system and
// other programs change them too.
ButtonPicture FormPaint::PictureOf(const ControlInstance& item) const {
  ButtonPicture picture;
  picture.kind = item.KindOf();
  picture.secondary = item.Has(kSecondary);
  picture.text = TextOfWindow(item.window);
  picture.detail = Widen(item.detail);
  picture.icon = item.icon;
  picture.sort = item.sort;
  picture.noPrefix = item.Has(kNoPrefix);
  picture.hideAccel = !form_.Keys().ShowsAccessKeys();
  picture.focused = form_.Keys().ShowsFocus() && GetFocus() == item.window;
  picture.state.hover = item.hover;
  picture.state.pressed = (SendMessageW(item.window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
  picture.state.disabled = !IsWindowEnabled(item.window);
  picture.state.active = (IsToggle(item.KindOf()) || IsCheck(item.KindOf())) &&
                         SendMessageW(item.window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  picture.state.empty = item.emptySocket;
  if (picture.kind == ControlKind::TabButton) {
    picture.dialOffset = DialOffset(item);
    picture.needle = form_.Needle().On(item, picture.state.active);
  }
  return picture;
}

void FormPaint::PaintControl(const ControlInstance& item, HDC dc, const RECT& box) {
  const BufferedPaint buffer(dc, box);
  CopyGround(buffer.Dc(), item.window);
  if (IsText(item.KindOf())) {
    PaintText(buffer.Dc(), box, item, *painter_, form_.Keys().ShowsAccessKeys());
  } else if (item.KindOf() == ControlKind::Picture) {
    if (item.picture) item.picture(buffer.Dc(), box, *painter_);
  } else {
    PaintButton(buffer.Dc(), box, PictureOf(item), *painter_);
  }
}

// A control without a window is part of the ground, which is then painted anew.
void FormPaint::Repaint(const ControlInstance& item) {
  const HWND window = form_.Window();
  if (window && !IsWindowVisible(window)) {
    if (!item.Window()) DiscardGround();
    return;  // everything is painted when the form is shown
  }
  if (item.Window()) {
    RedrawWindow(item.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  } else if (window) {
    DiscardGround();
    InvalidateRect(window, nullptr, FALSE);
  }
}

// A disabled edit gets a static control's message. An open list has no disabled look: it cannot be opened.
LRESULT FormPaint::ColorControl(UINT message, HDC dc, HWND control, const ControlInstance* item) const {
  const FaceplateColors& colors = painter_->Colors();
  const bool enabled = IsWindowEnabled(control) != FALSE;
  const bool onPlate = item && item->KindOf() == ControlKind::ReadOnlyText && !item->Has(kOnGlass);
  SetTextColor(dc, ToColorRef(!enabled ? colors.textOff : onPlate ? colors.text : colors.glassText));
  if (onPlate) {
    SetBkColor(dc, ToColorRef(colors.plate));
    return reinterpret_cast<LRESULT>(plateBrush_);
  }
  const bool off = !enabled && message != WM_CTLCOLORLISTBOX;
  SetBkColor(dc, ToColorRef(off ? colors.buttonOff : colors.glass));
  return reinterpret_cast<LRESULT>(off ? offBrush_ : glassBrush_);
}

}  // namespace sonaro
