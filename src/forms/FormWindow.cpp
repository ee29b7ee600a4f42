// The one window procedure of all forms, and what it does with each message.
#include <algorithm>

#include "forms/ControlIds.h"
#include "forms/Dpi.h"
#include "forms/FormImpl.h"
#include "forms/Guard.h"
#include "forms/HighContrast.h"
#include "forms/WideText.h"
#include "forms/controls/ToolTips.h"

namespace sonaro {
namespace {

constexpr UINT kDestroyNow = WM_APP + 0x3F00;  // posted by Close from inside a handler

// Frees what a destroyed form leaves behind once the calls that are still running in it have returned: a
// message to a window of its own comes after them, whatever loop runs.
LRESULT CALLBACK ReaperProcedure(HWND reaper, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR held) noexcept {
  if (message == kDestroyNow) {
    DestroyWindow(reaper);
    return 0;
  }
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(reaper, ReaperProcedure, id);
    delete reinterpret_cast<std::shared_ptr<FormImpl>*>(held);
  }
  return DefSubclassProc(reaper, message, wParam, lParam);
}

void FreeLater(std::shared_ptr<FormImpl> parts) {
  const HWND reaper = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                      GetModuleHandleW(nullptr), nullptr);
  if (!reaper) return;
  auto held = std::make_unique<std::shared_ptr<FormImpl>>(std::move(parts));
  SetWindowSubclass(reaper, ReaperProcedure, 1, reinterpret_cast<DWORD_PTR>(held.release()));
  PostMessageW(reaper, kDestroyNow, 0, 0);
}

}  // namespace

void LetGo(std::shared_ptr<FormImpl> parts) {
  if (!parts->form && parts->depth == 0 && parts.use_count() == 1) FreeLater(std::move(parts));
}

namespace {

// What Alt+Space opens: moving, minimising and closing by the keyboard.
void ShowSystemMenu(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  const BOOL command =
      TrackPopupMenu(GetSystemMenu(window, FALSE), TPM_RETURNCMD, place.left, place.top, 0, window, nullptr);
  if (command != 0) PostMessageW(window, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
}

POINT PointOf(LPARAM lParam) {
  return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

}  // namespace

FormImpl* FormImplOf(HWND window) {
  if (!window || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
  if (GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&FormProcedure)) return nullptr;
  return reinterpret_cast<FormImpl*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    auto* known = reinterpret_cast<FormImpl*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!known) return DefDlgProcW(window, message, wParam, lParam);

    auto parts = known->shared_from_this();
    struct Depth {
      explicit Depth(int& counted) : depth(counted) { ++depth; }
      ~Depth() { --depth; }
      int& depth;
    };
    LRESULT answer = 0;
    {
      const Depth deeper(parts->depth);
      answer = parts->HandleMessage(message, wParam, lParam);
    }
    LetGo(std::move(parts));
    return answer;
  });
}

LRESULT FormImpl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND self = window;
  LRESULT answer = 0;
  if (form && form->OnMessage(message, wParam, lParam, answer)) return answer;
  RelayMouse(tips, window, message, wParam, lParam);
  switch (message) {
    case WM_COMMAND:
      return HandleCommand(wParam, lParam);
    case WM_NOTIFY:
      return HandleNotice(*reinterpret_cast<NMHDR*>(lParam));
    case WM_TIMER:
      if (!StepNeedle(wParam)) RunTimer(static_cast<int>(wParam));
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
      return HandleDrawing(message, lParam);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
      return HandleControlColor(message, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      return HandlePointer(message, lParam);
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      if (!moving) break;
      // The move loop waits for the left button alone; a drag by another one would never end.
      PostMessageW(window, WM_LBUTTONUP, 0, lParam);
      return 0;
    case WM_UPDATEUISTATE:
      if (LOWORD(wParam) == UIS_CLEAR) {
        ShowCues((HIWORD(wParam) & UISF_HIDEFOCUS) != 0, (HIWORD(wParam) & UISF_HIDEACCEL) != 0);
      }
      break;
    case WM_CONTEXTMENU:
      return HandleContextMenu(reinterpret_cast<HWND>(wParam), lParam);
    case WM_SYSCOMMAND:
      if ((wParam & 0xFFF0) != SC_KEYMENU) break;
      // The system would walk along a menu bar that is not there, and draw its picture into the window's
      // corner.
      if (lParam == L' ') ShowSystemMenu(window);
      return 0;
    case WM_CLOSE:
      // A form that waits for the answer of a modal one cannot go before it, whoever asks.
      if (IsWindowEnabled(window)) CloseRequest();
      return 0;
    case kDestroyNow:
      if (closing) Destroy();
      return 0;
    case WM_NEXTDLGCTL:
      UpdateTabStops();
      break;
    case DM_GETDEFID: {
      const ControlInstance* primary = ShownPrimary();
      return primary ? MAKELRESULT(primary->Id(), DC_HASDEFID) : 0;
    }
    case WM_DPICHANGED:
    case WM_DISPLAYCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      return HandleSurroundings(message, wParam, lParam);
    case WM_DESTROY:
      if (!closing && form) form->OnUnload();  // the system destroys it together with its owner
      break;
    case WM_NCDESTROY: {
      answer = DefDlgProcW(self, message, wParam, lParam);
      Forget();
      return answer;
    }
    default:
      break;
  }
  return DefDlgProcW(self, message, wParam, lParam);
}

