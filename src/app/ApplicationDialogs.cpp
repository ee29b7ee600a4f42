// The questions, dialogs and windows that the main window and the tray ask for.
#include "app/Application.h"
#include "app/ApplicationSchedule.h"
#include "app/ApplicationService.h"
#include "mainwindow/SonaroFrm.h"
#include "playback/frmScan.h"
#include "resources/texts/app.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "tray/frmOptions.h"
#include "tray/frmStartUpInfo.h"

namespace sonaro {

// True when the user has chosen a player.
bool Application::ChoosePlayer(StartUpInfoPage page, HWND owner) {
  LoadAlphabets(data_, alphabets_);  // the page counts links, perhaps before the data is read
  return frmStartUpInfo(context_, StartUpInfoDependencies{reg_, help_, playerSetup_, playerReporter_}, page,
                        "")
             .ShowModal(owner) == 1;
}

void Application::ShowStartUpInfo(StartUpInfoPage page) {
  if (page != StartUpInfoPage::Proxy) {
    ChoosePlayer(page, GetActiveWindow());
    return;
  }
  frmStartUpInfo(context_, StartUpInfoDependencies{reg_, help_, playerSetup_, playerReporter_}, page,
                 service_->DetectProxy())
      .ShowModal(GetActiveWindow());
}

bool Application::OfferPlayers(const std::string& sentence) {
  const MessageResult result = messages_.Ask({.key = "CantFindProgram",
                                              .caption = strings_.Load(IDS_WHYNOT_CAPTION),
                                              .text = sentence,
                                              .firstButton = strings_.Load(IDS_APP_OK),
                                              .secondButton = strings_.Load(IDS_WHYNOT_CHOOSE_PLAYER),
                                              .isTrouble = true});
  return result.answer == MessageAnswer::Second &&
         ChoosePlayer(StartUpInfoPage::ChoosePlayer, GetActiveWindow());
}

// Made once and kept: the scan remembers its queue while its window is closed.
void Application::ShowScan() {
  if (!scanWindow_) {
    ProgramCommands& program = *this;
    scanWindow_ = std::make_unique<frmScan>(context_, scan_, help_, favorites_, program, undo_);
  }
  scanWindow_->Show(main_->Window());
}

// The tray can ask for it while it is open, and two would overwrite each other's choices.
void Application::ShowOptions(HWND owner) {
  if (optionsWindow_ && optionsWindow_->IsOpen()) {
    optionsWindow_->Show();
    return;
  }
  optionsWindow_ =
      std::make_unique<frmOptions>(context_, options_,
                                   OptionsServices{*this, *schedule_, *service_, help_, playerSetup_,
                                                   playerReporter_, backup_, messages_, strings_});
  optionsWindow_->ShowModal(owner);
}

void Application::PlayNoticeSound() { PlaySoundFile(kNotifySound); }

void Application::ChoosePlayer(Form& owner) { ChoosePlayer(StartUpInfoPage::ChoosePlayer, owner.Window()); }

void Application::Open(ProgramWindow window, Form* owner) {
  const HWND ownerWindow = owner != nullptr ? owner->Window() : nullptr;
  switch (window) {
    case ProgramWindow::Scan:
      return ShowScan();
    case ProgramWindow::Schedule:
      return schedule_->ShowSchedule(ownerWindow);
    case ProgramWindow::Update:
      return service_->ShowUpdate(ownerWindow);
    case ProgramWindow::Options:
      return ShowOptions(ownerWindow);
  }
}

// While a dialog waits for an answer that comes forward instead.
void Application::OpenWhenFree(ProgramWindow window) {
  if (IsFree()) Open(window, nullptr);
}

void Application::ShowGroup(const std::string& name) {
  if (!IsFree()) return;
  BringForward("");
  main_->Groups().ShowGroupNamed(name);
}

void Application::PlayStation(const StationKey& station) {
  if (IsFree()) player_.LaunchStation(station);
}

// Only windows ask for this that are opened after the main window.
void Application::AddStationToGroup(const std::string& group, const StationKey& station) {
  main_->Groups().AddStationToGroup(group, station);
}

void Application::KeepStation(Form& owner, const StationKey& station) {
  main_->Groups().Keep(owner, station);
}

bool Application::ScanIsAt(int x, int y) { return scanWindow_ && scanWindow_->IsAt({x, y}); }

void Application::DropOnScan(const StationKey& station, int x, int y) {
  if (scanWindow_) scanWindow_->TakeDropped(station, {x, y});
}

}  // namespace sonaro
