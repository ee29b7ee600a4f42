// The options: how settings read, what is refused, and that only what was changed is written.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "faceplate/Faceplate.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "tray/OptionsModel.h"

namespace sonaro {
namespace {

constexpr const char* kProgram = "C:\\Guide of mine\\Sonaro.exe";

class OptionsTest : public testing::Test {
 protected:
  OptionsTest() { registry_.CreateKey(RootKey::LocalMachine, kSettingsKey); }

  void Set(const std::string& name, std::string_view text) {
    registry_.Put(RootKey::LocalMachine, kSettingsKey, name, text);
  }
  std::string RunValue(RootKey root) const {
    const auto value = registry_.Stored(root, systemkey::kRun, systemkey::kRunValue);
    return value ? value->bytes : "(none)";
  }
  // What was written since the last call: "name=text" of each value in order.
  std::vector<std::string> Written() {
    std::vector<std::string> written;
    for (const auto& write : registry_.writes) written.push_back(write.name + "=" + write.value.bytes);
    registry_.writes.clear();
    return written;
  }
  StoreOutcome StoreWith(const std::function<void(Options&)>& change) {
    Options wanted = model_.Read();
    change(wanted);
    return model_.Store(wanted);
  }

  using Writes = std::vector<std::string>;
  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
  FakeRegistry registry_;
  CReg reg_{registry_};
  Faceplate faceplate_{reg_, data_};
  OptionsModel model_{reg_, faceplate_, kProgram};
};

TEST_F(OptionsTest, MissingAndOddSettingsHaveTheirMeaning) {
  EXPECT_EQ(model_.Read(), (Options{.proxy = {"", "80"}, .faceplate = BuiltInFaceplate::Graphite}));

  Set("CloseToTray", "no");
  Set("SoundNotify", "perhaps");
  Set("SoundClick", "false");
  Set("ProxyUse", "yes ");
  Set("ProxyAddress", " proxy ");
  Set("ProxyPort", " 3128");
  Set("StartPlayer", "NO");
  Set("StartProxy", "Yes");
  Set("StartQuickStart", "No");
  Set("FacePlateName", "Chrome");
  EXPECT_EQ(model_.Read(), (Options{.afterClose = AfterClose::Exit,
                                    .soundWithNotice = false,
                                    .clickWithButtons = false,
                                    .useProxy = true,
                                    .proxy = {"proxy", "3128"},
                                    .lookForPlayer = false,
                                    .lookForProxy = true,
                                    .offerTutorial = false,
                                    .faceplate = std::nullopt}));
}

TEST_F(OptionsTest, OnlyWhatWasChangedIsWritten) {
  const struct {
    void (*change)(Options&);
    Writes written;
  } kSteps[] = {
      {[](Options&) {}, {}},
      {[](Options& o) { o.afterClose = AfterClose::KeepInTray; }, {"CloseToTray=Yes"}},
      {[](Options& o) { o.afterClose = AfterClose::Exit; }, {"CloseToTray=No"}},
      {[](Options& o) { o.afterClose = AfterClose::Ask; }, {"CloseToTray="}},
      {[](Options& o) { o.soundWithNotice = false; }, {"SoundNotify=False"}},
      {[](Options& o) { o.soundWithNotice = true; }, {"SoundNotify=True"}},
      {[](Options& o) { o.clickWithButtons = false; }, {"SoundClick=False"}},
      {[](Options& o) { o.lookForPlayer = o.lookForProxy = false; }, {"StartPlayer=No", "StartProxy=No"}},
      {[](Options& o) { o.lookForPlayer = o.offerTutorial = true; }, {"StartPlayer=Yes"}},
      {[](Options& o) {
         o.useProxy = true;
         o.proxy = {" proxy.example.net ", "8080 "};
       },
       {"ProxyUse=Yes", "ProxyAddress=proxy.example.net", "ProxyPort=8080"}},
      {[](Options& o) { o.proxy.port = "3128"; }, {"ProxyPort=3128"}},
      // Without a proxy the edits are out of use: what stands there is neither checked nor kept.
      {[](Options& o) {
         o.useProxy = false;
         o.proxy = {"a b", "x"};
       },
       {"ProxyUse=No"}},
  };
  for (const auto& step : kSteps) {
    EXPECT_EQ(StoreWith(step.change), StoreOutcome::Stored);
    EXPECT_EQ(Written(), step.written);
  }
}

TEST_F(OptionsTest, AProxyThatCannotBeOneIsRefusedAndNothingIsWritten) {
  const struct {
    ProxyServer server;
    ProxyFault fault;
  } kCases[] = {
      {{"proxy", "1"}, ProxyFault::None},
      {{"10.0.0.1", "65535"}, ProxyFault::None},
      {{"fe80::1", " 080 "}, ProxyFault::None},
      {{"  ", "80"}, ProxyFault::NoAddress},
      {{"http://proxy", "80"}, ProxyFault::BadAddress},
      {{"proxy:8080", "80"}, ProxyFault::BadAddress},
      {{"my proxy", "80"}, ProxyFault::BadAddress},
      {{"proxy\r\nX: y", "80"}, ProxyFault::BadAddress},
      {{"proxy", ""}, ProxyFault::BadPort},
      {{"proxy", "0"}, ProxyFault::BadPort},
      {{"proxy", "65536"}, ProxyFault::BadPort},
      {{"proxy", "-80"}, ProxyFault::BadPort},
      {{"proxy", "80.5"}, ProxyFault::BadPort},
      {{"proxy", "4294967376"}, ProxyFault::BadPort},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(CheckProxy(c.server), c.fault) << c.server.address << " " << c.server.port;
    if (c.fault == ProxyFault::None) continue;
    const auto change = [&c](Options& o) {
      o.useProxy = true;
      o.proxy = c.server;
      o.soundWithNotice = false;
    };
    EXPECT_EQ(StoreWith(change), StoreOutcome::BadProxy);
    EXPECT_EQ(Written(), Writes{});
  }
}

TEST_F(OptionsTest, AFoundProxyIsTakenApart) {
  const struct {
    const char* found;
    ProxyServer server;
  } kCases[] = {
      {"", {"", "80"}},           {"proxy:8080", {"proxy", "8080"}},
      {"proxy", {"proxy", "80"}}, {" HTTP://proxy.example.net:3128/ ", {"proxy.example.net", "3128"}},
      {"proxy:", {"proxy", ""}},
  };
  for (const auto& c : kCases) EXPECT_EQ(SplitProxy(c.found), c.server) << c.found;
}

TEST_F(OptionsTest, StartingWithWindowsIsOneValueForTheMachine) {
  registry_.Put(RootKey::CurrentUser, systemkey::kRun, systemkey::kRunValue, "old");
  EXPECT_TRUE(model_.Read().startWithWindows);
  EXPECT_EQ(StoreWith([](Options& o) { o.startWithWindows = false; }), StoreOutcome::Stored);
  EXPECT_EQ(RunValue(RootKey::CurrentUser), "(none)");

  registry_.Put(RootKey::CurrentUser, systemkey::kRun, "Other", "stays");
  EXPECT_EQ(StoreWith([](Options& o) { o.startWithWindows = true; }), StoreOutcome::Stored);
  EXPECT_EQ(RunValue(RootKey::LocalMachine), "C:\\Guide of mine\\Sonaro.exe WinStart=Yes");
  EXPECT_EQ(RunValue(RootKey::CurrentUser), "(none)");
  EXPECT_EQ(StoreWith([](Options& o) { o.startWithWindows = false; }), StoreOutcome::Stored);
  EXPECT_EQ(RunValue(RootKey::LocalMachine), "(none)");
  EXPECT_TRUE(registry_.Stored(RootKey::CurrentUser, systemkey::kRun, "Other"));
  EXPECT_EQ(reg_.MainKey(), RootKey::LocalMachine);
}

TEST_F(OptionsTest, WithoutTheMachinesListTheUsersOwnStartsIt) {
  registry_.deniedRoots = {RootKey::LocalMachine};
  Options wanted = model_.Read();
  wanted.startWithWindows = true;
  EXPECT_EQ(model_.Store(wanted), StoreOutcome::Stored);
  EXPECT_EQ(RunValue(RootKey::CurrentUser), "C:\\Guide of mine\\Sonaro.exe WinStart=Yes");
  // A portable folder's program neither sees that one nor touches it.
  OptionsModel portable(reg_, faceplate_, kProgram, true);
  EXPECT_FALSE(portable.CanStartWithWindows());
  EXPECT_FALSE(portable.Read().startWithWindows);
  EXPECT_EQ(portable.Store(wanted), StoreOutcome::Refused);
  EXPECT_NE(RunValue(RootKey::CurrentUser), "(none)");
  EXPECT_EQ(StoreWith([](Options& o) { o.startWithWindows = false; }), StoreOutcome::Stored);
  EXPECT_EQ(RunValue(RootKey::CurrentUser), "(none)");
}

TEST_F(OptionsTest, WhatTheSystemRefusesIsNoticed) {
  registry_.writesDenied = true;
  EXPECT_EQ(StoreWith([](Options&) {}), StoreOutcome::Stored);
  EXPECT_EQ(StoreWith([](Options& o) { o.startWithWindows = true; }), StoreOutcome::Refused);
  EXPECT_EQ(StoreWith([](Options& o) { o.soundWithNotice = false; }), StoreOutcome::Refused);
  EXPECT_EQ(StoreWith([](Options& o) { o.faceplate = BuiltInFaceplate::Porcelain; }), StoreOutcome::Refused);
}

TEST_F(OptionsTest, ATriedFaceplateIsStoredOrGoesAgain) {
  const Color graphite = faceplate_.Colors().plate;
  EXPECT_FALSE(model_.EndTrying());
  model_.TryFaceplate(BuiltInFaceplate::Porcelain);
  const Color porcelain = faceplate_.Colors().plate;
  EXPECT_NE(porcelain, graphite);
  EXPECT_EQ(Written(), Writes{});
  EXPECT_TRUE(model_.EndTrying());
  EXPECT_EQ(faceplate_.Colors().plate, graphite);

  model_.TryFaceplate(BuiltInFaceplate::Porcelain);
  EXPECT_EQ(StoreWith([](Options& o) { o.faceplate = BuiltInFaceplate::Porcelain; }), StoreOutcome::Stored);
  model_.EndTrying();
  EXPECT_EQ(faceplate_.Colors().plate, porcelain);
  EXPECT_EQ(reg_.Setting("FacePlateName"), "Porcelain");
}

}  // namespace
}  // namespace sonaro
