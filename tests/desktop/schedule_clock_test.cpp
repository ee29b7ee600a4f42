// What is scheduled comes on: items added through the dialogs, with the clock turned by hand.

#include "Guide.h"
#include "ReadMark.h"
#include "ScheduleDesk.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

constexpr Date kFriday{2005, 5, 6};
constexpr Date kSaturday{2005, 5, 7};
constexpr Date kSunday{2005, 5, 8};

// The identifier of the station that the first line of the schedule names, as "\tNS17\t" does; "W" for an
// item that opens a web site.
std::string ScheduledStation(const std::string& file, const std::string& action = "N") {
  const auto mark = file.find("\t" + action + "S");
  return mark == std::string::npos ? "" : file.substr(mark + 3, file.find('\t', mark + 1) - mark - 3);
}

TEST_F(HandClockTest, AOneTimeItemComesOnAndPlays) {
  HWND main = MainWithStations();
  const std::string name = CellText(Control(main, lstFavs), 2);
  HWND dialog = ScheduleRow(main, 2);
  EXPECT_EQ(TextOf(Control(dialog, lblStationToSched)), "Station To Schedule: " + name);
  EXPECT_EQ(TextOf(Control(dialog, txtOneDate)), "May 5 2005 (Thursday)");
  ChooseTime(dialog, "8", "05", "PM");
  Click(Control(dialog, butPickDateIt));
  HWND finder = Dialog("frmDateFinder");
  ASSERT_TRUE(ClickCalendarDay(Control(finder, calDates), 6));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(finder, lblDay)) == "6"; }));
  PressOk(finder, dialog);
  EXPECT_EQ(TextOf(Control(dialog, txtOneDate)), "May 6 2005 (Friday)");
  SetText(Control(dialog, txtNote), "kettle\r\ntea");
  PressOk(dialog, main);

  const std::string file = ReadFile("Sched.snr");
  const std::string id = ScheduledStation(file);
  EXPECT_EQ(StationIn(Folder(), id)[StationField::Name], name);
  EXPECT_EQ(file, name + "\tNS" + id + "\t5/6/2005\t8:05 PM\t\tonce\tkettle\vtea\r\n");

  TurnTo(20, 5);  // the right minute of the wrong day
  TurnTo({kFriday, {20, 4, 59}});
  EXPECT_TRUE(Notices().empty());
  HWND notice = ExpectNotice({kFriday, {20, 5, 0}}, "This is your May 6  8:05 PM notice for", name);
  ASSERT_NE(notice, nullptr);
  EXPECT_EQ(TextOf(Control(notice, lblNote)), "kettle\r\ntea");
  EXPECT_FALSE(IsShown(Control(notice, butGoWebSiteIt)));

  EXPECT_TRUE(TextOf(Control(notice, butPlay1It)).starts_with("Play ("));
  Click(Control(notice, butPlay1It));
  const auto played = AsxLines();
  ASSERT_EQ(played.size(), 1u);
  EXPECT_TRUE(played[0].ends_with(" " + StationIn(Folder(), id)[StationField::LinkOne].substr(1)))
      << played[0];
  EXPECT_TRUE(ReadFile("recent.snr").starts_with(id));

  EXPECT_TRUE(WaitUntil([&] { return !IsWindow(notice); })) << "it has done its work";
  TurnTo({kFriday, {20, 6, 0}});
  TurnTo({kSaturday, {20, 5, 0}});
  EXPECT_TRUE(Notices().empty());
}

TEST_F(HandClockTest, AWeeklyItemAfterMidnightComesOnWithItsDayAndOpensTheWebSite) {
  HWND main = MainWithStations();
  const std::string name = CellText(Control(main, lstFavs), 1);
  HWND dialog = ScheduleRow(main, 1);
  Click(Control(dialog, cmdHowOften + 2));
  ChooseTime(dialog, "12", "01", "AM");
  ASSERT_TRUE(WaitUntil([&] { return IsShown(Control(dialog, cmbThreeDay)); }));
  EXPECT_TRUE(ChooseItem(Control(dialog, cmbThreeDay), "Sunday"));
  Click(Control(dialog, chkWebSite));
  PressOk(dialog, main);

  const std::string file = ReadFile("Sched.snr");
  const std::string id = ScheduledStation(file, "W");
  const std::string site = StationIn(Folder(), id)[StationField::WebSite];
  ASSERT_FALSE(site.empty());
  EXPECT_EQ(file, name + ">>>>>>" + site + "\tWS" + id + "\t\t12:01 AM\tSunday\tweekly\t\r\n");
  TurnTo({kThursday, {23, 59, 0}});
  TurnTo({kFriday, {0, 1, 0}});
  EXPECT_TRUE(Notices().empty());
  TurnTo({kSaturday, {23, 58, 30}});
  TurnTo({kSaturday, {23, 59, 30}});
  TurnTo({kSunday, {0, 0, 30}});
  EXPECT_TRUE(Notices().empty());
  ExpectNotice({kSunday, {0, 1, 30}}, "This is your weekly Sunday 12:01 AM notice for", name);
  const auto opened = BrowserLines();
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_NE(opened[0].find(site), std::string::npos) << opened[0];
}

