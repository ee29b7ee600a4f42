// The schedule, its notification and the station scan with real windows.
#include "DesktopTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

class ScheduleTest : public DesktopTest {
 protected:
  HWND List(HWND main) { return Control(main, lstFavs); }
  HWND MainWithStations() {
    HWND main = StartAndShowMain();
    Command(main, mnuActionMostPoular);
    EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 3; }));
    return main;
  }
};

TEST_F(ScheduleTest, AnItemIsAddedComesOnPlaysAndIsDeleted) {
  HWND main = MainWithStations();
  const std::string name = CellText(List(main), 0);
  Command(main, mnuActionSchedule);
  HWND dialog = Sonaro().WaitForShownWindow("frmSchedChange");
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(TextOf(Control(dialog, lblStationToSched)), "Station To Schedule: " + name);
  SaveShot("change");

  SetText(Control(dialog, txtOneDate), "");
  Click(Control(dialog, butOKIt));
  HWND box = Sonaro().WaitForShownWindow("MsgboxFrm");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(TextOf(Control(box, lblMsg)), "You Need To Select a Date");
  Click(Control(box, butMsg));
  ASSERT_TRUE(WaitUntil([&] { return !IsShown(box) && IsWindowEnabled(dialog) != FALSE; }));
  EXPECT_TRUE(IsShown(dialog));

  SetText(Control(dialog, txtNote), "kettle");
  Click(Control(dialog, cmdHowOften + 2));
  Click(Control(dialog, butOKIt));
  ASSERT_TRUE(WaitUntil([&] { return Exists("Sched.snr") && !ReadFile("Sched.snr").empty(); }));
  const std::string line = ReadFile("Sched.snr");
  EXPECT_TRUE(line.starts_with(name + "\tNS")) << line;
  EXPECT_NE(line.find("\tweekly\tkettle\r\n"), std::string::npos) << line;

  HWND tray = Sonaro().Window("frmSysTrayMenu");
  PostMessageA(tray, 1795, 0, 0);
  HWND notice = Sonaro().WaitForShownWindow("frmNotify");
  ASSERT_NE(notice, nullptr);
  EXPECT_EQ(TextOf(Control(notice, lblEventName)), name);
  EXPECT_TRUE(TextOf(Control(notice, lblNoticeInfo)).starts_with("This is your weekly "));
  SaveShot("notice");
  Click(Control(notice, butPlay1It));
  EXPECT_EQ(AsxLines().size(), 1u);
  PostMessageA(tray, 1795, 0, 0);
  RECT first = BoundsOf(notice);
  EXPECT_TRUE(WaitUntil([&] {
    HWND other = FindWindowExA(nullptr, nullptr, "frmNotify", nullptr);
    while (other != nullptr && (other == notice || !IsShown(other)))
      other = FindWindowExA(nullptr, other, "frmNotify", nullptr);
    RECT box2 = other != nullptr ? BoundsOf(other) : first;
    RECT common{};
    return other != nullptr && IntersectRect(&common, &first, &box2) == FALSE;
  })) << "two notices cover one another";
  Click(Control(notice, butCloselIt));

  ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(main) != FALSE; }));
  Command(main, mnuSchedule);
  HWND list = Sonaro().WaitForShownWindow("frmSched");
  ASSERT_NE(list, nullptr);
  HWND rows = Control(list, lstSched);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(rows) == 1; }));
  EXPECT_EQ(CellText(rows, 0, 1), name);
  EXPECT_TRUE(CellText(rows, 0, 2).starts_with("every "));
  SaveShot("list");
  Click(Control(list, butDeleteIt));
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 0; }));
  EXPECT_EQ(ReadFile("Sched.snr"), "");
}

TEST_F(ScheduleTest, AScanPlaysItsQueueOneAfterAnother) {
  HWND main = MainWithStations();
  std::vector<std::string> names;
  for (int row = 0; row < 3; ++row) {
    SelectRow(List(main), row);
    names.push_back(CellText(List(main), row));
    Command(main, mnuActionAddToScan);
  }
  Command(main, mnuScan);
  HWND scan = Sonaro().WaitForShownWindow("frmScan");
  ASSERT_NE(scan, nullptr);
  HWND queue = Control(scan, lstToScan);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(queue) == 3; }));
  EXPECT_EQ(TextOf(Control(scan, lblCurrentScaning)), "Currently Not Scanning ");
  Click(Control(scan, butStartIt));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(scan, butStartIt)) == "Pause Scan"; }));
  EXPECT_EQ(TextOf(Control(scan, lblCurrentScaning)), "Currently Scanning: " + names[0]);
  EXPECT_EQ(AsxLines(1).size(), 1u);
  EXPECT_TRUE(
      WaitUntil([&] { return TextOf(Control(scan, lblTimeLeft)).starts_with("Time Left To Scan: "); }));
  SaveShot("scan");
  Click(Control(scan, butMoveNextIt));
  EXPECT_TRUE(WaitUntil(
      [&] { return TextOf(Control(scan, lblCurrentScaning)) == "Currently Scanning: " + names[1]; }));
  EXPECT_EQ(RowCount(Control(scan, lstScanedAlready)), 1);
  Click(Control(scan, butStartIt));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(scan, butStartIt)) == "Continue Scan"; }));
  Click(Control(scan, butFullIt));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(queue); }));
  SaveShot("compact");
}

}  // namespace
}  // namespace sonaro::desktop
