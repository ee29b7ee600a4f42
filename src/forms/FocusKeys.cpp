#include "forms/FocusKeys.h"

#include "forms/ControlIds.h"
#include "forms/FormWindow.h"

namespace sonaro {
namespace {

// As they were when the message was sent: GetKeyState goes with the message queue, GetAsyncKeyState with the
// hand.
unsigned ModifiersDown() {
  const auto down = [](int key) { return GetKeyState(key) < 0; };
  unsigned modifiers = kPlain;
  if (down(VK_SHIFT)) modifiers |= kShift;
  if (down(VK_CONTROL)) modifiers |= kCtrl;
  if (down(VK_MENU)) modifiers |= kAlt;
  return modifiers;
}

bool IsInRun(int number, int first, int count) { return number >= first && number < first + count; }

// Ctrl with one of these works on the text in an edit, whatever the window has it for.
bool EditsText(const ControlInstance* focused, int key) {
  if (!focused || ModifiersDown() != kCtrl) return false;
  const ControlKind kind = focused->KindOf();
  const bool edit =
      kind == ControlKind::Edit || kind == ControlKind::MultiEdit || kind == ControlKind::ComboEdit;
  return edit && (key == 'A' || key == 'C' || key == 'V' || key == 'X' || key == 'Z');
}

bool IsListOpen(const ControlInstance* focused) {
  return focused && IsCombo(focused->KindOf()) &&
         SendMessageW(focused->window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

// Alt with an arrow key opens and closes a list; not every system does it for drawn combos.
bool OpensList(const ControlInstance* focused, const MSG& message) {
  if (!focused || !IsCombo(focused->KindOf()) || message.message != WM_SYSKEYDOWN) return false;
  if ((message.wParam != VK_DOWN && message.wParam != VK_UP) || ModifiersDown() != kAlt) return false;
  SendMessageW(focused->window, CB_SHOWDROPDOWN, IsListOpen(focused) ? FALSE : TRUE, 0);
  return true;
}

bool IsUsable(const ControlInstance& item) { return item.shown && IsWindowEnabled(item.Window()); }

// Written only when it changes: each write sends two messages.
void SetTabStop(HWND control, bool stop) {
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  const LONG_PTR wanted = stop ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP);
  if (wanted != style) SetWindowLongPtrW(control, GWL_STYLE, wanted);
}

}  // namespace

// A dialog that the keyboard has opened shows its cues at once, like the window that it was opened from.
void FocusKeys::BeginCues(const FormWindow* owner) {
  BOOL cues = FALSE;
  SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &cues, 0);
  showFocus_ = cues || (owner && owner->Keys().showFocus_);
  showAccessKeys_ = cues || (owner && owner->Keys().showAccessKeys_);
}

// They never go again while the form is open. Edits show the focus by their caret.
void FocusKeys::ShowCues(bool focus, bool accessKeys) {
  if ((showFocus_ || !focus) && (showAccessKeys_ || !accessKeys)) return;
  showFocus_ = showFocus_ || focus;
  showAccessKeys_ = showAccessKeys_ || accessKeys;
  for (const ControlInstance& item : form_.Controls().All()) {
    if (item.window && !IsEdit(item.KindOf())) InvalidateRect(item.window, nullptr, FALSE);
  }
}

ControlInstance* FocusKeys::Focused() const { return form_.Controls().Find(GetFocus()); }

// By the dialog's message instead of SetFocus: it also moves the default button and selects an edit's text.
void FocusKeys::FocusOn(const ControlInstance& item) {
  if (!item.Window()) return;
  focusGiven_ = true;
  left_ = item.Window();  // for a form that cannot have the focus now
  SendMessageW(form_.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(item.Window()), TRUE);
}

void FocusKeys::Remember(HWND focus) {
  if (form_.Controls().Find(focus)) left_ = focus;
}

// By SetFocus: an edit keeps what was selected in it.
bool FocusKeys::GiveBack() {
  if (IsIconic(form_.Window())) return false;
  if (Focused()) return true;
  const ControlInstance* item = form_.Controls().Find(left_);
  if (!item) return false;
  HWND control = left_;
  if (!IsUsable(*item)) {
    item = form_.Controls().Find(form_.Design().firstFocus);
    if (!item || !IsUsable(*item)) return false;
    control = item->Window();
  }
  SetFocus(control);
  return true;
}

void FocusKeys::BackFrom(const ControlInstance& button) {
  if (Focused() != &button) return;
  const ControlInstance* item = form_.Controls().Find(before_);
  if (item && IsUsable(*item)) SetFocus(before_);
}

void FocusKeys::GiveFirstFocus() {
  if (focusGiven_) return;
  focusGiven_ = true;
  UpdateTabStops();
  const ControlInstance* item = form_.Controls().Find(form_.Design().firstFocus);
  if (!item) item = ShownPrimary();
  const HWND control = item ? item->Window() : GetNextDlgTabItem(form_.Window(), nullptr, FALSE);
  if (control) SendMessageW(form_.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

// Groups are runs of rows; a decoration in between ends one, since it has no window.
std::span<ControlInstance> FocusKeys::GroupOf(const ControlInstance& item) const {
  const std::span<ControlInstance> items = form_.Controls().All();
  auto first = static_cast<std::size_t>(&item - items.data());
  while (first > 0 && !items[first].groupStart) --first;
  std::size_t last = first + 1;
  while (last < items.size() && items[last].window && !items[last].groupStart) ++last;
  return items.subspan(first, last - first);
}

// Forms that change their face have one for each; only one of them is shown at a time.
ControlInstance* FocusKeys::ShownPrimary() const {
  for (ControlInstance& item : form_.Controls().All()) {
    if (item.KindOf() == ControlKind::PrimaryButton && IsUsable(item)) return &item;
  }
  return nullptr;
}

// The system would stop at every button of a group, or at its first one only. The stop is where the user is
// in the group, else what is active in it, else its first usable one.
void FocusKeys::UpdateTabStops() {
  const HWND focus = GetFocus();
  const auto rank = [&](const ControlInstance& item) {
    if (focus == item.window) return 2;  // Tab goes on from where the arrow keys have led
    return SendMessageW(item.window, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
  };
  const std::span<ControlInstance> items = form_.Controls().All();
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

// Before the system's dialog keyboard sees the key: cues, an open list, the form's own keys, then Enter and
// Esc.
bool FocusKeys::RunKey(MSG& message) {
  NoteKeyboardUse(message);
  const ControlInstance* focused = Focused();
  const int key = static_cast<int>(message.wParam);
  if (IsListOpen(focused) && (key == VK_RETURN || key == VK_ESCAPE)) return false;  // the list's own
  if (OpensList(focused, message)) return true;
  if (EditsText(focused, key)) return false;
  if (RunKeyTable(key, focused ? focused->Id() : 0)) return true;
  if (focused && ModifiersDown() == kCtrl && form_.Headers().RunKey(*focused, message.wParam)) return true;
  if (key == VK_RETURN && message.message == WM_KEYDOWN) return RunEnter(focused, message);
  if (key == VK_ESCAPE && message.message == WM_KEYDOWN) {
    form_.Escape();
    return true;
  }
  return false;
}

// Keys that move the focus, and Alt, show that the user works with the keyboard.
void FocusKeys::NoteKeyboardUse(const MSG& message) {
  const WPARAM key = message.wParam;
  if (message.message == WM_SYSKEYDOWN) {
    ShowCues(true, true);
  } else if (key == VK_TAB || (key >= VK_LEFT && key <= VK_DOWN)) {
    ShowCues(true, false);
    if (key == VK_TAB) UpdateTabStops();
  }
}

// F1 is the help button in every form that has one, without a row; in any other it is that of the window
// which the form was opened from.
bool FocusKeys::RunKeyTable(int key, int focusedId) {
  for (const KeyRow& row : form_.Design().keys) {
    if (!IsInRun(key, row.key, row.keys) || row.modifiers != ModifiersDown()) continue;
    if (row.onlyIn != 0 && !IsInRun(focusedId, row.onlyIn, row.controls)) continue;
    form_.Press(row.command + key - row.key);
    return true;
  }
  if (key != VK_F1 || ModifiersDown() != kPlain) return false;
  FormWindow* helper = &form_;
  while (helper && !helper->Controls().Find(butHelp))
    helper = FormWindow::Of(GetWindow(helper->Window(), GW_OWNER));
  if (helper) helper->Press(butHelp);
  return helper != nullptr;
}

// Enter: what waits for it in the focused control, the focused button, else the primary button.
bool FocusKeys::RunEnter(const ControlInstance* focused, MSG& message) {
  if (focused) {
    const int id = focused->Id();
    if (form_.Handle({.id = id, .kind = FormEvent::Kind::EnterPressed})) return true;
    const bool actsItself = form_.IsBound(id, FormEvent::Kind::ItemActivated) ||
                            form_.IsBound(id, FormEvent::Kind::NodeClick) ||
                            (focused->KindOf() == ControlKind::MultiEdit && ModifiersDown() == kCtrl);
    if (actsItself) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
      return true;
    }
    if (IsButton(focused->KindOf())) {
      form_.Press(id);
      return true;
    }
  }
  if (ModifiersDown() != kPlain) return false;
  if (const ControlInstance* primary = ShownPrimary()) form_.Press(primary->Id());
  return true;
}

}  // namespace sonaro
