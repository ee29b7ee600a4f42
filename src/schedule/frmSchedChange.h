// Adds or changes one schedule item. ScheduleDraft holds what is being edited and decides what is missing; a
// complete item is written into its slot and the table saved before the dialog closes.
#pragma once

#include <optional>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "platform/Clock.h"
#include "schedule/ScheduleDraft.h"
#include "schedule/ScheduleServices.h"

namespace sonaro {

class frmSchedChange final : public Form {
 public:
  // `slot`: the item's own when it is modified, nothing for a new one.
  frmSchedChange(FormContext& context, ScheduleServices& services, ScheduleDraft draft,
                 std::optional<std::size_t> slot = std::nullopt);

 private:
  // What only some items and clocks have.
  enum Pane : unsigned char { kOncePane = 1, kDailyPane, kWeeklyPane, kHours12Pane, kHours24Pane };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;

  void FillChoices();
  void ShowKind();
  void ShowSummary();
  void ReadControls();
  bool ShowError(DraftFault fault);
  DraftFault Fault() const { return draft_.Fault(services_.shortDatePattern, services_.clock.LocalNow()); }

  void cmdHowOften_Click(int index);
  void chkDay_Click(int day);
  void Any_Change();
  void butSchedIt_Click();
  void butPickDateIt_Click();
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click();

  FormContext& context_;
  ScheduleServices& services_;
  ScheduleDraft draft_;
  std::optional<std::size_t> slot_;

  Button butSchedIt_{*this, butSchedIt};
  ControlArray<ToggleButton> cmdHowOften_{*this, cmdHowOften, 3};
  Edit txtNote_{*this, txtNote};
  Label lblStationToSched_{*this, lblStationToSched};
  Edit txtOneDate_{*this, txtOneDate};
  CheckBox chkWebSite_{*this, chkWebSite};
  ControlArray<ToggleButton> chkDay_{*this, chkDay, 7};
  ComboBox cmbTimeHour_{*this, cmbTimeHour};
  ComboBox cmbTimeMinute_{*this, cmbTimeMinute};
  ComboBox cmbTimeAMPM_{*this, cmbTimeAMPM};
  ComboBox cmbThreeDay_{*this, cmbThreeDay};
  Label lblSummary_{*this, lblSummary};
  Label lblNextTime_{*this, lblNextTime};
};

}  // namespace sonaro
