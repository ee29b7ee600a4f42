// The user's favourite groups and their file "\favs.snr": one line for each group, its name, a tab, and the
// members, each followed by one blank. A member is a station's token (StationKey.h); one that names no
// station, or one that the guide does not have, is kept as it stands. Owned by Application. Every change is
// made on what the file holds at that moment and is written at once; one that cannot be written is taken
// back. Asks nobody anything: see FavoriteCommands.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"
#include "stations/StationKey.h"

namespace sonaro {

class DataFolder;

// What became of a change to the groups.
enum class [[nodiscard]] FavoriteChange{
    Nothing,  // there was nothing to change: no such group, the name is in use, the station is there already
    Saved,
    NotSaved  // the file could not be read or written: nothing was changed
};

class FavoriteGroups {
 public:
  // Keys in the group bar. A file with more groups keeps them all; those beyond the tenth have no key.
  static constexpr std::size_t kSlots = 10;
  // Of a name that a dialog takes.
  static constexpr int kMaxNameBytes = 100;

  explicit FavoriteGroups(DataFolder& data) : file_(data, user_file::kGroups) {}

  // Reads the file into the table and writes it back when reading changed it: lines and names trimmed of
  // blanks, lines without a tab dropped, after a copy with all of them was kept beside, and a group without a
  // name, or with that of an earlier one, given a name of its own ("Jazz 2"). Members are never lost.
  void LoadFavoriteGroups();
  // True when a file that could not be read before has been read now.
  bool LoadUnread();
  // Writes the file. Never Nothing.
  FavoriteChange SaveFavoriteGroups();

  std::size_t Count() const { return groups_.size(); }
  // For `group` below Count().
  const std::string& Name(std::size_t group) const { return groups_[group].name; }
  // Its members in order: None where the file holds something that names no station.
  const std::vector<StationKey>& Keys(std::size_t group) const { return groups_[group].keys; }
  // The group of this name, letter case ignored.
  std::optional<std::size_t> Find(std::string_view name) const;
  bool Contains(std::size_t group, const StationKey& station) const;
  // Whether any group holds the station. For a list's rows: cheap.
  bool IsMember(const StationKey& station) const;
  // The first group that holds it.
  std::optional<std::size_t> GroupOf(const StationKey& station) const;

  // The changes. `name` is cleaned first; an empty one changes nothing.
  FavoriteChange Add(std::string_view name, const StationKey& firstMember = {});
  FavoriteChange Rename(std::size_t group, std::string_view name);
  FavoriteChange Remove(std::size_t group);
  FavoriteChange Move(std::size_t from, std::size_t to);
  FavoriteChange AddStation(std::size_t group, const StationKey& station);
  // Several with one write; those that the group holds already, and repeats, are left out.
  FavoriteChange AddStations(std::size_t group, const std::vector<StationKey>& stations);
  FavoriteChange RemoveStation(std::size_t group, const StationKey& station);
  // Several with one write. None stands for all that names no station.
  FavoriteChange RemoveStations(std::size_t group, const std::vector<StationKey>& stations);
  // Of the members that are one of `stations`: what puts them back after they were removed.
  struct Member {
    std::size_t place = 0;
    std::string token;
  };
  std::vector<Member> Members(std::size_t group, const std::vector<StationKey>& stations) const;
  // Puts removed members back to their places, or to the end of a group that has become shorter. Those that
  // the group has again are left out.
  FavoriteChange PutBack(std::size_t group, const std::vector<Member>& members);
  // A group as it stands in the file, and a removed one back at its place. Nothing: its name is in use again.
  std::string Line(std::size_t group) const { return groups_[group].Line(); }
  FavoriteChange PutBackGroup(std::size_t place, std::string_view line);
  // Moves the member at place `from` to place `to`, places counted as in Keys().
  FavoriteChange MoveStation(std::size_t group, std::size_t from, std::size_t to);

  // A name as it can stand in the file: control characters become blanks, blanks at the ends go.
  static std::string CleanName(std::string_view name);

 private:
  struct Group {
    std::string name;
    std::vector<StationKey> keys;
    // What the file holds of each key, with the blanks in front of it; the first one's line begins with one
    // blank more. So every byte of a line that nothing was changed in stays.
    std::vector<std::string> texts;
    std::string end;  // the blanks behind the last one

    static Group FromLine(std::string_view line);  // name, tab, members
    std::string Line() const;
    void Append(const StationKey& station);
    void Erase(std::size_t place);
    // One blank behind each member and no other.
    void Tidy();
  };

  void ReadFile();
  void MakeNamesUnique();
  std::string FileText() const;
  // Makes `edit` and saves. It is given the group's place, which is another one when another session has
  // changed the file.
  FavoriteChange Change(std::size_t group, const std::function<bool(std::size_t)>& edit);
  FavoriteChange Change(const std::function<bool()>& edit);

  UserFile file_;
  bool owesCopy_ = false;  // the file holds lines that were left out and are not kept beside yet
  std::vector<Group> groups_;
  mutable std::optional<std::unordered_set<StationKey>> members_;  // of all groups, once they were asked for
};

}  // namespace sonaro
