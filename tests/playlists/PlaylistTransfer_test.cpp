#include "playlists/PlaylistTransfer.h"

#include <random>

#include "directory/Scrambling.h"
#include "stations/StationModels.h"
#include "stations/StationSource.h"

namespace sonaro {
namespace {

class PlaylistTransferTest : public StationModels {
 protected:
  PlaylistTransferTest() { files.MakeFolder("/out"); }
  std::string Members(std::size_t group) const { return TextOf(groups.Keys(group)); }

  PlaylistTransfer transfer{files, groups, personal, source};
};

TEST_F(PlaylistTransferTest, AGroupComesBackIntoAnotherAsItWas) {
  for (const char* path : {"/out/jazz.m3u", "/out/jazz.PLS", "/out/jazz.opml"}) {
    ASSERT_TRUE(transfer.ExportGroup(0, path)) << path;
    groups.Remove(*groups.Find("Empty"));
    groups.Add("Empty");
    const ImportResult result = transfer.ImportIntoGroup(groups.Count() - 1, path);
    EXPECT_EQ(result.status, ImportResult::Status::Ok);
    EXPECT_EQ(result.added, 4U);
    EXPECT_EQ(Members(groups.Count() - 1), "4 77 P1 1 ") << path << ": the lost one too, none twice";
    const ImportResult again = transfer.ImportIntoGroup(groups.Count() - 1, path);
    EXPECT_EQ(again.added, 0U);
    EXPECT_EQ(again.known, 4U);
  }
  EXPECT_EQ(personal.All().size(), 1U);
}

TEST_F(PlaylistTransferTest, AStationOfTheDirectoryIsKnownByWhateverName) {
  std::string longName;
  for (int i = 0; i < 150; ++i) longName += "\xD0\x96";
  for (const std::string& name : {longName, std::string(" blanks "), std::string("a\x01z")}) {
    files.Put("/d/Station.snr", "4\t" + name + "\t\t\t\t\thttp://a.example/\n");
    ASSERT_TRUE(stations.RebuildStationTable());
    ASSERT_TRUE(transfer.ExportGroup(0, "/out/jazz.m3u"));
    groups.Remove(*groups.Find("Empty"));
    groups.Add("Empty");
    transfer.ImportIntoGroup(groups.Count() - 1, "/out/jazz.m3u");
    EXPECT_TRUE(Members(groups.Count() - 1).starts_with("4 ")) << name;
  }
}

TEST_F(PlaylistTransferTest, OnAnotherMachineTheStationsBecomeOnesOwn) {
  ASSERT_TRUE(transfer.ExportGroup(0, "/out/jazz.m3u"));
  files.Put("/d/Station.snr", "4\tAnother station\n1\tacid jazz\n");
  ASSERT_TRUE(stations.RebuildStationTable());
  personal.Delete(1);
  groups.Add("New");
  const ImportResult result = transfer.ImportIntoGroup(3, "/out/jazz.m3u");
  EXPECT_EQ(result.added, 3U) << "the station without any link cannot be taken over";
  EXPECT_EQ(Members(3), "77 P2 1 ");
  EXPECT_EQ(personal.Find(2)->name, "Garage");
}

TEST_F(PlaylistTransferTest, OnesOwnStationsAreNotTakenTwice) {
  files.Put(
      "/in/x.m3u",
      "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/\n#EXTINF:-1,B\nhttp://b.example/\n#EXTINF:-1,C\nnowhere\n");
  ImportResult result = transfer.ImportPersonalStations("/in/x.m3u");
  EXPECT_EQ(result.added, 2U);
  EXPECT_EQ(result.skipped, 1U);
  result = transfer.ImportPersonalStations("/in/x.m3u");
  EXPECT_EQ(result.added, 0U);
  EXPECT_EQ(result.known, 2U);
  ASSERT_TRUE(transfer.ExportPersonalStations("/out/mine.opml"));
  personal.Delete(1);
  EXPECT_EQ(transfer.ImportPersonalStations("/out/mine.opml").added, 1U);
}

TEST_F(PlaylistTransferTest, WhatGoesWrongIsTold) {
  using Status = ImportResult::Status;
  EXPECT_EQ(transfer.ImportPersonalStations("/in/missing.m3u").status, Status::NotRead);
  files.Put("/in/page.m3u", "<html></html>");
  EXPECT_EQ(transfer.ImportPersonalStations("/in/page.m3u").status, Status::NotAPlaylist);
  files.Put("/in/x.m3u", "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/\n");
  ASSERT_TRUE(transfer.ExportGroup(0, "/out/known.m3u"));
  files.SetSpaceLeft(10);
  EXPECT_EQ(transfer.ImportIntoGroup(0, "/in/x.m3u").status, Status::NotSaved);
  EXPECT_EQ(transfer.ImportIntoGroup(1, "/out/known.m3u").status, Status::NotSaved);
  EXPECT_EQ(Members(0), "4 77 P1 1 ");
  EXPECT_EQ(Members(1), "");
  EXPECT_FALSE(transfer.ExportGroup(0, "/out/full.m3u"));
  EXPECT_EQ(files.Get("/out/full.m3u"), std::nullopt);
  EXPECT_EQ(files.Get("/out/full.m3u.new"), std::nullopt);

  files.SetSpaceLeft(std::nullopt);
  files.Lock("/d/favs.snr");
  EXPECT_EQ(transfer.ImportIntoGroup(1, "/out/known.m3u").status, Status::NotSaved) << "all of it is known";
  const ImportResult half = transfer.ImportIntoGroup(0, "/in/x.m3u");
  EXPECT_EQ(half.status, Status::GroupNotSaved);
  EXPECT_EQ(half.added, 1U);
}

// Pieces of what people type, and of what hurts in a file.
std::string Typed(std::mt19937& random, std::size_t most) {
  static const char* const kPieces[] = {"http://",
                                        "rtsp://",
                                        "mms://",
                                        "www.",
                                        "a.example",
                                        "b.example:8000",
                                        "/live",
                                        "?x=1&y=%20",
                                        "=",
                                        ";",
                                        "#",
                                        ",",
                                        "w",
                                        "m",
                                        " ",
                                        "\"",
                                        "<b>",
                                        "&amp;",
                                        "'",
                                        "C:\\",
                                        "\xC3\xA9",
                                        "-1",
                                        "\t",
                                        "\r\n",
                                        "#EXTINF:-1,",
                                        "[playlist]",
                                        "File1=",
                                        "tvg-logo=\"x\"",
                                        "\xE2\x80\xA8",
                                        "]]>"};
  std::string text;
  for (std::size_t pieces = random() % (most + 1); pieces > 0; --pieces)
    text += kPieces[random() % std::size(kPieces)];
  return text;
}

// Whatever the dialog takes goes out and comes back, in every format, without a change and without a loss.
TEST_F(PlaylistTransferTest, OnesOwnStationsComeBackWhateverWasTyped) {
  std::mt19937 random(1103);
  std::size_t taken = 0;
  for (int round = 0; round < 20; ++round) {
    files.Put("/d/personal.snr", "");
    ASSERT_TRUE(personal.Load());
    for (int each = 0; each < 40; ++each) {
      PersonalStation station;
      station.name = Typed(random, 4);
      for (std::string& link : station.links) {
        const char* const before[] = {"", "whttp://old.example/", "rtsp://old.example/"};
        const char* const starts[] = {"", "http://a.example/", "www.a.example:8000", "mms://b.example/"};
        const std::string typed = starts[random() % 4] + Typed(random, 2);
        link = OwnLinkFromField(typed, before[random() % 3]).value_or("");
      }
      station.webSite = Typed(random, 2);
      station.type = Typed(random, 1);
      station.note = Typed(random, 6);
      if (station.links != std::array<std::string, 3>() && personal.Add(station) != 0) ++taken;
    }
    const std::vector<PersonalStation> before = personal.All();
    for (const char* path : {"/out/own.m3u", "/out/own.pls", "/out/own.opml"}) {
      ASSERT_TRUE(transfer.ExportPersonalStations(path));
      EXPECT_EQ(transfer.ImportPersonalStations(path).known, before.size()) << path << *files.Get(path);
      files.Put("/d/personal.snr", "");
      ASSERT_TRUE(personal.Load());
      const ImportResult result = transfer.ImportPersonalStations(path);
      EXPECT_EQ(result.added, before.size()) << path;
      EXPECT_EQ(result.skipped, 0U) << path;
      std::vector<PersonalStation> after = personal.All();
      ASSERT_EQ(after.size(), before.size()) << path;
      for (std::size_t i = 0; i < after.size(); ++i) {
        after[i].index = before[i].index;
        EXPECT_EQ(after[i], before[i]) << path << before[i].name;
      }
    }
  }
  EXPECT_GT(taken, 200U) << "the dialog should take enough of what was typed";
}

// Twice as many stations are twice the work, also when they all look alike.
TEST_F(PlaylistTransferTest, ALongListIsComparedInProportion) {
  for (const std::size_t count : {std::size_t{300}, std::size_t{600}}) {
    std::string list = "#EXTM3U\n";
    for (std::size_t i = 0; i < count; ++i)
      list += "#EXTINF:-1,Same\n#SONARO:note=" + std::to_string(i) + "\nhttp://a.example/\n";
    files.Put("/in/long.m3u", list);
    files.Put("/d/personal.snr", "");
    ASSERT_TRUE(personal.Load());
    EXPECT_EQ(transfer.ImportPersonalStations("/in/long.m3u").added, count);
    const ImportResult again = transfer.ImportPersonalStations("/in/long.m3u");
    EXPECT_EQ(again.known, count);
    EXPECT_GE(again.compared, count);
    EXPECT_LE(again.compared, 2 * count);
  }
}

}  // namespace
}  // namespace sonaro
