// A folder that is written again, and a machine that dies on the way.
#include <gtest/gtest.h>

#include <map>

#include "base/DataFolder.h"
#include "check/CheckFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "output/DirectoryWriter.h"
#include "stations/BuildDirectory.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

using Contents = std::map<std::string, std::string>;

Contents ContentsOf(const FakeFiles& files) {
  Contents contents;
  for (const std::string& path : files.AllPaths()) contents[path] = files.Get(path).value_or("");
  return contents;
}

Directory DirectoryOf(const std::string& kind, const char* tag) {
  std::vector<SourceStation> sources;
  for (const char* each : {"one", "two", "three"}) {
    sources.push_back(MakeStation(kind + " " + each, {std::string("http://") + each + ".example/" + kind}));
    sources.back().tags = {tag};
  }
  MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
  return BuildDirectory(std::move(sources), 0, {}, logs).directory;
}

std::string WriteInto(FakeFiles& files, const Directory& directory) {
  DataFolder data(files, "/d", '/');
  return WriteDirectory(data, directory, {}, {});
}

// Whatever is there without a mark is one directory; with the mark the next run makes it whole, and even
// before that the program finds a table of the list.
TEST(MakeCrash, AFolderIsWholeOrMarked) {
  const Directory old = DirectoryOf("Old", "jazz");
  const Directory fresh = DirectoryOf("New", "news");
  FakeFiles oldFiles;
  FakeFiles freshFiles;
  ASSERT_EQ(WriteInto(oldFiles, old), "");
  ASSERT_EQ(WriteInto(freshFiles, fresh), "");
  const Contents wholeOld = ContentsOf(oldFiles);
  const Contents wholeFresh = ContentsOf(freshFiles);
  ASSERT_NE(wholeOld, wholeFresh);
  int marked = 0;
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        for (const auto& [path, bytes] : wholeOld) files.Put(path, bytes);
      },
      [&](FakeFiles& files) { (void)WriteInto(files, fresh); },
      [&](FakeFiles& files, const CrashPoint& point) {
        SCOPED_TRACE("crash at operation " + std::to_string(point.operation));
        DataFolder data(files, "/d", '/');
        const bool isMarked = data.Exists(kUnfinishedMark);
        marked += isMarked;
        if (point.survival == AfterCrash::KeepsAll && !isMarked) {
          Contents now = ContentsOf(files);
          std::erase_if(now, [](const auto& file) { return file.first.ends_with(".new"); });
          EXPECT_TRUE(now == wholeOld || now == wholeFresh);
        }
        EXPECT_NE(StatList(data).EnsureStationTable(), TableCare::NotMade);
        const bool oldList = files.Get("/d/Station.snr") == wholeOld.at("/d/Station.snr");
        EXPECT_EQ(StatList(data).SearchStationIds("new", true).size(), oldList ? 0U : 3U);
        ASSERT_EQ(WriteInto(files, fresh), "");
        EXPECT_EQ(ContentsOf(files), wholeFresh);
        Findings findings;
        CheckFolder(data, findings);
        EXPECT_EQ(findings.Lines(), std::vector<std::string>());
      });
  EXPECT_GT(operations, 30);
  EXPECT_GT(marked, operations);
}

TEST(MakeCrash, AFullDiskChangesNothingOrLeavesTheMark) {
  FakeFiles files;
  ASSERT_EQ(WriteInto(files, DirectoryOf("Old", "jazz")), "");
  const Contents before = ContentsOf(files);
  for (const std::uint64_t space : {10U, 200U, 1000U}) {
    files.SetSpaceLeft(space);
    EXPECT_NE(WriteInto(files, DirectoryOf("New", "news")), "") << space;
    EXPECT_TRUE(ContentsOf(files) == before || files.Exists("/d/unfinished.snr")) << space;
    if (space < 500) {
      EXPECT_EQ(ContentsOf(files), before) << space;
    }
  }
}

}  // namespace
}  // namespace sonaro
