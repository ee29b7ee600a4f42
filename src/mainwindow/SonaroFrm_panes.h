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
  kProgressPane
};

// The layout in which members of a group that the guide does not know are told of beside the caption.
inline constexpr int kMainLayoutWithMissing = 1;

}  // namespace sonaro
