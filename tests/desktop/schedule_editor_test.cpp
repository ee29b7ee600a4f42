// The schedule's list and its dialogs: adding without a station, changing, deleting, the two clock styles,
// and what is told after the program was away.
#include "Guide.h"
#include "ScheduleDesk.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {
namespace {

TEST_F(HandClockTest, TheListAddsChangesAndDeletes) {
  HWND main = MainWithStations();
  HWND list = OpenList(main);
  HWND rows = Control(list, lstSched);
  EXPECT_FALSE(IsWindowEnabled(Control(list, butChangeIt)));
  EXPECT_FALSE(IsWindowEnabled(Control(list, butDeleteIt)));

  Click(Control(list, butAddIt));
  HWND dialog = Dialog("frmSchedChange");
  SetText(Control(dialog, txtOneDate), "");
  ExpectRefusal(dialog, "You Need To Select a Station");  // the station is missed before the date
  Click(Control(dialog, butSchedIt));
  HWND picker = Dialog("frmSelectStation");
  const auto sources = ComboTexts(Control(picker, cmbSelectGroup));
  EXPECT_EQ(sources, (std::vector<std::string>{"Your Stations", "Recently Launched Stations",
                                               "The Whole Guide, by Search"}));
  SetText(Control(picker, txtFind), "news");
  Click(Control(picker, butSearchIt));
  ASSERT_TRUE(WaitUntil([&] { return RowCount(Control(picker, lstResult)) > 1; }));
  EXPECT_EQ(ChosenText(Control(picker, cmbSelectGroup)), sources.back());
  const std::string name = CellText(Control(picker, lstResult), 1);
  SelectRow(Control(picker, lstResult), 1);
  PressOk(picker, dialog);
  EXPECT_EQ(TextOf(Control(dialog, lblStationToSched)), "Station To Schedule: " + name);
  ExpectRefusal(dialog, "You Need To Select a Date");
  EXPECT_FALSE(Exists("Sched.snr"));
  SetText(Control(dialog, txtOneDate), "5/5/2005");
  ChooseTime(dialog, "10", "00", "AM");
  ExpectRefusal(dialog, "This time has passed. Choose a later one.");
  SetText(Control(dialog, txtOneDate), "6/1/2005");
  ChooseTime(dialog, "12", "00", "PM");
  PressOk(dialog, list);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(rows) == 1; }));
  EXPECT_EQ(CellText(rows, 0, 0), "Jun 1, 12:00 PM");
  EXPECT_EQ(CellText(rows, 0, 1), name);
  EXPECT_EQ(CellText(rows, 0, 2), "at 12:00 PM on 6/1/2005");
  EXPECT_EQ(CellText(rows, 0, 3), "Notify me ");

  Click(Control(list, butChangeIt));
  dialog = Dialog("frmSchedChange");
  EXPECT_EQ(TextOf(Control(dialog, txtOneDate)), "June 1 2005 (Wednesday)");
  EXPECT_EQ(ChosenText(Control(dialog, cmbTimeHour)), "12");
  EXPECT_EQ(ChosenText(Control(dialog, cmbTimeMinute)), "00");
  EXPECT_EQ(ChosenText(Control(dialog, cmbTimeAMPM)), "PM");
  Click(Control(dialog, cmdHowOften + 1));
  ASSERT_TRUE(WaitUntil([&] { return IsShown(Control(dialog, chkDay)); }));
  for (int day = 0; day < 7; ++day) Click(Control(dialog, chkDay + day));
  ExpectRefusal(dialog, "You Need To Select a Day");
  for (int day : {0, 3}) Click(Control(dialog, chkDay + day));
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(dialog, lblSummary)) == "Every Mon, Thu at 12:00 PM"; }));
  EXPECT_EQ(TextOf(Control(dialog, lblNextTime)), "Next notice: Today 12:00 PM");
  SetText(Control(dialog, txtNote), "rehearsal");
  PressOk(dialog, list);
  EXPECT_TRUE(WaitUntil([&] { return CellText(rows, 0, 2) == "every Mon, Thr at 12:00 PM"; }));
  EXPECT_EQ(CellText(rows, 0, 0), "Today 12:00 PM");
  EXPECT_EQ(CellText(rows, 0, 3), "Notify me - rehearsal");
  EXPECT_EQ(RowCount(rows), 1);
  const std::string file = ReadFile("Sched.snr");
  EXPECT_TRUE(
      file.ends_with("\t\t12:00 PM\t\tdaily|Mon=-1|Tue=0|Wed=0|Thr=-1|Fri=0|Sat=0|Sun=0|\trehearsal\r\n"))
      << file;

  Click(Control(list, butDeleteIt));
  EXPECT_EQ(AnswerBox(list, butMsg), "Delete the daily 12:00 PM notice for " + name + "?");
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 0; }));
  EXPECT_EQ(TextOf(Control(main, lblStatus)), "Deleted the notice for " + name + ".");
  PressKey(list, 'Z', Modifier::Control);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 1; }));
  EXPECT_EQ(ReadFile("Sched.snr"), file);
  Click(Control(list, butDeleteIt));
  AnswerBox(list, butMsg);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 0; }));
  EXPECT_EQ(ReadFile("Sched.snr"), "");
  EXPECT_TRUE(WaitUntil([&] { return FocusOf(list) == rows; }));
  TurnTo(11, 59);
  TurnTo(12, 0);
  EXPECT_TRUE(Notices().empty());
}

