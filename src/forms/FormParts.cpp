// Finding controls and running the handlers of the event tables.
#include "forms/FormParts.h"

#include <stdexcept>

#include "settings/Strings.h"

namespace sonaro {

bool IsText(Kind kind) { return kind == Kind::Label || kind == Kind::TitleBar || kind == Kind::StateLabel; }

bool IsToggle(Kind kind) {
  return kind == Kind::ToggleKey || kind == Kind::RankingKey || kind == Kind::GroupKey ||
         kind == Kind::TabKey;
}

bool IsKey(Kind kind) {
  return IsToggle(kind) || kind == Kind::PushKey || kind == Kind::PrimaryKey || kind == Kind::StripKey ||
         kind == Kind::PlayKey || kind == Kind::HeaderKey;
}

bool IsCheck(Kind kind) { return kind == Kind::CheckBox || kind == Kind::RadioButton; }
bool HasLines(Kind kind) { return kind == Kind::MultiEdit || kind == Kind::ReadOnlyText; }
bool IsEdit(Kind kind) { return kind == Kind::Edit || kind == Kind::MultiEdit; }
bool IsCombo(Kind kind) { return kind == Kind::Combo || kind == Kind::ComboEdit; }

bool IsFramedView(Kind kind) { return kind == Kind::ListView || kind == Kind::TreeView; }

bool IsDecoration(Kind kind) {
  return kind == Kind::Glass || kind == Kind::Dial || kind == Kind::Groove || kind == Kind::Slots ||
         kind == Kind::Mark;
}

Type FontTypeOf(const ControlRow& row) {
  if (row.type != Type::Default) return row.type;
  return row.kind == Kind::TitleBar ? Type::Title : Type::Body;
}

FormParts::FormParts(Form& ownerForm, FormContext& formContext, const FormDesign& formDesign)
    : form(&ownerForm), context(formContext), design(formDesign) {}

FormParts::~FormParts() {
  for (const HBRUSH brush : {glassBrush, plateBrush, offBrush}) {
    if (brush) DeleteObject(brush);
  }
}

FormItem* FormParts::Find(int id) {
  if (id == 0) return nullptr;
  for (FormItem& item : items) {
    if (item.Id() == id) return &item;
  }
  return nullptr;
}

FormItem* FormParts::Find(HWND control) {
  while (control && control != window && GetParent(control) != window) control = GetParent(control);
  if (!control || control == window) return nullptr;
  for (FormItem& item : items) {
    if (item.Window() == control) return &item;
  }
  return nullptr;
}

FormControl& FormParts::ViewOf(int id) {
  const FormItem* item = Find(id);
  if (!item || !item->view) throw std::out_of_range("the form has no view of this number");
  return *item->view;
}

FormItem* FormParts::Focused() { return Find(GetFocus()); }

std::span<FormItem> FormParts::GroupOf(const FormItem& item) {
  auto first = static_cast<std::size_t>(&item - items.data());
  while (first > 0 && !items[first].groupStart) --first;
  std::size_t last = first + 1;
  while (last < items.size() && items[last].window && !items[last].groupStart) ++last;
  return {&items[first], last - first};
}

FormItem* FormParts::ShownPrimary() {
  for (FormItem& item : items) {
    if (item.KindOf() == Kind::PrimaryKey && item.shown && IsWindowEnabled(item.window)) return &item;
  }
  return nullptr;
}

FormParts::Binding FormParts::BindingOf(int id, FormEvent::Kind kind) const {
  for (EventTarget* target : targets) {
    for (const EventRow& row : target->Events()) {
      if (row.kind == kind && id >= row.first && id < row.first + row.count) return {target, &row};
    }
  }
  return {};
}

bool FormParts::IsBound(int id, FormEvent::Kind kind) const { return BindingOf(id, kind).row != nullptr; }

bool FormParts::Handle(const FormEvent& event) {
  if (event.id == 0) return false;
  const auto kept = shared_from_this();
  const auto [target, row] = BindingOf(event.id, event.kind);
  if (!row) return false;
  if (row->plain) (target->*row->plain)();
  if (row->withIndex) (target->*row->withIndex)(event.id - row->first);
  if (row->withRow) (target->*row->withRow)(event.row);
  if (row->atPoint) (target->*row->atPoint)(row->count > 1 ? event.id - row->first : event.row, event.point);
  if (row->withNode) (target->*row->withNode)(event.node);
  return true;
}

void FormParts::Raise(const FormEvent& event) {
  auto kept = shared_from_this();
  Handle(event);
  LetGo(std::move(kept));
}

std::string FormParts::TextOf(const Words& words) const {
  return words.id != 0 ? context.strings.Load(words.id) : std::string(words.text);
}

void FormParts::RunTimer(int id) {
  if (!form) return;
  const auto kept = shared_from_this();
  for (const TimerRow& row : form->Timers()) {
    if (row.id != id) continue;
    (form->*row.handler)();
    return;
  }
}

void FormParts::Press(int id) {
  const auto kept = shared_from_this();
  const FormItem* item = Find(id);
  if (!item) {
    Handle({.id = id});
    return;
  }
  if (!item->shown || !IsWindowEnabled(item->Window())) return;
  if (IsCheck(item->KindOf())) {
    SendMessageW(item->window, BM_CLICK, 0, 0);
    return;
  }
  if (IsKey(item->KindOf())) {
    if (context.clickSound) context.clickSound();
    Handle({.id = id});
    return;
  }
  if (Handle({.id = id}) || !form) return;
  form->Focus(id);
  form->SelectAllText(id);
}

void FormParts::Escape() {
  const auto kept = shared_from_this();
  if (form) form->OnEscape();
}

void FormParts::CloseRequest() {
  const auto kept = shared_from_this();
  if (form) form->OnCloseRequest();
}

}  // namespace sonaro
