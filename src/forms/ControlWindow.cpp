// What every control of a form does besides its class's own work: tell when the pointer is over it, repaint
// when its state or text changes, paint itself where the class has no owner drawing.
#include "forms/FormParts.h"
#include "forms/Guard.h"

namespace sonaro {
namespace {

bool IsDrawn(Kind kind) { return IsText(kind) || IsKey(kind) || IsCheck(kind) || kind == Kind::Picture; }

void TrackPointer(FormItem& item, FormParts& parts) {
  if (item.hover) return;
  item.hover = true;
  TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, item.window, 0};
  TrackMouseEvent(&track);
  parts.RepaintItem(item);
}

void PaintInWindow(FormParts& parts, const FormItem& item) {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(item.window, &paint);
  RECT box{};
  GetClientRect(item.window, &box);
  parts.PaintItem(item, dc, box);
  EndPaint(item.window, &paint);
}

// Messages after which a control looks different. Some classes then draw at once and in their own way.
bool ChangesLook(UINT message) {
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

void AfterChange(FormParts& parts, const FormItem& item, UINT message) {
  if (IsDrawn(item.KindOf())) {
    parts.RepaintItem(item);
  } else if (IsEdit(item.KindOf()) && message != WM_SETTEXT) {
    const RECT box = {item.place.left, item.place.top, item.place.right, item.place.bottom};
    InvalidateRect(parts.window, &box, FALSE);
  }
  if (message == WM_SETTEXT && item.KindOf() == Kind::StateLabel) {
    constexpr DWORD kLiveRegionChanged = 0x8019;
    NotifyWinEvent(kLiveRegionChanged, item.window, OBJID_CLIENT, CHILDID_SELF);
  }
}

LRESULT HandleControlMessage(FormParts& parts, std::size_t index, UINT message, WPARAM wParam,
                             LPARAM lParam) {
  FormItem& item = parts.items[index];
  const HWND window = item.window;
  const Kind kind = item.KindOf();
  switch (message) {
    case WM_MOUSEMOVE:
      if (IsKey(kind) || IsCheck(kind)) TrackPointer(item, parts);
      break;
    case WM_MOUSELEAVE:
      item.hover = false;
      parts.RepaintItem(item);
      break;
    case WM_ERASEBKGND:
      if (IsDrawn(kind)) return 1;
      break;
    case WM_PAINT:
      if (!IsToggle(kind) && !IsCheck(kind)) break;
      PaintInWindow(parts, item);
      return 0;
    case BM_SETSTYLE:
      // The dialog keyboard makes the focused key the default one by giving it another button style, which
      // would end its drawing by us.
      if (IsKey(kind)) return 0;
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
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  if (ChangesLook(message) && parts.window) AfterChange(parts, item, message);
  return answer;
}

LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR index,
                                  DWORD_PTR parts) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    if (message == WM_NCDESTROY) {
      RemoveWindowSubclass(window, ControlProcedure, index);
      return DefSubclassProc(window, message, wParam, lParam);
    }
    const auto kept = reinterpret_cast<FormParts*>(parts)->shared_from_this();
    return HandleControlMessage(*kept, index, message, wParam, lParam);
  });
}

}  // namespace

void WatchControl(FormParts& parts, FormItem& item) {
  const auto index = static_cast<UINT_PTR>(&item - parts.items.data());
  SetWindowSubclass(item.window, ControlProcedure, index, reinterpret_cast<DWORD_PTR>(&parts));
}

}  // namespace sonaro
