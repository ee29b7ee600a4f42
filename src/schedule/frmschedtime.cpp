#include "schedule/frmschedtime.h"

namespace sonaro {

namespace {

constexpr unsigned kFirstTick = 1000;  // milliseconds until the command of whoever loaded the window is read

}  // namespace

const FormDesign& frmschedtime::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblCloseIt, .kind = ControlKind::Label, .at = {14, 48, 100, 20}}};
  static constexpr FormDesign kDesign = {
      .name = "frmschedtime", .caption = "frmschedtime", .size = {200, 100}, .controls = kControls};
  return kDesign;
}

std::span<const TimerRow> frmschedtime::Timers() const {
  static const TimerRow kRows[] = {{Timer1, &frmschedtime::Timer1_Timer},
                                   {tmrFullMinute, &frmschedtime::tmrFullMinute_Timer}};
  return kRows;
}

void frmschedtime::OnLoad() { StartTimer(Timer1, kFirstTick); }

// A timer of the system comes again and again; this one is wanted once.
void frmschedtime::tmrFullMinute_Timer() {
  StopTimer(tmrFullMinute);
  ticks_.FullMinute();
}

bool ScheduleTimerWindow::IsLoaded() { return form_.IsOpen(); }

// Never shown: the window is there for its timer, and for its label, by which others see that it lives.
void ScheduleTimerWindow::Load() { form_.Create(); }

void ScheduleTimerWindow::SetCloseItCaption(const char* caption) { form_.SetCloseItCaption(caption); }

// The interval counts from now: ticks that drifted off the full minute fall on it again.
void ScheduleTimerWindow::RestartTimer(unsigned milliseconds) {
  form_.StopTimer(Timer1);
  form_.StartTimer(Timer1, milliseconds);
}

void ScheduleTimerWindow::TickOnceIn(unsigned milliseconds) { form_.StartTimer(tmrFullMinute, milliseconds); }

// The form stays until the next Load: Unload is called from its own timer.
void ScheduleTimerWindow::Unload() { form_.Close(); }

}  // namespace sonaro
