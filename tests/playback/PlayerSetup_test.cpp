// Finding the players of a computer, choosing one, and telling what plays how many stations.
#include <gtest/gtest.h>

#include <cstdlib>

#include "playback/PlaybackWorld.h"
#include "playback/PlayerReport.h"
#include "playback/PlayerSetup.h"
#include "resources/texts/playback.h"
#include "settings/AppState.h"

namespace sonaro {
namespace {

class PlayerSetupTest : public testing::Test, protected PlaybackWorld {
 protected:
  void Install(const std::string& path) { files.Put(path, "program"); }
  void RegisterClass(const std::string& fileClass, const std::string& command) {
    registry.Put(RootKey::ClassesRoot, fileClass + "\\shell\\open\\command", "", command);
  }
  void RegisterApplication(RootKey root, const std::string& name, const std::string& kind,
                           const std::string& fileClass) {
    const std::string capabilities = "SOFTWARE\\" + name + "\\Capabilities";
    registry.Put(root, "SOFTWARE\\RegisteredApplications", name, capabilities);
    registry.Put(root, capabilities + "\\FileAssociations", kind, fileClass);
  }
  // What is left of a text once strings are numbers: its number and its figures stand in the template's
  // place.
  std::vector<std::string> Lines(const PlayerReport& report) {
    std::vector<std::string> lines;
    for (const auto& line : report.lines) lines.push_back((line.missing ? "!" : "") + line.text);
    return lines;
  }

