// Updates of the directory in the real program, against a server that plays the service.
#include "UpdateTest.h"

namespace sonaro::desktop {
namespace {

TEST_F(UpdateTest, F5BringsANewDirectoryAndItCanBeUndone) {
  const std::string update = Update();
  server_.Answer("/u/update7.txt", script::HeldBody(update, (update.size() + 1) / 2));
  HWND main = StartAndShowMain();
  PressKey(main, VK_F5);
  HWND dialog = UpdateDialog();
  ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(dialog, lblBytes)).ends_with(" KB"); }));
  EXPECT_EQ(TextOf(Control(dialog, lblStuff)), "Getting Data");
  EXPECT_EQ(TextOf(Control(dialog, butMsg + 1)), "Cancel");
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(main, lblPercent)) == "50%"; }));
  EXPECT_EQ(TextOf(Control(main, lblProgress)), "Getting Data");
  EXPECT_FALSE(IsWindowEnabled(Control(main, butUpdate)));
  SaveShot("getting-data");
  Command(main, mnuActionLeastPopular);
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(main, lblListing)) == "Least Popular"; }))
      << "the window does not work meanwhile";

  server_.Release();
  ASSERT_TRUE(Says(dialog, "Finished Got It All"));
  EXPECT_TRUE(Says(dialog, "2 new, 1 changed, 1 gone"));
  EXPECT_TRUE(Says(dialog, "Changed in your groups: Renamed"));
  EXPECT_TRUE(Says(dialog, "Gone from your groups: B5 aktuell"));
  EXPECT_EQ(TextOf(Control(dialog, butMsg + 1)), "Close");
  EXPECT_TRUE(IsWindowEnabled(Control(main, butUpdate)));
  EXPECT_TRUE(IsShown(Control(main, lblStatus)));
  SaveShot("finished");
  EXPECT_EQ(RequestLine(0),
            std::string("GET ") + kService + "?ajfsfsr=id+1&LastUpdate=1%2F2%2F2026&Version=4.00.2 HTTP/1.0");
  EXPECT_EQ(RequestLine(1), std::string("GET ") + kFileAt + "?Flush=No HTTP/1.0");
  ExpectTheNewDirectory();
  EXPECT_TRUE(GroupLists(main, {"Renamed Classic Jazz"}));

  EXPECT_EQ(TextOf(Control(dialog, butMsg)), "&Undo Last Update");
  Click(Control(dialog, butMsg));
  EXPECT_TRUE(Says(dialog, "The last update was undone."));
  ExpectTheOldDirectory();
  EXPECT_TRUE(GroupLists(main, {"Jazz Radio Classic Jazz", "B5 aktuell"}));
  Click(Control(dialog, butMsg + 1));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
  EXPECT_TRUE(Sonaro().Running());
}

TEST_F(UpdateTest, OfflineTheMenuOffersToUndoTheLastUpdate) {
  HWND main = StartAndShowMain();
  Click(Control(main, butUpdate));
  HWND dialog = DialogSaying("Finished Got It All");
  ASSERT_NE(dialog, nullptr);
  WriteText(HKEY_LOCAL_MACHINE, "Software\\zumo\\Sonaro", "ProxyPort", std::to_string(UnusedPort()));
  PressKey(main, VK_F5);  // in place of the dialog that has done its work
  ASSERT_NE(DialogSaying("Can't Connect"), nullptr);
  Command(main, mnuUndoUpdate);
  dialog = DialogSaying("can be put back");
  ASSERT_NE(dialog, nullptr);
  ExpectTheNewDirectory();
  SaveShot("offer");
  Click(Control(dialog, butMsg));
  EXPECT_TRUE(Says(dialog, "The last update was undone."));
  EXPECT_FALSE(IsShown(Control(dialog, butMsg)));
  ExpectTheOldDirectory();
}

