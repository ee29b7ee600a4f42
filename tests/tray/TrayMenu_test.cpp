#include "tray/TrayMenu.h"

#include <gtest/gtest.h>

#include "forms/ControlIds.h"
#include "playback/PlaybackWorld.h"
#include "resources/texts/tray.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {
namespace {

const MenuEntry* Named(const MenuEntries& menu, const std::string& text) {
  for (const MenuEntry& entry : menu) {
    if (entry.text == text) return &entry;
    if (const MenuEntry* found = Named(entry.children, text)) return found;
  }
  return nullptr;
}

TEST(TrayMenuTest, StationsAreWhatTheyWereWhenTheMenuWasMade) {
  PlaybackWorld world;
  FavoriteGroups groups(world.data);
  world.strings.texts[IDS_TRAY_PLAY_AGAIN] = "Again {0}";
  for (int id = 1; id <= 30; ++id) world.AddStation(id, "S & " + std::to_string(id), {"http://127.0.0.1/"});
  TrayMenu menu(groups, world.recent, world.source, world.strings);
  MenuEntries made = menu.Make();
  EXPECT_FALSE(Named(made, std::to_string(IDS_TRAY_NO_GROUPS))->enabled);
  EXPECT_EQ(Named(made, std::to_string(IDS_TRAY_RECENT)), nullptr) << "nothing was played";

  for (int id = 1; id <= 15; ++id) world.recent.AddRecent({StationKey::Kind::Directory, id});
  ASSERT_EQ(groups.Add("Empty"), FavoriteChange::Saved);
  ASSERT_EQ(groups.Add("Many"), FavoriteChange::Saved);
  for (const int id : {20, 999, 21})
    ASSERT_EQ(groups.AddStation(1, {StationKey::Kind::Directory, id}), FavoriteChange::Saved);
  made = menu.Make();
  EXPECT_EQ(Named(made, std::to_string(IDS_TRAY_RECENT))->children.size(), TrayMenu::kMaxRecent);
  EXPECT_EQ(Named(made, "Empty")->command, mnuTrayGroup);
  const MenuEntries& many = Named(made, "Many")->children;
  ASSERT_EQ(many.size(), 4u) << "the group, a line, and the stations that there are";
  EXPECT_EQ(menu.GroupAt(many[0].command - mnuTrayGroup), "Many");

  const int again = Named(made, "Again S && 15")->command - mnuTrayStation;
  const int last = many[3].command - mnuTrayStation;
  world.recent.AddRecent({StationKey::Kind::Directory, 1});
  ASSERT_EQ(groups.Remove(1), FavoriteChange::Saved);
  EXPECT_EQ(menu.StationAt(again).number, 15) << "while it was open another was played";
  EXPECT_EQ(menu.StationAt(last).number, 21);
  EXPECT_FALSE(menu.StationAt(last + 1));
  EXPECT_FALSE(menu.StationAt(-1));
}

}  // namespace
}  // namespace sonaro
