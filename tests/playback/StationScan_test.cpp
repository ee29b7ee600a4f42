#include <gtest/gtest.h>

#include "playback/ScanWorld.h"
#include "resources/texts/playback.h"

namespace sonaro {
namespace {

TEST_F(StationScanTest, PlaysTheQueueToItsEnd) {
  Add({"S1", "P1", "S3"});
  EXPECT_EQ(scan_.StartCaption(), Text(IDS_SCAN_START));
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_NOT_SCANNING));
  EXPECT_FALSE(scan_.TimeLeftVisible());

  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.StartCaption(), Text(IDS_SCAN_PAUSE));
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_CURRENT) + "One");
  EXPECT_TRUE(scan_.TimeLeftVisible());
  EXPECT_EQ(Playing(), "1://x");
  EXPECT_EQ(Queue(), "P1 S3 ");
  EXPECT_TRUE(view_.TimerOn());

  for (int left = 19; left > 0; --left) {
    TickFor(1);
    EXPECT_EQ(scan_.TimeLeftText(), Text(IDS_SCAN_TIME_LEFT) + std::to_string(left));
    EXPECT_EQ(Playing(), "1://x");
  }
  TickFor(1);  // the twentieth
  EXPECT_EQ(scan_.TimeLeft(), 0);
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_CURRENT) + "Own");
  EXPECT_EQ(Playing(), "own://x");
  TickFor(20);
  EXPECT_EQ(Playing(), "3://x");
  TickFor(20);
  EXPECT_EQ(scan_.StartCaption(), Text(IDS_SCAN_START));
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_NOT_SCANNING));
  EXPECT_FALSE(scan_.TimeLeftVisible());
  EXPECT_FALSE(view_.TimerOn());
  EXPECT_EQ(History(), "S1 P1 S3 ");
  EXPECT_EQ(scan_.HistoryRow(0).second, "Oslo");
  EXPECT_EQ(scan_.HistoryRow(0).symbol, 3);
  EXPECT_EQ(scan_.HistoryRow(1).second, Text(IDS_YOUR_STATION));
  EXPECT_EQ(scan_.HistoryRow(1).reason, "");
  TickFor(1);  // one that was under way
  EXPECT_EQ(History(), "S1 P1 S3 ");
}

TEST_F(StationScanTest, StartWithNothingQueuedDoesNothing) {
  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.State(), ScanState::Idle);
  EXPECT_TRUE(view_.timer.empty());
}

TEST_F(StationScanTest, PauseKeepsTheCount) {
  Add({"S1", "S2"});
  scan_.StartPauseContinue();
  TickFor(7);
  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.StartCaption(), Text(IDS_SCAN_CONTINUE));
  EXPECT_FALSE(view_.TimerOn());
  clock_.Advance(500);
  scan_.Tick();
  EXPECT_EQ(scan_.TimeLeft(), 13);
  scan_.StartPauseContinue();
  EXPECT_TRUE(view_.TimerOn());
  TickFor(1);
  EXPECT_EQ(scan_.TimeLeft(), 12);
  TickFor(12);
  EXPECT_EQ(Playing(), "2://x");
}

TEST_F(StationScanTest, TheCountFollowsTheClock) {
  Add({"S1", "S2", "S3"});
  scan_.StartPauseContinue();
  clock_.Advance(5);  // four ticks were lost
  scan_.Tick();
  EXPECT_EQ(scan_.TimeLeft(), 15);
  scan_.Tick();  // one that came early still counts
  EXPECT_EQ(scan_.TimeLeft(), 14);
  clock_.Sleep(3600);
  TickFor(1);
  EXPECT_EQ(scan_.TimeLeft(), 13);
  // After a standstill only the station on hand is over; the next one gets its full time.
  clock_.Advance(1005);  // 1011 seconds in all, the value that takes no next station
  scan_.Tick();
  EXPECT_EQ(Playing(), "2://x");
  EXPECT_EQ(Queue(), "S3 ");
  TickFor(19);
  EXPECT_EQ(Playing(), "2://x");
  TickFor(1);
  EXPECT_EQ(Playing(), "3://x");
}

TEST_F(StationScanTest, MoveNextEndsAStationWithTheNextTick) {
  Add({"S1", "S2", "S3"});
  scan_.StartPauseContinue();
  TickFor(3);
  scan_.MoveNext();
  EXPECT_EQ(scan_.TimeLeft(), 17);
  EXPECT_EQ(Playing(), "1://x");
  TickFor(1);
  EXPECT_EQ(Playing(), "2://x");
  EXPECT_EQ(scan_.TimeLeft(), 17);  // the odd value was never shown

  scan_.StartPauseContinue();
  scan_.MoveNext();  // while paused: goes on
  EXPECT_EQ(scan_.StartCaption(), Text(IDS_SCAN_PAUSE));
  EXPECT_TRUE(view_.TimerOn());
  TickFor(1);
  EXPECT_EQ(Playing(), "3://x");
  EXPECT_EQ(History(), "S1 S2 ");
}

