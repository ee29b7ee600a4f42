#include "stations/FavoriteGroups.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/Text.h"

namespace sonaro {
namespace {

constexpr const char* kNameless = "Group";  // what a group without a name is called in the file

std::string MembersOf(const std::vector<std::string_view>& tokens) {
  std::string members;
  for (const std::string_view token : tokens) {
    members += token;
    members += ' ';
  }
  return members;
}

// The members with every "blank + token" cut out; all other bytes stay.
std::string WithoutToken(std::string_view members, std::string_view token) {
  std::string rest = " " + std::string(members);
  const std::string cut = " " + std::string(token);
  for (std::size_t at = rest.find(cut); at != std::string::npos; at = rest.find(cut, at)) {
    const std::size_t end = at + cut.size();
    if (end == rest.size() || rest[end] == ' ') {
      rest.erase(at, cut.size());
    } else {
      at = end;  // the token is only the start of a longer one
    }
  }
  return rest.empty() ? rest : rest.substr(1);
}

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

void FavoriteGroups::LoadFavoriteGroups() {
  if (file_.Look() != UserFile::Seen::Unreadable) ReadFile();
}

bool FavoriteGroups::LoadUnread() {
  if (!file_.Unread()) return false;
  LoadFavoriteGroups();
  return !file_.Unread();
}

void FavoriteGroups::ReadFile() {
  groups_.clear();
  owesCopy_ = false;
  for (const std::string_view line : SplitLines(file_.Text())) {
    const std::string_view group = TrimBlanks(line);
    const std::size_t tab = group.find('\t');
    if (tab != std::string_view::npos) {
      groups_.push_back(std::string(TrimBlanks(group.substr(0, tab))).append(group.substr(tab)));
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
    const std::string name(Name(group));
    if (!name.empty() && seen.insert(FoldCase(name)).second) continue;
    const std::string stem = name.empty() ? kNameless : name;
    int& number = lastNumber[FoldCase(stem)];
    std::string fresh;
    do {
      ++number;
      fresh = number == 1 ? stem : stem + " " + std::to_string(number);
    } while (!taken.insert(FoldCase(fresh)).second);
    seen.insert(FoldCase(fresh));
    groups_[group] = fresh + "\t" + std::string(Members(group));
  }
}

std::string FavoriteGroups::FileText() const {
  std::string bytes;
  for (const std::string& group : groups_) {
    bytes += group;
    bytes += "\r\n";
  }
  return bytes;
}

FavoriteChange FavoriteGroups::SaveFavoriteGroups() {
  if (owesCopy_ && !file_.KeepBeside()) return FavoriteChange::NotSaved;
  owesCopy_ = false;
  return file_.Save(FileText()) ? FavoriteChange::Saved : FavoriteChange::NotSaved;
}

FavoriteChange FavoriteGroups::Change(const std::function<bool()>& edit) {
  const UserFile::Seen seen = file_.Look();
  if (seen == UserFile::Seen::Unreadable) return FavoriteChange::NotSaved;
  if (seen == UserFile::Seen::Changed) ReadFile();
  std::vector<std::string> before = groups_;
  if (!edit()) return FavoriteChange::Nothing;
  const FavoriteChange saved = SaveFavoriteGroups();
  if (saved != FavoriteChange::Saved) groups_ = std::move(before);
  return saved;
}

FavoriteChange FavoriteGroups::Change(std::size_t group, const std::function<bool(std::size_t)>& edit) {
  if (group >= Count()) return FavoriteChange::Nothing;
  const std::string name(Name(group));
  return Change([&] {
    if (group < Count() && Name(group) == name) return edit(group);
    const std::optional<std::size_t> now = Find(name);
    return now && edit(*now);
  });
}

std::string_view FavoriteGroups::Name(std::size_t group) const {
  return std::string_view(groups_[group]).substr(0, groups_[group].find('\t'));
}

std::string_view FavoriteGroups::Members(std::size_t group) const {
  return std::string_view(groups_[group]).substr(groups_[group].find('\t') + 1);
}

std::vector<std::string_view> FavoriteGroups::Tokens(std::size_t group) const {
  return SplitWords(Members(group));
}

std::optional<std::size_t> FavoriteGroups::Find(std::string_view name) const {
  for (std::size_t group = 0; group < Count(); ++group) {
    if (EqualIgnoringCase(Name(group), name)) return group;
  }
  return std::nullopt;
}

bool FavoriteGroups::Contains(std::size_t group, std::string_view token) const {
  const auto tokens = Tokens(group);
  return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
}

FavoriteChange FavoriteGroups::Add(std::string_view name, std::string_view firstMember) {
  const std::string cleanName = CleanName(name);
  if (cleanName.empty()) return FavoriteChange::Nothing;
  return Change([&] {
    if (Find(cleanName)) return false;
    groups_.push_back(cleanName + "\t");
    if (!firstMember.empty()) AppendToken(Count() - 1, firstMember);
    return true;
  });
}

FavoriteChange FavoriteGroups::Rename(std::size_t group, std::string_view name) {
  const std::string cleanName = CleanName(name);
  if (cleanName.empty()) return FavoriteChange::Nothing;
  return Change(group, [&](std::size_t at) {
    if (const auto holder = Find(cleanName); holder && *holder != at) return false;
    groups_[at] = cleanName + "\t" + std::string(Members(at));
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

FavoriteChange FavoriteGroups::AddStation(std::size_t group, std::string_view token) {
  return Change(group, [&](std::size_t at) { return Append(at, token); });
}

FavoriteChange FavoriteGroups::AddStations(std::size_t group, const std::vector<std::string>& tokens) {
  return Change(group, [&](std::size_t at) {
    const auto members = Tokens(at);
    std::unordered_set<std::string> known;
    for (const std::string_view member : members) known.emplace(member);
    bool changed = false;
    for (const std::string& token : tokens) {
      if (token.empty() || !known.insert(token).second) continue;
      AppendToken(at, token);
      changed = true;
    }
    return changed;
  });
}

bool FavoriteGroups::Append(std::size_t group, std::string_view token) {
  if (group >= Count() || token.empty() || Contains(group, token)) return false;
  AppendToken(group, token);
  return true;
}

void FavoriteGroups::AppendToken(std::size_t group, std::string_view token) {
  std::string& text = groups_[group];
  if (TrimBlanks(Members(group)).empty()) {
    text.resize(text.find('\t') + 1);
  } else if (text.back() != ' ') {
    text += ' ';  // a trimmed line ends in a bare token, which must not grow into the new one
  }
  text += token;
  text += ' ';
}

FavoriteChange FavoriteGroups::RemoveStation(std::size_t group, std::string_view token) {
  return Change(group, [&](std::size_t at) {
    if (!Contains(at, token)) return false;
    groups_[at] = std::string(Name(at)) + "\t" + WithoutToken(Members(at), token);
    return true;
  });
}

FavoriteChange FavoriteGroups::RemoveStations(std::size_t group, const std::vector<std::string>& tokens) {
  const std::unordered_set<std::string_view> leaving(tokens.begin(), tokens.end());
  return Change(group, [&](std::size_t at) {
    auto members = Tokens(at);
    if (std::erase_if(members, [&](std::string_view member) { return leaving.contains(member); }) == 0) {
      return false;
    }
    groups_[at] = std::string(Name(at)) + "\t" + MembersOf(members);
    return true;
  });
}

FavoriteChange FavoriteGroups::MoveStation(std::size_t group, std::size_t from, std::size_t to) {
  if (group >= Count()) return FavoriteChange::Nothing;
  const std::vector<std::string_view> meant = Tokens(group);
  if (from >= meant.size() || to >= meant.size() || from == to) return FavoriteChange::Nothing;
  const std::string moved(meant[from]);
  return Change(group, [&](std::size_t at) {
    auto tokens = Tokens(at);
    const auto now = std::find(tokens.begin(), tokens.end(), moved);
    if (now == tokens.end() || to >= tokens.size()) return false;
    const bool same = from < tokens.size() && tokens[from] == moved;
    MoveElement(tokens, same ? from : static_cast<std::size_t>(now - tokens.begin()), to);
    groups_[at] = std::string(Name(at)) + "\t" + MembersOf(tokens);
    return true;
  });
}

std::string FavoriteGroups::CleanName(std::string_view name) {
  std::string clean(name);
  for (char& c : clean) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = ' ';
  }
  return std::string(TrimBlanks(clean));
}

}  // namespace sonaro
