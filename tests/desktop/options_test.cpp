// The options dialog and the proxy's page of the start-up check, as a user works them.
#include "DesktopTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kRunValue = "SonaroStartUp";
constexpr const char* kInternet = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

class OptionsTest : public DesktopTest {
 protected:
  void TearDown() override {
    SetComputerProxy("", "");
    RegDeleteKeyValueA(HKEY_LOCAL_MACHINE, kRun, kRunValue);
    DesktopTest::TearDown();
  }

  void SetComputerProxy(const std::string& enabled, const std::string& server) {
    WriteText(HKEY_CURRENT_USER, kInternet, "ProxyEnable", enabled);
    WriteText(HKEY_CURRENT_USER, kInternet, "ProxyServer", server);
  }
  void StartMain() {
    main_ = StartAndShowMain();
    ASSERT_NE(main_, nullptr);
  }
  void Open() {
    Click(Control(main_, butOptions));
    dialog_ = Dialog("frmOptions");
  }
  HWND In(int id) const { return Control(dialog_, id); }
  bool IsOn(int id) const { return IsChecked(In(id)); }
  void Press(int id) { Click(In(id)); }
  bool Closed() {
    return WaitUntil([&] { return !IsWindow(dialog_); });
  }
  // A point of the main window's bare plate, which the dialog leaves free.
  bool MainIsLight() const {
    const RECT box = BoundsOf(main_);
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, box.left + 330, box.top + 20);
    ReleaseDC(nullptr, screen);
    return GetGValue(color) > 128;
  }
  void ExpectRefused(const char* sentence, int edit) {
    Press(butOKIt);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(In(lblOptionsInfo)) == sentence; }))
        << TextOf(In(lblOptionsInfo));
    EXPECT_EQ(FocusOf(dialog_), In(edit));
    EXPECT_TRUE(IsShown(dialog_));
    EXPECT_EQ(ReadSetting("ProxyUse"), "");
    EXPECT_EQ(ReadSetting("SoundNotify"), "");
  }

  HWND main_ = nullptr;
  HWND dialog_ = nullptr;
};

TEST_F(OptionsTest, WhatIsChangedIsStoredAndShownAgain) {
  StartMain();
  Open();
  EXPECT_FALSE(IsOn(chkStartWindows));
  EXPECT_TRUE(IsOn(chkSoundNotice) && IsOn(chkSoundKeys) && IsOn(optProxy) && !IsOn(chkLookForPlayer));
  EXPECT_FALSE(IsWindowEnabled(In(txtPort)) || IsWindowEnabled(In(butTestProxyIt)));
  EXPECT_EQ(TextOf(In(txtPort)), "80");
  for (const int id : {chkStartWindows, chkSoundNotice, chkLookForPlayer, optProxy + 1, optFaceplate + 1})
    Press(id);
  SetText(In(txtProxy), " proxy.example.net ");
  SetText(In(txtPort), "3128");
  SendMessageA(In(cmbAfterClose), CB_SETCURSEL, 1, 0);
  Press(butOKIt);
  ASSERT_TRUE(Closed());

  const SettingValues kStored = {{"SoundNotify", "False"},
                                 {"SoundClick", ""},
                                 {"CloseToTray", "Yes"},
                                 {"ProxyUse", "Yes"},
                                 {"ProxyAddress", "proxy.example.net"},
                                 {"ProxyPort", "3128"},
                                 {"StartPlayer", "Yes"},
                                 {"StartProxy", "No"},
                                 {"FacePlateName", "Porcelain"}};
  for (const auto& [name, text] : kStored) EXPECT_EQ(ReadSetting(name), text) << name;
  EXPECT_EQ(ReadText(HKEY_LOCAL_MACHINE, kRun, kRunValue), PathOf("Sonaro.exe") + " WinStart=Yes");

  Open();
  EXPECT_TRUE(IsOn(chkStartWindows) && !IsOn(chkSoundNotice) && IsOn(optProxy + 1));
  EXPECT_TRUE(IsWindowEnabled(In(txtPort)));
  EXPECT_EQ(TextOf(In(txtProxy)), "proxy.example.net");
  EXPECT_EQ(TextOf(In(txtPort)), "3128");
  EXPECT_EQ(SendMessageA(In(cmbAfterClose), CB_GETCURSEL, 0, 0), 1);
  Press(chkStartWindows);
  Press(butOKIt);
  ASSERT_TRUE(Closed());
  EXPECT_EQ(ReadText(HKEY_LOCAL_MACHINE, kRun, kRunValue), "");

  // The main window is closed as was chosen, without a question.
  CloseWindowOf(main_);
  EXPECT_TRUE(WaitUntil([&] { return !IsShown(main_); }));
  EXPECT_TRUE(Sonaro().Running());
}

