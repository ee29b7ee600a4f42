// The one window procedure of all forms, what it does with each message, and the handlers of the event
// tables.
#include "forms/FormWindow.h"

#include "forms/ControlIds.h"
#include "forms/Guard.h"
#include "forms/Screen.h"
#include "forms/WideText.h"
#include "settings/Strings.h"

namespace sonaro {

// By the procedure and not by the class: each design has a window class of its own. A window of another
// thread is not looked into, its form may be ending there.
FormWindow* FormWindow::Of(HWND window) {
  if (!window || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
  if (GetWindowLongPtrW(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&Procedure)) return nullptr;
  return reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

// Before the window knows its form, and after it has forgotten it, messages go to the dialog's default:
// creating and destroying both send some.
LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!form) return DefDlgProcW(window, message, wParam, lParam);

    struct Depth {
      explicit Depth(int& counted) : depth(counted) { ++depth; }
      ~Depth() { --depth; }
      int& depth;
    };
    const Depth deeper(form->depth_);
    return form->HandleMessage(message, wParam, lParam);
  });
}

// The one place where messages are told apart; what each comes to stands in the functions below.
LRESULT FormWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT answer = 0;
  if (form_ && form_->OnMessage(message, wParam, lParam, answer)) return answer;
  controls_.RelayToTips(window_, message, wParam, lParam);
  if (CanResize(design_, controls_.Layout()) && HandleFrame(message, wParam, lParam, answer)) return answer;
  if (headers_.HandleDrag(message, lParam)) return 0;
  switch (message) {
    case WM_COMMAND:
      return HandleCommand(wParam, lParam);
    case WM_NOTIFY:
      return HandleNotice(*reinterpret_cast<NMHDR*>(lParam));
    case WM_TIMER:
      RunTimer(wParam);
      return 0;
    case WM_ERASEBKGND:
    case WM_PAINT:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
      return HandleDrawing(message, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      return HandlePointer(message, wParam, lParam);
    case WM_CONTEXTMENU:
      return HandleContextMenu(reinterpret_cast<HWND>(wParam), lParam);
    case WM_ACTIVATE:
    case WM_SETFOCUS:
    case WM_SHOWWINDOW:
    case WM_UPDATEUISTATE:
    case WM_NEXTDLGCTL:
    case WM_SYSCOMMAND:
    case DM_GETDEFID:
      return HandleKeyboard(message, wParam, lParam);
    case WM_DPICHANGED:
    case WM_DISPLAYCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      return HandleSurroundings(message, wParam, lParam);
    case WM_CLOSE:
    case WM_DESTROY:
    case WM_NCDESTROY:
    case kDestroyNow:
      return HandleEnd(message, wParam, lParam);
    default:
      return DefDlgProcW(window_, message, wParam, lParam);
  }
}

LRESULT FormWindow::HandleKeyboard(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ACTIVATE:
    case WM_SETFOCUS:
    case WM_SHOWWINDOW:
      if (KeepFocus(message, wParam)) return 0;
      break;
    case WM_UPDATEUISTATE:
      if (LOWORD(wParam) == UIS_CLEAR) {
        keys_.ShowCues((HIWORD(wParam) & UISF_HIDEFOCUS) != 0, (HIWORD(wParam) & UISF_HIDEACCEL) != 0);
      }
      break;
    case WM_NEXTDLGCTL:
      keys_.UpdateTabStops();
      break;
    // SC_KEYMENU is Alt alone, or Alt with a letter that no control has; the low four bits are the system's
    // own.
    case WM_SYSCOMMAND:
      keys_.Remember(GetFocus());  // minimising takes the focus away before anything else is said
      if ((wParam & 0xFFF0) != SC_KEYMENU) break;
      // The system would walk along a menu bar that is not there, and draw its picture into the window's
      // corner.
      if (lParam == L' ') ShowSystemMenu();
      return 0;
    default: {  // DM_GETDEFID
      const ControlInstance* primary = keys_.ShownPrimary();
      return primary ? MAKELRESULT(primary->Id(), DC_HASDEFID) : 0;
    }
  }
  return DefDlgProcW(window_, message, wParam, lParam);
}

// The system gives a window that comes back the focus as such, and would move on to its first control, unless
// it has noted where the user was; it does not in each of the ways in which a window goes. True: all is done.
bool FormWindow::KeepFocus(UINT message, WPARAM wParam) {
  keys_.Remember(message == WM_SETFOCUS ? reinterpret_cast<HWND>(wParam) : GetFocus());
  const bool comes = message == WM_SETFOCUS || (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE);
  return comes && keys_.GiveBack();
}

