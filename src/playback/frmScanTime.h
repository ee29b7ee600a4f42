// The small dialog "Set Scan Time".
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class frmScanTime final : public Form {
 public:
  frmScanTime(FormContext& context, int seconds) : Form(context, Design()), seconds_(seconds) {}

  // After ShowModal returned 1.
  int Chosen() const { return seconds_; }

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }

  int seconds_;

  ComboBox cmbScanTime_{*this, cmbScanTime};
};

}  // namespace sonaro
