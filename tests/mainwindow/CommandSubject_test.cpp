#include "mainwindow/CommandSubject.h"

#include <gtest/gtest.h>

#include <array>

#include "mainwindow/Models.h"

namespace sonaro {
namespace {

class CommandSubjectTest : public Models {
 protected:
  CommandSubjectTest() {
    for (const char* name : {"One", "Two"}) groups.Add(name);
  }
  static StationDetail Detail(std::int32_t id) {
    StationDetail detail;
    detail.station = StationKey::OfGuide(id);
    return detail;
  }

  CommandSubject subject_{listing, groups};
};

TEST_F(CommandSubjectTest, AnOpenMenuDecidesWhateverIsOnShow) {
  listing.ShowFavoriteGroup(*groups.Find("One"));
  subject_.Show(Detail(1));
  EXPECT_EQ(subject_.GroupName(), "One");
  const auto before = subject_.Open({.station = Detail(2), .group = "Two"});
  subject_.Show(Detail(3));
  groups.Move(*groups.Find("Two"), *groups.Find("One"));
  EXPECT_EQ(subject_.Station().station, StationKey::OfGuide(2));
  EXPECT_EQ(subject_.GroupName(), "Two") << "the group of that name, wherever it stands now";
  EXPECT_EQ(subject_.GroupOnShow(), groups.Find("One"));

  const auto outer = subject_.Open({.station = Detail(4)});
  EXPECT_FALSE(subject_.Group()) << "a menu without a group means none";
  subject_.Close(outer);
  EXPECT_EQ(subject_.Station().station, StationKey::OfGuide(2)) << "the menu below is open still";
  groups.Remove(*groups.Find("Two"));
  EXPECT_FALSE(subject_.Group());
  EXPECT_EQ(subject_.GroupName(), "");
  subject_.Close(before);
  EXPECT_EQ(subject_.Station().station, StationKey::OfGuide(3));
  EXPECT_EQ(subject_.OpenMenu(), nullptr);
}

TEST_F(CommandSubjectTest, CommandsForSeveralActOnAllThatAreSelected) {
  listing.ShowSearch("rock", true);  // 2, 3 and 4
  subject_.Show(Detail(2));
  EXPECT_EQ(subject_.Stations(), KeysOf("2"));
  const std::array<std::size_t, 2> rows = {0, 2};
  listing.Rows().SelectSeveral(2, rows);
  subject_.Show(Detail(4));
  EXPECT_EQ(subject_.Stations(), KeysOf("2 4"));
  const auto before = subject_.Open({.station = Detail(4), .stations = listing.Rows().SelectedKeys()});
  listing.ShowRanking(Ranking::NewStations);
  EXPECT_EQ(subject_.Stations(), KeysOf("2 4")) << "what the menu was opened for";
  subject_.Close(before);
  listing.ShowSearch("rock", true);
  listing.Rows().SelectSeveral(2, rows);
  listing.ShowView(View::YourSonaro);
  subject_.Show({});
  EXPECT_EQ(subject_.Stations(), KeysOf("")) << "the list is not on show";
}

TEST_F(CommandSubjectTest, OnlyAListInTheMiddleHasItsGroupOnShow) {
  listing.ShowFavoriteGroup(*groups.Find("One"));
  listing.ShowView(View::YourSonaro);
  EXPECT_FALSE(subject_.GroupOnShow()) << "the events are in the middle";
  listing.ShowRanking(Ranking::MostPop);
  EXPECT_FALSE(subject_.Group());
}

}  // namespace
}  // namespace sonaro
