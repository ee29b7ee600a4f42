// A scan with four stations, its window and its clock: what the tests of the scan have in common.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeClock.h"
#include "playback/PlaybackWorld.h"
#include "playback/StationScan.h"

namespace sonaro {

class FakeScanView : public ScanView {
 public:
  const StationScan* scan = nullptr;
  std::vector<bool> timer;  // every EnableTimer
  std::optional<std::size_t> selected;
  int listsShown = 0;

  void ShowState() override {}
  void ShowTimeLeft() override {}
  void ShowLists() override { ++listsShown; }
  void SelectQueueRow(std::size_t row) override { selected = row; }
  void QueueRowsChanged(const RowsChange& change) override {
    if (selected) selected = SelectionAfter(change, *selected, scan->QueueCount());
  }
  void EnableTimer(bool on) override { timer.push_back(on); }
  bool TimerOn() const { return !timer.empty() && timer.back(); }
};

class FakeNoPlayer : public LaunchView {
 public:
  int shown = 0;
  bool ShowNoPlayer() override { return ++shown == 0; }
  void ShowErrorText(const std::string&) override { ++shown; }
  bool OfferPlayers(const std::string&) override { return ++shown == 0; }
  void HandedOver(const std::string&) override {}
};

inline std::string Text(int id) { return std::to_string(id); }

class StationScanTest : public testing::Test, protected PlaybackWorld {
 protected:
  StationScanTest() {
    AddStation(1, "One", {"m1://x"});
    AddStation(2, "Two", {"m2://x"});
    AddStation(3, "Three", {"m3://x"});
    PersonalStation own;
    own.name = "Own";
    own.links[0] = "mown://x";
    personal.Add(own);
    launch.SetView(&windows_);
    reg.SetSetting("ScanTime", "20");
    view_.scan = &scan_;
    scan_.Open(view_);
  }
  static std::vector<StationKey> Keys(const std::vector<std::string>& rowKeys) {
    std::vector<StationKey> keys;
    for (const std::string& rowKey : rowKeys) keys.push_back(StationKey::FromRowKey(rowKey));
    return keys;
  }
  void Add(const std::vector<std::string>& rowKeys) { scan_.Add(Keys(rowKeys)); }
  // Ticks as the timer gives them: a second apart.
  void TickFor(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      clock_.Advance(1);
      scan_.Tick();
    }
  }
  std::string Queue() const {
    std::string keys;
    for (std::size_t i = 0; i < scan_.QueueCount(); ++i) keys += scan_.QueueRow(i).key.RowKey() + ' ';
    return keys;
  }
  std::string History() const {
    std::string keys;
    for (std::size_t i = 0; i < scan_.HistoryCount(); ++i) keys += scan_.HistoryRow(i).key.RowKey() + ' ';
    return keys;
  }
  std::string Playing() const { return shell.opened.empty() ? "" : shell.opened.back().parameters; }

  FakeClock clock_;
  FakeScanView view_;
  FakeNoPlayer windows_;
  StationScan scan_{reg, clock_, launch, source, strings};
};

}  // namespace sonaro