// Close, then WM_DESTROY and WM_NCDESTROY. A window can also be destroyed from outside, with its owner.
LRESULT FormWindow::HandleEnd(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      // A form that waits for the answer of a modal one cannot go before it, whoever asks.
      if (IsWindowEnabled(window_) && form_) form_->OnCloseRequest();
      return 0;
    case kDestroyNow:
      if (closing_) Destroy();
      return 0;
    case WM_NCDESTROY: {  // the last message
      const LRESULT answer = DefDlgProcW(window_, message, wParam, lParam);
      Forget();
      return answer;
    }
    default:
      if (!closing_ && form_) form_->OnUnload();  // the system destroys it together with its owner
      return DefDlgProcW(window_, message, wParam, lParam);
  }
}

// WM_COMMAND comes from a control (lParam is its window), from a menu, from the dialog keyboard, and from
// other programs that work the window by its numbers.
LRESULT FormWindow::HandleCommand(WPARAM wParam, LPARAM lParam) {
  const int id = LOWORD(wParam);
  const int code = HIWORD(wParam);
  if (lParam == 0) {  // a menu's entry, or what the dialog keyboard makes of Esc and Enter
    if (id == IDCANCEL) {
      Escape();
    } else if (id != IDOK) {
      Press(id);
    }
    return 0;
  }
  const ControlInstance* item = controls_.Find(reinterpret_cast<HWND>(lParam));
  if (!item) return 0;
  if (IsButton(item->KindOf()) || IsCheck(item->KindOf())) {
    // A fast second click comes as a double click; it is a click like any other.
    if (code != BN_CLICKED && code != BN_DBLCLK) return 0;
    if (context_.listener) context_.listener->ButtonPressed();
    Handle({.id = item->Id()});
  } else if (IsCombo(item->KindOf())) {
    HandleCombo(*item, code);
  } else if (code == EN_CHANGE && !controls_.IsQuiet()) {
    Handle({.id = item->Id(), .kind = FormEvent::Kind::Change});
  }
  return 0;
}

void FormWindow::HandleCombo(const ControlInstance& item, int code) {
  InvalidateRect(item.window, nullptr, FALSE);
  if (code == CBN_DROPDOWN) {
    PrepareComboList(item);
  } else if (code == CBN_SELCHANGE) {
    if (item.KindOf() == ControlKind::ComboEdit) {
      // The system sets the edit field only after this notice; a handler would read the old text.
      const int row = static_cast<int>(SendMessageW(item.window, CB_GETCURSEL, 0, 0));
      SetWindowTextW(item.window, ComboRowText(item.window, row).c_str());
    }
    Handle({.id = item.Id(), .kind = FormEvent::Kind::SelChange});
  } else if (code == CBN_EDITCHANGE && !controls_.IsQuiet()) {
    Handle({.id = item.Id(), .kind = FormEvent::Kind::Change});
  }
}

// The common controls tell what happened by WM_NOTIFY. The controls with a class of their own read theirs
// themselves.
LRESULT FormWindow::HandleNotice(NMHDR& notice) {
  const ControlInstance* item = controls_.Find(notice.hwndFrom);
  if (!item) return 0;
  LRESULT answer = 0;
  if (item->view) return item->view->OnNotify(notice, answer) ? answer : 0;
  if (notice.code == NM_CUSTOMDRAW && (IsToggle(item->KindOf()) || IsCheck(item->KindOf()))) {
    const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(notice);
    RECT box{};
    GetClientRect(item->window, &box);
    paint_.PaintControl(*item, draw.hdc, box);
    return CDRF_SKIPDEFAULT;
  }
  if (item->KindOf() == ControlKind::MonthCalendar && notice.code == static_cast<UINT>(MCN_SELCHANGE)) {
    Handle({.id = item->Id(), .kind = FormEvent::Kind::SelChange});
  }
  return 0;
}

// What the system asks of an owner of drawn controls: sizes, pictures, colours. The answers to
// WM_CTLCOLOR... are brushes, which stay this form's.
LRESULT FormWindow::HandleDrawing(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;  // WM_PAINT paints it all
    case WM_PAINT: {
      PAINTSTRUCT paint{};
      const HDC dc = BeginPaint(window_, &paint);
      paint_.PaintWindow(dc, paint.rcPaint);
      EndPaint(window_, &paint);
      return 0;
    }
    case WM_MEASUREITEM:
      reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = static_cast<UINT>(Theme().Px(22));
      return TRUE;
    case WM_DRAWITEM: {
      const auto& draw = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      const ControlInstance* item = controls_.Find(draw.hwndItem);
      if (!item) return FALSE;
      if (draw.CtlType == ODT_COMBOBOX) {
        PaintComboRow(Theme(), draw);
      } else {
        paint_.PaintControl(*item, draw.hDC, draw.rcItem);
      }
      return TRUE;
    }
    default: {  // WM_CTLCOLOR...
      const auto control = reinterpret_cast<HWND>(lParam);
      return paint_.ColorControl(message, reinterpret_cast<HDC>(wParam), control, controls_.Find(control));
    }
  }
}

