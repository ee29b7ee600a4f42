// Adds or changes one of the user's own stations.
#pragma once

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "stations/PersonalStations.h"

namespace sonaro {

class HelpPages;
class MessageBoxView;

class frmPersonalStation final : public Form {
 public:
  // A station with index 0 is a new one.
  frmPersonalStation(FormContext& context, PersonalStations& stations, MessageBoxView& messages,
                     HelpPages& help, PersonalStation station)
      : Form(context, Design()),
        context_(context),
        stations_(stations),
        messages_(messages),
        help_(help),
        station_(std::move(station)) {}

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowError(const char* key, int text);
  bool Save(const PersonalStation& station);
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click();

  FormContext& context_;
  PersonalStations& stations_;
  MessageBoxView& messages_;
  HelpPages& help_;
  const PersonalStation station_;  // as it was when the dialog opened

  ControlArray<Edit> txtLink_{*this, txtLink, 3};
  Edit txtWebSite_{*this, txtWebSite};
  Edit txtStationNote_{*this, txtStationNote};
  Edit txtStationName_{*this, txtStationName};
  Edit txtType_{*this, txtType};
};

}  // namespace sonaro
