#include "playback/PlayerLaunch.h"

#include <gtest/gtest.h>

#include "playback/PlaybackWorld.h"
#include "resources/texts/playback.h"

namespace sonaro {
namespace {

PlayRequest Link(std::string link) { return {{}, PlayMode::KeyItself, std::move(link)}; }
PlayRequest OfStation(std::string_view token, PlayMode mode) { return {StationKey::FromToken(token), mode}; }

class FakeLaunchView : public LaunchView {
 public:
  int noPlayerPages = 0;
  int offers = 0;
  std::function<void()> whileShown;
  std::function<void()> choose;  // what the user does with an offer of players, which counts as a choice
  std::vector<std::string> sentences;
  std::vector<std::string> handed;

  bool ShowNoPlayer() override {
    ++noPlayerPages;
    if (whileShown) whileShown();
    return Choose();
  }
  void ShowErrorText(const std::string& sentence) override { sentences.push_back(sentence); }
  void HandedOver(const std::string& sentence) override { handed.push_back(sentence); }
  bool OfferPlayers(const std::string& sentence) override {
    ++offers;
    sentences.push_back(sentence);
    return Choose();
  }

 private:
  bool Choose() {
    const auto chosen = std::exchange(choose, nullptr);
    if (chosen) chosen();
    return chosen != nullptr;
  }
};

using Opened = FakeShell::Opened;

class PlayerLaunchTest : public testing::Test, protected PlaybackWorld {
 protected:
  PlayerLaunchTest() { launch.SetView(&view_); }
  std::string Played() {
    return shell.opened.empty() ? "(none)"
                                : shell.opened.back().program + "|" + shell.opened.back().parameters;
  }
  std::string RecentText() const {
    std::string text;
    for (const StationKey& key : recent.Keys()) text += key.Token() + " ";
    return text;
  }
  std::string Browsed() { return shell.runMinimised.empty() ? "(none)" : shell.runMinimised.back(); }
  void ClearShell() {
    shell.opened.clear();
    shell.runMinimised.clear();
    view_.sentences.clear();
  }

