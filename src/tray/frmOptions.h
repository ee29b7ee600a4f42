// The user's options in one dialog. What they are and what is stored is OptionsModel's; a faceplate shows in
// every window as soon as its button is pressed and goes again with Cancel.
#pragma once

#include <string>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "settings/HelpPages.h"
#include "stations/Commands.h"
#include "tray/OptionsModel.h"

namespace sonaro {

class Backup;
class MessageBoxView;
class PlayerReporter;
class PlayerSetup;
class Strings;

// What the options use of the rest of the program.
struct OptionsServices {
  ProgramCommands& program;
  ScheduleCommands& schedule;
  UpdateCommands& update;
  HelpPages& help;
  const PlayerSetup& playWith;
  PlayerReporter& players;
  Backup& backup;
  MessageBoxView& messages;
  const Strings& strings;
};

class frmOptions final : public Form {
 public:
  frmOptions(FormContext& context, OptionsModel& model, const OptionsServices& services)
      : Form(context, Design()), model_(model), use_(services) {}

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override;
  void Fill(const Options& options);
  Options Wanted() const;
  ProxyServer TypedProxy() const;
  void ShowProxyControls();
  void Inform(std::string_view sentence, TextColor color);
  bool ShowProxyError();

  void butPlaySoundIt_Click() { use_.program.PlayNoticeSound(); }
  void optProxy_Click(int way);
  void txtProxy_Change();
  void butFindProxyIt_Click();
  void butTestProxyIt_Click();
  void butPlayerIt_Click();
  void tmrPlaying_Timer();
  void optFaceplate_Click(int faceplate);
  void butAboutTimeIt_Click() { use_.schedule.ExplainTimes(*this); }
  void butBackupIt_Click();
  void butRestoreIt_Click();
  void SayOfBackup(int sentence);
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click() { use_.help.OpenHelpPage("index.html"); }

  OptionsModel& model_;
  const OptionsServices use_;
  Options options_;  // with what the user has changed in so far as no control holds it

  ControlArray<ToggleButton> optFaceplate_{*this, optFaceplate, 2};
  Edit txtProxy_{*this, txtProxy};
  Edit txtPort_{*this, txtPort};
  ComboBox cmbAfterClose_{*this, cmbAfterClose};
  CheckBox chkStartWindows_{*this, chkStartWindows};
  CheckBox chkSoundNotice_{*this, chkSoundNotice};
  CheckBox chkSoundKeys_{*this, chkSoundKeys};
  CheckBox chkLookForPlayer_{*this, chkLookForPlayer};
  CheckBox chkLookForProxy_{*this, chkLookForProxy};
  CheckBox chkOfferTutorial_{*this, chkOfferTutorial};
  ControlArray<RadioButton> optProxy_{*this, optProxy, 2};
  Button butTestProxyIt_{*this, butTestProxyIt};
  Label lblOptionsInfo_{*this, lblOptionsInfo};
  Label lblPlaying_{*this, lblPlaying};
};

}  // namespace sonaro
