// Makes the controls of a form: which kind is which window class, and which is a class of our own.
#include <windows.h>

#include <commctrl.h>

#include <utility>

#include "forms/ControlIds.h"
#include "forms/ControlSet.h"
#include "forms/FormWindow.h"
#include "forms/Guard.h"
#include "forms/Resizing.h"
#include "forms/WideText.h"
#include "forms/controls/ListView.h"
#include "forms/controls/ProgressScale.h"
#include "forms/controls/RatingPicture.h"
#include "forms/controls/TreeView.h"

namespace sonaro {
namespace {

struct ControlClass {
  const wchar_t* name;
  DWORD style;
};

// What no control has: GetDlgItem would find a 0.
constexpr WORD kNoNumber = 0xFFFF;

// Without WS_VSCROLL: the bar beside a text of several lines is the faceplate's. ES_AUTOVSCROLL lets the
// caret still go beyond what is seen.
DWORD EditStyle(const ControlRow& row) {
  DWORD style = row.kind == ControlKind::Edit ? ES_AUTOHSCROLL : ES_MULTILINE | ES_AUTOVSCROLL;
  if (row.kind == ControlKind::ReadOnlyText) style |= ES_READONLY;
  if (row.flags & kRightAligned) style |= ES_RIGHT;
  return style;
}

// SS_NOPREFIX also keeps the system from taking an access key out of a text that is data.
ControlClass ClassOf(const ControlRow& row) {
  constexpr DWORD kCombo =
      CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT | WS_VSCROLL | CBS_AUTOHSCROLL;
  switch (row.kind) {
    case ControlKind::Label:
    case ControlKind::TitleBar:
    case ControlKind::StateLabel: {
      const bool prefix = row.kind == ControlKind::Label && !(row.flags & kNoPrefix);
      return {L"STATIC", static_cast<DWORD>(SS_OWNERDRAW) | (prefix ? 0 : SS_NOPREFIX)};
    }
    case ControlKind::Picture:
      return {L"STATIC", SS_OWNERDRAW | SS_NOPREFIX};
    // A button that keeps a state is a push-like check box, not an owner-drawn button: only so does the
    // system tell a screen reader that it is pressed. Its painting goes through NM_CUSTOMDRAW and WM_PAINT.
    case ControlKind::ToggleButton:
    case ControlKind::RankingButton:
    case ControlKind::GroupButton:
    case ControlKind::TabButton:
      return {L"BUTTON", BS_CHECKBOX | BS_PUSHLIKE};
    case ControlKind::CheckBox:
      return {L"BUTTON", BS_AUTOCHECKBOX};
    case ControlKind::RadioButton:
      return {L"BUTTON", BS_AUTORADIOBUTTON};
    case ControlKind::Edit:
    case ControlKind::MultiEdit:
    case ControlKind::ReadOnlyText:
      return {L"EDIT", EditStyle(row)};
    case ControlKind::Combo:
      return {L"COMBOBOX", CBS_DROPDOWNLIST | kCombo};
    case ControlKind::ComboEdit:
      return {L"COMBOBOX", CBS_DROPDOWN | kCombo};
    case ControlKind::MonthCalendar:
      // Without the system's line for today.
      return {MONTHCAL_CLASSW, MCS_NOTODAY};
    default:
      return {L"BUTTON", BS_OWNERDRAW};
  }
}

// Texts to read are no stops of the Tab key, unless a row says that they scroll or are copied from.
bool TakesTab(const ControlRow& row) {
  if (row.flags & kNoTabStop) return false;
  if (row.flags & kTabStop) return true;
  return !IsText(row.kind) && row.kind != ControlKind::Picture && row.kind != ControlKind::ReadOnlyText &&
         row.kind != ControlKind::Rating && row.kind != ControlKind::Progress;
}

// Radio buttons and toggles that follow each other are one group for the arrow keys; every other control is a
// group of its own, so that arrow keys do not wander off.
bool ContinuesGroup(const ControlRow& row, const ControlRow* before) {
  return before && before->kind == row.kind &&
         (IsToggle(row.kind) || row.kind == ControlKind::RadioButton ||
          row.kind == ControlKind::HeaderButton) &&
         !(row.flags & kGroup);
}

// The hidden label by which one window asks another for a notification: setting its caption is the request.
LRESULT CALLBACK BringUpProcedure(HWND label, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                  DWORD_PTR form) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(label, BringUpProcedure, id);
    const LRESULT answer = DefSubclassProc(label, message, wParam, lParam);
    if (message == WM_SETTEXT) reinterpret_cast<FormWindow*>(form)->BringUp(Narrow(TextOfWindow(label)));
    return answer;
  });
}

HWND MakeChild(HWND form, const ControlClass& kind, DWORD style, WORD number, const std::wstring& text,
               const RECT& box) {
  return CreateWindowExW(0, kind.name, text.c_str(), WS_CHILD | kind.style | style, box.left, box.top,
                         box.right - box.left, box.bottom - box.top, form,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(number)), GetModuleHandleW(nullptr),
                         nullptr);
}

