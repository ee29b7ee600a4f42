// Menus are made anew each time one is opened. What an entry does is decided by its command alone; the
// subject of the command is fixed when the menu opens (CommandSubject), so a list that changes under an open
// menu changes nothing.
#include "mainwindow/StationActions.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/ControlIds.h"
#include "mainwindow/SortEntries.h"
#include "mainwindow/StationListState.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/Commands.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {
namespace {

struct RankingCommand {
  int command;
  Ranking ranking;
};

// In the order of the menu. The commands are consecutive numbers from mnuActionNewStations on, which the
// event tables rely on.
constexpr std::array<RankingCommand, kRankingCount> kRankingCommands{{
    {mnuActionNewStations, Ranking::NewStations},
    {mnuActionMostPoular, Ranking::MostPop},
    {mnuActionLeastPopular, Ranking::LeastPop},
    {mnuActionBestOverall, Ranking::BestOverall},
    {mnuActionBestSound, Ranking::BestSound},
    {mnuActionBestSpeed, Ranking::BestSpeed},
    {mnuActionBestWebsite, Ranking::BestWebsite},
    {mnuActionMostReliable, Ranking::MostReliable},
}};

// By place: the first, second and third link, whichever of them a station has.
constexpr std::array<int, StationDetail::kPlayButtons> kPlayCommands{mnuActionPlayOne, mnuActionPlayTwo,
                                                                     mnuActionPlayThree};
constexpr std::array<int, StationDetail::kPlayButtons> kPlayShortcuts{
    IDS_SHORTCUT_PLAY_ONE, IDS_SHORTCUT_PLAY_TWO, IDS_SHORTCUT_PLAY_THREE};

// Separators are asked for freely; none stands first, last or beside another.
void AddSeparator(MenuEntries& menu) {
  if (!menu.empty() && !IsSeparator(menu.back())) menu.emplace_back();
}

// The others are about the one station that the detail shows.
bool ActsOnSeveral(int command) {
  return command == mnuActionStationToFavList || command == mnuActionRemoveFromFavList ||
         command == mnuActionAddToScan || command == mnuPersonalDelete;
}

MenuEntry Submenu(std::string caption, MenuEntries children) {
  MenuEntry entry;
  entry.text = std::move(caption);
  entry.children = std::move(children);
  return entry;
}

}  // namespace

std::optional<Ranking> RankingOfCommand(int command) {
  for (const RankingCommand& entry : kRankingCommands) {
    if (entry.command == command) return entry.ranking;
  }
  return std::nullopt;
}

MenuEntry StationActions::Entry(int command, int textId, bool enabled) const {
  MenuEntry entry;
  entry.command = command;
  entry.text = strings_.Load(textId);
  entry.enabled = enabled;
  return entry;
}

MenuEntry StationActions::StationEntry(int command, int textId, const StationDetail& detail) const {
  const bool selected = static_cast<bool>(detail.station);
  MenuEntry entry = Entry(command, textId, selected);
  const std::vector<StationKey> keys = listing_.Rows().SelectedKeys();
  const auto several = !ActsOnSeveral(command)        ? 1
                       : command == mnuPersonalDelete ? std::ranges::count_if(keys, &StationKey::IsOfUser)
                                                      : static_cast<std::ptrdiff_t>(keys.size());
  const std::string name = several > 1
                               ? FormatText(strings_.Load(IDS_ACTION_STATIONS), {std::to_string(several)})
                           : detail.name.empty() ? strings_.Load(IDS_ACTION_ANY_STATION)
                                                 : MenuText(detail.name);
  entry.text = FormatText(entry.text, {name, MenuText(listing_.State().group)});
  return entry;
}

// Without a station the entries are still there, disabled and worded for any station: a menu whose entries
// come and go cannot be learnt.
MenuEntries StationActions::ActionMenu(const StationDetail& detail) const {
  const bool selected = static_cast<bool>(detail.station);
  MenuEntries menu;
  AddPlayEntries(detail, menu);
  AddSeparator(menu);
  AddGroupEntries(detail, menu);
  AddSeparator(menu);
  menu.push_back(StationEntry(mnuActionAddToScan, IDS_ACTION_ADD_TO_SCAN, detail));
  menu.push_back(
      Entry(mnuActionAddListToScan, IDS_ACTION_ADD_LIST_TO_SCAN, listing_.Rows().StationCount() > 0));
  menu.push_back(selected ? StationEntry(mnuActionSchedule, IDS_ACTION_SCHEDULE, detail)
                          : Entry(mnuActionSchedule, IDS_ACTION_SCHEDULE_NONE, false));
  if (detail.station.IsOfUser()) {
    menu.push_back(StationEntry(mnuPersonalChange, IDS_ACTION_CHANGE_PERSONAL, detail));
    menu.push_back(StationEntry(mnuPersonalDelete, IDS_ACTION_DELETE_PERSONAL, detail));
  } else {
    menu.push_back(selected ? StationEntry(mnuActionExtraLink, IDS_ACTION_EXTRA_LINK, detail)
                            : Entry(mnuActionExtraLink, IDS_ACTION_EXTRA_LINK_NONE, false));
  }
  AddSeparator(menu);
  menu.push_back(Entry(mnuSomethingElse, IDS_ACTION_SOMETHING_ELSE, listing_.Rows().StationCount() > 0));
  menu.push_back(Entry(mnuFilter, IDS_ACTION_FILTER));
  menu.push_back(Submenu(strings_.Load(IDS_ACTION_SORT), SortEntriesFor(Place::ActionMenu)));
  menu.push_back(Submenu(strings_.Load(IDS_ACTION_RANKINGS), RankingEntries()));
  return menu;
}

