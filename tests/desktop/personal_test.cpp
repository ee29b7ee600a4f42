// The user's own stations and links with real windows, and their ways out to playlists and back in.
#include "Guide.h"
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

class PersonalTest : public MainWindowTest {
 protected:
  void AddStation(HWND main, const std::string& name, const std::string& link) {
    Command(main, mnuPersonalAdd);
    HWND dialog = Dialog("frmPersonalStation");
    SetText(Control(dialog, txtStationName), name);
    SetText(Control(dialog, txtLink), link);
    EndWith(main, dialog, butOKIt);
  }
  void ShowYours(HWND main, const std::vector<std::string>& names) {
    Command(main, mnuViewPersonalPage);
    EXPECT_TRUE(Listing(main, "Your Stations"));
    WaitUntil([&] { return ColumnTexts(List(main)) == names; });
    EXPECT_EQ(ColumnTexts(List(main)), names) << ReadFile("personal.snr");
  }
};

TEST_F(PersonalTest, OnesOwnStationsComeAndGoAndTheirTokensStayRight) {
  HWND main = MainWithStations();
  Command(main, mnuPersonalAdd);
  HWND dialog = Dialog("frmPersonalStation");
  SetText(Control(dialog, txtStationName), "Without a link");
  for (const char* refused : {"", "C:\\music\\a.mp3"}) {
    SetText(Control(dialog, txtLink), refused);
    Click(Control(dialog, butOKIt));
    EXPECT_NE(AnswerBox(dialog, butMsg), "");
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(main) == Control(dialog, txtLink); })) << "what is wrong";
  }
  EndWith(main, dialog, butCancelIt);
  EXPECT_FALSE(Exists("personal.snr"));

  AddStation(main, "Garage", "http://127.0.0.1:9/garage");
  AddStation(main, "Käsekuchen", "http://127.0.0.1:9/k");
  AddStation(main, "Радио", "127.0.0.1:9/r");
  EXPECT_NE(ReadFile("personal.snr").find("\tmhttp://127.0.0.1:9/r\t"), std::string::npos);
  ShowYours(main, {"Garage", "Käsekuchen", "Радио"});
  SelectRow(List(main), 2);
  NewGroup(main, "Mine");
  Command(main, mnuActionStationToGroup);
  EXPECT_TRUE(Holds("favs.snr", "Mine\tP3 \r\n"));
  Click(Control(main, butGoMediaLinkOneIt));
  const auto lines = AsxLines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_TRUE(lines[0].ends_with(" http://127.0.0.1:9/r")) << lines[0];
  EXPECT_TRUE(ReadFile("recent.snr").starts_with("P3"));

  SelectRow(List(main), 0);
  Command(main, mnuPersonalChange);
  dialog = Dialog("frmPersonalStation");
  EXPECT_EQ(TextOf(Control(dialog, txtLink)), "http://127.0.0.1:9/garage");
  SetText(Control(dialog, txtStationName), "Garage 2");
  EndWith(main, dialog, butOKIt);
  ShowYours(main, {"Garage 2", "Käsekuchen", "Радио"});
  ASSERT_TRUE(ClickUntil(RowAt(main, 1), [&] {
    return SelectedRows(List(main)) == std::vector<int>{1} && FocusOf(main) == List(main);
  }));
  PressKey(main, VK_DELETE);
  AnswerBox(main, butMsg);
  ShowYours(main, {"Garage 2", "Радио"});
  AddStation(main, "Fourth", "http://127.0.0.1:9/4");
  EXPECT_NE(ReadFile("personal.snr").find("\n4\tFourth\t"), std::string::npos) << ReadFile("personal.snr");
  Command(main, mnuExit);
  EXPECT_TRUE(Running().WaitForEnd().has_value());

  main = StartAndShowMain();
  Click(Control(main, butFavs));
  EXPECT_TRUE(Listing(main, "Mine"));
  EXPECT_EQ(ColumnTexts(List(main)), std::vector<std::string>{"Радио"});
}