TEST_F(UpdateTest, NothingNewIsSaid) {
  server_.Answer("/update.asp", script::Redirect("http://files.test/noupdate.txt"));
  HWND main = StartAndShowMain();
  Click(Control(main, butUpdate));
  HWND dialog = UpdateDialog();
  EXPECT_TRUE(Says(dialog, "Your current Sonaro Station List is up to date"));
  EXPECT_FALSE(IsShown(Control(dialog, butMsg)));
  PressKey(dialog, VK_ESCAPE);
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
  EXPECT_EQ(server_.Requests().size(), 1u);
  ExpectTheOldDirectory();
}

TEST_F(UpdateTest, FromTheTrayARefusedUpdateIsTriedAgain) {
  const std::uint16_t port = UnusedPort();
  UseServer(port);
  Start("WinStart=Yes");
  HWND tray = Sonaro().WaitForWindow("", "frmSysTrayMenu");
  ASSERT_NE(tray, nullptr);
  ASSERT_NE(Sonaro().WaitForWindow("SonaroFrm"), nullptr);
  Command(tray, mnuTrayUpdate);
  HWND dialog = UpdateDialog();
  ASSERT_TRUE(
      Says(dialog, "Can't Connect to the Update Server. Make sure you are connected to the Internet"));
  EXPECT_EQ(TextOf(Control(dialog, butMsg)), "&Retry");
  EXPECT_EQ(TextOf(Control(dialog, butMsg + 1)), "Close");
  ExpectTheOldDirectory();

  LoopbackServer late(port);
  ASSERT_TRUE(late.Listens());
  late.Answer("/update.asp", script::Redirect(kFileAt));
  late.Answer("/u/update7.txt", script::Body(Update()));
  Click(Control(dialog, butMsg));
  EXPECT_TRUE(Says(dialog, "Finished Got It All"));
  ExpectTheNewDirectory();
}

TEST_F(UpdateTest, AnUpdateOnTheToDoListRunsByItselfAtTheStart) {
  UseServer(server_.Port(), "/SF//SL//SL/");
  HWND main = StartAndShowMain();
  ASSERT_TRUE(WaitUntil([&] { return ReadSetting("DoWhat") == "/SF/"; }));
  EXPECT_EQ(server_.Requests().size(), 4u) << "the list is run again after an update";
  EXPECT_EQ(RequestLine(1), std::string("GET ") + kFileAt + "?Flush=Yes HTTP/1.0");
  EXPECT_EQ(Sonaro().Window("MsgboxFrm"), nullptr);
  ExpectTheNewDirectory();
  EXPECT_TRUE(GroupLists(main, {"Renamed Classic Jazz"}));
}

TEST_F(UpdateTest, MissingFilesAreFetched) {
  std::remove(PathOf("fun.snr").c_str());
  SonaroProcess& sonaro = Start();
  HWND box = Dialog("MsgboxFrm", "Files Missing");
  Click(Control(box, butMsg));
  HWND dialog = UpdateDialog();
  EXPECT_TRUE(Says(dialog, "Finished Got It All"));
  EXPECT_NE(RequestLine(0).find("&LastUpdate=&"), std::string::npos) << RequestLine(0);
  HWND main = sonaro.WaitForShownWindow("SonaroFrm");
  Command(main, mnuActionMostPoular);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(Control(main, lstFavs)) == 3; }));
}

TEST_F(UpdateTest, AnUpdateThatDidNotComeThroughChangesNothing) {
  const std::string cut = Update().substr(0, Update().size() / 2);
  const struct {
    Script answer;
    const char* reason;
  } kCases[] = {
      {script::Body(cut), "The update was incomplete."},
      {script::Status("500 Broken"), "The server answered with status 500."},
      {script::Exactly("220 ready\r\n"), "The answer did not come from a web server."},
  };
  HWND main = StartAndShowMain();
  Click(Control(main, butUpdate));
  HWND dialog = UpdateDialog();
  ASSERT_TRUE(Says(dialog, "Finished"));
  Click(Control(dialog, butMsg));  // undo
  ASSERT_TRUE(Says(dialog, "was undone"));
  CloseWindowOf(dialog);
  ASSERT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
  for (const auto& each : kCases) {
    server_.Answer("/u/update7.txt", each.answer);
    Click(Control(main, butUpdate));
    dialog = UpdateDialog();
    EXPECT_TRUE(Says(dialog,
                     "Could not get all the update information. Make sure you are connected to the "
                     "Internet and try again."));
    EXPECT_TRUE(Says(dialog, each.reason)) << TextOf(Control(dialog, lblStuff));
    EXPECT_TRUE(IsShown(Control(dialog, butMsg)));
    Click(Control(dialog, butMsg + 1));
    ASSERT_TRUE(WaitUntil([&] { return !IsShown(dialog); }));
  }
  EXPECT_EQ(ReadFile("Station.snr"), before_);
  EXPECT_EQ(ReadSetting("LastUpdate"), "1/2/2026");
  EXPECT_EQ(StationIn(Folder(), "6044347")[StationField::Name], "B5 aktuell");
}

