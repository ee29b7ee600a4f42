#include "app/Startup.h"

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "app/CReg.h"
#include "app/HelpPages.h"
#include "app/WebPageOpener.h"
#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeMessageBox.h"
#include "fakes/FakeMessagePost.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStrings.h"
#include "fakes/FakeSystemInfo.h"
#include "playback/Players.h"
#include "resources/texts/app.h"

namespace sonaro {
namespace {

// What happened, in order, over all the fakes.
using Journal = std::vector<std::string>;

class JournalRegistry : public FakeRegistry {
 public:
  explicit JournalRegistry(Journal& journal) : journal_(journal) {}
  bool CreateKey(RootKey root, const std::string& key) override {
    journal_.push_back("create key");
    return FakeRegistry::CreateKey(root, key);
  }
  std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                       const std::string& name) override {
    journal_.push_back("read " + (name.empty() ? key.substr(key.rfind('\\') + 1) : name));
    return FakeRegistry::ReadValue(root, key, name);
  }
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override {
    journal_.push_back("write " + name + (name == "InstallId" ? "" : "=" + std::string(bytes)));
    return FakeRegistry::WriteValue(root, key, name, type, bytes);
  }

 private:
  Journal& journal_;
};

class JournalMessages : public FakeMessagePost {
 public:
  explicit JournalMessages(Journal& journal) : journal_(journal) {}
  bool WindowExists(const std::string& caption) override {
    journal_.push_back("look for " + caption);
    return FakeMessagePost::WindowExists(caption);
  }
  bool EarlierInstanceRuns() override {
    journal_.push_back("earlier instance?");
    return FakeMessagePost::EarlierInstanceRuns();
  }

 private:
  Journal& journal_;
};

class JournalSystem : public FakeSystemInfo {
 public:
  explicit JournalSystem(Journal& journal) : journal_(journal) {}
  std::string FormattedEightAndAHalf() override {
    journal_.push_back("8.5");
    return FakeSystemInfo::FormattedEightAndAHalf();
  }

 private:
  Journal& journal_;
};

class JournalView : public StartupView, public FakeMessageBox, public WebPageOpener {
 public:
  explicit JournalView(Journal& journal) : journal_(journal) {}
  void ShowSplash() override { journal_.push_back("splash"); }
  void CloseSplash() override { journal_.push_back("close splash"); }
  void LoadFaceplate() override { journal_.push_back("faceplate"); }
  void ShowStartUpInfo(StartUpInfoPage page) override {
    journal_.push_back(page == StartUpInfoPage::Player ? "page Player" : "page Proxy");
  }
  void LoadMainWindow() override { journal_.push_back("load main"); }
  void ShowMainWindow() override { journal_.push_back("show main"); }
  MessageResult Ask(const Message& message) override {
    journal_.push_back("ask " + message.key);
    return FakeMessageBox::Ask(message);
  }
  void OpenWebPage(const std::string& textOrKey) override {
    journal_.push_back("open " + textOrKey.substr(textOrKey.rfind('/') + 1));
  }