// A window that is made asks its procedure for its frame and more before its maker has a handle of it. While
// one lives, the first window that the thread makes after Expect has our procedure from its first message on.
class WatchedFromTheStart {
 public:
  WatchedFromTheStart() : hook_(SetWindowsHookExW(WH_CBT, Notice, nullptr, GetCurrentThreadId())) {}
  ~WatchedFromTheStart() { UnhookWindowsHookEx(hook_); }
  static void Expect(ControlInstance& item) { made_ = &item; }
  WatchedFromTheStart(const WatchedFromTheStart&) = delete;
  WatchedFromTheStart& operator=(const WatchedFromTheStart&) = delete;

 private:
  static LRESULT CALLBACK Notice(int code, WPARAM window, LPARAM facts) noexcept {
    if (code == HCBT_CREATEWND && made_)
      WatchControl(*std::exchange(made_, nullptr), reinterpret_cast<HWND>(window));
    return CallNextHookEx(nullptr, code, window, facts);
  }

  static inline ControlInstance* made_ = nullptr;  // a hook is told of nothing but the window
  HHOOK hook_;
};

}  // namespace

void ControlSet::Build(HWND window, const Painter& painter) {
  window_ = window;
  const ControlRow* before = nullptr;
  formerItems_ = std::exchange(items_, std::vector<ControlInstance>());
  const WatchedFromTheStart watched;
  items_.reserve(design_.controls.size());  // windows keep the addresses of their rows
  for (const ControlRow& row : design_.controls) {
    ControlInstance& item = items_.emplace_back();
    item.row = &row;
    item.form = &form_;
    item.icon = row.icon;
    item.color = row.color;
    item.wanted = (row.flags & kHidden) == 0;
    // Decorations end a group: what looks divided is.
    const bool isWindow = !IsDecoration(row.kind);
    item.groupStart = !isWindow || !ContinuesGroup(row, before);
    before = isWindow ? &row : nullptr;
    if (isWindow && !late_[row.pane]) Make(item, painter);
  }
  const HWND bringUp = MakeChild(window, {L"STATIC", SS_NOPREFIX}, 0, static_cast<WORD>(lblBringUp), L"", {});
  SetWindowSubclass(bringUp, BringUpProcedure, 1, reinterpret_cast<DWORD_PTR>(&form_));
}

// The tab order is that of the windows, which is that of the rows.
void ControlSet::MakePane(std::size_t pane) {
  if (!late_[pane] || !window_) return;
  late_[pane] = false;
  const WatchedFromTheStart watched;
  HWND before = HWND_TOP;
  for (ControlInstance& item : items_) {
    if (item.row->pane == pane && !IsDecoration(item.KindOf())) {
      Make(item, form_.Theme());
      SetWindowPos(item.Window(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    if (item.Window()) before = item.Window();
  }
  form_.PaneMade(static_cast<int>(pane));
}

void ControlSet::MakeLatePanes() {
  for (const unsigned char pane : design_.latePanes) MakePane(pane);
}

// In its place and shown at once: every further call about a window costs as much as its making.
void ControlSet::Make(ControlInstance& item, const Painter& painter) {
  const DesignRect* at = BoundsIn(design_, layout_, *item.row);
  if (at) {
    const PixelSize client = client_.width > 0 ? client_ : ScaleToDpi(Size(), painter.Dpi());
    item.place = ArrangeRow(design_, *item.row, *at, SizeOf(design_, layout_), client, painter.Dpi());
  }
  item.shown = IsWanted(item);
  item.view = MakeView(*item.row);
  if (!item.view) {
    MakeControl(item, painter);
  } else {
    item.view->ThemeChanged();
    if (at) PlaceWindow(item, painter);
    item.view->SetShown(item.shown);
  }
  if (item.Has(kDisabled)) EnableWindow(item.Window(), FALSE);
}

void ControlSet::MakeControl(ControlInstance& item, const Painter& painter) {
  const ControlRow& row = *item.row;
  const DWORD style = WS_CLIPSIBLINGS | (item.groupStart ? WS_GROUP : 0) | (TakesTab(row) ? WS_TABSTOP : 0) |
                      (item.shown ? WS_VISIBLE : 0);
  const WORD number = row.id == 0 ? kNoNumber : static_cast<WORD>(row.id);
  const std::wstring text = Widen(form_.TextOf(row.text));
  const bool isDrawn = IsDrawn(row.kind);  // the others take their place from their font
  if (isDrawn) item.box = WindowBox(item, painter);
  WatchedFromTheStart::Expect(item);
  item.window = MakeChild(window_, ClassOf(row), style, number, text, item.box);
  if (HasLines(row.kind)) item.bar = std::make_unique<LinesBar>(window_, form_, item.window);
  TakeFont(item, painter);
  if (!isDrawn) PlaceWindow(item, painter);
  if (item.bar) item.bar->SetShown(item.shown);
  if (row.kind == ControlKind::StripButton) SetTip(item, Narrow(WithoutAccessKey(text)));
}

// They make their windows themselves, with the row's number.
std::unique_ptr<FormControl> ControlSet::MakeView(const ControlRow& row) {
  switch (row.kind) {
    case ControlKind::ListView:
      return std::make_unique<ListView>(window_, row.id, form_);
    case ControlKind::TreeView:
      return std::make_unique<TreeView>(window_, row.id, form_);
    case ControlKind::Rating:
      return std::make_unique<RatingPicture>(window_, row.id, form_, form_.TextOf(row.text));
    case ControlKind::Progress:
      return std::make_unique<ProgressScale>(window_, row.id, form_);
    default:
      return nullptr;
  }
}

}  // namespace sonaro
