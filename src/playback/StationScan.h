// Plays a queue of stations one after another, each for the same number of seconds, and keeps a history of
// those already heard. The state machine behind the window frmScan, which shows what it reads here. Owned by
// Application; queue and history outlive the window.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/RowSelection.h"
#include "stations/StationKey.h"

namespace sonaro {

class Clock;
class CReg;
class PlayerLaunch;
class StationSource;
class Strings;

// What the scan tells its window to do.
class ScanView {
 public:
  virtual ~ScanView() = default;
  virtual void ShowState() = 0;     // the caption, the labels and the buttons are to be read again
  virtual void ShowTimeLeft() = 0;  // only the seconds changed
  virtual void ShowLists() = 0;     // rows came or went
  virtual void SelectQueueRow(std::size_t row) = 0;
  // Rows of the queue came or went: what is selected or dragged stands elsewhere now. Before ShowLists.
  virtual void QueueRowsChanged(const RowsChange& change) = 0;
  virtual void EnableTimer(bool on) = 0;  // tmrScan, which calls Tick every 1000 milliseconds
};

enum class ScanState { Idle, Scanning, Paused };

// A row of either list. `second` is the location, or "Your Station" for a personal one.
struct ScanRow {
  StationKey key;
  std::string name;
  std::string second;
  std::string reason;  // history only: why it did not play; "" when it did
  int symbol = 0;      // of the reliability, as in the station list
};

// Which buttons do something now.
struct ScanButtons {
  bool start = false;
  bool moveNext = false;
  bool moveUp = false;
  bool moveDown = false;
  bool remove = false;
  bool clear = false;
  bool keep = false;
  bool operator==(const ScanButtons&) const = default;
};

class StationScan {
 public:
  static constexpr int kShortest = 20;  // seconds per station
  static constexpr int kMaxLength = 120;
  static constexpr int kDefault = 30;
  // What cmbScanTime offers.
  static constexpr std::array<int, 11> kScanTimes = {20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 120};

  StationScan(CReg& reg, Clock& clock, PlayerLaunch& player, const StationSource& stations,
              const Strings& strings)
      : reg_(reg), clock_(clock), player_(player), stations_(stations), strings_(strings) {}

  // The window opened: its timer is off, the scan time is read.
  void Open(ScanView& view);
  // The window is closing: the scan stops, the lists stay.
  void Close();

  // The buttons of the window. Rows that do not exist change nothing.
  void StartPauseContinue();
  void MoveNext();
  void MoveUp(std::size_t row);
  void MoveDown(std::size_t row);
  void Remove(std::size_t row);
  void Clear();
  // What Clear takes away, and back again: before what has come into either list since.
  struct Lists {
    std::deque<StationKey> queue;
    std::vector<ScanRow> history;
  };
  Lists Contents() const { return {queue_, history_}; }
  void Restore(const Lists& lists);
  // A tick of tmrScan.
  void Tick();

  // Takes stations to the end of the queue, or before the row `at`; None is left out. The window need not be
  // open.
  void Add(std::span<const StationKey> stations, std::optional<std::size_t> at = std::nullopt);
  // The caption of lblStationsAdd: row keys ("S1204", "P3") between blanks are taken into the queue;
  // the buttons are shown again in any case.
  void StationsAdded(std::string_view caption);
  // Moves a queue row to stand before the row `to` (drag and drop); `to` may be the end of the queue.
  void MoveRow(std::size_t from, std::size_t to);
  // Puts the station of a history row to the end of the queue.
  void PutBack(std::size_t historyRow);
  // Plays the station of a history row. A scan that runs pauses, and then goes on with its station anew.
  void PlayAgain(std::size_t historyRow);

  ScanState State() const { return state_; }
  StationKey Current() const { return current_ ? current_->key : StationKey(); }  // None while idle
  std::size_t QueueCount() const { return queue_.size(); }
  ScanRow QueueRow(std::size_t row) const;
  std::size_t HistoryCount() const { return history_.size(); }
  const ScanRow& HistoryRow(std::size_t row) const { return history_[row]; }
  ScanButtons Buttons(std::optional<std::size_t> selectedQueueRow) const;
  std::string StartCaption() const;  // lblStartIt
  std::string CurrentText() const;   // lblCurrentScaning
  std::string TimeLeftText() const;  // lblTimeLeft; keeps its text while it is hidden
  bool TimeLeftVisible() const { return state_ != ScanState::Idle && current_; }
  int TimeLeft() const { return timeLeft_; }  // seconds, for a scale: 0 to ScanTime
  int ScanTime() const { return scanTime_; }

  // The dialog "Set Scan Time". Out of range: ignored. The station that plays keeps its time.
  void SetScanTime(int seconds);
  // The time that was set last: that of the next station.
  int StoredScanTime() const;

 private:
  // Values of the elapsed counter that are no seconds: from kNeverShown up nothing is shown.
  static constexpr int kNeverShown = 1000;
  static constexpr int kTakesNoStation = 1011;

  void ReadScanTime();
  ScanRow Describe(const StationKey& key) const;
  void PlayFirst();
  void PlayCurrent();
  void PauseForPlayer();
  void AddCurrentToHistory();
  void GoIdle();
  void Resume();
  void CountFromNow();
  int CountTick() const;
  void QueueRowsChanged(const RowsChange& change);
  void ShowLists();
  void ShowState();
  void EnableTimer(bool on);

  CReg& reg_;
  Clock& clock_;
  PlayerLaunch& player_;
  const StationSource& stations_;
  const Strings& strings_;
  ScanView* view_ = nullptr;

  std::deque<StationKey> queue_;
  std::vector<ScanRow> history_;
  ScanState state_ = ScanState::Idle;
  std::optional<ScanRow> current_;
  // Starting a program lets messages in: ticks, keys and the closing of the window can come before it
  // returns.
  unsigned launch_ = 0;        // number of the latest launch, or of the end that made it void
  bool launching_ = false;     // no seconds are counted
  bool currentWaits_ = false;  // for a player: to be launched when the scan goes on
  int elapsed_ = 0;            // whole seconds of the current station
  int scanTime_ = kDefault;
  int timeLeft_ = 0;
  std::uint64_t countedFrom_ = 0;  // clock ticks at which the current station had been playing for 0 seconds
};

}  // namespace sonaro
