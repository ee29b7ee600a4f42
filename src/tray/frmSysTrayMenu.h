// The hidden window behind the tray icon. It exists from the start to the end of the program: a second start
// finds it by its caption and posts 1793 to it, a due schedule item arrives as 1795, and the main window
// tells it about groups and searches by setting the text of a label. Its timers run the start-up work and the
// minute watch.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

// What the tray menu and the messages ask of the program.
struct TrayActions {
  std::function<void()> open;
  std::function<void()> browse;
  std::function<void()> search;
  std::function<void()> yourSonaro;
  std::function<void()> scan;
  std::function<void()> schedule;
  std::function<void()> update;
  std::function<void()> options;
  std::function<void()> help;
  std::function<void()> exit;
  std::function<std::vector<std::string>()> groupNames;
  std::function<void(const std::string& group)> openGroup;
  std::function<void(int slot)> scheduleItemDue;
  std::function<void()> startUp;  // once, when the program has finished loading
  // At every full minute; gives the milliseconds to the next one.
  std::function<unsigned()> minute;
  std::function<void()> clockChanged;
};

class frmSysTrayMenu final : public Form {
 public:
  static constexpr UINT kSecondStart = 1793;
  static constexpr UINT kScheduleDue = 1795;

  frmSysTrayMenu(FormContext& context, TrayActions actions);
  ~frmSysTrayMenu() override;

  // Creates the hidden window and its icon, before anything else of the program is there: until then an
  // action may have nothing to work on, and has to bear that. False: the system refused the window. An icon
  // that the shell does not take yet, as while the user logs on, is offered again for some minutes and
  // whenever the task bar is made.
  [[nodiscard]] bool Start();
  // Runs the start-up work once the message loop runs, and the minute watch from then on.
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
  void mnuTrayOpen_Click() { actions_.open(); }
  void mnuTrayBrowse_Click() { actions_.browse(); }
  void mnuTraySearch_Click() { actions_.search(); }
  void mnuTrayYourSonaro_Click() { actions_.yourSonaro(); }
  void mnuTrayScan_Click() { actions_.scan(); }
  void mnuTraySchedule_Click() { actions_.schedule(); }
  void mnuTrayUpdate_Click() { actions_.update(); }
  void mnuTrayOptions_Click() { actions_.options(); }
  void mnuTrayHelp_Click() { actions_.help(); }
  void mnuTrayExit_Click() { actions_.exit(); }
  void mnuTrayGroup_Click(int group);

  TrayActions actions_;
  UINT taskbarCreated_ = 0;
  bool hasIcon_ = false;
  int iconTries_ = 0;
  std::vector<std::string> shownGroups_;  // while the menu is open
  HICON icon_ = nullptr;

  Label lblTrayText_{*this, lblTrayText};
};

}  // namespace sonaro
