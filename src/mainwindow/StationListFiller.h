// Fills lists of stations: from any text of station identifiers, from a search, from the user's own stations,
// from a favourite group's members and from the recent list. Looks all stations of a fill up in one go. Knows
// no captions and no modes: see StationListState.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/StationRows.h"

namespace sonaro {

class PersonalStations;
class RecentList;
class StatList;
class Strings;

class StationListFiller {
 public:
  StationListFiller(StatList& stations, const PersonalStations& personal, const RecentList& recent,
                    const Strings& strings)
      : stations_(stations), personal_(personal), recent_(recent), strings_(strings) {}

  // `ids`: decimal identifiers, each followed by one blank. Unknown ones are left out, the order is kept.
  void FillListFromIds(std::string_view ids, StationRows& list);
  // Searches the directory and fills the list with the stations found, in the directory's order, or with one
  // row that says that there are none. Returns their identifiers, each followed by one blank.
  std::string FillListFromSearch(std::string_view text, bool allWords, StationRows& list);
  // Every personal station that has a name, in table order.
  void FillListFromPersonal(StationRows& list);
  // What a search found, once more.
  void FillListFromFound(std::string_view ids, StationRows& list);
  // The members of a favourite group: identifiers and "P" + index. Returns those that the guide does not
  // know, which are left out; none when the guide could not be read, which says nothing about them.
  std::vector<std::string> FillListFromGroup(std::string_view members, StationRows& list);
  // The stations played last that are still there, most recent first.
  void FillListFromRecent(StationRows& list);

 private:
  std::vector<StationRow> RowsOfStations(const std::vector<std::int32_t>& ids);
  // What is unknown is left out and added to `missing`.
  std::vector<StationRow> RowsOf(const std::vector<std::string_view>& tokens,
                                 std::vector<std::string>& missing);

  StatList& stations_;
  const PersonalStations& personal_;
  const RecentList& recent_;
  const Strings& strings_;
};

}  // namespace sonaro
