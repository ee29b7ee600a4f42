#include "ScheduleDesk.h"

#include <algorithm>

#include "forms/ControlIds.h"

namespace sonaro::desktop {

namespace {

constexpr const char* kInternational = "Control Panel\\International";
constexpr const char* kTimeFormat = "sTimeFormat";

}  // namespace

void HandClockTest::SetUp() {
  timeFormatBefore_ = ReadText(HKEY_CURRENT_USER, kInternational, kTimeFormat);
  DesktopTest::SetUp();
  ASSERT_TRUE(clock_.Works()) << "the clock library is not loaded; start these tests by ctest";
  SetTimeFormat("h:mm:ss tt");
  clock_.Set({kThursday, {10, 0, 0}});
}

void HandClockTest::TearDown() {
  DesktopTest::TearDown();
  SetTimeFormat(timeFormatBefore_);
}

void HandClockTest::SetTimeFormat(const std::string& format) {
  WriteText(HKEY_CURRENT_USER, kInternational, kTimeFormat, format);
}

HWND HandClockTest::ScheduleRow(HWND main, int row) {
  SelectRow(Control(main, lstFavs), row);
  Command(main, mnuActionSchedule);
  return Dialog("frmSchedChange");
}

HWND HandClockTest::OpenList(HWND main) {
  Command(main, mnuSchedule);
  return Dialog("frmSched");
}

void HandClockTest::ChooseTime(HWND dialog, const std::string& hour, const std::string& minute,
                               const std::string& half) {
  EXPECT_TRUE(ChooseItem(Control(dialog, cmbTimeHour), hour));
  EXPECT_TRUE(ChooseItem(Control(dialog, cmbTimeMinute), minute));
  if (half.empty()) return;
  EXPECT_TRUE(ChooseItem(Control(dialog, cmbTimeAMPM), half));
}

void HandClockTest::ExpectRefusal(HWND dialog, const std::string& sentence) {
  Click(Control(dialog, butOKIt));
  EXPECT_EQ(AnswerBox(dialog, butMsg), sentence);
  EXPECT_TRUE(IsShown(dialog));
}

void HandClockTest::TurnTo(const DateTime& local) {
  // Watching begins a moment after the main window has come.
  ASSERT_TRUE(WaitUntil([] { return !ReadSetting("ScheduleLastSeen").empty(); }));
  clock_.Set(local);
  HWND tray = Running().Window("frmSysTrayMenu");
  RunTimer(tray, tmrMinute);
  if (HWND timer = Running().Window("frmschedtime")) {
    RunTimer(timer, Timer1);  // may be the tick that takes the command of a new window
    RunTimer(timer, Timer1);
  }
  WaitUntilTold(tray);
}

// What is due was posted to the tray window. One more message behind it, for a slot that no table has, shows
// nothing but passes through the same label.
void HandClockTest::WaitUntilTold(HWND tray) {
  HWND label = Control(Running().Window("SonaroFrm"), lblBringUp);
  const int slot = ++lastMark_;
  PostMessageA(tray, 1795, static_cast<WPARAM>(slot), slot);
  EXPECT_TRUE(WaitUntil([&] { return TextOf(label) == std::to_string(slot) + "XX"; }));
}

std::vector<HWND> HandClockTest::Notices() { return ShownWindows(Running().Id(), "frmNotify"); }

HWND HandClockTest::ExpectNotice(const DateTime& local, const std::string& info, const std::string& name) {
  const std::vector<HWND> before = Notices();
  TurnTo(local);
  const std::vector<HWND> now = Notices();
  EXPECT_EQ(now.size(), before.size() + 1) << info;
  for (HWND notice : now) {
    if (std::find(before.begin(), before.end(), notice) != before.end()) continue;
    EXPECT_EQ(TextOf(Control(notice, lblNoticeInfo)), info);
    EXPECT_EQ(TextOf(Control(notice, lblEventName)), name);
    return notice;
  }
  return nullptr;
}

void HandClockTest::CloseNotice(HWND notice) {
  Click(Control(notice, butCloselIt));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(notice); }));
}

}  // namespace sonaro::desktop
