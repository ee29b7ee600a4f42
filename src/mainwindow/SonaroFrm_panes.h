// The parts of the main window that come and go together: the numbers of its panes.
#pragma once

namespace sonaro {

enum MainPane : unsigned char {
  kRankingPane = 1,  // the left column
  kTreePane,
  kSearchPane,
  kYoursPane,
  kListPane,  // the middle
  kWebPane,
  kEventPane,
  kStationPane,  // the right
  kNoStationPane,
  kStatusPane,  // the status line
  kProgressPane,
  kFilterPane,  // above the list
  kOutsidePane  // never shown: for who works the window from outside
};

// The layouts in which the caption leaves room: for a word on members of a group that the guide does not
// know, and for the box of the filter.
inline constexpr int kMainLayoutWithMissing = 1;
inline constexpr int kMainLayoutWithFilter = 2;
// Those in which the filter's row stands above the list, which is shorter then; so it does with the box.
inline constexpr int kMainLayoutWithFilterRow = 3;
inline constexpr int kMainLayoutWithMissingAndFilterRow = 4;

}  // namespace sonaro
