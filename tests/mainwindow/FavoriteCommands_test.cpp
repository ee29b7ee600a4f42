#include "mainwindow/FavoriteCommands.h"

#include "fakes/FakeMessageBox.h"
#include "fakes/FakeUndo.h"
#include "mainwindow/Models.h"
#include "resources/texts/mainwindow.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

class FakePrompts : public FavoritePrompts {
 public:
  FakeMessageBox box;
  std::string name;  // what the user types
  std::vector<std::string> told;
  std::vector<std::string> done;

  MessageResult Ask(const Message& message) override { return box.Ask(message); }
  std::string AskNewGroupName() override { return name; }
  std::string AskGroupName(const std::string&) override { return name; }
  void TellTray(const std::string& text) override { told.push_back(text); }
  std::string NameOf(const StationKey& station) override { return station.Token(); }
  void SayDone(const std::string& sentence) override { done.push_back(sentence); }
};

class FavoriteCommandsTest : public Models {
 protected:
  std::string File() const { return files.Get("/d/favs.snr").value_or("(no file)"); }
  std::string LastKey() const { return prompts.box.asked.empty() ? "" : prompts.box.asked.back().key; }

  static std::string Done(int textId, const char* what, const char* group) {
    return FormatText(MarkedStrings().Load(textId), {what, group});
  }

  FakePrompts prompts;
  FakeUndoListener user;
  UndoList undo{user};
  FavoriteCommands commands{groups, listing, settings, strings, undo, prompts};
};

TEST_F(FavoriteCommandsTest, GroupsAreAddedUntilThereAreTen) {
  prompts.name = " Nordic ";
  EXPECT_TRUE(commands.AddFavoriteGroup());
  EXPECT_EQ(prompts.told, std::vector<std::string>{"AddNewFavGroup\tNordic"});
  EXPECT_TRUE(File().ends_with("Rock\t2\r\nNordic\t\r\n"));
  prompts.name = "JAZZ";
  EXPECT_FALSE(commands.AddFavoriteGroup());
  EXPECT_EQ(LastKey(), "TheFavoriteGroupAlreadyExists");
  prompts.name = " ";
  EXPECT_FALSE(commands.AddFavoriteGroup());
  EXPECT_EQ(prompts.box.asked.size(), 1U) << "no name, no message";
  for (int i = 5; i <= 10; ++i) {
    prompts.name = "G" + std::to_string(i);
    EXPECT_TRUE(commands.AddFavoriteGroup());
  }
  const std::string full = File();
  prompts.name = "Eleven";
  EXPECT_FALSE(commands.AddFavoriteGroup());
  EXPECT_EQ(LastKey(), "AlreadyHave10FavoriteGroups");
  EXPECT_EQ(File(), full);
}

TEST_F(FavoriteCommandsTest, RenamingKeepsTheMembersAndTheListInStep) {
  listing.ShowFavoriteGroup(0);
  prompts.name = "rock";
  commands.RenameFavoriteGroup(0);
  EXPECT_EQ(LastKey(), "TheFavoriteGroupAlreadyExists");
  prompts.name = "JAZZ";
  commands.RenameFavoriteGroup(0);
  EXPECT_EQ(prompts.told, std::vector<std::string>{"RenameFavGroup\tJazz\tJAZZ"});
  EXPECT_TRUE(File().starts_with("JAZZ\t4 77 P1 1\r\n"));
  EXPECT_EQ(listing.State().caption, "JAZZ");
  EXPECT_EQ(listing.State().listingMode, "favJAZZ");
  prompts.name = "";
  commands.RenameFavoriteGroup(0);
  EXPECT_EQ(prompts.told.size(), 1U);
}

TEST_F(FavoriteCommandsTest, DeletingAsksUntilToldNotTo) {
  listing.ShowFavoriteGroup(0);
  commands.DeleteFavoriteGroup(0);
  EXPECT_EQ(groups.Count(), 3U) << "the box was closed";
  ASSERT_EQ(LastKey(), "DeleteFavoriteGroup");
  EXPECT_NE(prompts.box.asked[0].text.find("(Jazz)"), std::string::npos);
  EXPECT_NE(prompts.box.asked[0].dontAskText, "");

  prompts.box.answers = {{MessageAnswer::Second, false}, {MessageAnswer::First, true}};
  commands.DeleteFavoriteGroup(0);
  EXPECT_EQ(groups.Count(), 3U);
  commands.DeleteFavoriteGroup(2);
  EXPECT_EQ(prompts.told, std::vector<std::string>{"DeleteFavGroup\tRock"});
  EXPECT_EQ(listing.State().listingMode, "favJazz") << "another group was on show";
  EXPECT_EQ(settings.Setting("NoShowDelete"), "Yes");

  commands.DeleteFavoriteGroup(0);
  EXPECT_EQ(prompts.box.asked.size(), 3U) << "not asked again";
  EXPECT_EQ(File(), "Empty\t\r\n");
  EXPECT_EQ(listing.State().listingMode, "Recent") << "the deleted group was on show";
  EXPECT_EQ(Shown(), "S3 P1 S1 ");
}

