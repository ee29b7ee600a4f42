// Favourite groups with real windows: their life, their names, their order, the mouse and the keyboard.
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

class GroupTest : public MainWindowTest {
 protected:
  // The program with these groups in its file.
  HWND MainWithGroups(const std::string& file) {
    WriteFile("favs.snr", file);
    return MainWithStations();
  }
};

TEST_F(GroupTest, GroupsLiveFromTheFirstToTheRefusedEleventh) {
  HWND main = StartAndShowMain();
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 3; }));
  std::string file;
  for (int group = 1; group <= 10; ++group) {
    NewGroup(main, "Group " + std::to_string(group));
    file += "Group " + std::to_string(group) + "\t\r\n";
    ASSERT_TRUE(WaitUntil([&] { return ReadFile("favs.snr") == file; })) << ReadFile("favs.snr");
  }
  EXPECT_EQ(TextOf(Control(main, butFavs + 9)), "Group 10");
  Command(main, mnuFavoritesAdd);
  AnswerBox(main, butMsg);
  EXPECT_EQ(ReadFile("favs.snr"), file);

  const auto status = [main] { return TextOf(Control(main, lblStatus)); };
  const std::string guide = status();
  const std::string name = CellText(List(main), 0);
  Command(main, mnuActionStationToGroup + 1);
  ASSERT_TRUE(WaitUntil([&] { return ReadFile("favs.snr") != file; }));
  EXPECT_TRUE(WaitUntil([&] { return status() == "Added " + name + " to Group 2."; })) << status();
  Click(Control(main, butFavs + 1));
  EXPECT_TRUE(Listing(main, "Group 2"));
  EXPECT_EQ(status(), guide) << "what was said before is gone";
  EXPECT_EQ(ColumnTexts(List(main)), std::vector<std::string>{name});
  Command(main, mnuActionRemoveFromFavList);
  EXPECT_TRUE(WaitUntil([&] { return status() == "Removed " + name + " from Group 2."; })) << status();
  SaveShot("group");
  Click(Control(main, butUndo));
  EXPECT_TRUE(WaitUntil([&] { return status() == "Undone: Removed " + name + " from Group 2."; }))
      << status();
  EXPECT_EQ(ColumnTexts(List(main)), std::vector<std::string>{name});
  EXPECT_FALSE(IsShown(Control(main, butUndo)));
  Command(main, mnuFavDeleteFav);
  AnswerBox(main, butMsg);
  EXPECT_TRUE(Listing(main, "Your Recent"));
  EXPECT_EQ(TextOf(Control(main, butFavs + 1)), "Group 3");
  EXPECT_TRUE(IsShown(Control(main, butUndo)));
  PressKey(main, 'Z', Modifier::Control);
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(main, butFavs + 1)) == "Group 2"; }));
}

TEST_F(GroupTest, StationsAndGroupsAreDragged) {
  HWND main = MainWithGroups("Rock & Roll\t\r\n東京\t\r\nTalk\t\r\n");
  const std::vector<std::string> names = ColumnTexts(List(main));
  for (const int row : {2, 3, 1}) {
    const std::string before = ReadFile("favs.snr");
    ASSERT_TRUE(DragUntil(RowAt(main, row), MiddleOf(Control(main, butFavs + 1)), [&] {
      return ReadFile("favs.snr") != before;
    })) << row;
  }
  Click(Control(main, butFavs + 1));
  EXPECT_TRUE(Listing(main, "東京"));
  EXPECT_EQ(ColumnTexts(List(main)), (std::vector<std::string>{names[2], names[3], names[1]}));

  EXPECT_TRUE(DragUntil(RowAt(main, 0), RowAt(main, 2), [&] {
    return ColumnTexts(List(main)) == std::vector<std::string>{names[3], names[1], names[2]};
  }));
  EXPECT_TRUE(DragUntil(MiddleOf(Control(main, butFavs)), MiddleOf(Control(main, butFavs + 2)),
                        [&] { return TextOf(Control(main, butFavs + 2)) == "Rock & Roll"; }));
  EXPECT_EQ(TextOf(Control(main, butFavs)), "東京");
  const std::string file = ReadFile("favs.snr");
  EXPECT_TRUE(file.starts_with("東京\t")) << file;
  EXPECT_TRUE(file.ends_with("Talk\t\r\nRock & Roll\t\r\n")) << file;
  // Dropped beside every target nothing changes.
  DragFromTo(MiddleOf(Control(main, butFavs)), MiddleOf(Control(main, lblStatus)));
  Click(Control(main, butFavs + 1));
  EXPECT_TRUE(Listing(main, "Talk"));
  EXPECT_EQ(ReadFile("favs.snr"), file);
}

