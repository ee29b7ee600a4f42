#include "mainwindow/Rankings.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

TEST(Rankings, ReadsTheNamedLinesOnce) {
  FakeFiles files;
  files.Put("/d/fun.snr",
            "a line without a tab\r\nSomething\t99\r\nbest OVERALL\t 3 2 1 \r\nBest Sound\t7\r\n"
            "MOST POP\t4 5\r\nBest Overall\t9 8\t7\r\nMost Reliable\t1\r\n");
  files.Put("/d/reliable.snr", "11 12\r\n13 \r\n");
  DataFolder data(files, "/d", '/');
  Rankings rankings(data);
  EXPECT_EQ(rankings.Ids(Ranking::BestOverall), "9 8\t7 ") << "the later line wins";
  EXPECT_EQ(rankings.Ids(Ranking::BestOverall), "9 8\t7 ") << "asking again adds no blank";
  EXPECT_EQ(rankings.Ids(Ranking::MostPop), "4 5 ");
  EXPECT_EQ(rankings.Ids(Ranking::BestSound), "7 ");
  EXPECT_EQ(rankings.Ids(Ranking::NewStations), " ");
  EXPECT_EQ(rankings.Ids(Ranking::MostReliable), "11 12  13 ");
  files.Put("/d/fun.snr", "Best Sound\t8\n");
  EXPECT_EQ(rankings.Ids(Ranking::BestSound), "7 ") << "kept for the run";
}

TEST(Rankings, EveryListingModeStandsForItsRanking) {
  for (std::size_t i = 0; i < kRankingCount; ++i) {
    const auto ranking = static_cast<Ranking>(i);
    EXPECT_EQ(RankingOfListingMode(ListingModeOf(ranking)), ranking);
  }
  EXPECT_EQ(ListingModeOf(Ranking::NewStations), "New");
  EXPECT_EQ(ListingModeOf(Ranking::BestOverall), "BestOverAll");
  EXPECT_EQ(RankingOfListingMode("Most Reliable"), Ranking::MostReliable);
  for (const char* other : {"", "Recent", "LastSearch", "favNew", "mostpop"}) {
    EXPECT_EQ(RankingOfListingMode(other), std::nullopt) << other;
  }
}

}  // namespace
}  // namespace sonaro
