// What every file system of the program keeps to: the one in memory, and the one of the machine the tests run
// on.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "base/DataFolder.h"
#include "contract/ScratchFolder.h"
#include "fakes/FakeFiles.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win/FilesWin.h"
#else
#include "platform/posix/FilesPosix.h"
#endif

namespace sonaro {
namespace {

struct FilesInMemory {
  FilesInMemory() { files.MakeFolder("/scratch"); }
  FakeFiles files;
  std::string folder = "/scratch/";
};

struct FilesOnDisk {
#ifdef _WIN32
  FilesWin files;
  static constexpr char kSeparator = '\\';
#else
  FilesPosix files;
  static constexpr char kSeparator = '/';
#endif
  ScratchFolder scratch;
  std::string folder = scratch.Path() + kSeparator;
};

template <typename World>
class FilesContract : public testing::Test {
 protected:
  std::string In(const std::string& name) const { return world_.folder + name; }
  bool Write(const std::string& path, std::string_view bytes) {
    const auto file = Disk().Create(path);
    return file && file->Append(bytes) && file->Commit(Durability::Flushed);
  }
  std::string Content(const std::string& path) {
    const ReadResult read = ReadWholeFile(Disk(), path);
    return read.status == ReadStatus::Ok ? read.bytes : "(not readable)";
  }
  std::vector<std::string> Names(const std::string& folder) {
    std::vector<std::string> names = Disk().List(folder);
    std::sort(names.begin(), names.end());
    return names;
  }
  Files& Disk() { return world_.files; }

