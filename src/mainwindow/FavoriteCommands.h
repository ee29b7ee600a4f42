// The commands on favourite groups as the user gives them: asks for names and consent, refuses what cannot
// be, changes the groups, keeps the station list in step and tells the tray menu. Owned by the main window.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "settings/Message.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

class CReg;
class StationListState;
class Strings;
class UndoList;
enum class UndoResult;

// What the commands need of the windows around them.
class FavoritePrompts : public MessageBoxView {
 public:
  // A name for a new group (frmNewFavorite); "" when the user gave none.
  virtual std::string AskNewGroupName() = 0;
  // Another name for a group (frmRenameFav); "" when the user gave none.
  virtual std::string AskGroupName(const std::string& present) = 0;
  // Takes a text for the small tray menu window: "AddNewFavGroup", tab, name ...
  virtual void TellTray(const std::string& text) = 0;
  virtual std::string NameOf(const StationKey& station) = 0;
  // In the status line.
  virtual void SayDone(const std::string& sentence) = 0;
};

class FavoriteCommands {
 public:
  FavoriteCommands(FavoriteGroups& groups, StationListState& listing, CReg& settings, const Strings& strings,
                   UndoList& undo, FavoritePrompts& prompts)
      : groups_(groups),
        listing_(listing),
        settings_(settings),
        strings_(strings),
        undo_(undo),
        prompts_(prompts) {}

  // True when there is a new group; it is the last one.
  bool AddFavoriteGroup();
  void RenameFavoriteGroup(std::size_t group);
  void DeleteFavoriteGroup(std::size_t group);
  void MoveFavoriteGroup(std::size_t from, std::size_t to);
  // Adds stations to the group of this name with one save, and says so; those that the group holds already,
  // or a name that no group has, change nothing.
  void AddStationsToGroup(std::string_view groupName, const std::vector<StationKey>& stations);
  // The same, and a name that no group has makes one with the stations in it.
  void AddStationsToGroupOrNew(std::string_view groupName, const std::vector<StationKey>& stations);
  void RemoveStations(std::string_view groupName, const std::vector<StationKey>& stations);
  // Asks whether the members of the group on show that the guide does not know are to go, and takes them out.
  void TakeOutMissing();
  // Of the group that the list shows: puts one member in the place of another, those between moving along.
  void PlaceStation(const StationKey& station, const StationKey& where);

 private:
  void SayAdded(const std::vector<StationKey>& stations, const std::string& group);
  // These can be undone. The sentence of several stations is IDS_GROUP_REMOVED_MANY.
  void TakeOut(std::size_t group, const std::vector<StationKey>& stations);
  UndoResult TakeBack(const std::string& name, const std::vector<StationKey>& stations);
  UndoResult PutBack(const std::string& name, const std::vector<FavoriteGroups::Member>& members);
  UndoResult PutBackGroup(std::size_t place, const std::string& name, const std::string& line);
  std::string Sentence(int textOfOne, int textOfMany, const std::vector<StationKey>& stations,
                       const std::string& group);
  void Say(const char* key, const std::string& text);
  bool ConfirmDelete(const std::string& name);
  bool RefuseEleventh();
  // Says when a change could not be saved. True when there is one.
  bool Changed(FavoriteChange change);

  FavoriteGroups& groups_;
  StationListState& listing_;
  CReg& settings_;
  const Strings& strings_;
  UndoList& undo_;
  FavoritePrompts& prompts_;
};

}  // namespace sonaro