void FormImpl::Load() {
  // Newer systems would scale the controls of a dialog by themselves; the tables are the only hand on them.
  using SetBehaviour = BOOL(WINAPI*)(HWND, int, int);
  const auto setBehaviour = reinterpret_cast<SetBehaviour>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetDialogDpiChangeBehavior")));
  constexpr int kDisableAll = 1;
  if (setBehaviour) setBehaviour(window, kDisableAll, kDisableAll);

  SetWindowTextW(window, Widen(TextOf(design.caption)).c_str());
  BuildControls();
  UseDpi(painter->Dpi());
  BOOL cues = FALSE;
  SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &cues, 0);
  const FormImpl* owner = FormImplOf(GetWindow(window, GW_OWNER));
  showFocus = cues || (owner && owner->showFocus);
  showAccessKeys = cues || (owner && owner->showAccessKeys);
  form->OnLoad();
}

void FormImpl::ShowCues(bool focus, bool accessKeys) {
  if ((showFocus || !focus) && (showAccessKeys || !accessKeys)) return;
  showFocus = showFocus || focus;
  showAccessKeys = showAccessKeys || accessKeys;
  for (const ControlInstance& item : items) {
    if (item.window && !IsEdit(item.KindOf())) InvalidateRect(item.window, nullptr, FALSE);
  }
}

void FormImpl::Destroy() {
  if (window) DestroyWindow(window);
}

void FormImpl::DestroySoon() { PostMessageW(window, kDestroyNow, 0, 0); }

void FormImpl::Forget() {
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  window = nullptr;
  tips = nullptr;
  needleTab = 0;
  needleAt.reset();
  backdrop.Discard();
  for (ControlInstance& item : items) item.window = nullptr;
}

LRESULT FormImpl::HandleCommand(WPARAM wParam, LPARAM lParam) {
  const int id = LOWORD(wParam);
  const int code = HIWORD(wParam);
  if (lParam == 0) {
    if (id == IDCANCEL) {
      Escape();
    } else if (id != IDOK) {
      Press(id);
    }
    return 0;
  }
  ControlInstance* item = Find(reinterpret_cast<HWND>(lParam));
  if (!item) return 0;
  if (IsButton(item->KindOf()) || IsCheck(item->KindOf())) {
    // A fast second click comes as a double click; it is a click like any other.
    if (code != BN_CLICKED && code != BN_DBLCLK) return 0;
    if (context.clickSound) context.clickSound();
    Handle({.id = item->Id()});
  } else if (IsCombo(item->KindOf())) {
    ComboNotice(*item, code);
  } else {
    EditNotice(*item, code);
  }
  return 0;
}

void FormImpl::EditNotice(ControlInstance& item, int code) {
  using Event = FormEvent::Kind;
  if (code == EN_CHANGE && !quiet) Handle({.id = item.Id(), .kind = Event::Change});
}

void FormImpl::ComboNotice(ControlInstance& item, int code) {
  using Event = FormEvent::Kind;
  InvalidateRect(item.window, nullptr, FALSE);
  if (code == CBN_SELCHANGE) {
    if (item.KindOf() == ControlKind::ComboEdit) {
      // The system sets the edit field only after this notice; a handler would read the old text.
      const int row = static_cast<int>(SendMessageW(item.window, CB_GETCURSEL, 0, 0));
      SetWindowTextW(item.window, ComboRowText(item.window, row).c_str());
    }
    Handle({.id = item.Id(), .kind = Event::SelChange});
  } else if (code == CBN_EDITCHANGE && !quiet) {
    Handle({.id = item.Id(), .kind = Event::Change});
  }
}

