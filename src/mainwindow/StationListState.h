// The main window's station list and what it stands for: every way to fill it, with the caption, the view and
// the listing mode kept in step. Owned by the main window, which shows State() and Rows() after each call.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mainwindow/ListingState.h"
#include "mainwindow/StationRows.h"

namespace sonaro {

class BrowseTree;
class FavoriteGroups;
class Rankings;
class StationListFiller;
class Strings;
struct BrowseNode;

class StationListState {
 public:
  StationListState(StationListFiller& lists, Rankings& rankings, const FavoriteGroups& groups,
                   BrowseTree& tree, const StationSource& source, const Strings& strings, SortKeyOf sortKey,
                   const StationFilter* filter = nullptr)
      : lists_(lists),
        rankings_(rankings),
        groups_(groups),
        tree_(tree),
        strings_(strings),
        rows_(source, std::move(sortKey), filter) {}

  const ListingState& State() const { return state_; }
  StationRows& Rows() { return rows_; }
  const StationRows& Rows() const { return rows_; }

  // Brings a panel up. The list view is rebuilt from the listing mode; the browse views build the tree when
  // it is not built for their mode; the personal page lists the user's own stations; all other views leave
  // the list as it is.
  void ShowView(View view);
  // Does nothing when the list view is on show.
  void ShowListView();

  void ShowRanking(Ranking ranking);
  void ShowRecent();
  // A group that does not exist shows nothing new.
  void ShowFavoriteGroup(std::size_t group);
  // The same without leaving the view: the list takes the middle of the page of the user's own things.
  void ShowGroupInPlace(std::size_t group);
  void ShowRecentInPlace();
  // Fills the list and leaves the tree on show.
  void treeBrowse_NodeClick(const BrowseNode& node);
  void ShowSearch(std::string_view text, bool allWords);
  // What the last search found, in the directory's order. It is what its listing mode shows until the next
  // search, whatever else was listed meanwhile.
  const std::vector<StationKey>& LastFound() const { return found_; }
  // The list shows what fits best to the words typed so far, in place of what it held, which comes back with
  // no words left. The listing mode stays.
  void ShowMatches(std::string_view typed);
  // Narrows what the list shows to the rows that fit to these words, until it shows something else; "" brings
  // all back.
  void NarrowByWords(std::string_view words);

  // The middle shows what was asked of the web in place of the list, and does so again whenever the search
  // view comes back, until the directory is searched.
  void ShowWebSearch();

  // The groups changed: fills the list again when it shows one. The selection follows the rule of
  // base/RowSelection.h.
  void GroupsChanged();
  // The group on show has a new name.
  void GroupRenamed(std::string_view from, std::string_view to);
  // Falls back to the recent list when the group was on show in the middle, whatever page is beside it. A
  // list that held it behind another page is emptied.
  void GroupDeleted(std::string_view name);
  // The rating that stands beside the names, sub-item 4 to 7: the one that the list is sorted or ranked by,
  // else the overall one. 0: none, since values are not wanted, or their order is that of the symbols.
  int ValueShown() const;
  void ShowValues(bool wanted) { state_.showsValues = wanted; }

  void FilterChanged() { rows_.FilterChanged(); }
  // Stations changed (the directory, or the user's own): looks all rows up again.
  void StationsChanged();

 private:
  void LeaveForList();
  void RebuildFromListingMode();
  void HoldGroup(std::size_t group);
  void HoldRecent();
  void HoldLastSearch();
  void FillHeld();
  void Refill();
  void Narrow();
  void Hold(Holds holds, std::string caption);

  StationListFiller& lists_;
  Rankings& rankings_;
  const FavoriteGroups& groups_;
  BrowseTree& tree_;
  const Strings& strings_;
  StationRows rows_;
  ListingState state_;
  std::optional<ListingState> beforeMatches_;  // what the list held when the typing began
  std::string searchText_;
  bool webSearchIsLast_ = false;
  std::vector<StationKey> found_;
};

}  // namespace sonaro
