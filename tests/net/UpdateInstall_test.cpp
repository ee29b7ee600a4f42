#include "net/UpdateInstall.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "base/crypto/Signing.h"
#include "directory/CheckDataFiles.h"
#include "directory/DeferredSwap.h"
#include "net/NetWorld.h"
#include "net/UpdateFile.h"
#include "net/UpdateSignature.h"

namespace sonaro {
namespace {

const std::string kOldTree = "M1\tMusic\tgenre-jazz\tA\r\n";
const std::string kNewTree = kOldTree + "M2\tRock\tgenre-rock\tB\r\n";
const std::string kDate = "date::9/1/2000::\r\n";
// Touches everything that an update can: the list, a file that is there, one that is new, addresses, the
// rest.
const std::string kWhole = "version::7 \r\n::HelpURL::http://help.example/new::\r\n::NumberAds::3::\r\n" +
                           Section("Station.snr", kNewList) + Section("cat.snr", kNewTree) +
                           Section("genre-rock.snr", "3\r\n") + Section("fun.snr", "a new line\r\n") + kDate;

void PrepareGuide(FakeFiles& files) {
  PrepareDirectory(files);
  files.Put("/d/cat.snr", kOldTree);
  files.Put("/d/genre-jazz.snr", "1\r\n");
}

InstallStatus Take(Machine& machine, const std::string& update,
                   InstallMode mode = InstallMode::InstallAndRebuild) {
  machine.files.Put("/d/update.txt", update);
  const UpdateContents contents = ReadUpdateFile(machine.data).Finish();
  return machine.install.Install(contents, mode).Finish();
}

void StartAgain(Machine& machine) {
  machine.install.FinishUndo();
  RunDeferredSwap(machine.data, machine.reg, [&] { return machine.stations.RebuildStationTable(); });
  EXPECT_NE(machine.stations.EnsureStationTable(), TableCare::NotMade);
}

// The guide as the user and the service know it: files and settings, without the program's own book-keeping.
std::map<std::string, std::string> Guide(Machine& machine) {
  std::map<std::string, std::string> guide;
  for (const std::string& path : machine.files.AllPaths()) {
    const bool isGuide = path.ends_with(".snr") && path != "/d/previous.snr";
    if (!isGuide && !path.starts_with("/d/t") && path != "/d/unpacked.lst") continue;
    guide[path] = machine.files.Get(path).value_or("");
  }
  for (const char* name : {"LastUpdate", "UpdateVersion", "UpdateSerial", "HelpURL", "UpdateHold"}) {
    guide[name] = machine.reg.Setting(name);
  }
  guide["NumberOfAds"] = machine.reg.GetData(kAdsKey, "NumberOfAds");
  guide["name of 1"] = machine.stations.FindStation(1).fields[0];
  return guide;
}

// The names of what differs; "" for nothing.
std::string Differences(const std::map<std::string, std::string>& a,
                        const std::map<std::string, std::string>& b) {
  std::string names;
  for (const auto& [name, text] : a) {
    const auto other = b.find(name);
    if (other == b.end() || other->second != text) names += name + " ";
  }
  for (const auto& [name, text] : b) {
    if (!a.contains(name)) names += name + " ";
  }
  return names;
}

class UpdateInstallTest : public testing::Test {
 protected:
  UpdateInstallTest() {
    PrepareGuide(files_);
    machine_.emplace(files_);
    machine_->reg.SetSetting("HelpURL", "http://help.example/old");
    machine_->reg.SetSetting("UpdateVersion", "6");
  }
  std::string File(const std::string& name) { return files_.Get("/d/" + name).value_or("(none)"); }
  std::string Setting(const char* name) { return machine_->reg.Setting(name); }

