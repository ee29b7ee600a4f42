#include "directory/StatList.h"

#include <gtest/gtest.h>

#include <span>

#include "directory/EvList.h"
#include "directory/StationFolder.h"

namespace sonaro {
namespace {

constexpr const char* kTable = "\\statorg";

StationRecord Named(std::int32_t id, const std::string& name) { return {id, {name}}; }

TEST(StatList, PutsAndGets) {
  StationFolder folder;
  StatList& stations = folder.stations;
  ASSERT_TRUE(stations.CreateStationTable(kTable));
  StatList::Handle handle = stations.OpenStationTable(kTable, StatList::OpenMode::Write);
  ASSERT_NE(handle, 0);
  EXPECT_TRUE(stations.PutStation(handle, Named(7, "First")));
  EXPECT_TRUE(stations.PutStation(handle, Named(7, "Second")));
  EXPECT_EQ(stations.LastStatus(), TableStatus::ReplacedExisting);
  EXPECT_TRUE(stations.PutStation(handle, Named(0, "No identifier"))) << "not written, yet no failure";
  EXPECT_EQ(stations.GetStation(handle, 7), Named(7, "Second"));
  stations.CloseStationTable(handle);
  EXPECT_EQ(stations.LastStatus(), TableStatus::Success);
  EXPECT_EQ(stations.StationCount(), 1u);

  handle = stations.OpenStationTable(kTable, StatList::OpenMode::Read);
  EXPECT_FALSE(stations.PutStation(handle, Named(8, "Read only")));
  EXPECT_TRUE(stations.GetStation(handle, 8).Empty());
  EXPECT_EQ(stations.LastStatus(), TableStatus::NotFound);
  EXPECT_TRUE(stations.GetStation(0, 7).Empty());
  EXPECT_EQ(stations.LastStatus(), TableStatus::NotFound) << "handle 0 is not asked";
  EXPECT_FALSE(stations.PutStation(0, Named(8, "Closed")));
}

TEST(StatList, LooksUpManyInTheOrderAsked) {
  StationFolder folder;
  ASSERT_TRUE(folder.Rebuild("3\tC\n1\tA\n2\tB\n"));
  const std::vector<std::int32_t> ids = {2, 99, 3, 2, 0};
  const std::vector<StationRecord> expected = {Named(2, "B"), Named(3, "C"), Named(2, "B")};
  EXPECT_EQ(folder.stations.GetStations(ids), expected);
  EXPECT_EQ(folder.stations.LastStatus(), TableStatus::Success);
  std::vector<StationRecord> visited;
  folder.stations.VisitStations(ids, [&](const StationView& station) { visited.push_back(station.Copy()); });
  EXPECT_EQ(visited, expected);
  EXPECT_EQ(folder.stations.LastStatus(), TableStatus::Success);
  EXPECT_EQ(folder.stations.FindStation(99), StationRecord());
  EXPECT_EQ(folder.stations.LastStatus(), TableStatus::NotFound);
}

// A list of many rows of which one screen is shown: what was found costs no record, a screen costs its own.
TEST(StatList, AScreenOfAFullListReadsItsOwnRecordsOnly) {
  StationFolder folder;
  std::string list;
  for (int id = 1; id <= 40'000; ++id) list += std::to_string(id) + "\tRadio " + std::to_string(id) + "\n";
  ASSERT_TRUE(folder.Rebuild(list));
  const std::vector<std::int32_t> found = folder.stations.SearchStationIds("radio", true);
  ASSERT_EQ(found.size(), 40'000u);
  const std::uint64_t bytesBefore = folder.files.BytesRead();
  const auto screen = std::span(found).subspan(20'000, 20);
  EXPECT_EQ(folder.stations.GetStations(screen).front(), Named(20'001, "Radio 20001"));
  EXPECT_EQ(folder.stations.LookUps(), 20u);
  EXPECT_LE(folder.files.BytesRead() - bytesBefore, 300'000u) << "the headers and one step of reading on";
}

TEST(StatList, WithoutATableEverythingIsEmpty) {
  StationFolder folder;
  const std::vector<std::int32_t> ids = {1};
  EXPECT_TRUE(folder.stations.FindStation(1).Empty());
  EXPECT_TRUE(folder.stations.GetStations(ids).empty());
  EXPECT_TRUE(folder.stations.SearchStationIds("a", false).empty());
  EXPECT_EQ(folder.stations.StationCount(), 0u);
  EXPECT_FALSE(folder.stations.Verify());
  EXPECT_EQ(folder.stations.LastStatus(), TableStatus::NoTable);
}

TEST(StatList, FindsTheTableInAnyLetterCase) {
  StationFolder folder;
  folder.files.Put("/data/Station.snr", "1\tA\n");
  ASSERT_TRUE(folder.stations.RebuildStationTable());
  for (const char* extension : {".isd", ".ism"}) {
    folder.files.Put(std::string("/data/StatOrg") + extension,
                     *folder.files.Get(std::string("/data/statorg") + extension));
    folder.files.Remove(std::string("/data/statorg") + extension);
  }
  EXPECT_EQ(folder.stations.FindStation(1), Named(1, "A"));
  ASSERT_TRUE(folder.stations.RebuildStationTable());
  EXPECT_EQ(folder.files.AllPaths().size(), 3u) << "rebuilt in place, not beside";
}

TEST(EvList, KeepsItsTwoSetsApart) {
  StationFolder folder;
  EvList events(folder.data);
  EXPECT_EQ(events.OpenEventTable(EventSet::Current, EvList::OpenMode::Read), 0);
  EXPECT_EQ(events.LastStatus(), TableStatus::NoTable);

  EventRecord concert{12,
                      {"Concert", "7", "Radio", "202601312000", "90", "Music", "http://a.example/", "Live"}};
  EventRecord talk{-3, {"Talk"}};
  ASSERT_TRUE(events.CreateEventTable(EventSet::Current));
  EvList::Handle handle = events.OpenEventTable(EventSet::Current, EvList::OpenMode::Write);
  EXPECT_TRUE(events.PutEvent(handle, concert));
  EXPECT_TRUE(events.PutEvent(handle, talk));
  EXPECT_TRUE(events.PutEvent(handle, EventRecord()));
  events.CloseEventTable(handle);
  ASSERT_TRUE(events.CreateEventTable(EventSet::Coming));

  handle = events.OpenEventTable(EventSet::Current, EvList::OpenMode::Read);
  EXPECT_EQ(events.GetEvent(handle, 12), concert);
  EXPECT_TRUE(events.NextEvent(handle).Empty());
  EXPECT_EQ(events.LastStatus(), TableStatus::NotFound);
  EXPECT_TRUE(events.NextEvent(0).Empty());
  events.CloseEventTable(handle);
  EXPECT_EQ(events.AllEvents(EventSet::Current), (std::vector<EventRecord>{talk, concert}));
  EXPECT_EQ(events.LastStatus(), TableStatus::Success);
  EXPECT_TRUE(events.AllEvents(EventSet::Coming).empty());
  EXPECT_EQ(events.LastStatus(), TableStatus::Success);
}

}  // namespace
}  // namespace sonaro
