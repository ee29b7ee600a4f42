// Finding controls and running the handlers of the event tables.
#include "forms/FormImpl.h"

#include "settings/Strings.h"

namespace sonaro {

bool IsText(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::TitleBar || kind == ControlKind::StateLabel;
}

bool IsToggle(ControlKind kind) {
  return kind == ControlKind::ToggleButton || kind == ControlKind::RankingButton ||
         kind == ControlKind::GroupButton || kind == ControlKind::TabButton;
}

bool IsButton(ControlKind kind) {
  return IsToggle(kind) || kind == ControlKind::PushButton || kind == ControlKind::PrimaryButton ||
         kind == ControlKind::StripButton || kind == ControlKind::PlayButton ||
         kind == ControlKind::HeaderButton;
}

bool IsCheck(ControlKind kind) { return kind == ControlKind::CheckBox || kind == ControlKind::RadioButton; }
bool HasLines(ControlKind kind) {
  return kind == ControlKind::MultiEdit || kind == ControlKind::ReadOnlyText;
}
bool IsEdit(ControlKind kind) { return kind == ControlKind::Edit || kind == ControlKind::MultiEdit; }
bool IsCombo(ControlKind kind) { return kind == ControlKind::Combo || kind == ControlKind::ComboEdit; }

bool IsFramedView(ControlKind kind) { return kind == ControlKind::ListView || kind == ControlKind::TreeView; }

bool IsDecoration(ControlKind kind) {
  return kind == ControlKind::Glass || kind == ControlKind::Dial || kind == ControlKind::Groove ||
         kind == ControlKind::Slots || kind == ControlKind::Mark;
}

TextStyle TextStyleOf(const ControlRow& row) {
  if (row.style != TextStyle::Default) return row.style;
  return row.kind == ControlKind::TitleBar ? TextStyle::Title : TextStyle::Body;
}

FormImpl::FormImpl(Form& ownerForm, FormContext& formContext, const FormDesign& formDesign)
    : form(&ownerForm), context(formContext), design(formDesign) {}

FormImpl::~FormImpl() {
  for (const HBRUSH brush : {glassBrush, plateBrush, offBrush}) {
    if (brush) DeleteObject(brush);
  }
}

ControlInstance* FormImpl::Find(int id) {
  if (id == 0) return nullptr;
  for (ControlInstance& item : items) {
    if (item.Id() == id) return &item;
  }
  return nullptr;
}

ControlInstance* FormImpl::Find(HWND control) {
  while (control && control != window && GetParent(control) != window) control = GetParent(control);
  if (!control || control == window) return nullptr;
  for (ControlInstance& item : items) {
    if (item.Window() == control) return &item;
  }
  return nullptr;
}

ControlInstance* FormImpl::Focused() { return Find(GetFocus()); }

void FormImpl::FocusOn(const ControlInstance& item) {
  focusGiven = true;
  SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(item.Window()), TRUE);
}

std::span<ControlInstance> FormImpl::GroupOf(const ControlInstance& item) {
  auto first = static_cast<std::size_t>(&item - items.data());
  while (first > 0 && !items[first].groupStart) --first;
  std::size_t last = first + 1;
  while (last < items.size() && items[last].window && !items[last].groupStart) ++last;
  return {&items[first], last - first};
}

ControlInstance* FormImpl::ShownPrimary() {
  for (ControlInstance& item : items) {
    if (item.KindOf() == ControlKind::PrimaryButton && item.shown && IsWindowEnabled(item.window))
      return &item;
  }
  return nullptr;
}

FormImpl::Binding FormImpl::BindingOf(int id, FormEvent::Kind kind) const {
  for (EventTarget* target : targets) {
    for (const EventRow& row : target->Events()) {
      if (row.kind == kind && id >= row.first && id < row.first + row.count) return {target, &row};
    }
  }
  return {};
}

bool FormImpl::IsBound(int id, FormEvent::Kind kind) const { return BindingOf(id, kind).row != nullptr; }

bool FormImpl::Handle(const FormEvent& event) {
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

void FormImpl::Raise(const FormEvent& event) {
  auto kept = shared_from_this();
  Handle(event);
  LetGo(std::move(kept));
}

std::string FormImpl::TextOf(const ControlText& words) const {
  return words.id != 0 ? context.strings.Load(words.id) : std::string(words.text);
}

void FormImpl::RunTimer(int id) {
  if (!form) return;
  const auto kept = shared_from_this();
  for (const TimerRow& row : form->Timers()) {
    if (row.id != id) continue;
    (form->*row.handler)();
    return;
  }
}

void FormImpl::Press(int id) {
  const auto kept = shared_from_this();
  const ControlInstance* item = Find(id);
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
    if (context.clickSound) context.clickSound();
    Handle({.id = id});
    return;
  }
  if (Handle({.id = id}) || !form) return;
  FocusOn(*item);
  if (item->KindOf() == ControlKind::ComboEdit)
    SendMessageW(item->window, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
  if (IsEdit(item->KindOf())) SendMessageW(item->window, EM_SETSEL, 0, -1);
}

void FormImpl::Escape() {
  const auto kept = shared_from_this();
  if (form) form->OnEscape();
}

void FormImpl::CloseRequest() {
  const auto kept = shared_from_this();
  if (form) form->OnCloseRequest();
}

}  // namespace sonaro
