// Esc means that nothing happens, in every dialog of the running program.
#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

class EscapeTest : public MainWindowTest {
 protected:
  // Types into every edit and ticks every box that the dialog shows.
  static void ChangeEverything(HWND dialog) {
    for (HWND control : Descendants(dialog)) {
      if (!IsShown(control) || !IsWindowEnabled(control)) continue;
      const LONG_PTR style = GetWindowLongPtrA(control, GWL_STYLE);
      const bool isEdit = ClassOf(control) == "Edit" && (style & ES_READONLY) == 0;
      const bool isBox = ClassOf(control) == "Button" && (style & BS_TYPEMASK) == BS_AUTOCHECKBOX;
      if (isEdit) SetText(control, "17");
      if (isBox) Click(control);
    }
  }
  // What the user would miss: the settings and files, without what the watch over the schedule notes and the
  // empty list by which the system is asked what plays such a list.
  std::pair<SettingValues, std::map<std::string, std::size_t>> Everything() {
    SettingValues settings = ReadSettings();
    settings.erase("ScheduleLastSeen");
    std::map<std::string, std::size_t> files = AllFiles();
    std::erase_if(files, [](const auto& file) { return file.first.ends_with("dummy.asx"); });
    return {settings, files};
  }
};

TEST_F(EscapeTest, ChangesNothingInAnyDialog) {
  struct Step {
    int key;  // pressed in the dialog before, or chosen in the main window's menu
    const char* dialog;
  };
  const std::vector<Step> kWays[] = {
      {{mnuOptions, "frmOptions"}, {butPlayerIt, "frmStartUpInfo"}},
      {{mnuOptions, "frmOptions"}, {butAboutTimeIt, "frmAboutEventTime"}},
      {{mnuFavoritesAdd, "frmNewFavorite"}},
      {{mnuActionStationToFavList, "frmPickGroup"}},
      {{mnuActionExtraLink, "frmExtraLink"}},
      {{mnuPersonalAdd, "frmPersonalStation"}},
      {{mnuActionSchedule, "frmSchedChange"}, {butSchedIt, "frmSelectStation"}},
      {{mnuActionSchedule, "frmSchedChange"}, {butPickDateIt, "frmDateFinder"}},
      {{mnuSchedule, "frmSched"}, {butAddIt, "frmSchedChange"}},
      {{mnuScan, "frmScan"}},
  };
  WriteText(HKEY_LOCAL_MACHINE, "SOFTWARE\\zumo\\Sonaro", "ScanTime", "30");  // as after the first scan
  HWND main = MainWithStations();
  NewGroup(main, "Morning");
  Command(main, mnuActionMostPoular);
  SelectRow(List(main), 0);
  ASSERT_TRUE(WaitUntil([] { return !ReadSetting("ScheduleLastSeen").empty(); }));
  for (const std::vector<Step>& way : kWays) {
    const auto before = Everything();
    std::vector<HWND> open = {main};
    for (const Step& step : way) {
      if (open.size() == 1) {
        Command(main, step.key);
      } else {
        Click(Control(open.back(), step.key));
      }
      open.push_back(Dialog(step.dialog));
      ASSERT_NE(open.back(), nullptr);
      ChangeEverything(open.back());
    }
    for (; open.size() > 1; open.pop_back()) {
      PressKey(open.back(), VK_ESCAPE);
      EXPECT_TRUE(WaitUntil([&] { return !IsShown(open.back()) && IsWindowEnabled(open[open.size() - 2]); }))
          << way[open.size() - 2].dialog;
    }
    EXPECT_TRUE(Everything() == before) << way.back().dialog;
  }
}

}  // namespace
}  // namespace sonaro::desktop
