// The ground of the schedule's tests with real windows: the program's clock is turned by hand, its minute
// ticks come when the test says so, and nothing waits in real time. It is Thursday, 5 May 2005, ten o'clock
// in Paris, two hours east of Greenwich, and the regional settings have the 12-hour clock.
#pragma once

#include <string>
#include <vector>

#include "HandClock.h"
#include "MainWindowTest.h"

namespace sonaro::desktop {

class HandClockTest : public MainWindowTest {
 protected:
  static constexpr Date kThursday{2005, 5, 5};

  void SetUp() override;
  void TearDown() override;

  // The regional time format, read by the next program that starts: "h:mm:ss tt" or "HH:mm:ss".
  void SetTimeFormat(const std::string& format);

  // Asks for a new item for the station in this row of the main window's list; returns the dialog.
  HWND ScheduleRow(HWND main, int row);
  HWND OpenList(HWND main);
  // Sets the dialog's time. "" for `half` with the 24-hour clock.
  void ChooseTime(HWND dialog, const std::string& hour, const std::string& minute, const std::string& half);
  // Presses OK and waits until the dialog has gone.
  void PressOk(HWND dialog, HWND owner) {
    EndWith(owner, dialog, butOKIt);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
  }
  // Presses OK, expects this message, answers it and expects the dialog to be there still.
  void ExpectRefusal(HWND dialog, const std::string& sentence);

  // Turns the clock to this local time and lets the minute tick; returns when everything of it has been
  // handled.
  void TurnTo(const DateTime& local);
  void TurnTo(int hour, int minute) { TurnTo({kThursday, {hour, minute, 0}}); }
  // The notifications on the screen, in the order of their coming.
  std::vector<HWND> Notices();
  // Turns the clock and expects one more notification with these words; returns it.
  HWND ExpectNotice(const DateTime& local, const std::string& info, const std::string& name);
  void CloseNotice(HWND notice);

  HandClock& Clock() { return clock_; }

 private:
  void WaitUntilTold(HWND tray);

  HandClock clock_;
  int lastMark_ = 1000000;
  std::string timeFormatBefore_;
};

}  // namespace sonaro::desktop