TEST_F(OptionsTest, AFaceplateShowsAtOnceAndGoesWithCancel) {
  StartMain();
  Open();
  EXPECT_TRUE(WaitUntil([&] { return !MainIsLight(); }));
  Press(optFaceplate + 1);
  Press(chkStartWindows);
  Press(chkSoundKeys);
  EXPECT_TRUE(WaitUntil([&] { return MainIsLight(); }));
  PressKey(dialog_, VK_ESCAPE);
  ASSERT_TRUE(Closed());
  EXPECT_TRUE(WaitUntil([&] { return !MainIsLight(); }));
  for (const char* name : {"FacePlateName", "ColorBackground", "SoundClick"})
    EXPECT_EQ(ReadSetting(name), "") << name;
  EXPECT_EQ(ReadText(HKEY_LOCAL_MACHINE, kRun, kRunValue), "");
}

TEST_F(OptionsTest, AProxyThatCannotBeOneIsRefusedWithItsSentence) {
  StartMain();
  Open();
  Press(chkSoundNotice);
  Press(optProxy + 1);
  ExpectRefused("Type the proxy's address, or choose the direct connection.", txtProxy);
  Press(optProxy);
  EXPECT_EQ(TextOf(In(lblOptionsInfo)), "");
  Press(butOKIt);
  ASSERT_TRUE(Closed());
  EXPECT_EQ(ReadSetting("SoundNotify"), "False");
}

TEST_F(OptionsTest, TheComputersProxyIsFound) {
  StartMain();
  Open();
  Press(butFindProxyIt);
  EXPECT_TRUE(IsOn(optProxy));
  EXPECT_EQ(TextOf(In(lblOptionsInfo)), "No proxy is set on this computer.");
  SetComputerProxy("1", "ftp=other:21;http=127.0.0.1:9;https=x:1");
  Press(butFindProxyIt);
  EXPECT_TRUE(IsOn(optProxy + 1));
  EXPECT_EQ(TextOf(In(txtProxy)) + " " + TextOf(In(txtPort)), "127.0.0.1 9");

  EXPECT_EQ(ReadSetting("ProxyUse"), "");
}

TEST_F(OptionsTest, TheTrayOpensTheSameDialogOnce) {
  SonaroProcess& sonaro = Start("WinStart=Yes");
  ASSERT_NE(sonaro.WaitForWindow("SonaroFrm"), nullptr);
  HWND tray = sonaro.WaitForWindow("", "frmSysTrayMenu");
  ASSERT_NE(tray, nullptr);
  Command(tray, mnuTrayOptions);
  dialog_ = Dialog("frmOptions");
  Command(tray, mnuTrayOptions);
  EXPECT_EQ(FindWindowA("frmOptions", nullptr), dialog_);
  EXPECT_EQ(FindWindowExA(nullptr, dialog_, "frmOptions", nullptr), nullptr);
  // The end of the program ends the dialog, with nothing stored.
  Press(optFaceplate + 1);
  Command(tray, mnuTrayExit);
  EXPECT_EQ(sonaro.WaitForEnd(), 0u);
  EXPECT_EQ(ReadSetting("FacePlateName"), "");
}

TEST_F(OptionsTest, AtTheStartAFoundProxyIsOfferedOnce) {
  SetComputerProxy("1", "proxy.example.net:3128");
  ResetSettings({{"StartPlayer", "No"}, {"StartQuickStart", "No"}});
  HWND page = Start().WaitForShownWindow("frmStartUpInfo");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(TextOf(Control(page, lblProxyFound)), "proxy.example.net:3128");
  Click(Control(page, butOKIt));
  ASSERT_NE(Sonaro().WaitForShownWindow("SonaroFrm"), nullptr);
  EXPECT_EQ(ReadSetting("ProxyUse") + " " + ReadSetting("ProxyAddress") + " " + ReadSetting("ProxyPort"),
            "Yes proxy.example.net 3128");
  EXPECT_EQ(ReadSetting("StartProxy"), "No");
}

TEST_F(OptionsTest, ABackupIsRestoredByTheNextStart) {
  WriteFile("favs.snr", "Then\t\r\n");
  ResetToSettled({{"FacePlateName", "Porcelain"}});
  StartMain();
  Open();
  Press(butBackupIt);
  ChooseFile(PathOf("mine.sonaro"));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(In(lblOptionsInfo)).ends_with("mine.sonaro."); }))
      << TextOf(In(lblOptionsInfo));
  WriteFile("favs.snr", "Now\t\r\n");
  WriteText(HKEY_LOCAL_MACHINE, "SOFTWARE\\zumo\\Sonaro", "FacePlateName", "Graphite");

  Press(butRestoreIt);
  ChooseFile(PathOf("favs.snr"));
  EXPECT_EQ(AnswerBox(dialog_, butMsg), "This file is not a backup of Sonaro. Nothing was changed.");
  Press(butRestoreIt);
  ChooseFile(PathOf("mine.sonaro"));
  Click(Control(Dialog("MsgboxFrm"), butMsg));
  EXPECT_TRUE(Running().WaitForEnd().has_value());
  EXPECT_EQ(ReadFile("favs.snr"), "Now\t\r\n");

  StartMain();
  EXPECT_TRUE(MainIsLight());
  EXPECT_EQ(ReadFile("favs.snr"), "Then\t\r\n");
  EXPECT_NE(ReadFile("before-restore.sonaro").find("\nNow\t\r\n"), std::string::npos);
}

}  // namespace
}  // namespace sonaro::desktop
