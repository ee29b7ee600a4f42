// What a station key stands for: the facts and links of a station of the guide or of one of the user's own,
// in plain text. Owned by Application; changes nothing.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "base/Text.h"
#include "stations/StationKey.h"

namespace sonaro {

class ExtraLinks;
class PersonalStations;
struct PersonalStation;
class StatList;
struct StationRecord;
struct StationView;
class Strings;
struct ScramblingAlphabets;
class TypedWords;

// Which link is asked for. The numbers are those that are passed around in the program.
enum class PlayMode : int {
  LinkOne = 1,
  LinkTwo = 2,
  LinkThree = 3,
  Personal = 10,   // the first link that one of the user's own stations has
  BeforeTab = 11,  // the part of PlayRequest::link before its first TAB
  KeyItself = 20   // PlayRequest::link
};

// What is to be played.
struct PlayRequest {
  StationKey station;  // None for a link that belongs to none
  PlayMode mode = PlayMode::LinkOne;
  std::string link = {};  // for the last two modes
  bool operator==(const PlayRequest&) const = default;
};

// What a list shows of a station. One of the user's own has ratings of "0" and the words for its location.
struct StationInfo {
  StationKey key;  // None: there is no such station, and all else is empty
  std::string name;
  std::string location;
  std::string mediaType;
  std::string format;
  std::string overall, sound, speed, webSiteRating;  // one digit
  std::string reliability;

  // The symbol of the reliability, 0 (not known) to 4.
  int Symbol() const;
};

// The eight sub-items of a row of a list, behind the name. 1 to 3 have a visible column; 4 to 8 are there to
// be sorted by.
enum class SubItem : int { Location = 1, MediaType, Format, Overall, Sound, Speed, WebSite, Reliability };
inline constexpr int kSubItems = 8;

// The name (0) or a sub-item of a row.
const std::string& CellOf(const StationInfo& row, int subItem);

// All of a station.
struct Station : StationInfo {
  std::string description;
  std::string bitRate;
  std::array<std::string, 3> links;
  std::string alternateLink;  // played when the first link is asked for and missing
  std::string webSite;        // as it stands, without a scheme put in front
};

// A link of a station that can be played.
struct PlayableLink {
  int number = 0;    // 1 to 3; 0: one that the user added to a station of the guide
  std::string link;  // link text, see PlayLink
  std::string name;  // of an added one; may be empty
  PlayRequest request;
};

// How many stations of the directory are played by whom, counted by the link that a play of the station
// takes.
struct LinkCounts {
  std::size_t asxProgram = 0;
  std::size_t realPlayer = 0;
  std::size_t webPage = 0;
  std::size_t plsAmongAsx = 0;   // of those for the program for .asx files, the links to .pls playlists
  std::size_t plsAmongReal = 0;  // the same of those for the RealPlayer-compatible player
  std::string name;              // of the first station that is played by a player, and its link text
  std::string link;

  void Add(std::string_view station, const std::string& linkText);
};

StationInfo InfoOf(const StationView& station);
StationInfo InfoOf(const StationRecord& record);

class StationSource {
 public:
  StationSource(StatList& stations, const PersonalStations& personal, const ScramblingAlphabets& alphabets,
                const Strings& strings)
      : stations_(stations), personal_(personal), alphabets_(alphabets), strings_(strings) {}

  // With one read of the record. Its key is None when there is no such station.
  Station Find(const StationKey& key) const;
  // Those of the keys that there are, in their order; one of the user's own needs a name. Reads no texts.
  std::vector<StationKey> KnownOf(std::span<const StationKey> keys) const;
  // The facts of those of the keys that there are, in their order, with one opening of the table.
  std::vector<StationInfo> InfosOf(std::span<const StationKey> keys) const;
  // The same one by one, with the place of its key among `keys`; in no order of the whole. `visit` must not
  // ask for a station.
  using InfoVisitor = std::function<void(std::size_t place, StationInfo info)>;
  void VisitInfos(std::span<const StationKey> keys, const InfoVisitor& visit) const;
  // For sorting: a number for each of the keys whose order is the order of the name (0) or the sub-item by
  // `sortKey`, equal for equal texts. The numbers of one call compare with each other only.
  std::vector<std::uint32_t> RanksOf(std::span<const StationKey> keys, int subItem,
                                     const SortKeyOf& sortKey) const;
  // The user's own that have a name, in table order.
  std::vector<StationKey> OwnKeys() const;
  // Whether all words stand somewhere in the name, the type or the note of one of the user's own.
  bool OwnFits(const StationKey& key, const TypedWords& words) const;
  // The guide's stations, ascending, in which all words of `text` stand somewhere, letter case ignored.
  std::vector<std::int32_t> IdsHolding(std::string_view text) const;
  // "" when the key names nothing.
  std::string NameOf(const StationKey& key) const;
  std::string WebSiteOf(const StationKey& key) const { return Find(key).webSite; }
  // One pass over the whole table, so not for every day.
  LinkCounts CountLinks() const;

 private:
  const PersonalStation* Personal(const StationKey& key) const;
  const PersonalStation* Named(const StationKey& key) const;  // nullptr also without a name
  StationInfo InfoOfOwn(const PersonalStation& station) const;

  StatList& stations_;
  const PersonalStations& personal_;
  const ScramblingAlphabets& alphabets_;
  const Strings& strings_;
};

// The links of a station that are not blank: its own in order, the alternate one in the place of a missing
// first, then those that the user added to it.
std::vector<PlayableLink> PlayableLinks(const Station& station, const ExtraLinks& extra);

}  // namespace sonaro
