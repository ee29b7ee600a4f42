// What the main window shows, as one value: its view, what the station list holds and which key looks active.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/Rankings.h"
#include "stations/StationKey.h"

namespace sonaro {

// The panel on show. The browse tree's mode goes with Browse (by category) and BrowseLoc (by location).
enum class View { List, Browse, BrowseLoc, Search, PersonalPage, YourSonaro };

// "List", "Browse", "BrowseLoc", "Search", "Personal Page", "YourSonaro".
std::string_view NameOf(View view);

// What takes the middle of the window.
enum class Middle { StationList, WebSearch, EventPage };

// What the rows of the station list are. The listing mode can name something else: it survives other panels.
enum class Holds { Nothing, Node, PersonalStations, Ranking, Group, Recent, Search, Matches };

struct ListingState {
  static constexpr std::string_view kRecent = "Recent";
  static constexpr std::string_view kLastSearch = "LastSearch";
  static constexpr std::string_view kGroup = "fav";  // followed by the group's name

  View view = View::List;
  bool searchForm = false;  // with View::List: the search form stands beside what it found, its tab in front
  Middle middle = Middle::StationList;
  // What the list is rebuilt from when the list view comes back: "" (nothing), "Recent", "LastSearch", a
  // ranking's mode, or "fav" and a group's name.
  std::string listingMode;
  std::string currentNodeTag;  // of the tree node clicked last
  std::string caption;         // of lblListing
  Holds holds = Holds::Nothing;
  std::optional<Ranking> ranking;  // with Holds::Ranking: its key shows the active colour
  std::string group;               // with Holds::Group: its name
  bool showsValues = false;        // ratings stand beside the names
  std::string typed;               // with Holds::Matches: the words typed so far
  // With Holds::Group: its members that the guide does not know, None for what names no station. They are
  // not among the rows.
  std::vector<StationKey> missing;
  std::string narrowedBy;  // the words that narrow what the list shows; "" without

  // Whose tab is in front and whose panel stands in the left column.
  View Front() const { return searchForm ? View::Search : view; }
};

}  // namespace sonaro
