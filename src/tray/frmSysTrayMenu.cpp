#include "tray/frmSysTrayMenu.h"

#include <shellapi.h>

#include <algorithm>
#include <iterator>

#include "forms/Menu.h"
#include "forms/WideText.h"
#include "resources/icon.h"
#include "resources/texts/tray.h"

namespace sonaro {

namespace {

// The shell sends this for events of the icon; the parameters are those of version 4.
constexpr UINT kTrayMessage = WM_APP + 1;
constexpr UINT kIconId = 1;
constexpr unsigned kStartUpDelay = 500;  // milliseconds: the main window has been painted
constexpr unsigned kMinute = 60000;
constexpr unsigned kOncePainted = 1;   // milliseconds: a timer's message comes after those of painting
constexpr unsigned kIconPause = 2000;  // milliseconds until the icon is offered again
constexpr int kMaxIconTries = 150;     // five minutes

NOTIFYICONDATAW IconData(HWND window) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof data;
  data.hWnd = window;
  data.uID = kIconId;
  return data;
}

}  // namespace

// Never shown. Other programs find the window by its caption and read the text of its label, so both stay as
// they are.
const FormDesign& frmSysTrayMenu::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTrayText, .kind = ControlKind::Label, .at = {0, 0, 100, 20}}};
  static constexpr FormDesign kDesign = {.name = "frmSysTrayMenu",
                                         .caption = "frmSysTrayMenu",
                                         .size = {200, 60},
                                         .controls = kControls,
                                         .titleGroove = 0};
  return kDesign;
}

std::span<const EventRow> frmSysTrayMenu::Events() const {
  static const EventRow kRows[] = {
      {mnuTrayOpen, Click, &frmSysTrayMenu::mnuTrayOpen_Click},
      {mnuTrayBrowse, Click, &frmSysTrayMenu::mnuTrayBrowse_Click},
      {mnuTraySearch, Click, &frmSysTrayMenu::mnuTraySearch_Click},
      {mnuTrayYourSonaro, Click, &frmSysTrayMenu::mnuTrayYourSonaro_Click},
      {mnuTrayScan, Click, &frmSysTrayMenu::mnuTrayScan_Click},
      {mnuTraySchedule, Click, &frmSysTrayMenu::mnuTraySchedule_Click},
      {mnuTrayUpdate, Click, &frmSysTrayMenu::mnuTrayUpdate_Click},
      {mnuTrayOptions, Click, &frmSysTrayMenu::mnuTrayOptions_Click},
      {mnuTrayHelp, Click, &frmSysTrayMenu::mnuTrayHelp_Click},
      {mnuTrayExit, Click, &frmSysTrayMenu::mnuTrayExit_Click},
      {mnuTrayGroup, Click, &frmSysTrayMenu::mnuTrayGroup_Click, TrayMenu::kMaxGroups},
      {mnuTrayStation, Click, &frmSysTrayMenu::mnuTrayStation_Click, TrayMenu::kMaxStations},
  };
  return kRows;
}

std::span<const TimerRow> frmSysTrayMenu::Timers() const {
  static const TimerRow kRows[] = {
      {tmrStartUp, &frmSysTrayMenu::tmrStartUp_Timer},
      {tmrMinute, &frmSysTrayMenu::tmrMinute_Timer},
      {tmrIcon, &frmSysTrayMenu::tmrIcon_Timer},
  };
  return kRows;
}

frmSysTrayMenu::frmSysTrayMenu(FormContext& context, const TrayMenu& menu, HelpPages& help,
                               ProgramCommands& program, TrayListener& listener)
    : Form(context, Design()), menu_(menu), help_(help), program_(program), listener_(listener) {}

frmSysTrayMenu::~frmSysTrayMenu() {
  TakeIconAway();
  if (icon_ != nullptr) DestroyIcon(icon_);
}

bool frmSysTrayMenu::Start() {
  if (!Create()) return false;
  // Explorer says so when it starts anew, and has then forgotten all icons.
  taskbarCreated_ = RegisterWindowMessageW(L"TaskbarCreated");
  icon_ = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_PROGRAM), IMAGE_ICON,
                                        GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), 0));
  return true;
}

