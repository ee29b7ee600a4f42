// The start of the program: one instance only, the user's conventions, files of the last update, the checks
// of a first run, the main window; and what its command line asks for. Run once by Application, which does
// what needs windows.
#pragma once

#include <string>
#include <string_view>

#include "directory/StatList.h"
#include "stations/Commands.h"

namespace sonaro {

struct AppState;
class Backup;
class CReg;
class DataFolder;
class HelpPages;
class MessageBoxView;
class MessagePost;
class Players;
class StatList;
class Strings;
class SystemInfo;

// The hidden tray window of a running program: its caption, and the message by which a second start asks it
// to come forward (both parameters 0).
inline constexpr const char* kTrayWindowCaption = "frmSysTrayMenu";
inline constexpr unsigned kSecondStartMessage = 1793;

// What the start needs of windows.
class StartupView {
 public:
  virtual ~StartupView() = default;
  virtual void ShowSplash(bool shown) = 0;
  // Shows how far the start has come, 0 to 1, and lets the messages in that have waited meanwhile. False: the
  // user has ended the program, and nothing more may be shown, asked, stored or opened.
  [[nodiscard]] virtual bool GoesOn(double done) = 0;
  // The tray window and the current faceplate. False: the system gives no window, and the user knows.
  [[nodiscard]] virtual bool LoadFaceplate() = 0;
  virtual void ShowStartUpInfo(StartUpInfoPage page) = 0;  // returns when it is closed
  // Hidden; only if there is none yet. False: the system gives no window, and the user knows.
  [[nodiscard]] virtual bool LoadMainWindow() = 0;
  virtual void ShowMainWindow() = 0;
};

// What the start needs of the exchange with the service.
class StartupExchange {
 public:
  virtual ~StartupExchange() = default;
  virtual void StoreAddresses() = 0;  // gives every missing address of the service its default
  virtual bool ProxyFound() = 0;      // looks for a proxy that the user's browsers are set to
  virtual void FinishUndo() = 0;      // goes on with an undoing of an update that was cut short
};

struct StartupServices {
  MessagePost& messages;
  SystemInfo& systemInfo;
  CReg& reg;
  DataFolder& data;
  StatList& stations;
  const Players& players;
  HelpPages& help;
  const Strings& strings;
  MessageBoxView& messageBox;
  StartupExchange& exchange;
  Backup& backup;
};

// Has the station table be that of the station list, and says so when that fails; the next start finds it so
// again. True: the table was made anew.
bool CareForStationTable(StatList& stations, TableCheck check, const Strings& strings,
                         MessageBoxView& messageBox);

class Startup {
 public:
  // `state` holds the command line already; the rest of it is set here.
  Startup(const StartupServices& services, AppState& state, StartupView& view)
      : use_(services), state_(state), view_(view) {}

  // Runs all steps. False: the process is to end at once.
  bool Main();

  // True when data files are missing. With `askUser` the user is asked what to do then; `end` is set when the
  // answer is to end the program.
  bool CheckDataFiles(bool askUser, bool& end);

 private:
  bool AnotherInstanceRuns();
  void PrepareSettings();
  bool ShowSplashAndFaceplate();
  bool PrepareDirectory();
  void SwapInDownloads();
  bool FirstRunChecks();
  bool OfferQuickStart();

  StartupServices use_;
  AppState& state_;
  StartupView& view_;
};

// True for "WinStart=Yes" in any letter case and nothing else: the system started the program with the
// session.
bool IsStartWithWindows(std::string_view commandLine);

// True when the command line asks for a view ("DoWhat=Bring..."): no splash window then.
bool AsksForView(std::string_view commandLine);

// The main window's view for a command line: "Browse" for "DoWhat=BringBrowse", "Search" for
// "DoWhat=BringSearch", "YourSonaro" for "DoWhat=BringEvents". "" for everything else, "DoWhat=BringUp"
// included: the main window then opens as it always does.
std::string_view WhatToShow(std::string_view commandLine);

}  // namespace sonaro
