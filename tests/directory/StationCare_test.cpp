// The table at the start of the program: whether it is the table of the list that is there.
#include <gtest/gtest.h>

#include <functional>

#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

constexpr const char* kListFile = "/data/Station.snr";
constexpr const char* kData = "/data/statorg.isd";
constexpr const char* kIndex = "/data/statorg.ism";

class StationCare : public testing::Test {
 protected:
  StationCare() { Install("1\tOld\n"); }
  void Install(const std::string& list) {
    files_ = FakeFiles();
    files_.Put(kListFile, list);
    ASSERT_TRUE(StatList(data_).RebuildStationTable());
  }
  std::string Name() { return StatList(data_).FindStation(1)[StationField::Name]; }

  FakeFiles files_;
  DataFolder data_{files_, "/data", '/'};
};

TEST_F(StationCare, EverySituationHasOneAnswer) {
  const struct {
    const char* what;
    std::function<void()> happens;
    TableCare care;
    const char* name;  // of station 1 afterwards
  } cases[] = {
      {"nothing", [] {}, TableCare::Sound, "Old"},
      {"a list of another length", [&] { files_.Put(kListFile, "1\tNewer\n"); }, TableCare::Made, "Newer"},
      {"a list of the same length", [&] { files_.Put(kListFile, "1\tNew\n"); }, TableCare::Made, "New"},
      {"no table", [&] { files_.Remove(kData), files_.Remove(kIndex); }, TableCare::Made, "Old"},
      {"half a table", [&] { files_.Remove(kIndex); }, TableCare::Made, "Old"},
      {"a damaged table", [&] { files_.Put(kData, "x"); }, TableCare::Made, "Old"},
      {"a table changed by hand",
       [&] {
         StatList stations(data_);
         const auto handle = stations.OpenStationTable("\\statorg", StatList::OpenMode::Write);
         stations.PutStation(handle, {1, {"Mine"}});
         stations.CloseStationTable(handle);
       },
       TableCare::Made, "Old"},
      {"no list", [&] { files_.Remove(kListFile); }, TableCare::Sound, "Old"},
      {"a list without a station", [&] { files_.Put(kListFile, "\0\0\0\n"); }, TableCare::Sound, "Old"},
      {"a list in use", [&] { files_.Lock(kListFile); }, TableCare::Sound, "Old"},
      {"a list in use and no table", [&] { files_.Remove(kData), files_.Lock(kListFile); },
       TableCare::NotMade, ""},
      {"a list in use and a damaged table", [&] { files_.Put(kData, "x"), files_.Lock(kListFile); },
       TableCare::NotMade, ""},
      {"a full disk", [&] { files_.Put(kListFile, "1\tNew\n"), files_.SetSpaceLeft(9); }, TableCare::NotMade,
       "Old"},
      {"a damaged table and no list", [&] { files_.Put(kData, "x"), files_.Remove(kListFile); },
       TableCare::NoDirectory, ""},
      {"a table of an empty list", [&] { files_.Put(kListFile, ""), StatList(data_).RebuildStationTable(); },
       TableCare::NoDirectory, ""},
  };
  for (const auto& c : cases) {
    Install("1\tOld\n");
    c.happens();
    EXPECT_EQ(StatList(data_).EnsureStationTable(), c.care) << c.what;
    EXPECT_EQ(Name(), c.name) << c.what;
    if (c.care == TableCare::NoDirectory) {
      EXPECT_FALSE(files_.Exists(kData) || files_.Exists(kIndex)) << c.what;
    }
  }
}

// The start pays for what it learns: a list of another length is not read to find that out, and nothing is
// read twice.
TEST_F(StationCare, ReadsNoMoreThanItMust) {
  std::string list;
  for (int id = 1; id <= 3000; ++id)
    list += std::to_string(id) + "\tStation\t" + std::string(400, 'x') + "\n";
  Install(list);
  constexpr std::uint64_t kHeaders = 4096;           // and page directories
  constexpr std::uint64_t kFirstPiece = 256 * 1024;  // of the list, to see that it holds a station
  const auto readBy = [&](TableCare expected) {
    const std::uint64_t before = files_.BytesRead();
    EXPECT_EQ(StatList(data_).EnsureStationTable(), expected);
    return files_.BytesRead() - before;
  };
  const std::uint64_t table = files_.Get(kData)->size() + files_.Get(kIndex)->size();
  EXPECT_LE(readBy(TableCare::Sound), list.size() + table + kHeaders);
  const std::uint64_t before = files_.BytesRead();
  EXPECT_EQ(StatList(data_).EnsureStationTable(TableCheck::Lengths), TableCare::Sound);
  EXPECT_LE(files_.BytesRead() - before, 2 * kHeaders) << "before the window is painted";
  files_.Put(kListFile, list + "4000\tNew\n");
  EXPECT_LE(readBy(TableCare::Made), kFirstPiece + list.size() + kHeaders);
  files_.Put(kListFile, list + "4000\tOld\n");
  EXPECT_LE(readBy(TableCare::Made), kFirstPiece + 2 * list.size() + kHeaders);
}

}  // namespace
}  // namespace sonaro
