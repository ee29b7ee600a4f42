// Two things are told apart here: what the list holds now (state_.holds, with what it takes to fill it again)
// and the listing mode, which is what the List tab comes back to. A node of the tree or a match of what is
// typed fills the list without touching the mode.
#include "mainwindow/StationListState.h"

#include <utility>

#include "base/RowSelection.h"
#include "base/Text.h"
#include "mainwindow/BrowseTree.h"
#include "mainwindow/StationListFiller.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

// The names by which a start asks for a view (WhatToShow).
std::string_view NameOf(View view) {
  switch (view) {
    case View::List:
      return "List";
    case View::Browse:
      return "Browse";
    case View::BrowseLoc:
      return "BrowseLoc";
    case View::Search:
      return "Search";
    case View::PersonalPage:
      return "Personal Page";
    case View::YourSonaro:
      return "YourSonaro";
  }
  return {};
}

void StationListState::ShowView(View view) {
  if (view == View::List) return ShowListView();
  state_.searchForm = false;
  state_.view = view;
  state_.middle = view == View::YourSonaro                   ? Middle::EventPage
                  : view == View::Search && webSearchIsLast_ ? Middle::WebSearch
                                                             : Middle::StationList;
  if (view == View::Browse) tree_.Show(BrowseMode::ByCategory);
  if (view == View::PersonalPage) {
    Hold(Holds::PersonalStations, strings_.Load(IDS_LISTING_YOUR_STATIONS));
    FillHeld();
  }
  if (view == View::BrowseLoc) tree_.Show(BrowseMode::ByLocation);
}

// Coming back to the tab shows what it showed before, read anew: other tabs have used the one list meanwhile.
void StationListState::ShowListView() {
  state_.searchForm = false;
  if (state_.view == View::List) return;
  state_.view = View::List;
  state_.middle = Middle::StationList;
  RebuildFromListingMode();
}

// The mode is a text so that it can be told to other programs; an unknown one leaves the list as it is.
void StationListState::RebuildFromListingMode() {
  const std::string mode = state_.listingMode;
  if (mode == ListingState::kRecent) {
    ShowRecent();
  } else if (mode == ListingState::kLastSearch) {
    // The search's rows are still there, and searching again would cost time for the same result.
    if (state_.holds == Holds::Search) return;
    HoldLastSearch();
    FillHeld();
  } else if (const auto ranking = RankingOfListingMode(mode)) {
    ShowRanking(*ranking);
  } else if (mode.starts_with(ListingState::kGroup)) {
    const auto group = groups_.Find(std::string_view(mode).substr(ListingState::kGroup.size()));
    if (group && *group < FavoriteGroups::kSlots) ShowFavoriteGroup(*group);
  }
}

// The list comes to the front without being rebuilt: its next rows are on their way.
void StationListState::LeaveForList() {
  state_.listingMode.clear();
  ShowListView();
}

// Everything that belonged to the last list goes, so that no filter or group name of it is left.
void StationListState::Hold(Holds holds, std::string caption) {
  state_.missing.clear();
  state_.typed.clear();
  state_.narrowedBy.clear();
  state_.holds = holds;
  state_.caption = std::move(caption);
  state_.ranking.reset();
  state_.group.clear();
}

void StationListState::ShowRanking(Ranking ranking) {
  LeaveForList();
  state_.listingMode = ListingModeOf(ranking);
  Hold(Holds::Ranking, strings_.Load(CaptionIdOf(ranking)));
  state_.ranking = ranking;
  FillHeld();
}

void StationListState::ShowRecent() {
  LeaveForList();
  HoldRecent();
}

// Without leaving the view: the left column keeps showing groups.
void StationListState::ShowRecentInPlace() {
  state_.middle = Middle::StationList;
  HoldRecent();
}

void StationListState::HoldRecent() {
  state_.listingMode = ListingState::kRecent;
  Hold(Holds::Recent, strings_.Load(IDS_LISTING_YOUR_RECENT));
  FillHeld();
}

void StationListState::ShowFavoriteGroup(std::size_t group) {
  if (group >= groups_.Count()) return;
  LeaveForList();
  HoldGroup(group);
}

void StationListState::ShowGroupInPlace(std::size_t group) {
  if (group >= groups_.Count()) return;
  state_.middle = Middle::StationList;
  HoldGroup(group);
}

void StationListState::HoldGroup(std::size_t group) {
  const std::string name = groups_.Name(group);
  state_.listingMode = std::string(ListingState::kGroup) + name;
  Hold(Holds::Group, name);
  state_.group = name;
  FillHeld();
}

void StationListState::treeBrowse_NodeClick(const BrowseNode& node) {
  state_.currentNodeTag = node.tag;
  state_.middle = Middle::StationList;
  const NodeClick click = BrowseTree::ClickOn(node);
  Hold(click.fill == NodeClick::Fill::Stations           ? Holds::Node
       : click.fill == NodeClick::Fill::PersonalStations ? Holds::PersonalStations
                                                         : Holds::Nothing,
       std::string(TrimBlanks(node.text)));
  FillHeld();
}

void StationListState::ShowSearch(std::string_view text, bool allWords) {
  searchText_ = text;
  webSearchIsLast_ = false;
  LeaveForList();
  state_.searchForm = true;
  HoldLastSearch();
  found_ = lists_.FillListFromSearch(text, allWords, rows_);
}

