// The hidden window whose timer ticks once a minute while something is due. ScheduleTimer decides what a tick
// does; this window only has the system's timer and the label that says it is in use.
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "schedule/ScheduleTimer.h"

namespace sonaro {

// What the window's timers run.
class TimerTicks {
 public:
  virtual ~TimerTicks() = default;
  virtual void Tick() = 0;
  virtual void FullMinute() = 0;  // once for every TickOnceIn
};

class frmschedtime final : public Form {
 public:
  frmschedtime(FormContext& context, TimerTicks& ticks) : Form(context, Design()), ticks_(ticks) {}
  void SetCloseItCaption(const char* caption) { lblCloseIt_.SetText(caption); }

 private:
  static const FormDesign& Design();
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void Timer1_Timer() { ticks_.Tick(); }
  void tmrFullMinute_Timer();

  TimerTicks& ticks_;
  Label lblCloseIt_{*this, lblCloseIt};
};

// The window as ScheduleTimer sees it. Owned by Application.
class ScheduleTimerWindow final : public ScheduleTimerView {
 public:
  ScheduleTimerWindow(FormContext& context, TimerTicks& ticks) : form_(context, ticks) {}

  bool IsLoaded() override;
  void Load() override;
  void SetCloseItCaption(const char* caption) override;
  void RestartTimer(unsigned milliseconds) override;
  void TickOnceIn(unsigned milliseconds) override;
  void Unload() override;

 private:
  frmschedtime form_;
};

}  // namespace sonaro
