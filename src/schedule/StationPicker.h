// The stations that can be chosen for a schedule item: those of a favourite group, the user's own, the ones
// played last, or the result of a search. The partner of frmSelectStation; owned by Application.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stations/StationSource.h"

namespace sonaro {

class CReg;
class FavoriteGroups;
class RecentList;
class StatList;
class Strings;

class StationPicker {
 public:
  StationPicker(StatList& stations, const StationSource& source, const FavoriteGroups& groups,
                const RecentList& recent, const CReg& reg, const Strings& strings)
      : stations_(stations),
        source_(source),
        groups_(groups),
        recent_(recent),
        reg_(reg),
        strings_(strings) {}

  // What can be taken from: the groups, then "Your Stations", "Recently Launched Stations" and the whole
  // guide, of which the last search is shown.
  std::vector<std::string> Sources() const;
  std::size_t WholeGuide() const;  // its place among the sources
  std::vector<StationInfo> RowsOf(std::size_t source);
  // Stations of the guide that hold every word of the text: in the name, the place, the media type, the
  // format or the description.
  std::vector<StationInfo> Find(std::string_view text);
  // Earlier searches, newest first.
  std::vector<std::string> SearchHistory() const;

 private:
  StatList& stations_;
  const StationSource& source_;
  const FavoriteGroups& groups_;
  const RecentList& recent_;
  const CReg& reg_;
  const Strings& strings_;
  std::vector<StationInfo> found_;
};

}  // namespace sonaro
