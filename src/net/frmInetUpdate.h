// The hidden window of one update: it has the timer of the exchange and hands what the exchange reports to
// whoever opened it. Loaded for one update and unloaded when that is over.
#pragma once

#include <functional>

#include "forms/Form.h"
#include "net/UpdateExchange.h"

namespace sonaro {

// What the opener hears. The functions may be empty; the window may not be destroyed within them.
struct UpdateOpener {
  std::function<void(const std::string& text)> progress;
  std::function<void(std::uint64_t bytes, std::uint64_t expected)> bytes;
  std::function<void(const UpdateOutcome& outcome)> finished;
};

class frmInetUpdate final : public Form, private UpdateView {
 public:
  frmInetUpdate(FormContext& context, const UpdateDependencies& needs, int callerCode, int installCode,
                UpdateOpener opener);

  // Begins the update.
  void Load() { Create(); }
  void Cancel();

 private:
  static const FormDesign& Design();
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override { exchange_.Load(); }
  void tmrInetStuff_Timer() { exchange_.tmrInetStuff_Timer(); }

  void StartTimer(int milliseconds) override;
  void StopTimer() override;
  void ShowProgress(const std::string& text) override;
  void ShowBytes(std::uint64_t bytes, std::uint64_t expected) override;
  void Finished(const UpdateOutcome& outcome) override;

  UpdateOpener opener_;
  UpdateExchange exchange_;
};

}  // namespace sonaro
