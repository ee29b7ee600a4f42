#include "mainwindow/StationFilter.h"

#include <set>

#include "mainwindow/Models.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

using Part = StationFilter::Part;

class StationFilterTest : public Models {
 protected:
  StationFilterTest() {
    files.Put("/d/cat.snr", "1\tJazz\tjazz\tJ\n2\tRock\trock\tR\n");
    files.Put("/d/jazz.snr", "1\t\t All Jazz\t0\t4 1\n2\t\tAcid Jazz\t0\t1\n3\t\tA\t0\t4\n4\t\tAxe\t3\t4\n");
    files.Put("/d/rock.snr", "1\t\tPunk\t0\t2\n2\t\tGoth\t0\t4 2\n");
    files.Put("/d/catloc.snr", "1\tEurope\teu\tE\n2\tAsia\tas\tA\n");
    files.Put("/d/eu.snr", "1\t\tPoland\t0\t1 2 9\n2\t\tKraków\t1\t2\n3\t\tNorway\t0\t4\n");
    files.Put("/d/as.snr", "1\t\tGeorgia\t0\t3\n2\t\tAsia\t0\t\n");
    files.Put("/d/favs.snr", "All\t4 3 P1 1 2\n");
    groups.LoadFavoriteGroups();
    listing.ShowFavoriteGroup(0);
  }
  std::string With(Part part, std::string_view value) {
    filter.Set(part, value);
    listing.FilterChanged();
    return Shown();
  }
  std::string Texts(Part part) const {
    std::string texts;
    for (const StationFilter::Choice& choice : filter.Choices(part)) texts += choice.text + "|";
    return texts;
  }
};

TEST_F(StationFilterTest, ThePartsHoldTogetherAndGoOneByOne) {
  EXPECT_EQ(Shown(), "S4 S3 P1 S1 S2 ");
  EXPECT_EQ(With(Part::Place, "Europe"), "S4 P1 S1 S2 ");
  EXPECT_EQ(With(Part::Genre, "Jazz"), "S4 P1 S1 ");
  EXPECT_EQ(With(Part::Place, "Europe > Poland"), "P1 S1 ");
  EXPECT_EQ(With(Part::Place, "Europe > Poland > Kraków"), "P1 ");
  EXPECT_EQ(With(Part::Genre, "Rock > Punk"), "P1 S2 ");
  EXPECT_EQ(With(Part::Place, ""), "P1 S2 ");
  EXPECT_EQ(With(Part::Genre, ""), "S4 S3 P1 S1 S2 ");
  EXPECT_EQ(With(Part::BitRate, "64"), "P1 S1 S2 ") << "a bit rate that is not known is none";
  EXPECT_EQ(With(Part::BitRate, "96"), "P1 S1 ");
  EXPECT_EQ(With(Part::BitRate, ""), "S4 S3 P1 S1 S2 ");
  EXPECT_EQ(With(Part::Answers, "1"), "S4 P1 S1 ");
  EXPECT_EQ(listing.Rows().FilledCount(), 5U);
  EXPECT_EQ(With(Part::Genre, "Jazz > Not in this guide"), "P1 ");
}

TEST_F(StationFilterTest, HoldsInEveryListAndASortAndKeepsTheSelection) {
  listing.Rows().Select(4);
  EXPECT_EQ(With(Part::Place, "Europe > Poland"), "P1 S1 S2 ");
  EXPECT_EQ(listing.Rows().SelectedKey(), Key("2"));
  listing.Rows().SortBy(0, SortOrder::Descending);
  EXPECT_EQ(Shown(), "S2 P1 S1 ");
  listing.ShowRanking(Ranking::MostPop);
  EXPECT_EQ(Shown(), "S2 S2 ") << "the ranking names it twice";
  listing.ShowSearch("zzz", true);
  EXPECT_EQ(Shown(), "X ");
  listing.ShowRanking(Ranking::NewStations);
  EXPECT_EQ(Shown(), "S1 ");
  EXPECT_EQ(With(Part::Place, "Asia"), "S3 ");
  EXPECT_EQ(listing.Rows().SelectedKey(), Key("3")) << "the selected row went";
}

TEST_F(StationFilterTest, OffersCategoriesAndTheirEntriesByText) {
  // Neither the entry of all, by its blank or its name, nor one that only sorts others.
  EXPECT_EQ(Texts(Part::Genre), "Acid Jazz|Goth|Jazz|Punk|Rock|");
  EXPECT_EQ(Texts(Part::Place), "Asia|Europe|Georgia|Norway|Poland|");
  for (const StationFilter::Choice& choice : filter.Choices(Part::Place)) {
    EXPECT_NE(With(Part::Place, choice.value), "P1 ") << choice.value;
  }
  tree.Show(BrowseMode::ByCategory);
  EXPECT_EQ(StationFilter::ValueOf(tree, tree.Find("J4")), "Jazz > A > Axe");
  EXPECT_EQ(StationFilter::ShortText("Jazz > A > Axe"), "Axe");
  EXPECT_EQ(StationFilter::ValueOf(tree, tree.Find("O1")), "");
}

TEST_F(StationFilterTest, IsKeptAndReadAgainFromANewGuide) {
  With(Part::Place, "Europe > Poland");
  With(Part::Answers, "1");
  StationFilter next(data, settings, stations, FoldCase);
  EXPECT_EQ(next.Value(Part::Place), "Europe > Poland");
  EXPECT_EQ(next.Value(Part::Genre), "");
  EXPECT_EQ(next.Value(Part::Answers), "1");
  EXPECT_EQ(Shown(), "P1 S1 ");
  files.Put("/d/eu.snr", "7\t\tPoland\t0\t4\n");
  filter.GuideChanged();
  listing.StationsChanged();
  EXPECT_EQ(Shown(), "S4 P1 ");
  filter.TakeAllAway();
  EXPECT_FALSE(filter.IsOn());
  EXPECT_EQ(settings.Get(setting::kListFilter), "");
}

TEST_F(StationFilterTest, SomethingElseIsAnotherOfTheShownStations) {
  const auto chosen = [&] {
    std::set<std::size_t> rows;
    for (std::uint32_t chance = 1; chance < 200; ++chance)
      rows.insert(listing.Rows().AnyOther(chance).value_or(99));
    return rows;
  };
  EXPECT_EQ(chosen(), (std::set<std::size_t>{1, 2, 3, 4}));
  listing.Rows().Select(3);
  EXPECT_EQ(chosen(), (std::set<std::size_t>{0, 1, 2, 4}));
  listing.ShowRanking(Ranking::NewStations);
  With(Part::Place, "Asia");
  EXPECT_EQ(chosen(), std::set<std::size_t>{0}) << "the only one";
  listing.ShowSearch("zzz", true);
  EXPECT_EQ(chosen(), std::set<std::size_t>{99});
}

TEST_F(StationFilterTest, PlaceAndGenreReadNoStation) {
  const std::uint64_t before = stations.LookUps();
  With(Part::Place, "Europe > Norway");
  With(Part::Genre, "Jazz");
  EXPECT_EQ(stations.LookUps(), before);
  With(Part::Answers, "1");
  EXPECT_EQ(stations.LookUps(), before + 1) << "only what is left";
}

}  // namespace
}  // namespace sonaro
