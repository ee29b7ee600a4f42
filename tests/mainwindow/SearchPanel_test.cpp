#include "mainwindow/SearchPanel.h"

#include "fakes/FakeCommands.h"
#include "mainwindow/Models.h"

namespace sonaro {
namespace {

class SearchPanelTest : public Models {
 protected:
  void LoadKinds(std::string_view text) {
    files.Put("/d/searchst.snr", text);
    panel.LoadSearchKinds("built in");
  }
  std::string KindNames() const {
    std::string names;
    for (const SearchKind& kind : panel.Kinds()) names += kind.caption + "=" + kind.name + ";";
    return names;
  }

  FakeCommands tray;
  SearchPanel panel{data, settings, listing, tray};
};

TEST_F(SearchPanelTest, KindsAreTheLinesOfTheFileAtMostSix) {
  LoadKinds("Stations\tFindStation\r\nShows\tWeb\thttp://s/?q=<<SearchWord>>\r\n\rJust a caption\n");
  EXPECT_EQ(KindNames(), "Stations=FindStation;Shows=Web;Just a caption=;");
  EXPECT_EQ(panel.Kinds()[1].urlTemplate, "http://s/?q=<<SearchWord>>");
  LoadKinds("1\ta\n2\ta\n3\ta\n4\ta\n5\ta\n6\ta\n7\ta\n");
  EXPECT_EQ(panel.Kinds().size(), 6U);
  LoadKinds("");
  EXPECT_EQ(KindNames(), "built in=FindStation;");
}

TEST_F(SearchPanelTest, ASearchOfTheDirectoryKeepsItsWordsAndTellsTheTray) {
  LoadKinds("Stations\tFindStation\n");
  for (const char* nothing : {"", "   ", " \t\r\n"}) {
    EXPECT_EQ(panel.FindStation(nothing, 0, true), SearchPanel::Outcome::Nothing);
  }
  EXPECT_EQ(settings.Setting("SearchList"), "");
  EXPECT_EQ(panel.LastSearch(), SearchPanel::LastKind::None);

  EXPECT_EQ(panel.FindStation("  rock\t jazz ", 0, true), SearchPanel::Outcome::Stations);
  EXPECT_EQ(Shown(), "S4 ");
  EXPECT_EQ(panel.FindStation("Polka", 0, true), SearchPanel::Outcome::Stations);
  EXPECT_EQ(panel.FindStation("ROCK  jazz", 0, false), SearchPanel::Outcome::Stations);
  EXPECT_EQ(settings.Setting("SearchList"), "\tPolka\tROCK  jazz\t");
  EXPECT_EQ(panel.History(), (std::vector<std::string>{"Polka", "ROCK  jazz"}));
  EXPECT_EQ(tray.told, (std::vector<std::string>{"SearchResults\t4 \trock  jazz", "SearchResults\t\tPolka",
                                                 "SearchResults\t1 2 3 4 \tROCK  jazz"}));
  EXPECT_EQ(panel.LastSearch(), SearchPanel::LastKind::Station);
  EXPECT_EQ(listing.State().view, View::List);
}

TEST_F(SearchPanelTest, PinnedSearchesStandBeforeThePastOnesAndOutsideTheirSetting) {
  LoadKinds("");
  panel.TogglePinned("  ");
  for (const char* text : {"rock", "jazz", "polka"}) panel.FindStation(text, 0, true);
  panel.TogglePinned(" Jazz\t");
  panel.TogglePinned("blues bar");
  EXPECT_EQ(panel.Searches(), (std::vector<std::string>{"blues bar", "Jazz", "rock", "polka"}));
  EXPECT_EQ(settings.Setting("SearchList"), "\trock\tjazz\tpolka\t");
  EXPECT_EQ(settings.Setting("PinnedSearches"), "\tJazz\tblues bar\t");
  EXPECT_TRUE(panel.IsPinned("jazz "));
  panel.TogglePinned("jazz");
  EXPECT_FALSE(panel.IsPinned("jazz"));
  EXPECT_EQ(panel.Searches(), (std::vector<std::string>{"blues bar", "rock", "jazz", "polka"}));
}

TEST_F(SearchPanelTest, AWebSearchFillsTheTemplateAndLeavesTheListAlone) {
  LoadKinds(
      "Stations\tFindStation\nShows\tWeb\thttp://s/?q=<<SearchWord>>&o=<<SearchOpt>>&again=<<SearchWord>>\n"
      "Plain\tWeb\thttp://p/<<SearchWord>>\n");
  listing.ShowRanking(Ranking::NewStations);
  listing.ShowView(View::Search);
  EXPECT_EQ(panel.FindStation(" <<SearchOpt>> & é ", 1, false), SearchPanel::Outcome::Web);
  EXPECT_EQ(panel.WebAddress(), "http://s/?q=%3C%3CSearchOpt%3E%3E+%26+%C3%A9&o=any&again=<<SearchWord>>");
  EXPECT_EQ(panel.FindStation("x", 5, true), SearchPanel::Outcome::Web) << "beyond the end: the last kind";
  EXPECT_EQ(panel.WebAddress(), "http://p/x");
  EXPECT_EQ(panel.LastSearch(), SearchPanel::LastKind::Web);
  EXPECT_EQ(listing.State().view, View::Search);
  EXPECT_EQ(listing.State().middle, Middle::WebSearch);
  EXPECT_EQ(Shown(), "S3 S1 ");
  EXPECT_TRUE(tray.told.empty());
  EXPECT_EQ(settings.Setting("SearchList"), "");
  listing.ShowListView();
  EXPECT_EQ(listing.State().middle, Middle::StationList);
  listing.ShowView(View::Search);
  EXPECT_EQ(listing.State().middle, Middle::WebSearch) << "what was asked last";
  panel.FindStation("rock", 0, true);
  listing.ShowView(View::Search);
  EXPECT_EQ(listing.State().middle, Middle::StationList);
}

}  // namespace
}  // namespace sonaro
