#include "app/Startup.h"

#include <gtest/gtest.h>

#include "app/StartupJournal.h"
#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStrings.h"
#include "playback/Players.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "tray/Backup.h"

namespace sonaro {
namespace {

class StartupTest : public testing::Test {
 protected:
  StartupTest() {
    files_.MakeFolder("/d");
    registry_.CreateKey(RootKey::LocalMachine, kSettingsKey);
    registry_.Put(RootKey::CurrentUser, "Control Panel\\International", "sTimeFormat", "h:mm:ss tt");
    registry_.Put(RootKey::CurrentUser, "Control Panel\\International", "sShortDate", "M/d/yyyy");
    files_.Put("/d/fun.snr", "");
    files_.Put("/d/cat.snr", "");
    files_.Put("/d/Station.snr", "1\tOld\r\n");
    stations_.RebuildStationTable();
    journal_.clear();
  }
  void PutSetting(const char* name, const std::string& text) {
    registry_.Put(RootKey::LocalMachine, kSettingsKey, name, text);
  }
  std::string Setting(const char* name) {
    const auto value = registry_.Stored(RootKey::LocalMachine, kSettingsKey, name);
    return value ? value->bytes : "(none)";
  }
  void AllChecksDone() {
    for (const char* check : {"StartPlayer", "StartProxy", "StartQuickStart"}) PutSetting(check, "NO");
  }
  bool Main(const std::string& commandLine) {
    state_.commandLine = commandLine;
    Startup startup(
        {messages_, system_, reg_, data_, stations_, players_, help_, strings_, view_, view_, backup_},
        state_, view_);
    return startup.Main();
  }
  bool Happened(const std::string& what) const {
    return std::find(journal_.begin(), journal_.end(), what) != journal_.end();
  }
  std::string Happenings() const {
    std::string text;
    for (const std::string& what : journal_) text += what + ", ";
    return text;
  }
  std::string StationName() { return StatList(data_).FindStation(1)[StationField::Name]; }

