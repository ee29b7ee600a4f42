// What a station key stands for: the name, the links and the web site of a directory station or of one of the
// user's own, in plain text. Owned by Application; changes nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "directory/StationRecord.h"
#include "stations/StationKey.h"

namespace sonaro {

class PersonalStations;
struct PersonalStation;
class StatList;
struct ScramblingAlphabets;

// Which link is asked for. The numbers are those that are passed around in the program.
enum class PlayMode : int {
  LinkOne = 1,
  LinkTwo = 2,
  LinkThree = 3,
  Personal = 10,   // the key is the index of a personal station
  BeforeTab = 11,  // the link is the part of the key before its first TAB
  KeyItself = 20   // the key is the link
};

// How many stations of the directory are played by whom, counted by the link that a play of the station
// takes.
struct LinkCounts {
  std::size_t asxProgram = 0;
  std::size_t realPlayer = 0;
  std::size_t webPage = 0;
};

class StationSource {
 public:
  StationSource(StatList& stations, const PersonalStations& personal, const ScramblingAlphabets& alphabets)
      : stations_(stations), personal_(personal), alphabets_(alphabets) {}

  // The record of a directory station with its links unscrambled; empty when there is none.
  StationRecord Record(std::int32_t stationId) const;
  // "" when the key names nothing.
  std::string NameOf(const StationKey& key) const;
  // The web site as it stands, without a scheme put in front; "" when there is none.
  std::string WebSiteOf(const StationKey& key) const;
  // Link 1 to 3 of the station; "" when it has none.
  std::string LinkOf(const StationKey& key, int number) const;
  // The first of them that is not empty.
  std::string FirstLinkOf(const StationKey& key) const;
  // The link to play when the one asked for is empty. Personal stations have none.
  std::string AlternateLinkOf(const StationKey& key) const;
  // One pass over the whole table, so not for every day.
  LinkCounts CountLinks() const;

 private:
  const PersonalStation* Personal(const StationKey& key) const;

  StatList& stations_;
  const PersonalStations& personal_;
  const ScramblingAlphabets& alphabets_;
};

}  // namespace sonaro
