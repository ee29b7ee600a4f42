#include "settings/CReg.h"

#include <gtest/gtest.h>

#include "fakes/FakeRegistry.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr RootKey kMachine = RootKey::LocalMachine;

TEST(CReg, WritesExactlyTheCharactersAndReadsThemBack) {
  FakeRegistry registry;
  CReg reg(registry);
  reg.CheckKeyIsThere(kSettingsKey);
  for (const char* text : {"abc", "", "new.snr\told.snr\t", "Gr\u00F6\u00DFe"}) {
    reg.SetData(kSettingsKey, "Name", text);
    EXPECT_EQ(registry.Stored(kMachine, kSettingsKey, "Name")->bytes, text);
    EXPECT_EQ(registry.Stored(kMachine, kSettingsKey, "Name")->type, ValueType::Text);
    EXPECT_EQ(reg.GetData(kSettingsKey, "Name"), text);
  }
}

TEST(CReg, ReadsUpToTheFirstZeroOrAll) {
  FakeRegistry registry;
  const CReg reg(registry);
  const struct {
    std::string_view stored;
    const char* text;
  } cases[] = {{std::string_view("ab\0cd\0", 6), "ab"},
               {std::string_view("ab\0", 3), "ab"},
               {"ab", "ab"},
               {"", ""},
               {std::string_view("\0ab", 3), ""}};
  for (const auto& c : cases) {
    registry.Put(kMachine, kSettingsKey, "Name", c.stored);
    EXPECT_EQ(reg.GetData(kSettingsKey, "Name"), c.text);
    EXPECT_EQ(reg.Setting("Name"), c.text);
  }
}

TEST(CReg, NumbersAreStoredAsFourBytes) {
  FakeRegistry registry;
  CReg reg(registry);
  reg.CheckKeyIsThere(kSettingsKey);
  const struct {
    const char* data;
    std::string bytes;
  } cases[] = {
      {"258", {'\x02', '\x01', '\0', '\0'}},        {"-2", "\xFE\xFF\xFF\xFF"},
      {"not a number", std::string(4, '\0')},       {"99999999999", "\xFF\xFF\xFF\x7F"},
      {"-99999999999", {'\0', '\0', '\0', '\x80'}},
  };
  for (const auto& c : cases) {
    reg.SetData(kSettingsKey, "Number", c.data, false);
    EXPECT_EQ(registry.Stored(kMachine, kSettingsKey, "Number")->bytes, c.bytes) << c.data;
    EXPECT_EQ(registry.Stored(kMachine, kSettingsKey, "Number")->type, ValueType::Binary);
  }
}

TEST(CReg, WhatCannotBeDoneIsSilentAndCreatesNothing) {
  FakeRegistry registry;
  CReg reg(registry);
  EXPECT_EQ(reg.GetData(kSettingsKey, "Name"), "");
  reg.SetData(kSettingsKey, "Name", "x");
  reg.SetSetting("Name", "x");
  reg.DeleteValue(kSettingsKey, "Name");
  EXPECT_FALSE(registry.KeyExists(kMachine, kSettingsKey));

  registry.Put(kMachine, kSettingsKey, "Name", "kept");
  registry.writesDenied = true;
  reg.SetData(kSettingsKey, "Name", "x");
  reg.DeleteValue(kSettingsKey, "Name");
  reg.CheckKeyIsThere(kAdsKey);
  EXPECT_EQ(reg.Setting("Name"), "kept");
  registry.readsDenied = true;
  EXPECT_EQ(reg.Setting("Name"), "");
}

TEST(CReg, DeleteValue) {
  FakeRegistry registry;
  CReg reg(registry);
  registry.Put(kMachine, kSettingsKey, "Name", "x");
  reg.DeleteValue(kSettingsKey, "NAME");
  EXPECT_FALSE(registry.Stored(kMachine, kSettingsKey, "Name"));
}

TEST(CReg, WorksInItsMainKeyAndSettingsStayWhereTheyAre) {
  FakeRegistry registry;
  CReg reg(registry);
  registry.Put(kMachine, kSettingsKey, "Name", "machine");
  {
    const MainKeyScope user(reg, RootKey::CurrentUser);
    EXPECT_EQ(reg.GetData(kSettingsKey, "Name"), "");
    reg.CheckKeyIsThere(kSettingsKey);
    reg.SetData(kSettingsKey, "Name", "user");
    EXPECT_EQ(reg.Setting("Name"), "machine");
    reg.SetSetting("Other", "set");
  }
  EXPECT_EQ(reg.MainKey(), kMachine);
  EXPECT_EQ(reg.GetData(kSettingsKey, "Name"), "machine");
  EXPECT_EQ(registry.Stored(RootKey::CurrentUser, kSettingsKey, "Name")->bytes, "user");
  EXPECT_EQ(registry.Stored(kMachine, kSettingsKey, "Other")->bytes, "set");
}

TEST(CReg, ReadsASettingAsItsType) {
  FakeRegistry registry;
  CReg reg(registry);
  reg.CheckKeyIsThere(kSettingsKey);
  const struct {
    setting::Switch setting;
    bool missing, yes, no, other;
    const char *yesText, *noText;
  } switches[] = {{setting::kStartPlayer, true, true, false, true, "Yes", "No"},
                  {setting::kProxyUse, false, true, false, false, "Yes", "No"},
                  {setting::kSoundNotify, true, true, false, false, "True", "False"},
                  {setting::kSoundClick, true, true, false, true, "True", "False"},
                  {setting::kNoShowDelete, false, true, false, true, "Yes", ""}};
  for (const auto& each : switches) {
    SCOPED_TRACE(each.setting.name);
    EXPECT_EQ(reg.Get(each.setting), each.missing);
    for (const bool value : {true, false}) {
      reg.Set(each.setting, value);
      EXPECT_EQ(reg.Setting(each.setting.name), value ? each.yesText : each.noText);
      EXPECT_EQ(reg.Get(each.setting), value ? each.yes : each.no);
    }
    reg.SetSetting(each.setting.name, "else");
    EXPECT_EQ(reg.Get(each.setting), each.other);
  }
  reg.SetSetting("ProxyUse", "yES ");
  EXPECT_TRUE(reg.Get(setting::kProxyUse));
  for (const auto& [text, means] : {std::pair{"", AfterClose::Ask},
                                    {" yes", AfterClose::KeepInTray},
                                    {"No", AfterClose::Exit},
                                    {"else", AfterClose::Exit}}) {
    reg.SetSetting("CloseToTray", text);
    EXPECT_EQ(reg.Get(setting::kCloseToTray), means) << text;
  }
  reg.Set(setting::kCloseToTray, AfterClose::KeepInTray);
  EXPECT_EQ(reg.Setting("CloseToTray"), "Yes");
}

}  // namespace
}  // namespace sonaro