  Journal journal_;
  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
  JournalRegistry registry_{journal_};
  CReg reg_{registry_};
  JournalMessages messages_{journal_};
  FakeSystemInfo system_;
  FakeShell shell_;
  FakeStrings strings_;
  StatList stations_{data_};
  Players players_{reg_, data_, shell_};
  JournalView view_{journal_};
  HelpPages help_{reg_, view_, data_, shell_};
  FakeClock clock_;
  Backup backup_{data_, reg_, clock_};
  AppState state_;
};

TEST_F(StartupTest, StepsOfAFirstStartInOrder) {
  PutSetting("UpdateHold", "Station.snr\t");
  PutSetting("HelpURL", "http://help.example");
  files_.Put("/d/tStation.snr", "1\tNew\r\n");
  view_.answers = {{MessageAnswer::First, false}};
  view_.proxyFound = true;
  EXPECT_TRUE(Main(""));
  EXPECT_EQ(Happenings(),
            "look for frmSysTrayMenu, earlier instance?, "
            "write InstallId, addresses, "
            "splash, faceplate, "
            "write UpdateHold=, page Player, find proxy, page Proxy, "
            "load main, show main, close splash, "
            "ask QuickStart, open 9070.html, write StartQuickStart=No, ");
  EXPECT_EQ(StationName(), "New");
  EXPECT_EQ(state_.clockStyle, ClockStyle::Hours12);
  EXPECT_EQ(state_.shortDatePattern, "M/d/yyyy");
  EXPECT_FALSE(state_.startedWithWindows);
}

TEST_F(StartupTest, ASecondStartOnlyPostsAMessage) {
  messages_.windows.insert("frmSysTrayMenu");
  EXPECT_FALSE(Main("DoWhat=BringSearch"));
  EXPECT_EQ(messages_.posted, (std::vector<FakeMessagePost::Posted>{{"frmSysTrayMenu", 1793, 0, 0}}));
  EXPECT_EQ(journal_.size(), 2u);  // the look-up by the program and by the post

  messages_.windows.clear();
  messages_.earlierInstanceRuns = true;
  journal_.clear();
  EXPECT_FALSE(Main(""));
  EXPECT_EQ(journal_, (Journal{"look for frmSysTrayMenu", "earlier instance?"}));
  EXPECT_EQ(messages_.posted.size(), 1u);
}

TEST_F(StartupTest, WithWindowsNothingIsShownAndNothingIsChecked) {
  EXPECT_TRUE(Main("winstart=YES"));
  EXPECT_TRUE(state_.startedWithWindows);
  EXPECT_TRUE(Happened("load main"));
  for (const char* shown :
       {"splash", "show main", "page Player", "page Proxy", "find proxy", "ask QuickStart"}) {
    EXPECT_FALSE(Happened(shown)) << shown;
  }
  EXPECT_EQ(Setting("StartQuickStart"), "(none)");
  EXPECT_EQ(Setting("StartPlayer"), "(none)");
}

TEST_F(StartupTest, CommandLineDecidesOnTheSplash) {
  AllChecksDone();
  const struct {
    const char* commandLine;
    bool splash;
  } kCases[] = {{"", true}, {"WinStart=Yes ", true}, {"dowhat=bringEvents", false}, {"DoWhat=Other", true}};
  for (const auto& c : kCases) {
    journal_.clear();
    EXPECT_TRUE(Main(c.commandLine));
    EXPECT_EQ(Happened("splash"), c.splash) << c.commandLine;
    EXPECT_TRUE(Happened("show main")) << c.commandLine;
  }
  EXPECT_FALSE(Happened("ask QuickStart"));
  EXPECT_FALSE(Happened("find proxy"));
}

TEST_F(StartupTest, FirstRunChecksAreSettledWhenThereIsNothingToSay) {
  const std::string key = "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer\\";
  registry_.Put(RootKey::LocalMachine, key + "CurrentVersion", "", "6.0");
  registry_.Put(RootKey::LocalMachine, key + "6.0\\Preferences\\MainApp", "", "/real/realplay.exe");
  Main("");  // registered, but the file is gone
  EXPECT_TRUE(Happened("page Player"));
  EXPECT_EQ(Setting("StartPlayer"), "(none)");
  EXPECT_EQ(Setting("StartProxy"), "No");
  files_.Put("/real/realplay.exe", "");
  journal_.clear();
  Main("");
  EXPECT_FALSE(Happened("page Player"));
  EXPECT_EQ(Setting("StartPlayer"), "No");
  EXPECT_FALSE(Happened("find proxy"));
}

TEST_F(StartupTest, QuickStartIsOfferedOnceWhateverTheAnswer) {
  for (const MessageAnswer answer : {MessageAnswer::Second, MessageAnswer::Closed}) {
    PutSetting("StartQuickStart", "");
    view_.answers = {{answer, false}};
    view_.asked.clear();
    Main("");
    Main("");
    ASSERT_EQ(view_.asked.size(), 1u);
    EXPECT_FALSE(Happened("open 9070.html"));
    EXPECT_EQ(Setting("StartQuickStart"), "No");
  }
}

TEST_F(StartupTest, MissingFilesAskBeforeAnythingElseIsChecked) {
  const struct {
    MessageAnswer answer;
    const char* commandLine;
    bool goesOn;
    int splashes;
  } kCases[] = {
      {MessageAnswer::First, "", true, 2},
      {MessageAnswer::First, "DoWhat=BringUp", true, 1},
      {MessageAnswer::First, "WinStart=Yes", true, 0},
      {MessageAnswer::Second, "", false, 1},
      {MessageAnswer::Closed, "WinStart=Yes", false, 0},
  };
  files_.Remove("/d/fun.snr");
  for (const auto& c : kCases) {
    journal_.clear();
    PutSetting("LastUpdate", "8/14/2000");
    AllChecksDone();
    view_.answers = {{c.answer, false}};
    EXPECT_EQ(Main(c.commandLine), c.goesOn);
    EXPECT_TRUE(Happened("ask MissingDataFilesNeedToDownloadThem"));
    EXPECT_EQ(Happened("open 9037.html"), !c.goesOn);
    EXPECT_EQ(Happened("load main"), c.goesOn);
    EXPECT_EQ(std::count(journal_.begin(), journal_.end(), "splash"), c.splashes);
    EXPECT_EQ(Setting("LastUpdate"), "");
  }
}

// Exit in the tray while the start shows something: nothing more happens, and what was asked stays undecided.
TEST_F(StartupTest, ExitEndsTheStartAtOnceAndDecidesNothing) {
  const std::function<void()> nothing = [] {};
  const std::function<void()> filesMissing = [&] { files_.Remove("/d/fun.snr"); };
  const std::pair<const char*, std::function<void()>> kCases[] = {
      {"faceplate", nothing},
      {"ask StationTableNotMade",
       [&] {
         files_.Put("/d/Station.snr", "1\tNewer\r\n");
         files_.SetSpaceLeft(20);
       }},
      {"page Player", nothing},
      {"page Proxy", nothing},
      {"ask QuickStart", nothing},
      {"ask MissingDataFilesNeedToDownloadThem", filesMissing},
  };
  view_.proxyFound = true;
  for (const auto& [shown, prepare] : kCases) {
    prepare();
    journal_.clear();
    view_.exitAfter = shown;
    EXPECT_FALSE(Main("")) << shown;
    EXPECT_EQ(journal_.back(), shown);
    for (const char* check : {"StartPlayer", "StartProxy", "StartQuickStart"})
      EXPECT_EQ(Setting(check), "(none)") << shown;
    files_.SetSpaceLeft({});
  }
}

TEST_F(StartupTest, WithoutAWindowTheStartEnds) {
  for (const char* refused : {"faceplate", "load main"}) {
    journal_.clear();
    view_.noWindowFor = refused;
    EXPECT_FALSE(Main("WinStart=Yes")) << refused;
    EXPECT_EQ(journal_.back(), refused);
  }
}

TEST_F(StartupTest, TheTableOfTheListIsMadeAnewWithoutAWord) {
  AllChecksDone();
  const std::string table[] = {data_.Path("\\Statorg.isd"), data_.Path("\\Statorg.ism")};
  const auto damage = [&](const std::string& path) {
    std::string bytes = files_.Get(path).value_or("");
    bytes.at(bytes.size() / 2) ^= 0x40;
    files_.Put(path, bytes);
  };
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"damaged records", [&] { damage(table[0]); }},
      {"damaged index", [&] { damage(table[1]); }},
      {"no index", [&] { files_.Remove(table[1]); }},
      {"no table",
       [&] { StatList(data_).RebuildStationTable(), files_.Remove(table[0]), files_.Remove(table[1]); }},
      {"a held list whose table comes with it and is none",
       [&] {
         PutSetting("UpdateHold", "Station.snr\tStatorg.isd\t");
         files_.Put("/d/tStation.snr", "1\tOld\r\n");
         files_.Put("/d/tStatorg.isd", "not a table");
       }},
  };
  for (const auto& [what, happens] : cases) {
    happens();
    EXPECT_TRUE(Main("")) << what;
    StatList stations(data_);
    (void)CareForStationTable(stations, TableCheck::Whole, strings_, view_);  // once the window is painted
    EXPECT_TRUE(StatList(data_).Verify()) << what;
    EXPECT_EQ(StationName(), "Old") << what;
  }
  EXPECT_TRUE(view_.asked.empty());
}

