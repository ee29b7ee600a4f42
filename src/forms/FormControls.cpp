// The part of Form that speaks about controls by number.
#include <algorithm>

#include "forms/FormImpl.h"
#include "forms/WideText.h"

namespace sonaro {
namespace {

HWND WindowOf(FormImpl& parts, int id) {
  const ControlInstance* item = parts.Find(id);
  return item ? item->Window() : nullptr;
}

LRESULT Ask(FormImpl& parts, int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  const HWND window = WindowOf(parts, id);
  return window ? SendMessageW(window, message, wParam, lParam) : 0;
}

// Sets a flag for as long as it lives.
class Quietly {
 public:
  explicit Quietly(bool& quiet) : quiet_(quiet), before_(quiet) { quiet_ = true; }
  ~Quietly() { quiet_ = before_; }
  Quietly(const Quietly&) = delete;
  Quietly& operator=(const Quietly&) = delete;

 private:
  bool& quiet_;
  bool before_;
};

}  // namespace

HWND Form::Control(int id) const { return WindowOf(*parts_, id); }

std::string Form::Text(int id) const {
  const HWND window = WindowOf(*parts_, id);
  return window ? Narrow(TextOfWindow(window)) : std::string();
}

void Form::SetText(int id, std::string_view text) {
  const HWND window = WindowOf(*parts_, id);
  if (!window) return;
  const std::wstring wide = Widen(text);
  if (TextOfWindow(window) == wide) return;  // an edit keeps its caret, a label does not flicker
  const Quietly quietly(parts_->quiet);
  SetWindowTextW(window, wide.c_str());
}

void Form::SetDetail(int id, std::string_view text) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->detail == text) return;
  item->detail = text;
  parts_->RepaintItem(*item);
}

void Form::SetEmptySocket(int id, bool empty) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->emptySocket == empty) return;
  item->emptySocket = empty;
  parts_->RepaintItem(*item);
}

bool Form::IsEmptySocket(int id) const {
  const ControlInstance* item = parts_->Find(id);
  return item && item->emptySocket;
}

void Form::SetIcon(int id, Icon icon) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->icon == icon) return;
  item->icon = icon;
  parts_->RepaintItem(*item);
}

void Form::SetTextColor(int id, TextColor color) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->color == color) return;
  item->color = color;
  parts_->RepaintItem(*item);
}

void Form::SetTip(int id, std::string_view text) {
  if (ControlInstance* item = parts_->Find(id)) parts_->SetTip(*item, std::string(text));
}

void Form::Enable(int id, bool enabled) {
  const HWND window = WindowOf(*parts_, id);
  if (!window || (IsWindowEnabled(window) != FALSE) == enabled) return;
  // A disabled control that keeps the focus would swallow every key.
  if (!enabled && FocusedControl() == id) SendMessageW(parts_->window, WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(window, enabled);
}

bool Form::IsEnabled(int id) const {
  const HWND window = WindowOf(*parts_, id);
  return window && IsWindowEnabled(window);
}

void Form::ShowControl(int id, bool shown) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->wanted == shown) return;
  item->wanted = shown;
  parts_->ShowOrHide(*item);
}

void Form::ShowPane(int pane, bool shown) {
  const auto index = static_cast<std::size_t>(pane);
  if (pane <= 0 || index >= parts_->hiddenPanes.size() || parts_->hiddenPanes[index] == !shown) return;
  parts_->hiddenPanes[index] = !shown;
  for (ControlInstance& item : parts_->items) {
    if (item.row->pane == pane) parts_->ShowOrHide(item);
  }
}

