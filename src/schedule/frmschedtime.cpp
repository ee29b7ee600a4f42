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

void frmschedtime::tmrFullMinute_Timer() {
  StopTimer(tmrFullMinute);
  ticks_.FullMinute();
}

bool ScheduleTimerWindow::IsLoaded() { return form_.IsOpen(); }

void ScheduleTimerWindow::Load() { form_.Create(); }

void ScheduleTimerWindow::SetCloseItCaption(const char* caption) { form_.SetCloseItCaption(caption); }

void ScheduleTimerWindow::RestartTimer(unsigned milliseconds) {
  form_.StopTimer(Timer1);
  form_.StartTimer(Timer1, milliseconds);
}

void ScheduleTimerWindow::TickOnceIn(unsigned milliseconds) { form_.StartTimer(tmrFullMinute, milliseconds); }

void ScheduleTimerWindow::Unload() { form_.Close(); }

}  // namespace sonaro
