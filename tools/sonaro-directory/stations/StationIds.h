// Station identifiers that stay the same when a directory is made again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "directory/Scrambling.h"
#include "model/Directory.h"

namespace sonaro {

// The identifiers of an earlier directory, found again by what a station is called and where it is heard.
class EarlierIds {
 public:
  EarlierIds() = default;
  // From the text of a "\Station.snr"; its links are read with `alphabets`.
  EarlierIds(std::string_view stationList, const ScramblingAlphabets& alphabets);

  bool Empty() const { return ids_.empty(); }
  // The identifier of a station with this name and one of its addresses, or else its web site; 0 when there
  // is none.
  std::int32_t Find(const SourceStation& station) const;
  bool Has(std::int32_t id) const { return ids_.count(id) > 0; }

 private:
  std::unordered_map<std::string, std::int32_t> byNameAndAddress_;
  std::unordered_map<std::string, std::int32_t> byNameAndWebSite_;
  std::unordered_set<std::int32_t> ids_;
};

// Gives every station its identifier, 1 to 2,147,483,647: the earlier one when there is one, else a number
// computed from its name and first address. When two stations get the same number, the one whose name and
// address sort later takes the next free one, so that the same set of stations always has the same
// identifiers whatever the order of the lists. An earlier identifier is never given to another station. Marks
// the stations that are new.
void AssignIds(std::vector<DirectoryStation>& stations, const EarlierIds& earlier);

}  // namespace sonaro