MenuEntries StationActions::EventMenu(const EventLine& event, const StationDetail& detail) const {
  const int show = event.personalShow ? IDS_ACTION_REMOVE_SHOW : IDS_ACTION_ADD_SHOW;
  MenuEntries menu = {Entry(mnuEventNotifyMe, IDS_ACTION_NOTIFY_EVENT, !event.noticed),
                      Entry(mnuEventPersonalShow, show)};
  for (MenuEntry& entry : menu) entry.text = FormatText(entry.text, {MenuText(event.name)});
  if (!detail.station) return menu;
  AddSeparator(menu);
  AddPlayEntries(detail, menu);
  return menu;
}

// Links that the station lacks are left out rather than disabled, so that the shortcuts beside the others
// stay with their links.
void StationActions::AddPlayEntries(const StationDetail& detail, MenuEntries& menu) const {
  if (!detail.station) menu.push_back(Entry(mnuActionPlayOne, IDS_ACTION_PLAY, false));
  for (std::size_t i = 0; i < StationDetail::kPlayButtons; ++i) {
    const PlayButton& button = detail.playButtons[i];
    if (!button.shown) continue;
    MenuEntry entry = Entry(kPlayCommands[i], kPlayShortcuts[i]);
    const std::string told = button.detail.empty() ? button.caption : button.caption + ", " + button.detail;
    entry.text = FormatText(entry.text, {MenuText(told)});
    menu.push_back(std::move(entry));
  }
  for (std::size_t i = 0; i < detail.extraButtons.size() && i < kExtraPlayCommands; ++i) {
    MenuEntry entry;
    entry.command = mnuActionPlayExtra + static_cast<int>(i);
    entry.text = MenuText(detail.extraButtons[i].caption);
    menu.push_back(std::move(entry));
  }
  menu.push_back(Entry(mnuActionWebSite, IDS_ACTION_WEB_SITE, detail.hasWebSite));
  menu.push_back(Entry(mnuActionCopyLink, IDS_ACTION_COPY_LINK, !detail.firstLink.empty()));
}

void StationActions::AddGroupEntries(const StationDetail& detail, MenuEntries& menu) const {
  menu.push_back(StationEntry(mnuActionStationToFavList, IDS_ACTION_ADD_TO_GROUP, detail));
  // A submenu without entries would be a line.
  if (groups_.Count() > 0) menu.push_back(Submenu(strings_.Load(IDS_ACTION_ADD_TO), GroupChoices(detail)));
  const bool groupShown = listing_.State().holds == Holds::Group;
  menu.push_back(StationEntry(mnuActionRemoveFromFavList, IDS_ACTION_REMOVE_FROM_GROUP, detail));
  menu.back().enabled = groupShown && detail.station;
  if (!groupShown) return;
  // In a sorted or narrowed list the places of a group's members cannot be seen, so they are not moved there.
  const bool canMove =
      menu.back().enabled && listing_.Rows().InOwnOrder() && listing_.Rows().SelectedRows().size() == 1;
  const std::size_t row = listing_.Rows().Selected().value_or(0);
  menu.push_back(Entry(mnuActionMoveUp, IDS_ACTION_MOVE_UP, canMove && row > 0));
  menu.push_back(
      Entry(mnuActionMoveDown, IDS_ACTION_MOVE_DOWN, canMove && row + 1 < listing_.Rows().Count()));
}

// A group that holds the station already is checked and cannot be chosen again.
MenuEntries StationActions::GroupChoices(const StationDetail& detail) const {
  const std::size_t several = listing_.Rows().SelectedRows().size();
  MenuEntries choices;
  for (std::size_t group = 0; group < groups_.Count() && group < FavoriteGroups::kSlots; ++group) {
    MenuEntry entry;
    entry.command = mnuActionStationToGroup + static_cast<int>(group);
    entry.text = MenuText(groups_.Name(group));
    entry.checked = detail.station && several < 2 && groups_.Contains(group, detail.station);
    entry.enabled = detail.station && !entry.checked;
    choices.push_back(std::move(entry));
  }
  return choices;
}

MenuEntries StationActions::SortMenu() const { return SortEntriesFor(Place::SortMenu); }

