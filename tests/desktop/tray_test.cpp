// The tray window is there from the start and knows of a second start.
#include "DesktopTest.h"

namespace sonaro::desktop {
namespace {

constexpr const char* kTray = "frmSysTrayMenu";

class TrayTest : public DesktopTest {};

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

}  // namespace
}  // namespace sonaro::desktop
