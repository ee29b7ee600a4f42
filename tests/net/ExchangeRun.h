// One update from its first request to its end, with a view that a test looks at afterwards.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "directory/DeferredSwap.h"
#include "net/NetWorld.h"
#include "net/UpdateExchange.h"

namespace sonaro {

class FakeUpdateView : public UpdateView, public UpdateListener {
 public:
  std::optional<int> timer;
  std::vector<int> intervals;
  std::string progress;
  std::optional<UpdateOutcome> outcome;
  int pendingWork = 0;

  void StartTimer(int milliseconds) override {
    timer = milliseconds;
    intervals.push_back(milliseconds);
  }
  void StopTimer() override { timer.reset(); }
  void UpdateProgress(const std::string& text) override { progress += text + ";"; }
  void UpdateBytes(std::uint64_t, std::uint64_t) override {}
  void Unload() override { EXPECT_TRUE(outcome) << "unloaded before it is finished"; }
  void UpdateFinished(const UpdateOutcome& ended) override {
    ASSERT_FALSE(outcome) << "finished twice";
    outcome = ended;
  }
  void PendingWorkIsDue() override { ++pendingWork; }
};

inline std::string Text(int id) { return std::to_string(id) + ";"; }

inline FakeAnswer Redirect(const std::string& target) {
  return FakeAnswer::Status("302", "HTTP/1.1 302 Found\r\nLocation: " + target + "\r\n\r\n");
}

inline constexpr const char* kFileAt = "http://files.example/u/update7.txt";

class Exchange {
 public:
  Exchange(Machine& machine, CallerCode callerCode, InstallMode mode)
      : exchange_({machine.reg, machine.data, machine.strings, machine.install, machine.http}, view, view,
                  callerCode, mode),
        http_(machine.http) {}

  // Until it has finished or waits for nothing.
  void Run() {
    exchange_.Load();
    for (int step = 0; step < 50 && !view.outcome; ++step) {
      if (view.timer) {
        exchange_.tmrInetStuff_Timer();
      } else if (!http_.DeliverNext()) {
        return;
      }
    }
  }

  FakeUpdateView view;
  UpdateExchange& Get() { return exchange_; }

 private:
  UpdateExchange exchange_;
  FakeHttp& http_;
};

// The start after whatever happened: what it does about the directory, and what must hold then.
inline void StartAgain(FakeFiles& files, Machine& machine) {
  machine.install.FinishUndo();
  RunDeferredSwap(machine.data, machine.reg, [&] { return machine.stations.RebuildStationTable(); });
  (void)machine.stations.EnsureStationTable();
  EXPECT_EQ(files.Get("/d/favs.snr"), kFavorites);
  EXPECT_GT(machine.stations.StationCount(), 0u);
}

}  // namespace sonaro