  FakeFiles files_;
  std::optional<Machine> machine_;
};

TEST_F(UpdateInstallTest, UndoBringsBackAllThatTheUpdateChanged) {
  const auto before = Guide(*machine_);
  for (const std::string& update : {kWhole, "::HelpURL::http://help.example/other::\r\n" + kDate, kDate}) {
    EXPECT_EQ(Take(*machine_, update), InstallStatus::Done);
    EXPECT_NE(Differences(Guide(*machine_), before), "");
    EXPECT_TRUE(machine_->install.CanUndo());
    EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Done);
    EXPECT_EQ(Differences(Guide(*machine_), before), "") << update;
    EXPECT_FALSE(machine_->install.CanUndo());
  }
  EXPECT_EQ(Take(*machine_, kWhole, InstallMode::HoldFiles), InstallStatus::Done);
  EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Done);
  StartAgain(*machine_);
  EXPECT_EQ(Differences(Guide(*machine_), before), "") << "what was held does not come after all";

  // A file that is in use is put back by the next start.
  EXPECT_EQ(Take(*machine_, kWhole), InstallStatus::Done);
  std::unique_ptr<InputFile> inUse = files_.Open("/d/cat.snr");
  EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Waits);
  EXPECT_EQ(Setting("LastUpdate"), "8/1/2000");
  inUse.reset();
  StartAgain(*machine_);
  EXPECT_EQ(Differences(Guide(*machine_), before), "");
}

TEST_F(UpdateInstallTest, AListOfWhichNoTableCanBeMadeDoesNotStay) {
  const auto before = Guide(*machine_);
  std::unique_ptr<InputFile> inUse = files_.Open("/d/statorg.isd");
  EXPECT_EQ(Take(*machine_, kWhole), InstallStatus::NotRebuilt);
  EXPECT_EQ(Differences(Guide(*machine_), before), "");
  inUse.reset();
  EXPECT_EQ(Take(*machine_, kWhole), InstallStatus::Done);
  inUse = files_.Open("/d/statorg.isd");
  EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Waits);
  inUse.reset();
  StartAgain(*machine_);
  EXPECT_EQ(Differences(Guide(*machine_), before), "");
}

// What is told of an update compares with the list that it replaced, never with one of an update before.
TEST_F(UpdateInstallTest, OnlyAnUpdateWithAListHasReplacedOne) {
  ASSERT_EQ(Take(*machine_, kWhole), InstallStatus::Done);
  EXPECT_EQ(machine_->install.ReplacedStationList(), kOldList);
  ASSERT_EQ(Take(*machine_, Section("fun.snr", "another line\r\n") + kDate), InstallStatus::Done);
  EXPECT_EQ(machine_->install.ReplacedStationList(), std::nullopt);
}

// As a whole: nothing of such an update stays, and what the one before replaced is still kept.
TEST_F(UpdateInstallTest, RefusesWhatDoesNotFit) {
  files_.Put("/d/trap.snr", "a list of its own\r\n");
  files_.Put("/d/ta.snr", "a copy that waits\r\n");
  ASSERT_EQ(Take(*machine_, "version::6b \r\n"), InstallStatus::Done);
  machine_->reg.SetSetting("UpdateHold", "a.snr\t");
  const auto before = Guide(*machine_);
  const std::string list = Section("Station.snr", kNewList);
  const std::string rest = "::HelpURL::http://x/::\r\n" + kDate;
  const auto lock = [this] { files_.Lock("/d/fun.snr"); };
  const auto fill = [this] { files_.SetSpaceLeft(100); };
  const auto nothing = [] {};
  const struct {
    const char* what;
    std::string sections;
    std::function<void()> happens;
    InstallStatus status;
  } kCases[] = {
      {"a copy over a file", list + Section("rap.snr", "1\r\n"), nothing, InstallStatus::NotFitting},
      {"a copy over a section", Section("b.snr", "1\r\n") + Section("TB.snr", "1\r\n"), nothing,
       InstallStatus::NotFitting},
      {"an empty list behind a name", list + Section("tStation.snr", "x\r\n"), nothing,
       InstallStatus::NotFitting},
      {"over a copy that waits", Section("ta.snr", "1\r\n"), nothing, InstallStatus::NotFitting},
      {"a category without a list", Section("cat.snr", kNewTree), nothing, InstallStatus::NotFitting},
      {"a category outside", Section("cat.snr", "M\tM\t..\\x\tA\r\n"), nothing, InstallStatus::NotFitting},
      {"no stations", Section("STATION.snr", "x\r\n"), nothing, InstallStatus::NoStations},
      {"what cannot be kept", Section("fun.snr", "new\r\n"), lock, InstallStatus::NotKept},
      {"a full disk", list + Section("fun.snr", "new\r\n"), fill, InstallStatus::NotSaved},
  };
  for (const auto& each : kCases) {
    each.happens();
    EXPECT_EQ(Take(*machine_, each.sections + rest), each.status) << each.what;
    files_.Unlock("/d/fun.snr");
    files_.SetSpaceLeft({});
    EXPECT_EQ(Differences(Guide(*machine_), before), "") << each.what;
  }
  EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Done);
  EXPECT_EQ(Setting("UpdateVersion"), "6");
}

