#include "mainwindow/SonaroFrmTitlePane.h"

#include <array>

#include "forms/ControlIds.h"

namespace sonaro {
namespace {

// The views in the order of the tabs and of their menu entries.
constexpr std::array kTabs{View::YourSonaro, View::List, View::Browse, View::BrowseLoc, View::Search};

}  // namespace

std::span<const EventRow> TitlePane::Events() const {
  static const EventRow kRows[] = {
      {butTabs, Click, &TitlePane::butTabs_Click, static_cast<int>(kTabs.size())},
      {mnuViewYourSonaro, Click, &TitlePane::mnuView_Click, static_cast<int>(kTabs.size())},
      {mnuViewPersonalPage, Click, &TitlePane::mnuViewPersonalPage_Click},
      {butMenu, Click, &TitlePane::butMenu_Click},
      {butHelp, Click, &TitlePane::butHelp_Click},
      {mnuFullHelp, Click, &TitlePane::butHelp_Click},
      {mnuQuickStart, Click, &TitlePane::mnuQuickStart_Click},
      {butTray, Click, &TitlePane::butTray_Click},
      {mnuHideToTray, Click, &TitlePane::butTray_Click},
      {butMin, Click, &TitlePane::butMin_Click},
      {butCloseIt, Click, &TitlePane::butCloseIt_Click},
      {mnuExit, Click, &TitlePane::mnuExit_Click},
  };
  return kRows;
}

void TitlePane::Show() {
  const View shown = context_.models.listing.State().Front();
  for (int tab = 0; tab < butTabs_.Count(); ++tab)
    butTabs_[tab].SetActive(kTabs[static_cast<std::size_t>(tab)] == shown);
}

void TitlePane::butTabs_Click(int tab) { context_.view.ShowView(kTabs[static_cast<std::size_t>(tab)]); }

void TitlePane::mnuView_Click(int view) {
  butTabs_Click(view);
  if (kTabs[static_cast<std::size_t>(view)] == View::Search) {
    txtQuickSearch_.Focus();
    txtQuickSearch_.SelectAll();
  }
}

void TitlePane::butMenu_Click() {
  std::vector<MenuEntry> menu = context_.models.actions.ProgramMenu();
  for (MenuEntry& entry : menu) {
    if (entry.command == mnuUndoUpdate) entry.enabled = context_.services.update.CanUndoUpdate();
  }
  butMenu_.PopUpMenu(menu);
}

}  // namespace sonaro
