#include "forms/controls/Controls.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "forms/FormWindow.h"
#include "forms/WideText.h"
#include "forms/controls/ListView.h"
#include "forms/controls/ProgressScale.h"
#include "forms/controls/RatingPicture.h"
#include "forms/controls/TreeView.h"

namespace sonaro {
namespace {

// Something that the control is painted from.
template <class T>
void Change(FormWindow& form, ControlInstance* item, T ControlInstance::*what,
            std::type_identity_t<T> value) {
  if (!item || item->*what == value) return;
  item->*what = std::move(value);
  form.Paint().Repaint(*item);
}

// A number of another kind is a mistake in the form's own code: the cast throws, and the window goes on.
template <class T>
T& ViewOf(const ControlInstance* item) {
  if (!item || !item->view) throw std::out_of_range("the form is not open");
  return dynamic_cast<T&>(*item->view);
}

}  // namespace

// Looked up in the design, not among the windows: the form is not open yet when its members are made.
ControlHandle::ControlHandle(Form& form, int id, std::initializer_list<ControlKind> kinds)
    : form_(&form), id_(id) {
  for (const ControlRow& row : form.Description().controls) {
    if (row.id == id && std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end()) return;
  }
  throw std::logic_error(std::string(form.Description().name) + " has no control " + std::to_string(id) +
                         " of the kind that its member says");
}

ControlInstance* ControlHandle::Item() const { return Inside().Controls().Find(id_); }

HWND ControlHandle::Window() const {
  const ControlInstance* item = Item();
  return item ? item->Window() : nullptr;
}

// A control of a form that is not open answers 0 to everything.
LRESULT ControlHandle::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  const HWND window = Window();
  return window ? SendMessageW(window, message, wParam, lParam) : 0;
}

// What the program wants is kept, also while the pane of the control is hidden.
void ControlHandle::Show(bool shown) const {
  ControlInstance* item = Item();
  if (!item || item->wanted == shown) return;
  item->wanted = shown;
  Inside().Controls().ShowOrHide(*item);
}

// Nothing when it stays as it is: EnableWindow would repaint it and tell screen readers.
void ControlHandle::Enable(bool enabled) const {
  const HWND window = Window();
  if (!window || (IsWindowEnabled(window) != FALSE) == enabled) return;
  // A disabled control that keeps the focus would swallow every key.
  if (!enabled && HasFocus()) SendMessageW(Inside().Window(), WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(window, enabled);
}

bool ControlHandle::IsEnabled() const {
  const HWND window = Window();
  return window && IsWindowEnabled(window);
}

void ControlHandle::Focus() const {
  if (const ControlInstance* item = Item()) Inside().Keys().FocusOn(*item);
}

bool ControlHandle::HasFocus() const {
  const ControlInstance* item = Item();
  return item && Inside().Keys().Focused() == item;
}

void ControlHandle::SetTip(std::string_view text) const {
  if (ControlInstance* item = Item()) Inside().Controls().SetTip(*item, std::string(text));
}

void ControlHandle::SetIconTo(Icon icon) const { Change(Inside(), Item(), &ControlInstance::icon, icon); }

void ControlHandle::SetDetailTo(std::string_view text) const {
  Change(Inside(), Item(), &ControlInstance::detail, std::string(text));
}

std::string TextControl::Text() const {
  const HWND window = Window();
  return window ? Narrow(TextOfWindow(window)) : std::string();
}

// Compared first, since setting the same text again would move an edit's caret to its start, and have a
// screen reader say a state again.
void TextControl::SetText(std::string_view text) const {
  const HWND window = Window();
  if (!window) return;
  const std::wstring wide = Widen(text);
  if (TextOfWindow(window) == wide) return;  // an edit keeps its caret, a label does not flicker
  const ControlSet::Quiet quiet(Inside().Controls());
  SetWindowTextW(window, wide.c_str());
}

void Label::SetColor(TextColor color) const { Change(Inside(), Item(), &ControlInstance::color, color); }

void Label::SetTextAndGrow(std::string_view text) const {
  SetText(text);
  const ControlInstance* item = Item();
  if (!item) return;
  Inside().Controls().GrowFor(*item, text);
  Inside().Resize();
}

// As wide menus of a window open: at the left edge, just below.
void Button::PopUpMenu(std::span<const MenuEntry> entries) const {
  if (const ControlInstance* item = Item()) Inside().Keys().BackFrom(*item);
  RECT box{};
  if (GetWindowRect(Window(), &box)) form_->PopUpMenu(entries, {box.left, box.bottom});
}

void ColumnButton::SetSortMark(SortMark mark) const {
  Change(Inside(), Item(), &ControlInstance::sort, mark);
}

// The state is the system's check mark, so that a screen reader says it. The dial's needle follows the tab.
void ActiveControl::SetActive(bool active) const {
  if (IsActive() == active) return;
  Send(BM_SETCHECK, active ? BST_CHECKED : BST_UNCHECKED);
  const ControlInstance* item = Item();
  if (active && item && item->KindOf() == ControlKind::TabButton) Inside().Needle().MoveTo(*item);
}

bool ActiveControl::IsActive() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void GroupButton::SetEmptySocket(bool empty) const {
  Change(Inside(), Item(), &ControlInstance::emptySocket, empty);
}

void CheckBox::Check(bool checked) const { Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED); }
bool CheckBox::IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

