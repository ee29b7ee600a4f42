// The hidden window whose timer ticks once a minute while something is due. ScheduleTimer decides what a tick
// does; this window only has the system's timer and the label that says it is in use.
#pragma once

#include <memory>

#include "forms/Form.h"
#include "schedule/ScheduleTimer.h"

namespace sonaro {

class frmschedtime final : public Form {
 public:
  frmschedtime(FormContext& context, std::function<void()> tick, std::function<void()> fullMinute);

 private:
  static const FormDesign& Design();
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void Timer1_Timer() { tick_(); }
  void tmrFullMinute_Timer();

  std::function<void()> tick_;
  std::function<void()> fullMinute_;
};

// The window as ScheduleTimer sees it. Owned by Application.
class ScheduleTimerWindow final : public ScheduleTimerView {
 public:
  explicit ScheduleTimerWindow(FormContext& context) : context_(context) {}

  // What a tick and the one at the full minute run; set before the first Load.
  void SetTicks(std::function<void()> tick, std::function<void()> fullMinute) {
    tick_ = std::move(tick);
    fullMinute_ = std::move(fullMinute);
  }

  bool IsLoaded() override;
  void Load() override;
  void SetCloseItCaption(const char* caption) override;
  void RestartTimer(unsigned milliseconds) override;
  void TickOnceIn(unsigned milliseconds) override;
  void Unload() override;

 private:
  FormContext& context_;
  std::function<void()> tick_;
  std::function<void()> fullMinute_;
  std::unique_ptr<frmschedtime> form_;
};

}  // namespace sonaro
