// What a user has to know before the guide works fully: what plays the stations and what does not, or that a
// proxy was found.
// Pages of one dialog; what it finds and stores is PlayerSetup's and the caller's business.
#pragma once

#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "playback/PlayerReport.h"
#include "stations/Commands.h"

namespace sonaro {

class CReg;
class HelpPages;
class PlayerSetup;
struct PlayerProgram;

struct StartUpInfoDependencies {
  CReg& reg;
  HelpPages& help;
  PlayerSetup& player;
  PlayerReporter& reporter;
};

class frmStartUpInfo final : public Form {
 public:
  // `proxy`: "host:port" that was found, for the page "Proxy". ShowModal gives 1 when a player was chosen.
  frmStartUpInfo(FormContext& context, const StartUpInfoDependencies& dependencies, StartUpInfoPage page,
                 std::string proxy);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowTexts(int title, int head, int text);
  void OfferPrograms(const std::string& selected);
  void OfferProgram(const PlayerProgram& program);
  std::string Selected() const;
  void ShowReport();
  void ShowSentence(const std::string& sentence, TextColor color);
  void ShowError(const std::string& sentence) { ShowSentence(sentence, TextColor::Alert); }
  bool StorePlayer();
  void Done(int result);

  void cmbPlayWith_SelChange() { ShowReport(); }
  void butBrowseIt_Click();
  void butFindIt_Click();
  void butTestProgramIt_Click();
  void butPlayerWebSiteIt_Click();
  void butOKIt_Click();
  void butCloseIt_Click() { Done(0); }
  void butHelp_Click();

  const StartUpInfoDependencies dependencies_;
  const StartUpInfoPage page_;
  const std::string proxy_;
  LinkCounts counts_;
  std::vector<std::string> paths_;  // of the programs that are offered, after the row for none

  CheckBox chkDontShow_{*this, chkDontShow};
  Label lblProxyFound_{*this, lblProxyFound};
  RadioButton optUseProxy_{*this, optUseProxy};
  Label lblTitle_{*this, lblTitle};
  Label lblHead_{*this, lblHead};
  Label lblText_{*this, lblText};
  ComboBox cmbPlayWith_{*this, cmbPlayWith};
  ControlArray<Label> lblFound_{*this, lblFound, static_cast<int>(PlayerReport::kMaxLines)};
};

}  // namespace sonaro