TEST_F(HandClockTest, WithThe24HourClockThereIsNoHalfOfTheDay) {
  SetTimeFormat("HH:mm:ss");
  HWND main = MainWithStations();
  HWND dialog = ScheduleRow(main, 0);
  EXPECT_FALSE(IsShown(Control(dialog, cmbTimeAMPM)));
  const auto hours = ComboTexts(Control(dialog, cmbTimeHour));
  ASSERT_EQ(hours.size(), 24u);
  EXPECT_EQ(hours.front(), "0");
  EXPECT_EQ(hours.back(), "23");
  Click(Control(dialog, cmdHowOften + 1));
  ChooseTime(dialog, "0", "05", "");
  PressOk(dialog, main);
  EXPECT_NE(ReadFile("Sched.snr").find("\t\t0:05\t\tdaily\t\r\n"), std::string::npos);
}

TEST_F(HandClockTest, AnEventBecomesAPersonalShowAndNoLongerIsOne) {
  ASSERT_TRUE(PutEvents(Folder(), {Event(7, "Xylophone hour", "Radio X", "200505052001"),
                                   Event(9, "An évening show", "Radio X", "200505062001")}));
  HWND main = StartAndShowMain("DoWhat=BringEvents");
  HWND events = Control(main, lstEvents);
  HWND key = Control(main, butPersonalShow);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(events) == 2 && IsWindowEnabled(key) != FALSE; }));
  EXPECT_EQ(TextOf(key), "Add to &personal shows");
  for (int row : {0, 1}) {
    SelectRow(events, row);
    ASSERT_TRUE(WaitUntil([&] { return TextOf(key) == "Add to &personal shows"; }));
    Command(main, mnuEventPersonalShow);
    EXPECT_EQ(AnswerBox(main, butMsg),
              (row == 0 ? "Xylophone hour" : "An évening show") + std::string(" added as a personal show"));
  }
  EXPECT_EQ(ReadFile("Shows.snr"), "7XXylophone hour\r\n9XAn évening show\r\n");
  EXPECT_TRUE(WaitUntil([&] { return TextOf(key) == "Remove &personal show"; }));

  HWND list = OpenList(main);
  HWND shows = Control(list, lstShows);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(shows) == 2; }));
  EXPECT_EQ(ColumnTexts(shows, 0), (std::vector<std::string>{"Today 10:01 PM", "Tomorrow 10:01 PM"}));
  SelectRow(shows, 0);
  Click(Control(list, butShowSplit + 1));
  EXPECT_TRUE(WaitUntil([&] { return CellText(shows, 0, 1) == "An évening show"; }));
  EXPECT_EQ(SelectedRows(shows), std::vector<int>{1});  // it went with its row
  ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(list, butDeleteIt)) != FALSE; }));
  EXPECT_FALSE(IsWindowEnabled(Control(list, butChangeIt)));
  Click(Control(list, butDeleteIt));
  EXPECT_EQ(AnswerBox(list, butMsg), "The personal show Xylophone hour was deleted");
  EXPECT_EQ(ReadFile("Shows.snr"), "9XAn évening show\r\n");

  Click(key);  // the second event is still selected
  EXPECT_EQ(AnswerBox(main, butMsg), "The personal show An évening show was deleted");
  EXPECT_EQ(ReadFile("Shows.snr"), "");
  EXPECT_TRUE(WaitUntil([&] { return RowCount(shows) == 0; }));
}