TEST_F(StationScanTest, MoveNextWhileIdleStartsTheQueue) {
  Add({"S2"});
  scan_.MoveNext();
  TickFor(1);
  EXPECT_EQ(Playing(), "2://x");
  EXPECT_TRUE(scan_.TimeLeftVisible());
  EXPECT_EQ(History(), "");
}

TEST_F(StationScanTest, ScanTimeIsReadWhenAStationIsOver) {
  const struct {
    const char* stored;
    int seconds;
    const char* after;
  } kCases[] = {{"19", 30, "30"}, {"20", 20, "20"},  {"120", 120, "120"}, {"121", 30, "30"},
                {"", 30, "30"},   {"abc", 30, "30"}, {"-20", 30, "30"},   {"99999999999999999999", 30, "30"}};
  for (const auto& c : kCases) {
    reg.SetSetting("ScanTime", c.stored);
    scan_.Open(view_);
    EXPECT_EQ(scan_.ScanTime(), c.seconds) << c.stored;
    EXPECT_EQ(reg.Setting("ScanTime"), c.after) << c.stored;
  }
  scan_.SetScanTime(40);
  EXPECT_EQ(scan_.ScanTime(), 40);
  Add({"S1", "S2"});
  scan_.StartPauseContinue();
  scan_.SetScanTime(60);
  scan_.SetScanTime(19);
  EXPECT_EQ(reg.Setting("ScanTime"), "60");
  EXPECT_EQ(scan_.StoredScanTime(), 60) << "while the station that plays still has 40";
  TickFor(39);
  EXPECT_EQ(Playing(), "1://x");
  TickFor(1);
  EXPECT_EQ(Playing(), "2://x");
  EXPECT_EQ(scan_.ScanTime(), 60);
}

TEST_F(StationScanTest, WhatDoesNotPlayIsOverAfterItsSecondAndNeverStopsTheScan) {
  AddStation(7, "No link", {}, "", "www.seven.example");
  AddStation(8, "Refused", {"m-x"});
  AddStation(9, "Real", {"http://x"});
  AddStation(10, "Third", {"", " ", "m10://x"});
  Add({"S7", "S8", "S9", "S404", "S10"});
  scan_.StartPauseContinue();
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(shell.opened.empty());
    TickFor(1);
  }
  EXPECT_EQ(Playing(), "10://x");
  EXPECT_EQ(History(), "S7 S8 S9 S404 ");
  EXPECT_EQ(scan_.HistoryRow(0).reason, Text(IDS_WHYNOT_NO_LINK));
  EXPECT_EQ(scan_.HistoryRow(1).reason, Text(IDS_WHYNOT_REFUSED_LINK));
  EXPECT_EQ(scan_.HistoryRow(2).reason, Text(IDS_WHYNOT_NO_PLAYER));
  EXPECT_EQ(scan_.HistoryRow(3).reason, Text(IDS_WHYNOT_NO_LINK));
  EXPECT_EQ(scan_.HistoryRow(3).name, "404");
  EXPECT_EQ(windows_.shown, 0);
  EXPECT_TRUE(shell.runMinimised.empty());  // no web site instead
  TickFor(19);
  EXPECT_EQ(scan_.TimeLeft(), 1);  // the last one gets its full time
}

TEST_F(StationScanTest, QueueEdits) {
  Add({"S1", "X", "S2", "", "P1", "S3", "Sx"});
  EXPECT_EQ(Queue(), "S1 S2 P1 S3 ");
  scan_.MoveUp(0);
  scan_.MoveDown(3);
  scan_.MoveUp(9);
  EXPECT_EQ(Queue(), "S1 S2 P1 S3 ");
  scan_.MoveUp(2);
  EXPECT_EQ(Queue(), "S1 P1 S2 S3 ");
  EXPECT_EQ(view_.selected, 1u);
  scan_.MoveDown(0);
  EXPECT_EQ(Queue(), "P1 S1 S2 S3 ");
  EXPECT_EQ(view_.selected, 1u);
  scan_.MoveRow(0, 4);
  EXPECT_EQ(Queue(), "S1 S2 S3 P1 ");
  EXPECT_EQ(view_.selected, 3u);
  scan_.MoveRow(3, 1);
  scan_.MoveRow(1, 1);
  scan_.MoveRow(1, 2);
  scan_.MoveRow(4, 0);
  EXPECT_EQ(Queue(), "S1 P1 S2 S3 ");
  scan_.Remove(3);
  EXPECT_EQ(Queue(), "S1 P1 S2 ");
  EXPECT_EQ(view_.selected, 1u);
  scan_.Remove(3);
  EXPECT_EQ(Queue(), "S1 P1 S2 ");
  const std::vector<StationKey> dropped = Keys({"S3", "S3"});
  scan_.Add(dropped, 1);
  EXPECT_EQ(view_.selected, 3u) << "stations dropped above the selected one leave it selected";
  scan_.Add(dropped, 99);
  EXPECT_EQ(view_.selected, 3u);
  EXPECT_EQ(Queue(), "S1 S3 S3 P1 S2 S3 S3 ");
}

