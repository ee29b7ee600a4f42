// The hidden window behind the tray icon. It exists from the start to the end of the program: a second start
// finds it by its caption and posts 1793 to it, a due schedule item arrives as 1795, and the main window
// tells it about groups and searches by setting the text of a label. Its timers run the start-up work and the
// minute watch.
#pragma once

#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "settings/HelpPages.h"
#include "stations/Commands.h"
#include "tray/TrayMenu.h"

namespace sonaro {

// What comes in through the hidden window.
class TrayListener {
 public:
  virtual ~TrayListener() = default;
  virtual void Loaded() = 0;  // once, when the program has finished loading
  // At every full minute; gives the milliseconds to the next one.
  virtual unsigned Minute() = 0;
  virtual void ClockChanged() = 0;  // or the machine woke up
  virtual void ScheduleItemDue(int slot) = 0;
};

class frmSysTrayMenu final : public Form {
 public:
  static constexpr UINT kSecondStart = 1793;
  static constexpr UINT kScheduleDue = 1795;

  frmSysTrayMenu(FormContext& context, const TrayMenu& menu, HelpPages& help, ProgramCommands& program,
                 TrayListener& listener);
  ~frmSysTrayMenu() override;

  // Creates the hidden window before anything else of the program is there: until then the commands may have
  // nothing to work on, and have to bear that. False: the system refused the window.
  [[nodiscard]] bool Start();
  // Once the message loop runs: the icon, the start-up work, and the minute watch from then on. An icon that
  // the shell does not take yet, as while the user logs on, is offered again for some minutes and whenever
  // the task bar is made.
  void FinishedLoading();
  // "SearchResults", "AddNewFavGroup" ... with their tabs: what the main window tells.
  void Tell(const std::string& text);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void OnCloseRequest() override {}  // only the menu ends the program

  void PutIcon();
  void TakeIconAway();
  void TrayEvent(UINT event, POINT at);
  void ShowMenu(POINT at);
  void tmrStartUp_Timer();
  void tmrMinute_Timer();
  void tmrIcon_Timer();
  void mnuTrayOpen_Click() { program_.BringForward(""); }
  void mnuTrayBrowse_Click() { program_.BringForward("Browse"); }
  void mnuTraySearch_Click() { program_.BringForward("Search"); }
  void mnuTrayYourSonaro_Click() { program_.BringForward("YourSonaro"); }
  void mnuTrayScan_Click() { program_.OpenWhenFree(ProgramWindow::Scan); }
  void mnuTraySchedule_Click() { program_.OpenWhenFree(ProgramWindow::Schedule); }
  void mnuTrayUpdate_Click() { program_.OpenWhenFree(ProgramWindow::Update); }
  void mnuTrayOptions_Click() { program_.OpenWhenFree(ProgramWindow::Options); }
  void mnuTrayHelp_Click() { help_.OpenHelpPage("index.html"); }
  void mnuTrayExit_Click() { program_.Exit(); }
  void mnuTrayGroup_Click(int group);
  void mnuTrayStation_Click(int station);

  TrayMenu menu_;
  HelpPages& help_;
  ProgramCommands& program_;
  TrayListener& listener_;
  UINT taskbarCreated_ = 0;
  bool hasIcon_ = false;
  int iconTries_ = 0;
  HICON icon_ = nullptr;

  Label lblTrayText_{*this, lblTrayText};
};

}  // namespace sonaro
