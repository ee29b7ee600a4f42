// Which program plays, as the user meets the question: at the first start, after an error, in a scan.
#include <algorithm>

#include "Guide.h"
#include "MainWindowTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

class PlayersTest : public MainWindowTest {
 protected:
  // "A computer" in these tests has programs for .asx files only, or for nothing at all.
  void HaveNoRealPlayer() {
    RegisterRealPlayer("");
    RegisterProgram(".ram", "");
  }
  void HaveNoPlayer() {
    HaveNoRealPlayer();
    RegisterProgram(".asx", "");
  }
  std::string StationCount() {
    const std::string list = ReadFile("Station.snr");
    return std::to_string(std::count(list.begin(), list.end(), '\n'));
  }
  // Names the recording browser as the player on the page, which it is as well as any other program.
  void ChooseTheBrowser(HWND page) {
    Click(Control(page, butBrowseIt));
    ChooseFile(Browser());
    EXPECT_TRUE(
        WaitUntil([&] { return TextOf(Control(page, lblFound)).find("browser.exe") != std::string::npos; }));
    Click(Control(page, butOKIt));
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(page); }));
  }
  // It was started once, with the first link of the station played last, without the letter of its kind.
  void ExpectTheBrowserGotTheLink() {
    const auto lines = BrowserLines();
    ASSERT_EQ(lines.size(), 1u);
    const std::string id = ReadFile("recent.snr");
    const StationRecord station = StationIn(Folder(), id.substr(0, id.find_first_of(" \r")));
    EXPECT_EQ(lines[0], "\"" + Browser() + "\" " + station[StationField::LinkOne].substr(1));
  }
};

TEST_F(PlayersTest, AProgramForAsxLinksIsEnoughForTheFirstStart) {
  HaveNoRealPlayer();
  ResetSettings({{"StartProxy", "No"}, {"StartQuickStart", "No"}});
  HWND page = Start().WaitForShownWindow("frmStartUpInfo", "Welcome to Sonaro");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(TextOf(Control(page, lblHead)), "The stations are ready to play");
  EXPECT_EQ(TextOf(Control(page, lblFound)),
            "Stations with .asx links: " + StationCount() + ". They play with mediaplay.exe.");
  EXPECT_FALSE(IsChecked(Control(page, chkDontShow)));
  SaveShot("well");
  Click(Control(page, butTestProgramIt));
  EXPECT_EQ(AsxLines(1).size(), 1u);
  EXPECT_TRUE(WaitUntil([&] {
    return TextOf(Control(page, lblFound)).ends_with(": handed to mediaplay.exe. You should hear it now.");
  })) << TextOf(Control(page, lblFound));
  EXPECT_FALSE(Exists("recent.snr")) << "a test is no play";
  Click(Control(page, butOKIt));
  HWND main = Dialog("SonaroFrm");
  EXPECT_EQ(ReadSetting("StartPlayer") + ReadSetting("PlayWith"), "");
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 30; }));
  SelectRow(List(main), 2);
  Click(Control(main, butGoMediaLinkOneIt));
  EXPECT_EQ(AsxLines(2).size(), 2u);
  const std::string name = CellText(List(main), 2);
  EXPECT_TRUE(WaitUntil([&] {
    return TextOf(Control(main, lblStatus)) == name + ": handed to mediaplay.exe";
  })) << TextOf(Control(main, lblStatus));
  EXPECT_TRUE(CellText(List(main), 2, 3).ends_with(", played last")) << CellText(List(main), 2, 3);
  EXPECT_FALSE(CellText(List(main), 0, 3).ends_with(", played last"));
  SaveShot("played");
}

TEST_F(PlayersTest, AFirstStartWithoutAPlayerLeadsToTheFirstSound) {
  HaveNoPlayer();
  ResetSettings({{"StartProxy", "No"}, {"StartQuickStart", "No"}});
  HWND page = Start().WaitForShownWindow("frmStartUpInfo", "Welcome to Sonaro");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(TextOf(Control(page, lblHead)), "No player was found");
  SaveShot("none");
  ChooseTheBrowser(page);
  HWND main = Dialog("SonaroFrm");
  EXPECT_EQ(BrowserLines(0).size(), 0u) << "choosing plays nothing";
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 30; }));
  SelectRow(List(main), 1);
  Click(Control(main, butGoMediaLinkOneIt));
  ExpectTheBrowserGotTheLink();
  const std::string said = CellText(List(main), 1) + ": handed to browser.exe";
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(main, lblStatus)) == said; }))
      << TextOf(Control(main, lblStatus));
}

