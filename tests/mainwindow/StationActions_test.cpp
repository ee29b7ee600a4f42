#include "mainwindow/StationActions.h"

#include <algorithm>
#include <map>

#include "directory/Scrambling.h"
#include "forms/ControlIds.h"
#include "mainwindow/Models.h"
#include "mainwindow/SortEntries.h"
#include "resources/texts/mainwindow.h"
#include "settings/AppState.h"
#include "stations/ExtraLinks.h"
#include "stations/StationSource.h"

namespace sonaro {
namespace {

class StationActionsTest : public Models {
 protected:
  StationDetail Detail() const { return details.Of(listing.Rows().SelectedKey()); }
  const MenuEntry& Entry(int command) {
    menu = actions.ActionMenu(Detail());
    const MenuEntry* entry = FindEntry(menu, command);
    static const MenuEntry kNone{-1, "(no entry)", false, false, {}};
    return entry ? *entry : kNone;
  }
  std::string Text(int id, const std::string& first, const std::string& second = "") const {
    return FormatText(strings.Load(id), {first, second});
  }

  AppState state;
  ExtraLinks extra{data};
  StationDetailBuilder details{source, extra, strings, state};
  StationActions actions{listing, groups, strings};
  MenuEntries menu;
};

TEST_F(StationActionsTest, CaptionsFollowTheSelectedStation) {
  personal.Change({1, "Rock & Roll", {"mhttp://x/", "", ""}, "", "", ""});
  listing.ShowFavoriteGroup(0);
  EXPECT_EQ(Entry(mnuActionStationToFavList).text, Text(IDS_ACTION_ADD_TO_GROUP, "Rock and Jazz", "Jazz"));
  EXPECT_EQ(Entry(mnuActionRemoveFromFavList).text,
            Text(IDS_ACTION_REMOVE_FROM_GROUP, "Rock and Jazz", "Jazz"));
  listing.Rows().Select(1);
  EXPECT_EQ(Entry(mnuActionSchedule).text, Text(IDS_ACTION_SCHEDULE, "Rock && Roll", "Jazz"));
  EXPECT_TRUE(Entry(mnuPersonalDelete).enabled);
  EXPECT_EQ(Entry(mnuActionExtraLink).command, -1) << "a station of one's own has no extra links";
}

TEST_F(StationActionsTest, WithoutGroupsNoLineStandsInThePlaceOfTheirList) {
  const auto lines = [&] {
    const MenuEntries entries = actions.ActionMenu(Detail());
    return std::count_if(entries.begin(), entries.end(), IsSeparator);
  };
  listing.ShowSearch("rock", true);
  const auto before = lines();
  while (groups.Count() > 0) EXPECT_EQ(groups.Remove(0), FavoriteChange::Saved);
  EXPECT_EQ(lines(), before);
}

TEST_F(StationActionsTest, WithoutAStationTheEntriesAreForAnyStationAndDisabled) {
  listing.ShowSearch("nothing like it", true);
  const int commands[] = {mnuActionPlayOne,       mnuActionWebSite,          mnuActionCopyLink,
                          mnuActionSchedule,      mnuActionStationToFavList, mnuActionRemoveFromFavList,
                          mnuActionAddToScan,     mnuActionAddListToScan,    mnuActionExtraLink,
                          mnuActionStationToGroup};
  for (const int command : commands) {
    EXPECT_FALSE(Entry(command).enabled) << command;
    EXPECT_EQ(Entry(command).command, command);
  }
  EXPECT_EQ(Entry(mnuActionExtraLink).text, strings.Load(IDS_ACTION_EXTRA_LINK_NONE));
  EXPECT_EQ(Entry(mnuActionSchedule).text, strings.Load(IDS_ACTION_SCHEDULE_NONE));
}

TEST_F(StationActionsTest, PlaysWhatTheStationHas) {
  listing.ShowRanking(Ranking::NewStations);  // 3, with an alternate link only, then 1
  EXPECT_TRUE(Entry(mnuActionPlayOne).enabled) << "the alternate link plays in place of the first";
  EXPECT_EQ(Entry(mnuActionPlayTwo).command, -1);
  EXPECT_FALSE(Entry(mnuActionWebSite).enabled);
  listing.Rows().Select(1);
  EXPECT_TRUE(Entry(mnuActionPlayTwo).enabled);
  EXPECT_EQ(Entry(mnuActionPlayThree).command, -1);
  EXPECT_TRUE(Entry(mnuActionWebSite).enabled);
  extra.Set(1, {{"Mirror & Co", "mhttp://m.example/"}, {"", "http://n.example/"}});
  EXPECT_EQ(Entry(mnuActionPlayExtra).text, "Mirror && Co");
  EXPECT_EQ(Entry(mnuActionPlayExtra + 1).text, strings.Load(IDS_PLAY_EXTRA));
}

TEST_F(StationActionsTest, GroupsThatHoldTheStationCannotTakeItAgain) {
  listing.ShowFavoriteGroup(2);
  EXPECT_TRUE(Entry(mnuActionStationToGroup + 2).checked);
  EXPECT_FALSE(Entry(mnuActionStationToGroup + 2).enabled);
  EXPECT_TRUE(Entry(mnuActionStationToGroup).enabled);
  listing.ShowFavoriteGroup(0);
  EXPECT_FALSE(Entry(mnuActionMoveUp).enabled) << "the first";
  EXPECT_TRUE(Entry(mnuActionMoveDown).enabled);
  listing.Rows().Select(listing.Rows().Count() - 1);
  EXPECT_TRUE(Entry(mnuActionMoveUp).enabled);
  EXPECT_FALSE(Entry(mnuActionMoveDown).enabled) << "the last";
  listing.Rows().SortBy(0, SortOrder::Ascending);
  EXPECT_FALSE(Entry(mnuActionMoveUp).enabled) << "a sorted list shows no places";
  listing.ShowRecent();
  EXPECT_FALSE(Entry(mnuActionRemoveFromFavList).enabled);
  EXPECT_EQ(Entry(mnuActionMoveUp).command, -1);
}

TEST_F(StationActionsTest, TheSortInForceIsChecked) {
  struct Case {
    int command;
    int key;
    SortOrder order;
  };
  const Case cases[] = {{butSplit4, 3, SortOrder::Ascending},
                        {mnuSortByName, 0, SortOrder::Ascending},
                        {mnuActionSortByOverall, 4, SortOrder::Descending},
                        {mnuSortBySound, 5, SortOrder::Descending},
                        {mnuSortBySpeed, 6, SortOrder::Descending},
                        {mnuActionSortByMostReliable, 8, SortOrder::Descending}};
  for (const Case& c : cases) {
    const auto entry = SortEntryOf(c.command);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->key, c.key);
    EXPECT_EQ(entry->order, c.order);
    listing.Rows().SortBy(entry->key, entry->order);
    for (const SortEntry& other : SortEntries()) {
      EXPECT_EQ(Entry(other.actionMenu).checked, other.key == c.key);
    }
  }
  EXPECT_FALSE(SortEntryOf(0));
  EXPECT_FALSE(SortEntryOf(butRecent));
}

TEST_F(StationActionsTest, RatingsShowHalfTheDigit) {
  struct Case {
    const char* digit;
    int halves;
    const char* figure;
  };
  const Case cases[] = {{"9", 9, "4.5"},          {"1", 1, "0.5"},         {"8", 8, "4.0"},
                        {"0", 0, "\xE2\x80\x93"}, {"", 0, "\xE2\x80\x93"}, {"10", 0, "\xE2\x80\x93"},
                        {"x", 0, "\xE2\x80\x93"}};
  for (const Case& c : cases) {
    const RatingFigure rating = details.Rating(c.digit, IDS_RATING_SOUND);
    EXPECT_EQ(rating.halves, c.halves) << c.digit;
    EXPECT_EQ(rating.figure, c.figure) << c.digit;
  }
  state.decimalMode = DecimalMode::Comma;
  EXPECT_EQ(details.Rating("9", IDS_RATING_SOUND).figure, "4,5");
}

TEST_F(StationActionsTest, DetailsOfAStationAndOfOnesOwn) {
  const StationDetail one = details.Of(Key("1"));
  EXPECT_EQ(one.name, "Acid Jazz");
  EXPECT_EQ(one.playButtons[0].caption, Text(IDS_PLAY_MEDIA, "MP3", "{1}"));
  EXPECT_EQ(one.playButtons[0].detail, Text(IDS_PLAY_BIT_RATE, "128", "{1}"));
  EXPECT_EQ(one.playButtons[1].request.station, Key("1"));
  EXPECT_EQ(one.playButtons[1].request.mode, PlayMode::LinkTwo);
  EXPECT_EQ((std::array<int, 4>{one.ratings[0].halves, one.ratings[1].halves, one.ratings[2].halves,
                                one.ratings[3].halves}),
            (std::array<int, 4>{9, 5, 1, 0}))
      << "overall, sound, speed, web site";

  const StationDetail own = details.Of(Key("P1"));
  EXPECT_EQ(own.playButtons[0].request.mode, PlayMode::Personal);
  EXPECT_EQ(own.playButtons[0].request.station, Key("P1"));
  EXPECT_EQ(own.firstLink, "http://garage.example/");
  EXPECT_FALSE(details.Of(Key("P9")).station) << "deleted meanwhile";
  EXPECT_FALSE(details.Of(StationKey()).station);
}

TEST_F(StationActionsTest, LinksThatWouldReadAlikeTellWhereTheyLead) {
  const struct {
    std::array<std::string, 3> links;
    std::array<std::string, 3> told;
  } kCases[] = {
      {{"mhttp://one.example:8000/a", "", ""}, {"", "", ""}},
      {{"mhttp://one.example:8000/a", "http://two.example/a", ""}, {"one.example", "two.example", ""}},
      {{"mhttps://one.example/dance.mp3", "mhttps://one.example/dance.ogg", "mhttps://one.example/aac/"},
       {"dance.mp3", "dance.ogg", "aac"}},
      {{"mhttp://one.example/live?b=1", "mhttp://one.example/low/live?b=1", ""},
       {"http://one.example/live?b=1", "http://one.example/low/live?b=1", ""}},
  };
  for (const auto& c : kCases) {
    PersonalStation own;
    own.name = "Several";
    own.links = c.links;
    ASSERT_TRUE(personal.Add(own));
    const std::string token = "P" + std::to_string(personal.All().size());
    const StationDetail detail = details.Of(Key(token));
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(detail.playButtons[i].detail, c.told[i]) << c.links[0];
  }
}

}  // namespace
}  // namespace sonaro