TEST_F(StartupTest, ATableThatCannotBeMadeIsToldAndTriedAgain) {
  AllChecksDone();
  PutSetting("UpdateHold", "Station.snr\t");
  files_.Put("/d/tStation.snr", "1\tNewer\r\n");
  files_.SetSpaceLeft(20);
  EXPECT_TRUE(Main(""));
  EXPECT_TRUE(Happened("ask StationTableNotMade"));
  EXPECT_EQ(Setting("UpdateHold"), "");
  EXPECT_EQ(StationName(), "Old");
  files_.SetSpaceLeft({});
  journal_.clear();
  EXPECT_TRUE(Main(""));
  EXPECT_FALSE(Happened("ask StationTableNotMade"));
  EXPECT_EQ(StationName(), "Newer");
}

TEST_F(StartupTest, ADamagedTableWithoutAListIsAMissingOne) {
  AllChecksDone();
  files_.Remove("/d/Station.snr");
  EXPECT_TRUE(Main(""));
  EXPECT_TRUE(view_.asked.empty()) << "a whole table does without its list";
  files_.Put(data_.Path("\\Statorg.isd"), "damaged");
  EXPECT_FALSE(Main(""));
  EXPECT_TRUE(Happened("ask MissingDataFilesNeedToDownloadThem"));
}

}  // namespace
}  // namespace sonaro