void StationListState::HoldLastSearch() {
  state_.listingMode = ListingState::kLastSearch;
  Hold(Holds::Search, FormatText(strings_.Load(IDS_LISTING_SEARCH), {searchText_}));
}

// What is typed belongs to the search form: the list that comes back with its tab is the one of the listing
// mode, so this is no list of its own.
void StationListState::ShowMatches(std::string_view typed) {
  state_.view = View::Search;
  state_.searchForm = false;
  state_.middle = Middle::StationList;
  if (!SplitWords(typed).empty()) {
    if (state_.holds != Holds::Matches) beforeMatches_ = state_;
    Hold(Holds::Matches, FormatText(strings_.Load(IDS_LISTING_MATCHES), {std::string(typed)}));
    state_.typed = typed;
  } else if (state_.holds == Holds::Matches && beforeMatches_) {
    // Only what the list holds comes back, not the view: the search form stays where it is.
    const ListingState before = *beforeMatches_;
    Hold(before.holds, before.caption);
    state_.ranking = before.ranking;
    state_.group = before.group;
  } else {
    return;
  }
  FillHeld();
}

void StationListState::NarrowByWords(std::string_view words) {
  const bool any = !SplitWords(words).empty();
  state_.narrowedBy = any ? std::string(words) : std::string();
  Narrow();
}

// What fits is found for the whole fill, shown or not, so that fewer words bring rows back.
void StationListState::Narrow() {
  if (state_.narrowedBy.empty()) return rows_.NarrowTo(std::nullopt);
  rows_.NarrowTo(lists_.Fitting(state_.narrowedBy, rows_));
}

int StationListState::ValueShown() const {
  constexpr std::pair<Ranking, SubItem> kRatings[] = {{Ranking::BestSound, SubItem::Sound},
                                                      {Ranking::BestSpeed, SubItem::Speed},
                                                      {Ranking::BestWebsite, SubItem::WebSite}};
  if (!state_.showsValues) return 0;
  const SortState& sort = rows_.Sort();
  if (sort.on && sort.key == static_cast<int>(SubItem::Reliability)) return 0;
  if (sort.on && sort.key >= static_cast<int>(SubItem::Overall)) return sort.key;
  for (const auto& [ranking, rating] : kRatings) {
    if (state_.ranking == ranking) return static_cast<int>(rating);
  }
  return static_cast<int>(SubItem::Overall);
}

void StationListState::ShowWebSearch() {
  webSearchIsLast_ = true;
  state_.middle = Middle::WebSearch;
}

void StationListState::GroupsChanged() {
  if (state_.holds == Holds::Group) Refill();
}

// The list is not filled again: the members are the same, and the selected row and the place in the list
// stay.
void StationListState::GroupRenamed(std::string_view from, std::string_view to) {
  const std::string oldMode = std::string(ListingState::kGroup) + std::string(from);
  if (EqualIgnoringCase(state_.listingMode, oldMode)) {
    state_.listingMode = std::string(ListingState::kGroup) + std::string(to);
  }
  if (state_.holds == Holds::Group && EqualIgnoringCase(state_.group, from)) {
    state_.group = to;
    state_.caption = to;
  }
}

// With the list on show something must take its place, and the recent stations are always there. Behind
// another page nothing is shown, and nothing comes back with the List tab.
void StationListState::GroupDeleted(std::string_view name) {
  if (state_.holds != Holds::Group || !EqualIgnoringCase(state_.group, name)) return;
  if (state_.middle == Middle::StationList) return HoldRecent();
  state_.listingMode.clear();
  Hold(Holds::Nothing, {});
  FillHeld();
}

void StationListState::StationsChanged() { Refill(); }

// The same list, read anew: the selected station stays selected by its key, or, when it is gone, the one that
// took its place.
void StationListState::Refill() {
  const std::vector<StationKey> before = rows_.Keys();
  const std::size_t selected = rows_.Selected().value_or(0);
  FillHeld();
  // A fill shows all rows; the words of the filter belong to this list and hold on.
  if (!state_.narrowedBy.empty()) Narrow();
  rows_.Select(SelectionAfterFill(before, selected, rows_.Keys()));
}

// Everything a fill needs stands in state_ or in found_, so a list can be filled again at any time, after an
// update of the guide too.
void StationListState::FillHeld() {
  switch (state_.holds) {
    case Holds::Nothing:
      return rows_.Clear();
    case Holds::Node:
      return lists_.FillListFromIds(state_.currentNodeTag + " ", rows_);
    case Holds::PersonalStations:
      return lists_.FillListFromPersonal(rows_);
    case Holds::Ranking:
      return lists_.FillListFromIds(rankings_.Ids(*state_.ranking), rows_);
    case Holds::Recent:
      return lists_.FillListFromRecent(rows_);
    case Holds::Group:
      state_.missing.clear();
      if (const auto group = groups_.Find(state_.group)) {
        state_.missing = lists_.FillListFromGroup(groups_.Keys(*group), rows_);
      }
      return;
    case Holds::Search:
      return lists_.FillListFromFound(found_, rows_);
    case Holds::Matches:
      return lists_.FillListFromMatches(state_.typed, rows_);
  }
}

}  // namespace sonaro
