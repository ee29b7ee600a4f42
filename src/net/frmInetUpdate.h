// The hidden window of one update: it has the timer of the exchange. Loaded for one update and unloaded when
// that is over.
#pragma once

#include "forms/Form.h"
#include "net/UpdateExchange.h"

namespace sonaro {

class frmInetUpdate final : public Form, private UpdateView {
 public:
  frmInetUpdate(FormContext& context, const UpdateDependencies& dependencies, UpdateListener& listener,
                CallerCode callerCode, InstallMode installMode)
      : Form(context, Design()), exchange_(dependencies, *this, listener, callerCode, installMode) {}

  // Begins the update.
  void Load() { Create(); }
  void Cancel() {
    if (IsOpen()) exchange_.Cancel();
  }

 private:
  static const FormDesign& Design();
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override { exchange_.Load(); }
  void tmrInetStuff_Timer() { exchange_.tmrInetStuff_Timer(); }

  void StartTimer(int milliseconds) override;
  void StopTimer() override;
  void Unload() override { Close(); }

  UpdateExchange exchange_;
};

}  // namespace sonaro