 private:
  Journal& journal_;
};

class StartupTest : public testing::Test {
 protected:
  StartupTest() {
    files_.MakeFolder("/d");
    registry_.CreateKey(RootKey::LocalMachine, kSettingsKey);
    registry_.Put(RootKey::CurrentUser, "Control Panel\\International", "sTimeFormat", "h:mm:ss tt");
    registry_.Put(RootKey::CurrentUser, "Control Panel\\International", "sShortDate", "M/d/yyyy");
    files_.Put("/d/fun.snr", "");
    files_.Put("/d/cat.snr", "");
    files_.Put("/d/station.snr", "1\tOld\r\n");
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
    Startup startup({messages_, system_, reg_, data_, stations_, players_, help_, strings_, view_,
                     [this] { journal_.push_back("addresses"); },
                     [this] {
                       journal_.push_back("find proxy");
                       return proxyFound_;
                     }},
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
  JournalSystem system_{journal_};
  FakeShell shell_;
  FakeStrings strings_;
  StatList stations_{data_};
  Players players_{reg_, data_, shell_};
  JournalView view_{journal_};
  HelpPages help_{reg_, view_};
  AppState state_;
  bool proxyFound_ = false;
};

TEST_F(StartupTest, StepsOfAFirstStartInOrder) {
  PutSetting("UpdateHold", "Station.snr\t");
  PutSetting("HelpURL", "http://help.example");
  files_.Put("/d/tStation.snr", "1\tNew\r\n");
  view_.answers = {{MessageAnswer::First, false}};
  proxyFound_ = true;
  EXPECT_TRUE(Main(""));
  EXPECT_EQ(Happenings(),
            "look for frmSysTrayMenu, earlier instance?, "
            "read InstallId, write InstallId, addresses, "
            "read sTimeFormat, read sShortDate, "
            "splash, faceplate, "
            "read UpdateHold, read UpdateHoldVersion, read UpdateHoldDate, write UpdateHold=, read "
            "UpdateHoldDate, read UpdateHoldVersion, "
            "8.5, "
            "read StartPlayer, read CurrentVersion, read MainApp, read PlayWith, page Player, "
            "read StartProxy, find proxy, page Proxy, "
            "load main, show main, close splash, "
            "read StartQuickStart, ask QuickStart, read HelpURL, open 9070.html, write StartQuickStart=No, ");
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
  EXPECT_FALSE(Happened("read CurrentVersion"));
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
  EXPECT_EQ(view_.asked[0].text, std::to_string(IDS_QUICK_START_TEXT));
  EXPECT_EQ(view_.asked[0].firstButton, std::to_string(IDS_QUICK_START_VIEW));
  EXPECT_EQ(view_.asked[0].secondButton, std::to_string(IDS_QUICK_START_SKIP));
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
    EXPECT_TRUE(StatList(data_).Verify()) << what;
    EXPECT_EQ(StationName(), "Old") << what;
  }
  EXPECT_TRUE(view_.asked.empty());
}

TEST_F(StartupTest, ATableThatCannotBeMadeIsToldAndTriedAgain) {
  AllChecksDone();
  PutSetting("UpdateHold", "Station.snr\t");
  files_.Put("/d/tStation.snr", "1\tNew\r\n");
  files_.SetSpaceLeft(20);
  EXPECT_TRUE(Main(""));
  EXPECT_TRUE(Happened("ask StationTableNotMade"));
  EXPECT_EQ(Setting("UpdateHold"), "");
  EXPECT_EQ(StationName(), "Old");
  files_.SetSpaceLeft({});
  journal_.clear();
  EXPECT_TRUE(Main(""));
  EXPECT_FALSE(Happened("ask StationTableNotMade"));
  EXPECT_EQ(StationName(), "New");
}

TEST_F(StartupTest, ADamagedTableWithoutAListIsAMissingOne) {
  AllChecksDone();
  files_.Remove("/d/station.snr");
  EXPECT_TRUE(Main(""));
  EXPECT_TRUE(view_.asked.empty()) << "a whole table does without its list";
  files_.Put(data_.Path("\\Statorg.isd"), "damaged");
  EXPECT_FALSE(Main(""));
  EXPECT_TRUE(Happened("ask MissingDataFilesNeedToDownloadThem"));
}

// An update waits, and the machine dies at any moment of the start: the next start finishes it, and list and
// table belong together, even if the settings are those of after the update because the disk kept them.
void CrashDuringTheSwap(bool holdIsKept) {
  Journal journal;
  JournalRegistry registry(journal);
  CReg reg(registry);
  registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  const auto start = [&](FakeFiles& files) {
    DataFolder data(files, "/d", '/');
    FakeMessagePost messages;
    JournalSystem system(journal);
    FakeShell shell;
    FakeStrings strings;
    StatList stations(data);
    Players players(reg, data, shell);
    JournalView view(journal);
    HelpPages help(reg, view);
    AppState state;
    state.commandLine = "WinStart=Yes";
    Startup({messages, system, reg, data, stations, players, help, strings, view, nullptr, nullptr}, state,
            view)
        .Main();
  };
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        files.Put("/d/fun.snr", "");
        files.Put("/d/cat.snr", "");
        files.Put("/d/Station.snr", "1\tOld\r\n");
        DataFolder data(files, "/d", '/');
        StatList(data).RebuildStationTable();
        files.Put("/d/tStation.snr", "1\tNew\r\n");
        reg.SetSetting("UpdateHold", "Station.snr\t");
      },
      [&](FakeFiles& files) {
        start(files);
        if (files.Crashed()) reg.SetSetting("UpdateHold", holdIsKept ? "Station.snr\t" : "");
      },
      [&](FakeFiles& files, const CrashPoint& point) {
        DataFolder data(files, "/d", '/');
        start(files);
        const std::string name = StatList(data).FindStation(1)[StationField::Name];
        EXPECT_EQ(files.Get("/d/Station.snr"), "1\t" + name + "\r\n") << point.operation;
        EXPECT_TRUE(name == "New" || !holdIsKept) << point.operation;
        EXPECT_TRUE(StatList(data).Verify()) << point.operation;
      });
  EXPECT_GT(operations, 5);
}

TEST(StartupCrash, TheNextStartFinishesTheUpdate) { CrashDuringTheSwap(true); }
TEST(StartupCrash, ListAndTableAgreeWhenTheSettingsAreAhead) { CrashDuringTheSwap(false); }

}  // namespace
}  // namespace sonaro
