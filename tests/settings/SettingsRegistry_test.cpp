#include "settings/SettingsRegistry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr RootKey kLocalMachine = RootKey::LocalMachine;
constexpr RootKey kUser = RootKey::CurrentUser;
constexpr const char* kFile = "/d/portable.ini";

class SettingsRegistryTest : public testing::Test {
 protected:
  // A session of the program: what it reads first, after which it writes.
  std::string Session(const std::string& name, const std::string& write = "") {
    SettingsRegistry settings(system_, files_, kFile);
    CReg reg(settings);
    const std::string before = reg.Setting(name);
    if (!write.empty()) reg.SetSetting(name, write);
    return before;
  }
  SettingsFault FirstFault() { return SettingsRegistry(system_, files_, kFile).TakeFault(); }

  FakeRegistry system_;
  FakeFiles files_;
};

TEST_F(SettingsRegistryTest, TheOwnKeyLivesWhereItCanBeWritten) {
  const struct {
    std::set<RootKey> denied;
    bool machineKeyIsThere;
    SettingsPlace place;
    SettingsFault fault;
  } kCases[] = {{{}, true, SettingsPlace::Machine, SettingsFault::None},
                {{}, false, SettingsPlace::Machine, SettingsFault::None},
                {{kLocalMachine}, false, SettingsPlace::User, SettingsFault::None},
                {{kLocalMachine}, true, SettingsPlace::User, SettingsFault::None},
                {{kLocalMachine, kUser}, true, SettingsPlace::User, SettingsFault::NotWritten}};
  for (const auto& c : kCases) {
    FakeRegistry system;
    if (c.machineKeyIsThere) system.Put(kLocalMachine, kSettingsKey, "Old", "machine");
    system.deniedRoots = c.denied;
    SettingsRegistry settings(system, files_, kFile);
    EXPECT_EQ(settings.Place(), c.place);
    EXPECT_EQ(settings.Flush(kLocalMachine, kSettingsKey), c.denied.size() < 2);
    CReg reg(settings);
    reg.SetData("software\\ZUMO\\sonaro", "Name", "text");
    reg.CheckKeyIsThere(kAdsKey);
    reg.SetData(kAdsKey, "Ad", "3");
    const RootKey home = c.place == SettingsPlace::Machine ? kLocalMachine : kUser;
    const bool written = c.fault == SettingsFault::None;
    EXPECT_EQ(system.Stored(home, kSettingsKey, "Name").has_value(), written);
    EXPECT_EQ(reg.GetData(kAdsKey, "Ad"), written ? "3" : "");
    EXPECT_EQ(settings.TakeFault(), c.fault);
    EXPECT_EQ(settings.TakeFault(), SettingsFault::None) << "told twice";
    // Another key of that root is left where it is.
    system.deniedRoots.clear();
    ASSERT_TRUE(settings.CreateKey(kLocalMachine, "SOFTWARE\\zumo\\SonaroOther"));
    EXPECT_TRUE(system.KeyExists(kLocalMachine, "SOFTWARE\\zumo\\SonaroOther"));
  }
}

TEST_F(SettingsRegistryTest, BesideAPortableFileTheRegistryIsOnlyRead) {
  files_.Put(kFile, "; unpacked\r\n[Sonaro]\r\nLastUpdate=\r\n");
  system_.Put(kLocalMachine, kSettingsKey, "ScanTime", "machine");
  system_.Put(kUser, systemkey::kInternational, systemkey::kShortDate, "d/M/yyyy");
  system_.Put(kLocalMachine, systemkey::kRun, systemkey::kRunValue, "other");
  {
    SettingsRegistry settings(system_, files_, kFile);
    CReg reg(settings);
    EXPECT_EQ(settings.Place(), SettingsPlace::PortableFile);
    EXPECT_EQ(reg.Setting("ScanTime"), "");
    reg.SetSetting("ScanTime", "30");
    reg.CheckKeyIsThere(kAdsKey);
    reg.SetData(kAdsKey, "NextAdToShow", "7");
    reg.SetData(systemkey::kRun, systemkey::kRunValue, "mine");
    reg.DeleteValue(systemkey::kRun, systemkey::kRunValue);
    reg.CheckKeyIsThere("SOFTWARE\\Other");
    const MainKeyScope user(reg, kUser);
    EXPECT_EQ(reg.GetData(systemkey::kInternational, systemkey::kShortDate), "d/M/yyyy");
    reg.SetData(systemkey::kInternational, systemkey::kShortDate, "mine");
  }
  EXPECT_TRUE(system_.writes.empty());
  EXPECT_FALSE(system_.KeyExists(kLocalMachine, "SOFTWARE\\Other"));
  EXPECT_TRUE(system_.Stored(kLocalMachine, systemkey::kRun, systemkey::kRunValue));
  EXPECT_EQ(Session("ScanTime"), "30");
  SettingsRegistry settings(system_, files_, kFile);
  EXPECT_EQ(settings.ReadValue(kLocalMachine, "Software\\Zumo\\SONARO\\Ads", "nextadtoshow"), "7");
  EXPECT_EQ(settings.TakeFault(), SettingsFault::None);
}

