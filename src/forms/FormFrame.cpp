// What another window's frame does: the form is dragged and made larger by hand, maximised, and has a system
// menu. The system knows of a frame, so that it offers all this; nothing of it is seen.
#include <algorithm>
#include <array>

#include "forms/FormWindow.h"
#include "forms/Screen.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

int ToDesign(LONG pixels, int dpi) { return (static_cast<int>(pixels) * 96 + dpi / 2) / dpi; }

}  // namespace

// What Alt+Space opens: moving, sizing, minimising and closing by the keyboard.
void FormWindow::ShowSystemMenu() const {
  RECT place{};
  GetWindowRect(window_, &place);
  const HMENU menu = GetSystemMenu(window_, FALSE);
  const bool resizable = CanResize(design_, controls_.Layout());
  const bool zoomed = IsZoomed(window_) != FALSE;
  const auto enable = [menu](UINT command, bool enabled) {
    EnableMenuItem(menu, command, static_cast<UINT>(enabled ? MF_ENABLED : MF_GRAYED));
  };
  enable(SC_RESTORE, zoomed);
  enable(SC_MOVE, !zoomed);
  enable(SC_SIZE, resizable && !zoomed);
  enable(SC_MAXIMIZE, resizable && !zoomed);
  const BOOL command = TrackPopupMenu(menu, TPM_RETURNCMD, place.left, place.top, 0, window_, nullptr);
  if (command != 0) PostMessageW(window_, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
}

// A press on the background or a label drags the form. The glass around an edit is painted by the form but
// belongs to the edit for the user.
LRESULT FormWindow::HandlePointer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_RBUTTONUP || message == WM_MBUTTONUP) {
    if (!moving_) return DefDlgProcW(window_, message, wParam, lParam);
    // The move loop waits for the left button alone; a drag by another one would never end.
    PostMessageW(window_, WM_LBUTTONUP, 0, lParam);
    return 0;
  }
  const POINT at = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  for (const ControlInstance& item : controls_.All()) {
    const RECT glass = ToRect(item.place);
    if (!IsEdit(item.KindOf()) || !item.shown || !PtInRect(&glass, at)) continue;
    if (message == WM_LBUTTONDOWN && IsWindowEnabled(item.window)) SetFocus(item.window);
    return 0;
  }
  if (message == WM_LBUTTONDBLCLK && at.y < Theme().Px(design_.titleGroove) &&
      CanResize(design_, controls_.Layout())) {
    ToggleMaximised();
  } else if (design_.draggable) {
    Drag();
  }
  return 0;
}

// The loop lets messages in: another button that goes down meanwhile must not begin a second one inside it.
void FormWindow::Drag() {
  if (moving_) return;
  RECT before{};
  GetWindowRect(window_, &before);
  moving_ = true;
  ReleaseCapture();
  SendMessageA(window_, WM_NCLBUTTONDOWN, HTCAPTION, 0);  // returns when the system's move loop has ended
  moving_ = false;
  RECT after{};
  if (!window_ || !GetWindowRect(window_, &after)) return;
  if (form_ && !EqualRect(&before, &after)) form_->OnMoved();
}

// Of a form that can be made larger; false: the message is another's. Its whole window is client area, and
// the system must not draw the frame that it knows of.
bool FormWindow::HandleFrame(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
  answer = 0;
  switch (message) {
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
      return true;
    case WM_NCACTIVATE:
      answer = DefDlgProcW(window_, message, wParam, -1);  // -1: draws nothing
      return true;
    case WM_NCHITTEST:
      answer = HitOfFrame(lParam);
      return true;
    case WM_GETMINMAXINFO:
      LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return true;
    case WM_SIZE:
      if (wParam == SIZE_RESTORED || wParam == SIZE_MAXIMIZED) SizeChanged(wParam == SIZE_MAXIMIZED);
      return true;
    case WM_ENTERSIZEMOVE:
      sizing_ = true;
      return false;
    case WM_EXITSIZEMOVE:
      sizing_ = false;
      KeepSize();
      if (form_ && !moving_) form_->OnMoved();  // pulled at the left or upper edge it has another corner
      return false;
    default:
      return false;
  }
}

LRESULT FormWindow::HitOfFrame(LPARAM at) const {
  constexpr std::array<LRESULT, 11> kHits = {HTCLIENT, HTLEFT,       HTRIGHT,      HTCLIENT,
                                             HTTOP,    HTTOPLEFT,    HTTOPRIGHT,   HTCLIENT,
                                             HTBOTTOM, HTBOTTOMLEFT, HTBOTTOMRIGHT};
  RECT box{};
  if (IsZoomed(window_) || !GetWindowRect(window_, &box)) return HTCLIENT;
  const PixelRect place = ToPixelRect(box);
  return kHits[EdgeAt({place.Width(), place.Height()}, static_cast<short>(LOWORD(at)) - place.left,
                      static_cast<short>(HIWORD(at)) - place.top, Theme().Dpi())];
}

