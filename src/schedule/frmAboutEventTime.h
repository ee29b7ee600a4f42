// Tells in what time events are shown: the computer's date, time and zone, and the way to change them.
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class Clock;
class HelpPages;
class Shell;

class frmAboutEventTime final : public Form {
 public:
  frmAboutEventTime(FormContext& context, Clock& clock, Shell& shell, HelpPages& help)
      : Form(context, Design()), clock_(clock), shell_(shell), help_(help) {}

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void lblChangeIt_Click();
  void butHelp_Click();
  void lblCloseIt_Click() { Close(); }

  Clock& clock_;
  Shell& shell_;
  HelpPages& help_;

  Label lblTimeInfo3_{*this, lblTimeInfo3};
  Label lblTimeInfo4_{*this, lblTimeInfo4};
  Label lblTimeInfo5_{*this, lblTimeInfo5};
};

}  // namespace sonaro