TEST_F(UpdateInstallTest, TheDateComesWithTheListAndNothingThatWaitsIsForgotten) {
  std::unique_ptr<InputFile> list = files_.Open("/d/Station.snr");
  std::unique_ptr<InputFile> fun = files_.Open("/d/fun.snr");
  EXPECT_EQ(Take(*machine_, kWhole), InstallStatus::Waits);
  EXPECT_EQ(Setting("UpdateHold"), "Station.snr\tfun.snr\t");
  EXPECT_EQ(Setting("LastUpdate"), "8/1/2000");
  EXPECT_EQ(Setting("UpdateVersion"), "6");
  EXPECT_EQ(
      Take(*machine_, Section("FUN.snr", "newer\r\n") + Section("more.snr", "m\r\n"), InstallMode::HoldFiles),
      InstallStatus::Done);
  EXPECT_EQ(Setting("UpdateHold"), "Station.snr\tfun.snr\tmore.snr\t");
  EXPECT_EQ(Take(*machine_, "::HelpURL::http://x/::\r\ndate::9/9/2000::\r\n"), InstallStatus::Done);
  EXPECT_EQ(Setting("LastUpdate"), "8/1/2000") << "the list is still the old one";
  list.reset();
  fun.reset();
  StartAgain(*machine_);
  EXPECT_EQ(File("Station.snr"), kNewList);
  EXPECT_EQ(File("fun.snr"), "newer\r\n");
  EXPECT_EQ(File("more.snr"), "m\r\n");
  EXPECT_EQ(Setting("LastUpdate"), "9/9/2000");
  EXPECT_EQ(Setting("UpdateVersion"), "7");
  EXPECT_EQ(Setting("UpdateHold") + Setting("UpdateHoldDate"), "");
}

TEST_F(UpdateInstallTest, TakesNoSignedUpdateThatIsOlder) {
  const auto key = SigningKeyFromSeed(std::string(64, '5'));
  files_.Put("/d/publish.key", key->publicKey);
  const auto take = [&](const std::string& serial) {
    const std::string body = serial + "version::" + std::to_string(serial.size()) + " \r\n" + kDate;
    return Take(*machine_, body + UpdateSignatureLine(body, key->secret) + "\r\n");
  };
  EXPECT_EQ(take(""), InstallStatus::Done) << "no number has been taken yet";
  EXPECT_EQ(take("serial::1700000000::\r\n"), InstallStatus::Done);
  EXPECT_EQ(take("serial::1800000000::\r\n"), InstallStatus::Done);
  const auto before = Guide(*machine_);
  for (const char* older : {"serial::1799999999::\r\n", "serial::-1::\r\n", "serial::::\r\n", ""}) {
    EXPECT_EQ(take(older), InstallStatus::Older) << older;
  }
  EXPECT_EQ(Differences(Guide(*machine_), before), "");
  EXPECT_EQ(take("serial::1800000000::\r\n"), InstallStatus::Done) << "the same may come again";
  EXPECT_EQ(take("serial::1900000000::\r\n"), InstallStatus::Done);
  EXPECT_EQ(machine_->install.UndoLastUpdate(), UndoStatus::Done);
  EXPECT_EQ(take("serial::1850000000::\r\n"), InstallStatus::Done) << "what was undone does not count";
}