// Lists and trees raise the event themselves, since they know the row. lParam is -1 when it was the
// keyboard.
LRESULT FormWindow::HandleContextMenu(HWND control, LPARAM lParam) {
  const ControlInstance* item = controls_.Find(control);
  if (!item || item->view) return 0;
  POINT at = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  if (lParam == -1) {  // by the keyboard
    RECT box{};
    GetWindowRect(control, &box);
    at = {box.left, box.bottom};
  }
  Handle({.id = item->Id(), .kind = FormEvent::Kind::ContextMenu, .point = at});
  return 0;
}

// Screens, colours and themes change while the program runs. WM_SETTINGCHANGE comes for hundreds of
// settings, of which only high contrast matters here.
LRESULT FormWindow::HandleSurroundings(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DPICHANGED) {
    const RECT& suggested = *reinterpret_cast<const RECT*>(lParam);
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    UseDpi(HIWORD(wParam));
    return 0;
  }
  if (message == WM_DISPLAYCHANGE && !IsZoomed(window_)) {
    RECT box{};
    GetWindowRect(window_, &box);
    MoveToPixels(box.left, box.top);
    return 0;
  }
  if (message != WM_SETTINGCHANGE || wParam == SPI_SETHIGHCONTRAST) {
    FollowHighContrast(context_.faceplate);
    RenewTheme();
  }
  return DefDlgProcW(window_, message, wParam, lParam);
}

FormWindow::Binding FormWindow::BindingOf(int id, FormEvent::Kind kind) const {
  for (EventTarget* target : targets_) {
    for (const EventRow& row : target->Events()) {
      if (row.kind == kind && id >= row.first && id < row.first + row.count) return {target, &row};
    }
  }
  return {};
}

// A handler may close the form. Nothing of it may be used afterwards but what Close leaves: the caller gets
// only whether there was a handler.
bool FormWindow::Handle(const FormEvent& event) {
  if (event.id == 0) return false;
  const auto [target, row] = BindingOf(event.id, event.kind);
  if (!row) return false;
  if (row->plain) (target->*row->plain)();
  if (row->withIndex) (target->*row->withIndex)(event.id - row->first);
  if (row->withRow) (target->*row->withRow)(row->count > 1 ? event.id - row->first : event.row);
  if (row->atPoint) (target->*row->atPoint)(row->count > 1 ? event.id - row->first : event.row, event.point);
  if (row->withNode) (target->*row->withNode)(event.node);
  return true;
}

void FormWindow::PaneMade(int pane) const {
  if (form_) form_->OnPaneMade(pane);
}

// The number of a timer is that of its row in the timer table.
void FormWindow::RunTimer(UINT_PTR timer) {
  if (timer == kLatePanesTimer) {
    KillTimer(window_, kLatePanesTimer);
    controls_.MakeLatePanes();
    return;
  }
  if (needle_.Step(timer) || !form_) return;
  const auto id = static_cast<int>(timer);
  for (const TimerRow& row : form_->Timers()) {
    if (row.id == id) return (form_->*row.handler)();
  }
}

// Also the way of keys and menus to a control. A number without a control is a command of a menu. A control
// that cannot be pressed, and that nobody listens to, takes the focus: that is what a key for an edit means.
void FormWindow::Press(int id) {
  const ControlInstance* item = controls_.Find(id);
  if (!item) {
    Handle({.id = id});
    return;
  }
  if (!item->shown || !IsWindowEnabled(item->Window())) return;
  if (IsCheck(item->KindOf())) {
    SendMessageW(item->window, BM_CLICK, 0, 0);
    return;
  }
  if (IsButton(item->KindOf())) {
    if (context_.listener) context_.listener->ButtonPressed();
    Handle({.id = id});
    return;
  }
  if (Handle({.id = id})) return;
  keys_.FocusOn(*item);
  if (item->KindOf() == ControlKind::ComboEdit)
    SendMessageW(item->window, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
  if (IsEdit(item->KindOf())) SendMessageW(item->window, EM_SETSEL, 0, -1);
}

void FormWindow::Escape() {
  if (form_) form_->OnEscape();
}

void FormWindow::BringUp(const std::string& caption) const {
  if (context_.listener) context_.listener->BringUpAsked(caption);
}

std::string FormWindow::TextOf(const ControlText& text) const {
  return text.id != 0 ? LoadText(text.id) : std::string(text.text);
}

std::string FormWindow::LoadText(int stringId) const { return context_.strings.Load(stringId); }

}  // namespace sonaro
