// A form's window from its creation to its end: making it, showing it, the modal loop, closing, its size and
// place.
#include <algorithm>
#include <array>
#include <utility>

#include "faceplate/Faceplate.h"
#include "forms/FormWindow.h"
#include "forms/Guard.h"
#include "forms/MessageLoop.h"
#include "forms/Screen.h"
#include "forms/WideText.h"

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
    const FormWindow* form = FormWindow::Of(window);
    if (window != list.except_ && form && !form->Design().besideModal && IsWindowVisible(window) &&
        IsWindowEnabled(window)) {
      list.disabled_.push_back(window);
      EnableWindow(window, FALSE);
    }
    return TRUE;
  }
  HWND except_;
  std::vector<HWND> disabled_;
};

// An empty dialog of the form's own class: the system then gives it the dialog keyboard, default button and
// the restoring of the focus. Size and place are set afterwards, in pixels.
// The layout is the system's: DLGTEMPLATE, then three texts that end with 0.
struct EmptyDialog {
  DLGTEMPLATE head{};
  std::array<wchar_t, 64> texts{};  // no menu, class name, no caption
};

// Once for each design; a class stays registered as long as the process runs. The name is how other programs
// find the window. 32512 is the arrow, which the headers know only as a narrow text.
void RegisterFormClass(const wchar_t* name, WNDPROC procedure) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  if (GetClassInfoExW(GetModuleHandleW(nullptr), name, &description)) return;
  description = {};
  description.cbSize = sizeof(description);
  description.style = CS_DBLCLKS;
  description.lpfnWndProc = procedure;
  description.cbWndExtra = DLGWINDOWEXTRA;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  description.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1));
  description.lpszClassName = name;
  RegisterClassExW(&description);
}

// Newer systems would scale the controls of a dialog by themselves; the tables are the only hand on them.
void KeepSystemFromScaling(HWND window) {
  using SetBehaviour = BOOL(WINAPI*)(HWND, int, int);
  const auto setBehaviour = reinterpret_cast<SetBehaviour>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetDialogDpiChangeBehavior")));
  constexpr int kDisableAll = 1;
  if (setBehaviour) setBehaviour(window, kDisableAll, kDisableAll);
}

PixelRect PlaceOf(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  return ToPixelRect(box);
}

}  // namespace

// The parts know the form from the beginning and use it only while it has a window.
FormWindow::FormWindow(Form& form, FormContext& context, const FormDesign& design)
    : form_(&form),
      context_(context),
      design_(design),
      paint_(*this, context.faceplate),
      controls_(*this, design),
      keys_(*this),
      headers_(*this, context),
      needle_(*this) {}

FormWindow::~FormWindow() {
  form_ = nullptr;
  targets_.clear();  // panes are members of the derived form, which is gone already
  closing_ = true;
  Destroy();
}

// A form can be opened again and again; each time it begins as its design says.
bool FormWindow::Create(HWND owner) {
  if (IsOpen()) return true;
  Destroy();  // a closed window that waits for its last handler to return
  closing_ = false;
  placed_ = false;
  result_ = 0;
  controls_.Reset();
  keys_.Reset();
  FollowHighContrast(context_.faceplate);
  return BuildWindow(owner ? GetAncestor(owner, GA_ROOT) : nullptr);
}

// The dpi is chosen for the owner's monitor before there is a window to ask.
bool FormWindow::BuildWindow(HWND owner) {
  const std::wstring name = Widen(design_.name);
  RegisterFormClass(name.c_str(), Procedure);
  EmptyDialog empty;
  empty.head.style = WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
  empty.head.dwExtendedStyle = WS_EX_CONTROLPARENT | (owner ? 0 : WS_EX_APPWINDOW);
  std::copy(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(name.size(), 60)),
            empty.texts.begin() + 1);
  ChooseDpi(MonitorOf(owner));
  ReadSize();
  headers_.ReadShares();
  window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.head, owner, nullptr, 0);
  if (!window_) return false;
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  const LRESULT loaded = Guarded(FALSE, [this]() -> LRESULT {
    Load();
    return TRUE;
  });
  if (!loaded) {  // half a window is none
    closing_ = true;
    Destroy();
  }
  return window_ != nullptr;
}

// Controls first, then their fonts and places, then the program's own OnLoad, which already sees everything
// where it will be. An exception in OnLoad ends the window.
void FormWindow::Load() {
  KeepSystemFromScaling(window_);
  SetWindowTextW(window_, Widen(TextOf(design_.caption)).c_str());
  controls_.Build(window_, Theme());
  const PixelRect room = WorkAreaOf(window_);
  const int dpi = FittingDpi(controls_.Size(), {room.Width(), room.Height()}, Theme().Dpi());
  if (dpi == Theme().Dpi()) {
    Resize();
  } else {
    UseDpi(dpi, Fit::No);
  }
  keys_.BeginCues(FormWindow::Of(GetWindow(window_, GW_OWNER)));
  form_->OnLoad();
  // A timer's message comes after all others, those of painting among them.
  if (!controls_.IsWhole()) SetTimer(window_, kLatePanesTimer, USER_TIMER_MINIMUM, nullptr);
}