TEST_F(StationScanTest, TheSelectionStaysOnItsStationWhileTheQueuePlays) {
  Add({"S1", "S2", "S3", "P1"});
  scan_.MoveDown(2);  // selects the row that S3 goes to
  scan_.StartPauseContinue();
  ASSERT_EQ(Queue(), "S2 P1 S3 ");
  EXPECT_EQ(scan_.QueueRow(*view_.selected).key.RowKey(), "S3");
  TickFor(20);
  ASSERT_EQ(Queue(), "P1 S3 ");
  EXPECT_EQ(scan_.QueueRow(*view_.selected).key.RowKey(), "S3");
}

TEST_F(StationScanTest, ClearKeepsTheStationThatPlays) {
  Add({"S1", "S2", "S3"});
  scan_.StartPauseContinue();
  TickFor(20);
  view_.timer.clear();
  const std::string before = Queue() + History();
  const StationScan::Lists lists = scan_.Contents();
  scan_.Clear();
  EXPECT_EQ(Queue() + History(), "");
  scan_.Restore(lists);
  EXPECT_EQ(Queue() + History(), before);
  view_.timer.clear();
  scan_.Clear();
  EXPECT_EQ(view_.timer, (std::vector<bool>{false, true}));
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_CURRENT) + "Two");
  scan_.PutBack(0);  // nothing there
  scan_.StartPauseContinue();
  view_.timer.clear();
  scan_.Clear();
  EXPECT_TRUE(view_.timer.empty());  // was paused
}

TEST_F(StationScanTest, AStationOfTheHistoryPlaysAndTheScanWaitsForItsOwn) {
  Add({"S1", "S2", "S3"});
  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.Current(), StationKey::FromRowKey("S1"));
  TickFor(25);
  scan_.PlayAgain(0);
  EXPECT_EQ(Playing(), "1://x");
  EXPECT_EQ(scan_.State(), ScanState::Paused);
  TickFor(60);
  EXPECT_EQ(Queue() + "|" + History(), "S3 |S1 ");
  scan_.StartPauseContinue();
  EXPECT_EQ(Playing(), "2://x");
  TickFor(19);
  EXPECT_EQ(scan_.TimeLeft(), 1) << "its whole time again";
  scan_.PlayAgain(7);  // nothing there
  EXPECT_EQ(scan_.State(), ScanState::Scanning);
}

TEST_F(StationScanTest, StationsComeBackFromTheHistoryAndByTheHiddenLabel) {
  Add({"S1"});
  scan_.StartPauseContinue();
  TickFor(20);
  scan_.PutBack(0);
  EXPECT_EQ(Queue(), "S1 ");
  EXPECT_EQ(History(), "S1 ");
  scan_.StationsAdded("S2 P1 X");
  scan_.StationsAdded("changed");
  EXPECT_EQ(Queue(), "S1 S2 P1 ");
}

TEST_F(StationScanTest, ButtonsFollowQueueAndState) {
  const auto flags = [this](std::optional<std::size_t> selected) {
    const ScanButtons b = scan_.Buttons(selected);
    std::string text;
    for (const bool on : {b.start, b.moveNext, b.moveUp, b.moveDown, b.remove, b.clear})
      text += on ? '1' : '0';
    return text;
  };
  EXPECT_EQ(flags(std::nullopt), "000000");
  Add({"S1", "S2", "S3"});
  EXPECT_EQ(flags(std::nullopt), "110001");
  EXPECT_EQ(flags(0), "110111");
  EXPECT_EQ(flags(1), "111111");
  EXPECT_EQ(flags(2), "111011");
  EXPECT_EQ(flags(3), "110001");
  while (scan_.QueueCount() > 0) scan_.Remove(0);
  EXPECT_EQ(flags(std::nullopt), "000000");
  Add({"S1"});
  scan_.StartPauseContinue();
  EXPECT_EQ(flags(std::nullopt), "110000");
  TickFor(20);
  EXPECT_EQ(flags(std::nullopt), "000001");
}

TEST_F(StationScanTest, ClosingTheWindowEndsTheScanAndKeepsTheLists) {
  Add({"S1", "S2"});
  scan_.StartPauseContinue();
  TickFor(5);
  scan_.Close();
  EXPECT_FALSE(view_.TimerOn());
  EXPECT_EQ(scan_.State(), ScanState::Idle);
  EXPECT_EQ(Queue(), "S2 ");
  EXPECT_EQ(History(), "S1 ");
  Add({"S3"});  // the window need not be open
  scan_.Open(view_);
  EXPECT_EQ(Queue(), "S2 S3 ");
  EXPECT_FALSE(view_.TimerOn());
}

}  // namespace
}  // namespace sonaro
