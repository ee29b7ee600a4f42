// The station scan with real windows.
#include "DesktopTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

class ScanTest : public DesktopTest {
 protected:
  HWND List(HWND main) { return Control(main, lstFavs); }
  HWND MainWithStations() {
    HWND main = StartAndShowMain();
    Command(main, mnuActionMostPoular);
    EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 3; }));
    return main;
  }
};

TEST_F(ScanTest, AScanPlaysItsQueueOneAfterAnother) {
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
