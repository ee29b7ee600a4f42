#include "mainwindow/BrowseTree.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeSystemInfo.h"

namespace sonaro {
namespace {

class BrowseTreeTest : public testing::Test {
 protected:
  // The nodes below `node`, one line each, indented by level: "key text [tag]".
  std::string Below(int node, int level = 0) const {
    const BrowseNode& at = tree.Node(node);
    std::string lines =
        std::string(static_cast<std::size_t>(level), '.') + at.key + " " + at.text + " [" + at.tag + "]\n";
    for (const int child : at.children) lines += Below(child, level + 1);
    return lines;
  }
  std::string All() const {
    std::string lines;
    for (const int root : tree.Roots()) lines += Below(root);
    return lines;
  }

  FakeSystemInfo system;
  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  BrowseTree tree{data, [this](std::string_view text) { return system.SortKey(text); }, "Your Stations"};
};

TEST_F(BrowseTreeTest, BuildsCategoriesWithTheirEntries) {
  files.Put("/d/cat.snr", "1\tRock\trock\tR\r\n2\tBlues\tblues\tB\ttail\r\n");
  files.Put("/d/rock.snr",
            "10\tx\tPunk\t0\t5 6 7\r\n"
            "11\t\talternative\t0\t\r\n"
            "12\t\tSka\t10\t8\r\n"
            "13\t\tOska\t10\t9 \ttail\r\n");
  tree.FillBrowseTree(BrowseMode::ByCategory);
  // Categories stand in the order of the file, entries by text; "Your Stations" is last.
  EXPECT_EQ(All(),
            "M1 Rock [1rock]\n"
            ".R11 alternative []\n"
            ".R10 Punk [5 6 7]\n"
            "..R13 Oska [9 \ttail]\n"
            "..R12 Ska [8]\n"
            "M2 Blues [2blues]\n"
            "O1 Your Stations [O]\n");
  EXPECT_EQ(tree.Node(tree.Find("R10")).stationCount, 3U);
  EXPECT_EQ(tree.Node(tree.Find("M1")).stationCount, 5U);
}

TEST_F(BrowseTreeTest, ADamagedLineEndsItsCategoryOnly) {
  files.Put("/d/cat.snr", "no tabs at all\r\n1\tRock\trock\tR\r\n2\tPop\tpop\tP\r\n3\tShort line\tx\r\n");
  files.Put("/d/rock.snr", "1\t\tFirst\t0\t1\r\n2\t\tThree tabs\t0\r\n3\t\tNever read\t0\t3\r\n");
  files.Put("/d/pop.snr", "1\t\tPop\t0\t4\r\n");
  tree.FillBrowseTree(BrowseMode::ByCategory);
  EXPECT_EQ(All(), "M1 Rock [1rock]\n.R1 First [1]\nM2 Pop [2pop]\n.P1 Pop [4]\nO1 Your Stations [O]\n");
}

TEST_F(BrowseTreeTest, AnEntryHangsUnderAnEarlierEntryOfItsOwnFile) {
  // Both categories give the same prefix, so their entries' keys are alike.
  files.Put("/d/cat.snr", "1\tA\ta\tE\n2\tB\tb\tE\n");
  files.Put("/d/a.snr", "5\t\tFive of A\t0\t1\n7\t\tToo early\t8\t3\n8\t\tEight\t0\t4\n6\t\tSix\t x\t5\n");
  files.Put("/d/b.snr", "9\t\tOrphan\t8\t1\n5\t\tFive of B\t0\t2\n6\t\tSix of B\t5\t3\n");
  tree.FillBrowseTree(BrowseMode::ByCategory);
  EXPECT_EQ(All(),
            "M1 A [1a]\n.E8 Eight [4]\n.E5 Five of A [1]\n.E6 Six [5]\n"
            "M2 B [2b]\n.E5 Five of B [2]\n..E6 Six of B [3]\n"
            "O1 Your Stations [O]\n");
}

TEST_F(BrowseTreeTest, EntriesStandInTheOrderOfTheLanguage) {
  files.Put("/d/cat.snr", "1\tPlaces\tp\tP\n");
  files.Put(
      "/d/p.snr",
      "1\t\tZürich\t0\t\n2\t\tŁódź\t0\t\n3\t\tFaro\t0\t\n4\t\tÉvora\t0\t\n5\t\tLodz\t0\t\n6\t\tLyon\t0\t\n"
      "7\t\t All of It\t0\t\n");
  tree.FillBrowseTree(BrowseMode::ByCategory);
  std::string texts;
  for (const int child : tree.Node(tree.Find("M1")).children) texts += tree.Node(child).text + " ";
  EXPECT_EQ(texts, " All of It Évora Faro Lodz Łódź Lyon Zürich ");
}

TEST_F(BrowseTreeTest, AListNestedWithoutEndLosesNoStation) {
  constexpr int kDepth = 14000;
  std::string list;
  for (int entry = 1; entry <= kDepth; ++entry) {
    list +=
        std::to_string(entry) + "\t\tE\t" + std::to_string(entry - 1) + "\t" + std::to_string(entry) + "\n";
  }
  files.Put("/d/cat.snr", "1\tDeep\tdeep\tD\n2\tAfter\tafter\tA\n");
  files.Put("/d/deep.snr", list);
  files.Put("/d/after.snr", "1\t\tFine\t0\t7\n");
  tree.FillBrowseTree(BrowseMode::ByCategory);
  EXPECT_EQ(tree.Node(tree.Find("M1")).stationCount, std::size_t{kDepth});
  const BrowseNode& last = tree.Node(tree.Find("D" + std::to_string(kDepth)));
  EXPECT_EQ(last.level, BrowseNode::kLowestLevel);
  EXPECT_EQ(last.tag, std::to_string(kDepth));
  EXPECT_EQ(tree.Node(tree.Find("D" + std::to_string(BrowseNode::kLowestLevel))).level,
            BrowseNode::kLowestLevel)
      << "what is not too deep stays where it is";
  EXPECT_EQ(tree.Node(tree.Find("A1")).stationCount, 1U);
}

TEST_F(BrowseTreeTest, IsRebuiltOnlyWhenTheOtherModeIsAskedFor) {
  files.Put("/d/cat.snr", "1\tRock\trock\tR\n");
  files.Put("/d/catloc.snr", "1\tAfrica\tafr\tA\n");
  EXPECT_EQ(tree.Mode(), BrowseMode::NotBuilt);
  EXPECT_TRUE(tree.Show(BrowseMode::ByCategory));
  files.Put("/d/cat.snr", "");
  EXPECT_FALSE(tree.Show(BrowseMode::ByCategory));
  EXPECT_EQ(All(), "M1 Rock [1rock]\nO1 Your Stations [O]\n");
  EXPECT_TRUE(tree.Show(BrowseMode::ByLocation));
  EXPECT_EQ(All(), "M1 Africa [1afr]\nO1 Your Stations [O]\n");
}

TEST_F(BrowseTreeTest, MissingFilesLeaveTheirPartEmpty) {
  tree.FillBrowseTree(BrowseMode::ByLocation);
  EXPECT_EQ(All(), "O1 Your Stations [O]\n");
}

TEST_F(BrowseTreeTest, AClickListsWhatTheNodeStandsFor) {
  struct Case {
    const char* key;
    const char* tag;
    NodeClick::Fill fill;
    const char* ids;
  };
  const Case cases[] = {
      {"M1", "1rock", NodeClick::Fill::Nothing, ""},
      {"R1", "", NodeClick::Fill::Nothing, ""},
      {"O1", "O", NodeClick::Fill::PersonalStations, ""},
      {"R1", "5 6", NodeClick::Fill::Stations, "5 6 "},
  };
  for (const Case& c : cases) {
    BrowseNode node;
    node.key = c.key;
    node.tag = c.tag;
    const NodeClick click = BrowseTree::ClickOn(node);
    EXPECT_EQ(click.fill, c.fill) << c.key << c.tag;
    EXPECT_EQ(click.ids, c.ids);
  }
}

}  // namespace
}  // namespace sonaro
