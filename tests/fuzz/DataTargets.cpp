#include <string>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/EvList.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/ForgedTable.h"
#include "fuzz/Targets.h"
#include "playlists/Playlist.h"
#include "schedule/EventDiary.h"
#include "schedule/ScheduleStore.h"

namespace sonaro {
namespace {

constexpr const char* kList = "/d/Station.snr";

// Everything that the program does with a table.
void UseTable(StatList& stations, std::string_view word) {
  const std::vector<std::int32_t> found = stations.SearchStationIds(word, true);
  Require(found.size() <= stations.StationCount(), "no more are found than there are");
  const bool whole = stations.Verify();
  const std::size_t there = stations.GetStations(found).size();
  Require(!whole || there == found.size(), "what is found in a whole table is there");
  stations.SearchStationIds("a", false);
  Require(stations.BestMatches(word).size() <= StatList::kMaxBestMatches, "the best are few");
  Require(stations.FilterStations(found, word).size() <= found.size(), "a filter adds nothing");
  for (const StationField field : {StationField::Name, StationField::Description, StationField::BitRate})
    stations.MakeRanks(field, FoldCase, 100'000);
  for (const std::int32_t id : {1, 7, -3, 2147483647}) {
    const StationRecord record = stations.FindStation(id);
    Require(record.Empty() || record.StationId == id, "the record of its identifier");
  }
}

// The files of a table of three stations, and of one whose entries fill more than a page; made once.
struct TableBytes {
  std::string data;
  std::string index;
};

TableBytes TableOf(std::string_view list) {
  FakeFiles files;
  files.Put(kList, list);
  DataFolder folder(files, "/d", '/');
  Require(StatList(folder).RebuildStationTable(), "a table of the list");
  return {files.Get("/d/statorg.isd").value_or(""), files.Get("/d/statorg.ism").value_or("")};
}

const TableBytes& SmallTable() {
  static const TableBytes bytes = TableOf(
      "1\tAmber Radio\tMP3\tNorway\tJazz\tlate night\r\n7\tSeven\tAAC\tJapan\tNews\t\r\n-3\tThird\r\n");
  return bytes;
}

const TableBytes& TwoPages() {
  static const TableBytes bytes = [] {
    std::string list;
    for (std::uint32_t id = 1; id <= kPageEntries + 40; ++id) list += std::to_string(id) + "\tAmber\r\n";
    return TableOf(list);
  }();
  return bytes;
}

const TableBytes& EventTable() {
  static const TableBytes bytes = [] {
    FakeFiles files;
    files.MakeFolder("/d");
    DataFolder folder(files, "/d", '/');
    EvList events(folder);
    Require(events.CreateEventTable(EventSet::Current), "an empty table");
    const EvList::Handle handle = events.OpenEventTable(EventSet::Current, EvList::OpenMode::Write);
    events.PutEvent(handle, {3, {"Late Show", "1204", "Amber", "202611231200", "60", "Jazz", "a.example"}});
    events.PutEvent(handle, {7, {"Early Show", "7", "Seven", "202611240630", "", "", "", "Once\tonly."}});
    events.PutEvent(handle, {9, {"Late Show", "-3", "Third", "202702281200", "-5", "News"}});
    events.CloseEventTable(handle);
    return TableBytes{files.Get("/d/Eventorg.isd").value_or(""), files.Get("/d/Eventorg.ism").value_or("")};
  }();
  return bytes;
}

// The table with changes after the first byte of `input`, three bytes each: the file and the place (15 bits)
// and the new byte. With an even first byte every checksum is made right again.
TableBytes Changed(TableBytes bytes, std::string_view input) {
  const bool forged = (input[0] & 1) == 0;
  for (input.remove_prefix(1); input.size() >= 3; input.remove_prefix(3)) {
    const unsigned high = static_cast<unsigned char>(input[0]);
    std::string& file = (high & 0x80) != 0 ? bytes.index : bytes.data;
    const std::size_t place = (high & 0x7F) * 256 + static_cast<unsigned char>(input[1]);
    file[place % file.size()] = input[2];
  }
  if (!input.empty()) bytes.index.resize(bytes.index.size() / 2);  // a rest cuts a file off
  if (forged) ResealTable(bytes.data, bytes.index);
  return bytes;
}

// What the schedule asks of the events around a moment.
void UseDiary(EvList& events, DataFolder& folder) {
  constexpr DateTime kNow{{2026, 11, 23}, {11, 59, 0}};
  constexpr DateTime kLater{{2026, 11, 24}, {12, 0, 0}};
  EventDiary diary(events);
  diary.Reload();
  for (const BroadcastEvent& event : diary.Coming(kNow, 5)) {
    Require(DateFromDays(DaysFromEpoch(event.gmt.date)) == event.gmt.date, "a day that there is");
    Require(kNow < event.gmt, "it comes");
    const auto next = diary.Next(event.record[EventField::Name], kNow);
    Require(next && *next <= event.gmt, "the next of its name is this one or an earlier one");
  }
  ScheduleStore store(folder, "M/d/yyyy");
  store.LoadSchedule(kNow.date);
  for (const Occurrence& start : diary.Starting(store, kNow, kLater))
    Require(start.slot < store.SlotCount(), "an item that there is");
}

}  // namespace

// A playlist that was read can be written, and comes back the same.
void FuzzPlaylist(std::string_view input) {
  const Playlist read = ReadPlaylist(input);
  Require(read.entries.size() <= Playlist::kMaxEntries, "the limit of entries");
  if (read.format == PlaylistFormat::NotAPlaylist) return;
  const Playlist again = ReadPlaylist(WritePlaylist(read));
  Require(again.entries == read.entries, "the same entries");
  Require(!again.damaged && again.skipped == 0, "all of it");
}

// The list that an update brings. A table made of it is whole, and each of its stations is found.
void FuzzStationList(std::string_view input) {
  FakeFiles files;
  files.MakeFolder("/d");
  files.Put(kList, input);
  DataFolder data(files, "/d", '/');
  StatList stations(data);
  if (!stations.RebuildStationTable()) return;
  Require(stations.Verify(), "a new table is whole");
  const TableCare expected = stations.StationCount() > 0 ? TableCare::Sound : TableCare::NoDirectory;
  Require(stations.EnsureStationTable() == expected, "a new table is that of its list");
  UseTable(stations, input.substr(0, 8));
}

// First a byte: which table, and whether the checksums are left as they are. Then changes to its files.
// Whatever a table says, it is damage that is noticed, or harmless.
void FuzzTable(std::string_view input) {
  if (input.empty()) return;
  const TableBytes bytes = Changed((input[0] & 2) == 0 ? SmallTable() : TwoPages(), input);
  FakeFiles files;
  files.Put("/d/statorg.isd", bytes.data);
  files.Put("/d/statorg.ism", bytes.index);
  DataFolder folder(files, "/d", '/');
  StatList stations(folder);
  UseTable(stations, "amber");
  Require(stations.EnsureStationTable() != TableCare::Made, "no table is made of no list");
}

// As for FuzzTable. What a damaged or forged table tells the schedule is an event or nothing, and a table
// that takes another event is whole afterwards.
void FuzzEvents(std::string_view input) {
  if (input.empty()) return;
  const TableBytes bytes = Changed(EventTable(), input);
  FakeFiles files;
  files.Put("/d/Eventorg.isd", bytes.data);
  files.Put("/d/Eventorg.ism", bytes.index);
  files.Put("/d/Sched.snr", "Late Show\tN\t\t\t\tLIVE\t\r\n");
  DataFolder folder(files, "/d", '/');
  EvList events(folder);
  UseDiary(events, folder);
  const std::vector<EventRecord> before = events.AllEvents(EventSet::Current);
  const bool whole = events.LastStatus() == TableStatus::Success;
  const EventRecord added{8, {"Added", "1", "", std::string(input.substr(0, 12))}};
  const EvList::Handle handle = events.OpenEventTable(EventSet::Current, EvList::OpenMode::Write);
  Require(events.GetEvent(handle, 7).Empty() || events.GetEvent(handle, 7).EventId == 7, "the one asked for");
  const bool put = handle != 0 && events.PutEvent(handle, added);
  events.CloseEventTable(handle);
  const bool stored = put && events.LastStatus() == TableStatus::Success;
  const std::vector<EventRecord> after = EvList(folder).AllEvents(EventSet::Current);
  Require(stored || after == before, "what could not be changed is as it was");
  Require(!stored || whole, "damage is not written over");
  Require(!stored || after.size() - before.size() <= 1, "no event is lost");
}

}  // namespace sonaro