TEST_F(HandClockTest, AnEventIsAnnouncedInLocalTimeAndOpensItsWebSite) {
  ASSERT_TRUE(PutEvents(
      Folder(), {Event(7, "Opening night", "Radio Opéra", "200505052215", "opera.example/tonight?a=1"),
                 Event(8, "Yesterday", "Radio Opéra", "200505042215")}));
  HWND main = StartAndShowMain("DoWhat=BringEvents");
  HWND events = Control(main, lstEvents);
  ASSERT_TRUE(WaitUntil([&] { return IsShown(events) && RowCount(events) == 1; }));
  EXPECT_EQ(CellText(events, 0, 0), "Tomorrow 12:15 AM");
  EXPECT_EQ(CellText(events, 0, 1), "Opening night");
  EXPECT_EQ(CellText(events, 0, 2), "Radio Opéra");
  SelectRow(events, 0);
  ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(main, butNotifyMe)) != FALSE; }));
  Click(Control(main, butNotifyMe));
  HWND dialog = Dialog("frmSchedChange");
  EXPECT_EQ(TextOf(Control(dialog, lblStationToSched)), "Station To Schedule: Radio Opéra (Event)");
  PressOk(dialog, main);
  EXPECT_EQ(ReadFile("Sched.snr"),
            "Opening night|||Z|||Radio Opéra>>>>>>opera.example/tonight?a=1\tNS1\t5/6/2005\t12:15 "
            "AM\t\tonce\t\r\n");
  EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(main, butNotifyMe)) == FALSE; }));
  EXPECT_EQ(TextOf(Control(main, lblNextNotice)), "Tomorrow 12:15 AM");
  TurnTo(23, 59);
  EXPECT_EQ(TextOf(Control(main, lblNextNotice)), "Tomorrow 12:15 AM");
  TurnTo({kFriday, {0, 14, 0}});
  EXPECT_EQ(TextOf(Control(main, lblNextNotice)), "Today 12:15 AM");
  HWND notice = ExpectNotice({kFriday, {0, 15, 0}}, "This is your May 6  12:15 AM notice for",
                             "Opening night on Radio Opéra");
  ASSERT_NE(notice, nullptr);
  EXPECT_NE(GetWindowLongA(notice, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  EXPECT_EQ(RowCount(events), 0);  // it has begun
  ASSERT_TRUE(IsShown(Control(notice, butGoWebSiteIt)));
  Click(Control(notice, butGoWebSiteIt));
  const auto opened = BrowserLines();
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_NE(opened[0].find("http://opera.example/tonight?a=1"), std::string::npos) << opened[0];
}

TEST_F(HandClockTest, ALiveItemWaitsForItsEvent) {
  ASSERT_TRUE(PutEvents(Folder(), {Event(7, "Jam session", "Jazz FM", "200505052001")}));
  WriteFile("Sched.snr", "Jam session|||Z|||Jazz FM\tN\t\t\t\tlive\t\r\n");
  StartAndShowMain();
  TurnTo(22, 0);
  EXPECT_TRUE(Notices().empty());
  ExpectNotice({kThursday, {22, 1, 0}}, "This is your event notice for", "Jam session on Jazz FM");
}

TEST_F(HandClockTest, ANoticeSoundsUnlessTheUserWantsItSilent) {
  if (!ReadMark::Works(PathOf("scratch"))) GTEST_SKIP() << "this file system does not note reads";
  WriteFile("Sched.snr", "Tea\tN\t\t10:05 AM\t\tdaily\t\r\nCake\tN\t\t10:06 AM\t\tdaily\t\r\n");
  StartAndShowMain();
  const ReadMark click(PathOf("Depot\\xdf53.wav"));
  {
    const ReadMark bell(PathOf("Depot\\gdf55.wav"));
    HWND notice = ExpectNotice({kThursday, {10, 5, 0}}, "This is your daily 10:05 AM notice for", "Tea");
    EXPECT_TRUE(bell.WasRead());
    EXPECT_FALSE(click.IsRead());
    CloseNotice(notice);
    EXPECT_TRUE(click.WasRead());
  }
  WriteText(HKEY_LOCAL_MACHINE, "SOFTWARE\\zumo\\Sonaro", "SoundNotify", "False");
  const ReadMark bell(PathOf("Depot\\gdf55.wav"));
  HWND notice = ExpectNotice({kThursday, {10, 6, 0}}, "This is your daily 10:06 AM notice for", "Cake");
  RunTimer(notice, Timer1);
  const ReadMark nextClick(PathOf("Depot\\xdf53.wav"));
  CloseNotice(notice);
  EXPECT_TRUE(nextClick.WasRead());
  EXPECT_FALSE(bell.IsRead());
}

TEST_F(HandClockTest, WhatWasToldIsNotToldAgainAtTheNextStart) {
  WriteFile("Sched.snr", "Tea\tN\t\t10:05 AM\t\tdaily\t\r\nCake\tNS6044347\t\t10:07 AM\t\tdaily\t\r\n");
  StartAndShowMain();
  TurnTo(10, 4);
  CloseNotice(ExpectNotice({kThursday, {10, 5, 30}}, "This is your daily 10:05 AM notice for", "Tea"));
  Clock().Set({kThursday, {10, 7, 20}});  // no tick any more
  Command(Sonaro().Window("frmSysTrayMenu"), mnuTrayExit);
  ASSERT_TRUE(Sonaro().WaitForEnd());
  HWND notice = Start().WaitForShownWindow("frmNotify");
  ASSERT_NE(notice, nullptr);
  EXPECT_EQ(ColumnTexts(Control(notice, lstMissed), 0), std::vector<std::string>{"10:07 AM"});
  EXPECT_EQ(ColumnTexts(Control(notice, lstMissed), 1), std::vector<std::string>{"Cake"});
  SaveShot("away");
  Click(Control(notice, butPlay1It));  // it came on a moment ago
  EXPECT_EQ(AsxLines().size(), 1u);
  EXPECT_TRUE(WaitUntil([&] { return !IsWindow(notice); }));
}

TEST_F(HandClockTest, ANoticeThatIsPutOffComesAgain) {
  WriteFile("Sched.snr", "Tea\tN\t\t10:05 AM\t\tdaily\tpot\r\n");
  StartAndShowMain();
  TurnTo(10, 4);
  HWND notice = ExpectNotice({kThursday, {10, 5, 0}}, "This is your daily 10:05 AM notice for", "Tea");
  SaveShot("notice");
  Command(notice, mnuSnooze + 1);
  EXPECT_TRUE(WaitUntil([&] { return !IsWindow(notice); }));
  EXPECT_EQ(TextOf(Control(Running().Window("SonaroFrm"), lblStatus)),
            "Next notice for Tea: Today 10:20 AM.");
  EXPECT_EQ(ReadFile("Sched.snr"),
            "Tea\tN\t\t10:05 AM\t\tdaily\tpot\r\nTea\tN\t5/5/2005\t10:20 AM\t\tonce\tpot\r\n");
  TurnTo(10, 19);
  ExpectNotice({kThursday, {10, 20, 0}}, "This is your May 5  10:20 AM notice for", "Tea");
}

TEST_F(HandClockTest, TwoItemsOfOneMinuteStandBesideEachOtherAndLeaveTheFocus) {
  HWND main = MainWithStations();
  for (int row : {0, 1}) {
    HWND dialog = ScheduleRow(main, row);
    ChooseTime(dialog, "11", "30", "AM");
    PressOk(dialog, main);
  }
  SetForegroundWindow(main);
  const HWND focus = FocusOf(main);
  TurnTo(11, 29);
  TurnTo(11, 30);
  const std::vector<HWND> notices = Notices();
  ASSERT_EQ(notices.size(), 2u);
  RECT common{};
  const RECT first = BoundsOf(notices[0]);
  const RECT second = BoundsOf(notices[1]);
  EXPECT_FALSE(IntersectRect(&common, &first, &second));
  EXPECT_EQ(GetForegroundWindow(), main);
  EXPECT_EQ(FocusOf(main), focus);
  TurnTo(11, 31);
  EXPECT_EQ(Notices().size(), 2u);
}

}  // namespace
}  // namespace sonaro::desktop