TEST_F(FavoriteCommandsTest, StationsComeGoAndMoveInTheGroupOnShow) {
  listing.ShowFavoriteGroup(0);
  commands.AddStationsToGroup("jazz", KeysOf("3"));
  EXPECT_EQ(Shown(), "S4 P1 S1 S3 ");
  commands.AddStationsToGroup("jazz", KeysOf("3"));
  commands.AddStationsToGroup("No such group", KeysOf("3"));
  commands.PlaceStation(Key("77"), Key("4"));
  commands.PlaceStation(Key("77"), Key("77"));
  commands.PlaceStation(Key("3"), Key("unknown"));
  commands.PlaceStation(Key("unknown"), Key("3"));
  EXPECT_EQ(Shown(), "S4 P1 S1 S3 ");
  commands.RemoveStations("jazz", {Key("P1")});
  EXPECT_EQ(File(), "Jazz\t77 4 1 3 \r\nEmpty\t\r\nRock\t2\r\n");
  listing.ShowRecent();
  commands.RemoveStations("No such group", {Key("3")});
  commands.PlaceStation(Key("3"), Key("1"));
  EXPECT_EQ(Shown(), "S3 P1 S1 ") << "no group is on show";
  commands.AddStationsToGroup("ROCK", KeysOf("P1"));
  EXPECT_TRUE(File().ends_with("Rock\t2 P1 \r\n"));
  commands.AddStationsToGroup("rock", KeysOf("2 1 P1 3"));
  commands.AddStationsToGroup("rock", KeysOf("1 3"));
  EXPECT_TRUE(File().ends_with("Rock\t2 P1 1 3 \r\n"));
  EXPECT_TRUE(prompts.box.asked.empty());
  EXPECT_EQ(prompts.done, (std::vector<std::string>{Done(IDS_GROUP_HAS_IT, "3", "Jazz"),
                                                    Done(IDS_GROUP_HAS_THEM, "2", "Rock")}));
  EXPECT_EQ(user.heard,
            (std::vector<std::string>{
                Done(IDS_GROUP_ADDED_TO, "3", "Jazz"), Done(IDS_GROUP_REMOVED_FROM, "P1", "Jazz"),
                Done(IDS_GROUP_ADDED_TO, "P1", "Rock"), Done(IDS_GROUP_ADDED_MANY, "2", "Rock")}));
  undo.Undo();
  EXPECT_TRUE(File().ends_with("Rock\t2 P1 \r\n")) << File();
  undo.Undo();
  EXPECT_TRUE(File().ends_with("Rock\t2 \r\n")) << File();
}

TEST_F(FavoriteCommandsTest, TheFirstStationMakesItsGroup) {
  groups.Remove(2);
  commands.AddStationsToGroupOrNew(" First\t", KeysOf("3"));
  EXPECT_TRUE(File().ends_with("First\t3 \r\n")) << File();
  EXPECT_EQ(prompts.told, std::vector<std::string>{"AddNewFavGroup\tFirst"});
  EXPECT_EQ(user.heard, std::vector<std::string>{Done(IDS_GROUP_ADDED_TO, "3", "First")});
  commands.AddStationsToGroupOrNew("FIRST", KeysOf("1"));
  EXPECT_TRUE(File().ends_with("First\t3 1 \r\n")) << "a name that is there means that group";
  commands.AddStationsToGroupOrNew(" ", KeysOf("1"));
  while (groups.Count() < FavoriteGroups::kSlots) groups.Add("G" + std::to_string(groups.Count()));
  const std::string full = File();
  commands.AddStationsToGroupOrNew("Eleven", KeysOf("1"));
  EXPECT_EQ(LastKey(), "AlreadyHave10FavoriteGroups");
  EXPECT_EQ(File(), full);
}

