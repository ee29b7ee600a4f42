// The station scan with real windows.
#include "Guide.h"
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

class ScanTest : public MainWindowTest {
 protected:
  bool Shows(HWND scan, int label, const std::string& text) {
    return WaitUntil([&] { return TextOf(Control(scan, label)) == text; });
  }
  // The scan window so that its queue lies below the main window, which a click raises.
  HWND ScanBelow(HWND main) {
    HWND scan = Dialog("frmScan");
    SetWindowPos(main, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SetWindowPos(scan, nullptr, 500, 480, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    return scan;
  }
  bool DropOn(HWND queue, int rows, POINT from, POINT to) {
    return DragUntil(from, to, [&] { return RowCount(queue) == rows + 1; });
  }
  // Turns the window's clock on by seconds, at most `most`, until the label shows the text; how many it took.
  int TicksUntil(HWND scan, int label, const std::string& text, int most) {
    int ticks = 0;
    while (ticks < most && TextOf(Control(scan, label)) != text) {
      RunTimer(scan, tmrScan);
      ++ticks;
    }
    EXPECT_EQ(TextOf(Control(scan, label)), text);
    return ticks;
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
  HWND scan = Dialog("frmScan");
  HWND queue = Control(scan, lstToScan);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(queue) == 3; }));
  EXPECT_EQ(TextOf(Control(scan, lblCurrentScaning)), "Currently Not Scanning ");
  Click(Control(scan, butStartIt));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(scan, butStartIt)) == "Pause Scan"; }));
  EXPECT_EQ(TextOf(Control(scan, lblCurrentScaning)), "Currently Scanning: " + names[0]);
  EXPECT_EQ(AsxLines(1).size(), 1u);
  EXPECT_TRUE(
      WaitUntil([&] { return TextOf(Control(scan, lblTimeLeft)).starts_with("Time Left To Scan: "); }));
  PressKey(scan, 'D', Modifier::Alt);
  EXPECT_TRUE(WaitUntil([&] { return ColumnTexts(queue) == std::vector{names[2], names[1]}; }));
  EXPECT_TRUE(WaitUntil([&] { return FocusOf(scan) == Control(scan, butMoveUpIt); })) << "not on Remove";
  PressKey(scan, VK_RETURN);
  EXPECT_TRUE(WaitUntil([&] { return ColumnTexts(queue) == std::vector{names[1], names[2]}; }));
  SaveShot("scan");
  Click(Control(scan, butMoveNextIt));
  EXPECT_TRUE(WaitUntil(
      [&] { return TextOf(Control(scan, lblCurrentScaning)) == "Currently Scanning: " + names[1]; }));
  EXPECT_EQ(RowCount(Control(scan, lstScanedAlready)), 1);
  Click(Control(scan, butStartIt));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(scan, butStartIt)) == "Continue Scan"; }));
  Click(Control(scan, butFullIt));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(queue); }));

  Click(Control(scan, butKeepIt));
  HWND pick = Dialog("frmPickGroup");
  SetText(Control(pick, txtGroupName), "Heard");
  EndWith(scan, pick, butOKIt);
  EXPECT_TRUE(
      WaitUntil([&] { return TextOf(Control(main, lblStatus)) == "Added " + names[1] + " to Heard."; }));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(scan, butKeepIt)) == "Kept"; }));
  EXPECT_FALSE(IsWindowEnabled(Control(scan, butKeepIt)));
  SaveShot("compact");
  Click(Control(scan, butFullIt));
  ASSERT_TRUE(WaitUntil([&] { return IsShown(queue); }));
  EXPECT_EQ(GetWindow(scan, GW_OWNER), main) << "stays above it";
  SetWindowPos(scan, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);  // no window manager does so here
  const POINT heard = RowOf(Control(scan, lstScanedAlready), 0);
  EXPECT_TRUE(ClickUntil(heard, [&] { return !SelectedRows(Control(scan, lstScanedAlready)).empty(); }));
  SetForegroundWindow(scan);
  SendMessageA(scan, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(scan, lstScanedAlready)), TRUE);
  PressKey(scan, VK_RETURN);
  EXPECT_EQ(AsxLines(3).size(), 3u) << "what is activated there plays";
  EXPECT_EQ(RowCount(queue), 1);
  EXPECT_EQ(TextOf(Control(scan, butStartIt)), "Continue Scan");
  SaveShot("full");
  ShowWindow(main, SW_MINIMIZE);
  EXPECT_TRUE(WaitUntil([&] { return IsIconic(main) != 0; }));
  EXPECT_TRUE(IsShown(scan));
}

TEST_F(ScanTest, StationsAreDroppedIntoTheQueue) {
  HWND main = MainWithStations();
  const std::vector<std::string> names = ColumnTexts(List(main));
  Command(main, mnuScan);
  HWND scan = ScanBelow(main);
  HWND queue = Control(scan, lstToScan);
  ASSERT_TRUE(WaitUntil([&] { return BoundsOf(queue).top >= BoundsOf(main).bottom; }));
  ASSERT_TRUE(DropOn(queue, 0, RowAt(main, 1), MiddleOf(queue)));
  ASSERT_TRUE(DropOn(queue, 1, RowAt(main, 2), MiddleOf(queue)));
  ASSERT_TRUE(DropOn(queue, 2, RowAt(main, 0), RowOf(queue, 1)));
  EXPECT_EQ(ColumnTexts(queue), (std::vector<std::string>{names[1], names[0], names[2]}));
}

