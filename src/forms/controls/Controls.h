// The controls of a form as values: a form declares what it uses as members, bound to its number, and calls
// what that kind of control can do.
//
//   Edit txtName_{*this, txtName};
//   ControlArray<ToggleButton> butDays_{*this, butDays, 7};
//   ...
//   txtName_.SetText(greeting_.LastName());
//   butDays_[day].SetActive(true);
//
// Made with its form; a number that the form's design does not have, or has for another kind of control,
// throws std::logic_error from the form's constructor. While the form is not open, texts read as "" and
// states as false. What the program sets raises no event.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "forms/Form.h"

namespace sonaro {

class ControlHandle {
 public:
  HWND Window() const { return form_->Control(id_); }
  void Show(bool shown = true) const { form_->ShowControl(id_, shown); }
  void Enable(bool enabled = true) const { form_->Enable(id_, enabled); }
  bool IsEnabled() const { return form_->IsEnabled(id_); }
  void Focus() const { form_->Focus(id_); }
  bool HasFocus() const { return form_->FocusedControl() == id_; }
  void SetTip(std::string_view text) const { form_->SetTip(id_, text); }

 protected:
  ControlHandle(Form& form, int id, std::initializer_list<ControlKind> kinds);

  Form* form_;
  int id_;
};

// A control with a text: its caption, or what the user types.
class TextControl : public ControlHandle {
 public:
  std::string Text() const { return form_->Text(id_); }
  void SetText(std::string_view text) const { form_->SetText(id_, text); }

 protected:
  using ControlHandle::ControlHandle;
};

class Label final : public TextControl {
 public:
  Label(Form& form, int id)
      : TextControl(form, id, {ControlKind::Label, ControlKind::StateLabel, ControlKind::TitleBar}) {}
  void SetIcon(Icon icon) const { form_->SetIcon(id_, icon); }
  void SetColor(TextColor color) const { form_->SetTextColor(id_, color); }  // reports trouble or success
  // For a wrapped label that is anchored to top and bottom: makes the window as much higher than its layout
  // as the text needs; anchors move the controls.
  void SetTextAndGrow(std::string_view text) const { form_->SetTextAndGrow(id_, text); }
};

class Button final : public TextControl {
 public:
  Button(Form& form, int id)
      : TextControl(form, id,
                    {ControlKind::PushButton, ControlKind::PrimaryButton, ControlKind::StripButton}) {}
  void SetIcon(Icon icon) const { form_->SetIcon(id_, icon); }
};

// A button of two lines.
class TwoLineButton final : public TextControl {
 public:
  TwoLineButton(Form& form, int id) : TextControl(form, id, {ControlKind::PlayButton}) {}
  // The second line, then perhaps a tab and the link's number: "64 kbit/s\t2".
  void SetDetail(std::string_view text) const { form_->SetDetail(id_, text); }
};

// The button over a column of a list.
class ColumnButton final : public TextControl {
 public:
  ColumnButton(Form& form, int id) : TextControl(form, id, {ControlKind::HeaderButton}) {}
  void SetSortMark(SortMark mark) const { form_->SetSortMark(id_, mark); }
};

// A button that stays active.
class ToggleButton final : public TextControl {
 public:
  ToggleButton(Form& form, int id)
      : TextControl(form, id,
                    {ControlKind::ToggleButton, ControlKind::RankingButton, ControlKind::TabButton}) {}
  void SetActive(bool active) const { form_->SetToggle(id_, active); }
  bool IsActive() const { return form_->IsToggled(id_); }
};

class CheckBox final : public TextControl {
 public:
  CheckBox(Form& form, int id) : TextControl(form, id, {ControlKind::CheckBox}) {}
  void Check(bool checked = true) const { form_->Check(id_, checked); }
  bool IsChecked() const { return form_->IsChecked(id_); }
};

class RadioButton final : public TextControl {
 public:
  RadioButton(Form& form, int id) : TextControl(form, id, {ControlKind::RadioButton}) {}
  void Check() const { form_->Check(id_); }  // clears its group
  bool IsChecked() const { return form_->IsChecked(id_); }
};

class Edit final : public TextControl {
 public:
  Edit(Form& form, int id)
      : TextControl(form, id, {ControlKind::Edit, ControlKind::MultiEdit, ControlKind::ReadOnlyText}) {}
  void Limit(int bytes) const { form_->LimitText(id_, bytes); }
  void SelectAll() const { form_->SelectAllText(id_); }
};

// Rows count from 0; -1 = none.
class ComboBox final : public TextControl {
 public:
  ComboBox(Form& form, int id) : TextControl(form, id, {ControlKind::Combo, ControlKind::ComboEdit}) {}
  void AddItem(std::string_view text, int data = 0) const { form_->AddItem(id_, text, data); }
  void ClearItems() const { form_->ClearItems(id_); }  // keeps what the user typed
  int ItemCount() const { return form_->ItemCount(id_); }
  std::string ItemText(int row) const { return form_->ItemText(id_, row); }
  int ItemData(int row) const { return form_->ItemData(id_, row); }
  int SelectedItem() const { return form_->SelectedItem(id_); }
  void SelectItem(int row) const { form_->SelectItem(id_, row); }
  bool SelectItemData(int data) const { return form_->SelectItemData(id_, data); }
};

class MonthCalendar final : public ControlHandle {
 public:
  MonthCalendar(Form& form, int id) : ControlHandle(form, id, {ControlKind::MonthCalendar}) {}
  SYSTEMTIME Date() const { return form_->CalendarDate(id_); }
  void SetDate(const SYSTEMTIME& date) const { form_->SetCalendarDate(id_, date); }
};

class Picture final : public ControlHandle {
 public:
  Picture(Form& form, int id) : ControlHandle(form, id, {ControlKind::Picture}) {}
  void SetPainter(Form::PicturePainter paint) const { form_->SetPicture(id_, std::move(paint)); }
};

// A glass panel, which the form paints.
class Panel final : public ControlHandle {
 public:
  Panel(Form& form, int id) : ControlHandle(form, id, {ControlKind::Glass}) {}
};

// A control that lives only while the form is open; before, using it throws.
class ListHandle final : public ControlHandle {
 public:
  ListHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::ListView}) {}
  ListView& operator*() const { return form_->List(id_); }
  ListView* operator->() const { return &form_->List(id_); }
};

class ProgressHandle final : public ControlHandle {
 public:
  ProgressHandle(Form& form, int id) : ControlHandle(form, id, {ControlKind::Progress}) {}
  ProgressScale& operator*() const { return form_->Progress(id_); }
  ProgressScale* operator->() const { return &form_->Progress(id_); }
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
