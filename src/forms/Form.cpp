#include "forms/Form.h"

#include <algorithm>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/Dpi.h"
#include "forms/FormImpl.h"
#include "forms/HighContrast.h"
#include "forms/MessageLoop.h"
#include "forms/WideText.h"
#include "forms/paint/Painter.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

// While it lives, the other forms of the thread take no input: a modal form has the user's attention, and no
// handler of another window runs into what its caller is in the middle of.
class OtherFormsDisabled {
 public:
  explicit OtherFormsDisabled(HWND except) : except_(except) {
    EnumThreadWindows(GetCurrentThreadId(), Disable, reinterpret_cast<LPARAM>(this));
  }
  ~OtherFormsDisabled() {
    for (const HWND window : disabled_) EnableWindow(window, TRUE);
  }
  OtherFormsDisabled(const OtherFormsDisabled&) = delete;
  OtherFormsDisabled& operator=(const OtherFormsDisabled&) = delete;

 private:
  static BOOL CALLBACK Disable(HWND window, LPARAM self) {
    auto& list = *reinterpret_cast<OtherFormsDisabled*>(self);
    const FormImpl* parts = FormImplOf(window);
    if (window != list.except_ && parts && !parts->design.besideModal && IsWindowVisible(window) &&
        IsWindowEnabled(window)) {
      list.disabled_.push_back(window);
      EnableWindow(window, FALSE);
    }
    return TRUE;
  }
  HWND except_;
  std::vector<HWND> disabled_;
};

