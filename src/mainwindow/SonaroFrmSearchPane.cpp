#include "mainwindow/SonaroFrmSearchPane.h"

#include "forms/ControlIds.h"
#include "resources/texts/mainwindow.h"
#include "settings/HelpPages.h"
#include "settings/Strings.h"

namespace sonaro {

std::span<const EventRow> SearchPane::Events() const {
  static const EventRow kRows[] = {
      // Typing and choosing an earlier search are taken alike; a search itself is made by Enter and the
      // button.
      {txtQuickSearch, Change, &SearchPane::txtQuickSearch_Change},
      {txtQuickSearch, SelChange, &SearchPane::txtQuickSearch_Change},
      {txtQuickSearch, EnterPressed, &SearchPane::FindStation},
      {butSearchList, Click, &SearchPane::FindStation},
      {butPinSearch, Click, &SearchPane::butPinSearch_Click},
      {butWebOpen, Click, &SearchPane::butWebOpen_Click},
  };
  return kRows;
}

void SearchPane::Load() {
  search_.LoadSearchKinds(form_.LoadText(IDS_SEARCH_KIND_STATIONS));
  for (std::size_t i = 0; i < SearchPanel::kMaxKinds; ++i) {
    const RadioButton button = optSearchType_[static_cast<int>(i)];
    const bool used = i < search_.Kinds().size();
    if (used) button.SetText(search_.Kinds()[i].caption);
    button.Show(used);
  }
  optSearchType_[0].Check();
  optSearch_.Check();
  ShowHistory();
}

void SearchPane::ShowHistory() {
  std::vector<std::string> searches = search_.Searches();
  if (searches != shownSearches_) {
    txtQuickSearch_.ClearItems();
    for (const std::string& entry : searches) txtQuickSearch_.AddItem(entry);
    shownSearches_ = std::move(searches);
  }
  ShowPinned();
}

// The key is lit for the words that stand in the box by now, not for the search that was made last.
void SearchPane::ShowPinned() const {
  const std::string typed = txtQuickSearch_.Text();
  butPinSearch_.Enable(!TrimBlanks(typed).empty());
  butPinSearch_.SetActive(search_.IsPinned(typed));
}

void SearchPane::butPinSearch_Click() {
  search_.TogglePinned(txtQuickSearch_.Text());
  ShowHistory();
}

void SearchPane::ShowWebSearch() {
  lblWebAsked_.SetText(FormatText(form_.LoadText(IDS_WEB_ASKED), {search_.WebWords()}));
  lblWebAddress_.SetText(search_.WebAddress());
  lblListing_.SetText(search_.WebCaption());
  lblCount_.SetText("");
}

std::size_t SearchPane::ChosenKind() const {
  for (int i = 0; i < optSearchType_.Count() - 1; ++i) {
    if (optSearchType_[i].IsChecked()) return static_cast<std::size_t>(i);
  }
  return SearchPanel::kMaxKinds - 1;
}

// Searches of the web wait for Enter: each would ask a server. Words that are shown already are not looked
// for again, so a message that comes late does not undo what Enter has found.
void SearchPane::TakeTyped() {
  const std::string typed = txtQuickSearch_.Text();
  ShowPinned();
  if (typed == taken_ || !search_.SearchesStations(ChosenKind())) return;
  taken_ = typed;
  context_.models.listing.ShowMatches(TrimBlanks(typed));
  context_.view.ShowEverything();
}

// The words stay, with the focus on them, so that the search can be made narrower or wider.
void SearchPane::FindStation() {
  // First: a letter that is still on its way to TakeTyped is part of this search.
  taken_ = txtQuickSearch_.Text();
  switch (search_.FindStation(taken_, ChosenKind(), optSearch_.IsChecked())) {
    case SearchPanel::Outcome::Nothing:
      break;
    case SearchPanel::Outcome::Web:
      context_.view.ShowEverything();
      return butWebOpen_Click();
    case SearchPanel::Outcome::Stations:
      ShowHistory();
      context_.view.ShowEverything();
      break;
  }
  txtQuickSearch_.Focus();
}

void SearchPane::butWebOpen_Click() {
  if (!search_.WebAddress().empty()) context_.services.pages.OpenWebPage(search_.WebAddress());
}

}  // namespace sonaro
