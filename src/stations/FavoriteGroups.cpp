// A group keeps the text in front of each member beside its key, so that a line of the file that nobody
// changed is written back with the blanks that it had. Changes always start from what the file holds at that
// moment (Change): the group is then found by its name, since its place may be another one.
#include "stations/FavoriteGroups.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/Text.h"

namespace sonaro {
namespace {

constexpr const char* kNameless = "Group";  // what a group without a name is called in the file

// Moves one element of a vector to another place, the elements between shifting by one.
template <typename T>
void MoveElement(std::vector<T>& items, std::size_t from, std::size_t to) {
  const auto at = [&items](std::size_t place) { return items.begin() + static_cast<std::ptrdiff_t>(place); };
  if (from < to) {
    std::rotate(at(from), at(from + 1), at(to + 1));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
}

}  // namespace

FavoriteGroups::Group FavoriteGroups::Group::FromLine(std::string_view line) {
  Group group;
  group.name = TrimBlanks(NextField(line, '\t'));
  const std::string members = " " + std::string(line);
  std::size_t at = 0;
  for (std::size_t token = 0; (token = members.find_first_not_of(' ', at)) != std::string::npos;) {
    const std::size_t end = std::min(members.find(' ', token), members.size());
    group.keys.push_back(StationKey::FromToken(std::string_view(members).substr(token, end - token)));
    group.texts.push_back(members.substr(at, end - at));
    at = end;
  }
  group.end = members.substr(at);
  return group;
}

std::string FavoriteGroups::Group::Line() const {
  std::string members;
  for (const std::string& text : texts) members += text;
  members += end;
  return name + "\t" + (members.empty() ? members : members.substr(1));
}

void FavoriteGroups::Group::Append(const StationKey& station) {
  // A trimmed line ends in a bare token, which must not grow into the new one.
  texts.push_back((keys.empty() || end.empty() ? " " : end) + station.Token());
  keys.push_back(station);
  end = " ";
}

// One blank goes with the member; what else stood in front of it stays.
void FavoriteGroups::Group::Erase(std::size_t place) {
  const std::string& text = texts[place];
  const std::string blanks = text.substr(1, text.find_first_not_of(' ') - 1);
  std::string& next = place + 1 < texts.size() ? texts[place + 1] : end;
  next.insert(0, blanks);
  keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(place));
  texts.erase(texts.begin() + static_cast<std::ptrdiff_t>(place));
}

void FavoriteGroups::Group::Tidy() {
  for (std::string& text : texts) text.erase(0, text.find_first_not_of(' ') - 1);
  end = texts.empty() ? "" : " ";
}

void FavoriteGroups::LoadFavoriteGroups() {
  if (file_.Look() != UserFile::Seen::Unreadable) ReadFile();
}

bool FavoriteGroups::LoadUnread() {
  if (!file_.Unread()) return false;
  LoadFavoriteGroups();
  return !file_.Unread();
}

void FavoriteGroups::ReadFile() {
  members_.reset();
  groups_.clear();
  owesCopy_ = false;
  for (const std::string_view line : SplitLines(file_.Text())) {
    const std::string_view group = TrimBlanks(line);
    if (group.find('\t') != std::string_view::npos) {
      groups_.push_back(Group::FromLine(group));
    } else if (!group.empty()) {
      owesCopy_ = true;
    }
  }
  MakeNamesUnique();
  // When this cannot be written the old lines are read again at the next start.
  if (FileText() != file_.Text()) static_cast<void>(SaveFavoriteGroups());
}

// Names are what the group bar, the menus and the listing mode know groups by.
void FavoriteGroups::MakeNamesUnique() {
  std::unordered_set<std::string> taken;
  for (std::size_t group = 0; group < Count(); ++group) taken.insert(FoldCase(Name(group)));
  std::unordered_set<std::string> seen;
  std::unordered_map<std::string, int> lastNumber;  // of the names made from one
  for (std::size_t group = 0; group < Count(); ++group) {
    const std::string name = Name(group);
    if (!name.empty() && seen.insert(FoldCase(name)).second) continue;
    const std::string stem = name.empty() ? kNameless : name;
    int& number = lastNumber[FoldCase(stem)];
    std::string fresh;
    do {
      ++number;
      fresh = number == 1 ? stem : stem + " " + std::to_string(number);
    } while (!taken.insert(FoldCase(fresh)).second);
    seen.insert(FoldCase(fresh));
    groups_[group].name = fresh;
  }
}

std::string FavoriteGroups::FileText() const {
  std::string bytes;
  for (const Group& group : groups_) {
    bytes += group.Line();
    bytes += "\r\n";
  }
  return bytes;
}

FavoriteChange FavoriteGroups::SaveFavoriteGroups() {
  if (owesCopy_ && !file_.KeepBeside()) return FavoriteChange::NotSaved;
  owesCopy_ = false;
  return file_.Save(FileText()) ? FavoriteChange::Saved : FavoriteChange::NotSaved;
}

// Every change goes through here: the file is looked at first, since another Sonaro may have written it, then
// `edit` works on the groups as they are now, and the file is saved.
FavoriteChange FavoriteGroups::Change(const std::function<bool()>& edit) {
  const UserFile::Seen seen = file_.Look();
  if (seen == UserFile::Seen::Unreadable) return FavoriteChange::NotSaved;
  if (seen == UserFile::Seen::Changed) ReadFile();
  // For the case that the change cannot be saved: memory never holds what the file does not.
  std::vector<Group> before = groups_;
  members_.reset();
  if (!edit()) return FavoriteChange::Nothing;
  const FavoriteChange saved = SaveFavoriteGroups();
  if (saved != FavoriteChange::Saved) groups_ = std::move(before);
  return saved;
}

// The caller's index is of the groups as they were shown. Should the file have changed meanwhile, the group
// of that name is meant.
FavoriteChange FavoriteGroups::Change(std::size_t group, const std::function<bool(std::size_t)>& edit) {
  if (group >= Count()) return FavoriteChange::Nothing;
  const std::string name = Name(group);
  return Change([&] {
    // Mostly nothing has moved.
    if (group < Count() && Name(group) == name) return edit(group);
    const std::optional<std::size_t> now = Find(name);
    return now && edit(*now);
  });
}

std::optional<std::size_t> FavoriteGroups::Find(std::string_view name) const {
  for (std::size_t group = 0; group < Count(); ++group) {
    if (EqualIgnoringCase(Name(group), name)) return group;
  }
  return std::nullopt;
}

bool FavoriteGroups::Contains(std::size_t group, const StationKey& station) const {
  return std::find(Keys(group).begin(), Keys(group).end(), station) != Keys(group).end();
}

// A list asks for every row that it paints; searching all groups for each would be felt with large ones.
bool FavoriteGroups::IsMember(const StationKey& station) const {
  if (!members_) {
    members_.emplace();
    for (const Group& group : groups_) members_->insert(group.keys.begin(), group.keys.end());
  }
  return station && members_->contains(station);
}

std::optional<std::size_t> FavoriteGroups::GroupOf(const StationKey& station) const {
  if (!IsMember(station)) return std::nullopt;
  std::size_t group = 0;
  while (!Contains(group, station)) ++group;
  return group;
}

FavoriteChange FavoriteGroups::Add(std::string_view name, const StationKey& firstMember) {
  const std::string cleanName = CleanName(name);
  if (cleanName.empty()) return FavoriteChange::Nothing;
  return Change([&] {
    if (Find(cleanName)) return false;
    groups_.push_back({cleanName, {}, {}, {}});
    if (firstMember) groups_.back().Append(firstMember);
    return true;
  });
}

FavoriteChange FavoriteGroups::Rename(std::size_t group, std::string_view name) {
  const std::string cleanName = CleanName(name);
  if (cleanName.empty()) return FavoriteChange::Nothing;
  return Change(group, [&](std::size_t at) {
    if (const auto holder = Find(cleanName); holder && *holder != at) return false;
    groups_[at].name = cleanName;
    return true;
  });
}

FavoriteChange FavoriteGroups::Remove(std::size_t group) {
  return Change(group, [&](std::size_t at) {
    groups_.erase(groups_.begin() + static_cast<std::ptrdiff_t>(at));
    return true;
  });
}

FavoriteChange FavoriteGroups::Move(std::size_t from, std::size_t to) {
  return Change(from, [&](std::size_t at) {
    if (to >= Count() || at == to) return false;
    MoveElement(groups_, at, to);
    return true;
  });
}

FavoriteChange FavoriteGroups::AddStation(std::size_t group, const StationKey& station) {
  return AddStations(group, {station});
}

FavoriteChange FavoriteGroups::AddStations(std::size_t group, const std::vector<StationKey>& stations) {
  return Change(group, [&](std::size_t at) {
    std::unordered_set<StationKey> known(Keys(at).begin(), Keys(at).end());
    bool changed = false;
    for (const StationKey& station : stations) {
      if (!station || !known.insert(station).second) continue;
      groups_[at].Append(station);
      changed = true;
    }
    return changed;
  });
}

FavoriteChange FavoriteGroups::RemoveStation(std::size_t group, const StationKey& station) {
  return Change(group, [&](std::size_t at) {
    bool changed = false;
    for (std::size_t place = Keys(at).size(); place-- > 0;) {
      if (Keys(at)[place] != station) continue;
      groups_[at].Erase(place);
      changed = true;
    }
    return changed;
  });
}

FavoriteChange FavoriteGroups::RemoveStations(std::size_t group, const std::vector<StationKey>& stations) {
  const std::unordered_set<StationKey> leaving(stations.begin(), stations.end());
  return Change(group, [&](std::size_t at) {
    const std::size_t before = Keys(at).size();
    for (std::size_t place = before; place-- > 0;) {
      if (leaving.contains(Keys(at)[place])) groups_[at].Erase(place);
    }
    groups_[at].Tidy();
    return Keys(at).size() != before;
  });
}

std::vector<FavoriteGroups::Member> FavoriteGroups::Members(std::size_t group,
                                                            const std::vector<StationKey>& stations) const {
  const std::unordered_set<StationKey> wanted(stations.begin(), stations.end());
  std::vector<Member> members;
  for (std::size_t place = 0; place < Keys(group).size(); ++place) {
    if (!wanted.contains(Keys(group)[place])) continue;
    members.push_back({place, std::string(TrimBlanks(groups_[group].texts[place]))});
  }
  return members;
}

// In the order of their places, so that each finds those in front of it there again.
FavoriteChange FavoriteGroups::PutBack(std::size_t group, const std::vector<Member>& members) {
  return Change(group, [&](std::size_t at) {
    Group& now = groups_[at];
    bool changed = false;
    for (const Member& member : members) {
      const StationKey key = StationKey::FromToken(member.token);
      if (key && Contains(at, key)) continue;
      // A group that became shorter takes it at its end.
      const auto place = static_cast<std::ptrdiff_t>(std::min(member.place, now.keys.size()));
      now.keys.insert(now.keys.begin() + place, key);
      now.texts.insert(now.texts.begin() + place, " " + member.token);
      changed = true;
    }
    return changed;
  });
}

// Nothing happens when a group of that name has been made since: it would hide one of the two.
FavoriteChange FavoriteGroups::PutBackGroup(std::size_t place, std::string_view line) {
  return Change([&] {
    Group group = Group::FromLine(line);
    if (Find(group.name)) return false;
    groups_.insert(groups_.begin() + static_cast<std::ptrdiff_t>(std::min(place, Count())), std::move(group));
    return true;
  });
}

FavoriteChange FavoriteGroups::MoveStation(std::size_t group, std::size_t from, std::size_t to) {
  if (group >= Count()) return FavoriteChange::Nothing;
  // A copy, because a change of the file replaces groups_ before the edit runs.
  const Group meant = groups_[group];
  if (from >= meant.keys.size() || to >= meant.keys.size() || from == to) return FavoriteChange::Nothing;
  return Change(group, [&](std::size_t at) {
    Group& now = groups_[at];
    // The station is moved that the user saw at `from`, wherever it stands now.
    const auto stands = [&](std::size_t place) { return now.keys[place] == meant.keys[from]; };
    std::size_t place = from < now.keys.size() && stands(from) ? from : 0;
    while (place < now.keys.size() && !stands(place)) ++place;
    if (place == now.keys.size() || to >= now.keys.size()) return false;
    MoveElement(now.keys, place, to);
    MoveElement(now.texts, place, to);
    now.Tidy();
    return true;
  });
}

std::string FavoriteGroups::CleanName(std::string_view name) { return CleanField(name, name.size()); }

}  // namespace sonaro
