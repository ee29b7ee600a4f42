// From the list to the player: what is handed over, to whom, and what is remembered.
#include <algorithm>

#include "Guide.h"
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

class PlayTest : public MainWindowTest {
 protected:
  std::string FirstRecent() {
    std::string recent;
    WaitUntil([&] { return !(recent = ReadFile("recent.snr")).empty(); });
    return recent.substr(0, recent.find_first_of(" \r"));
  }
};

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
  return text;
}

TEST_F(PlayTest, ALinkOfTheDirectoryGoesToTheAsxProgramAlone) {
  HWND main = MainWithStations();
  SelectRow(List(main), 2);
  const std::string name = CellText(List(main), 2);
  Click(Control(main, butGoMediaLinkOneIt));
  const auto lines = AsxLines();
  ASSERT_EQ(lines.size(), 1u);
  const StationRecord station = StationIn(Folder(), FirstRecent());
  EXPECT_EQ(station[StationField::Name], name);
  ASSERT_TRUE(station[StationField::LinkOne].starts_with("m"));
  EXPECT_EQ(lines[0], "\"" + Lower(AsxPlayer()) + "\" " + station[StationField::LinkOne].substr(1));
  EXPECT_TRUE(Exists("dummy.asx"));
}

TEST_F(PlayTest, EnterOnARowPlaysIt) {
  HWND main = MainWithStations();
  const RECT rows = BoundsOf(List(main));
  const POINT second{rows.left + 60, rows.top + 33};
  ASSERT_TRUE(ClickUntil(second, [&] { return SelectedRows(List(main)) == std::vector<int>{1}; }));
  PressKey(main, VK_RETURN);
  EXPECT_EQ(AsxLines(1).size(), 1u);
  EXPECT_EQ(StationIn(Folder(), FirstRecent())[StationField::Name], CellText(List(main), 1));
}

TEST_F(PlayTest, AHeldListIsSwappedInTheTableRebuiltAndEveryKindOfLinkPlays) {
  HoldList(StationLine(7, "Plain", "http://127.0.0.1:9/plain?a=1&b=%5") +
               StationLine(8, "Page", "whttp://127.0.0.1:9/page") +
               StationLine(9, "Bad", "mhttp://127.0.0.1:9/a\"b"),
           "7 8 9");
  HWND main = StartAndShowMain();
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 3; }));
  EXPECT_EQ(ColumnTexts(List(main)), (std::vector<std::string>{"Plain", "Page", "Bad"}));
  EXPECT_EQ(ReadSetting("UpdateHold"), "");
  EXPECT_FALSE(Exists("tStation.snr"));

  SelectRow(List(main), 0);
  Click(Control(main, butGoMediaLinkOneIt));
  EXPECT_EQ(PlayerLines(),
            std::vector<std::string>{"\"" + RealPlayer() + "\" http://127.0.0.1:9/plain?a=1&b=%5"});

  SelectRow(List(main), 1);
  Click(Control(main, butGoMediaLinkOneIt));
  const auto pages = BrowserLines();
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_NE(pages[0].find("http://127.0.0.1:9/page"), std::string::npos) << pages[0];

  SelectRow(List(main), 2);
  Click(Control(main, butGoMediaLinkOneIt));
  EXPECT_NE(AnswerBox(main, butMsg), "");
  EXPECT_EQ(AsxLines(0).size(), 0u);
}

}  // namespace
}  // namespace sonaro::desktop
