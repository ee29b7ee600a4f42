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

// The arithmetic of identifiers, of stations and events, that are computed from what they stand for: FNV-1a,
// folded to 31 bits. Never change it: the identifiers in users' favourites depend on it.
inline std::uint32_t IdNumber(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return static_cast<std::uint32_t>(hash ^ hash >> 32) & 0x7FFFFFFFu;
}

// The first identifier from `number` on, upwards and round, that is positive and for which `isFree` holds.
template <typename IsFree>
std::int32_t FirstFreeId(std::uint32_t number, IsFree isFree) {
  for (;; number = (number + 1) & 0x7FFFFFFFu) {
    const auto id = static_cast<std::int32_t>(number);
    if (id != 0 && isFree(id)) return id;
  }
}

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
