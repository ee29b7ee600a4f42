// Theme, size and place of a form and its controls: at creation, when the layout changes, at another dpi.
#include <windows.h>

#include <uxtheme.h>

#include <algorithm>

#include "faceplate/Faceplate.h"
#include "forms/Dpi.h"
#include "forms/FormImpl.h"
#include "forms/WideText.h"
#include "forms/WindowShape.h"
#include "platform/SystemFunction.h"

namespace sonaro {
namespace {

void RenewBrush(HBRUSH& brush, Color color) {
  if (brush) DeleteObject(brush);
  brush = CreateSolidBrush(ToColorRef(color));
}

// A themed calendar ignores colours. The title's ground is also that of the chosen day, on which the month's
// ground is the text, and the colour of the weekdays.
void ColourCalendar(HWND calendar, const FaceplateColors& colors) {
  static const auto setTheme =
      reinterpret_cast<decltype(&SetWindowTheme)>(SystemFunction(L"uxtheme.dll", "SetWindowTheme"));
  if (setTheme) setTheme(calendar, L"", L"");
  MonthCal_SetColor(calendar, MCSC_BACKGROUND, ToColorRef(colors.glass));
  MonthCal_SetColor(calendar, MCSC_MONTHBK, ToColorRef(colors.glass));
  MonthCal_SetColor(calendar, MCSC_TEXT, ToColorRef(colors.glassText));
  MonthCal_SetColor(calendar, MCSC_TITLEBK, ToColorRef(colors.accent));
  MonthCal_SetColor(calendar, MCSC_TITLETEXT, ToColorRef(colors.onAccent));
  MonthCal_SetColor(calendar, MCSC_TRAILINGTEXT, ToColorRef(colors.textOff));
}

bool IsUsable(const ControlInstance& item) { return item.shown && IsWindowEnabled(item.window); }

void SetTabStop(HWND control, bool stop) {
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  const LONG_PTR wanted = stop ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP);
  if (wanted != style) SetWindowLongPtrW(control, GWL_STYLE, wanted);
}

}  // namespace

DesignSize FormImpl::Size() const { return grown.width > 0 ? grown : SizeOf(design, layout); }

void FormImpl::GrowFor(const ControlInstance& label, std::string_view text) {
  const DesignRect* at = BoundsIn(design, layout, *label.row);
  if (!at) return;
  const Painter asDesigned(FaceplateColors{}, 96);
  const int needed = asDesigned.WrappedHeight(Widen(text), TextStyleOf(*label.row), at->width);
  const DesignSize size = SizeOf(design, layout);
  grown = {size.width, size.height + std::max(0, needed - at->height)};
  if (window) ResizeWindow();
}

void FormImpl::ChooseDpi(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(monitor, &info);
  const PixelRect room = ToPixelRect(info.rcWork);
  MakePainter(FittingDpi(Size(), {room.Width(), room.Height()}, DpiOfMonitor(monitor)));
}

void FormImpl::MakePainter(int dpi) {
  painter = std::make_unique<Painter>(context.faceplate.Colors(), dpi);
  RenewBrush(glassBrush, painter->Colors().glass);
  RenewBrush(plateBrush, painter->Colors().plate);
  RenewBrush(offBrush, painter->Colors().buttonOff);
}