  World world_;
};

using FilesWorlds = testing::Types<FilesInMemory, FilesOnDisk>;
TYPED_TEST_SUITE(FilesContract, FilesWorlds);

TYPED_TEST(FilesContract, WhatIsMissing) {
  EXPECT_FALSE(this->Disk().Open(this->In("none")));
  EXPECT_FALSE(this->Disk().Exists(this->In("none")));
  EXPECT_FALSE(this->Disk().Create(this->In("none") + "/file"));
  EXPECT_TRUE(this->Disk().List(this->In("none")).empty());
  EXPECT_TRUE(this->Disk().Remove(this->In("none")));
  ASSERT_TRUE(this->Write(this->In("kept"), "old"));
  EXPECT_FALSE(this->Disk().Replace(this->In("none"), this->In("kept"), Durability::Cached));
  EXPECT_EQ(this->Content(this->In("kept")), "old");
}

TYPED_TEST(FilesContract, WritesPiecesAndReadsAnyStretch) {
  const std::string path = this->In("pieces");
  const std::string zeros("a\0b\r\n\x1A\xFF", 7);
  const std::string large(3'000'000, 'L');
  const auto out = this->Disk().Create(path);
  ASSERT_TRUE(out);
  EXPECT_TRUE(out->Append("head"));
  EXPECT_TRUE(out->Append(zeros));
  EXPECT_TRUE(out->Append(""));
  EXPECT_TRUE(out->Append(large));
  EXPECT_TRUE(out->WriteAt(0, "HE"));
  EXPECT_FALSE(out->WriteAt(large.size() + 10, "xx"));  // one byte beyond what was appended
  EXPECT_TRUE(out->Append("end"));                      // still goes to the end
  EXPECT_TRUE(out->Commit(Durability::Cached));
  EXPECT_FALSE(out->Append("late"));
  EXPECT_FALSE(out->Commit(Durability::Cached));

  const auto in = this->Disk().Open(path);
  const auto second = this->Disk().Open(path);
  ASSERT_TRUE(in && second);
  EXPECT_EQ(in->Size(), 4 + 7 + large.size() + 3);
  std::string buffer(11, '?');
  EXPECT_TRUE(in->ReadAt(0, buffer.data(), 11));
  EXPECT_EQ(buffer, "HEad" + zeros);
  EXPECT_TRUE(in->ReadAt(in->Size() - 3, buffer.data(), 3));
  EXPECT_TRUE(second->ReadAt(3, buffer.data() + 3, 2));
  EXPECT_EQ(buffer.substr(0, 5), "endda");
  EXPECT_TRUE(in->ReadAt(in->Size(), buffer.data(), 0));
  EXPECT_FALSE(in->ReadAt(in->Size() - 2, buffer.data(), 3));
  EXPECT_FALSE(in->ReadAt(in->Size() + 1, buffer.data(), 0));
  EXPECT_FALSE(in->ReadAt(UINT64_MAX, buffer.data(), 2));
}

TYPED_TEST(FilesContract, CreateEmptiesAndLeavingOffLeavesWhatWasWritten) {
  const std::string path = this->In("again");
  ASSERT_TRUE(this->Write(path, "a long old content"));
  this->Disk().Create(path)->Append("short");
  EXPECT_EQ(this->Content(path), "short");
  ASSERT_TRUE(this->Write(path, ""));
  EXPECT_EQ(this->Content(path), "");
}

TYPED_TEST(FilesContract, ReplaceMovesOntoAnyName) {
  ASSERT_TRUE(this->Write(this->In("from"), "new"));
  ASSERT_TRUE(this->Write(this->In("to"), "the old one"));
  EXPECT_TRUE(this->Disk().Replace(this->In("from"), this->In("to"), Durability::Flushed));
  EXPECT_EQ(this->Content(this->In("to")), "new");
  EXPECT_FALSE(this->Disk().Exists(this->In("from")));
  EXPECT_TRUE(this->Disk().Replace(this->In("to"), this->In("elsewhere"), Durability::Cached));
  EXPECT_EQ(this->Content(this->In("elsewhere")), "new");
  ASSERT_TRUE(this->Disk().MakeFolder(this->In("folder")));
  EXPECT_FALSE(this->Disk().Replace(this->In("elsewhere"), this->In("folder"), Durability::Cached));
  EXPECT_EQ(this->Content(this->In("elsewhere")), "new");
}

#ifdef _WIN32
// A scanner that has the file for a moment is waited for, whatever is to be done with the file; one that
// keeps it is waited for ten times.
TEST(FilesWinPatience, EveryOperationWaitsForAFileInUse) {
  const ScratchFolder scratch;
  const std::string path = scratch.Path() + "\\mine";
  HANDLE holder = INVALID_HANDLE_VALUE;
  int pauses = 0;
  int heldFor = 0;
  FilesWin disk([&] {
    if (++pauses == heldFor) CloseHandle(holder);
  });
  const auto write = [&](const std::string& where) {
    const auto file = disk.Create(where);
    return file && file->Append("mine") && file->Commit(Durability::Cached);
  };
  struct Case {
    const char* what;
    std::function<bool()> act;
  };
  const Case cases[] = {
      {"read", [&] { return ReadWholeFile(disk, path).status == ReadStatus::Ok; }},
      {"write", [&] { return write(path); }},
      {"replace", [&] { return disk.Replace(path + ".new", path, Durability::Cached); }},
      {"remove", [&] { return disk.Remove(path); }},
  };
  for (const Case& c : cases) {
    ASSERT_TRUE(write(path) && write(path + ".new"));
    for (const int shortly : {3, 100}) {
      pauses = 0;
      heldFor = shortly;
      holder = CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
      ASSERT_NE(holder, INVALID_HANDLE_VALUE);
      const bool done = shortly == 100 ? !c.act() : c.act();
      EXPECT_TRUE(done) << c.what << " " << shortly;
      EXPECT_EQ(pauses, shortly == 100 ? 9 : 3) << c.what;
      if (shortly == 100) CloseHandle(holder);
      ASSERT_TRUE(write(path) && write(path + ".new"));
    }
  }
}
#endif

// Systems differ in whether a file that is being read can be replaced; none may leave half a job.
TYPED_TEST(FilesContract, ReplacingAFileInUseIsWholeOrNotAtAll) {
  ASSERT_TRUE(this->Write(this->In("from"), "new"));
  ASSERT_TRUE(this->Write(this->In("to"), "old"));
  auto reader = this->Disk().Open(this->In("to"));
  ASSERT_TRUE(reader);
  const bool replaced = this->Disk().Replace(this->In("from"), this->In("to"), Durability::Flushed);
  std::string seen(3, '?');
  EXPECT_TRUE(reader->ReadAt(0, seen.data(), 3));
  EXPECT_EQ(seen, "old");
  EXPECT_EQ(this->Content(this->In("to")), replaced ? "new" : "old");
  EXPECT_EQ(this->Content(this->In("from")), replaced ? "(not readable)" : "new");
  reader.reset();
  EXPECT_TRUE(replaced || this->Disk().Replace(this->In("from"), this->In("to"), Durability::Flushed));
  EXPECT_EQ(this->Content(this->In("to")), "new");
}

TYPED_TEST(FilesContract, FoldersAreMadeListedAndNotTakenForFiles) {
  EXPECT_TRUE(this->Disk().MakeFolder(this->In("one/two")));
  EXPECT_TRUE(this->Disk().MakeFolder(this->In("one/two")));
  ASSERT_TRUE(this->Write(this->In("one/Gr\u00F6\u00DFe \u96FB.snr"), "x"));
  ASSERT_TRUE(this->Write(this->In("one/two/inner"), "y"));
  EXPECT_EQ(this->Names(this->In("one")), (std::vector<std::string>{"Gr\u00F6\u00DFe \u96FB.snr", "two"}));
  EXPECT_TRUE(this->Disk().Exists(this->In("one/two")));
  EXPECT_FALSE(this->Disk().Open(this->In("one/two")));
  EXPECT_FALSE(this->Disk().Create(this->In("one/two")));
  EXPECT_FALSE(this->Disk().Remove(this->In("one/two")));
  EXPECT_FALSE(this->Disk().MakeFolder(this->In("one/two/inner")));
  EXPECT_TRUE(this->Disk().Remove(this->In("one/two/inner")));
  EXPECT_TRUE(this->Names(this->In("one/two")).empty());
}

}  // namespace
}  // namespace sonaro
