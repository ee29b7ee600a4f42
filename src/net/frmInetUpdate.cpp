#include "net/frmInetUpdate.h"

#include "forms/ControlIds.h"

namespace sonaro {

const FormDesign& frmInetUpdate::Design() {
  static constexpr FormDesign kDesign = {
      .name = "frmInetUpdate", .caption = "frmInetUpdate", .size = {200, 100}};
  return kDesign;
}

frmInetUpdate::frmInetUpdate(FormContext& context, const UpdateDependencies& needs, int callerCode,
                             int installCode, UpdateOpener opener)
    : Form(context, Design()), opener_(std::move(opener)), exchange_(needs, *this, callerCode, installCode) {}

std::span<const TimerRow> frmInetUpdate::Timers() const {
  static const TimerRow kRows[] = {{tmrInetStuff, &frmInetUpdate::tmrInetStuff_Timer}};
  return kRows;
}

void frmInetUpdate::Cancel() {
  if (IsOpen()) exchange_.Cancel();
}

void frmInetUpdate::StartTimer(int milliseconds) {
  Form::StartTimer(tmrInetStuff, static_cast<unsigned>(milliseconds));
}

void frmInetUpdate::StopTimer() { Form::StopTimer(tmrInetStuff); }

void frmInetUpdate::ShowProgress(const std::string& text) {
  if (opener_.progress) opener_.progress(text);
}

void frmInetUpdate::ShowBytes(std::uint64_t bytes, std::uint64_t expected) {
  if (opener_.bytes) opener_.bytes(bytes, expected);
}

void frmInetUpdate::Finished(const UpdateOutcome& outcome) {
  const UpdateOutcome kept = outcome;
  if (opener_.finished) opener_.finished(kept);
  Close();
}

}  // namespace sonaro