void FormImpl::UseDpi(int dpi, Fit fit) {
  const PixelRect room = WorkAreaOf(window);
  const int fitting = fit == Fit::Yes ? FittingDpi(Size(), {room.Width(), room.Height()}, dpi) : dpi;
  const auto old = std::move(painter);  // its fonts are in use until the controls have the new ones
  MakePainter(fitting);
  backdrop.Discard();
  for (ControlInstance& item : items) {
    if (item.view) item.view->ThemeChanged();
    if (!item.window) continue;
    SendMessageW(item.window, WM_SETFONT, reinterpret_cast<WPARAM>(painter->Font(TextStyleOf(*item.row))),
                 FALSE);
    if (IsEdit(item.KindOf()) || item.KindOf() == ControlKind::ReadOnlyText) {
      SendMessageW(item.window, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    }
    if (item.KindOf() == ControlKind::MonthCalendar) ColourCalendar(item.window, painter->Colors());
  }
  ResizeWindow();
}

void FormImpl::RenewTheme() { UseDpi(painter->Dpi()); }

void FormImpl::ResizeWindow() {
  const int dpi = painter->Dpi();
  const PixelSize made = ScaleToDpi(OutlineSizeOf(design, layout), dpi);
  const PixelSize size = ScaleToDpi(Size(), dpi);
  SetWindowPos(window, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  RECT shaped{};
  if (GetWindowRgnBox(window, &shaped) != ERROR) SetWindowRgn(window, nullptr, FALSE);
  ApplyWindowShape(window, OutlineOf(design, layout), context.shape, dpi, {made.width, made.height});
  PlaceControls();
}

void FormImpl::PlaceControls() {
  StopNeedle();
  const int dpi = painter->Dpi();
  const DesignSize made = SizeOf(design, layout);
  const PixelSize client = ScaleToDpi(Size(), dpi);
  for (ControlInstance& item : items) {
    const DesignRect* at = BoundsIn(design, layout, *item.row);
    if (at) {
      item.place = Arrange(*at, item.row->anchors, made, client, dpi);
      const RECT box = WindowBox(item);
      if (item.view) {
        item.view->MoveTo(box);
      } else if (IsCombo(item.KindOf())) {
        SizeCombo(*this, item);
      } else if (item.window) {
        SetWindowPos(item.window, nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        if (item.bar) PlaceLinesBar(*this, item);
        if (tips && IsText(item.KindOf())) PlaceTip(item);
      }
    }
    ShowOrHide(item);
  }
  backdrop.Discard();
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

RECT FormImpl::WindowBox(const ControlInstance& item) const {
  RECT box = ToRect(item.place);
  const auto px = [&](int design96) { return painter->Px(design96); };
  if (IsCheck(item.KindOf())) box.left -= px(kMarkMargin);
  if (HasLines(item.KindOf())) box.right -= px(ScrollBar::kDesignWidth);
  if (!IsEdit(item.KindOf())) return box;
  box.left += px(8);
  box.right -= px(6);
  if (item.KindOf() == ControlKind::Edit) {
    // The font decides: a fixed inset would cut it off at some dpi.
    const int height = painter->LineHeight(TextStyleOf(*item.row));
    box.top += (box.bottom - box.top - height) / 2;
    box.bottom = box.top + height;
  } else {
    box.top += px(6);
    box.bottom -= px(6);
  }
  return box;
}

void FormImpl::ShowOrHide(ControlInstance& item) {
  const bool wasShown = item.shown;
  item.shown = item.wanted && !hiddenPanes[item.row->pane] && BoundsIn(design, layout, *item.row) != nullptr;
  if (!item.shown && Focused() == &item) SendMessageW(window, WM_NEXTDLGCTL, 0, FALSE);
  if (item.view) {
    item.view->SetShown(item.shown);
  } else if (item.window) {
    ShowWindow(item.window, item.shown ? SW_SHOWNA : SW_HIDE);
    if (item.bar) item.bar->SetShown(item.shown);
  }
  if (wasShown == item.shown) return;
  if (IsDecoration(item.KindOf())) backdrop.Discard();
  if (!item.window || IsEdit(item.KindOf())) {
    RECT box = ToRect(item.place);
    InflateRect(&box, 2, 2);
    RedrawWindow(window, &box, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
}

void FormImpl::UpdateTabStops() {
  const HWND focus = GetFocus();
  const auto rank = [&](const ControlInstance& item) {
    if (focus == item.window) return 2;  // Tab goes on from where the arrow keys have led
    return SendMessageW(item.window, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
  };
  for (std::size_t first = 0; first < items.size();) {
    const std::span<ControlInstance> group = GroupOf(items[first]);
    first += group.size();
    if (group.size() < 2) continue;
    const ControlInstance* stop = nullptr;
    for (const ControlInstance& item : group) {
      if (IsUsable(item) && (!stop || rank(item) > rank(*stop))) stop = &item;
    }
    for (const ControlInstance& item : group) SetTabStop(item.window, &item == stop);
  }
}

}  // namespace sonaro