TEST_F(GroupTest, TheGroupOnShowIsRenamedAndDeleted) {
  HWND main = MainWithGroups("Morning\t\r\nEvening\t\r\nNight\t\r\n");
  Command(main, mnuActionStationToGroup + 1);
  ASSERT_TRUE(WaitUntil([&] { return ReadFile("favs.snr").find("Evening\t\r") == std::string::npos; }));
  Click(Control(main, butFavs + 1));
  ASSERT_TRUE(Listing(main, "Evening"));

  PressKey(main, VK_F2);
  HWND dialog = Dialog("frmRenameFav");
  EXPECT_EQ(TextOf(Control(dialog, txtGroupName)), "Evening");
  EXPECT_NEAR(MiddleOf(dialog).x, MiddleOf(main).x, 2);
  EXPECT_NEAR(MiddleOf(dialog).y, MiddleOf(main).y, 2);
  SetText(Control(dialog, txtGroupName), "Élan");
  EndWith(main, dialog, butOKIt);
  EXPECT_TRUE(Listing(main, "Élan"));
  EXPECT_EQ(TextOf(Control(main, butFavs + 1)), "Élan");
  EXPECT_EQ(RowCount(List(main)), 1);

  // By the key, from the group's own button.
  HWND key = Control(main, butFavs + 1);
  ASSERT_TRUE(ClickUntil(MiddleOf(key), [&] { return FocusOf(main) == key; }));
  PressKey(main, VK_DELETE);
  AnswerBox(main, butMsg);
  EXPECT_TRUE(Listing(main, "Your Recent"));
  EXPECT_TRUE(Holds("favs.snr", "Morning\t\r\nNight\t\r\n"));
}

TEST_F(GroupTest, TheFirstFavouriteMakesItsGroupAndSurvivesARestart) {
  HWND main = MainWithStations();
  const std::string name = CellText(List(main), 1);
  SelectRow(List(main), 1);
  Command(main, mnuActionStationToFavList);
  HWND dialog = Dialog("frmPickGroup");
  EXPECT_TRUE(IsShown(Control(dialog, txtGroupName)));
  EXPECT_TRUE(WaitUntil([&] { return FocusOf(dialog) == Control(dialog, txtGroupName); }));
  EXPECT_FALSE(IsWindowEnabled(Control(dialog, butOKIt)));
  TypeText(dialog, "First");
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(dialog, txtGroupName)) == "First"; }));
  EndWith(main, dialog, butOKIt);
  EXPECT_EQ(TextOf(Control(main, butFavs)), "First");
  Command(main, mnuExit);
  EXPECT_TRUE(Sonaro().WaitForEnd().has_value());

  HWND again = Start().WaitForShownWindow("SonaroFrm");
  ASSERT_NE(again, nullptr);
  Click(Control(again, butFavs));
  EXPECT_TRUE(Listing(again, "First"));
  EXPECT_EQ(ColumnTexts(List(again)), std::vector<std::string>{name});
  // An empty socket makes the second.
  Click(Control(again, butFavs + 4));
  HWND second = Dialog("frmNewFavorite");
  SetText(Control(second, txtGroupName), "Second");
  EndWith(again, second, butOKIt);
  EXPECT_EQ(TextOf(Control(again, butFavs + 1)), "Second");
  EXPECT_TRUE(ReadFile("favs.snr").ends_with("Second\t\r\n")) << ReadFile("favs.snr");
}

TEST_F(GroupTest, TheStarOfARowKeepsItsStationAndLetsItGo) {
  HWND main = MainWithGroups("One\t\r\n");
  const auto said = [&](const std::string& sentence) {
    return WaitUntil([&] { return TextOf(Control(main, lblStatus)) == sentence; });
  };
  const std::string first = CellText(List(main), 0);
  const std::string third = CellText(List(main), 2);
  const RECT name = BoundsOf(Control(main, butSplit1));
  const POINT star{name.right - 10, RowAt(main, 2).y};
  ASSERT_TRUE(ClickUntil(star, [&] { return ReadFile("favs.snr") != "One\t\r\n"; }));
  EXPECT_TRUE(said("Added " + third + " to One."));
  EXPECT_TRUE(CellText(List(main), 2, 3).ends_with(", favorite"));
  EXPECT_EQ(TextOf(Control(main, lblStationName)), first) << "the selection stays";
  SaveShot("star");

  NewGroup(main, "Two");
  SelectRow(List(main), 0);
  PressKey(main, 'D', Modifier::Control);
  EXPECT_TRUE(said("Added " + first + " to One.")) << "the group used last";
  PressKey(main, 'D', Modifier::Control);
  EXPECT_TRUE(said("Removed " + first + " from One."));
  EXPECT_FALSE(CellText(List(main), 0, 3).ends_with(", favorite"));
}

