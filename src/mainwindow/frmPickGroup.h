// Asks which favourite group a station is added to: one that is there, or a new one, whose name is typed
// here.
#pragma once

#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class frmPickGroup final : public Form {
 public:
  // `usual`: the group that is offered first; any text.
  frmPickGroup(FormContext& context, std::string station, std::vector<std::string> groups, std::string usual)
      : Form(context, Design()),
        station_(std::move(station)),
        groups_(std::move(groups)),
        usual_(std::move(usual)) {}

  // The name of a group, which may be a new one; "" when none was chosen.
  std::string AskGroup(HWND owner);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  bool IsNewChosen() const;
  void cmbGroup_SelChange();
  void txtGroupName_Change();
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }

  std::string station_;
  std::vector<std::string> groups_;
  const std::string usual_;
  std::string chosen_;

  Label lblStation_{*this, lblStation};
  Edit txtGroupName_{*this, txtGroupName};
  ComboBox cmbGroup_{*this, cmbGroup};
  Button butOKIt_{*this, butOKIt};
};

}  // namespace sonaro
