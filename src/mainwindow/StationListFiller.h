// Fills lists of stations: from any text of station identifiers, from a search, from the user's own stations,
// from a favourite group's members and from the recent list. Fills with keys: no station
// is read. Knows
// no captions and no modes: see StationListState.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/StationRows.h"

namespace sonaro {

class RecentList;
class StatList;
class Strings;

class StationListFiller {
 public:
  StationListFiller(StatList& stations, const StationSource& source, const RecentList& recent,
                    const Strings& strings)
      : stations_(stations), source_(source), recent_(recent), strings_(strings) {}

  // `ids`: decimal identifiers, each followed by one blank, as the files of the guide hold them. Unknown ones
  // are left out, the order is kept.
  void FillListFromIds(std::string_view ids, StationRows& list);
  // Searches the directory and fills the list with the stations found, in the directory's order, or with one
  // row that says that there are none. Returns the stations.
  std::vector<StationKey> FillListFromSearch(std::string_view text, bool allWords, StationRows& list);
  // Every personal station that has a name, in table order.
  void FillListFromPersonal(StationRows& list);
  // What a search found, once more.
  void FillListFromFound(std::span<const StationKey> found, StationRows& list);
  // The stations that fit best to the words typed so far, the best first, or one row that says that there are
  // none.
  void FillListFromMatches(std::string_view typed, StationRows& list);
  // Those of the list's stations that fit to the words, by the rules of typing, in the order of its fill.
  std::vector<StationKey> Fitting(std::string_view words, const StationRows& list) const;
  // The members of a favourite group. Returns those that the guide does not know, which are left out, None
  // for what names no station; empty when the guide could not be read, which says nothing about them.
  std::vector<StationKey> FillListFromGroup(std::span<const StationKey> members, StationRows& list);
  // The stations played last that are still there, most recent first.
  void FillListFromRecent(StationRows& list);

 private:
  void Show(std::vector<StationKey> found, StationRows& list);

  StatList& stations_;
  const StationSource& source_;
  const RecentList& recent_;
  const Strings& strings_;
};

}  // namespace sonaro