TEST_F(PersonalTest, AGroupGoesOutToEveryKindOfPlaylistAndComesBackWhole) {
  WriteFile("favs.snr", "Mine\t\r\nM3U\t\r\nPLS\t\r\nOPML\t\r\n");
  HWND main = MainWithStations();
  for (int row = 0; row < 3; ++row) {
    SelectRow(List(main), row);
    Command(main, mnuActionStationToGroup);
  }
  AddStation(main, "Own <&> \"Größe\"", "http://127.0.0.1:9/own?a=1&b=2");
  ShowYours(main, {"Own <&> \"Größe\""});
  Command(main, mnuActionStationToGroup);
  Click(Control(main, butFavs));
  ASSERT_TRUE(Listing(main, "Mine"));
  ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 4; }));
  const std::vector<std::string> names = ColumnTexts(List(main));
  int group = 1;
  for (const char* name : {"out.m3u", "out.pls", "out.opml"}) {
    Click(Control(main, butFavs));
    ASSERT_TRUE(Listing(main, "Mine"));
    Command(main, mnuFavExport);
    ChooseFile(PathOf(name));
    ASSERT_TRUE(WaitUntil([&] { return Exists(name); })) << name;
    Click(Control(main, butFavs + group));
    ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == 0; }));
    Command(main, mnuFavImport);
    ChooseFile(PathOf(name));
    AnswerBox(main, butMsg);
    EXPECT_TRUE(WaitUntil([&] { return ColumnTexts(List(main)) == names; })) << name;
    ++group;
  }
  const std::string file = ReadFile("favs.snr");
  const std::string members = file.substr(5, file.find('\r') - 5);
  EXPECT_EQ(file, "Mine\t" + members + "\r\nM3U\t" + members + "\r\nPLS\t" + members + "\r\nOPML\t" +
                      members + "\r\n");
}

TEST_F(PersonalTest, AllOfThemGoOutAtOnceAndComeBackWhole) {
  const std::string garage =
      "\tGarage <&> \"Größe\"\thttp://127.0.0.1:9/a?x=1&y=2\thttp://127.0.0.1:9/b\t\t"
      "http://127.0.0.1:9/\tMP3\tLoud\r\n";
  const std::string radio = "\tРадио\thttp://127.0.0.1:9/r\t\t\t\tOGG\t\r\n";
  const std::vector<std::string> names = {"Garage <&> \"Größe\"", "Радио"};
  WriteFile("personal.snr", "1" + garage + "4" + radio);
  ResetToSettled({{"NoShowDeletePersonalStation", "Yes"}});
  HWND main = MainWithStations();
  ShowYours(main, names);
  Command(main, mnuPersonalExport);
  ChooseFile(PathOf("all.opml"));
  ASSERT_TRUE(WaitUntil([&] { return Exists("all.opml") && IsWindowEnabled(main) != FALSE; }));
  for (int left = 1; left >= 0; --left) {
    Command(main, mnuPersonalDelete);
    ASSERT_TRUE(WaitUntil([&] { return RowCount(List(main)) == left; }));
  }
  Command(main, mnuPersonalImport);
  ChooseFile(PathOf("all.opml"));
  AnswerBox(main, butMsg);
  ShowYours(main, names);
  const std::string file = ReadFile("personal.snr");
  EXPECT_TRUE(file.ends_with("5" + garage + "6" + radio)) << file;
}

TEST_F(PersonalTest, AnExtraLinkOutlivesTheDirectoryThatItWasMadeFor) {
  HWND main = MainWithStations();
  const std::string name = CellText(List(main), 0);
  Command(main, mnuActionExtraLink);
  HWND dialog = Dialog("frmExtraLink");
  EXPECT_EQ(TextOf(Control(dialog, lblStation)), name);
  SetText(Control(dialog, txtExtraLink), "C:\\x.mp3");
  Click(Control(dialog, butOKIt));
  AnswerBox(dialog, butMsg);
  EXPECT_TRUE(WaitUntil([&] { return FocusOf(dialog) == Control(dialog, txtExtraLink); }));
  SetText(Control(dialog, txtExtraLink), "http://127.0.0.1:9/extra");
  EndWith(main, dialog, butOKIt);
  ASSERT_TRUE(WaitUntil([&] { return Exists("ownlinks.snr"); }));
  const std::string line = ReadFile("ownlinks.snr");
  const std::string identifier = line.substr(0, line.find('\t'));
  Command(main, mnuExit);
  EXPECT_TRUE(Running().WaitForEnd().has_value());

  HoldList(StationLine(std::stoi(identifier), "Renamed", "mhttp://127.0.0.1:9/new"), identifier);
  main = StartAndShowMain();
  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return ColumnTexts(List(main)) == std::vector<std::string>{"Renamed"}; }));
  EXPECT_TRUE(IsShown(Control(main, butPlayExtraIt)));
  SaveShot("extra");
  Click(Control(main, butPlayExtraIt));
  const auto lines = AsxLines();
  ASSERT_EQ(lines.size(), 1u) << line;
  EXPECT_TRUE(lines[0].ends_with(" http://127.0.0.1:9/extra")) << lines[0];
}

}  // namespace
}  // namespace sonaro::desktop