// The same entries in two menus, with numbers of their own in each: a command tells from which menu it came.
MenuEntries StationActions::SortEntriesFor(Place place) const {
  const SortState& sort = listing_.Rows().Sort();
  MenuEntries entries = {Entry(mnuOwnOrder, IDS_SORT_OWN_ORDER)};
  entries.back().checked = !sort.on;
  AddSeparator(entries);
  for (const SortEntry& facts : SortEntries()) {
    MenuEntry entry = Entry(place == Place::SortMenu ? facts.sortMenu : facts.actionMenu, facts.captionId);
    entry.checked = sort.on && sort.key == facts.key;
    if (facts.key == static_cast<int>(SubItem::Overall)) AddSeparator(entries);
    entries.push_back(std::move(entry));
  }
  AddSeparator(entries);
  entries.push_back(Entry(mnuShowValues, IDS_SORT_SHOW_VALUES));
  entries.back().checked = listing_.State().showsValues;
  return entries;
}

MenuEntries StationActions::RankingEntries() const {
  MenuEntries entries;
  for (const RankingCommand& facts : kRankingCommands) {
    MenuEntry entry = Entry(facts.command, CaptionIdOf(facts.ranking));
    entry.checked = listing_.State().ranking == facts.ranking;
    entries.push_back(std::move(entry));
  }
  return entries;
}

// For a free slot too: everything but making a group is disabled there.
MenuEntries StationActions::GroupMenu(std::size_t group) const {
  const bool used = group < groups_.Count();
  MenuEntries menu;
  menu.push_back(Entry(mnuAddFavGroupButton, IDS_GROUP_NEW));
  menu.push_back(Entry(mnuFavRenameFav, IDS_GROUP_RENAME, used));
  menu.push_back(Entry(mnuFavDeleteFav, IDS_GROUP_DELETE, used));
  AddSeparator(menu);
  menu.push_back(Entry(mnuFavMoveLeft, IDS_GROUP_MOVE_LEFT, used && group > 0));
  menu.push_back(Entry(mnuFavMoveRight, IDS_GROUP_MOVE_RIGHT, used && group + 1 < groups_.Count()));
  AddSeparator(menu);
  menu.push_back(Entry(mnuFavScanGroup, IDS_GROUP_SCAN, used && !groups_.Keys(group).empty()));
  menu.push_back(Entry(mnuFavImport, IDS_GROUP_IMPORT, used));
  menu.push_back(Entry(mnuFavExport, IDS_GROUP_EXPORT, used && !groups_.Keys(group).empty()));
  return menu;
}

// {0, 0} is a separator; the one entry without a command opens the menu of help.
MenuEntries StationActions::ProgramMenu() const {
  MenuEntries menu;
  const std::pair<int, int> entries[] = {{mnuViewYourSonaro, IDS_MENU_YOUR_SONARO},
                                         {mnuViewList, IDS_MENU_LIST},
                                         {mnuViewBrowse, IDS_MENU_BROWSE},
                                         {mnuViewByLocation, IDS_MENU_BY_LOCATION},
                                         {mnuViewSearch, IDS_MENU_SEARCH},
                                         {mnuRecent, IDS_MENU_RECENT},
                                         {mnuSomethingElse, IDS_ACTION_SOMETHING_ELSE},
                                         {mnuViewPersonalPage, IDS_MENU_PERSONAL_PAGE},
                                         {0, 0},
                                         {mnuFavoritesAdd, IDS_GROUP_NEW},
                                         {mnuPersonalAdd, IDS_PERSONAL_ADD},
                                         {mnuPersonalImport, IDS_MENU_IMPORT},
                                         {mnuPersonalExport, IDS_MENU_EXPORT},
                                         {0, 0},
                                         {mnuScan, IDS_MENU_SCAN},
                                         {mnuSchedule, IDS_MENU_SCHEDULE},
                                         {mnuUpdate, IDS_MENU_UPDATE},
                                         {mnuUndoUpdate, IDS_MENU_UNDO_UPDATE},
                                         {mnuOptions, IDS_MENU_OPTIONS},
                                         {0, 0},
                                         {0, IDS_MENU_INFO},
                                         {0, 0},
                                         {mnuHideToTray, IDS_MENU_HIDE},
                                         {mnuExit, IDS_MENU_EXIT}};
  for (const auto& [command, textId] : entries) {
    if (textId == 0) {
      AddSeparator(menu);
    } else {
      menu.push_back(Entry(command, textId));
    }
    if (textId == IDS_MENU_INFO) {
      menu.back().children = {Entry(mnuFullHelp, IDS_MENU_HELP), Entry(mnuQuickStart, IDS_MENU_QUICK_START),
                              Entry(mnuAbout, IDS_MENU_ABOUT)};
    }
  }
  return menu;
}

MenuEntries StationActions::PersonalMenu() const {
  return {Entry(mnuPersonalAdd, IDS_PERSONAL_ADD), Entry(mnuPersonalImport, IDS_PERSONAL_IMPORT),
          Entry(mnuPersonalExport, IDS_PERSONAL_EXPORT)};
}

}  // namespace sonaro
