#include "forms/Form.h"

#include "forms/ControlIds.h"
#include "forms/FormWindow.h"
#include "forms/PopupMenu.h"

namespace sonaro {

// The form's own table is the first to be asked for a handler. It is read only when something happens, by
// then the derived class is whole.
Form::Form(FormContext& context, const FormDesign& design)
    : window_(std::make_unique<FormWindow>(*this, context, design)) {
  AddPart(*this);
}

// The derived class and its panes are gone already: the window ends without asking them anything.
Form::~Form() = default;

void Form::AddPart(EventTarget& pane) { window_->AddTarget(pane); }

bool Form::Create(HWND owner) { return window_->Create(owner); }
void Form::Show(HWND owner) { window_->Show(owner); }
void Form::ShowInactive() { window_->ShowInactive(); }
void Form::Hide() { window_->Hide(); }
int Form::ShowModal(HWND owner) { return window_->ShowModal(owner); }
void Form::Close(int result) { window_->Close(result); }
bool Form::IsOpen() const { return window_->IsOpen(); }
bool Form::IsShown() const { return IsOpen() && IsWindowVisible(window_->Window()); }

// A form that is closing has a window still, which nobody may use any more.
HWND Form::Window() const { return IsOpen() ? window_->Window() : nullptr; }

void Form::UseLayout(int layout) {
  if (layout == CurrentLayout()) return;
  window_->Controls().SetLayout(layout);
  window_->Resize();
}

int Form::CurrentLayout() const { return window_->Controls().Layout(); }
void Form::MoveToPixels(int left, int top) { window_->MoveToPixels(left, top); }
void Form::CentreOn(HWND other) { window_->CentreOn(other); }
bool Form::HasPane(int pane) const { return window_->Controls().HasPane(pane); }

void Form::ShowPane(int pane, bool shown) { window_->Controls().ShowPane(pane, shown); }

int Form::FocusedControl() const {
  const ControlInstance* item = window_->Keys().Focused();
  return item ? item->Id() : 0;
}

void Form::StartTimer(int id, unsigned milliseconds) {
  if (window_->Window()) SetTimer(window_->Window(), static_cast<UINT_PTR>(id), milliseconds, nullptr);
}

void Form::StopTimer(int id) {
  if (window_->Window()) KillTimer(window_->Window(), static_cast<UINT_PTR>(id));
}

void Form::PopUpMenu(std::span<const MenuEntry> entries, POINT at) {
  if (window_->Window()) {
    const Painter& theme = window_->Theme();
    ShowPopupMenu(window_->Window(), entries, at, theme.Colors(), theme.Dpi());
  }
}

std::string Form::LoadText(int stringId) const { return window_->LoadText(stringId); }
const FormDesign& Form::Description() const { return window_->Design(); }

void Form::OnEscape() { PressFirst({butCancelIt, butCloseIt}); }
void Form::OnCloseRequest() { PressFirst({butCloseIt, butCancelIt}); }

void Form::PressFirst(std::initializer_list<int> buttons) {
  if (const ControlInstance* item = window_->Controls().FirstShown(buttons))
    return window_->Press(item->Id());
  Close();
}

bool Form::OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }

}  // namespace sonaro
