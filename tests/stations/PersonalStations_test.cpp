// The user's own data: personal stations and extra links, and what a link of the user's own may be.
#include "stations/PersonalStations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"
#include "stations/ExtraLinks.h"
#include "stations/OwnLink.h"

namespace sonaro {
namespace {

PersonalStation Named(const std::string& name) {
  PersonalStation station;
  station.name = name;
  return station;
}

TEST(OwnLink, IsAPlayerLinkWithAScheme) {
  const std::string longest(kMaxOwnLink - 1 - 17, 'x');
  const struct {
    std::string typed;
    std::string before;  // what the dialog showed
    std::optional<std::string> stored;
  } kCases[] = {
      {" http://a.example/ ", "", "mhttp://a.example/"},
      {"a.example:8000/live", "", "mhttp://a.example:8000/live"},
      {"www.a.example", "whttp://b.example/", "whttp://www.a.example"},
      {"rtsp://a.example/x", "http://b.example/", "rtsp://a.example/x"},
      {"mms://a.example/x", "http://b.example/", "Mms://a.example/x"},
      {"http://a.example/\xC3\xA9", "", "mhttp://a.example/\xC3\xA9"},
      {"a.example/?u=http://b", "", "mhttp://a.example/?u=http://b"},
      {"   ", "mhttp://b.example/", ""},
      {"http://a.example/" + longest, "", "mhttp://a.example/" + longest},
      {"http://a.example/" + longest + "x", "", std::nullopt},
      {"a.example/" + longest + "x", "", std::nullopt},
      {"C:\\music\\a.mp3", "", std::nullopt},
      {"\\\\server\\a.mp3", "", std::nullopt},
      {"//server/a", "", std::nullopt},
      {"file:///etc/x", "", std::nullopt},
      {"javascript://a.example/%0aalert", "", std::nullopt},
      {"%SystemRoot%", "", std::nullopt},
      {"nowhere", "", std::nullopt},
  };
  for (const auto& c : kCases) {
    const auto stored = OwnLinkFromField(c.typed, c.before);
    EXPECT_EQ(stored, c.stored) << c.typed;
    if (stored && !stored->empty()) {
      EXPECT_EQ(OwnLinkText(*stored), stored) << "what is stored stays as it is";
    }
  }
}

class OwnDataTest : public testing::Test {
 protected:
  OwnDataTest() { files_.MakeFolder("/d"); }
  std::string Personal() { return files_.Get("/d/personal.snr").value_or("(none)"); }
  std::string Own() { return files_.Get("/d/ownlinks.snr").value_or("(none)"); }
  PersonalStations Reloaded() {
    PersonalStations again(data_);
    EXPECT_TRUE(again.Load());
    return again;
  }

  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
  PersonalStations stations_{data_};
  ExtraLinks links_{data_};
};

TEST_F(OwnDataTest, StationSurvivesARestartWithEveryField) {
  PersonalStation station = Named("Caf\xC3\xA9 \xD0\xA0\xD0\xB0\xD0\xB4\xD0\xB8\xD0\xBE");
  station.links = {"mhttp://a.example/1", "", "http://a.example/3"};
  station.webSite = "http://a.example/";
  station.type = "MP3";
  station.note = "Only at night";
  station.index = stations_.Add(station);
  EXPECT_EQ(station.index, 1);
  EXPECT_EQ(Personal(), "1\t" + station.name +
                            "\tmhttp://a.example/1\t\thttp://a.example/3\thttp://a.example/\tMP3\t" +
                            "Only at night\r\n");
  const PersonalStations again = Reloaded();
  ASSERT_NE(again.Find(1), nullptr);
  EXPECT_EQ(*again.Find(1), station);
}

TEST_F(OwnDataTest, AnIndexIsNeverGivenTwice) {
  for (const char* name : {"A", "B", "C"}) stations_.Add(Named(name));
  const PersonalStation first = *stations_.Find(1);
  const std::array<std::int32_t, 3> gone = {3, 77, 1};
  EXPECT_TRUE(stations_.DeleteAll(gone));
  EXPECT_FALSE(stations_.Delete(1));
  EXPECT_EQ(stations_.Add(Named("D")), 4);
  const std::array<PersonalStation, 2> back = {first, *stations_.Find(2)};  // the second was never gone
  EXPECT_TRUE(stations_.PutBackAll(back) && stations_.PutBackAll(back));
  EXPECT_EQ(Reloaded().All(), stations_.All());
  EXPECT_EQ(stations_.All().size(), 3u);
  EXPECT_EQ(stations_.All().front(), first);
  EXPECT_TRUE(stations_.Delete(1));

  PersonalStations again = Reloaded();
  EXPECT_EQ(again.Find(1), nullptr);
  EXPECT_EQ(again.Find(2)->name, "B");
  EXPECT_TRUE(again.Delete(4));
  EXPECT_EQ(Reloaded().Add(Named("E")), 5);
}

TEST_F(OwnDataTest, ChangeReplacesOneStationAndKeepsTheOrder) {
  for (const char* name : {"A", "B", "C"}) stations_.Add(Named(name));
  PersonalStation changed = Named("B2");
  changed.index = 2;
  EXPECT_TRUE(stations_.Change(changed));
  changed.index = 9;
  EXPECT_FALSE(stations_.Change(changed));
  std::string names;
  for (const PersonalStation& station : Reloaded().All()) names += station.name + ' ';
  EXPECT_EQ(names, "A B2 C ");
}

TEST_F(OwnDataTest, TextsAreCleanedAndCut) {
  PersonalStation station = Named("  A\tB\r\nC\x7F ");
  station.note = std::string(PersonalStation::kMaxNote - 1, 'x') + "\xC3\xA9";
  const std::int32_t index = stations_.Add(station);
  EXPECT_EQ(stations_.Find(index)->name, "A B  C");
  EXPECT_EQ(stations_.Find(index)->note.size(), PersonalStation::kMaxNote - 1);  // not half an e acute
  EXPECT_EQ(stations_.Add(Named(" \t ")), 0);
  EXPECT_EQ(Reloaded().All(), stations_.All());
}

TEST_F(OwnDataTest, LinesThatMakeNoSenseAreKeptInPlace) {
  files_.Put("/d/personal.snr",
             "# by hand\r\n2\tGood\t\t\t\t\t\t\r\n7\tToo few\tfields\n\r\n2\tTwice\t\t\t\t\t\t\r\n"
             "-4\tNegative\t\t\t\t\t\t\r\n3\t \t\t\t\t\t\t");
  ASSERT_TRUE(stations_.Load());
  ASSERT_EQ(stations_.All().size(), 1u);
  EXPECT_EQ(stations_.Add(Named("New")), 8);  // 7 may have been somebody's index
  EXPECT_EQ(Personal(),
            "# by hand\r\n2\tGood\t\t\t\t\t\t\r\n7\tToo few\tfields\r\n\r\n2\tTwice\t\t\t\t\t\t\r\n"
            "-4\tNegative\t\t\t\t\t\t\r\n3\t \t\t\t\t\t\t\r\n8\tNew\t\t\t\t\t\t\r\n");
}

TEST_F(OwnDataTest, AddsManyWithOneWrite) {
  files_.ClearLog();
  const std::vector<PersonalStation> many = {Named("A"), Named(""), Named("C")};
  EXPECT_EQ(stations_.AddAll(many), (std::vector<std::int32_t>{1, 0, 2}));
  EXPECT_EQ(std::count_if(files_.Log().begin(), files_.Log().end(),
                          [](const std::string& entry) { return entry.starts_with("create"); }),
            1);
  EXPECT_TRUE(stations_.AddAll({}).empty());
}

TEST_F(OwnDataTest, AChangeThatCannotBeSavedDidNotHappen) {
  stations_.Add(Named("A"));
  const std::string before = Personal();
  files_.SetSpaceLeft(3);
  EXPECT_EQ(stations_.Add(Named("B")), 0);
  EXPECT_FALSE(stations_.Delete(1));
  EXPECT_EQ(stations_.All().size(), 1u);
  EXPECT_EQ(Personal(), before);
  files_.SetSpaceLeft(std::nullopt);
  EXPECT_EQ(stations_.Add(Named("B")), 2);
}

TEST_F(OwnDataTest, ALockedFileIsReadAgainBeforeTheFirstChange) {
  files_.Put("/d/personal.snr", "1\tA\t\t\t\t\t\t\r\n");
  files_.Put("/d/ownlinks.snr", "12\tOld\tmhttp://a/\r\n");
  for (const char* name : {"/d/personal.snr", "/d/ownlinks.snr"}) files_.Lock(name);
  EXPECT_FALSE(stations_.Load());
  EXPECT_FALSE(links_.Load());
  EXPECT_EQ(stations_.Add(Named("B")), 0);
  EXPECT_FALSE(links_.Set(12, {}));
  for (const char* name : {"/d/personal.snr", "/d/ownlinks.snr"}) files_.Unlock(name);
  EXPECT_EQ(stations_.Add(Named("B")), 2);
  EXPECT_TRUE(links_.Set(13, {{"New", "mhttp://b/"}}));
  EXPECT_EQ(Personal(), "1\tA\t\t\t\t\t\t\r\n2\tB\t\t\t\t\t\t\r\n");
  EXPECT_EQ(Own(), "12\tOld\tmhttp://a/\r\n13\tNew\tmhttp://b/\r\n");
}

TEST_F(OwnDataTest, TwoSessionsOnOneFolderGiveNoIndexTwiceAndKeepBothsLinks) {
  stations_.Add(Named("A"));
  PersonalStations other(data_);
  ExtraLinks otherLinks(data_);
  ASSERT_TRUE(other.Load() && otherLinks.Load());
  EXPECT_EQ(other.Add(Named("B")), 2);
  EXPECT_EQ(stations_.Add(Named("C")), 3);
  EXPECT_TRUE(other.Delete(3));
  EXPECT_FALSE(stations_.Change({.index = 3, .name = "D"})) << "it is gone";
  EXPECT_EQ(stations_.Add(Named("E")), 4);
  EXPECT_TRUE(links_.Set(1, {{"", "mhttp://a/"}}));
  EXPECT_TRUE(otherLinks.Set(2, {{"", "mhttp://b/"}}));
  EXPECT_EQ(links_.Of(1).size() + otherLinks.Of(1).size() + otherLinks.Of(2).size(), 3u);
}

TEST_F(OwnDataTest, ExtraLinksSurviveARestartAndKeepForeignLines) {
  files_.Put("/d/ownlinks.snr", "12\tOld\tmhttp://a/\r\n?\r\n0\tZero\tx\r\n12\tNone\t\r\n");
  ASSERT_TRUE(links_.Load());
  EXPECT_EQ(links_.Of(12), (std::vector<ExtraLink>{{"Old", "mhttp://a/"}}));
  EXPECT_TRUE(links_.Of(0).empty());
  EXPECT_TRUE(links_.Set(-5, {{"Night\tline", " http://b/ "}, {"Empty", " "}, {"", "http://c/"}}));
  EXPECT_TRUE(links_.Set(12, {}));
  EXPECT_EQ(Own(), "?\r\n0\tZero\tx\r\n12\tNone\t\r\n-5\tNight line\thttp://b/\r\n-5\t\thttp://c/\r\n");

  ExtraLinks again(data_);
  ASSERT_TRUE(again.Load());
  EXPECT_EQ(again.Of(-5), (std::vector<ExtraLink>{{"Night line", "http://b/"}, {"", "http://c/"}}));
  files_.SetSpaceLeft(0);
  EXPECT_FALSE(again.Set(-5, {}));
  EXPECT_EQ(again.Of(-5).size(), 2u);
}

// From times when other links were taken: what can be made a link of today is, the rest stays in the file.
TEST_F(OwnDataTest, OldLinksGetASchemeOrStayAsTheyAre) {
  files_.Put("/d/personal.snr", "1\tA\tma.example/x\tmC:\\a.mp3\t\t\t\t\r\n");
  files_.Put("/d/ownlinks.snr", "12\tOld\twa.example\r\n12\tPath\tm//b/c\r\n");
  ASSERT_TRUE(stations_.Load() && links_.Load());
  EXPECT_EQ(stations_.Find(1)->links, (std::array<std::string, 3>{"mhttp://a.example/x", "mC:\\a.mp3", ""}));
  EXPECT_EQ(links_.Of(12), (std::vector<ExtraLink>{{"Old", "whttp://a.example"}, {"Path", "m//b/c"}}));
}

// Whenever the program dies while it saves, the file is the old or the new one.
TEST_F(OwnDataTest, SavingSurvivesACrashAnywhere) {
  const std::string old = "1\tA\t\t\t\t\t\t\r\n";
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) { files.Put("/d/personal.snr", old); },
      [](FakeFiles& files) {
        DataFolder data(files, "/d", '/');
        PersonalStations stations(data);
        stations.Load();
        stations.Add(Named("B"));
      },
      [&](FakeFiles& files, const CrashPoint& point) {
        const std::string now = files.Get("/d/personal.snr").value_or("(none)");
        const std::string added = old + "2\tB\t\t\t\t\t\t\r\n";
        EXPECT_TRUE(now == added || (!point.completed && now == old)) << point.operation << ": " << now;
      });
  EXPECT_GT(operations, 2);
}

