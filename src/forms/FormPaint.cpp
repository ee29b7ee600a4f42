// Painting of a form: the backdrop, texts, glass of the edits, and the entry to the buttons' painting.
#include <algorithm>

#include "forms/Dpi.h"
#include "forms/FormImpl.h"
#include "forms/WideText.h"
#include "forms/controls/TabDial.h"

namespace sonaro {
namespace {

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

void PaintText(const FormImpl& parts, const ControlInstance& item, HDC dc, const RECT& box) {
  const FaceplateColors& colors = parts.painter->Colors();
  const TextStyle style = TextStyleOf(*item.row);
  UINT format = 0;
  if (item.Has(kRightAligned)) format |= DT_RIGHT;
  if (item.Has(kCentred)) format |= DT_CENTER;
  if (item.Has(kWrap)) format |= DT_WORDBREAK;
  if (item.KindOf() != ControlKind::Label || item.Has(kNoPrefix)) {
    format |= DT_NOPREFIX;
  } else if (!parts.showAccessKeys) {
    format |= DT_HIDEPREFIX;
  }
  const Color color = IsWindowEnabled(item.window) ? InkColor(item, colors) : colors.textOff;
  if (item.icon != Icon::None) {  // as large as its row is wide
    parts.painter->DrawIcon(dc, item.icon, box.left, box.top, item.row->at.width, color);
    return;
  }
  parts.painter->Text(dc, box, TextOfWindow(item.window), style, color, format);
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

void FrameRegion(HDC dc, HRGN region, Color color, int width) {
  const HBRUSH brush = CreateSolidBrush(ToColorRef(color));
  FrameRgn(dc, region, brush, width, width);
  DeleteObject(brush);
}

// The outline's line and, just inside, the milled one.
void PaintOutline(HDC dc, const FormImpl& parts, const RECT& client) {
  const int width = parts.painter->Line();
  const HRGN outline = CreateRectRgn(0, 0, 0, 0);
  if (GetWindowRgn(parts.window, outline) == ERROR) SetRectRgn(outline, 0, 0, client.right, client.bottom);
  FrameRegion(dc, outline, parts.painter->Colors().outline, width);

  const HRGN inner = CreateRectRgn(0, 0, 0, 0);
  const HRGN moved = CreateRectRgn(0, 0, 0, 0);
  CombineRgn(inner, outline, nullptr, RGN_COPY);
  for (const POINT shift :
       {POINT{width, width}, POINT{width, -width}, POINT{-width, width}, POINT{-width, -width}}) {
    CombineRgn(moved, outline, nullptr, RGN_COPY);
    OffsetRgn(moved, shift.x, shift.y);
    CombineRgn(inner, inner, moved, RGN_AND);
  }
  FrameRegion(dc, inner, parts.painter->Colors().milledInner, width);
  DeleteObject(moved);
  DeleteObject(inner);
  DeleteObject(outline);
}

void PaintBackdropContents(HDC dc, const FormImpl& parts, const RECT& client) {
  const Painter& painter = *parts.painter;
  painter.Gradient(dc, client, painter.Colors().plateTop, painter.Colors().plateBottom);
  if (parts.design.titleGroove > 0) {
    painter.Groove(dc, painter.Line(), painter.Px(parts.design.titleGroove),
                   client.right - 2 * painter.Line());
  }
  for (const ControlInstance& item : parts.items) {
    if (!item.shown) continue;
    if (IsDecoration(item.KindOf())) PaintDecoration(dc, item, painter);
    if (item.KindOf() == ControlKind::TitleBar) {
      const int size = 18;
      painter.DrawIcon(dc, Icon::ProgramMark, item.place.left - painter.Px(26), painter.Px(8), size,
                       painter.Colors().text);
    }
  }
  PaintOutline(dc, parts, client);
}

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

void Backdrop::Discard() {
  if (!dc_) return;
  SelectObject(dc_, before_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
  dc_ = nullptr;
}

HDC Backdrop::Get(const FormImpl& parts) {
  if (dc_) return dc_;
  RECT client{};
  GetClientRect(parts.window, &client);
  const HDC screen = GetDC(parts.window);
  dc_ = CreateCompatibleDC(screen);
  bitmap_ = CreateCompatibleBitmap(screen, std::max<int>(1, client.right), std::max<int>(1, client.bottom));
  before_ = SelectObject(dc_, bitmap_);
  ReleaseDC(parts.window, screen);
  PaintBackdropContents(dc_, parts, client);
  return dc_;
}

void FormImpl::PaintBackdrop(HDC dc, HWND control) {
  RECT box{};
  GetClientRect(control, &box);
  POINT corner{};
  MapWindowPoints(control, window, &corner, 1);
  BitBlt(dc, 0, 0, box.right, box.bottom, backdrop.Get(*this), corner.x, corner.y, SRCCOPY);
}

void FormImpl::PaintWindow(HDC dc, const RECT& dirty) {
  const BufferedPaint buffer(dc, dirty);
  BitBlt(buffer.Dc(), dirty.left, dirty.top, dirty.right - dirty.left, dirty.bottom - dirty.top,
         backdrop.Get(*this), dirty.left, dirty.top, SRCCOPY);
  for (const ControlInstance& item : items) {
    if (!item.shown) continue;
    if (IsEdit(item.KindOf())) PaintEditGlass(buffer.Dc(), item, *painter);
    if (IsFramedView(item.KindOf())) painter->Glass(buffer.Dc(), ToRect(item.place));
  }
}

// How far a tab lies from the left end of the dial that it stands on.
int FormImpl::DialOffset(const ControlInstance& tab) const {
  for (const ControlInstance& item : items) {
    if (item.KindOf() == ControlKind::Dial) return static_cast<int>(tab.place.left - item.place.left);
  }
  return 0;
}

ButtonPicture FormImpl::PictureOf(const ControlInstance& item) const {
  ButtonPicture key;
  key.kind = item.KindOf();
  key.secondary = item.Has(kSecondary);
  key.text = TextOfWindow(item.window);
  key.detail = Widen(item.detail);
  key.icon = item.icon;
  key.sort = item.sort;
  key.noPrefix = item.Has(kNoPrefix);
  key.hideAccel = !showAccessKeys;
  key.focused = showFocus && GetFocus() == item.window;
  key.state.hover = item.hover;
  key.state.pressed = (SendMessageW(item.window, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
  key.state.disabled = !IsWindowEnabled(item.window);
  key.state.active = (IsToggle(item.KindOf()) || IsCheck(item.KindOf())) &&
                     SendMessageW(item.window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  key.state.empty = item.emptySocket;
  if (key.kind == ControlKind::TabButton) {
    key.dialOffset = DialOffset(item);
    key.needle = NeedleOn(item, key.state.active);
  }
  return key;
}

void FormImpl::PaintItem(const ControlInstance& item, HDC dc, const RECT& box) {
  const BufferedPaint buffer(dc, box);
  PaintBackdrop(buffer.Dc(), item.window);
  if (IsText(item.KindOf())) {
    PaintText(*this, item, buffer.Dc(), box);
  } else if (item.KindOf() == ControlKind::Picture) {
    if (item.picture) item.picture(buffer.Dc(), box, *painter);
  } else {
    PaintButton(buffer.Dc(), box, PictureOf(item), *painter);
  }
}

void FormImpl::RepaintItem(const ControlInstance& item) {
  if (window && !IsWindowVisible(window)) {
    if (!item.Window()) backdrop.Discard();
    return;  // everything is painted when the form is shown
  }
  if (item.Window()) {
    RedrawWindow(item.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  } else if (window) {
    backdrop.Discard();
    InvalidateRect(window, nullptr, FALSE);
  }
}

}  // namespace sonaro
