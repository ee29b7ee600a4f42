// What every control of a form does besides its class's own work: tell when the pointer is over it, repaint
// when its state or text changes, paint itself where the class has no owner drawing.
#include <windowsx.h>

#include <cstdlib>

#include "forms/FormWindow.h"
#include "forms/Guard.h"

namespace sonaro {
namespace {

// The system tells when the pointer goes only on request, once for each.
void TrackPointer(ControlInstance& item, FormWindow& form) {
  if (item.hover) return;
  item.hover = true;
  TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, item.window, 0};
  TrackMouseEvent(&track);
  form.Paint().Repaint(item);
}

// Buttons have no event for the beginning of a drag. Who begins it takes the mouse from the button, which
// then is not pressed any more.
void WatchForDrag(ControlInstance& item, FormWindow& form, UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (message == WM_LBUTTONDOWN) {
    item.pressedAt = at;
  } else if (message == WM_LBUTTONUP) {
    item.pressedAt.reset();
  } else if (message == WM_MOUSEMOVE && (wParam & MK_LBUTTON) != 0 && item.pressedAt) {
    const bool moved = std::abs(at.x - item.pressedAt->x) > GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(at.y - item.pressedAt->y) > GetSystemMetrics(SM_CYDRAG);
    if (!moved) return;
    item.pressedAt.reset();
    form.Handle({.id = item.Id(), .kind = FormEvent::Kind::BeginDrag});
  }
}

// For the classes that have no owner drawing: check boxes, radio buttons and the toggles made of them.
void PaintInWindow(FormWindow& form, const ControlInstance& item) {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(item.window, &paint);
  RECT box{};
  GetClientRect(item.window, &box);
  form.Paint().PaintControl(item, dc, box);
  EndPaint(item.window, &paint);
}

// Messages after which a control looks different. Some classes then draw at once and in their own way.
bool ChangesAppearance(UINT message) {
  switch (message) {
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_UPDATEUISTATE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case BM_SETCHECK:
    case BM_SETSTATE:
      return true;
    default:
      return false;
  }
}

// An edit paints itself, in the colours of WM_CTLCOLOREDIT; what changes with it is the glass around it,
// which is the form's.
void AfterChange(FormWindow& form, const ControlInstance& item, UINT message) {
  if (IsDrawn(item.KindOf())) {
    form.Paint().Repaint(item);
  } else if (IsEdit(item.KindOf()) && message != WM_SETTEXT) {
    const RECT box = {item.place.left, item.place.top, item.place.right, item.place.bottom};
    InvalidateRect(form.Window(), &box, FALSE);
  }
  // A label's text is a request from outside when the program did not set it itself.
  if (message == WM_SETTEXT && item.KindOf() == ControlKind::Label && !form.Controls().IsQuiet()) {
    form.Handle({.id = item.Id(), .kind = FormEvent::Kind::Change});
  }
  if (message == WM_SETTEXT && item.KindOf() == ControlKind::StateLabel) {
    constexpr DWORD kLiveRegionChanged = 0x8019;
    NotifyWinEvent(kLiveRegionChanged, item.window, OBJID_CLIENT, CHILDID_SELF);
  }
}

// Before the class: what it must not do. After it: what the form has to do about it.
LRESULT HandleControlMessage(FormWindow& form, ControlInstance& item, UINT message, WPARAM wParam,
                             LPARAM lParam) {
  const HWND window = item.window;
  const ControlKind kind = item.KindOf();
  form.Controls().RelayToTips(window, message, wParam, lParam);
  if (kind == ControlKind::GroupButton) WatchForDrag(item, form, message, wParam, lParam);
  switch (message) {
    case WM_MOUSEMOVE:
      if (IsButton(kind) || IsCheck(kind)) TrackPointer(item, form);
      break;
    case WM_MOUSELEAVE:
      item.hover = false;
      form.Paint().Repaint(item);
      break;
    case WM_SETCURSOR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (kind == ControlKind::HeaderButton && form.Headers().HandleHeader(item, message, lParam))
        return TRUE;
      break;
    case WM_ERASEBKGND:
      if (IsDrawn(kind)) return 1;
      break;
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
      // No frame: some systems measure several fonts to find that out, at every move and painting.
      if (IsDrawn(kind)) return 0;
      break;
    case WM_PAINT:
      if (!IsToggle(kind) && !IsCheck(kind)) break;
      PaintInWindow(form, item);
      return 0;
    case BM_SETSTYLE:
      // The dialog keyboard makes the focused button the default one by giving it another button style, which
      // would end its drawing by us.
      if (IsButton(kind)) return 0;
      break;
    case WM_CHAR:
      if (wParam == 1 && IsEdit(kind)) {  // Ctrl+A
        SendMessageW(window, EM_SETSEL, 0, -1);
        return 0;
      }
      break;
    default:
      break;
  }
  // A label's class would draw a new text at once, in its own way.
  const LRESULT answer = message == WM_SETTEXT && IsText(kind)
                             ? DefWindowProcW(window, message, wParam, lParam)
                         : IsCombo(kind) ? HandleComboMessage(item, message, wParam, lParam)
                                         : CallControl(item, message, wParam, lParam);
  if (item.bar && message == WM_PAINT && form.Window())
    item.bar->Update(form.Theme().LineHeight(TextStyleOf(*item.row)));
  if (ChangesAppearance(message) && form.Window()) AfterChange(form, item, message);
  return answer;
}

// The row lives as long as the window: rows are never moved, and those of a closed form stay until the next
// one is built. At the last message the form may be half gone, and the class's own work is all there is to
// do.
LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    auto& item = *reinterpret_cast<ControlInstance*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCDESTROY) return CallWindowProcW(item.original, window, message, wParam, lParam);
    return HandleControlMessage(*item.form, item, message, wParam, lParam);
  });
}

}  // namespace

LRESULT CallControl(const ControlInstance& item, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcW(item.original, item.window, message, wParam, lParam);
}

// Not by SetWindowSubclass: it looks up a property of the window for every message, which on some systems
// costs more than the message.
void WatchControl(ControlInstance& item, HWND window) {
  item.window = window;
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&item));
  item.original = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProcedure)));
}

}  // namespace sonaro
