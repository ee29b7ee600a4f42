#include <gtest/gtest.h>

#include <random>

#include "directory/StationFolder.h"
#include "directory/VmxFormat.h"

namespace sonaro {
namespace {

constexpr const char* kList = "/data/Station.snr";

TEST(StationRebuild, EveryKindOfLineHasADefinedResult) {
  const struct {
    const char* what;
    std::string list;
    std::vector<std::pair<std::int32_t, std::string>> names;  // in key order
  } cases[] = {
      {"empty list", "", {}},
      {"no end on the last line", "1\tA\n2\tB", {{1, "A"}, {2, "B"}}},
      {"carriage returns", "1\tA\r\n2\tB\r\n", {{1, "A"}, {2, "B"}}},
      {"blank lines", "\n\r\n1\tA\n\n", {{1, "A"}}},
      {"byte order mark",
       "\xEF\xBB\xBF"
       "1\tA\n2\tB\n",
       {{1, "A"}, {2, "B"}}},
      {"byte order mark, out of order",
       "\xEF\xBB\xBF"
       "2\tB\n1\tA\n",
       {{1, "A"}, {2, "B"}}},
      {"zero is no station", "0\tA\n1\tB\n-0\tC\n", {{1, "B"}}},
      {"signed order", "5\tE\n-3\tA\n-1\tB\n", {{-3, "A"}, {-1, "B"}, {5, "E"}}},
      {"limits of 32 bits",
       "-2147483648\tA\n2147483647\tB\n2147483648\tC\n-2147483649\tD\n99999999999999999999\tE\n",
       {{-2147483648, "A"}, {2147483647, "B"}}},
      {"not a number", "x\tA\n1x\tB\n\tC\n1 2\tD\n1.5\tE\nhello\n7\tF\n", {{7, "F"}}},
      {"blanks and plus signs", " 4\tA\n+5 \tB\n", {{4, "A"}, {5, "B"}}},
      {"leading zeros", "0000000000007\tA\n", {{7, "A"}}},
      {"identifier alone", "3\n", {{3, ""}}},
      {"the later of two lines", "1\tA\n2\tB\n1\tC\n2\tD\n2\tE\n", {{1, "C"}, {2, "E"}}},
      {"the later of two neighbours", "1\tA\n1\tB\n", {{1, "B"}}},
      {"null bytes", std::string("1\tA\0B\n2\tC\n", 11), {{1, std::string("A\0B", 3)}, {2, "C"}}},
      {"a line of a megabyte",
       "1\tA\n2\t" + std::string(1 << 20, 'x') + "\n3\tC\n",
       {{1, "A"}, {2, std::string(1 << 20, 'x')}, {3, "C"}}},
  };
  for (const auto& c : cases) {
    StationFolder folder;
    ASSERT_TRUE(folder.Rebuild(c.list)) << c.what;
    EXPECT_TRUE(folder.stations.Verify()) << c.what;
    EXPECT_EQ(folder.stations.StationCount(), c.names.size()) << c.what;
    for (const auto& [id, name] : c.names) {
      const StationRecord record = folder.stations.FindStation(id);
      EXPECT_EQ(record.StationId, id) << c.what;
      EXPECT_EQ(record[StationField::Name], name) << c.what;
    }
  }
}

// The end of a line at, before and behind the end of what is read at once.
TEST(StationRebuild, LinesAcrossTheReadBuffer) {
  for (std::size_t length = 256 * 1024 - 6; length < 256 * 1024 + 4; ++length) {
    StationFolder folder;
    ASSERT_TRUE(folder.Rebuild("1\t" + std::string(length, 'x') + "\r\n2\tB\n"));
    EXPECT_EQ(folder.stations.FindStation(1)[StationField::Name].size(), length);
    EXPECT_EQ(folder.stations.FindStation(2)[StationField::Name], "B") << length;
  }
}

TEST(StationRebuild, MissingFieldsAreEmptyAndSurplusBelongsToTheLast) {
  StationFolder folder;
  ASSERT_TRUE(folder.Rebuild("1\ta\tb\n2\t1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\t14\t15\t16\t17\t\r\n"));
  StationRecord expected{1, {"a", "b"}};
  EXPECT_EQ(folder.stations.FindStation(1), expected);
  expected = {2,
              {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16\t17\t"}};
  EXPECT_EQ(folder.stations.FindStation(2), expected);
}

// Enough stations for several pages, blocks and read buffers, with identifiers over the whole range.
std::vector<std::string> ManyLines() {
  std::vector<std::string> lines;
  for (int i = -2000; i < 2000; ++i) {
    const std::int64_t id = i * std::int64_t{1'073'741};
    const auto length = static_cast<std::size_t>(i + 2000) % 300;
    if (id != 0) lines.push_back(std::to_string(id) + "\tÉcho " + std::string(length, '.') + "\tWM\n");
  }
  return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string list;
  for (const std::string& line : lines) list += line;
  return list;
}

TEST(StationRebuild, OrderOfTheListDoesNotMatter) {
  std::vector<std::string> lines = ManyLines();
  StationFolder inOrder;
  ASSERT_TRUE(inOrder.Rebuild(Joined(lines)));
  EXPECT_EQ(inOrder.stations.StationCount(), lines.size());
  EXPECT_EQ(inOrder.stations.FindStation(-1'073'741)[StationField::Name].size(), 1999 % 300 + 6);

  std::shuffle(lines.begin(), lines.end(), std::mt19937(7));
  StationFolder shuffled;
  ASSERT_TRUE(shuffled.Rebuild(lines[5] + Joined(lines)));
  EXPECT_TRUE(inOrder.files.Get("/data/statorg.isd") == shuffled.files.Get("/data/statorg.isd"));
  const auto behindHeader = [](const FakeFiles& files) {  // which tells the list
    return files.Get("/data/statorg.ism")->substr(sizeof(IndexHeader));
  };
  EXPECT_TRUE(behindHeader(inOrder.files) == behindHeader(shuffled.files));
}

// The state of the table: "old", "new", a status when it does not open, or what is wrong with it.
std::string StateOf(FakeFiles& files, const std::vector<StationRecord>& old,
                    const std::vector<StationRecord>& fresh) {
  DataFolder data(files, "/data", '/');
  StatList stations(data);
  const std::vector<StationRecord> found = stations.SearchStations("station", true);
  if (stations.LastStatus() != TableStatus::Success) return "status";
  if (found == old || found == fresh) return stations.Verify() ? (found == old ? "old" : "new") : "not sound";
  return "wrong records";
}

// Few and large, so that every file takes several writes.
std::vector<StationRecord> Stations(int count, const std::string& kind) {
  std::vector<StationRecord> records;
  for (int id = 1; id <= count; ++id) {
    records.push_back({id, {"Station " + kind, "WM", "", "", std::string(10'000, 'd')}});
  }
  return records;
}

// A folder with the table of the old stations, safely on the disk, and the list of the fresh ones.
void Prepare(FakeFiles& files, const std::vector<StationRecord>& old,
             const std::vector<StationRecord>& fresh) {
  DataFolder data(files, "/data", '/');
  files.Put(kList, ListOf(old));
  ASSERT_TRUE(StatList(data).RebuildStationTable());
  for (const char* path : {"/data/statorg.isd", "/data/statorg.ism"}) files.Put(path, *files.Get(path));
  files.Put(kList, ListOf(fresh));
}

TEST(StationRebuild, CrashAtAnyOperationLeavesTheOldOrTheNewTable) {
  const std::vector<StationRecord> old = Stations(3, "old");
  const std::vector<StationRecord> fresh = Stations(7, "new");
  std::set<std::string> seen;
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) { Prepare(files, old, fresh); },
      [](FakeFiles& files) {
        DataFolder data(files, "/data", '/');
        StatList(data).RebuildStationTable();
      },
      [&](FakeFiles& files, const CrashPoint& point) {
        const std::string state = StateOf(files, old, fresh);
        seen.insert(state);
        if (point.survival == AfterCrash::KeepsAll) {
          EXPECT_TRUE(state == (point.completed ? "new" : "old") || (state == "new" && point.operation > 1))
              << state << " after operation " << point.operation;
        } else {  // what was not flushed is gone: a status is all right, a wrong table is not
          EXPECT_TRUE(state == "old" || state == "new" || state == "status") << state;
        }
        DataFolder data(files, "/data", '/');
        EXPECT_TRUE(StatList(data).RebuildStationTable());
        EXPECT_EQ(StateOf(files, old, fresh), "new") << "repaired after operation " << point.operation;
      });
  EXPECT_GT(operations, 8);
  EXPECT_TRUE(seen.contains("old") && seen.contains("new"));
}

// A crash between the two steps of the swap, then one in the next rebuild: the swap must have been completed
// before its second half is written over.
TEST(StationRebuild, TwoCrashesInARowStillLeaveATable) {
  const std::vector<StationRecord> old = Stations(3, "old");
  const std::vector<StationRecord> fresh = Stations(7, "new");
  ForEachCrashPoint(
      [&](FakeFiles& files) {
        Prepare(files, old, fresh);
        DataFolder data(files, "/data", '/');
        ASSERT_TRUE(StatList(data).RebuildStationTable());
        files.Put("/data/statorg.ism.new", *files.Get("/data/statorg.ism"));
        files.Put("/data/statorg.ism", "the old index");
      },
      [](FakeFiles& files) {
        DataFolder data(files, "/data", '/');
        StatList(data).RebuildStationTable();
      },
      [&](FakeFiles& files, const CrashPoint& point) {
        if (point.survival == AfterCrash::KeepsAll) {
          EXPECT_EQ(StateOf(files, old, fresh), "new");
        }
      });
}

TEST(StationRebuild, FailureLeavesTheOldTableAndNothingBeside) {
  const std::vector<StationRecord> old = Stations(3, "old");
  const std::vector<StationRecord> fresh = Stations(7, "new");
  bool fits = false;
  for (std::uint64_t space = 0; !fits; space += 10'000) {
    FakeFiles files;
    Prepare(files, old, fresh);
    files.SetSpaceLeft(space);
    DataFolder data(files, "/data", '/');
    StatList stations(data);
    fits = stations.RebuildStationTable();
    EXPECT_EQ(stations.LastStatus(), fits ? TableStatus::Success : TableStatus::NotWritten);
    EXPECT_EQ(StateOf(files, old, fresh), fits ? "new" : "old") << space;
    EXPECT_EQ(files.AllPaths().size(), 3u) << space;
  }

  StationFolder folder;
  EXPECT_FALSE(folder.stations.RebuildStationTable()) << "no list";
  EXPECT_TRUE(folder.files.AllPaths().empty());
}

TEST(StationRebuild, TablesInUse) {
  const std::vector<StationRecord> old = Stations(3, "old");
  const std::vector<StationRecord> fresh = Stations(7, "new");
  FakeFiles files;
  Prepare(files, old, fresh);
  DataFolder data(files, "/data", '/');
  StatList stations(data);

  const StatList::Handle handle = stations.OpenStationTable("\\statorg", StatList::OpenMode::Read);
  EXPECT_FALSE(stations.RebuildStationTable());
  EXPECT_EQ(stations.GetStation(handle, 2), old[1]);
  stations.CloseStationTable(handle);
  EXPECT_EQ(StateOf(files, old, fresh), "old");

  std::unique_ptr<InputFile> reader = files.Open("/data/statorg.ism");
  EXPECT_TRUE(stations.RebuildStationTable()) << "only the second step of the swap is left";
  EXPECT_EQ(StateOf(files, old, fresh), "new");
  EXPECT_EQ(files.AllPaths().size(), 4u);
  reader.reset();
  EXPECT_EQ(stations.StationCount(), 7u);
  EXPECT_EQ(files.AllPaths().size(), 3u) << "the step is made up for";
}

}  // namespace
}  // namespace sonaro
