#include "mainwindow/FavoriteCommands.h"

#include <algorithm>

#include "app/CReg.h"
#include "app/FileWords.h"
#include "app/SettingNames.h"
#include "app/Strings.h"
#include "mainwindow/StationListing.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {
namespace {

constexpr const char* kTenGroupsKey = "AlreadyHave10FavoriteGroups";
constexpr const char* kExistsKey = "TheFavoriteGroupAlreadyExists";
constexpr const char* kDeleteKey = "DeleteFavoriteGroup";

}  // namespace

bool FavoriteCommands::AddFavoriteGroup() {
  if (groups_.Count() >= FavoriteGroups::kSlots) {
    Say(kTenGroupsKey, strings_.Load(IDS_GROUP_TEN_TEXT));
    return false;
  }
  const std::string name = FavoriteGroups::CleanName(prompts_.AskNewGroupName());
  if (name.empty()) return false;
  if (groups_.Find(name)) {
    Say(kExistsKey, FillIn(strings_.Load(IDS_GROUP_EXISTS_TEXT), {name}));
    return false;
  }
  if (!Changed(groups_.Add(name))) return false;
  prompts_.TellTray("AddNewFavGroup\t" + name);
  return true;
}

void FavoriteCommands::RenameFavoriteGroup(std::size_t group) {
  if (group >= groups_.Count()) return;
  const std::string oldName(groups_.Name(group));
  const std::string name = FavoriteGroups::CleanName(prompts_.AskGroupName(oldName));
  if (name.empty() || name == oldName) return;
  if (const auto holder = groups_.Find(name); holder && *holder != group) {
    return Say(kExistsKey, FillIn(strings_.Load(IDS_GROUP_EXISTS_TEXT), {name}));
  }
  if (!Changed(groups_.Rename(group, name))) return;
  listing_.GroupRenamed(oldName, name);
  prompts_.TellTray("RenameFavGroup\t" + oldName + "\t" + name);
}

void FavoriteCommands::DeleteFavoriteGroup(std::size_t group) {
  if (group >= groups_.Count()) return;
  const std::string name(groups_.Name(group));
  if (settings_.Setting(setting::kNoShowDelete).empty() && !ConfirmDelete(name)) return;
  if (!Changed(groups_.Remove(group))) return;
  prompts_.TellTray("DeleteFavGroup\t" + name);
  listing_.GroupDeleted(name);
}

bool FavoriteCommands::ConfirmDelete(const std::string& name) {
  Message message;
  message.key = kDeleteKey;
  message.caption = strings_.Load(IDS_GROUP_DELETE_CAPTION);
  message.text = FillIn(strings_.Load(IDS_GROUP_DELETE_TEXT), {name});
  message.firstButton = strings_.Load(IDS_GROUP_DELETE_YES);
  message.secondButton = strings_.Load(IDS_GROUP_DELETE_NO);
  message.dontAskText = strings_.Load(IDS_GROUP_DONT_ASK);
  const MessageResult result = prompts_.Ask(message);
  if (result.dontAskAgain) settings_.SetSetting(setting::kNoShowDelete, "Yes");
  return result.answer == MessageAnswer::First;
}

void FavoriteCommands::MoveFavoriteGroup(std::size_t from, std::size_t to) {
  Changed(groups_.Move(from, to));
}

void FavoriteCommands::AddStationToGroup(std::string_view groupName, std::string_view token) {
  const auto group = groups_.Find(groupName);
  if (group && Changed(groups_.AddStation(*group, token))) listing_.GroupsChanged();
}

void FavoriteCommands::RemoveStation(std::string_view token) {
  if (listing_.State().holds != Holds::Group) return;
  const auto group = groups_.Find(listing_.State().group);
  if (group && Changed(groups_.RemoveStation(*group, token))) listing_.GroupsChanged();
}

void FavoriteCommands::PlaceStation(std::string_view token, std::string_view where) {
  if (listing_.State().holds != Holds::Group) return;
  const auto group = groups_.Find(listing_.State().group);
  if (!group) return;
  const auto tokens = groups_.Tokens(*group);
  const auto placeOf = [&tokens](std::string_view member) {
    return static_cast<std::size_t>(std::find(tokens.begin(), tokens.end(), member) - tokens.begin());
  };
  if (Changed(groups_.MoveStation(*group, placeOf(token), placeOf(where)))) listing_.GroupsChanged();
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