// Without a caption the system would maximise over the task bar. The place is told from the corner of the
// monitor.
void FormWindow::LimitSize(MINMAXINFO& limits) const {
  const PixelSize least = ScaleToDpi(controls_.Size(), Theme().Dpi());
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(MonitorOf(window_), &info);
  limits.ptMinTrackSize = {least.width, least.height};
  limits.ptMaxTrackSize.x = std::max<LONG>(limits.ptMaxTrackSize.x, least.width);
  limits.ptMaxTrackSize.y = std::max<LONG>(limits.ptMaxTrackSize.y, least.height);
  limits.ptMaxPosition = {info.rcWork.left - info.rcMonitor.left, info.rcWork.top - info.rcMonitor.top};
  limits.ptMaxSize = {info.rcWork.right - info.rcWork.left, info.rcWork.bottom - info.rcWork.top};
}

void FormWindow::ToggleMaximised() const {
  PostMessageW(window_, WM_SYSCOMMAND, IsZoomed(window_) ? SC_RESTORE : SC_MAXIMIZE, 0);
}

// The user's doing, as long as Resize does not run.
void FormWindow::SizeChanged(bool maximised) {
  if (fitting_) return;
  RECT client{};
  GetClientRect(window_, &client);
  user_.maximised = maximised;
  if (!maximised) {
    user_.size = {ToDesign(client.right, Theme().Dpi()), ToDesign(client.bottom, Theme().Dpi())};
  }
  FitToWindow();
  if (!sizing_) KeepSize();
}

// The screens may have become smaller since.
void FormWindow::ReadSize() {
  user_ = {};
  if (context_.settings && design_.keptSize) {
    user_ = ReadKeptSize(context_.settings->Get(*design_.keptSize)).value_or(KeptSize{});
  }
  user_.size = UsableSize(user_.size, controls_.Size(), WorkAreas(), Theme().Dpi());
  toMaximise_ = user_.maximised;
}

void FormWindow::KeepSize() const {
  if (!context_.settings || !design_.keptSize) return;
  const std::string text = WriteKeptSize(user_);
  if (context_.settings->Get(*design_.keptSize) != text) context_.settings->Set(*design_.keptSize, text);
}

// As a window without a frame it can neither be pulled nor maximised.
void FormWindow::UseFrame(bool resizable) {
  constexpr LONG_PTR kFrame = WS_THICKFRAME | WS_MAXIMIZEBOX;
  const LONG_PTR style = GetWindowLongPtrW(window_, GWL_STYLE);
  const LONG_PTR wanted = resizable ? style | kFrame : style & ~kFrame;
  if (wanted == style) return;
  SetWindowLongPtrW(window_, GWL_STYLE, wanted);
  SetWindowPos(window_, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A maximised window keeps its size, and is given it back first when the layout has one of its own. A
// minimised one takes its size when it is restored.
void FormWindow::Resize() {
  if (!window_) return;
  const bool resizable = CanResize(design_, controls_.Layout());
  fitting_ = true;
  if (IsZoomed(window_) && !resizable) {
    user_.maximised = false;
    ShowWindow(window_, SW_RESTORE);
  }
  UseFrame(resizable);
  if (!IsZoomed(window_) && !(resizable && IsIconic(window_))) {
    const PixelSize size = SizeWanted();
    SetWindowPos(window_, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  fitting_ = false;
  FitToWindow();
}

PixelSize FormWindow::SizeWanted() const {
  const bool resizable = CanResize(design_, controls_.Layout());
  return ScaleToDpi(resizable ? user_.size : controls_.Size(), Theme().Dpi());
}

void FormWindow::FitToWindow() {
  const int dpi = Theme().Dpi();
  const int layout = controls_.Layout();
  const PixelSize made = ScaleToDpi(OutlineSizeOf(design_, layout), dpi);
  RECT client{};
  GetClientRect(window_, &client);
  const PixelSize size = IsIconic(window_)
                             ? SizeWanted()
                             : PixelSize{static_cast<int>(client.right), static_cast<int>(client.bottom)};
  // The outline of the size before would cut off what the new one adds, also where the point file has no
  // outline.
  RECT shaped{};
  if (GetWindowRgnBox(window_, &shaped) != ERROR) SetWindowRgn(window_, nullptr, FALSE);
  ApplyWindowShape(window_, OutlineOf(design_, layout), context_.shape, dpi, {made.width, made.height});
  needle_.Stop();
  controls_.Place(Theme(), size);
  paint_.DiscardGround();
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

}  // namespace sonaro