TEST_F(HandClockTest, AllOfTheScheduleIsDeletedBroughtBackAndExportedAsACalendar) {
  WriteFile("Sched.snr",
            "Tee früh\tN\t\t4:00 PM\t\tdaily\tpot\r\nCake\tN\t5/9/2005\t5:30 PM\t\tonce\t\r\n"
            "Talk|||Z|||Radio X\tN\t\t\t\tlive\t\r\n");  // without a time of its own
  HWND list = OpenList(StartAndShowMain());
  ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(Control(list, butExportIt)) != FALSE; }));
  // Several rows at once, which come back.
  HWND rows = Control(list, lstSched);
  PressKey(list, 'A', Modifier::Control);
  ASSERT_TRUE(WaitUntil([&] { return SelectedRows(rows).size() == 3; }));
  EXPECT_FALSE(IsWindowEnabled(Control(list, butChangeIt)));
  PressKey(list, VK_DELETE);
  EXPECT_EQ(AnswerBox(list, butMsg), "Delete these 3 notices?");
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 0; }));
  PressKey(list, 'Z', Modifier::Control);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(rows) == 3; }));

  Click(Control(list, butExportIt));
  ChooseFile(PathOf("Thursday"));  // the ending comes by itself
  // The dialog may make an empty file first, to see whether it can.
  ASSERT_TRUE(WaitUntil([&] { return !ReadFile("Thursday.ics").empty(); }));
  const std::string calendar = ReadFile("Thursday.ics");
  EXPECT_TRUE(calendar.starts_with("BEGIN:VCALENDAR\r\n")) << calendar;
  EXPECT_TRUE(calendar.ends_with("\r\nEND:VCALENDAR\r\n")) << calendar;
  EXPECT_NE(calendar.find("SUMMARY:Tee früh\r\n"), std::string::npos) << calendar;
}

// Another program holds the schedule from before the start: said once, nothing shown as if it were all, no
// change taken that would lose the rest; afterwards a change keeps every item.
TEST_F(HandClockTest, AScheduleThatIsLockedAtTheStartLosesNothing) {
  const std::string mine = "Tea\tN\t\t4:00 PM\t\tdaily\t\r\n";
  WriteFile("Sched.snr", mine);
  HANDLE holder =
      CreateFileA(PathOf("Sched.snr").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(holder, INVALID_HANDLE_VALUE);
  HWND main = StartAndShowMain();
  EXPECT_TRUE(AnswerBox(main, butMsg).starts_with("Sonaro cannot read Sched.snr"));
  TurnTo(10, 1);
  EXPECT_TRUE(ShownWindows(Sonaro().Id(), "MsgboxFrm").empty()) << "said once";

  Command(main, mnuActionMostPoular);
  ASSERT_TRUE(WaitUntil([&] { return RowCount(Control(main, lstFavs)) > 3; }));
  HWND dialog = ScheduleRow(main, 0);
  Click(Control(dialog, cmdHowOften + 1));
  Click(Control(dialog, butOKIt));
  EXPECT_TRUE(AnswerBox(dialog, butMsg).starts_with("Your schedule could not be saved"));
  EXPECT_TRUE(IsShown(dialog)) << "what was entered is still there";
  CloseHandle(holder);
  EXPECT_EQ(ReadFile("Sched.snr"), mine);
  PressOk(dialog, main);
  const std::string both = ReadFile("Sched.snr");
  EXPECT_TRUE(both.starts_with(mine) && both.size() > mine.size()) << both;
  HWND list = OpenList(main);
  EXPECT_TRUE(WaitUntil([&] { return RowCount(Control(list, lstSched)) == 2; }));
}

}  // namespace
}  // namespace sonaro::desktop
