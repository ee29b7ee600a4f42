// The user's own stations, kept in "\personal.snr": one line each, the index, the name, three links, the web
// site, the type and a note, separated by TABs. Owned by Application.
//
// An index names a station for good: groups, the recent list and the schedule refer to it, so a deleted
// station leaves a line with its index behind and no index is given twice. Lines that cannot be understood
// are kept.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"
#include "stations/OwnLink.h"

namespace sonaro {

class DataFolder;

struct PersonalStation {
  static constexpr std::size_t kMaxName = 200;  // bytes
  static constexpr std::size_t kMaxLink = kMaxOwnLink;
  static constexpr std::size_t kMaxAddress = kMaxLink - 1;  // of a link, which can have a prefix
  static constexpr std::size_t kMaxNote = 4000;

  std::int32_t index = 0;  // from 1; 0: not stored yet
  std::string name;
  std::array<std::string, 3> links;  // link texts, see PlayLink and OwnLink
  std::string webSite;
  std::string type;  // what the lists show as the media type
  std::string note;
  bool operator==(const PersonalStation&) const = default;
};

// The station as it is stored: control characters become blanks, blanks at the ends go, what is too long is
// cut, and a link without a scheme gets one. A link that the rule for own links refuses stays as it is: the
// file may hold one from earlier times, and playing it is refused with a word.
PersonalStation Cleaned(const PersonalStation& station);

// Why what was typed cannot be stored, in the order in which it is checked.
enum class EntryFault { None, BadLink, NoName, NoLink };

struct StationEntry {
  EntryFault fault = EntryFault::None;
  std::size_t link = 0;     // which one, of a BadLink
  PersonalStation station;  // to be stored; only without a fault
};

// What the dialog's fields make of the station that they showed, where each link stands as its address alone.
StationEntry ReadEntry(const PersonalStation& shown, PersonalStation typed);

class PersonalStations {
 public:
  explicit PersonalStations(DataFolder& data) : file_(data, user_file::kStations) {}

  // Reads the file; what was in memory is forgotten. False when the file is there but could not be read.
  bool Load();
  // True when a file that could not be read before has been read now.
  bool LoadUnread() { return file_.Unread() && Load(); }

  // The stations in table order.
  std::vector<PersonalStation> All() const;
  // The station with this index, or null. Valid until the next change.
  const PersonalStation* Find(std::int32_t index) const;

  // Each change is made on what the file holds at that moment and saved at once; one that cannot be saved is
  // undone, and while the file cannot be read every change is refused. The station is stored as Cleaned gives
  // it, and needs a name.
  // The new station's index, or 0.
  [[nodiscard]] std::int32_t Add(const PersonalStation& station);
  // Adds all with one write. The indices in order, 0 for a station without a name; empty when nothing was
  // saved.
  [[nodiscard]] std::vector<std::int32_t> AddAll(std::span<const PersonalStation> stations);
  // Replaces the station with `station.index`.
  [[nodiscard]] bool Change(const PersonalStation& station);
  [[nodiscard]] bool Delete(std::int32_t index) { return DeleteAll({&index, 1}); }
  // Several with one write. False also when none of them was there.
  [[nodiscard]] bool DeleteAll(std::span<const std::int32_t> indices);
  // Deleted stations back under their own indices, so that groups and the schedule find them again; to their
  // places if these are known. True as well when they are there already.
  [[nodiscard]] bool PutBackAll(std::span<const PersonalStation> stations);

 private:
  // A line of the file: a station, or, with index 0, a line that is kept as it stands.
  struct Line {
    PersonalStation station;
    std::string kept;
  };

  Line ReadLine(std::string_view text);
  // Writes `changed` and, when that worked, takes it over.
  [[nodiscard]] bool Save(std::vector<Line> changed);
  void ReadFile();
  // Takes over what another session has written. False when the file cannot be read.
  bool Refresh();
  void Adopt(std::vector<Line> lines);

  UserFile file_;
  std::vector<Line> lines_;
  std::unordered_map<std::int32_t, std::size_t> lineOf_;  // index of a station -> position in lines_
  std::int32_t highestIndex_ = 0;                         // ever given, deleted stations included
};

}  // namespace sonaro
