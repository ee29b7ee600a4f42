#include "net/frmInetUpdate.h"

#include "forms/ControlIds.h"

namespace sonaro {

// A window that is never shown. It is there for the timer of the exchange, and for its name.
const FormDesign& frmInetUpdate::Design() {
  static constexpr FormDesign kDesign = {
      .name = "frmInetUpdate", .caption = "frmInetUpdate", .size = {200, 100}};
  return kDesign;
}

std::span<const TimerRow> frmInetUpdate::Timers() const {
  static const TimerRow kRows[] = {{tmrInetStuff, &frmInetUpdate::tmrInetStuff_Timer}};
  return kRows;
}

// The exchange counts in milliseconds and has one timer, so a second start replaces the first.
void frmInetUpdate::StartTimer(int milliseconds) {
  Form::StartTimer(tmrInetStuff, static_cast<unsigned>(milliseconds));
}

void frmInetUpdate::StopTimer() { Form::StopTimer(tmrInetStuff); }

}  // namespace sonaro
