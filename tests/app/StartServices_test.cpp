// The small services of the start: data files, files of the last update, help pages, live events.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "directory/CheckDataFiles.h"
#include "directory/DeferredSwap.h"
#include "directory/HeldNames.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeShell.h"
#include "net/ServiceRequest.h"
#include "net/WhatIsNew.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"

namespace sonaro {
namespace {

class FakeBrowser : public WebBrowser {
 public:
  std::vector<std::string> opened;
  void OpenWebPage(const std::string& textOrKey) override { opened.push_back(textOrKey); }
};

class StartServicesTest : public testing::Test {
 protected:
  StartServicesTest() {
    files_.MakeFolder("/d");
    registry_.CreateKey(RootKey::LocalMachine, kSettingsKey);
  }
  void PutDataFiles() {
    for (const char* name : {"fun.snr", "Statorg.isd", "Statorg.ism"}) Put(name, "x");
    Put("cat.snr", "M1\tMusic\tmusic\tA\r\nM2\tTalk\ttalk\tB\r\n");
    Put("music.snr", "");
    Put("Talk.snr", "");
  }
  void Put(const std::string& name, const std::string& bytes) { files_.Put("/d/" + name, bytes); }
  std::string Get(const std::string& name) { return files_.Get("/d/" + name).value_or("(none)"); }
  bool RunSwap(const std::string& hold) {
    reg_.SetSetting("UpdateHold", hold);
    return RunDeferredSwap(data_, reg_, [this] {
      rebuiltFrom_.push_back(Get("Station.snr"));
      return rebuilds_;
    });
  }

  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
  FakeRegistry registry_;
  CReg reg_{registry_};
  FakeBrowser browser_;
  FakeShell shell_;
  HelpPages help_{reg_, browser_, data_, shell_};
  bool rebuilds_ = true;
  std::vector<std::string> rebuiltFrom_;  // the station list at each rebuild
};

TEST_F(StartServicesTest, EveryNeededFileIsMissed) {
  PutDataFiles();
  EXPECT_FALSE(DataFilesMissing(data_));
  for (const char* name : {"fun.snr", "Statorg.isd", "Statorg.ism", "cat.snr", "music.snr", "Talk.snr"}) {
    const std::string bytes = Get(name);
    files_.Remove(std::string("/d/") + name);
    EXPECT_TRUE(DataFilesMissing(data_)) << name;
    Put(name, bytes);
  }
}

TEST_F(StartServicesTest, OnlyLinesWithThreeTabsNameAList) {
  const struct {
    const char* categories;
    bool missing;
  } kCases[] = {
      {"M1\tMusic\tnone\r\n", false},      {"M1\tMusic\tnone\t\r\n", true},      {"none", false},
      {"M1\tMusic\tmusic\t1\t2\n", false}, {"\t\tmusic\t\nM\tN\tnone\tP", true}, {"M1\tMusic\t\tA\n", true},
  };
  PutDataFiles();
  for (const auto& c : kCases) {
    Put("cat.snr", c.categories);
    EXPECT_EQ(DataFilesMissing(data_), c.missing) << c.categories;
  }
}

TEST_F(StartServicesTest, HelpAddress) {
  help_.OpenHelpPage("9037.html");
  EXPECT_EQ(reg_.Setting("HelpURL"), "http://www.sonaro.example/sonaroapp/sonaro4vf/apphelp");
  for (const char* base : {"help.example/h", "HTTP://help.example", "https://help.example"}) {
    reg_.SetSetting("HelpURL", base);
    help_.OpenHelpPage("a.html");
    EXPECT_EQ(reg_.Setting("HelpURL"), base);
  }
  EXPECT_EQ(browser_.opened,
            (std::vector<std::string>{"http://www.sonaro.example/sonaroapp/sonaro4vf/apphelp/2/9037.html",
                                      "http://help.example/h/2/a.html", "HTTP://help.example/2/a.html",
                                      "http://https://help.example/2/a.html"}));
}

// The pages on the disk are the built-in address's own; one that a service has told counts as it is.
TEST_F(StartServicesTest, HelpLiesOnTheDiskAsWell) {
  const std::string builtIn = "http://www.sonaro.example/sonaroapp/sonaro4vf/apphelp";
  Put("help/2/9037.html", "here");
  const struct {
    std::string told;
    const char* page;
    bool startsFail;
    std::string file;
    std::string address;
  } kCases[] = {
      {"", "9037.html", false, "/d/help/2/9037.html", ""},
      {builtIn, "9037.html", false, "/d/help/2/9037.html", ""},
      {"", "9038.html", false, "", builtIn + "/2/9038.html"},
      {"", "9037.html", true, "", builtIn + "/2/9037.html"},
      {"http://help.example", "9037.html", false, "", "http://help.example/2/9037.html"},
      {"C:\\d", "9037.html", false, "", "http://C:\\d/2/9037.html"},
  };
  for (const auto& one : kCases) {
    SCOPED_TRACE(one.told + " " + one.page);
    reg_.SetSetting("HelpURL", one.told);
    shell_.opened.clear();
    shell_.startsFail = one.startsFail;
    browser_.opened.clear();
    help_.OpenHelpPage(one.page);
    EXPECT_EQ(reg_.Setting("HelpURL"), one.told.empty() ? builtIn : one.told);
    std::string file;
    for (const FakeShell::Opened& each : shell_.opened) file += each.program + each.parameters;
    EXPECT_EQ(file, one.file);
    EXPECT_EQ(browser_.opened, one.address.empty() ? std::vector<std::string>() : std::vector{one.address});
  }
}

TEST_F(StartServicesTest, SwapTakesOnlyPlainNamesThatATabEnds) {
  const struct {
    const char* hold;
    const char* result;
    std::size_t rebuilds;
  } kCases[] = {
      {"a.snr", "old", 0},         {"b.snr\ta.snr", "old", 0},   {"a.snr\t", "new", 0},
      {"\t\ta.snr\t", "new", 0},   {"x/../a.snr\t", "old", 0},   {"..\\a.snr\t", "old", 0},
      {"STATION.SNR\t", "old", 1}, {"Station.snr \t", "old", 0}, {"none.snr\ta.snr\t", "new", 0},
  };
  for (const auto& c : kCases) {
    Put("a.snr", "old");
    Put("ta.snr", "new");
    rebuiltFrom_.clear();
    EXPECT_EQ(RunSwap(c.hold), c.rebuilds != 0);
    EXPECT_EQ(Get("a.snr"), c.result) << c.hold;
    EXPECT_EQ(rebuiltFrom_.size(), c.rebuilds) << c.hold;
    EXPECT_EQ(reg_.Setting("UpdateHold"), "");
  }
}

TEST_F(StartServicesTest, AFileInUseStaysAndTheOthersGoOn) {
  for (const char* name : {"a.snr", "ta.snr", "b.snr", "tb.snr"}) Put(name, name);
  files_.Lock("/d/a.snr");
  RunSwap("a.snr\tb.snr\t");
  EXPECT_EQ(Get("a.snr"), "a.snr");
  EXPECT_EQ(Get("ta.snr"), "ta.snr");
  EXPECT_EQ(Get("b.snr"), "tb.snr");
  EXPECT_EQ(reg_.Setting("UpdateHold"), "");
}

TEST_F(StartServicesTest, TheHeldDateComesWithTheList) {
  const struct {
    const char* hold;
    bool locked;
    bool rebuilds;
    const char* date;
  } kCases[] = {
      {"Station.snr\t", false, true, "2"},  {"Station.snr\t", true, true, "1"},
      {"Station.snr\t", false, false, "1"}, {"a.snr\t", false, true, "2"},
      {"Station.snr", false, true, "1"},
  };
  for (const auto& c : kCases) {
    for (const char* name : {"a.snr", "ta.snr", "Station.snr", "tStation.snr"}) Put(name, name);
    reg_.SetSetting("LastUpdate", "1");
    reg_.SetSetting("UpdateHoldDate", "2");
    if (c.locked) files_.Lock("/d/Station.snr");
    rebuilds_ = c.rebuilds;
    RunSwap(c.hold);
    files_.Unlock("/d/Station.snr");
    EXPECT_EQ(reg_.Setting("LastUpdate"), c.date) << c.hold << c.locked << c.rebuilds;
  }
}

// Only what was noted as a copy is one: "talk.snr" is a file of its own.
TEST_F(StartServicesTest, TheCopiesOfADeadUpdateAreRemoved) {
  for (const char* name : {"alk.snr", "talk.snr", "ta.snr", "tb.snr", "tc.snr"}) Put(name, name);
  EXPECT_TRUE(NoteTemporaries(data_, HeldNames("a.snr\tb.snr\t..\\x\t")));
  files_.Lock("/d/tb.snr");
  RunSwap("c.snr\t");
  EXPECT_EQ(Get("ta.snr"), "(none)");
  EXPECT_EQ(Get("c.snr"), "tc.snr");
  EXPECT_EQ(Get("talk.snr"), "talk.snr");
  EXPECT_EQ(NotedTemporaries(data_).Text(), "b.snr\t") << "it is tried again";
  files_.Unlock("/d/tb.snr");
  RunSwap("");
  EXPECT_EQ(files_.AllPaths(), (std::vector<std::string>{"/d/alk.snr", "/d/c.snr", "/d/talk.snr"}));
}

constexpr const char* kEnd = "\r\n<<<Cool End Off Live Stuff>>>";

TEST_F(StartServicesTest, LiveEventUpdateIsStoredWhenWhole) {
  const std::string head = "<<x>>LastLiveUpdate>>8/14/2000 1:30 PM<<LastLiveUpdate>>\r\nevents";
  const std::string late =
      std::string(460, 'x') + "LastLiveUpdate>>8/14/2000<<LastLiveUpdate";  // ends at 501
  const struct {
    std::string body;
    const char* stamp;
  } kCases[] = {
      {head + kEnd, "8/14/2000 1:30 PM"},
      {head + "\r\n<<<COOL END OFF LIVE STUFF>>>", "8/14/2000 1:30 PM"},
      {head + "<<<Cool End Off Live Stuff>>>", ""},
      {head + "\n<<<Cool End Off Live Stuff>>>", ""},
      {head + kEnd + "\r\n", ""},
      {std::string("LastLiveUpdate>>2/30/2000<<LastLiveUpdate") + kEnd, ""},
      {std::string("LastLiveUpdate>><<LastLiveUpdate") + kEnd, ""},
      {std::string("LastLiveUpdate>>8/14/2000") + kEnd, ""},
      {late.substr(1) + kEnd, "8/14/2000"},
      {late + kEnd, ""},
      {kEnd, ""},
      {"", ""},
  };
  for (const auto& c : kCases) {
    files_.Remove("/d/eventup.txt");
    reg_.SetSetting("LastEventUpdate", "before");
    const std::string stamp = c.stamp;
    EXPECT_EQ(SaveLiveEventUpdate(c.body, "M/d/yyyy", data_, reg_), stamp) << c.body;
    EXPECT_EQ(Get("eventup.txt"), stamp.empty() ? "(none)" : c.body);
    EXPECT_EQ(reg_.Setting("LastEventUpdate"), stamp.empty() ? "before" : stamp);
  }
}

TEST_F(StartServicesTest, LiveEventUpdateThatCannotBeWrittenChangesNothing) {
  files_.SetSpaceLeft(10);
  const std::string body = std::string("LastLiveUpdate>>8/14/2000<<LastLiveUpdate") + kEnd;
  EXPECT_EQ(SaveLiveEventUpdate(body, "M/d/yyyy", data_, reg_), "");
  EXPECT_EQ(reg_.Setting("LastEventUpdate"), "");
}

TEST_F(StartServicesTest, InstallIdIsMadeOnce) {
  EnsureInstallId(reg_);
  const std::string id = reg_.Setting("InstallId");
  EXPECT_EQ(id.size(), 32u);
  EXPECT_EQ(id.find_first_not_of("0123456789abcdef"), std::string::npos);
  EnsureInstallId(reg_);
  EXPECT_EQ(reg_.Setting("InstallId"), id);
  reg_.SetSetting("InstallId", "");
  EnsureInstallId(reg_);
  EXPECT_NE(reg_.Setting("InstallId"), id);
}

}  // namespace
}  // namespace sonaro