TEST_F(UpdateInstallTest, WorksNoMoreThanTheUpdateIsLong) {
  std::size_t before = 0;
  for (const int count : {50, 100, 200}) {
    std::string update;
    for (int i = 0; i < count; ++i) update += Section("s" + std::to_string(i) + ".snr", "1\r\n");
    for (int i = 0; i < 50 * count; ++i) update += "::HelpURL::http://x/" + std::to_string(i) + "::\r\n";
    files_.ClearLog();
    machine_->registry.writes.clear();
    EXPECT_EQ(Take(*machine_, update), InstallStatus::Done);
    EXPECT_LE(files_.Log().size(), static_cast<std::size_t>(8 * count + 30));
    EXPECT_LE(files_.Log().size(), before == 0 ? 430 : 2 * before);
    EXPECT_LE(machine_->registry.writes.size(), 10u);
    before = files_.Log().size();
  }
}

enum class Story { Update, Undo, Held };

// Whatever moment the machine dies at: after the next start there is one guide, the old or the new one, with
// its date, its categories and its table; nothing of the user's is lost and nothing is left lying about.
void DieAtEveryMoment(Story story) {
  std::optional<Machine> machine;
  std::map<std::string, std::string> oldGuide;
  std::map<std::string, std::string> newGuide;
  const auto prepare = [&](FakeFiles& files) {
    PrepareGuide(files);
    machine.emplace(files);
    machine->reg.SetSetting("HelpURL", "http://help.example/old");
    oldGuide = Guide(*machine);
    if (story == Story::Undo) (void)Take(*machine, kWhole);
    files.Put("/d/update.txt", kWhole);
  };
  const auto scenario = [&](FakeFiles&) {
    if (story == Story::Undo) {
      (void)machine->install.UndoLastUpdate();
      return;
    }
    (void)Take(*machine, kWhole,
               story == Story::Held ? InstallMode::HoldFiles : InstallMode::InstallAndRebuild);
    if (story == Story::Held) StartAgain(*machine);
  };
  FakeFiles whole;
  prepare(whole);
  if (story == Story::Undo) {
    newGuide = Guide(*machine);
  } else {
    scenario(whole);
    newGuide = Guide(*machine);
  }
  int ends[2] = {};
  const auto check = [&](FakeFiles& files, const CrashPoint& point) {
    SCOPED_TRACE("crash at operation " + std::to_string(point.operation) + " of kind " +
                 std::to_string(static_cast<int>(point.survival)));
    StartAgain(*machine);
    auto guide = Guide(*machine);
    const bool isNew = guide["/d/Station.snr"] == kNewList;
    const auto& expected = isNew ? newGuide : oldGuide;
    for (const char* aheadOfTheFiles : {"HelpURL", "NumberOfAds"}) {
      if (!isNew && story != Story::Undo) guide[aheadOfTheFiles] = expected.at(aheadOfTheFiles);
    }
    EXPECT_EQ(Differences(guide, expected), "") << isNew;
    EXPECT_FALSE(DataFilesMissing(machine->data));
    EXPECT_EQ(files.Get("/d/favs.snr"), kFavorites);
    ++ends[isNew];
  };
  EXPECT_GT(ForEachCrashPoint(prepare, scenario, check), 10);
  EXPECT_GT(ends[0], 0);
  EXPECT_GT(ends[1], 0);
}

TEST(UpdateInstallCrash, AnUpdateComesAsAWholeOrNotAtAll) { DieAtEveryMoment(Story::Update); }
TEST(UpdateInstallCrash, AnUndoingIsFinished) { DieAtEveryMoment(Story::Undo); }
TEST(UpdateInstallCrash, AHeldUpdateIsFinished) { DieAtEveryMoment(Story::Held); }

}  // namespace
}  // namespace sonaro