TEST(StationEntries, AreCheckedFieldByFieldAndKeepHowALinkIsPlayed) {
  const PersonalStation shown{
      .index = 4, .name = "Old", .links = {"whttp://one.example/", "", "mhttp://three.example/"}};
  const struct {
    PersonalStation typed;
    EntryFault fault;
    std::size_t link;
  } cases[] = {
      {{.name = " ", .links = {"one.example", "nowhere", "C:\\a.mp3"}}, EntryFault::BadLink, 1},
      {{.name = " ", .links = {"", "", ""}}, EntryFault::NoName, 0},
      {{.name = "x", .links = {"", " ", ""}}, EntryFault::NoLink, 0},
      {{.name = "x", .links = {"", "", "three.example"}}, EntryFault::None, 0},
  };
  for (const auto& each : cases) {
    const StationEntry entry = ReadEntry(shown, each.typed);
    EXPECT_EQ(entry.fault, each.fault) << each.typed.links[2];
    EXPECT_EQ(entry.link, each.link) << each.typed.links[2];
  }
  const PersonalStation typed{.name = "New", .links = {"uno.example/", "two.example/x", ""}, .note = "n"};
  const PersonalStation expected{
      .index = 4, .name = "New", .links = {"whttp://uno.example/", "mhttp://two.example/x", ""}, .note = "n"};
  EXPECT_EQ(ReadEntry(shown, typed).station, expected);
}

}  // namespace
}  // namespace sonaro
