#include "base/UserFile.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

using Seen = UserFile::Seen;

class UserFileTest : public testing::Test {
 protected:
  static constexpr const char* kPath = "/d/favs.snr";
  std::string OnDisk(const std::string& path = kPath) const { return files.Get(path).value_or("(none)"); }

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  UserFile file{data, "\\favs.snr"};
};

TEST_F(UserFileTest, ReadsWhatOtherProgramsMadeOfAText) {
  struct Case {
    const char* what;
    std::string bytes;
    std::string text;
    bool keptBeside;
  };
  const auto bytes = [](const auto& literal) { return std::string(literal, sizeof literal - 1); };
  const Case cases[] = {
      {"plain", "Jazz\t1\r\n", "Jazz\t1\r\n", false},
      {"an old code page", "\xC9t\xE9\t1\r\n", "\xC9t\xE9\t1\r\n", false},
      {"UTF-8 with a mark", "\xEF\xBB\xBFJazz\t1\r\n", "Jazz\t1\r\n", false},
      {"UTF-16", bytes("\xFF\xFEJ\0\xE9\0\t\0\x31\0"), "J\xC3\xA9\t1", false},
      {"UTF-16, the other order", bytes("\xFE\xFF\0J\0\xE9\xD8\x34\xDD\x1E"), "J\xC3\xA9\xF0\x9D\x84\x9E",
       false},
      {"half a unit", bytes("\xFF\xFEJ\0\x31"), "", true},
      {"half a character", bytes("\xFF\xFE\x34\xD8J\0"), "", true},
      {"zeros of a power cut", std::string(20, '\0'), "", true},
      {"UTF-16 without a mark", bytes("J\0\x31\0"), "", true},
  };
  for (const Case& c : cases) {
    FakeFiles disk;
    disk.Put(kPath, c.bytes);
    DataFolder folder(disk, "/d", '/');
    UserFile one(folder, "\\favs.snr");
    EXPECT_EQ(one.Look(), Seen::Changed) << c.what;
    EXPECT_EQ(one.Text(), c.text) << c.what;
    EXPECT_EQ(one.Look(), Seen::Same) << c.what;
    EXPECT_EQ(disk.Get("/d/favs.snr.bad"), c.keptBeside ? std::optional(c.bytes) : std::nullopt) << c.what;
    EXPECT_EQ(folder.TakeNotes().size(), c.keptBeside ? 1U : 0U) << c.what;
    EXPECT_TRUE(one.Save("new")) << c.what;
    EXPECT_EQ(disk.Get(kPath), "new") << c.what;
  }
}

TEST_F(UserFileTest, ATextThatBeginsLikeAMarkComesBackWhole) {
  for (const std::string text : {"\xEF\xBB\xBFJazz", "\xFF\xFEJazz!", "\xFE\xFF Jazz", "\xEF\xBBJazz"}) {
    files.Put(kPath, "");
    EXPECT_EQ(file.Look(), Seen::Changed);
    EXPECT_TRUE(file.Save(text));
    EXPECT_EQ(file.Look(), Seen::Same);
    UserFile again(data, "\\favs.snr");
    EXPECT_EQ(again.Look(), Seen::Changed);
    EXPECT_EQ(again.Text(), text);
  }
}

TEST_F(UserFileTest, WhatIsKeptBesideIsNeverWrittenOverAndKeptOnce) {
  files.Put(kPath, std::string(3, '\0'));
  files.Put("/d/favs.snr.bad", "an older one");
  for (int start = 0; start < 2; ++start) {
    UserFile again(data, "\\favs.snr");
    EXPECT_EQ(again.Look(), Seen::Changed);
    const std::vector<FileNote> notes = data.TakeNotes();
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].name, "favs.snr");
    EXPECT_EQ(notes[0].beside, "favs.snr.bad2");
  }
  EXPECT_EQ(OnDisk("/d/favs.snr.bad"), "an older one");
  EXPECT_EQ(OnDisk("/d/favs.snr.bad2"), std::string(3, '\0'));
  EXPECT_EQ(files.AllPaths().size(), 3U);
}

TEST_F(UserFileTest, WithoutRoomForTheCopyTheDamagedFileStays) {
  files.Put(kPath, std::string(3, '\0'));
  files.SetSpaceLeft(1);
  EXPECT_EQ(file.Look(), Seen::Unreadable);
  files.SetSpaceLeft(std::nullopt);
  EXPECT_FALSE(file.Save("new"));
  EXPECT_EQ(OnDisk(), std::string(3, '\0'));
  EXPECT_EQ(file.Look(), Seen::Changed);
  EXPECT_TRUE(file.Save("new"));
}

TEST_F(UserFileTest, ALockedFileIsNotedOnceReadAgainAndNeverWrittenOver) {
  files.Put(kPath, "mine");
  files.Lock(kPath);
  EXPECT_EQ(file.Look(), Seen::Unreadable);
  EXPECT_EQ(file.Look(), Seen::Unreadable);
  EXPECT_EQ(data.TakeNotes().size(), 1U);
  files.Unlock(kPath);
  EXPECT_FALSE(file.Save("nothing"));
  EXPECT_EQ(OnDisk(), "mine");
  EXPECT_EQ(file.Look(), Seen::Changed);
  EXPECT_EQ(file.Text(), "mine");
  EXPECT_TRUE(file.Save("mine and more"));
  EXPECT_EQ(file.Look(), Seen::Same);

  files.Lock(kPath);  // in use for a moment, later
  EXPECT_EQ(file.Look(), Seen::Unreadable);
  EXPECT_EQ(file.Text(), "mine and more");
  EXPECT_TRUE(data.TakeNotes().empty());
}

TEST_F(UserFileTest, SeesWhatOthersWriteAndOutlivesAFileThatVanished) {
  files.Put(kPath, "mine");
  EXPECT_EQ(file.Look(), Seen::Changed);
  files.Put(kPath, "theirs");
  EXPECT_EQ(file.Look(), Seen::Changed);
  EXPECT_EQ(file.Text(), "theirs");
  ASSERT_TRUE(files.Remove(kPath));
  EXPECT_EQ(file.Look(), Seen::Same);
  EXPECT_EQ(file.Text(), "theirs");
  files.SetSpaceLeft(2);
  EXPECT_FALSE(file.Save("long"));
  EXPECT_EQ(file.Text(), "theirs") << "what was not written is not known";
}

}  // namespace
}  // namespace sonaro
