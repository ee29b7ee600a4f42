// Makes a form's window and its controls from the tables.
#include <algorithm>
#include <array>
#include <utility>

#include "forms/ControlIds.h"
#include "forms/Dpi.h"
#include "forms/FormImpl.h"
#include "forms/Guard.h"
#include "forms/WideText.h"
#include "forms/controls/ToolTips.h"

namespace sonaro {
namespace {

struct ControlClass {
  const wchar_t* name;
  DWORD style;
};

constexpr WORD kNoNumber = 0xFFFF;

DWORD EditStyle(const ControlRow& row) {
  DWORD style = row.kind == ControlKind::Edit ? ES_AUTOHSCROLL : ES_MULTILINE | ES_AUTOVSCROLL;
  if (row.kind == ControlKind::ReadOnlyText) style |= ES_READONLY;
  if (row.flags & kRightAligned) style |= ES_RIGHT;
  return style;
}

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
      return {MONTHCAL_CLASSW, MCS_NOTODAY};
    default:
      return {L"BUTTON", BS_OWNERDRAW};
  }
}

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

// An empty dialog of the form's own class: the system then gives it the dialog keyboard, default button and
// the restoring of the focus. Size and place are set afterwards, in pixels.
struct EmptyDialog {
  DLGTEMPLATE head{};
  std::array<wchar_t, 64> texts{};  // no menu, class name, no caption
};

void RegisterFormClass(const wchar_t* name) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  if (GetClassInfoExW(GetModuleHandleW(nullptr), name, &description)) return;
  description = {};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = FormProcedure;
  description.cbWndExtra = DLGWINDOWEXTRA;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  description.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1));
  description.lpszClassName = name;
  RegisterClassExW(&description);
}

// The hidden label by which one window asks another for a notification: setting its caption is the request.
LRESULT CALLBACK BringUpProcedure(HWND label, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                  DWORD_PTR parts) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(label, BringUpProcedure, id);
    const LRESULT answer = DefSubclassProc(label, message, wParam, lParam);
    if (message == WM_SETTEXT) {
      const auto kept = reinterpret_cast<FormImpl*>(parts)->shared_from_this();
      if (kept->context.bringUp) kept->context.bringUp(Narrow(TextOfWindow(label)));
    }
    return answer;
  });
}

}  // namespace

bool FormImpl::BuildWindow(HWND owner) {
  const std::wstring name = Widen(design.name);
  RegisterFormClass(name.c_str());
  EmptyDialog empty;
  empty.head.style = WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
  empty.head.dwExtendedStyle = WS_EX_CONTROLPARENT | (owner ? 0 : WS_EX_APPWINDOW);
  std::copy(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(name.size(), 60)),
            empty.texts.begin() + 1);
  ChooseDpi(MonitorOf(owner));
  window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.head, owner, nullptr, 0);
  if (!window) return false;
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  const LRESULT loaded = Guarded(FALSE, [this]() -> LRESULT {
    Load();
    return TRUE;
  });
  if (!loaded) {  // half a window is none
    closing = true;
    Destroy();
  }
  return window != nullptr;
}

void FormImpl::BuildControls() {
  const ControlRow* before = nullptr;
  formerItems = std::exchange(items, std::vector<ControlInstance>());
  items.reserve(design.controls.size() + 1);
  for (const ControlRow& row : design.controls) {
    ControlInstance& item = items.emplace_back();
    item.row = &row;
    item.icon = row.icon;
    item.color = row.color;
    item.wanted = (row.flags & kHidden) == 0;
    if (IsDecoration(row.kind)) {
      before = nullptr;
      continue;
    }
    item.groupStart = !ContinuesGroup(row, before);
    before = &row;
    item.view = MakeView(row);
    if (!item.view) {
      const ControlClass kind = ClassOf(row);
      const DWORD style = WS_CHILD | WS_CLIPSIBLINGS | kind.style | (item.groupStart ? WS_GROUP : 0) |
                          (TakesTab(row) ? WS_TABSTOP : 0);
      const WORD number = row.id == 0 ? kNoNumber : static_cast<WORD>(row.id);
      const std::wstring text = Widen(TextOf(row.text));
      item.window = CreateWindowExW(0, kind.name, text.c_str(), style, 0, 0, 0, 0, window,
                                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(number)),
                                    GetModuleHandleW(nullptr), nullptr);
      WatchControl(*this, item);
      if (IsCombo(row.kind)) AttachCombo(*this, item);
      if (HasLines(row.kind)) AttachLines(*this, item);
      if (row.kind == ControlKind::StripButton) SetTip(item, Narrow(WithoutAccessKey(text)));
    }
    if (row.flags & kDisabled) EnableWindow(item.Window(), FALSE);
  }
  const HWND bringUp = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, window,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(lblBringUp)),
                                       GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(bringUp, BringUpProcedure, 1, reinterpret_cast<DWORD_PTR>(this));
}

// A label lets the mouse through to the form, which tells the tips itself.
TTTOOLINFOW FormImpl::ToolOf(const ControlInstance& item) const {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = window;
  if (IsText(item.KindOf())) {
    tool.uId = static_cast<UINT_PTR>(item.Id());
    tool.rect = ToRect(item.place);
  } else {
    tool.uFlags = TTF_SUBCLASS | TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(item.Window());
  }
  return tool;
}

void FormImpl::PlaceTip(const ControlInstance& item) const {
  TTTOOLINFOW tool = ToolOf(item);
  SendMessageW(tips, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void FormImpl::SetTip(ControlInstance& item, const std::string& text) {
  if (!tips) tips = MakeTips(window);
  std::wstring wide = Widen(text);
  TTTOOLINFOW tool = ToolOf(item);
  tool.lpszText = wide.data();
  SendMessageW(tips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (!wide.empty()) SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace sonaro
