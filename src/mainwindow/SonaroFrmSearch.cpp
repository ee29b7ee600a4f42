// The handlers of the search form.
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "settings/WebPageOpener.h"

namespace sonaro {

void SonaroFrm::txtQuickSearch_EnterPressed() { FindStation(); }

void SonaroFrm::butSearchList_Click() { FindStation(); }

void SonaroFrm::FindStation() {
  switch (models_.search.FindStation(Text(txtQuickSearch), search_.ChosenKind(), search_.AllWords())) {
    case SearchPanel::Outcome::Nothing:
      return Focus(txtQuickSearch);
    case SearchPanel::Outcome::Web:
      ShowEverything();
      return butWebOpen_Click();
    case SearchPanel::Outcome::Stations:
      search_.ShowHistory();
      ShowEverything();
      return Focus(lstFavs);
  }
}

void SonaroFrm::butWebOpen_Click() {
  if (!models_.search.WebAddress().empty()) pages_.OpenWebPage(models_.search.WebAddress());
}

}  // namespace sonaro