TEST_F(GroupTest, DelThreeTimesRemovesThreeStationsInARow) {
  HWND main = MainWithStations();
  Command(main, mnuFavoritesAdd);
  HWND dialog = Dialog("frmNewFavorite");
  SetText(Control(dialog, txtGroupName), "Long");
  EndWith(main, dialog, butOKIt);
  const int count = std::min(RowCount(List(main)), 40);
  for (int row = 0; row < count; ++row) {
    SelectRow(List(main), row);
    Command(main, mnuActionStationToGroup);
  }
  Click(Control(main, butFavs));
  ASSERT_TRUE(Listing(main, "Long"));
  std::vector<std::string> names = ColumnTexts(List(main));
  const int from = static_cast<int>(names.size()) - 6;
  ASSERT_GT(from, 0);
  ASSERT_TRUE(ClickUntil(RowAt(main, 0), [&] { return FocusOf(main) == List(main); }));
  SelectRow(List(main), from);
  for (int press = 0; press < 3; ++press) {
    PressKey(main, VK_DELETE);
    names.erase(names.begin() + from);
    ASSERT_TRUE(WaitUntil([&] { return ColumnTexts(List(main)) == names; })) << press;
    EXPECT_EQ(SelectedRows(List(main)), std::vector<int>{from});
  }
  EXPECT_GT(ListView_GetTopIndex(List(main)) + ListView_GetCountPerPage(List(main)), from) << "in sight";
}

TEST_F(GroupTest, WhatTheGuideLostIsToldBesideTheCaptionAndTakenOut) {
  ResetToSettled({{"NoShowDelete", "Yes"}});
  HWND main = MainWithGroups("Morning\t2000000001 P77\r\nEvening\t\r\n");
  Command(main, mnuActionStationToGroup);
  Click(Control(main, butFavs));
  ASSERT_TRUE(Listing(main, "Morning"));
  EXPECT_EQ(RowCount(List(main)), 1);
  HWND missing = Control(main, butMissing);
  ASSERT_TRUE(WaitUntil([&] { return IsShown(missing); }));
  EXPECT_EQ(TextOf(missing), "2 are no longer in the guide");
  EXPECT_LE(BoundsOf(Control(main, lblListing)).right, BoundsOf(missing).left);
  SaveShot("missing");
  Click(missing);
  AnswerBox(main, butMsg);
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(missing); }));
  const std::string file = ReadFile("favs.snr");
  EXPECT_EQ(file.find("2000000001"), std::string::npos) << file;
  EXPECT_EQ(RowCount(List(main)), 1);

  // Del on the key of a group that is not on show brings it there; it is deleted by the next press.
  HWND evening = Control(main, butFavs + 1);
  ASSERT_TRUE(ClickUntil(MiddleOf(evening), [&] { return FocusOf(main) == evening; }));
  PressKey(main, '1', Modifier::Alt);
  ASSERT_TRUE(Listing(main, "Morning"));
  PressKey(main, VK_DELETE);
  EXPECT_TRUE(Listing(main, "Evening"));
  EXPECT_EQ(ReadFile("favs.snr"), file);
  PressKey(main, VK_DELETE);
  EXPECT_TRUE(Listing(main, "Your Recent"));
  EXPECT_EQ(TextOf(Control(main, butFavs)), "Morning");
}

TEST_F(GroupTest, TheKeyboardReachesEveryGroupAndTheSearch) {
  HWND main = MainWithGroups("Morning\t\r\nEvening\t\r\n");
  for (int round = 0; round < 2; ++round) {  // letting go of Alt must leave the next key alone
    PressKey(main, '1', Modifier::Alt);
    EXPECT_TRUE(Listing(main, "Morning"));
    PressKey(main, '2', Modifier::Alt);
    EXPECT_TRUE(Listing(main, "Evening"));
  }
  PressKey(main, 'F', Modifier::Control);
  HWND words = Control(main, txtQuickSearch);
  EXPECT_TRUE(WaitUntil([&] { return IsChild(words, FocusOf(main)) != FALSE; }));
  PressKey(main, VK_DOWN, Modifier::Alt);
  EXPECT_TRUE(WaitUntil([&] { return SendMessageW(words, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
  PressKey(main, VK_ESCAPE);
  EXPECT_TRUE(WaitUntil([&] { return SendMessageW(words, CB_GETDROPPEDSTATE, 0, 0) == 0; }));
  PressKey(main, '1', Modifier::Alt);
  EXPECT_TRUE(Listing(main, "Morning"));
  EXPECT_TRUE(WaitUntil([&] { return FocusOf(main) == List(main); })) << "its pane is gone";
}

}  // namespace
}  // namespace sonaro::desktop
