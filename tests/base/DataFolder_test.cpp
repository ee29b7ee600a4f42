#include "base/DataFolder.h"

#include <gtest/gtest.h>

#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

DataFolder FolderOn(FakeFiles& files) { return DataFolder(files, "/data", '/'); }

TEST(DataFolder, FindsNamesInAnyLetterCase) {
  FakeFiles files;
  files.Put("/data/Station.SNR", "s");
  files.Put("/data/depot/SShape.pts", "p");
  files.Put("/data/Straße.snr", "g");
  files.Put("/data/cat.snr", "lower");
  files.Put("/data/CAT.snr", "upper");
  const DataFolder folder = FolderOn(files);
  EXPECT_EQ(folder.Path("\\Station.snr"), "/data/Station.SNR");
  EXPECT_EQ(folder.Path("\\Depot\\sshape.pts"), "/data/depot/SShape.pts");
  EXPECT_EQ(folder.Path("\\STRASSE.snr"), "/data/Straße.snr");
  EXPECT_EQ(folder.Path("\\cat.snr"), "/data/cat.snr");  // the exact name goes first
  EXPECT_EQ(folder.Path("\\Depot\\New.pts"), "/data/Depot/New.pts");
  EXPECT_EQ(folder.Path("\\"), "/data/");
  EXPECT_TRUE(folder.Exists("\\STATION.snr"));
  EXPECT_FALSE(folder.Exists("\\station"));
  EXPECT_EQ(DataFolder(files, "C:\\Sonaro", '\\').Path("\\Depot\\a.pts"), "C:\\Sonaro\\Depot\\a.pts");
}

TEST(DataFolder, ReplacesTheFileThatIsThereWhateverItsLetterCase) {
  FakeFiles files;
  files.Put("/data/FAVS.snr", "old");
  files.Put("/data/tStation.snr", "downloaded");
  DataFolder folder = FolderOn(files);
  EXPECT_TRUE(folder.Save("\\favs.snr", "new"));
  EXPECT_TRUE(folder.Replace("\\tStation.snr", "\\Station.snr"));
  EXPECT_TRUE(folder.Remove("\\missing.snr"));
  EXPECT_EQ(files.AllPaths(), (std::vector<std::string>{"/data/FAVS.snr", "/data/Station.snr"}));
  EXPECT_EQ(files.Get("/data/FAVS.snr"), "new");
}

TEST(DataFolder, TellsMissingFromUnreadable) {
  FakeFiles files;
  files.Put("/data/empty.snr", "");
  files.Put("/data/locked.snr", "x");
  files.Lock("/data/locked.snr");
  DataFolder folder = FolderOn(files);
  EXPECT_EQ(folder.Read("\\none.snr").status, ReadStatus::Missing);
  EXPECT_EQ(folder.Read("\\empty.snr").status, ReadStatus::Ok);
  EXPECT_EQ(folder.Read("\\locked.snr").status, ReadStatus::Unreadable);
}

TEST(DataFolder, WhatCouldNotBeReadIsNotOverwritten) {
  FakeFiles files;
  files.Put("/data/favs.snr", "the user's groups");
  files.Lock("/data/favs.snr");
  DataFolder folder = FolderOn(files);
  ASSERT_EQ(folder.Read("\\favs.snr").status, ReadStatus::Unreadable);
  files.Unlock("/data/favs.snr");
  EXPECT_FALSE(folder.Save("\\FAVS.snr", "nothing"));
  EXPECT_EQ(files.Get("/data/favs.snr"), "the user's groups");
  ASSERT_EQ(folder.Read("\\favs.snr").bytes, "the user's groups");
  EXPECT_TRUE(folder.Save("\\favs.snr", "more groups"));
  EXPECT_EQ(files.Get("/data/favs.snr"), "more groups");
}

TEST(DataFolder, AFailedSaveLeavesTheOldFileAndNothingBeside) {
  FakeFiles files;
  files.Put("/data/Sched.snr", "old");
  DataFolder folder = FolderOn(files);
  files.SetSpaceLeft(2);
  EXPECT_FALSE(folder.Save("\\Sched.snr", "new and longer"));
  files.SetSpaceLeft(std::nullopt);
  files.Lock("/data/Sched.snr");
  EXPECT_FALSE(folder.Save("\\Sched.snr", "new"));
  files.Unlock("/data/Sched.snr");
  const auto reader = files.Open("/data/Sched.snr");
  EXPECT_FALSE(folder.Save("\\Sched.snr", "new"));
  EXPECT_EQ(files.Get("/data/Sched.snr"), "old");
  EXPECT_EQ(files.AllPaths().size(), 1u);
}

TEST(DataFolder, ACrashAtAnyMomentOfASaveLeavesTheOldOrTheNewFile) {
  const std::string oldText(100, 'o');
  const std::string newText(120, 'n');
  bool sawOld = false;
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) { files.Put("/data/favs.snr", oldText); },
      [&](FakeFiles& files) {
        DataFolder folder = FolderOn(files);
        const bool saved = folder.Save("\\favs.snr", newText);
        EXPECT_EQ(saved, !files.Crashed());
      },
      [&](FakeFiles& files, const CrashPoint& at) {
        DataFolder folder = FolderOn(files);
        const ReadResult read = folder.Read("\\favs.snr");
        ASSERT_EQ(read.status, ReadStatus::Ok);
        ASSERT_TRUE(read.bytes == oldText || read.bytes == newText) << "operation " << at.operation;
        sawOld = sawOld || read.bytes == oldText;
        EXPECT_TRUE(!at.completed || read.bytes == newText);
        // What the crash left beside it does not hinder the next save.
        EXPECT_TRUE(folder.Save("\\favs.snr", "next"));
        EXPECT_EQ(files.AllPaths(), std::vector<std::string>{"/data/favs.snr"});
      });
  EXPECT_EQ(operations, 4);  // create, append, commit, replace
  EXPECT_TRUE(sawOld);
}

}  // namespace
}  // namespace sonaro
