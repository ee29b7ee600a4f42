// Asks for the name of a favourite group: of a new one (frmNewFavorite) or another one for a group that is
// there (frmRenameFav). Whether the name can be used is for the caller to say.
#pragma once

#include <string>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"

namespace sonaro {

class HelpPages;

class frmNewFavorite : public Form {
 public:
  frmNewFavorite(FormContext& context, HelpPages& help)
      : frmNewFavorite(context, help, Design(), "9038.html", "") {}

  // "" when no name was given.
  std::string AskName(HWND owner);

 protected:
  frmNewFavorite(FormContext& context, HelpPages& help, const FormDesign& design, const char* page,
                 std::string present);
  static FormDesign DesignOf(const char* name, int title);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void txtGroupName_Change();
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click();

  HelpPages& help_;
  const char* page_;
  std::string name_;

  Label lblTitle_{*this, lblTitle};
  Edit txtGroupName_{*this, txtGroupName};
  Button butOKIt_{*this, butOKIt};
};

class frmRenameFav final : public frmNewFavorite {
 public:
  frmRenameFav(FormContext& context, HelpPages& help, std::string present)
      : frmNewFavorite(context, help, Design(), "9040.html", std::move(present)) {}

 private:
  static const FormDesign& Design();
};

}  // namespace sonaro
