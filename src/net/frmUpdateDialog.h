// The message box that an update is watched in: how far it is, what came of it, Retry, Cancel and Close, and
// the way back to the guide of before the last update. It registers the message box's window class, which is
// how the update's opener is known.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "net/UpdateExchange.h"

namespace sonaro {

class Strings;
class frmInetUpdate;
enum class UndoStatus;

// What the dialog asks for, of whoever owns the updates.
class UpdateDialogCommands {
 public:
  virtual ~UpdateDialogCommands() = default;

  // An update that reports to `dialog` and has not begun.
  virtual std::unique_ptr<frmInetUpdate> MakeWatchedUpdate(UpdateListener& dialog) = 0;
  virtual void Installed() = 0;  // the directory has changed
  // What the update has changed, "" when there is nothing to report.
  virtual std::string Report() = 0;
  virtual bool CanUndoUpdate() = 0;
  virtual UndoStatus UndoUpdate() = 0;
  virtual void OpenUpdateHelp() = 0;
};

enum class UpdateOpening { Begin, OfferUndo };

class frmUpdateDialog final : public Form, private UpdateListener {
 public:
  frmUpdateDialog(FormContext& context, UpdateDialogCommands& commands, UpdateOpening opening);
  ~frmUpdateDialog() override;

  bool IsUpdating() const { return IsOpen() && updating_; }

 private:
  enum class Offer { Nothing, Retry, Undo };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override;
  void Begin();
  void SetOffer(Offer offer);
  void ShowFailure(bool failed);

  void UpdateProgress(const std::string& text) override;
  void UpdateBytes(std::uint64_t bytes, std::uint64_t expected) override;
  void UpdateFinished(const UpdateOutcome& outcome) override;

  void tmrReport_Timer();
  void butMsg_Click();
  void butCancel_Click() { Close(); }
  void butHelp_Click() { commands_.OpenUpdateHelp(); }

  const Strings& strings_;
  UpdateDialogCommands& commands_;
  const UpdateOpening opening_;
  std::unique_ptr<frmInetUpdate> update_;
  Offer offer_ = Offer::Nothing;
  bool updating_ = false;
  bool unloading_ = false;
  UpdateOutcome outcome_;                  // of the update that has finished, until it is reported
  std::optional<std::uint64_t> textStep_;  // of the text that tells how much has come

  ProgressHandle prgUpdate_{*this, prgUpdate};
  Label lblStuff_{*this, lblStuff};
  ControlArray<Button> butMsg_{*this, butMsg, 2};
  Label lblBytes_{*this, lblBytes};
  Label picStuff_{*this, picStuff};
};

}  // namespace sonaro
