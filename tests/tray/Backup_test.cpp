// A backup and its restoring: what comes back, what is refused, and a machine that dies meanwhile.
#include "tray/Backup.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/crypto/Signing.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr const char* kPath = "/u/mine.sonaro";
constexpr const char* kBefore = "/d/before-restore.sonaro";

// The program on some files, from one start to its end.
struct Session {
  explicit Session(FakeFiles& files, FakeRegistry& registry) : data(files, "/d", '/'), reg(registry) {}
  DataFolder data;
  CReg reg;
  FakeClock clock;
  Backup backup{data, reg, clock};
};

void Put(FakeFiles& files, FakeRegistry& registry, const std::string& state) {
  for (const char* name :
       {"favs.snr", "ownlinks.snr", "personal.snr", "recent.snr", "Sched.snr", "Shows.snr"})
    files.Put("/d/" + std::string(name), name + (" of " + state));
  for (const char* name : {"FacePlateName", "FacePlateColorText", "PinnedSearches", "ProxyAddress"})
    registry.Put(RootKey::LocalMachine, kSettingsKey, name, state);
}

std::string Setting(const FakeRegistry& registry, const char* name) {
  const auto value = registry.Stored(RootKey::LocalMachine, kSettingsKey, name);
  return value ? value->bytes : "(none)";
}

// All of it is of one state: "old", "new", or "mixed".
std::string StateOf(const FakeFiles& files, const FakeRegistry& registry) {
  for (const std::string state : {"old", "new"}) {
    FakeFiles wholeFiles;
    FakeRegistry wholeRegistry;
    Put(wholeFiles, wholeRegistry, state);
    bool same =
        Setting(registry, "FacePlateColorText") == state && Setting(registry, "FacePlateName") == state;
    for (const std::string& path : wholeFiles.AllPaths())
      same = same && files.Get(path) == wholeFiles.Get(path);
    if (same) return state;
  }
  return "mixed";
}

class BackupTest : public testing::Test {
 protected:
  BackupTest() {
    files_.MakeFolder("/u");
    Put(files_, registry_, "old");
  }
  // What a backup says in the place of its own last line.
  std::string Sealed(const std::string& text) { return text + "sha256 " + Sha256Hex(text) + "\n"; }
  std::string Restore(const std::string& path) {
    if (!Session(files_, registry_).backup.RestoreAtStart(session_.backup.Read(path))) return "refused";
    Session next(files_, registry_);
    next.backup.FinishRestore();
    last_ = next.backup.TakeRestored();
    return StateOf(files_, registry_);
  }

  FakeFiles files_;
  FakeRegistry registry_;
  Session session_{files_, registry_};
  Restored last_;
};

TEST_F(BackupTest, BringsBackAllThatIsTheUsersAndNothingElse) {
  const std::string odd = "line\n\tfile\tfavs.snr\t3\nabc\r\n\xFF" + std::string(1, '\0');
  files_.Put("/d/favs.snr", odd);
  for (const char* name : {"InstallId", "UpdateURL", "LastUpdate", "PlayWith"})
    registry_.Put(RootKey::LocalMachine, kSettingsKey, name, "then");
  EXPECT_EQ(session_.backup.FileName(), "Sonaro backup 2000-08-14.sonaro");
  ASSERT_EQ(session_.backup.Save(kPath), BackupSaved::Yes);

  Put(files_, registry_, "new");
  files_.Put("/d/Sched.old", "dropped since");
  for (const char* name : {"InstallId", "UpdateURL", "LastUpdate", "PlayWith", "ScanTime"})
    registry_.Put(RootKey::LocalMachine, kSettingsKey, name, "now");
  Restore(kPath);
  EXPECT_EQ(last_.outcome, RestoreOutcome::Done);
  EXPECT_EQ(last_.made, (Date{2000, 8, 14}));
  EXPECT_EQ(files_.Get("/d/favs.snr"), odd);
  EXPECT_FALSE(files_.Get("/d/Sched.old"));
  EXPECT_EQ(Setting(registry_, "ScanTime"), "(none)");
  EXPECT_EQ(Setting(registry_, "PinnedSearches"), "old");
  for (const char* name : {"InstallId", "UpdateURL", "LastUpdate", "PlayWith"})
    EXPECT_EQ(Setting(registry_, name), "now") << name;
  files_.Put("/d/favs.snr", "favs.snr of old");
  EXPECT_EQ(StateOf(files_, registry_), "old");

  // The way back, from what was kept; and the start after it has nothing to do.
  EXPECT_EQ(Restore(kBefore), "new");
  EXPECT_EQ(files_.Get("/d/Sched.old"), "dropped since");
  EXPECT_EQ(Setting(registry_, "ScanTime"), "now");
  Session later(files_, registry_);
  later.backup.FinishRestore();
  EXPECT_EQ(later.backup.TakeRestored().outcome, RestoreOutcome::NothingToDo);
}