TEST_F(SettingsRegistryTest, EveryTextSurvivesTheFile) {
  files_.Put(kFile, "");
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string texts[] = {all,     " both ends ", "",     "two\r\nlines\n", "C:\\new\\x41",
                               "a=b;c", "[Sonaro]",    "; no", "Łódź 電波",      std::string(20000, '=')};
  const std::string names[] = {"plain", "", "@", "a=b", "[x]", ";y", " z ", "\\t", "Größe", "12\n"};
  {
    SettingsRegistry settings(system_, files_, kFile);
    for (std::size_t i = 0; i < std::size(texts); ++i)
      ASSERT_TRUE(settings.WriteValue(kLocalMachine, kSettingsKey, names[i], ValueType::Text, texts[i]));
  }
  SettingsRegistry settings(system_, files_, kFile);
  for (std::size_t i = 0; i < std::size(texts); ++i)
    EXPECT_EQ(settings.ReadValue(kLocalMachine, kSettingsKey, names[i]), texts[i]) << i;
  EXPECT_EQ(settings.TakeFault(), SettingsFault::None);
  // As an editor leaves it: byte order mark, bare line ends, blanks, the last of two values.
  files_.Put(kFile, "\xEF\xBB\xBF[sonaro]\n  One = 1 \n\n; x\nPath=C:\\Users\\me\nOne=2");
  EXPECT_EQ(Session("One"), "2");
  EXPECT_EQ(Session("Path"), "C:\\Users\\me");
  EXPECT_EQ(FirstFault(), SettingsFault::None);
}

TEST_F(SettingsRegistryTest, ADamagedFileIsKeptAndWhatItLacksComesFromTheStartBefore) {
  files_.Put(kFile, "");
  Session("Cut", "cut");
  Session("Whole", "whole");
  const std::string good = *files_.Get(kFile);
  const std::string kDamaged[] = {good.substr(0, good.find("Whole=") + 6), std::string("\xFF\xFEx\0y\0", 6),
                                  std::string(good.size(), '\0'), good + "no line of a settings file\r\n"};
  for (const std::string& bytes : kDamaged) {
    files_.Put(kFile, bytes);
    SettingsRegistry settings(system_, files_, kFile);
    EXPECT_EQ(settings.TakeFault(), SettingsFault::FileDamaged);
    EXPECT_EQ(settings.TakeFault(), SettingsFault::None);
    EXPECT_EQ(files_.Get(std::string(kFile) + ".bad"), bytes);
    EXPECT_EQ(settings.ReadValue(kLocalMachine, kSettingsKey, "Cut"), "cut");
    EXPECT_TRUE(settings.WriteValue(kLocalMachine, kSettingsKey, "New", ValueType::Text, "new"));
    EXPECT_TRUE(files_.Get(kFile)->ends_with("; end of the settings\r\n"));
  }
  // A new package unpacked over the folder brings an empty file.
  files_.Put(kFile, "[Sonaro]\r\nLastUpdate=\r\n");
  EXPECT_EQ(Session("Whole"), "whole");
  EXPECT_EQ(FirstFault(), SettingsFault::None);
}

TEST_F(SettingsRegistryTest, AFileThatCannotBeReadOrSavedIsNotLost) {
  files_.Put(kFile, "[Sonaro]\r\nKept=kept\r\n");
  files_.Lock(kFile);
  SettingsRegistry settings(system_, files_, kFile);
  EXPECT_EQ(settings.TakeFault(), SettingsFault::NotWritten);
  CReg reg(settings);
  reg.SetSetting("New", "new");
  EXPECT_EQ(reg.Setting("New"), "new");
  files_.Unlock(kFile);
  EXPECT_EQ(files_.Get(kFile), "[Sonaro]\r\nKept=kept\r\n");
  reg.SetSetting("Next", "next");
  for (const char* name : {"Kept", "New", "Next"}) EXPECT_NE(reg.Setting(name), "") << name;
  files_.SetSpaceLeft(3);
  reg.SetSetting("Next", "not on disk");
  EXPECT_EQ(Session("Next"), "next");
  files_.SetSpaceLeft(std::nullopt);
  reg.SetSetting("Next", "not on disk");
  EXPECT_EQ(Session("Next"), "not on disk");
}

TEST_F(SettingsRegistryTest, ABatchIsOneSaveAndACrashLeavesTheOldOrTheNewSettings) {
  const auto prepare = [](FakeFiles& files) { files.Put(kFile, "[Sonaro]\r\nA=old\r\nB=old\r\n"); };
  const auto scenario = [this](FakeFiles& files) {
    SettingsRegistry settings(system_, files, kFile);
    CReg reg(settings);
    files.ClearLog();
    {
      const SettingsBatch outer(reg);
      const SettingsBatch inner(reg);
      for (int i = 0; i < 100; ++i) reg.SetSetting("V" + std::to_string(i), "x");
      reg.SetSetting("A", "new");
      reg.SetSetting("B", "new");
    }
    const std::vector<std::string> log = files.Log();
    EXPECT_LE(
        std::count_if(log.begin(), log.end(), [](const auto& step) { return step.starts_with("replace"); }),
        1);
    reg.SetSetting("A", "new");
    EXPECT_TRUE(files.Crashed() || files.Log() == log) << "saved without a change";
  };
  const int operations = ForEachCrashPoint(prepare, scenario, [this](FakeFiles& files, const CrashPoint&) {
    SettingsRegistry settings(system_, files, kFile);
    const auto a = settings.ReadValue(kLocalMachine, kSettingsKey, "A");
    EXPECT_TRUE(a == "old" || a == "new");
    EXPECT_EQ(settings.ReadValue(kLocalMachine, kSettingsKey, "B"), a);
    EXPECT_EQ(settings.ReadValue(kLocalMachine, kSettingsKey, "V99").has_value(), a == "new");
    EXPECT_NE(settings.TakeFault(), SettingsFault::FileDamaged);
  });
  EXPECT_GE(operations, 8);
}

}  // namespace
}  // namespace sonaro
