// Browsing, ranking, sorting, searching and groups in the main window.
#include <algorithm>

#include "MainWindowTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

using BrowseTest = MainWindowTest;

class WholeGuideTest : public BrowseTest {
 public:
  WholeGuideTest() : BrowseTest(Directory::Whole) {}
};

TEST_F(WholeGuideTest, RankingsAndSortsOfTheRealDirectory) {
  HWND main = StartAndShowMain();
  for (const auto& [command, caption] :
       {std::pair(mnuActionNewStations, "New Stations"), {mnuActionMostReliable, "Most Reliable"}}) {
    Command(main, command);
    EXPECT_TRUE(Listing(main, caption)) << caption;
    EXPECT_GT(RowCount(List(main)), 100) << caption;
    EXPECT_EQ(SelectedRows(List(main)), std::vector<int>{0}) << caption;
  }
  const auto sorted = [&] {
    const auto types = ColumnTexts(List(main), 2);
    return std::is_sorted(types.begin(), types.end());
  };
  const POINT header = MiddleOf(Control(main, butSplit3));
  EXPECT_TRUE(WaitUntil([&] {  // the focus that comes late takes a menu away as it ends a drag
    ClickAt(header.x, header.y, true);
    Running().WaitForShownWindow("#32768", "", std::chrono::seconds(2));
    PressKey(main, 'M');
    return WaitUntil(sorted, std::chrono::seconds(2));
  }));
  Click(Control(main, butSplit3));
  EXPECT_TRUE(WaitUntil(sorted));  // a second click does not turn the order round
  SaveShot("sorted");
  Command(main, mnuActionMostPoular);
  EXPECT_TRUE(sorted()) << "the sort stays in force";
  Click(Control(main, butOwnOrder));
  EXPECT_FALSE(sorted());
  EXPECT_FALSE(IsShown(Control(main, butOwnOrder)));
}

TEST_F(WholeGuideTest, AnEntryOfTheTreeFillsTheListAndTheTreeStays) {
  HWND main = StartAndShowMain("DoWhat=BringBrowse");
  HWND tree = Control(main, treeBrowse);
  ASSERT_TRUE(WaitUntil([&] { return IsShown(tree) && TreeChildren(tree).size() > 10; }));
  EXPECT_EQ(TreeText(tree, TreeChildren(tree).back()), "Your Stations");
  const HTREEITEM jazz = FindTreeItem(tree, {"Jazz"});
  ASSERT_NE(jazz, nullptr);
  ClickTreeItem(tree, jazz);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 0; }));
  const auto entries = TreeChildren(tree, jazz);
  ASSERT_FALSE(entries.empty());
  EXPECT_NE(TreeView_GetItemState(tree, jazz, TVIS_EXPANDED) & TVIS_EXPANDED, 0U);
  EXPECT_EQ(TreeText(tree, entries.front()), " All Jazz");
  ClickTreeItem(tree, entries.front());
  EXPECT_TRUE(Listing(main, "All Jazz"));
  EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 20; }));
  EXPECT_TRUE(IsShown(tree));
  SaveShot("jazz");
  Command(main, mnuPersonalAdd);
  HWND dialog = Dialog("frmPersonalStation");
  SetText(Control(dialog, txtStationName), "Garage");
  SetText(Control(dialog, txtLink), "http://127.0.0.1:9/");
  EndWith(main, dialog, butOKIt);
  EXPECT_EQ(TreeView_GetSelection(tree), entries.front()) << "the tree stays as it is";
  EXPECT_GT(RowCount(List(main)), 20);
}

TEST_F(WholeGuideTest, TheListFollowsWhatIsTyped) {
  HWND main = StartAndShowMain("DoWhat=BringSearch");
  HWND words = Control(main, txtQuickSearch);
  ASSERT_TRUE(WaitUntil([&] { return IsShown(words); }));
  TypeText(main, "jazz");
  EXPECT_TRUE(Listing(main, "Best Matches: jazz"));
  const int matches = RowCount(List(main));
  EXPECT_GT(matches, 20);
  EXPECT_LE(matches, 200);
  SaveShot("typed");
  PressKey(main, VK_RETURN);
  EXPECT_TRUE(Listing(main, "Search: jazz"));
  EXPECT_GT(RowCount(List(main)), matches) << "all of them";
  EXPECT_TRUE(IsShown(words)) << "the form stays, with its words";
  EXPECT_EQ(TextOf(words), "jazz");
  SaveShot("found");
  SetText(words, "");
  Click(Control(main, butTabs + 1));
  EXPECT_FALSE(IsShown(words));
  EXPECT_TRUE(Listing(main, "Search: jazz")) << "it is what the list view shows";
}