  FakeLaunchView view_;
};

TEST_F(PlayerLaunchTest, LinkPrefixDecides) {
  InstallRealPlayer();
  const struct {
    const char* link;
    const char* played;
    const char* browsed;
  } kCases[] = {
      {"http://a.example/s.ram", "C:\\Real\\RealPlay.exe|http://a.example/s.ram", "(none)"},
      {"rtsp://a.example/m", "C:\\Real\\RealPlay.exe|rtsp://a.example/m", "(none)"},
      {"mhttp://a.example/s", "c:\\media\\player.exe|http://a.example/s", "(none)"},
      {"mmms://a.example/s", "c:\\media\\player.exe|mms://a.example/s", "(none)"},
      {"whttp://a.example/", "(none)", "/d/lweb.exe http://a.example/"},
      {"wwww.a.example", "(none)", "/d/lweb.exe http://www.a.example"},
  };
  for (const auto& c : kCases) {
    ClearShell();
    launch.LaunchStation(Link(c.link));
    EXPECT_EQ(Played(), c.played) << c.link;
    EXPECT_EQ(Browsed(), c.browsed) << c.link;
    EXPECT_TRUE(view_.sentences.empty());
    for (const Opened& opened : shell.opened) EXPECT_EQ(opened.folder, "/d");
  }
  EXPECT_TRUE(recent.Keys().empty());
}

TEST_F(PlayerLaunchTest, ModesChooseTheLinkAndRecord) {
  AddStation(12, "Jazz", {"m1://x", "m2://x", "m3://x"});
  AddStation(-5, "Minus", {"m4://x"});
  PersonalStation own;
  own.name = "Own";
  own.links = {"", "m5://x", ""};
  personal.Add(own);
  const struct {
    PlayRequest request;
    const char* link;
    const char* recent;
  } kCases[] = {
      {OfStation("12", PlayMode::LinkOne), "1://x", "12 "},
      {OfStation("12", PlayMode::LinkTwo), "2://x", "12 "},
      {OfStation("12", PlayMode::LinkThree), "3://x", "12 "},
      {OfStation("-5", PlayMode::LinkOne), "4://x", "-5 12 "},
      {OfStation("P1", PlayMode::Personal), "5://x", "P1 -5 12 "},
      {OfStation("P1", PlayMode::LinkTwo), "5://x", "P1 -5 12 "},
      {{{}, PlayMode::BeforeTab, "m6://x\tm7://x"}, "6://x", "P1 -5 12 "},
      {Link("m8://x"), "8://x", "P1 -5 12 "},
  };
  for (const auto& c : kCases) {
    ClearShell();
    launch.LaunchStation(c.request);
    EXPECT_EQ(Played(), std::string("c:\\media\\player.exe|") + c.link);
    EXPECT_EQ(RecentText(), c.recent);
  }
}

TEST_F(PlayerLaunchTest, WithoutALinkTheAlternateOneOrTheWebSite) {
  AddStation(1, "Alternate", {" ", "m2://x"}, "malt://x", "www.site.example");
  AddStation(2, "Site", {}, "", "www.site.example");
  AddStation(3, "Page", {}, "whttps://page.example/");
  AddStation(4, "Nothing", {});
  PersonalStation own;
  own.name = "Own";
  own.webSite = "https://own.example/";
  personal.Add(own);  // has the number of a directory station as its index
  const struct {
    PlayRequest request;
    const char* played;
    const char* browsed;
    LaunchOutcome outcome;
  } kCases[] = {
      {OfStation("1", PlayMode::LinkOne), "c:\\media\\player.exe|alt://x", "(none)", LaunchOutcome::Started},
      {OfStation("1", PlayMode::LinkTwo), "c:\\media\\player.exe|2://x", "(none)", LaunchOutcome::Started},
      {OfStation("2", PlayMode::LinkOne), "(none)", "/d/lweb.exe http://www.site.example",
       LaunchOutcome::WebPage},
      {OfStation("3", PlayMode::LinkThree), "(none)", "/d/lweb.exe https://page.example/",
       LaunchOutcome::WebPage},
      {OfStation("4", PlayMode::LinkOne), "(none)", "(none)", LaunchOutcome::NoLink},
      {OfStation("99", PlayMode::LinkOne), "(none)", "(none)", LaunchOutcome::NoLink},
      {OfStation("X", PlayMode::LinkOne), "(none)", "(none)", LaunchOutcome::NoLink},
      {OfStation("P1", PlayMode::Personal), "(none)", "/d/lweb.exe https://own.example/",
       LaunchOutcome::WebPage},
      {OfStation("P7", PlayMode::Personal), "(none)", "(none)", LaunchOutcome::NoLink},
      {{{}, PlayMode::BeforeTab, "\tm1://x"}, "(none)", "(none)", LaunchOutcome::NoLink},
      {Link(""), "(none)", "(none)", LaunchOutcome::NoLink},
      {Link("m"), "(none)", "(none)", LaunchOutcome::NoLink},
      {Link("w"), "(none)", "(none)", LaunchOutcome::NoLink},
  };
  for (const auto& c : kCases) {
    ClearShell();
    EXPECT_EQ(launch.TryLaunch(c.request), c.outcome) << c.request.station.Token() << c.request.link;
    EXPECT_EQ(Played(), c.played) << c.request.station.Token() << c.request.link;
    EXPECT_EQ(Browsed(), c.browsed) << c.request.station.Token() << c.request.link;
  }
  EXPECT_EQ(RecentText(), "P7 P1 99 4 3 2 1 ");
}

TEST_F(PlayerLaunchTest, HostileLinksReachNoProgram) {
  InstallRealPlayer();
  for (const char* link : {"m-play http://a", "m/open", "m\\\\host\\share", "C:\\x.mp3", "file://host/x",
                           "m%TEMP%", "-x", "/x", "http://a\" \"b", "mhttp://a /delete", "m \r\nx",
                           "wfile:///etc/passwd", "whttp://a.example/ -x", "wjavascript:alert(1)"}) {
    ClearShell();
    launch.LaunchStation(Link(link));
    EXPECT_EQ(Played(), "(none)") << link;
    EXPECT_EQ(Browsed(), "(none)") << link;
    const int refused = link[0] == 'w' ? IDS_WHYNOT_REFUSED_PAGE : IDS_WHYNOT_REFUSED_LINK;
    EXPECT_EQ(view_.sentences, std::vector<std::string>{std::to_string(refused)}) << link;
  }
}

TEST_F(PlayerLaunchTest, NoPlayerPageOpensOnce) {
  view_.whileShown = [this] { launch.LaunchStation(Link("http://b/")); };
  launch.LaunchStation(Link("http://a/"));
  EXPECT_EQ(view_.noPlayerPages, 1);
  EXPECT_TRUE(view_.sentences.empty());
  view_.whileShown = nullptr;
  launch.LaunchStation(Link("http://a/"));
  EXPECT_EQ(view_.noPlayerPages, 2);
  EXPECT_TRUE(shell.opened.empty());

  // A program for .ram files that is something else is no player either.
  shell.programs[".ram"] = "c:\\tools\\notepad.exe";
  files.Put("c:\\tools\\notepad.exe", "");
  EXPECT_EQ(launch.TryLaunch(Link("http://a/")), LaunchOutcome::NoPlayer);
  EXPECT_EQ(view_.noPlayerPages, 2);
}

TEST_F(PlayerLaunchTest, FailuresThatTheUserIsTold) {
  shell.programs.clear();
  launch.LaunchStation(Link("mhttp://a/"));
  shell.programs[".asx"] = "p.exe";
  shell.startsFail = true;
  launch.LaunchStation(Link("mhttp://a/"));
  EXPECT_EQ(view_.offers, 2);
  launch.LaunchStation(Link("whttp://a/"));
  EXPECT_EQ(view_.offers, 2) << "another player would not open the page";
  EXPECT_EQ(view_.sentences, (std::vector<std::string>{std::to_string(IDS_WHYNOT_NO_ASX_PROGRAM),
                                                       std::to_string(IDS_WHYNOT_NOT_STARTED),
                                                       std::to_string(IDS_WHYNOT_PAGE_NOT_STARTED)}));
}

TEST_F(PlayerLaunchTest, AChosenPlayerGetsEveryStreamAndNoPage) {
  InstallRealPlayer();
  reg.SetSetting("PlayWith", "C:\\My Music\\Any.exe");
  for (const char* link : {"mhttp://a/s", "http://a/s"}) {
    launch.LaunchStation(Link(link));
    EXPECT_EQ(shell.opened.back(), (Opened{"C:\\My Music\\Any.exe", "http://a/s", "/d"}));
  }
  launch.LaunchStation(Link("whttp://a/"));
  EXPECT_EQ(shell.opened.size(), 2u);
  EXPECT_EQ(Browsed(), "/d/lweb.exe http://a/");
}

TEST_F(PlayerLaunchTest, WhatDidNotPlayPlaysWithThePlayerChosenThereupon) {
  shell.programs.clear();
  EXPECT_FALSE(launch.AnythingPlays());
  for (const char* link : {"mhttp://a/s", "http://a/s"}) {
    reg.SetSetting("PlayWith", "");
    view_.choose = [this] { reg.SetSetting("PlayWith", "C:\\any.exe"); };
    launch.LaunchStation(Link(link));
    EXPECT_EQ(Played(), "C:\\any.exe|http://a/s");
    ClearShell();
  }
  EXPECT_EQ(view_.offers, 1);
  EXPECT_EQ(view_.noPlayerPages, 1);
  EXPECT_TRUE(launch.AnythingPlays());
}

TEST_F(PlayerLaunchTest, FindRealPlayer) {
  const std::string association = "C:\\Apps\\RealOne.EXE \"%1\"";
  files.Put("c:\\apps\\realone.exe", "");
  EXPECT_EQ(players.FindRealPlayer(false), "");
  EXPECT_EQ(files.Get("/d/dummy.ram"), "");
  shell.programs[".ram"] = association;
  files.Put("/d/dummy.ram", "left over");
  EXPECT_EQ(players.FindRealPlayer(false), "c:\\apps\\realone.exe");
  EXPECT_EQ(files.Get("/d/dummy.ram"), "");

  // What the player registered itself goes first, unless the caller wants the association.
  InstallRealPlayer();
  EXPECT_EQ(players.FindRealPlayer(false), "C:\\Real\\RealPlay.exe");
  EXPECT_EQ(players.FindRealPlayer(true), "c:\\apps\\realone.exe");
  // A registered player that is gone does not fall back on the association.
  files.Remove("C:\\Real\\RealPlay.exe");
  EXPECT_EQ(players.FindRealPlayer(false), "");
  files.Remove("c:\\apps\\realone.exe");
  EXPECT_EQ(players.FindRealPlayer(true), "");
  EXPECT_EQ(reg.MainKey(), RootKey::LocalMachine);
}

TEST_F(PlayerLaunchTest, WebPagesByAddressAndByStation) {
  AddStation(12, "Jazz", {}, "", "www.jazz.example/x");
  AddStation(13, "Http", {}, "", "HTTP://www.jazz.example");
  const struct {
    const char* text;
    WebPageOutcome outcome;
    const char* browsed;
  } kCases[] = {
      {"http://a.example/?q=1", WebPageOutcome::Opened, "/d/lweb.exe http://a.example/?q=1"},
      {"www.jazz.example/x", WebPageOutcome::Opened, "/d/lweb.exe http://www.jazz.example/x"},
      {" HTTP://www.jazz.example", WebPageOutcome::Opened, "/d/lweb.exe HTTP://www.jazz.example"},
      {"12", WebPageOutcome::Opened, "/d/lweb.exe http://www.jazz.example/x"},
      {"13", WebPageOutcome::Opened, "/d/lweb.exe HTTP://www.jazz.example"},
      {"99", WebPageOutcome::NoAddress, "(none)"},
      {"P4", WebPageOutcome::NoAddress, "(none)"},
      {"", WebPageOutcome::NoAddress, "(none)"},
      {"http://", WebPageOutcome::Refused, "(none)"},
  };
  for (const auto& c : kCases) {
    ClearShell();
    EXPECT_EQ(pages.Open(c.text), c.outcome) << c.text;
    EXPECT_EQ(Browsed(), c.browsed) << c.text;
  }
  view_.sentences.clear();
  pages.SetView(&view_);
  pages.OpenWebPage("12");
  pages.OpenWebPage("99");
  pages.OpenWebPage("http://");
  shell.startsFail = true;
  pages.OpenWebPage("12");
  EXPECT_EQ(view_.sentences, (std::vector<std::string>{std::to_string(IDS_WHYNOT_NO_PAGE),
                                                       std::to_string(IDS_WHYNOT_REFUSED_PAGE),
                                                       std::to_string(IDS_WHYNOT_PAGE_NOT_STARTED)}));
}

TEST(WebPagesFolder, AFolderWithBlanksIsQuoted) {
  PlaybackWorld world;
  world.files.MakeFolder("/Program Files/S");
  DataFolder data(world.files, "/Program Files/S", '/');
  WebPages pages(world.source, data, world.shell, world.strings);
  pages.RunBrowser("http://a.example/");
  EXPECT_EQ(world.shell.runMinimised,
            std::vector<std::string>{"\"/Program Files/S/lweb.exe\" http://a.example/"});
}

TEST_F(PlayerLaunchTest, WhatWasHandedOverIsSaidAndNothingElse) {
  strings.texts = {{IDS_HANDED_TO, "{0} to {1}"}, {IDS_HANDED_LINK, "to {1}"}, {IDS_HANDED_PAGE, "{0} page"}};
  registry.Put(RootKey::ClassesRoot, "Applications\\player.exe", "FriendlyAppName", "The Player");
  AddStation(12, "Jazz", {"m1://x", "whttp://a.example"});
  launch.LaunchStation(OfStation("12", PlayMode::LinkOne));
  launch.LaunchStation(OfStation("12", PlayMode::LinkTwo));
  launch.LaunchStation({StationKey::FromToken("12"), PlayMode::KeyItself, "mhttp://own"});
  launch.LaunchStation(Link("mhttp://b"));
  launch.LaunchStation(Link("m-b"));
  EXPECT_EQ(launch.TryLaunch(StationKey::FromToken("12")), LaunchOutcome::Started);
  EXPECT_EQ(view_.handed, (std::vector<std::string>{"Jazz to The Player", "Jazz page", "Jazz to The Player",
                                                    "to The Player", "Jazz to The Player"}));
}

TEST_F(PlayerLaunchTest, APlsLinkGoesToAProgramThatReadsIt) {
  InstallRealPlayer();
  const std::string asx = "c:\\media\\player.exe|";
  const std::string reader = "c:\\apps\\lists.exe|";
  const auto playedOf = [this](const char* link) {
    ClearShell();
    launch.LaunchStation(Link(link));
    return Played();
  };
  EXPECT_EQ(playedOf("mhttp://a/s.pls"), asx + "http://a/s.pls") << "there is no program for them";
  shell.programs[".pls"] = "C:\\Windows\\OpenWith.exe";
  files.Put("c:\\windows\\openwith.exe", "");
  EXPECT_EQ(playedOf("mhttp://a/s.pls"), asx + "http://a/s.pls");
  shell.programs[".pls"] = "C:\\Apps\\Lists.exe %1";
  files.Put("c:\\apps\\lists.exe", "");
  EXPECT_EQ(playedOf("mhttp://a/s.PLS?x=.mp3"), reader + "http://a/s.PLS?x=.mp3");
  EXPECT_EQ(playedOf("http://a/s.pls"), reader + "http://a/s.pls");
  EXPECT_EQ(playedOf("mhttp://a/pls"), asx + "http://a/pls");
  reg.SetSetting("PlayWith", "C:\\any.exe");
  EXPECT_EQ(playedOf("mhttp://a/s.pls"), "C:\\any.exe|http://a/s.pls");
}

TEST_F(PlayerLaunchTest, APlayReadsTheStationOnce) {
  AddStation(1, "First", {"m1://x"});
  AddStation(2, "Third", {"", "", "m3://x"});
  AddStation(3, "Alternate", {}, "malt://x");
  AddStation(4, "Site", {}, "", "www.site.example");
  for (const char* token : {"1", "2", "3", "4", "99"}) {
    for (const PlayMode mode : {PlayMode::LinkOne, PlayMode::LinkThree}) {
      const std::uint64_t before = stations.LookUps();
      launch.LaunchStation(OfStation(token, mode));
      EXPECT_EQ(stations.LookUps() - before, 1U) << token;
    }
    const std::uint64_t before = stations.LookUps();
    static_cast<void>(launch.TryLaunch(StationKey::FromToken(token)));
    EXPECT_EQ(stations.LookUps() - before, 1U) << token << " as a whole";
  }
  const std::uint64_t before = stations.LookUps();
  launch.LaunchStation(Link("m2://x"));
  EXPECT_EQ(stations.LookUps(), before) << "a link needs no record";
}

}  // namespace
}  // namespace sonaro
