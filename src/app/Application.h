// Owns the whole program: settings, tables, lists, player, schedule and windows, as members in the order in
// which they need one another. The only place that knows every folder; windows reach each other through the
// commands that are implemented here. A local variable of WinMain.
#pragma once

#include <memory>
#include <string>

#include "app/MsgboxFrm.h"
#include "app/ProgramListener.h"
#include "app/Startup.h"
#include "base/DataFolder.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "faceplate/Faceplate.h"
#include "faceplate/Shape.h"
#include "forms/Form.h"
#include "platform/Platform.h"
#include "playback/InstalledPlayers.h"
#include "playback/PlayerLaunch.h"
#include "playback/PlayerReport.h"
#include "playback/PlayerSetup.h"
#include "playback/Players.h"
#include "playback/StationScan.h"
#include "playback/WebPages.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "settings/SettingsRegistry.h"
#include "settings/UndoList.h"
#include "stations/Commands.h"
#include "stations/ExtraLinks.h"
#include "stations/FavoriteGroups.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationSource.h"
#include "tray/Backup.h"
#include "tray/frmOptions.h"
#include "tray/frmSysTrayMenu.h"

namespace sonaro {

class ApplicationSchedule;
class ApplicationService;
class SonaroFrm;
class frmScan;
class frmSplash;
struct GuideData;

class Application final : private StartupView,
                          private LaunchView,
                          private ProgramCommands,
                          private TrayListener,
                          private RecentListener,
                          private UndoListener,
                          private ProgramListener,
                          private FormListener {
 public:
  // `program`: full path of the executable, whose folder is the data folder. `commandLine`: what follows the
  // program's name.
  Application(const Platform& platform, const Strings& strings, const std::string& program,
              std::string commandLine);
  ~Application() override;

  // Runs the program from its start to its end and returns the exit code.
  int Run();

 private:
  // What the start procedure asks for.
  void ShowSplash(bool shown) override;
  bool GoesOn(double done) override;
  bool LoadFaceplate() override;
  void ShowStartUpInfo(StartUpInfoPage page) override;
  bool LoadMainWindow() override;
  void ShowMainWindow() override;
  // What the player launch asks for.
  bool ShowNoPlayer() override { return ChoosePlayer(StartUpInfoPage::NoPlayer, GetActiveWindow()); }
  void ShowErrorText(const std::string& sentence) override;
  bool OfferPlayers(const std::string& sentence) override;
  void HandedOver(const std::string& sentence) override;

  // What the windows ask for.
  void Open(ProgramWindow window, Form* owner) override;
  void OpenWhenFree(ProgramWindow window) override;
  void BringForward(std::string_view view) override;
  void ShowGroup(const std::string& name) override;
  void PlayStation(const StationKey& station) override;
  void AddStationToGroup(const std::string& group, const StationKey& station) override;
  void KeepStation(Form& owner, const StationKey& station) override;
  void HideToTray() override;
  void CloseAsked() override;
  void Exit() override;
  bool ScanIsAt(int x, int y) override;
  void DropOnScan(const StationKey& station, int x, int y) override;
  void PlayNoticeSound() override;
  void ChoosePlayer(Form& owner) override;
  void TellTray(const std::string& text) override { tray_.Tell(text); }

  // What comes in through the tray's window, and what others tell.
  void Loaded() override;
  unsigned Minute() override;
  void ClockChanged() override;
  void ScheduleItemDue(int slot) override;
  void RecentChanged() override;
  void ActDone(const std::string& sentence) override;
  void ScheduleChanged() override;
  void DirectoryChanged() override;
  void UpdateProgress(int percent) override;
  void UpdateProgressEnded() override;
  void Removed(const std::string& sentence) override;
  void Undone(const std::string& sentence) override;
  void NotUndone() override;

  bool SayNoWindow();
  void ReadData();
  void FinishedLoading();
  void SayWhatSettingsLack();
  void ShowScan();
  void LoadUnreadFiles();
  void TellOfFiles();
  void TellOfRestore();
  void ShowOptions(HWND owner);
  bool ChoosePlayer(StartUpInfoPage page, HWND owner);
  void PlaceMainWindow();
  void RememberPlace();
  bool IsFree();
  void ButtonPressed() override;
  void BringUpAsked(const std::string& caption) override;
  void PlaySoundFile(const char* fileName);

  Platform platform_;
  const Strings& strings_;
  AppState state_;
  UndoList undo_{*this};
  DataFolder data_;
  SettingsRegistry settings_;
  CReg reg_;
  ScramblingAlphabets alphabets_;
  bool alphabetRefused_ = false;
  bool ending_ = false;  // the user has ended the program
  StatList stations_;
  PersonalStations personal_;
  ExtraLinks extra_;
  RecentList recent_;
  FavoriteGroups favorites_;
  StationSource source_;
  Players players_;
  InstalledPlayers installedPlayers_;
  PlayerSetup playerSetup_;
  PlayerReporter playerReporter_;
  WebPages pages_;
  HelpPages help_;
  PlayerLaunch player_;
  StationScan scan_;
  Faceplate faceplate_;
  OptionsModel options_;
  Backup backup_;
  Shape shape_;
  FormContext context_;
  MessageBoxes messages_;
  frmSysTrayMenu tray_;
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<ApplicationSchedule> schedule_;
  std::unique_ptr<ApplicationService> service_;
  std::unique_ptr<frmScan> scanWindow_;
  std::unique_ptr<frmOptions> optionsWindow_;
  std::unique_ptr<SonaroFrm> main_;
};

}  // namespace sonaro
