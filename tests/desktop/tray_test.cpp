// The tray window is there from the start and knows of a second start; what it asks for is safe at any time.
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

constexpr const char* kTray = "frmSysTrayMenu";

constexpr UINT kSecondStart = 1793;
constexpr UINT kScheduleDue = 1795;

class TrayTest : public MainWindowTest {
 protected:
  // Everything that can be asked of the tray window but help and the end, and then whether it still answers.
  void AskForEverything() {
    HWND tray = Running().WaitForWindow("", kTray);
    for (int entry = mnuTrayOpen; entry < mnuTrayHelp; ++entry) Command(tray, entry);
    Command(tray, mnuTrayGroup);
    PostMessageA(tray, kSecondStart, 0, 0);
    for (const WPARAM slot : {WPARAM{0}, WPARAM{100000}, static_cast<WPARAM>(-1)})
      PostMessageA(tray, kScheduleDue, slot, static_cast<LPARAM>(slot));
    Command(tray, 0);  // is answered after what was posted
    ASSERT_TRUE(Running().Running());
    for (const char* window : {"frmSched", "frmScan", "frmOptions", "frmUpdateDialog", "frmNotify"})
      EXPECT_TRUE(ShownWindows(Running().Id(), window).empty()) << window;
  }
  // Chooses Exit: the program ends, and its settings are what they were.
  void ExitAndExpect(SettingValues settings) {
    Command(Running().WaitForWindow("", kTray), mnuTrayExit);
    EXPECT_EQ(Running().WaitForEnd(), 0U);
    SettingValues after = ReadSettings();
    for (SettingValues* values : {&settings, &after}) values->erase("MainPlace");
    EXPECT_EQ(after, settings);
  }
};

TEST_F(TrayTest, AHiddenStartShowsNoWindowButTheTrayIsThere) {
  SonaroProcess& sonaro = Start("winstart=YES");
  ASSERT_NE(sonaro.WaitForWindow("", kTray), nullptr);
  HWND main = sonaro.WaitForWindow("SonaroFrm");
  ASSERT_NE(main, nullptr);
  EXPECT_FALSE(WaitUntil([&] { return IsShown(main) || IsShown(sonaro.Window("frmSplash")); },
                         std::chrono::milliseconds(500)));
}

TEST_F(TrayTest, ASecondStartBringsTheMainWindowForwardAndEnds) {
  SonaroProcess& first = Start("WinStart=Yes");
  HWND main = first.WaitForWindow("SonaroFrm");
  ASSERT_NE(main, nullptr);
  SonaroProcess& second = Start();
  EXPECT_EQ(second.WaitForEnd(), 0U);
  EXPECT_TRUE(WaitUntil([&] { return IsShown(main); }));
  EXPECT_TRUE(first.Running());
}

TEST_F(TrayTest, TheStartCanBeAskedForAnythingAndEndedWhileItAsks) {
  const struct {
    const char* window;
    const char* unsettled;  // the check of the first start that is not settled yet
    const char* missing;    // a data file
  } kCases[] = {{"frmStartUpInfo", "StartPlayer", ""},
                {"MsgboxFrm", "StartQuickStart", ""},
                {"MsgboxFrm", "StartPlayer", "fun.snr"}};
  RegisterRealPlayer("");
  RegisterProgram(".asx", "");
  for (const auto& c : kCases) {
    SettingValues settled = {{"StartPlayer", "No"}, {"StartProxy", "No"}, {"StartQuickStart", "No"}};
    settled.erase(c.unsettled);
    ResetSettings(settled);
    if (*c.missing != '\0') DeleteFileA(PathOf(c.missing).c_str());
    HWND dialog = Start().WaitForShownWindow(c.window);
    ASSERT_NE(dialog, nullptr) << c.window << c.unsettled;
    const SettingValues before = ReadSettings();
    AskForEverything();
    EXPECT_TRUE(IsShown(dialog)) << c.window;
    ExitAndExpect(before);
  }
}

TEST_F(TrayTest, TheSplashTellsHowFarTheStartIsAndIsClosedBesideItsDialogs) {
  RegisterRealPlayer("");
  RegisterProgram(".asx", "");
  for (const bool byKey : {false, true}) {
    ResetSettings({{"StartProxy", "No"}, {"StartQuickStart", "No"}});
    HWND dialog = Start().WaitForShownWindow("frmStartUpInfo");
    ASSERT_NE(dialog, nullptr);
    HWND splash = Dialog("frmSplash");
    EXPECT_GT(SendMessageA(Control(splash, picDial), PBM_GETPOS, 0, 0), 0);
    if (byKey) {
      PressKey(splash, VK_ESCAPE);
    } else {
      Click(Control(splash, lblClose));
    }
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(splash); })) << byKey;
    EXPECT_TRUE(IsShown(dialog));
    ExitAndExpect(ReadSettings());
  }
}

TEST_F(TrayTest, WhileADialogWaitsItComesForwardInstead) {
  HWND main = StartAndShowMain();
  Command(main, mnuPersonalAdd);
  HWND dialog = Dialog("frmPersonalStation");
  AskForEverything();
  EXPECT_FALSE(IsWindowEnabled(main));
  CloseWindowOf(main);
  EXPECT_TRUE(IsShown(dialog)) << "whoever asks: the main window cannot go before its dialog";
  EXPECT_TRUE(ShownWindows(Running().Id(), "MsgboxFrm").empty());
  EndWith(main, dialog, butCancelIt);
  ExitAndExpect(ReadSettings());
}

TEST_F(TrayTest, TheQuestionAboutClosingCanBeLeftOpen) {
  HWND main = StartAndShowMain();
  for (const int key : {butCancelIt, butCloseIt, 0}) {
    CloseWindowOf(main);
    HWND box = Dialog("MsgboxFrm");
    Click(Control(box, chkDontAsk));
    if (key == 0) {
      PressKey(box, VK_ESCAPE);
      EXPECT_TRUE(WaitUntil([&] { return !IsShown(box); }));
    } else {
      EndWith(main, box, key);
    }
    EXPECT_TRUE(IsShown(main)) << key;
    EXPECT_EQ(ReadSetting("CloseToTray"), "") << key;
  }
  CloseWindowOf(main);
  Click(Control(Dialog("MsgboxFrm"), butMsg));
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(main); }));
  CloseWindowOf(main);
  Click(Control(Dialog("MsgboxFrm"), butMsg + 1));
  EXPECT_EQ(Running().WaitForEnd(), 0U);
  EXPECT_EQ(ReadSetting("CloseToTray"), "");
}

}  // namespace
}  // namespace sonaro::desktop
