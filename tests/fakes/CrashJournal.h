// Counts what a program does to the outside, so that it can be made to die at any of it: changing operations
// on files and on settings, in the order in which they come. Owned by FakeFiles; a FakeRegistry can join.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sonaro {

class CrashJournal {
 public:
  enum class Step { Runs, CrashesNow, Down };

  // Counts and logs a changing operation. CrashesNow: it must not be completed; Down: the machine is dead.
  Step Begin(const std::string& operation) {
    if (crashed_) return Step::Down;
    log_.push_back(operation);
    if (operationsUntilCrash_ == 0 || --operationsUntilCrash_ > 0) return Step::Runs;
    crashed_ = true;
    return Step::CrashesNow;
  }
  void CrashAt(int operation) { operationsUntilCrash_ = operation; }
  bool Crashed() const { return crashed_; }
  void Revive() {
    crashed_ = false;
    operationsUntilCrash_ = 0;
  }

  const std::vector<std::string>& Log() const { return log_; }
  void ClearLog() { log_.clear(); }

  // Changed settings wait in memory until the system writes them, in order; a power cut loses the last of
  // them, or all since Settle.
  void SettingChanged(std::function<void()> undo) { settingUndos_.push_back(std::move(undo)); }
  bool HasUnsettled() const { return !settingUndos_.empty(); }
  void UndoLastSetting() {
    if (settingUndos_.empty()) return;
    settingUndos_.back()();
    settingUndos_.pop_back();
  }
  void UndoSettings() {
    while (HasUnsettled()) UndoLastSetting();
  }
  void Settle() { settingUndos_.clear(); }

 private:
  int operationsUntilCrash_ = 0;
  bool crashed_ = false;
  std::vector<std::string> log_;
  std::vector<std::function<void()>> settingUndos_;
};

}  // namespace sonaro