LRESULT FormImpl::HandleNotice(NMHDR& notice) {
  ControlInstance* item = Find(notice.hwndFrom);
  if (!item) return 0;
  LRESULT answer = 0;
  if (item->view) return item->view->OnNotify(notice, answer) ? answer : 0;
  if (notice.code == NM_CUSTOMDRAW && (IsToggle(item->KindOf()) || IsCheck(item->KindOf()))) {
    const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(notice);
    RECT box{};
    GetClientRect(item->window, &box);
    PaintItem(*item, draw.hdc, box);
    return CDRF_SKIPDEFAULT;
  }
  if (item->KindOf() == ControlKind::MonthCalendar && notice.code == static_cast<UINT>(MCN_SELCHANGE)) {
    Handle({.id = item->Id(), .kind = FormEvent::Kind::SelChange});
  }
  return 0;
}

LRESULT FormImpl::HandleDrawing(UINT message, LPARAM lParam) {
  if (message == WM_PAINT) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    PaintWindow(dc, paint.rcPaint);
    EndPaint(window, &paint);
    return 0;
  }
  if (message == WM_MEASUREITEM) {
    reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = static_cast<UINT>(painter->Px(22));
    return TRUE;
  }
  const auto& draw = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
  const ControlInstance* item = Find(draw.hwndItem);
  if (!item) return FALSE;
  if (draw.CtlType == ODT_COMBOBOX) {
    PaintComboRow(*this, draw);
  } else {
    PaintItem(*item, draw.hDC, draw.rcItem);
  }
  return TRUE;
}

LRESULT FormImpl::HandleControlColor(UINT message, HDC dc, HWND control) {
  const FaceplateColors& colors = painter->Colors();
  const ControlInstance* item = Find(control);
  const bool enabled = IsWindowEnabled(control) != FALSE;
  const bool onPlate = item && item->KindOf() == ControlKind::ReadOnlyText && !item->Has(kOnGlass);
  SetTextColor(dc, ToColorRef(!enabled ? colors.textOff : onPlate ? colors.text : colors.glassText));
  if (onPlate) {
    SetBkColor(dc, ToColorRef(colors.plate));
    return reinterpret_cast<LRESULT>(plateBrush);
  }
  const bool off = !enabled && message != WM_CTLCOLORLISTBOX;
  SetBkColor(dc, ToColorRef(off ? colors.buttonOff : colors.glass));
  return reinterpret_cast<LRESULT>(off ? offBrush : glassBrush);
}

LRESULT FormImpl::HandlePointer(UINT message, LPARAM lParam) {
  const POINT at = PointOf(lParam);
  for (const ControlInstance& item : items) {
    const RECT glass = ToRect(item.place);
    if (!IsEdit(item.KindOf()) || !item.shown || !PtInRect(&glass, at)) continue;
    if (message == WM_LBUTTONDOWN && IsWindowEnabled(item.window)) SetFocus(item.window);
    return 0;
  }
  if (design.draggable) Drag();
  return 0;
}

// The loop lets messages in: another button that goes down meanwhile must not begin a second one inside it.
void FormImpl::Drag() {
  if (moving) return;
  RECT before{};
  GetWindowRect(window, &before);
  moving = true;
  ReleaseCapture();
  SendMessageA(window, WM_NCLBUTTONDOWN, HTCAPTION, 0);  // returns when the system's move loop has ended
  moving = false;
  RECT after{};
  if (!window || !GetWindowRect(window, &after)) return;
  if (form && !EqualRect(&before, &after)) form->OnMoved();
}

LRESULT FormImpl::HandleContextMenu(HWND control, LPARAM lParam) {
  const ControlInstance* item = Find(control);
  if (!item || item->view) return 0;
  POINT at = PointOf(lParam);
  if (lParam == -1) {  // by the keyboard
    RECT box{};
    GetWindowRect(control, &box);
    at = {box.left, box.bottom};
  }
  Handle({.id = item->Id(), .kind = FormEvent::Kind::ContextMenu, .point = at});
  return 0;
}

LRESULT FormImpl::HandleSurroundings(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DPICHANGED) {
    const RECT& suggested = *reinterpret_cast<const RECT*>(lParam);
    SetWindowPos(window, nullptr, suggested.left, suggested.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    UseDpi(HIWORD(wParam));
    return 0;
  }
  if (message == WM_DISPLAYCHANGE) {
    RECT box{};
    GetWindowRect(window, &box);
    if (form) form->MoveToPixels(box.left, box.top);
    return 0;
  }
  if (message != WM_SETTINGCHANGE || wParam == SPI_SETHIGHCONTRAST) {
    FollowHighContrast(context.faceplate);
    RenewTheme();
  }
  return DefDlgProcW(window, message, wParam, lParam);
}

}  // namespace sonaro