TEST_F(WholeGuideTest, AFilterNarrowsAListUntilEsc) {
  HWND main = MainWithStations();
  const auto all = ColumnTexts(List(main));
  PressKey(main, 'L', Modifier::Control);
  ASSERT_TRUE(WaitUntil([&] { return FocusOf(main) == Control(main, txtFilter); }));
  TypeText(main, "jazz");
  EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) < static_cast<int>(all.size()); }));
  EXPECT_GT(RowCount(List(main)), 0);
  EXPECT_NE(TextOf(Control(main, lblCount)).find(" of "), std::string::npos);
  SaveShot("filtered");
  PressKey(main, VK_ESCAPE);
  EXPECT_TRUE(WaitUntil([&] { return ColumnTexts(List(main)) == all; }));
  EXPECT_EQ(FocusOf(main), List(main));
  EXPECT_FALSE(IsShown(Control(main, txtFilter)));
}

TEST_F(WholeGuideTest, JazzStationsOfPolandInThreeClicks) {
  HWND main = StartAndShowMain("DoWhat=BringBrowse");
  HWND tree = Control(main, treeBrowse);
  ASSERT_TRUE(WaitUntil([&] { return IsShown(tree) && TreeChildren(tree).size() > 10; }));
  ClickTreeItem(tree, FindTreeItem(tree, {"Jazz", " All Jazz"}));
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 500; }));
  const int jazz = RowCount(List(main));
  const auto allOfPoland = [&] {
    for (const std::string& place : ColumnTexts(List(main), 1)) {
      if (place.find("Poland") == std::string::npos) return false;
    }
    return RowCount(List(main)) > 0;
  };
  Click(Control(main, butFilter));
  ASSERT_TRUE(ChooseItem(Control(main, cmbListFilter), "Poland"));
  EXPECT_TRUE(WaitUntil(allOfPoland));
  EXPECT_LT(RowCount(List(main)), jazz / 10);
  // It holds in the next list and after a restart, until it is taken away.
  Command(main, mnuActionMostPoular);
  EXPECT_TRUE(Listing(main, "Most Popular"));
  EXPECT_TRUE(WaitUntil(allOfPoland));
  Command(main, mnuExit);
  EXPECT_TRUE(Sonaro().WaitForEnd().has_value());
  main = StartAndShowMain();
  EXPECT_TRUE(WaitUntil(allOfPoland));
  EXPECT_EQ(ChosenText(Control(main, cmbListFilter)), "Poland");
  const int poland = RowCount(List(main));
  Click(Control(main, butEndListFilter));
  EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) > poland; }));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(Control(main, cmbListFilter)); }));
}

TEST_F(BrowseTest, CtrlTabWalksThroughTheTabsAndF6ThroughTheColumns) {
  HWND main = StartAndShowMain();
  const auto focused = [&](int id) { return WaitUntil([&] { return FocusOf(main) == Control(main, id); }); };
  ASSERT_TRUE(focused(lstFavs));
  for (const int id : {butGoMediaLinkOneIt, butNewStations + 1, lstFavs}) {
    PressKey(main, VK_F6);
    EXPECT_TRUE(focused(id)) << id;
  }
  PressKey(main, VK_F6, Modifier::Shift);
  EXPECT_TRUE(focused(butNewStations + 1)) << "the ranking on show";
  for (const int tab : {2, 3}) {
    PressKey(main, VK_TAB, Modifier::Control);
    EXPECT_TRUE(WaitUntil([&] { return IsChecked(Control(main, butTabs + tab)); })) << tab;
  }
}

TEST_F(BrowseTest, SomethingElsePlaysAnotherStationOfTheList) {
  HWND main = MainWithStations();
  Command(main, mnuSomethingElse);
  EXPECT_EQ(AsxLines(1).size(), 1u);
  EXPECT_TRUE(WaitUntil([&] { return SelectedRows(List(main)) != std::vector<int>{0}; }));
}

TEST_F(BrowseTest, SeveralRowsGoIntoAGroupAndOutOfIt) {
  HWND main = MainWithStations();
  NewGroup(main, "Morning");
  HWND list = List(main);
  SelectRow(list, 0);
  PressKey(main, VK_DOWN, Modifier::Shift);
  PressKey(main, VK_DOWN, Modifier::Shift);
  ASSERT_TRUE(WaitUntil([&] { return SelectedRows(list) == std::vector<int>{0, 1, 2}; }));
  SaveShot("several");
  Command(main, mnuActionStationToGroup);
  Click(Control(main, butFavs));
  EXPECT_TRUE(WaitUntil([&] { return RowCount(list) == 3; }));
  EXPECT_TRUE(ClickUntil(RowAt(main, 1), [&] { return FocusOf(main) == list; }));
  PressKey(main, 'A', Modifier::Control);
  EXPECT_TRUE(WaitUntil([&] { return SelectedRows(list).size() == 3; }));
  PressKey(main, VK_DELETE);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(list) == 0; }));
  PressKey(main, 'Z', Modifier::Control);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(list) == 3; }));
  const auto names = ColumnTexts(list);
  Command(main, mnuExit);
  EXPECT_TRUE(Sonaro().WaitForEnd().has_value());
  main = StartAndShowMain();
  Click(Control(main, butFavs));
  EXPECT_TRUE(WaitUntil([&] { return ColumnTexts(List(main)) == names; })) << "what was undone is saved";
}

}  // namespace
}  // namespace sonaro::desktop