TEST_F(FavoriteCommandsTest, DeletingAGroupThatIsNotOnShowLeavesTheWindowAlone) {
  settings.SetSetting("NoShowDelete", "Yes");
  listing.ShowFavoriteGroup(2);
  listing.ShowView(View::YourSonaro);
  ASSERT_EQ(listing.State().middle, Middle::EventPage);
  commands.DeleteFavoriteGroup(2);
  EXPECT_EQ(listing.State().view, View::YourSonaro);
  EXPECT_EQ(listing.State().middle, Middle::EventPage);
  listing.ShowListView();
  EXPECT_EQ(Shown(), "") << "nor does its list come back";
  listing.ShowView(View::YourSonaro);
  listing.ShowGroupInPlace(0);
  commands.DeleteFavoriteGroup(0);
  EXPECT_EQ(listing.State().view, View::YourSonaro) << "the list falls back on the page where it is";
  EXPECT_EQ(Shown(), "S3 P1 S1 ");
  EXPECT_EQ(listing.State().listingMode, "Recent");
}

TEST_F(FavoriteCommandsTest, MissingMembersAreTakenOutWhenTheUserSaysSo) {
  listing.ShowFavoriteGroup(0);
  const std::string before = File();
  commands.TakeOutMissing();
  EXPECT_EQ(LastKey(), "TakeOutMissingStations");
  EXPECT_EQ(File(), before) << "the box was closed";
  prompts.box.answers = {{MessageAnswer::First, false}};
  commands.TakeOutMissing();
  EXPECT_TRUE(File().starts_with("Jazz\t4 P1 1\r\n")) << File();
  EXPECT_TRUE(listing.State().missing.empty());
  const std::size_t asked = prompts.box.asked.size();
  commands.TakeOutMissing();
  EXPECT_EQ(prompts.box.asked.size(), asked) << "none is missing";
}

TEST_F(FavoriteCommandsTest, WhatWasTakenAwayComesBackToItsPlace) {
  listing.ShowFavoriteGroup(0);
  commands.RemoveStations("Jazz", {Key("77")});
  commands.RemoveStations("Jazz", {Key("4"), Key("1")});
  EXPECT_EQ(user.heard, (std::vector<std::string>{Done(IDS_GROUP_REMOVED_FROM, "77", "Jazz"),
                                                  Done(IDS_GROUP_REMOVED_MANY, "2", "Jazz")}));
  EXPECT_EQ(groups.AddStation(0, Key("3")), FavoriteChange::Saved);  // stays when the others come back
  undo.Undo();
  EXPECT_EQ(Shown(), "S4 P1 S1 S3 ");
  EXPECT_EQ(groups.AddStation(0, Key("77")), FavoriteChange::Saved);  // is there once, then
  undo.Undo();
  EXPECT_EQ(user.heard.back(), "not undone");
  EXPECT_TRUE(File().starts_with("Jazz\t4 P1 1 3 77")) << File();

  settings.Set(setting::kNoShowDelete, true);
  const std::string file = File();
  commands.DeleteFavoriteGroup(0);
  undo.Undo();
  EXPECT_EQ(File(), file);
  EXPECT_EQ(prompts.told.back(), "AddNewFavGroup\tJazz");
  commands.DeleteFavoriteGroup(1);
  prompts.name = "Empty";
  EXPECT_TRUE(commands.AddFavoriteGroup());
  undo.Undo();
  EXPECT_EQ(user.heard.back(), "not undone") << "the name is in use again";

  // No room, and no way to write: said, and to be tried again.
  commands.DeleteFavoriteGroup(0);
  files.SetSpaceLeft(0);
  undo.Undo();
  EXPECT_EQ(LastKey(), "NotSaved");
  files.SetSpaceLeft(std::nullopt);
  while (groups.Count() < FavoriteGroups::kSlots) {
    prompts.name = "G" + std::to_string(groups.Count());
    EXPECT_TRUE(commands.AddFavoriteGroup());
  }
  undo.Undo();
  EXPECT_EQ(LastKey(), "AlreadyHave10FavoriteGroups");
  commands.DeleteFavoriteGroup(9);
  undo.Undo();
  EXPECT_EQ(groups.Count(), FavoriteGroups::kSlots);
}

TEST_F(FavoriteCommandsTest, AChangeThatCannotBeWrittenIsSaid) {
  files.SetSpaceLeft(0);
  commands.AddStationsToGroup("Rock", KeysOf("1"));
  EXPECT_EQ(prompts.box.asked.size(), 1U);
  EXPECT_TRUE(prompts.done.empty());
  EXPECT_FALSE(groups.Contains(2, Key("1")));
  EXPECT_TRUE(File().ends_with("Rock\t2\r\n"));
}

}  // namespace
}  // namespace sonaro
