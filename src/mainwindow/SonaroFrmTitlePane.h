// The top of the main window: the tabs of the views and the buttons of the program. Part of SonaroFrm.
#pragma once

#include "mainwindow/MainPane.h"
#include "settings/HelpPages.h"

namespace sonaro {

class TitlePane final : public EventTarget {
 public:
  explicit TitlePane(const MainContext& context) : context_(context), form_(context.form) {}

  // Lights the tab of the view on show.
  void Show();

 private:
  std::span<const EventRow> Events() const override;
  void OpenHelp(const char* page) { context_.services.help.OpenHelpPage(page); }

  void butTabs_Click(int tab);
  void mnuView_Click(int view);
  void mnuViewPersonalPage_Click() { context_.view.ShowView(View::PersonalPage); }
  void MoveTab(int step);
  void mnuNextTab_Click() { MoveTab(1); }
  void mnuPreviousTab_Click() { MoveTab(-1); }
  void MoveColumn(int step);
  void mnuNextColumn_Click() { MoveColumn(1); }
  void mnuPreviousColumn_Click() { MoveColumn(-1); }
  void butMenu_Click();
  void butHelp_Click() { OpenHelp("index.html"); }
  void mnuQuickStart_Click() { OpenHelp("9070.html"); }
  void butTray_Click() { context_.services.program.HideToTray(); }
  void butMin_Click() { ShowWindow(form_.Window(), SW_MINIMIZE); }
  void butCloseIt_Click() { context_.services.program.CloseAsked(); }
  void mnuExit_Click() { context_.services.program.Exit(); }

  const MainContext& context_;
  Form& form_;
  ControlArray<ToggleButton> butTabs_{form_, butTabs, 5};
  Button butMenu_{form_, butMenu};
  ComboBox txtQuickSearch_{form_, txtQuickSearch};
};

}  // namespace sonaro
