#include "mainwindow/FavoriteCommands.h"

#include <algorithm>
#include <unordered_set>

#include "mainwindow/StationListState.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/CReg.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"

namespace sonaro {
namespace {

// Keys of messages: each has its help page. They are part of the program's face to the outside.
constexpr const char* kTenGroupsKey = "AlreadyHave10FavoriteGroups";
constexpr const char* kExistsKey = "TheFavoriteGroupAlreadyExists";
constexpr const char* kDeleteKey = "DeleteFavoriteGroup";
constexpr const char* kTakeOutKey = "TakeOutMissingStations";

}  // namespace

bool FavoriteCommands::RefuseEleventh() {
  if (groups_.Count() < FavoriteGroups::kSlots) return false;
  Say(kTenGroupsKey, strings_.Load(IDS_GROUP_TEN_TEXT));
  return true;
}

// The limit is checked before the question, so that nobody types a name for nothing.
bool FavoriteCommands::AddFavoriteGroup() {
  if (RefuseEleventh()) return false;
  const std::string name = FavoriteGroups::CleanName(prompts_.AskNewGroupName());
  if (name.empty()) return false;
  if (groups_.Find(name)) {
    Say(kExistsKey, FormatText(strings_.Load(IDS_GROUP_EXISTS_TEXT), {name}));
    return false;
  }
  if (!Changed(groups_.Add(name))) return false;
  prompts_.TellTray("AddNewFavGroup\t" + name);
  return true;
}

// Another letter case of its own name is a new name; the same name is no change and no fault.
void FavoriteCommands::RenameFavoriteGroup(std::size_t group) {
  if (group >= groups_.Count()) return;
  const std::string oldName = groups_.Name(group);
  const std::string name = FavoriteGroups::CleanName(prompts_.AskGroupName(oldName));
  if (name.empty() || name == oldName) return;
  if (const auto holder = groups_.Find(name); holder && groups_.Name(*holder) != oldName) {
    return Say(kExistsKey, FormatText(strings_.Load(IDS_GROUP_EXISTS_TEXT), {name}));
  }
  const auto renamed = groups_.Find(oldName);  // while the question stood the groups may have moved
  if (!renamed || !Changed(groups_.Rename(*renamed, name))) return;
  listing_.GroupRenamed(oldName, name);
  prompts_.TellTray("RenameFavGroup\t" + oldName + "\t" + name);
}

void FavoriteCommands::DeleteFavoriteGroup(std::size_t group) {
  if (group >= groups_.Count()) return;
  const std::string name = groups_.Name(group);
  if (!settings_.Get(setting::kNoShowDelete) && !ConfirmDelete(name)) return;
  const auto removed = groups_.Find(name);  // while the question stood the groups may have moved
  if (!removed) return;
  // The whole line with its stations, for the way back. It is taken now, since the group is gone afterwards.
  const std::string line = groups_.Line(*removed);
  if (!Changed(groups_.Remove(*removed))) return;
  prompts_.TellTray("DeleteFavGroup\t" + name);
  listing_.GroupDeleted(name);
  undo_.Add(FormatText(strings_.Load(IDS_GROUP_DELETED), {name}),
            [this, place = *removed, name, line] { return PutBackGroup(place, name, line); });
}

// Not as an eleventh, which no button shows.
UndoResult FavoriteCommands::PutBackGroup(std::size_t place, const std::string& name,
                                          const std::string& line) {
  if (!groups_.Find(name) && RefuseEleventh()) return UndoResult::Kept;
  const FavoriteChange change = groups_.PutBackGroup(place, line);
  if (change == FavoriteChange::Nothing) return UndoResult::Gone;
  if (!Changed(change)) return UndoResult::Kept;
  prompts_.TellTray("AddNewFavGroup\t" + name);
  return UndoResult::Done;
}

// "Do not ask again" counts together with "Delete" only: after "Keep" it would mean that deleting is done
// unasked.
bool FavoriteCommands::ConfirmDelete(const std::string& name) {
  Message message;
  message.key = kDeleteKey;
  message.caption = strings_.Load(IDS_GROUP_DELETE_CAPTION);
  message.text = FormatText(strings_.Load(IDS_GROUP_DELETE_TEXT), {name});
  message.firstButton = strings_.Load(IDS_GROUP_DELETE_YES);
  message.secondButton = strings_.Load(IDS_GROUP_DELETE_NO);
  message.dontAskText = strings_.Load(IDS_GROUP_DONT_ASK);
  const MessageResult result = prompts_.Ask(message);
  if (result.answer != MessageAnswer::First) return false;
  if (result.dontAskAgain) settings_.Set(setting::kNoShowDelete, true);
  return true;
}

void FavoriteCommands::MoveFavoriteGroup(std::size_t from, std::size_t to) {
  Changed(groups_.Move(from, to));
}

void FavoriteCommands::AddStationsToGroup(std::string_view groupName,
                                          const std::vector<StationKey>& stations) {
  const auto group = groups_.Find(groupName);
  if (!group || stations.empty()) return;
  const std::string name = groups_.Name(*group);
  std::vector<StationKey> fresh;
  for (const StationKey& station : stations) {
    if (!groups_.Contains(*group, station)) fresh.push_back(station);
  }
  if (fresh.empty()) {
    return prompts_.SayDone(Sentence(IDS_GROUP_HAS_IT, IDS_GROUP_HAS_THEM, stations, name));
  }
  if (!Changed(groups_.AddStations(*group, fresh))) return;
  listing_.GroupsChanged();
  SayAdded(fresh, name);
}

// A new group is made with its first station in one save, so that no crash leaves an empty group.
void FavoriteCommands::AddStationsToGroupOrNew(std::string_view groupName,
                                               const std::vector<StationKey>& stations) {
  const std::string name = FavoriteGroups::CleanName(groupName);
  if (name.empty() || stations.empty() || groups_.Find(name)) return AddStationsToGroup(name, stations);
  if (RefuseEleventh() || !Changed(groups_.Add(name, stations.front()))) return;
  prompts_.TellTray("AddNewFavGroup\t" + name);
  if (stations.size() > 1 && !Changed(groups_.AddStations(groups_.Count() - 1, stations))) return;
  SayAdded(stations, name);
}

void FavoriteCommands::SayAdded(const std::vector<StationKey>& stations, const std::string& group) {
  undo_.Add(Sentence(IDS_GROUP_ADDED_TO, IDS_GROUP_ADDED_MANY, stations, group),
            [this, group, stations] { return TakeBack(group, stations); });
}

UndoResult FavoriteCommands::TakeBack(const std::string& name, const std::vector<StationKey>& stations) {
  const auto group = groups_.Find(name);
  const FavoriteChange change = group ? groups_.RemoveStations(*group, stations) : FavoriteChange::Nothing;
  if (change == FavoriteChange::Nothing) return UndoResult::Gone;
  if (!Changed(change)) return UndoResult::Kept;
  listing_.GroupsChanged();
  return UndoResult::Done;
}

void FavoriteCommands::TakeOutMissing() {
  if (listing_.State().holds != Holds::Group || listing_.State().missing.empty()) return;
  const std::string name = listing_.State().group;
  const std::unordered_set<StationKey> asked(listing_.State().missing.begin(),
                                             listing_.State().missing.end());
  Message message;
  message.key = kTakeOutKey;
  message.caption = strings_.Load(IDS_GROUP_CAPTION);
  const int textId = asked.size() == 1 ? IDS_GROUP_TAKE_OUT_ONE : IDS_GROUP_TAKE_OUT;
  message.text = FormatText(strings_.Load(textId), {name, std::to_string(asked.size())});
  message.firstButton = strings_.Load(IDS_GROUP_TAKE_OUT_YES);
  message.secondButton = strings_.Load(IDS_GROUP_DELETE_NO);
  if (prompts_.Ask(message).answer != MessageAnswer::First) return;
  // A newer guide may have come while the question stood: only what was asked about and is still missing
  // goes.
  if (listing_.State().holds != Holds::Group || listing_.State().group != name) return;
  const auto group = groups_.Find(name);
  std::vector<StationKey> gone;
  for (const StationKey& station : listing_.State().missing) {
    if (asked.contains(station)) gone.push_back(station);
  }
  if (group) TakeOut(*group, gone);
}

void FavoriteCommands::RemoveStations(std::string_view groupName, const std::vector<StationKey>& stations) {
  if (const auto group = groups_.Find(groupName)) TakeOut(*group, stations);
}

void FavoriteCommands::TakeOut(std::size_t group, const std::vector<StationKey>& stations) {
  const std::string name = groups_.Name(group);
  const std::vector<FavoriteGroups::Member> members = groups_.Members(group, stations);
  // A member alone leaves the rest of its line as it stands.
  const FavoriteChange change = stations.size() == 1 ? groups_.RemoveStation(group, stations.front())
                                                     : groups_.RemoveStations(group, stations);
  if (!Changed(change)) return;
  listing_.GroupsChanged();
  const std::string sentence =
      stations.size() == 1 && stations.front()
          ? FormatText(strings_.Load(IDS_GROUP_REMOVED_FROM), {prompts_.NameOf(stations.front()), name})
          : FormatText(strings_.Load(IDS_GROUP_REMOVED_MANY), {std::to_string(members.size()), name});
  undo_.Add(sentence, [this, name, members] { return PutBack(name, members); });
}

UndoResult FavoriteCommands::PutBack(const std::string& name,
                                     const std::vector<FavoriteGroups::Member>& members) {
  const auto group = groups_.Find(name);
  const FavoriteChange change = group ? groups_.PutBack(*group, members) : FavoriteChange::Nothing;
  if (change == FavoriteChange::Nothing) return UndoResult::Gone;
  if (!Changed(change)) return UndoResult::Kept;
  listing_.GroupsChanged();
  return UndoResult::Done;
}

std::string FavoriteCommands::Sentence(int textOfOne, int textOfMany, const std::vector<StationKey>& stations,
                                       const std::string& group) {
  const bool one = stations.size() == 1;
  const std::string what = one ? prompts_.NameOf(stations.front()) : std::to_string(stations.size());
  return FormatText(strings_.Load(one ? textOfOne : textOfMany), {what, group});
}

void FavoriteCommands::PlaceStation(const StationKey& station, const StationKey& where) {
  if (listing_.State().holds != Holds::Group) return;
  const auto group = groups_.Find(listing_.State().group);
  if (!group) return;
  const std::vector<StationKey>& keys = groups_.Keys(*group);
  const auto placeOf = [&keys](const StationKey& member) {
    return static_cast<std::size_t>(std::find(keys.begin(), keys.end(), member) - keys.begin());
  };
  if (Changed(groups_.MoveStation(*group, placeOf(station), placeOf(where)))) listing_.GroupsChanged();
}

void FavoriteCommands::Say(const char* key, const std::string& text) {
  Message message;
  message.key = key;
  message.caption = strings_.Load(IDS_GROUP_CAPTION);
  message.text = text;
  message.firstButton = strings_.Load(IDS_GROUP_OK);
  prompts_.Ask(message);
}

bool FavoriteCommands::Changed(FavoriteChange change) {
  const bool saved = change != FavoriteChange::NotSaved;
  return SavedOrSaid(saved, strings_.Load(IDS_FILE_GROUPS), prompts_, strings_) &&
         change == FavoriteChange::Saved;
}

}  // namespace sonaro