TEST_F(BackupTest, RefusesWhatIsNoWholeBackupOfItsOwn) {
  ASSERT_EQ(session_.backup.Save(kPath), BackupSaved::Yes);
  const std::string good = *files_.Get(kPath);
  const std::string head = good.substr(0, good.find('\n') + 1);
  const auto fault = [this](const std::string& bytes) {
    files_.Put("/u/other", bytes);
    return session_.backup.Read("/u/other").fault;
  };
  EXPECT_EQ(fault(good), BackupFault::None);
  EXPECT_EQ(fault(Sealed(head)), BackupFault::None);
  for (std::size_t length = 0; length < good.size(); ++length)
    EXPECT_NE(fault(good.substr(0, length)), BackupFault::None) << length;
  for (std::size_t at = 0; at < good.size(); ++at) {
    std::string damaged = good;
    damaged[at] ^= 1;
    EXPECT_NE(fault(damaged), BackupFault::None) << at;
  }
  EXPECT_EQ(fault("#EXTM3U\n"), BackupFault::Foreign);
  EXPECT_EQ(fault(Sealed("Sonaro backup, 2\t2030-01-01\nother entries\n")), BackupFault::LaterVersion);
  EXPECT_EQ(session_.backup.Read("/u/missing").fault, BackupFault::Unreadable);
  for (const char* entry :
       {"file\tStation.snr\t1\nx", "file\t..\\favs.snr\t1\nx", "file\t\\favs.snr\t1\nx",
        "absent\tSonaro.exe\n", "file\tportable.ini\t1\nx", "file\t\t1\nx", "setting\tPlayWith\t1\nx",
        "setting\tUpdateURL\t1\nx", "setting\tInstallId\t1\nx", "unset\tInstallId\n", "file\tfavs.snr\t-1\nx",
        "file\tfavs.snr\t2\nx", "file\tfavs.snr\t99999999999999999999\nx", "file\tfavs.snr\nx",
        "absent\tfavs.snr\t0\n", "\n", "end\n", "absent\tfavs.snr\nabsent\tfavs.snr\n"}) {
    EXPECT_EQ(fault(Sealed(head + entry)), BackupFault::Damaged) << entry;
    EXPECT_EQ(Restore("/u/other"), "refused") << entry;
  }
  // Planted in the folder, past the dialog.
  Put(files_, registry_, "new");
  files_.Put("/d/restore.snr", Sealed(head + "file\tStation.snr\t1\nx"));
  Session next(files_, registry_);
  next.backup.FinishRestore();
  EXPECT_EQ(next.backup.TakeRestored().outcome, RestoreOutcome::NotKept);
  EXPECT_EQ(StateOf(files_, registry_), "new");
  EXPECT_FALSE(files_.Get("/d/Station.snr") || files_.Get("/d/restore.snr"));
}

TEST_F(BackupTest, ChangesNothingWhenThePresentCannotBeKept) {
  ASSERT_EQ(session_.backup.Save(kPath), BackupSaved::Yes);
  Put(files_, registry_, "new");
  files_.Lock("/d/Sched.snr");
  EXPECT_EQ(session_.backup.Save("/u/second"), BackupSaved::OwnFileUnreadable);
  EXPECT_FALSE(files_.Get("/u/second"));
  Restore(kPath);
  EXPECT_EQ(last_.outcome, RestoreOutcome::NotKept);
  files_.Unlock("/d/Sched.snr");
  EXPECT_EQ(StateOf(files_, registry_), "new");
  files_.Put(kBefore, "of an earlier time");
  files_.Lock(kBefore);
  EXPECT_EQ(Restore(kPath), "new");
  EXPECT_EQ(last_.outcome, RestoreOutcome::NotKept);
  files_.Unlock(kBefore);
  files_.SetSpaceLeft(20);
  EXPECT_EQ(session_.backup.Save("/u/second"), BackupSaved::NotWritten);
  EXPECT_EQ(Restore(kPath), "refused");
}

// A file that is in use keeps no other from being restored, and the user is told.
TEST_F(BackupTest, SaysThatSomeFileWasNotReplaced) {
  ASSERT_EQ(session_.backup.Save(kPath), BackupSaved::Yes);
  Put(files_, registry_, "new");
  const auto inUse = files_.Open("/d/personal.snr");
  EXPECT_EQ(Restore(kPath), "mixed");
  EXPECT_EQ(last_.outcome, RestoreOutcome::InPart);
  EXPECT_EQ(files_.Get("/d/personal.snr"), "personal.snr of new");
  EXPECT_EQ(files_.Get("/d/Shows.snr"), "Shows.snr of old");
}

TEST(BackupCrash, TheNextStartFinishesWhatDied) {
  std::optional<FakeRegistry> registry;
  const auto start = [&](FakeFiles& files) { Session(files, *registry).backup.FinishRestore(); };
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        registry.emplace(files.Journal());
        files.MakeFolder("/u");
        Put(files, *registry, "old");
        Session session(files, *registry);
        ASSERT_EQ(session.backup.Save(kPath), BackupSaved::Yes);
        ASSERT_TRUE(session.backup.RestoreAtStart(session.backup.Read(kPath)));
        Put(files, *registry, "new");
      },
      start,
      [&](FakeFiles& files, const CrashPoint& point) {
        const auto whole = [&files](const char* name) {
          const std::string bytes = *files.Get("/d/" + std::string(name));
          return bytes == name + std::string(" of old") || bytes == name + std::string(" of new");
        };
        EXPECT_TRUE(whole("favs.snr") && whole("Sched.snr") && whole("personal.snr")) << point.operation;
        start(files);
        EXPECT_EQ(StateOf(files, *registry), "old") << point.operation;
        // What was kept is all of the time before, whenever the machine died.
        Session back(files, *registry);
        ASSERT_TRUE(back.backup.RestoreAtStart(back.backup.Read(kBefore))) << point.operation;
        start(files);
        EXPECT_EQ(StateOf(files, *registry), "new") << point.operation;
      });
  EXPECT_GT(operations, 30);
}

}  // namespace
}  // namespace sonaro