TEST_F(ScanTest, ARowInTheHandAndAnOpenMenuKeepTheirStationThroughAStep) {
  std::string list;
  std::string recent;
  for (int id = 1; id <= 29; ++id) {
    list += StationLine(id, "Station " + std::to_string(id), "mhttp://127.0.0.1:9/" + std::to_string(id));
    if (id <= 20) recent += std::to_string(id) + " ";
  }
  HoldList(list, "21 22 23 24 25 26 27 28 29", {{"ScanTime", "20"}});
  WriteFile("recent.snr", recent + "\r\n");
  WriteFile("favs.snr", "Held\t\r\nMenu\t\r\n");
  HWND main = MainWithStations();
  Command(main, mnuActionAddListToScan);
  Command(main, mnuRecent);
  Command(main, mnuScan);
  HWND scan = ScanBelow(main);
  Click(Control(scan, butStartIt));
  ASSERT_TRUE(Shows(scan, lblCurrentScaning, "Currently Scanning: Station 21"));
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 21; }));
  // Another row than the one that is dragged: a second press on the same spot would be a double click.
  ASSERT_TRUE(ClickUntil(RowAt(main, 4), [&] { return FocusOf(main) == List(main); }));
  ASSERT_EQ(CellText(List(main), 1), "Station 1");

  int scanned = 21;
  const auto step = [&] {
    TicksUntil(scan, lblCurrentScaning, "Currently Scanning: Station " + std::to_string(++scanned), 25);
  };
  // A drag that the display took away is tried again; each that is dropped has seen a step.
  EXPECT_TRUE(WaitUntil(
      [&] {
        DragFromTo(RowAt(main, scanned - 20), MiddleOf(Control(main, butFavs)), [&] {
          if (HasTakenMouse(main)) step();
        });
        return WaitUntil([&] { return ReadFile("favs.snr") == "Held\t1 \r\nMenu\t\r\n"; },
                         std::chrono::seconds(2));
      },
      std::chrono::seconds(30)))
      << ReadFile("favs.snr");
  EXPECT_GT(scanned, 21);

  // The last one leaves the list while its menu is open.
  const std::string last = CellText(List(main), 20);
  SelectRow(List(main), 20);
  ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(main, lblStationName)) == last; }));
  PressKey(main, VK_APPS);
  ASSERT_NE(Sonaro().WaitForShownWindow("#32768"), nullptr);
  step();
  ASSERT_NE(TextOf(Control(main, lblStationName)), last);
  Command(main, mnuActionStationToGroup + 1);
  const std::string id = last.substr(last.find(' ') + 1);
  EXPECT_TRUE(Holds("favs.snr", "Held\t1 \r\nMenu\t" + id + " \r\n")) << ReadFile("favs.snr");
  PressKey(main, VK_ESCAPE);
}

TEST_F(ScanTest, ThreeStationsOfTwentySecondsOneOfThemMute) {
  HoldList(StationLine(7, "One", "mhttp://127.0.0.1:9/1") + StationLine(8, "Mute", "") +
               StationLine(9, "Three", "mhttp://127.0.0.1:9/3"),
           "7 8 9", {{"ScanTime", "20"}});
  HWND main = MainWithStations();
  Command(main, mnuActionAddListToScan);
  Command(main, mnuRecent);
  Command(main, mnuScan);
  HWND scan = Dialog("frmScan");
  Click(Control(scan, butStartIt));
  ASSERT_TRUE(Shows(scan, lblCurrentScaning, "Currently Scanning: One"));

  // The real clock may add a second or two of its own.
  TicksUntil(scan, lblTimeLeft, "Time Left To Scan: 12", 8);
  Click(Control(scan, butStartIt));
  ASSERT_TRUE(Shows(scan, butStartIt, "Continue Scan"));
  const std::string left = TextOf(Control(scan, lblTimeLeft));
  for (int tick = 0; tick < 30; ++tick) RunTimer(scan, tmrScan);
  EXPECT_EQ(TextOf(Control(scan, lblTimeLeft)), left) << "a pause keeps the seconds";
  Click(Control(scan, butStartIt));
  ASSERT_TRUE(Shows(scan, butStartIt, "Pause Scan"));

  TicksUntil(scan, lblCurrentScaning, "Currently Scanning: Mute", 12);
  EXPECT_EQ(TicksUntil(scan, lblCurrentScaning, "Currently Scanning: Three", 1), 1) << "nothing to wait for";
  EXPECT_EQ(Sonaro().Window("MsgboxFrm"), nullptr);
  EXPECT_GT(TicksUntil(scan, lblCurrentScaning, "Currently Not Scanning ", 20), 15);
  EXPECT_EQ(TextOf(Control(scan, butStartIt)), "Start Scan");
  EXPECT_FALSE(IsShown(Control(scan, lblTimeLeft)));
  HWND history = Control(scan, lstScanedAlready);
  EXPECT_EQ(ColumnTexts(history), (std::vector<std::string>{"One", "Mute", "Three"}));
  EXPECT_NE(CellText(history, 1, 1), "") << "the reason";
  EXPECT_EQ(AsxLines(2).size(), 2u);
  EXPECT_EQ(ColumnTexts(List(main)), (std::vector<std::string>{"Three", "One"})) << "Your Recent goes along";
}

}  // namespace
}  // namespace sonaro::desktop
