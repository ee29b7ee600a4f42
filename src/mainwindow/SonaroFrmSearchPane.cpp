#include "mainwindow/SonaroFrmSearchPane.h"

#include "forms/ControlIds.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "settings/WebPageOpener.h"

namespace sonaro {

std::span<const EventRow> SearchPane::Events() const {
  static const EventRow kRows[] = {
      {txtQuickSearch, EnterPressed, &SearchPane::FindStation},
      {butSearchList, Click, &SearchPane::FindStation},
      {butWebOpen, Click, &SearchPane::butWebOpen_Click},
  };
  return kRows;
}

void SearchPane::Load() {
  search_.LoadSearchKinds(form_.LoadText(IDS_SEARCH_KIND_STATIONS));
  for (std::size_t i = 0; i < SearchPanel::kMaxKinds; ++i) {
    const int button = optSearchType + static_cast<int>(i);
    const bool used = i < search_.Kinds().size();
    if (used) form_.SetText(button, search_.Kinds()[i].caption);
    form_.ShowControl(button, used);
  }
  form_.Check(optSearchType);
  form_.Check(optSearch);
  ShowHistory();
}

void SearchPane::ShowHistory() {
  const std::string typed = form_.Text(txtQuickSearch);
  form_.ClearItems(txtQuickSearch);
  for (const std::string& entry : search_.History()) form_.AddItem(txtQuickSearch, entry);
  form_.SetText(txtQuickSearch, typed);
}

void SearchPane::ShowWebSearch() {
  form_.SetText(lblWebAsked, FormatText(form_.LoadText(IDS_WEB_ASKED), {search_.WebWords()}));
  form_.SetText(lblWebAddress, search_.WebAddress());
  form_.SetText(lblListing, search_.WebCaption());
  form_.SetText(lblCount, "");
}

std::size_t SearchPane::ChosenKind() const {
  for (int i = 0; i < static_cast<int>(SearchPanel::kMaxKinds) - 1; ++i) {
    if (form_.IsChecked(optSearchType + i)) return static_cast<std::size_t>(i);
  }
  return SearchPanel::kMaxKinds - 1;
}

void SearchPane::FindStation() {
  switch (search_.FindStation(form_.Text(txtQuickSearch), ChosenKind(), form_.IsChecked(optSearch))) {
    case SearchPanel::Outcome::Nothing:
      return form_.Focus(txtQuickSearch);
    case SearchPanel::Outcome::Web:
      context_.view.ShowEverything();
      return butWebOpen_Click();
    case SearchPanel::Outcome::Stations:
      ShowHistory();
      context_.view.ShowEverything();
      return form_.Focus(lstFavs);
  }
}

void SearchPane::butWebOpen_Click() {
  if (!search_.WebAddress().empty()) context_.services.pages.OpenWebPage(search_.WebAddress());
}

}  // namespace sonaro
