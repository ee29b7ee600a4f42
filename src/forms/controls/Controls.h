// The controls of a form as values: a form, or a pane of it, declares what it uses as members, bound to its
// number, and calls what that kind of control can do.
//
//   Edit txtName_{*this, txtName};
//   ControlArray<ToggleButton> butDays_{*this, butDays, 7};
//   ...
//   txtName_.SetText(greeting_.LastName());
//   butDays_[day].SetActive(true);
//
// Made with its form; a number that the form's design does not have, or has for another kind of control,
// throws std::logic_error from the form's constructor. While the form is not open, texts read as "" and
// states as false, and setting one does nothing. What the program sets raises no event.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "forms/Form.h"

namespace sonaro {

struct ControlInstance;
class ListView;
class ProgressScale;
class RatingPicture;
class TreeView;

class ControlHandle {
 public:
  HWND Window() const;  // nullptr while the form is not open
  void Show(bool shown = true) const;
  void Enable(bool enabled = true) const;
  bool IsEnabled() const;
  void Focus() const;
  bool HasFocus() const;
  void SetTip(std::string_view text) const;

 protected:
  ControlHandle(Form& form, int id, std::initializer_list<ControlKind> kinds);

  FormWindow& Inside() const { return *form_->window_; }
  ControlInstance* Item() const;  // nullptr before the form was open
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void SetIconTo(Icon icon) const;
  void SetDetailTo(std::string_view text) const;

  Form* form_;
  int id_;
};

// A control with a text: its caption, or what the user types.
class TextControl : public ControlHandle {
 public:
  std::string Text() const;
  void SetText(std::string_view text) const;

 protected:
  using ControlHandle::ControlHandle;
};

class Label final : public TextControl {
 public:
  Label(Form& form, int id)
      : TextControl(form, id, {ControlKind::Label, ControlKind::StateLabel, ControlKind::TitleBar}) {}
  void SetIcon(Icon icon) const { SetIconTo(icon); }
  void SetColor(TextColor color) const;  // reports trouble or success
  // For a wrapped label that is anchored to top and bottom: makes the window as much higher than its layout
  // as the text needs; anchors move the controls.
  void SetTextAndGrow(std::string_view text) const;
};

class Button final : public TextControl {
 public:
  Button(Form& form, int id)
      : TextControl(form, id,
                    {ControlKind::PushButton, ControlKind::PrimaryButton, ControlKind::StripButton}) {}
  void SetIcon(Icon icon) const { SetIconTo(icon); }
  void PopUpMenu(std::span<const MenuEntry> entries) const;  // below the button; see Form::PopUpMenu
};

// A button of two lines.
class TwoLineButton final : public TextControl {
 public:
  TwoLineButton(Form& form, int id) : TextControl(form, id, {ControlKind::PlayButton}) {}
  // The second line, then perhaps a tab and the link's number: "64 kbit/s\t2".
  void SetDetail(std::string_view text) const { SetDetailTo(text); }
};

// The button over a column of a list.
class ColumnButton final : public TextControl {
 public:
  ColumnButton(Form& form, int id) : TextControl(form, id, {ControlKind::HeaderButton}) {}
  void SetSortMark(SortMark mark) const;
};

// A button that stays active. Pressing it tells the form; the form says which one is active.
class ActiveControl : public TextControl {
 public:
  void SetActive(bool active) const;
  bool IsActive() const;

 protected:
  using TextControl::TextControl;
};

class ToggleButton final : public ActiveControl {
 public:
  ToggleButton(Form& form, int id)
      : ActiveControl(form, id,
                      {ControlKind::ToggleButton, ControlKind::RankingButton, ControlKind::TabButton}) {}
};

class GroupButton final : public ActiveControl {
 public:
  GroupButton(Form& form, int id) : ActiveControl(form, id, {ControlKind::GroupButton}) {}
  void SetFigure(std::string_view figure) const { SetDetailTo(figure); }
  // An empty socket can be pressed like a button; its text is what pressing it does, read out, not drawn.
  void SetEmptySocket(bool empty) const;
};

class CheckBox final : public TextControl {
 public:
  CheckBox(Form& form, int id) : TextControl(form, id, {ControlKind::CheckBox}) {}
  void Check(bool checked = true) const;
  bool IsChecked() const;
};

class RadioButton final : public TextControl {
 public:
  RadioButton(Form& form, int id) : TextControl(form, id, {ControlKind::RadioButton}) {}
  void Check() const;  // clears its group
  bool IsChecked() const;
};

class Edit final : public TextControl {
 public:
  Edit(Form& form, int id)
      : TextControl(form, id, {ControlKind::Edit, ControlKind::MultiEdit, ControlKind::ReadOnlyText}) {}
  void Limit(int bytes) const;
  void SelectAll() const;
};

// Rows count from 0; -1 = none.
class ComboBox final : public TextControl {
 public:
  ComboBox(Form& form, int id) : TextControl(form, id, {ControlKind::Combo, ControlKind::ComboEdit}) {}
  void AddItem(std::string_view text, int data = 0) const;
  void ClearItems() const;  // keeps what the user typed
  int ItemCount() const;
  std::string ItemText(int row) const;
  int ItemData(int row) const;
  int SelectedItem() const;
  void SelectItem(int row) const;
  bool SelectItemData(int data) const;  // false: no row has it, the selection stays
  void SelectAll() const;               // the typed text
  void FitListToTexts() const;          // the open list becomes as wide as its longest text
};

class MonthCalendar final : public ControlHandle {
 public:
  MonthCalendar(Form& form, int id) : ControlHandle(form, id, {ControlKind::MonthCalendar}) {}
  SYSTEMTIME Date() const;
  void SetDate(const SYSTEMTIME& date) const;
};

class Picture final : public ControlHandle {
 public:
  Picture(Form& form, int id) : ControlHandle(form, id, {ControlKind::Picture}) {}
  void SetPainter(PicturePainter paint) const;
};

// A glass panel, which the form paints.
class Panel final : public ControlHandle {
 public:
  Panel(Form& form, int id) : ControlHandle(form, id, {ControlKind::Glass}) {}
};

// A control with a class of its own, which lives only while the form is open; before, using it throws.
class ListHandle final : public ControlHandle {
 public:
  ListHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::ListView}) {}
  ListView& operator*() const;
  ListView* operator->() const { return &**this; }
};

class TreeHandle final : public ControlHandle {
 public:
  TreeHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::TreeView}) {}
  TreeView& operator*() const;
  TreeView* operator->() const { return &**this; }
};

class RatingHandle final : public ControlHandle {
 public:
  RatingHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::Rating}) {}
  RatingPicture* operator->() const;
};

class ProgressHandle final : public ControlHandle {
 public:
  ProgressHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::Progress}) {}
  ProgressScale* operator->() const;
};

// Controls of one kind with numbers that follow each other.
template <class T>
class ControlArray {
 public:
  ControlArray(Form& form, int first, int count) : form_(&form), first_(first), count_(count) {
    for (int index = 0; index < count_; ++index) static_cast<void>((*this)[index]);
  }
  T operator[](int index) const { return T(*form_, first_ + index); }
  int Count() const { return count_; }
  int Focused() const {  // -1: none of them
    const int index = form_->FocusedControl() - first_;
    return index >= 0 && index < count_ ? index : -1;
  }
  // One active toggle; -1: none.
  void SetOnly(int index) const {
    for (int i = 0; i < count_; ++i) (*this)[i].SetActive(i == index);
  }

 private:
  Form* form_;
  int first_;
  int count_;
};

}  // namespace sonaro