void Form::Focus(int id) {
  const HWND window = WindowOf(*parts_, id);
  parts_->focusGiven = parts_->focusGiven || window != nullptr;
  if (window) SendMessageW(parts_->window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
}

int Form::FocusedControl() const {
  const ControlInstance* item = parts_->Focused();
  return item ? item->Id() : 0;
}

void Form::Check(int id, bool checked) {
  const ControlInstance* item = parts_->Find(id);
  if (!item || !item->window) return;
  if (item->KindOf() == ControlKind::RadioButton && checked) {
    for (const ControlInstance& other : parts_->GroupOf(*item)) {
      SendMessageW(other.window, BM_SETCHECK, BST_UNCHECKED, 0);
    }
  }
  SendMessageW(item->window, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool Form::IsChecked(int id) const { return Ask(*parts_, id, BM_GETCHECK) == BST_CHECKED; }

void Form::SetToggle(int id, bool active) {
  if (IsToggled(id) == active) return;
  Ask(*parts_, id, BM_SETCHECK, active ? BST_CHECKED : BST_UNCHECKED);
  const ControlInstance* item = parts_->Find(id);
  if (active && item && item->KindOf() == ControlKind::TabButton) parts_->MoveNeedle(*item);
}

bool Form::IsToggled(int id) const { return IsChecked(id); }

void Form::SetToggleOnly(int first, int count, int index) {
  for (int i = 0; i < count; ++i) SetToggle(first + i, i == index);
}

void Form::SetSortMark(int id, SortMark mark) {
  ControlInstance* item = parts_->Find(id);
  if (!item || item->sort == mark) return;
  item->sort = mark;
  parts_->RepaintItem(*item);
}

void Form::LimitText(int id, int bytes) {
  const ControlInstance* item = parts_->Find(id);
  const UINT message = item && IsCombo(item->KindOf()) ? static_cast<UINT>(CB_LIMITTEXT) : EM_LIMITTEXT;
  Ask(*parts_, id, message, static_cast<WPARAM>(bytes));
}

void Form::SelectAllText(int id) {
  const ControlInstance* item = parts_->Find(id);
  if (!item) return;
  if (item->KindOf() == ControlKind::ComboEdit) {
    Ask(*parts_, id, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
  } else if (IsEdit(item->KindOf())) {
    Ask(*parts_, id, EM_SETSEL, 0, -1);
  }
}

void Form::AddItem(int id, std::string_view text, int data) {
  const LRESULT row = Ask(*parts_, id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(text).c_str()));
  Ask(*parts_, id, CB_SETITEMDATA, static_cast<WPARAM>(row), data);
}

void Form::ClearItems(int id) {
  const Quietly quietly(parts_->quiet);
  const ControlInstance* item = parts_->Find(id);
  const std::string typed = item && item->KindOf() == ControlKind::ComboEdit ? Text(id) : std::string();
  Ask(*parts_, id, CB_RESETCONTENT);
  if (!typed.empty()) SetText(id, typed);  // what the user typed is not one of the items
}

int Form::ItemCount(int id) const { return static_cast<int>(Ask(*parts_, id, CB_GETCOUNT)); }

std::string Form::ItemText(int id, int row) const {
  const HWND window = WindowOf(*parts_, id);
  return window ? Narrow(ComboRowText(window, row)) : std::string();
}

int Form::ItemData(int id, int row) const {
  if (row < 0 || row >= ItemCount(id)) return 0;
  return static_cast<int>(Ask(*parts_, id, CB_GETITEMDATA, static_cast<WPARAM>(row)));
}

int Form::SelectedItem(int id) const {
  return WindowOf(*parts_, id) ? static_cast<int>(Ask(*parts_, id, CB_GETCURSEL)) : -1;
}

void Form::SelectItem(int id, int row) {
  const Quietly quietly(parts_->quiet);
  Ask(*parts_, id, CB_SETCURSEL, static_cast<WPARAM>(row));
}

bool Form::SelectItemData(int id, int data) {
  for (int row = 0; row < ItemCount(id); ++row) {
    if (ItemData(id, row) != data) continue;
    SelectItem(id, row);
    return true;
  }
  return false;
}

void Form::SetPicture(int id, PicturePainter paint) {
  ControlInstance* item = parts_->Find(id);
  if (!item) return;
  item->picture = std::move(paint);
  parts_->RepaintItem(*item);
}

SYSTEMTIME Form::CalendarDate(int id) const {
  SYSTEMTIME date{};
  Ask(*parts_, id, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&date));
  return date;
}

void Form::SetCalendarDate(int id, const SYSTEMTIME& date) {
  SYSTEMTIME copy = date;
  Ask(*parts_, id, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&copy));
}

}  // namespace sonaro
