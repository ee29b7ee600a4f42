#include "mainwindow/FavoriteGroups.h"

#include <algorithm>
#include <unordered_set>

#include "base/DataFolder.h"
#include "base/Text.h"

namespace sonaro {
namespace {

constexpr const char* kFavoritesFile = "\\favs.snr";

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
  groups_.clear();
  const ReadResult file = data_.Read(kFavoritesFile);
  if (file.status != ReadStatus::Ok) return;
  for (const std::string_view line : SplitLines(file.bytes)) {
    const std::string_view group = TrimBlanks(line);
    if (group.find('\t') != std::string_view::npos) groups_.emplace_back(group);
  }
  if (FileText() != file.bytes) SaveFavoriteGroups();
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
  return data_.Save(kFavoritesFile, FileText()) ? FavoriteChange::Saved : FavoriteChange::NotSaved;
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

FavoriteChange FavoriteGroups::Add(std::string_view name) {
  const std::string cleanName = CleanName(name);
  if (cleanName.empty() || Find(cleanName)) return FavoriteChange::Nothing;
  groups_.push_back(cleanName + "\t");
  return SaveFavoriteGroups();
}

FavoriteChange FavoriteGroups::Rename(std::size_t group, std::string_view name) {
  const std::string cleanName = CleanName(name);
  if (group >= Count() || cleanName.empty()) return FavoriteChange::Nothing;
  if (const auto holder = Find(cleanName); holder && *holder != group) return FavoriteChange::Nothing;
  groups_[group] = cleanName + "\t" + std::string(Members(group));
  return SaveFavoriteGroups();
}

FavoriteChange FavoriteGroups::Remove(std::size_t group) {
  if (group >= Count()) return FavoriteChange::Nothing;
  groups_.erase(groups_.begin() + static_cast<std::ptrdiff_t>(group));
  return SaveFavoriteGroups();
}

FavoriteChange FavoriteGroups::Move(std::size_t from, std::size_t to) {
  if (from >= Count() || to >= Count() || from == to) return FavoriteChange::Nothing;
  MoveElement(groups_, from, to);
  return SaveFavoriteGroups();
}

FavoriteChange FavoriteGroups::AddStation(std::size_t group, std::string_view token) {
  return Append(group, token) ? SaveFavoriteGroups() : FavoriteChange::Nothing;
}

FavoriteChange FavoriteGroups::AddStations(std::size_t group, const std::vector<std::string>& tokens) {
  if (group >= Count()) return FavoriteChange::Nothing;
  const auto members = Tokens(group);
  std::unordered_set<std::string> known;
  for (const std::string_view member : members) known.emplace(member);
  bool changed = false;
  for (const std::string& token : tokens) {
    if (token.empty() || !known.insert(token).second) continue;
    AppendToken(group, token);
    changed = true;
  }
  return changed ? SaveFavoriteGroups() : FavoriteChange::Nothing;
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
  if (group >= Count() || !Contains(group, token)) return FavoriteChange::Nothing;
  groups_[group] = std::string(Name(group)) + "\t" + WithoutToken(Members(group), token);
  return SaveFavoriteGroups();
}

FavoriteChange FavoriteGroups::MoveStation(std::size_t group, std::size_t from, std::size_t to) {
  if (group >= Count()) return FavoriteChange::Nothing;
  auto tokens = Tokens(group);
  if (from >= tokens.size() || to >= tokens.size() || from == to) return FavoriteChange::Nothing;
  MoveElement(tokens, from, to);
  groups_[group] = std::string(Name(group)) + "\t" + MembersOf(tokens);
  return SaveFavoriteGroups();
}

std::string FavoriteGroups::CleanName(std::string_view name) {
  std::string clean(name);
  for (char& c : clean) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = ' ';
  }
  return std::string(TrimBlanks(clean));
}

}  // namespace sonaro
