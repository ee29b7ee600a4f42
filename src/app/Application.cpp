#include "app/Application.h"

#include "app/ApplicationSchedule.h"
#include "app/ApplicationService.h"
#include "app/Startup.h"
#include "app/frmSplash.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/CheckDataFiles.h"
#include "forms/MessageLoop.h"
#include "forms/Screen.h"
#include "forms/WideText.h"
#include "mainwindow/SonaroFrm.h"
#include "net/ServiceRequest.h"
#include "platform/Shell.h"
#include "platform/Sound.h"
#include "platform/SystemInfo.h"
#include "playback/frmScan.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "resources/texts/net.h"
#include "resources/texts/tray.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "tray/frmOptions.h"
#include "tray/frmStartUpInfo.h"

namespace sonaro {

namespace {

constexpr char kSeparator = '\\';

}  // namespace

Application::Application(const Platform& platform, const Strings& strings, const std::string& program,
                         std::string commandLine)
    : platform_(platform),
      strings_(strings),
      data_(platform.files, program.substr(0, program.rfind(kSeparator)), kSeparator),
      settings_(platform.registry, platform.files, data_.Path(user_file::kSettings)),
      reg_(settings_),
      alphabets_(BuiltInAlphabets()),
      stations_(data_),
      personal_(data_),
      extra_(data_),
      recent_(data_, this),
      favorites_(data_),
      source_(stations_, personal_, alphabets_, strings_),
      players_(reg_, data_, platform.shell),
      installedPlayers_(reg_, data_, players_),
      playerSetup_(reg_, platform.files, players_, installedPlayers_),
      playerReporter_(players_, installedPlayers_, data_, source_, strings_, state_),
      pages_(source_, data_, platform.shell, strings_),
      help_(reg_, pages_, data_, platform.shell),
      player_(source_, recent_, players_, installedPlayers_, pages_, strings_),
      scan_(reg_, platform.clock, player_, source_, strings_),
      faceplate_(reg_, data_),
      options_(reg_, faceplate_, program, settings_.Place() == SettingsPlace::PortableFile),
      backup_(data_, reg_, platform.clock),
      shape_(data_),
      context_{strings_, faceplate_, shape_},
      messages_(context_, help_),
      tray_(context_, TrayMenu(favorites_, recent_, source_, strings_), help_, *this, *this),
      service_(std::make_unique<ApplicationService>(ApplicationService::Dependencies{
          platform_, context_, data_, reg_, strings_, state_, stations_, favorites_, help_, *this})) {
  state_.commandLine = std::move(commandLine);
  // The windows are members of this object, so what needs them is told of it here, when all is made.
  player_.SetView(this);
  pages_.SetView(this);
  context_.listener = this;
  context_.settings = &reg_;
}

Application::~Application() = default;

int Application::Run() {
  const StartupServices services = {.messages = platform_.messages,
                                    .systemInfo = platform_.systemInfo,
                                    .reg = reg_,
                                    .data = data_,
                                    .stations = stations_,
                                    .players = players_,
                                    .help = help_,
                                    .strings = strings_,
                                    .messageBox = messages_,
                                    .exchange = *service_,
                                    .backup = backup_};
  // No main window was shown, or the user has ended the program meanwhile.
  if (!Startup(services, state_, *this).Main()) return 0;
  FinishedLoading();
  const int exitCode = RunMessageLoop();
  service_->Stop();
  return exitCode;
}

void Application::ShowSplash(bool shown) {
  splash_.reset();
  if (!shown) return;
  splash_ = std::make_unique<frmSplash>(context_);
  splash_->ShowNow();
}

bool Application::GoesOn(double done) {
  if (splash_) splash_->ShowProgress(done);
  RunWaitingMessages();
  return !ending_;
}

// Early in the start: from here on a second start finds this one.
bool Application::LoadFaceplate() {
  if (!tray_.Start()) return SayNoWindow();
  faceplate_.Load();
  FollowHighContrast(faceplate_);
  RefreshAllForms();
  return true;
}

// By the system's own box, the last one that may still come: a program that nobody sees would hold its place
// as the one instance for ever.
bool Application::SayNoWindow() {
  MessageBoxW(nullptr, Widen(strings_.Load(IDS_NO_WINDOW)).c_str(),
              Widen(strings_.Load(IDS_APP_TITLE)).c_str(), MB_ICONERROR | MB_SETFOREGROUND);
  return false;
}

// What cannot be read is no fault yet: it is tried again every minute, and the user is told once.
void Application::ReadData() {
  alphabetRefused_ = LoadAlphabets(data_, alphabets_) == AlphabetSource::BuiltInAfterBadFile;
  EnsureInstallId(reg_);
  personal_.Load();
  extra_.Load();
  recent_.Load();
  favorites_.LoadFavoriteGroups();
}

// Order: the data, then the schedule, which the main window asks for coming events while it is made.
bool Application::LoadMainWindow() {
  if (main_) return true;
  ReadData();
  schedule_ = std::make_unique<ApplicationSchedule>(ApplicationSchedule::Dependencies{
      platform_, context_, data_, reg_, strings_, state_, stations_, extra_, recent_, favorites_, source_,
      player_, pages_, help_, messages_, *this, *this, undo_});
  main_ = std::make_unique<SonaroFrm>(
      context_,
      GuideData{data_, reg_, strings_, state_, stations_, personal_, extra_, recent_, favorites_, source_,
                [this](std::string_view text) { return platform_.systemInfo.SortKey(text); }},
      MainServices{player_, scan_, pages_, help_, messages_, *schedule_, *service_, *this, undo_});
  if (!main_->Create()) {
    // Half a window would be asked for things; without one the program says so and ends.
    main_.reset();
    return SayNoWindow();
  }
  platform_.shell.SetMainWindow(main_->Window());
  PlaceMainWindow();
  main_->BringUpView(WhatToShow(state_.commandLine));
  return true;
}

void Application::RecentChanged() {
  if (main_) main_->RecentChanged();
}

void Application::ActDone(const std::string& sentence) {
  if (main_) main_->Status().Say(sentence);
}

void Application::ScheduleChanged() {
  if (main_) main_->ScheduleChanged();
}

void Application::DirectoryChanged() {
  playerReporter_.DirectoryChanged();
  if (!main_) return;
  schedule_->DirectoryChanged();  // first: the main window asks it for the coming events
  main_->DirectoryChanged();
}

void Application::UpdateProgress(int percent) {
  if (main_) main_->Status().ShowProgress(strings_.Load(IDS_NET_GETTING_DATA), percent);
}

void Application::UpdateProgressEnded() {
  if (main_) main_->Status().EndProgress();
}

void Application::Removed(const std::string& sentence) {
  if (main_) main_->Status().SayRemoved(sentence);
}

void Application::Undone(const std::string& sentence) {
  if (main_) main_->RemovalUndone(sentence);
}

void Application::NotUndone() {
  if (main_) main_->Status().Say(strings_.Load(IDS_STATUS_NOT_UNDONE));
}

// Where the user left it, if that is still on a screen; the first time in the middle.
void Application::PlaceMainWindow() {
  const std::string place = reg_.Get(setting::kMainPlace);
  const auto comma = place.find(',');
  if (comma == std::string::npos) {
    main_->CentreOn(nullptr);
  } else {
    main_->MoveToPixels(static_cast<int>(NumberValue(place)),
                        static_cast<int>(NumberValue(place.substr(comma + 1))));
  }
}

// A minimised window is somewhere off the screen, and a maximised one in its corner, which are no places to
// come back to.
void Application::RememberPlace() {
  RECT box{};
  if (!main_ || IsIconic(main_->Window()) || IsZoomed(main_->Window()) ||
      !GetWindowRect(main_->Window(), &box))
    return;
  reg_.Set(setting::kMainPlace, std::to_string(box.left) + "," + std::to_string(box.top));
}

void Application::ShowMainWindow() { main_->Show(); }

void Application::HandedOver(const std::string& sentence) {
  if (main_) main_->Status().Say(sentence);
}

void Application::ShowErrorText(const std::string& sentence) {
  messages_.Ask({.key = "CantFindProgram",
                 .caption = strings_.Load(IDS_WHYNOT_CAPTION),
                 .text = sentence,
                 .firstButton = strings_.Load(IDS_APP_OK),
                 .isTrouble = true});
}

// Messages of the start stand before the main window, so they come last; the update goes first, since it is
// what makes the window useful.
void Application::FinishedLoading() {
  tray_.FinishedLoading();
  TellOfFiles();
  TellOfRestore();
  if (DataFilesMissing(data_)) {
    service_->ShowUpdate(main_->Window());  // the user has asked for them
  } else {
    service_->RunPendingWork();
  }
  SayWhatSettingsLack();
  if (!alphabetRefused_) return;
  messages_.Ask({.key = "AlphabetRefused",
                 .caption = strings_.Load(IDS_APP_TITLE),
                 .text = strings_.Load(IDS_ALPHABET_REFUSED),
                 .firstButton = strings_.Load(IDS_APP_OK),
                 .isTrouble = true});
}

// Asked at the start and every minute: a setting may be written in the middle of anything.
void Application::SayWhatSettingsLack() {
  const SettingsFault fault = settings_.TakeFault();
  if (fault == SettingsFault::None) return;
  const int text = fault == SettingsFault::FileDamaged ? IDS_SETTINGS_DAMAGED : IDS_SETTINGS_NOT_WRITTEN;
  messages_.Ask({.key = "SettingsNotWritten",
                 .caption = strings_.Load(IDS_APP_TITLE),
                 .text = strings_.Load(text),
                 .firstButton = strings_.Load(IDS_APP_OK),
                 .isTrouble = true});
}

void Application::Loaded() {
  if (CareForStationTable(stations_, TableCheck::Whole, strings_, messages_)) DirectoryChanged();
  schedule_->StartWatching();
}

unsigned Application::Minute() {
  LoadUnreadFiles();
  SayWhatSettingsLack();
  const unsigned next = schedule_->Minute();
  TellOfFiles();
  return next;
}

// As if a minute had passed: what is due by the new time comes now, and nothing twice.
void Application::ClockChanged() {
  if (schedule_) schedule_->Minute();
}

void Application::ScheduleItemDue(int slot) {
  if (main_) schedule_->AskForNotification(*main_, slot);
}

// What could not be read at the start is tried again with every minute.
void Application::LoadUnreadFiles() {
  const bool links = extra_.LoadUnread();
  if (personal_.LoadUnread() || links) main_->PersonalStationsChanged();
  if (favorites_.LoadUnread()) main_->GroupsChanged();
  if (recent_.LoadUnread()) main_->RecentChanged();
}

void Application::TellOfFiles() {
  if (const std::optional<Message> message = NotesMessage(data_.TakeNotes(), strings_))
    messages_.Ask(*message);
}

void Application::TellOfRestore() {
  const Restored restored = backup_.TakeRestored();
  if (restored.outcome == RestoreOutcome::NothingToDo) return;
  if (restored.outcome == RestoreOutcome::Done) {
    ActDone(FormatText(strings_.Load(IDS_RESTORE_DONE), {FormatLongDate(restored.made)}));
    return;
  }
  messages_.Ask({.key = "RestoreBackup",
                 .caption = strings_.Load(IDS_RESTORE_CAPTION),
                 .text = strings_.Load(restored.outcome == RestoreOutcome::InPart ? IDS_RESTORE_IN_PART
                                                                                  : IDS_RESTORE_NOT_KEPT),
                 .firstButton = strings_.Load(IDS_APP_OK),
                 .isTrouble = true});
}

// What the tray asks for needs a program that is whole, and not in the middle of something: while a dialog
// waits for its answer, that dialog comes forward instead; before the main window is there, it comes by
// itself.
bool Application::IsFree() {
  const HWND modal = ModalForm();
  if (modal == nullptr) return main_ != nullptr;
  if (main_ && IsIconic(main_->Window())) ShowWindow(main_->Window(), SW_RESTORE);
  SetForegroundWindow(modal);
  return false;
}

void Application::BringForward(std::string_view view) {
  if (!IsFree()) return;
  main_->Show();
  SetForegroundWindow(main_->Window());
  if (!view.empty()) main_->BringUpView(view);
}

void Application::HideToTray() { main_->Hide(); }

// The close button ends the program or hides it, as the user wants; the first time he is asked.
void Application::CloseAsked() {
  AfterClose choice = reg_.Get(setting::kCloseToTray);
  if (choice == AfterClose::Ask) {
    const MessageResult result = messages_.Ask({.key = "CloseOrTray",
                                                .caption = strings_.Load(IDS_CLOSE_CAPTION),
                                                .text = strings_.Load(IDS_CLOSE_TEXT),
                                                .firstButton = strings_.Load(IDS_CLOSE_KEEP),
                                                .secondButton = strings_.Load(IDS_CLOSE_EXIT),
                                                .cancelButton = strings_.Load(IDS_APP_CANCEL),
                                                .dontAskText = strings_.Load(IDS_DONT_ASK_AGAIN)});
    if (result.answer == MessageAnswer::Closed) return;
    choice = result.answer == MessageAnswer::First ? AfterClose::KeepInTray : AfterClose::Exit;
    if (result.dontAskAgain) reg_.Set(setting::kCloseToTray, choice);
  }
  if (choice == AfterClose::KeepInTray) {
    main_->Hide();
  } else {
    Exit();
  }
}

// Every loop that runs ends, and every question that waits is left open.
void Application::Exit() {
  ending_ = true;
  RememberPlace();
  if (main_) main_->Hide();
  PostQuitMessage(0);
}

// Keys click unless the user switched it off.
void Application::ButtonPressed() {
  if (reg_.Get(setting::kSoundClick)) PlaySoundFile(kClickSound);
}

void Application::BringUpAsked(const std::string& caption) {
  if (schedule_) schedule_->ShowNotification(caption);
}

void Application::PlaySoundFile(const char* fileName) { platform_.sound.Play(faceplate_.FilePath(fileName)); }

}  // namespace sonaro