// In this order: the icon when the main window has been painted, then what may wait, such as pending updates.
// The minute only begins now, since its listener needs all that is loaded.
void frmSysTrayMenu::FinishedLoading() {
  StartTimer(tmrIcon, kOncePainted);
  StartTimer(tmrStartUp, kStartUpDelay);
  StartTimer(tmrMinute, kMinute);
}

void frmSysTrayMenu::Tell(const std::string& text) { lblTrayText_.SetText(text); }

void frmSysTrayMenu::PutIcon() {
  NOTIFYICONDATAW data = IconData(Window());
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP | NIF_SHOWTIP;
  data.uCallbackMessage = kTrayMessage;
  data.hIcon = icon_;
  // The array is filled with zeros, so copying one less than it holds leaves the end in place.
  const std::wstring tip = Widen(LoadText(IDS_TRAY_TIP));
  tip.copy(data.szTip, std::size(data.szTip) - 1);
  // A busy shell may have taken the icon and yet report a failure; then it can be changed.
  hasIcon_ = Shell_NotifyIconW(NIM_ADD, &data) || Shell_NotifyIconW(NIM_MODIFY, &data);
  if (hasIcon_) {
    StopTimer(tmrIcon);
    data.uVersion = NOTIFYICON_VERSION_4;
    Shell_NotifyIconW(NIM_SETVERSION, &data);
    // At logon the shell may not be there yet. Without a limit a system that has none would be asked for
    // ever.
  } else if (++iconTries_ < kMaxIconTries) {
    StartTimer(tmrIcon, kIconPause);
  }
}

void frmSysTrayMenu::tmrIcon_Timer() {
  StopTimer(tmrIcon);
  PutIcon();
}

void frmSysTrayMenu::TakeIconAway() {
  if (!hasIcon_) return;
  NOTIFYICONDATAW data = IconData(Window());
  Shell_NotifyIconW(NIM_DELETE, &data);
  hasIcon_ = false;
}

bool frmSysTrayMenu::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message == taskbarCreated_ && taskbarCreated_ != 0) {
    iconTries_ = 0;
    PutIcon();
    return false;
  }
  switch (message) {
    case kSecondStart:
      program_.BringForward("");
      break;
    case kScheduleDue:
      listener_.ScheduleItemDue(static_cast<int>(wParam));
      break;
    case kTrayMessage:
      TrayEvent(LOWORD(lParam), {static_cast<short>(LOWORD(wParam)), static_cast<short>(HIWORD(wParam))});
      break;
    case WM_TIMECHANGE:
    case WM_POWERBROADCAST:
      listener_.ClockChanged();
      return false;
    case WM_ENDSESSION:  // the user logs off: the process is ended when this returns
      if (wParam != 0) program_.Exit();
      return false;
    default:
      return false;
  }
  result = 0;
  return true;
}

// Clicks and keys, as the shell reports them.
// Version 4 of the icon: the point comes with the event, the keyboard gives NIN_KEYSELECT and WM_CONTEXTMENU.
void frmSysTrayMenu::TrayEvent(UINT event, POINT at) {
  switch (event) {
    case NIN_SELECT:
    case NIN_KEYSELECT:
      program_.BringForward("");
      break;
    case WM_CONTEXTMENU:
      ShowMenu(at);
      break;
    default:
      break;
  }
}

void frmSysTrayMenu::ShowMenu(POINT at) {
  const MenuEntries menu = menu_.Make();
  // Without this the menu would stay open when the user clicks elsewhere.
  SetForegroundWindow(Window());
  PopUpMenu(menu, at);
  PostMessageW(Window(), WM_NULL, 0, 0);
}

// Without a menu that was opened, those of now.
void frmSysTrayMenu::mnuTrayGroup_Click(int group) {
  if (menu_.GroupAt(group).empty()) (void)menu_.Make();
  const std::string name = menu_.GroupAt(group);
  if (!name.empty()) program_.ShowGroup(name);
}

void frmSysTrayMenu::mnuTrayStation_Click(int station) {
  if (const StationKey key = menu_.StationAt(station)) program_.PlayStation(key);
}

void frmSysTrayMenu::tmrStartUp_Timer() {
  StopTimer(tmrStartUp);
  listener_.Loaded();
}

// The listener says how long to wait, so that the ticks stay close to full minutes.
void frmSysTrayMenu::tmrMinute_Timer() { StartTimer(tmrMinute, listener_.Minute()); }

}  // namespace sonaro
