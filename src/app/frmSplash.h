// The window that is on show while the program starts. Its close label, Esc and Alt+F4 end it, beside the
// dialogs of the start as well; the start procedure does when the main window appears.
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class frmSplash final : public Form {
 public:
  explicit frmSplash(FormContext& context) : Form(context, Design()) {}

  // Shows the window in the middle of the screen and paints it at once: messages wait until the start lets
  // them in between two of its steps.
  void ShowNow();
  // How far the start has come, 0 to 1. Nothing when the user has closed the window.
  void ShowProgress(double done);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void lblClose_Click() { Close(); }

  ProgressHandle picDial_{*this, picDial};
  Label lblVersion_{*this, lblVersion};
  Picture picMark_{*this, picMark};
};

}  // namespace sonaro
