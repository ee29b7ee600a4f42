// What a user has to know before the guide works fully: that a player is needed, or that a proxy was found.
// Pages of one dialog; what it finds and stores is PlayerSetup's and the caller's business.
#pragma once

#include <functional>
#include <string>

#include "app/StartUpInfoPage.h"
#include "forms/Form.h"

namespace sonaro {

class CReg;
class HelpPages;
class PlayerSetup;

class frmStartUpInfo final : public Form {
 public:
  // `proxy`: "host:port" that was found, for the page "Proxy".
  frmStartUpInfo(FormContext& context, CReg& reg, HelpPages& help, PlayerSetup& player, StartUpInfoPage page,
                 std::string proxy);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowPlayers(const std::string& path);
  bool StorePlayer();
  void Done();

  void butBrowseIt_Click();
  void butFindIt_Click();
  void butTestProgramIt_Click();
  void butPlayerWebSiteIt_Click();
  void butOKIt_Click();
  void butCloseIt_Click() { Done(); }
  void butHelp_Click();

  CReg& reg_;
  HelpPages& help_;
  PlayerSetup& player_;
  const StartUpInfoPage page_;
  const std::string proxy_;
};

}  // namespace sonaro