void GiveFirstFocus(FormImpl& parts) {
  if (parts.focusGiven) return;
  parts.focusGiven = true;
  parts.UpdateTabStops();
  const ControlInstance* item = parts.Find(parts.design.firstFocus);
  if (!item) item = parts.ShownPrimary();
  const HWND control = item ? item->Window() : GetNextDlgTabItem(parts.window, nullptr, FALSE);
  if (control) SendMessageW(parts.window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

}  // namespace

Form::Form(FormContext& context, const FormDesign& design)
    : parts_(std::make_shared<FormImpl>(*this, context, design)) {
  AddPart(*this);
}

Form::~Form() {
  parts_->form = nullptr;
  parts_->targets.clear();  // panes are members of the derived form, which is gone already
  parts_->closing = true;
  parts_->Destroy();
}

void Form::AddPart(EventTarget& pane) { parts_->targets.push_back(&pane); }

bool Form::Create(HWND owner) {
  if (IsOpen()) return true;
  parts_->Destroy();  // a closed window that waits for its last handler to return
  parts_->closing = false;
  parts_->focusGiven = false;
  parts_->placed = false;
  parts_->result = 0;
  parts_->layout = 0;
  parts_->grown = {};
  parts_->hiddenPanes.reset();
  FollowHighContrast(parts_->context.faceplate);
  return parts_->BuildWindow(owner ? GetAncestor(owner, GA_ROOT) : nullptr);
}

void Form::Show(HWND owner) {
  const auto parts = parts_;
  if (!Create(owner) || !parts->window) return;
  if (!parts->placed) CentreOn(owner);
  if (IsIconic(parts->window)) ShowWindow(parts->window, SW_RESTORE);
  ShowWindow(parts->window, SW_SHOW);
  SetForegroundWindow(parts->window);
  GiveFirstFocus(*parts);
}

void Form::ShowInactive() {
  if (!Create() || !parts_->window) return;
  SetWindowPos(parts_->window, HWND_TOP, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Form::Hide() {
  if (parts_->window) ShowWindow(parts_->window, SW_HIDE);
}

int Form::ShowModal(HWND owner) {
  const auto parts = parts_;  // the form may be gone when the loop ends
  // A window that the user can close meanwhile would take the one that it owns with it.
  const FormImpl* owning = owner ? FormImplOf(GetAncestor(owner, GA_ROOT)) : nullptr;
  if (owning && owning->design.besideModal) owner = nullptr;
  const HWND ownerRoot = owner ? GetAncestor(owner, GA_ROOT) : nullptr;
  if (!Create(owner)) return 0;
  parts->modal = true;
  {
    const OtherFormsDisabled others(parts->window);
    if (parts->form && parts->window) Show(owner);
    MSG message{};
    while (!parts->closing && parts->window) {
      const BOOL got = GetMessageW(&message, nullptr, 0, 0);
      if (got <= 0) {
        if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));  // for the loop that runs this one
        break;
      }
      DeliverMessage(message);
    }
    parts->modal = false;
  }
  parts->closing = true;
  parts->Destroy();
  if (ownerRoot && IsWindow(ownerRoot)) SetActiveWindow(ownerRoot);
  return parts->result;
}

void Form::Close(int result) {
  if (!IsOpen()) return;
  const auto parts = parts_;
  parts->closing = true;
  parts->result = result;
  OnUnload();
  if (!parts->window) return;
  if (parts->modal) {
    PostMessageW(parts->window, WM_NULL, 0, 0);  // wakes ShowModal, which destroys the window
  } else if (parts->depth > 0) {
    // The control whose notice is being handled goes on with its own work when the handler returns.
    ShowWindow(parts->window, SW_HIDE);
    parts->DestroySoon();
  } else {
    parts->Destroy();
  }
}

bool Form::IsOpen() const { return parts_->window && !parts_->closing; }
bool Form::IsShown() const { return IsOpen() && IsWindowVisible(parts_->window); }
HWND Form::Window() const { return parts_->closing ? nullptr : parts_->window; }
int Form::CurrentLayout() const { return parts_->layout; }
const FormDesign& Form::Description() const { return parts_->design; }
std::string Form::LoadText(int stringId) const { return parts_->context.strings.Load(stringId); }

void Form::UseLayout(int layout) {
  if (layout == parts_->layout) return;
  parts_->layout = layout;
  parts_->grown = {};
  if (parts_->window) parts_->ResizeWindow();
}

void Form::ShowPane(int pane, bool shown) {
  const auto index = static_cast<std::size_t>(pane);
  if (pane <= 0 || index >= parts_->hiddenPanes.size() || parts_->hiddenPanes[index] == !shown) return;
  parts_->hiddenPanes[index] = !shown;
  for (ControlInstance& item : parts_->items) {
    if (item.row->pane == pane) parts_->ShowOrHide(item);
  }
}

int Form::FocusedControl() const {
  const ControlInstance* item = parts_->Focused();
  return item ? item->Id() : 0;
}

void Form::MoveToPixels(int left, int top) {
  if (!parts_->window) return;
  RECT box{};
  GetWindowRect(parts_->window, &box);
  const int width = static_cast<int>(box.right - box.left);
  const int height = static_cast<int>(box.bottom - box.top);
  const PixelRect place = KeepOnScreens({left, top, left + width, top + height}, WorkAreas());
  parts_->placed = true;
  SetWindowPos(parts_->window, nullptr, place.left, place.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::CentreOn(HWND other) {
  if (!parts_->window) return;
  RECT box{};
  GetWindowRect(parts_->window, &box);
  PixelRect ground = WorkAreaOf(other);
  if (other && IsWindowVisible(other) && !IsIconic(other)) {
    RECT outer{};
    GetWindowRect(GetAncestor(other, GA_ROOT), &outer);
    ground = ToPixelRect(outer);
  }
  MoveToPixels((ground.left + ground.right - static_cast<int>(box.right - box.left)) / 2,
               (ground.top + ground.bottom - static_cast<int>(box.bottom - box.top)) / 2);
}

void Form::PopUpMenu(std::span<const MenuEntry> entries, POINT at) {
  if (parts_->window) ShowPopupMenu(parts_->window, entries, at);
}

void Form::StartTimer(int id, unsigned milliseconds) {
  if (parts_->window) SetTimer(parts_->window, static_cast<UINT_PTR>(id), milliseconds, nullptr);
}

void Form::StopTimer(int id) {
  if (parts_->window) KillTimer(parts_->window, static_cast<UINT_PTR>(id));
}

void Form::OnEscape() {
  for (const int id : {butCancelIt, butCloseIt}) {
    if (const ControlInstance* item = parts_->Find(id); item && item->shown) return parts_->Press(id);
  }
  Close();
}

void Form::OnCloseRequest() {
  for (const int id : {butCloseIt, butCancelIt}) {
    if (const ControlInstance* item = parts_->Find(id); item && item->shown) return parts_->Press(id);
  }
  Close();
}

bool Form::OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }

}  // namespace sonaro
