#include <cstring>
#include <string>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "directory/VmxFormat.h"
#include "fakes/FakeFiles.h"
#include "fuzz/Targets.h"
#include "mainwindow/Playlist.h"

namespace sonaro {
namespace {

constexpr const char* kList = "/d/Station.snr";

// Everything that the program does with a table.
void UseTable(StatList& stations, std::string_view word) {
  const std::vector<std::int32_t> found = stations.SearchStationIds(word, true);
  Require(found.size() <= 100, "at most a hundred are found");
  for (const StationRecord& record : stations.GetStations(found))
    Require(!record.Empty(), "what is found is there");
  for (const std::int32_t id : {1, 7, -3, 2147483647}) {
    const StationRecord record = stations.FindStation(id);
    Require(record.Empty() || record.StationId == id, "the record of its identifier");
  }
  stations.StationCount();
}

// The table of three stations, made once.
const FakeFiles& TableOfThree() {
  static const FakeFiles* const files = [] {
    auto* made = new FakeFiles;
    made->MakeFolder("/d");
    made->Put(
        kList,
        "1\tAmber Radio\tMP3\tNorway\tJazz\tlate night\r\n7\tSeven\tAAC\tJapan\tNews\t\r\n-3\tThird\r\n");
    DataFolder data(*made, "/d", '/');
    StatList(data).RebuildStationTable();
    return made;
  }();
  return *files;
}

// Puts the header's own checksum right again, so that what it says is looked at.
template <typename Header>
void SealAgain(std::string& bytes) {
  Header header{};
  if (bytes.size() < sizeof header) return;
  std::memcpy(&header, bytes.data(), sizeof header);
  bytes.replace(0, sizeof header, Seal(header));
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
  UseTable(stations, input.substr(0, 8));
}

// Changes to a table's files: three bytes each, the file and the place (15 bits) and the new byte. Damage is
// noticed or harmless.
void FuzzTable(std::string_view input) {
  FakeFiles files;
  files.MakeFolder("/d");
  std::string data = TableOfThree().Get("/d/statorg.isd").value_or("");
  std::string index = TableOfThree().Get("/d/statorg.ism").value_or("");
  Require(!data.empty() && !index.empty(), "there is a table");
  for (; input.size() >= 3; input.remove_prefix(3)) {
    const unsigned high = static_cast<unsigned char>(input[0]);
    std::string& file = (high & 0x80) != 0 ? index : data;
    const std::size_t place = (high & 0x7F) * 256 + static_cast<unsigned char>(input[1]);
    file[place % file.size()] = input[2];
  }
  if (!input.empty()) index.resize(index.size() / 2);  // a rest cuts a file off
  SealAgain<DataHeader>(data);
  SealAgain<IndexHeader>(index);
  files.Put("/d/statorg.isd", data);
  files.Put("/d/statorg.ism", index);
  DataFolder folder(files, "/d", '/');
  StatList stations(folder);
  UseTable(stations, "amber");
  stations.Verify();
}

}  // namespace sonaro
