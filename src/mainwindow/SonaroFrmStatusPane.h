// The foot of the main window: the status line with what the guide holds, what was just done, or the progress
// of an update, and the buttons of the other windows. Part of SonaroFrm.
#pragma once

#include <string>

#include "mainwindow/MainPane.h"

namespace sonaro {

class StatusPane final : public EventTarget {
 public:
  explicit StatusPane(const MainContext& context) : context_(context), form_(context.form) {}

  // Counts the stations anew.
  void ShowGuide();
  // A sentence about what was done. It stands until the window shows something else after that.
  void Say(const std::string& sentence);
  // The same of a removal: the button to undo it stands beside the sentence.
  void SayRemoved(const std::string& sentence);
  // After every change of what the window shows.
  void WindowChanged();
  // 0 to 100; below 0 when it is not known.
  void ShowProgress(const std::string& what, int percent);
  void EndProgress();

 private:
  std::span<const EventRow> Events() const override;
  void butUpdate_Click() { Open(ProgramWindow::Update); }
  void butScan_Click() { Open(ProgramWindow::Scan); }
  void butSchedule_Click() { Open(ProgramWindow::Schedule); }
  void butOptions_Click() { Open(ProgramWindow::Options); }
  void butUndo_Click();
  void mnuAbout_Click();
  std::string GuideSentence() const;
  void mnuUndoUpdate_Click() { context_.services.update.OfferUndo(form_); }
  void Open(ProgramWindow window) { context_.services.program.Open(window, &form_); }

  enum class Said { Nothing, JustNow, Before };

  const MainContext& context_;
  Form& form_;
  Label lblStatus_{form_, lblStatus};
  Label lblProgress_{form_, lblProgress};
  Label lblPercent_{form_, lblPercent};
  ProgressHandle picProgress_{form_, picProgress};
  Button butUpdate_{form_, butUpdate};
  Button butUndo_{form_, butUndo};
  Said said_ = Said::Nothing;
};

}  // namespace sonaro