// The system clears the others only when the user clicks.
void RadioButton::Check() const {
  const ControlInstance* item = Item();
  if (!item) return;
  for (const ControlInstance& other : Inside().Keys().GroupOf(*item)) {
    const LRESULT wanted = &other == item ? BST_CHECKED : BST_UNCHECKED;
    if (SendMessageW(other.window, BM_GETCHECK, 0, 0) !=
        wanted)  // the system looks through the whole group each time
      SendMessageW(other.window, BM_SETCHECK, static_cast<WPARAM>(wanted), 0);
  }
}

bool RadioButton::IsChecked() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void Edit::Limit(int bytes) const { Send(EM_LIMITTEXT, static_cast<WPARAM>(bytes)); }
void Edit::SelectAll() const { Send(EM_SETSEL, 0, -1); }

// The number goes with the text, since the order on the screen may be another than the program's.
void ComboBox::AddItem(std::string_view text, int data) const {
  const LRESULT row = Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(text).c_str()));
  Send(CB_SETITEMDATA, static_cast<WPARAM>(row), data);
}

void ComboBox::ClearItems() const {
  const ControlSet::Quiet quiet(Inside().Controls());
  const ControlInstance* item = Item();
  const std::string typed = item && item->KindOf() == ControlKind::ComboEdit ? Text() : std::string();
  const LRESULT caret = Send(CB_GETEDITSEL);
  Send(CB_RESETCONTENT);
  if (typed.empty()) return;
  SetText(typed);  // what the user typed is not one of the items
  Send(CB_SETEDITSEL, 0, caret);
}

int ComboBox::ItemCount() const { return static_cast<int>(Send(CB_GETCOUNT)); }

std::string ComboBox::ItemText(int row) const {
  const HWND window = Window();
  return window ? Narrow(ComboRowText(window, row)) : std::string();
}

// For a row that is not there the system answers -1, which would be a number like any other.
int ComboBox::ItemData(int row) const {
  if (row < 0 || row >= ItemCount()) return 0;
  return static_cast<int>(Send(CB_GETITEMDATA, static_cast<WPARAM>(row)));
}

int ComboBox::SelectedItem() const { return Window() ? static_cast<int>(Send(CB_GETCURSEL)) : -1; }

// Row -1 clears the selection; the system reports that as an error, and it is none.
void ComboBox::SelectItem(int row) const {
  const ControlSet::Quiet quiet(Inside().Controls());
  Send(CB_SETCURSEL, static_cast<WPARAM>(row));
}

bool ComboBox::SelectItemData(int data) const {
  for (int row = 0; row < ItemCount(); ++row) {
    if (ItemData(row) != data) continue;
    SelectItem(row);
    return true;
  }
  return false;
}

void ComboBox::FitListToTexts() const {
  constexpr int kBesideText = 40;  // insets and scroll bar
  const HWND window = Window();
  if (!window) return;
  const Painter& painter = Inside().Theme();
  int widest = 0;
  for (int row = 0; row < ItemCount(); ++row) {
    widest =
        std::max(widest, static_cast<int>(painter.Measure(ComboRowText(window, row), TextStyle::Body).cx));
  }
  Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(widest + painter.Px(kBesideText)));
}

void ComboBox::SelectAll() const { Send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1)); }

// Only the date counts; the system fills in a time of its own.
SYSTEMTIME MonthCalendar::Date() const {
  SYSTEMTIME date{};
  Send(MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&date));
  return date;
}

void MonthCalendar::SetDate(const SYSTEMTIME& date) const {
  SYSTEMTIME copy = date;
  Send(MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&copy));
}

void Picture::SetPainter(PicturePainter paint) const {
  Change(Inside(), Item(), &ControlInstance::picture, paint);
}

ListView& ListHandle::operator*() const { return ViewOf<ListView>(Item()); }
TreeView& TreeHandle::operator*() const { return ViewOf<TreeView>(Item()); }
RatingPicture* RatingHandle::operator->() const { return &ViewOf<RatingPicture>(Item()); }
ProgressScale* ProgressHandle::operator->() const { return &ViewOf<ProgressScale>(Item()); }

}  // namespace sonaro