TEST_F(UpdateTest, CancelAndCloseEndTheTransferAtOnce) {
  const std::string update = Update();
  server_.Answer("/u/update7.txt", script::HeldBody(update, (update.size() + 1) / 2));
  HWND main = StartAndShowMain();
  for (const int key : {butMsg + 1, butCloseIt}) {
    Click(Control(main, butUpdate));
    HWND dialog = UpdateDialog();
    ASSERT_TRUE(Says(dialog, "Getting Data"));
    ASSERT_EQ(server_.Open(), 1);
    Click(Control(dialog, key));
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(dialog) && server_.Open() == 0; }));
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(main, butUpdate)); }));
    ExpectTheOldDirectory();
  }
}

TEST_F(UpdateTest, TheProgramEndsCleanlyInTheMiddleOfAnUpdate) {
  const std::string update = Update();
  server_.Answer("/u/update7.txt", script::HeldBody(update, (update.size() + 1) / 2));
  for (const bool watched : {true, false}) {
    UseServer(server_.Port(), watched ? "" : "/SL/");
    SonaroProcess& sonaro = Start();
    HWND main = Dialog("SonaroFrm");
    if (watched) Click(Control(main, butUpdate));
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(main, lblPercent)) == "50%"; }));
    CloseWindowOf(main);
    EXPECT_EQ(sonaro.WaitForEnd(), 0u);
    EXPECT_TRUE(WaitUntil([&] { return server_.Open() == 0; }));
    ExpectTheOldDirectory();
    EXPECT_EQ(ReadSetting("DoWhat"), watched ? "" : "/SL/");
  }
}

TEST_F(UpdateTest, TheOptionsTryAProxyThatIsTypedAndKeepTheOneThatIsSet) {
  const std::uint16_t set = UnusedPort();
  UseServer(set);
  server_.Answer("/proxy/test.asp", script::Body("cool proxy works!"));
  HWND main = StartAndShowMain();
  Click(Control(main, butOptions));
  HWND options = Dialog("frmOptions");
  const struct {
    std::uint16_t port;
    const char* result;
  } kCases[] = {
      {server_.Port(), "This Proxy is configured correctly"},
      {set, "This Proxy setting does not seem to work. Please check your setting and try again."},
  };
  for (const auto& each : kCases) {
    SetText(Control(options, txtProxy), "127.0.0.1");
    SetText(Control(options, txtPort), std::to_string(each.port));
    Click(Control(options, butTestProxyIt));
    HWND test = Dialog("frmTestProxy", "Testing Proxy Setting");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(test, lblStatusInfo)) == each.result; }))
        << TextOf(Control(test, lblStatusInfo));
    EXPECT_EQ(TextOf(Control(test, lblCheckAddress)), "127.0.0.1");
    EXPECT_EQ(TextOf(Control(test, lblCheckPort)), std::to_string(each.port));
    EndWith(options, test, butOKIt);
  }
  EXPECT_EQ(RequestLine(0), "GET http://www.sonaro.example/sonaroapp/sonaro3/asp/proxy/test.asp HTTP/1.0");
  EXPECT_EQ(ReadSetting("ProxyPort"), std::to_string(set));
}

}  // namespace
}  // namespace sonaro::desktop
