// The scan is a state machine with three states: idle, scanning, paused. elapsed_ counts the seconds of the
// station that plays; values beyond the scan time have a meaning of their own: kNeverShown ends it with the
// next tick.
#include "playback/StationScan.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/Clock.h"
#include "playback/PlayerLaunch.h"
#include "resources/texts/playback.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "stations/StationSource.h"

namespace sonaro {

namespace {

constexpr std::uint64_t kSecond = 1000;  // clock ticks

bool IsScanTime(std::int64_t seconds) {
  return seconds >= StationScan::kShortest && seconds <= StationScan::kMaxLength;
}

}  // namespace

// The scan outlives its window: the lists are there again when it opens, and the scan itself is idle.
void StationScan::Open(ScanView& view) {
  view_ = &view;
  ReadScanTime();
  ShowLists();
  ShowState();
}

void StationScan::Close() {
  if (state_ != ScanState::Idle) {
    AddCurrentToHistory();
    GoIdle();
  }
  view_ = nullptr;
}

// One button with three meanings, by the state; its caption is StartCaption.
void StationScan::StartPauseContinue() {
  switch (state_) {
    case ScanState::Scanning:
      state_ = ScanState::Paused;
      EnableTimer(false);
      break;
    case ScanState::Paused:
      if (currentWaits_) {
        PlayCurrent();
      } else {
        Resume();
      }
      break;
    case ScanState::Idle:
      if (queue_.empty()) return;
      timeLeft_ = scanTime_;
      PlayFirst();
      break;
  }
  ShowState();
}

void StationScan::MoveNext() {
  elapsed_ = kNeverShown;
  currentWaits_ = false;
  if (state_ == ScanState::Scanning) return;
  Resume();
  ShowState();
}

void StationScan::Resume() {
  state_ = ScanState::Scanning;
  CountFromNow();
  EnableTimer(true);
}

void StationScan::MoveUp(std::size_t row) {
  if (row == 0 || row >= queue_.size()) return;
  MoveRow(row, row - 1);
}

void StationScan::MoveDown(std::size_t row) {
  if (row + 1 >= queue_.size()) return;
  MoveRow(row, row + 2);
}

// `to` is the place before which the row goes, counted with the row still there; that is what a drag gives.
void StationScan::MoveRow(std::size_t from, std::size_t to) {
  if (from >= queue_.size() || to > queue_.size()) return;
  const auto at = [this](std::size_t row) { return queue_.begin() + static_cast<std::ptrdiff_t>(row); };
  if (to > from) {
    std::rotate(at(from), at(from + 1), at(to));
    --to;
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
  ShowLists();
  if (view_) view_->SelectQueueRow(to);
  ShowState();
}

void StationScan::Remove(std::size_t row) {
  if (row >= queue_.size()) return;
  queue_.erase(queue_.begin() + static_cast<std::ptrdiff_t>(row));
  QueueRowsChanged({.at = row, .removed = 1});
  ShowLists();
  ShowState();
}

// The station that plays is in neither list and plays on.
void StationScan::Clear() {
  const bool ran = state_ == ScanState::Scanning;
  if (ran) EnableTimer(false);
  queue_.clear();
  history_.clear();
  ShowLists();
  ShowState();
  if (ran) EnableTimer(true);
}

// Put before what was added since: the undone clearing gives the old order back, and no station that was
// queued meanwhile is lost.
void StationScan::Restore(const Lists& lists) {
  queue_.insert(queue_.begin(), lists.queue.begin(), lists.queue.end());
  history_.insert(history_.begin(), lists.history.begin(), lists.history.end());
  QueueRowsChanged({.at = 0, .inserted = lists.queue.size()});
  ShowLists();
  ShowState();
}

void StationScan::Tick() {
  // Also a tick that was under way when the timer was stopped.
  if (state_ != ScanState::Scanning || launching_) return;
  elapsed_ = CountTick();
  if (elapsed_ < kNeverShown) {
    timeLeft_ = scanTime_ - elapsed_;
    if (view_) view_->ShowTimeLeft();
  }
  if (elapsed_ < scanTime_) return;

  ReadScanTime();
  AddCurrentToHistory();
  if (elapsed_ != kTakesNoStation) {
    if (queue_.empty()) {
      GoIdle();
    } else {
      PlayFirst();
    }
  }
  ShowState();
}

// A tick is a second, and where ticks were lost the clock says how many seconds it was. Catching up ends with
// the station on hand: after a long standstill the next one still gets its full time, and the
// counter jumps to none of its odd values.
int StationScan::CountTick() const {
  const std::uint64_t seconds = (clock_.Ticks() - countedFrom_ + kSecond / 2) / kSecond;
  const auto byClock =
      static_cast<int>(std::min<std::uint64_t>(seconds, static_cast<std::uint64_t>(scanTime_)));
  return std::max(elapsed_ + 1, byClock);
}

void StationScan::CountFromNow() {
  countedFrom_ = clock_.Ticks() - static_cast<std::uint64_t>(elapsed_) * kSecond;
}

void StationScan::PlayFirst() {
  const StationKey key = queue_.front();
  queue_.pop_front();
  QueueRowsChanged({.at = 0, .removed = 1});
  current_ = Describe(key);
  ShowLists();
  PlayCurrent();
}

// A station that does not play is over with the next tick; a dialog would stop the whole scan. Where nothing
// plays at all the scan waits instead.
void StationScan::PlayCurrent() {
  const unsigned launch = ++launch_;
  state_ = ScanState::Scanning;
  currentWaits_ = false;
  elapsed_ = 0;
  launching_ = true;
  ShowState();
  const LaunchOutcome outcome = player_.TryLaunch(StationKey(current_->key));
  // Starting a player can run a message loop, in which the user may end the scan. `launch_` tells whether
  // this is still the launch that was begun.
  if (launch != launch_) return;  // ended meanwhile, perhaps begun anew
  launching_ = false;
  const bool missing = outcome == LaunchOutcome::NoPlayer || outcome == LaunchOutcome::NoAsxProgram;
  if (missing && !player_.AnythingPlays()) return PauseForPlayer();
  current_->reason = player_.ErrorText(outcome);
  if (!current_->reason.empty()) elapsed_ = kNeverShown;
  if (state_ == ScanState::Scanning) Resume();
}

// The dialog comes last: it runs a message loop, and whatever is done there finds a scan that is paused.
void StationScan::PauseForPlayer() {
  state_ = ScanState::Paused;
  currentWaits_ = true;
  EnableTimer(false);
  ShowState();
  player_.ShowNoPlayer();
}

void StationScan::AddCurrentToHistory() {
  if (!current_) return;
  history_.push_back(*current_);
  ShowLists();
}

// A launch that is still under way finds another number when it returns, and does nothing more.
void StationScan::GoIdle() {
  state_ = ScanState::Idle;
  ++launch_;
  launching_ = false;
  currentWaits_ = false;
  current_.reset();
  elapsed_ = 0;
  EnableTimer(false);
  ShowState();
}

void StationScan::Add(std::span<const StationKey> stations, std::optional<std::size_t> at) {
  std::vector<StationKey> taken(stations.begin(), stations.end());
  std::erase(taken, StationKey());
  const std::size_t before = std::min(at.value_or(queue_.size()), queue_.size());
  queue_.insert(queue_.begin() + static_cast<std::ptrdiff_t>(before), taken.begin(), taken.end());
  QueueRowsChanged({.at = before, .inserted = taken.size()});
  ShowLists();
  ShowState();
}

// A word that is no row key becomes no key, and Add leaves it out.
void StationScan::StationsAdded(std::string_view caption) {
  std::vector<StationKey> stations;
  for (const std::string_view rowKey : Split(caption, ' ')) {
    stations.push_back(StationKey::FromRowKey(rowKey));
  }
  Add(stations);
}

void StationScan::PutBack(std::size_t historyRow) {
  if (historyRow >= history_.size()) return;
  queue_.push_back(history_[historyRow].key);
  ShowLists();
  ShowState();
}

// By hand, so it goes the usual way, with dialogs; the scan pauses meanwhile and its own station waits for
// Continue.
void StationScan::PlayAgain(std::size_t historyRow) {
  if (historyRow >= history_.size()) return;
  const StationKey station = history_[historyRow].key;  // the list can grow while the player starts
  if (state_ != ScanState::Idle) {
    state_ = ScanState::Paused;
    currentWaits_ = true;
    EnableTimer(false);
    ShowState();
  }
  player_.LaunchStation(station);
}

ScanRow StationScan::QueueRow(std::size_t row) const {
  return row < queue_.size() ? Describe(queue_[row]) : ScanRow{};
}

ScanRow StationScan::Describe(const StationKey& key) const {
  std::vector<StationInfo> found = stations_.InfosOf({&key, 1});
  if (found.empty()) return {key, key.Token(), {}, {}, 0};  // no longer there
  StationInfo& info = found.front();
  const int symbol = info.Symbol();
  if (info.name.empty()) info.name = key.Token();
  return {key, std::move(info.name), std::move(info.location), {}, symbol};
}

ScanButtons StationScan::Buttons(std::optional<std::size_t> selectedQueueRow) const {
  const bool selected = selectedQueueRow && *selectedQueueRow < queue_.size();
  ScanButtons buttons;
  buttons.start = buttons.moveNext = state_ != ScanState::Idle || !queue_.empty();
  buttons.moveUp = selected && *selectedQueueRow > 0;
  buttons.moveDown = selected && *selectedQueueRow + 1 < queue_.size();
  buttons.remove = selected;
  buttons.clear = !queue_.empty() || !history_.empty();
  buttons.keep = current_.has_value();
  return buttons;
}

std::string StationScan::StartCaption() const {
  switch (state_) {
    case ScanState::Scanning:
      return strings_.Load(IDS_SCAN_PAUSE);
    case ScanState::Paused:
      return strings_.Load(IDS_SCAN_CONTINUE);
    case ScanState::Idle:
      break;
  }
  return strings_.Load(IDS_SCAN_START);
}

std::string StationScan::CurrentText() const {
  return current_ ? strings_.Load(IDS_SCAN_CURRENT) + current_->name : strings_.Load(IDS_SCAN_NOT_SCANNING);
}

std::string StationScan::TimeLeftText() const {
  return strings_.Load(IDS_SCAN_TIME_LEFT) + std::to_string(timeLeft_);
}

void StationScan::SetScanTime(int seconds) {
  if (!IsScanTime(seconds)) return;
  reg_.Set(setting::kScanTime, seconds);
  // The station that plays keeps its time; the new one counts from the next station on.
  if (!current_) scanTime_ = seconds;
}

int StationScan::StoredScanTime() const {
  const std::int64_t seconds = reg_.Get(setting::kScanTime);
  return IsScanTime(seconds) ? static_cast<int>(seconds) : kDefault;
}

// A stored time that cannot be is written back as the usual one, so that the dialog shows what holds.
void StationScan::ReadScanTime() {
  scanTime_ = StoredScanTime();
  if (reg_.Get(setting::kScanTime) != scanTime_) reg_.Set(setting::kScanTime, scanTime_);
}

void StationScan::ShowState() {
  if (view_) view_->ShowState();
}

void StationScan::QueueRowsChanged(const RowsChange& change) {
  if (view_) view_->QueueRowsChanged(change);
}

void StationScan::ShowLists() {
  if (view_) view_->ShowLists();
}

void StationScan::EnableTimer(bool on) {
  if (view_) view_->EnableTimer(on);
}

}  // namespace sonaro
