#include <string>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/ForgedTable.h"
#include "fuzz/Targets.h"
#include "mainwindow/Playlist.h"

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

}  // namespace

// A playlist that was read can be written, and comes back the same.
void FuzzPlaylist(std::string_view input) {
  const Playlist read = ReadPlaylist(input);
  Require(read.entries.size() <= Playlist::kMostEntries, "the limit of entries");
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

// First a byte: which table, and whether the checksums are left as they are. Then changes to its files, three
// bytes each: the file and the place (15 bits) and the new byte. Whatever a table says, it is damage that is
// noticed, or harmless.
void FuzzTable(std::string_view input) {
  if (input.empty()) return;
  const bool forged = (input[0] & 1) == 0;
  auto [data, index] = (input[0] & 2) == 0 ? SmallTable() : TwoPages();
  input.remove_prefix(1);
  for (; input.size() >= 3; input.remove_prefix(3)) {
    const unsigned high = static_cast<unsigned char>(input[0]);
    std::string& file = (high & 0x80) != 0 ? index : data;
    const std::size_t place = (high & 0x7F) * 256 + static_cast<unsigned char>(input[1]);
    file[place % file.size()] = input[2];
  }
  if (!input.empty()) index.resize(index.size() / 2);  // a rest cuts a file off
  if (forged) ResealTable(data, index);
  FakeFiles files;
  files.Put("/d/statorg.isd", data);
  files.Put("/d/statorg.ism", index);
  DataFolder folder(files, "/d", '/');
  StatList stations(folder);
  UseTable(stations, "amber");
  Require(stations.EnsureStationTable() != TableCare::Made, "no table is made of no list");
}

}  // namespace sonaro