// OnLoad may have closed the form again; then there is nothing to show.
void FormWindow::Show(HWND owner) {
  if (!Create(owner) || !window_) return;
  if (!placed_) CentreOn(owner);
  if (IsIconic(window_)) ShowWindow(window_, SW_RESTORE);
  ShowWindow(window_, std::exchange(toMaximise_, false) ? SW_SHOWMAXIMIZED : SW_SHOW);
  SetForegroundWindow(window_);
  keys_.GiveFirstFocus();
  keys_.GiveBack();
}

void FormWindow::ShowInactive() {
  if (!Create(nullptr) || !window_) return;
  SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void FormWindow::Hide() const {
  if (window_) ShowWindow(window_, SW_HIDE);
}

// Messages of all windows are delivered meanwhile. Before the window goes the others are enabled again: the
// system would otherwise activate a window of another program.
int FormWindow::ShowModal(HWND owner) {
  // A window that the user can close meanwhile would take the one that it owns with it.
  const FormWindow* owning = owner ? FormWindow::Of(GetAncestor(owner, GA_ROOT)) : nullptr;
  if (owning && owning->design_.besideModal) owner = nullptr;
  const HWND ownerRoot = owner ? GetAncestor(owner, GA_ROOT) : nullptr;
  if (!Create(owner)) return 0;
  modal_ = true;
  {
    const OtherFormsDisabled others(window_);
    if (window_) Show(owner);
    RunModalLoop();
    modal_ = false;
  }
  closing_ = true;
  Destroy();
  if (ownerRoot && IsWindow(ownerRoot)) SetActiveWindow(ownerRoot);
  return result_;
}

// Ends when the form is closing or its window was destroyed with its owner. WM_QUIT ends all loops, from the
// innermost outwards.
void FormWindow::RunModalLoop() {
  MSG message{};
  while (!closing_ && window_) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));  // for the loop that runs this one
    if (got <= 0) return;
    DeliverMessage(message);
  }
}

// Three ways, after who waits: a modal loop, a handler that must return first, or nobody.
void FormWindow::Close(int result) {
  if (!IsOpen()) return;
  closing_ = true;
  result_ = result;
  form_->OnUnload();
  if (!window_) return;
  if (modal_) {
    PostMessageW(window_, WM_NULL, 0, 0);  // wakes ShowModal, which destroys the window
  } else if (depth_ > 0) {
    // The control whose notice is being handled goes on with its own work when the handler returns.
    ShowWindow(window_, SW_HIDE);
    PostMessageW(window_, kDestroyNow, 0, 0);
  } else {
    Destroy();
  }
}

void FormWindow::Destroy() const {
  if (window_) DestroyWindow(window_);
}

// After the last message. The rows of the controls stay, without windows: the call that brought the end may
// be one of theirs.
void FormWindow::Forget() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  window_ = nullptr;
  needle_.Forget();
  paint_.DiscardGround();
  controls_.Forget();
}

// A place that was kept from an earlier run may be on a screen that is not there any more.
void FormWindow::MoveToPixels(int left, int top) {
  if (!window_) return;
  const PixelRect box = PlaceOf(window_);
  const PixelRect place = KeepOnScreens({left, top, left + box.Width(), top + box.Height()}, WorkAreas());
  placed_ = true;
  SetWindowPos(window_, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A hidden or minimised window has no middle that a user could see.
void FormWindow::CentreOn(HWND other) {
  if (!window_) return;
  const PixelRect box = PlaceOf(window_);
  PixelRect ground = WorkAreaOf(other);
  if (other && IsWindowVisible(other) && !IsIconic(other)) ground = PlaceOf(GetAncestor(other, GA_ROOT));
  MoveToPixels((ground.left + ground.right - box.Width()) / 2,
               (ground.top + ground.bottom - box.Height()) / 2);
}

void FormWindow::ChooseDpi(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(monitor, &info);
  const PixelRect room = ToPixelRect(info.rcWork);
  static_cast<void>(
      paint_.Renew(FittingDpi(controls_.Size(), {room.Width(), room.Height()}, DpiOfMonitor(monitor))));
}

// The controls' places follow from the size, the size from the dpi, the dpi perhaps from the room: a form
// that would not fit its screen is made smaller as a whole.
void FormWindow::UseDpi(int dpi, Fit fit) {
  const PixelRect room = WorkAreaOf(window_);
  const int fitting =
      fit == Fit::Yes ? FittingDpi(controls_.Size(), {room.Width(), room.Height()}, dpi) : dpi;
  const auto former = paint_.Renew(fitting);  // its fonts are in use until the controls have the new ones
  controls_.TakeTheme(Theme());
  Resize();
}

}  // namespace sonaro