TEST_F(PlayersTest, APlayerThatIsChosenAfterAnErrorPlays) {
  HaveNoPlayer();
  HWND main = MainWithStations();
  SelectRow(List(main), 0);
  Click(Control(main, butGoMediaLinkOneIt));
  HWND box = Dialog("MsgboxFrm");
  EXPECT_EQ(TextOf(Control(box, lblMsg)), "No media player is set for this station.");
  SaveShot("error");
  Click(Control(box, butMsg + 1));
  HWND page = Dialog("frmStartUpInfo", "Player");
  EXPECT_EQ(TextOf(Control(page, lblHead)), "No player was found");
  SaveShot("choose");
  ChooseTheBrowser(page);
  ExpectTheBrowserGotTheLink();
  EXPECT_EQ(ReadSetting("PlayWith"), Browser());

  // In the options it is offered by name and can be taken back.
  Click(Control(main, butOptions));
  HWND options = Dialog("frmOptions");
  EXPECT_TRUE(WaitUntil([&] {
    return TextOf(Control(options, lblPlaying)) ==
           "All stations with streams: " + StationCount() + ". They play with browser.exe.";
  })) << TextOf(Control(options, lblPlaying));
  SaveShot("options");
  Click(Control(options, butPlayerIt));
  page = Dialog("frmStartUpInfo", "Player");
  EXPECT_EQ(TextOf(Control(page, cmbPlayWith)), "browser.exe");
  EXPECT_EQ(TextOf(Control(page, lblHead)), "The stations are ready to play");
  SaveShot("chosen");
}

TEST_F(PlayersTest, AScanWaitsForAPlayerAndTakesStationsByItsHiddenLabel) {
  HaveNoPlayer();
  HWND main = MainWithStations();
  for (int row = 0; row < 3; ++row) {
    SelectRow(List(main), row);
    Command(main, mnuActionAddToScan);
  }
  Command(main, mnuScan);
  HWND scan = Dialog("frmScan");
  HWND queue = Control(scan, lstToScan);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(queue) == 3; }));
  Click(Control(scan, butStartIt));
  HWND page = Dialog("frmStartUpInfo", "Player");
  for (int tick = 0; tick < 5; ++tick) RunTimer(scan, tmrScan);
  Click(Control(page, butDoneIt));
  ASSERT_TRUE(WaitUntil([&] { return !IsWindow(page); }));
  EXPECT_EQ(TextOf(Control(scan, butStartIt)), "Continue Scan");
  for (int tick = 0; tick < 5; ++tick) RunTimer(scan, tmrScan);
  EXPECT_EQ(RowCount(queue), 2);
  EXPECT_EQ(RowCount(Control(scan, lstScanedAlready)), 0);
  EXPECT_EQ(Sonaro().Window("frmStartUpInfo"), nullptr);

  const std::string list = ReadFile("Station.snr");
  const std::string id = list.substr(0, list.find('\t'));
  SetText(Control(scan, lblStationsAdd), "S" + id);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(queue) == 3; })) << id;
  SaveShot("waits");
}

TEST_F(PlayersTest, EnterOnAStationWithAWebSiteOnlyIsRememberedAndAMissingBrowserIsSaid) {
  HoldList(StationLine(7, "Site", "", "www.a.example"), "7");
  HWND main = StartAndShowMain();
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 1; }));
  SelectRow(List(main), 0);
  SetForegroundWindow(main);
  SendMessageA(main, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(List(main)), TRUE);
  PressKey(main, VK_RETURN);
  EXPECT_EQ(BrowserLines().size(), 1u);
  EXPECT_TRUE(WaitUntil([&] { return ReadFile("recent.snr").starts_with("7"); }));
  std::remove(PathOf("lweb.exe").c_str());
  std::remove(PathOf("help\\2\\index.html").c_str());
  Click(Control(main, butHelp));
  EXPECT_NE(AnswerBox(main, butMsg).find("lweb.exe"), std::string::npos);
}

}  // namespace
}  // namespace sonaro::desktop