  AppState state_;
  PlayerSetup setup_{reg, files, players, installed};
  PlayerReporter reporter_{players, installed, data, source, strings, state_};
};

TEST_F(PlayerSetupTest, InstalledPlayersAreFoundOnceAndByName) {
  shell.programs.clear();
  EXPECT_TRUE(installed.Find().empty());

  Install("C:\\Apps\\One.exe");
  RegisterClass("One.mp3", "\"C:\\Apps\\One.exe\" --play \"%1\"");
  RegisterApplication(RootKey::LocalMachine, "one player", ".mp3", "One.mp3");
  Install("C:\\two.exe");
  RegisterClass("Two.pls", "C:\\two.exe %1");
  RegisterApplication(RootKey::CurrentUser, "Two", ".pls", "Two.pls");
  registry.Put(RootKey::CurrentUser, "SOFTWARE\\Two\\Capabilities", "ApplicationName", "Two of Mine");
  RegisterClass("Gone.mp3", "C:\\gone.exe");
  RegisterApplication(RootKey::LocalMachine, "Gone", ".mp3", "Gone.mp3");
  RegisterApplication(RootKey::LocalMachine, "Painter", ".png", "One.mp3");
  Install("c:\\three.exe");
  shell.programs[".m3u"] = "c:\\three.exe";
  shell.programs[".mp3"] = "C:\\APPS\\ONE.EXE";
  Install("c:\\windows\\openwith.exe");
  shell.programs[".pls"] = "c:\\windows\\openwith.exe";
  Install("/players/four.exe");
  RegisterClass("Four", "\"%SONARO_TEST_FOLDER%/four.exe\"");
  registry.Put(RootKey::ClassesRoot, ".m3u\\OpenWithProgids", "Four", "");
#ifdef _WIN32
  _putenv("SONARO_TEST_FOLDER=/players");
#else
  setenv("SONARO_TEST_FOLDER", "/players", 1);
#endif
  EXPECT_EQ(installed.Find(), (std::vector<PlayerProgram>{{"one player", "C:\\Apps\\One.exe"},
                                                          {"Two of Mine", "C:\\two.exe"},
                                                          {"three.exe", "c:\\three.exe"},
                                                          {"four.exe", "/players/four.exe"}}));
  EXPECT_FALSE(files.Exists("/d/dummy.mp3"));
  EXPECT_EQ(reg.MainKey(), RootKey::LocalMachine);
}

TEST_F(PlayerSetupTest, AnyExecutableCanBeChosenAndTheChoiceTakenBack) {
  const std::string path = "C:\\My Music\\Any.exe";
  EXPECT_EQ(setup_.Choose(path), PlayerChoiceOutcome::NoSuchFile);
  Install(path);
  EXPECT_EQ(setup_.Choose(path), PlayerChoiceOutcome::Stored);
  EXPECT_EQ(setup_.Chosen(), path);
  EXPECT_EQ(setup_.Programs().back(), (PlayerProgram{"Any.exe", path}));
  files.Remove(path);
  EXPECT_EQ(setup_.Choose(path), PlayerChoiceOutcome::Stored) << "a choice that stays is none";
  EXPECT_EQ(setup_.Choose(""), PlayerChoiceOutcome::Stored);
  EXPECT_TRUE(setup_.Programs().empty());
  Install(path);
  registry.writesDenied = true;
  EXPECT_EQ(setup_.Choose(path), PlayerChoiceOutcome::NotStored);
}

TEST_F(PlayerSetupTest, ATestNeedsAProgramAndALinkThatMayBePlayed) {
  Install("C:\\any.exe");
  EXPECT_EQ(setup_.Test("C:\\any.exe", "mhttp://a.example/t"), "any.exe");
  EXPECT_EQ(shell.opened.back(), (FakeShell::Opened{"C:\\any.exe", "http://a.example/t", "/d"}));
  EXPECT_EQ(setup_.Test("C:\\any.exe", "mfile://a/t.ram"), "");
  EXPECT_EQ(setup_.Test("C:\\none.exe", "http://a.example/t.ram"), "");
  EXPECT_EQ(setup_.Test("", "http://a.example/t.ram"), "");
  EXPECT_EQ(setup_.Test("", "mhttp://a.example/t"), "") << "its program does not exist";
  Install("c:\\media\\player.exe");
  EXPECT_EQ(setup_.Test("", "mhttp://a.example/t"), "player.exe");
  EXPECT_EQ(shell.opened.size(), 2u);
}

TEST_F(PlayerSetupTest, StationsAreCountedByTheLinkThatPlays) {
  AddStation(-9, "list", {"mhttp://a/x.pls"});
  AddStation(1, "asx", {"mhttp://a", "http://a"});
  AddStation(2, "asx", {" ", "mhttp://a"});
  AddStation(3, "asx", {}, "mhttp://a");
  AddStation(-4, "real", {"http://a"});
  AddStation(5, "page", {"whttp://a"});
  AddStation(6, "site", {}, "", "www.a.example");
  const LinkCounts counts = reporter_.CountLinks();
  EXPECT_EQ(counts.asxProgram, 4u);
  EXPECT_EQ(counts.plsAmongAsx, 1u);
  EXPECT_EQ(counts.realPlayer, 1u);
  EXPECT_EQ(counts.webPage, 1u);
  EXPECT_EQ(counts.name + " " + counts.link, "real http://a") << "for a test: the first that is no playlist";
  AddStation(7, "new", {"http://a"});
  EXPECT_EQ(reporter_.CountLinks().realPlayer, 1u) << "counted once";
  reporter_.DirectoryChanged();
  EXPECT_EQ(reporter_.CountLinks().realPlayer, 2u);
}

TEST_F(PlayerSetupTest, TheReportAlarmsOnlyWhereNothingPlays) {
  using Plays = PlayerReport::Plays;
  const std::string asx = std::to_string(IDS_PLAYERS_ASX);
  const std::string real = std::to_string(IDS_PLAYERS_REAL);
  const std::string missing = "!";
  EXPECT_EQ(reporter_.Report({41270, 0, 0}, "").plays, Plays::Everything);
  EXPECT_EQ(Lines(reporter_.Report({41270, 0, 0}, "")), (std::vector<std::string>{asx}));
  const PlayerReport some = reporter_.Report({3, 2, 1}, "");
  EXPECT_EQ(some.plays, Plays::Some);
  EXPECT_EQ(Lines(some), (std::vector<std::string>{asx, missing + std::to_string(IDS_PLAYERS_REAL_NONE),
                                                   std::to_string(IDS_PLAYERS_WEB)}));
  InstallRealPlayer();
  EXPECT_EQ(reporter_.Report({3, 2, 1}, "").plays, Plays::Everything);
  EXPECT_EQ(Lines(reporter_.Report({3, 0, 0}, "")), (std::vector<std::string>{asx}));
  shell.programs.clear();
  EXPECT_EQ(Lines(reporter_.Report({3, 2, 0}, "")),
            (std::vector<std::string>{missing + std::to_string(IDS_PLAYERS_ASX_NONE_MOST), real}));
  files.Remove("C:\\Real\\RealPlay.exe");
  EXPECT_EQ(reporter_.Report({3, 2, 0}, "").plays, Plays::Nothing);
  EXPECT_EQ(reporter_.Report({}, "").plays, Plays::Nothing);

  // .pls playlists have a line of their own once a program reads them.
  Install("c:\\lists.exe");
  shell.programs[".pls"] = "c:\\lists.exe";
  strings.texts = {{IDS_PLAYERS_ASX_NONE_MOST, "{0}"}, {IDS_PLAYERS_PLS, "{0} {1}"}};
  EXPECT_EQ(Lines(reporter_.Report({.asxProgram = 3, .plsAmongAsx = 2}, "")),
            (std::vector<std::string>{"!1", "2 lists.exe"}));

  Install("C:\\any.exe");
  EXPECT_EQ(reporter_.Report({3, 2, 0}, "C:\\any.exe").plays, Plays::Everything);
  EXPECT_EQ(reporter_.Report({3, 2, 0}, "C:\\gone.exe").plays, Plays::Nothing);
}

}  // namespace
}  // namespace sonaro
