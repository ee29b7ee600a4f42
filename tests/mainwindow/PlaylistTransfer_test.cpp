#include "mainwindow/PlaylistTransfer.h"

#include "directory/Scrambling.h"
#include "mainwindow/Models.h"
#include "playback/StationSource.h"

namespace sonaro {
namespace {

class PlaylistTransferTest : public Models {
 protected:
  PlaylistTransferTest() { files.MakeFolder("/out"); }
  std::string Members(std::size_t group) const { return std::string(groups.Members(group)); }

  StationSource source{stations, personal, BuiltInAlphabets()};
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

TEST_F(PlaylistTransferTest, OnAnotherMachineTheStationsBecomeOnesOwn) {
  ASSERT_TRUE(transfer.ExportGroup(0, "/out/jazz.m3u"));
  files.Put("/d/station.snr", "4\tAnother station\n1\tacid jazz\n");
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
  files.SetSpaceLeft(10);
  EXPECT_EQ(transfer.ImportIntoGroup(0, "/in/x.m3u").status, Status::NotSaved);
  EXPECT_EQ(Members(0), "4 77 P1 1");
  EXPECT_FALSE(transfer.ExportGroup(0, "/out/full.m3u"));
  EXPECT_EQ(files.Get("/out/full.m3u"), std::nullopt);
  EXPECT_EQ(files.Get("/out/full.m3u.new"), std::nullopt);
}

}  // namespace
}  // namespace sonaro
