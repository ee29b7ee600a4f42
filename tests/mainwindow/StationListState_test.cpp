#include "mainwindow/StationListState.h"

#include "mainwindow/Models.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {
namespace {

class StationListingTest : public Models {
 protected:
  std::string Caption(int id) const { return strings.Load(id); }
};

TEST_F(StationListingTest, AListOfIdentifiersKeepsItsOrderAndLeavesOutTheUnknown) {
  StationRows rows(source);
  struct Case {
    const char* ids;
    const char* keys;
  };
  const Case cases[] = {
      {"", ""},         {" ", ""},        {"3 1 ", "S3S1"}, {"3 1", "S3S1"}, {"9 3  x 1 ", "S3S1"},
      {"2 2 ", "S2S2"}, {"0 -1 4 ", "S4"}};
  for (const Case& c : cases) {
    lists.FillListFromIds(c.ids, rows);
    std::string keys;
    for (const StationKey& key : rows.Keys()) keys += key.RowKey();
    EXPECT_EQ(keys, c.keys) << c.ids;
    EXPECT_EQ(rows.Selected().has_value(), rows.Count() > 0);
  }
  lists.FillListFromIds("1 ", rows);
  EXPECT_EQ(rows.Cell(0, 3), "Jazz");
  EXPECT_EQ(rows.At(0).Symbol(), 4);
}

TEST_F(StationListingTest, EachRankingSetsModeAndCaption) {
  struct Case {
    Ranking ranking;
    const char* mode;
    int caption;
    const char* shown;
  };
  const Case cases[] = {
      {Ranking::NewStations, "New", IDS_RANKING_NEW_STATIONS, "S3 S1 "},
      {Ranking::MostPop, "MostPop", IDS_RANKING_MOST_POP, "S2 S4 S2 "},
      {Ranking::BestSpeed, "BestSpeed", IDS_RANKING_BEST_SPEED, ""},
      {Ranking::MostReliable, "MostReliable", IDS_RANKING_MOST_RELIABLE, "S4 S3 "},
  };
  for (const View from : {View::List, View::YourSonaro, View::Search}) {
    for (const Case& c : cases) {
      listing.ShowView(from);
      listing.ShowRanking(c.ranking);
      EXPECT_EQ(Shown(), c.shown);
      EXPECT_EQ(listing.State().view, View::List);
      EXPECT_EQ(listing.State().middle, Middle::StationList);
      EXPECT_EQ(listing.State().listingMode, c.mode);
      EXPECT_EQ(listing.State().caption, Caption(c.caption));
      EXPECT_EQ(listing.State().ranking, c.ranking);
    }
  }
}

TEST_F(StationListingTest, TheListingModeSurvivesOtherPanelsAndRebuildsTheList) {
  const auto comeBackFromTheTree = [this] {
    listing.ShowView(View::Browse);
    listing.treeBrowse_NodeClick(NodeWithKey("E1"));
    EXPECT_EQ(Shown(), "S4 S1 S2 ");
    listing.ShowListView();
    return Shown();
  };
  listing.ShowRanking(Ranking::NewStations);
  EXPECT_EQ(comeBackFromTheTree(), "S3 S1 ");
  listing.ShowRecent();
  EXPECT_EQ(comeBackFromTheTree(), "S3 P1 S1 ");
  EXPECT_EQ(listing.State().caption, Caption(IDS_LISTING_YOUR_RECENT));
  listing.ShowFavoriteGroup(0);
  EXPECT_EQ(comeBackFromTheTree(), "S4 P1 S1 ");
  EXPECT_EQ(listing.State().caption, "Jazz");
  groups.Remove(0);
  EXPECT_EQ(comeBackFromTheTree(), "S4 S1 S2 ") << "the group is gone: nothing is rebuilt";
  listing.ShowSearch("rock", true);
  const std::string found = Shown();
  EXPECT_EQ(found, "S2 S3 S4 ");
  EXPECT_EQ(comeBackFromTheTree(), found);
  EXPECT_EQ(listing.State().caption, FormatText(Caption(IDS_LISTING_SEARCH), {"rock"}));
  listing.Rows().Select(2);
  listing.ShowView(View::BrowseLoc);
  listing.ShowListView();
  EXPECT_EQ(listing.Rows().Selected(), 2U) << "it was still there";
  listing.ShowSearch("polka", true);
  EXPECT_EQ(comeBackFromTheTree(), "X ");
}

TEST_F(StationListingTest, ANodeFillsTheListAndLeavesTheTreeOnShow) {
  listing.ShowView(View::Browse);
  EXPECT_EQ(tree.Mode(), BrowseMode::ByCategory);
  listing.treeBrowse_NodeClick(NodeWithKey("O1"));
  EXPECT_EQ(Shown(), "P1 ");
  listing.treeBrowse_NodeClick(NodeWithKey("E1"));
  EXPECT_EQ(Shown(), "S4 S1 S2 ");
  EXPECT_EQ(listing.State().view, View::Browse);
  EXPECT_EQ(listing.State().currentNodeTag, "4 1 77 2");
  EXPECT_EQ(listing.State().caption, "Jazz");
  for (const char* key : {"M1", "E2"}) {
    listing.treeBrowse_NodeClick(NodeWithKey("E1"));
    listing.treeBrowse_NodeClick(NodeWithKey(key));
    EXPECT_EQ(Shown(), "") << key;
    EXPECT_FALSE(listing.Rows().SelectedKey());
  }
  listing.ShowView(View::BrowseLoc);
  EXPECT_EQ(tree.Mode(), BrowseMode::ByLocation);
}

TEST_F(StationListingTest, ASearchThatFindsNothingSaysSo) {
  listing.ShowSearch("rock JAZZ", true);
  EXPECT_EQ(Shown(), "S4 ");
  EXPECT_EQ(listing.LastFound(), KeysOf("4"));
  listing.ShowSearch("rock blues", false);
  EXPECT_EQ(listing.LastFound(), KeysOf("2 3 4"));
  listing.ShowSearch("polka", true);
  EXPECT_EQ(Shown(), "X ");
  EXPECT_TRUE(listing.LastFound().empty());
  EXPECT_FALSE(listing.Rows().SelectedKey());
  EXPECT_EQ(listing.Rows().At(0).name, Caption(IDS_LISTING_NO_STATIONS));
  EXPECT_EQ(listing.State().listingMode, "LastSearch");
}

TEST_F(StationListingTest, TheSearchFormStaysBesideWhatItFound) {
  listing.ShowRanking(Ranking::MostPop);
  listing.ShowView(View::Search);
  listing.ShowSearch("rock", true);
  EXPECT_EQ(listing.State().view, View::List);
  EXPECT_EQ(listing.State().Front(), View::Search);
  listing.ShowView(View::List);
  EXPECT_EQ(listing.State().Front(), View::List);
  EXPECT_EQ(Shown(), "S2 S3 S4 ");
  listing.ShowSearch("rock", true);
  listing.ShowRanking(Ranking::MostPop);
  EXPECT_EQ(listing.State().Front(), View::List);
}

TEST_F(StationListingTest, WhatIsTypedShowsMatchesAndGivesTheListBack) {
  listing.ShowFavoriteGroup(0);
  listing.ShowView(View::Search);
  listing.ShowMatches("j");
  listing.ShowMatches("jazz");
  EXPECT_EQ(Shown(), "S1 S4 ");
  EXPECT_EQ(listing.State().caption, FormatText(Caption(IDS_LISTING_MATCHES), {"jazz"}));
  EXPECT_EQ(listing.State().listingMode, "favJazz");
  listing.StationsChanged();
  EXPECT_EQ(Shown(), "S1 S4 ");
  listing.ShowMatches("");
  EXPECT_EQ(Shown(), "S4 P1 S1 ");
  EXPECT_EQ(listing.State().caption, "Jazz");
  EXPECT_EQ(listing.State().missing, KeysOf("77"));
  listing.ShowSearch("rock", true);
  listing.ShowMatches("polka");
  EXPECT_EQ(Shown(), "X ");
  listing.ShowView(View::List);
  EXPECT_EQ(Shown(), "S2 S3 S4 ") << "what the search found comes back with its list";
}

TEST_F(StationListingTest, AFilterNarrowsTheListUntilItShowsSomethingElse) {
  listing.ShowFavoriteGroup(0);
  listing.Rows().Select(2);
  listing.NarrowByWords(" jazz  ACID");
  EXPECT_EQ(Shown(), "S1 ");
  EXPECT_EQ(listing.Rows().SelectedKey(), Key("1"));
  EXPECT_EQ(listing.Rows().FilledCount(), 3U);
  EXPECT_FALSE(listing.Rows().InOwnOrder());
  listing.NarrowByWords("garage");
  EXPECT_EQ(Shown(), "P1 ");
  EXPECT_EQ(listing.Rows().SelectedKey(), Key("P1")) << "the selected one is not shown: the first one";
  groups.AddStations(0, KeysOf("3"));
  listing.GroupsChanged();
  EXPECT_EQ(Shown(), "P1 ") << "the same list, filled again";
  listing.NarrowByWords("polka");
  EXPECT_EQ(Shown(), "");
  listing.NarrowByWords(" ");
  EXPECT_EQ(Shown(), "S4 P1 S1 S3 ");
  listing.NarrowByWords("jazz");
  listing.ShowRecent();
  EXPECT_EQ(Shown(), "S3 P1 S1 ");
  EXPECT_EQ(listing.State().narrowedBy, "");
}

TEST_F(StationListingTest, ARefillKeepsTheSelectedStation) {
  listing.ShowFavoriteGroup(0);
  listing.Rows().Select(2);
  groups.MoveStation(0, 3, 0);
  listing.GroupsChanged();
  EXPECT_EQ(Shown(), "S1 S4 P1 ");
  EXPECT_EQ(listing.Rows().Selected(), 0U);
  groups.Add("Many", Key("1"));
  groups.AddStations(3, KeysOf("2 77 3 4"));
  listing.ShowFavoriteGroup(3);
  listing.Rows().Select(1);
  for (const char* next : {"S3", "S4", "S1"}) {  // the last one gone: the last
    groups.RemoveStation(3, listing.Rows().SelectedKey());
    listing.GroupsChanged();
    EXPECT_EQ(listing.Rows().SelectedKey().RowKey(), next);
  }
  listing.treeBrowse_NodeClick(BrowseNode{"E1", "Jazz", "1 2"});
  listing.treeBrowse_NodeClick(BrowseNode{"E9", "Other", "3 2"});
  EXPECT_EQ(listing.Rows().SelectedKey(), Key("3")) << "another list begins at its first row";
}

TEST_F(StationListingTest, WhatTheGuideDoesNotKnowIsLeftOutAndCounted) {
  listing.ShowFavoriteGroup(0);
  EXPECT_EQ(Shown(), "S4 P1 S1 ");
  EXPECT_EQ(listing.State().missing, KeysOf("77"));
  personal.Delete(1);
  listing.StationsChanged();
  EXPECT_EQ(listing.State().missing, KeysOf("77 P1"));
  EXPECT_EQ(groups.Keys(0), KeysOf("4 77 P1 1")) << "they stay";
  listing.ShowSearch("rock", true);
  EXPECT_TRUE(listing.State().missing.empty());

  DataFolder elsewhere(files, "/none", '/');
  StatList none(elsewhere);
  StationRows rows(source);
  StationSource nowhere(none, personal, BuiltInAlphabets(), strings);
  EXPECT_TRUE(
      StationListFiller(none, nowhere, recent, strings).FillListFromGroup(KeysOf("4 77"), rows).empty())
      << "a guide that cannot be read says nothing about them";
}

TEST_F(StationListingTest, ThePersonalPageListsYourStationsAndLeavesTheListingMode) {
  listing.ShowRanking(Ranking::NewStations);
  listing.ShowView(View::PersonalPage);
  EXPECT_EQ(Shown(), "P1 ");
  EXPECT_EQ(listing.State().caption, Caption(IDS_LISTING_YOUR_STATIONS));
  listing.ShowListView();
  EXPECT_EQ(Shown(), "S3 S1 ");
}

TEST_F(StationListingTest, TheValueBesideTheNamesIsTheOneOfTheOrder) {
  listing.ShowRanking(Ranking::BestSpeed);
  EXPECT_EQ(listing.ValueShown(), 0) << "not wanted";
  listing.ShowValues(true);
  EXPECT_EQ(listing.ValueShown(), 6);
  listing.Rows().SortBy(0, SortOrder::Ascending);
  EXPECT_EQ(listing.ValueShown(), 6);
  listing.Rows().SortBy(5, SortOrder::Descending);
  EXPECT_EQ(listing.ValueShown(), 5);
  listing.Rows().SortBy(8, SortOrder::Descending);
  EXPECT_EQ(listing.ValueShown(), 0) << "the symbols show it";
  listing.Rows().EndSort();
  listing.ShowRanking(Ranking::NewStations);
  EXPECT_EQ(listing.ValueShown(), 4);
}

TEST_F(StationListingTest, AGroupCanBeShownInPlace) {
  listing.ShowView(View::YourSonaro);
  EXPECT_EQ(listing.State().middle, Middle::EventPage);
  listing.ShowGroupInPlace(2);
  EXPECT_EQ(Shown(), "S2 ");
  EXPECT_EQ(listing.State().view, View::YourSonaro);
  EXPECT_EQ(listing.State().middle, Middle::StationList);
  listing.ShowFavoriteGroup(1);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(listing.State().view, View::List);
  listing.ShowFavoriteGroup(9);
  EXPECT_EQ(listing.State().group, "Empty") << "no such group";
}

}  // namespace
}  // namespace sonaro
