// The scan where players are missing, or let messages in while they start.
#include <gtest/gtest.h>

#include "playback/ScanWorld.h"
#include "resources/texts/playback.h"

namespace sonaro {
namespace {

TEST_F(StationScanTest, WithoutAnyPlayerItWaitsInsteadOfRunningThroughTheQueue) {
  AddStation(9, "Real", {"http://x"});
  shell.programs.clear();
  Add({"S1", "S9", "S2"});
  scan_.StartPauseContinue();
  EXPECT_EQ(windows_.shown, 1);
  EXPECT_EQ(scan_.State(), ScanState::Paused);
  EXPECT_FALSE(view_.TimerOn());
  TickFor(60);
  EXPECT_EQ(windows_.shown, 1);
  EXPECT_EQ(Queue() + "|" + History(), "S9 S2 |");

  reg.SetSetting("PlayWith", "any.exe");
  scan_.StartPauseContinue();
  EXPECT_EQ(Playing(), "1://x") << "the station that waited";
  TickFor(20);
  EXPECT_EQ(Playing(), "http://x");
  EXPECT_EQ(windows_.shown, 1);
}

TEST_F(StationScanTest, WhatComesInWhileAPlayerStartsTakesNoOtherStation) {
  const auto ticks = [this] { TickFor(50); };
  Add({"S1", "S2", "S3"});
  shell.whileStarting = ticks;
  scan_.StartPauseContinue();
  EXPECT_EQ(Queue() + "|" + History(), "S2 S3 |");
  TickFor(19);
  EXPECT_EQ(scan_.TimeLeft(), 1) << "its full time from when it plays";
  shell.whileStarting = ticks;
  TickFor(1);
  EXPECT_EQ(Queue() + "|" + History(), "S3 |S1 ");

  shell.whileStarting = [this] { scan_.StartPauseContinue(); };
  scan_.MoveNext();
  TickFor(1);
  EXPECT_EQ(scan_.State(), ScanState::Paused) << "pressed while the player started";
  EXPECT_FALSE(view_.TimerOn());
  scan_.StartPauseContinue();
  TickFor(19);
  EXPECT_EQ(scan_.TimeLeft(), 1);
}

TEST_F(StationScanTest, ClosedWhileAPlayerStartsItStaysClosed) {
  Add({"S1", "S2", "S3"});
  shell.whileStarting = [this] { scan_.Close(); };
  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.State(), ScanState::Idle);
  EXPECT_EQ(Queue() + "|" + History(), "S2 S3 |S1 ");
  scan_.Open(view_);
  shell.whileStarting = [this] {
    scan_.Close();
    scan_.Open(view_);
    scan_.StartPauseContinue();
  };
  scan_.StartPauseContinue();
  EXPECT_EQ(scan_.CurrentText(), Text(IDS_SCAN_CURRENT) + "Three");
  TickFor(20);
  EXPECT_EQ(scan_.State(), ScanState::Idle);
  EXPECT_EQ(History(), "S1 S2 S3 ");
}

}  // namespace
}  // namespace sonaro
