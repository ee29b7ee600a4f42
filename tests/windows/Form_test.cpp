// Controls and events of a form, on a real window.
#include "forms/Form.h"
#include "forms/controls/Controls.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/ControlIds.h"
#include "forms/FormImpl.h"
#include "windows/DemoFormTest.h"

namespace sonaro {
namespace {

using Log = std::vector<std::string>;

using FormTest = DemoFormTest;

TEST_F(FormTest, IsFoundFromOutsideByItsClassAndItsNumbers) {
  const HWND window = FindWindowA("frmDemo", "Components");
  ASSERT_EQ(window, form.Window());
  char text[64] = {};
  GetDlgItemTextA(window, DemoForm::kState, text, 64);
  EXPECT_STREQ(text, "Time Left To Scan: 17");
  GetClassNameA(GetDlgItem(window, DemoForm::kRanking), text, 64);
  EXPECT_STREQ(text, "Button");
}

// Whether some tip answers for what the pointer would reach in the middle of this control.
bool HasTip(HWND control) {
  RECT box{};
  GetWindowRect(control, &box);
  const POINT middle = {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  TTHITTESTINFOW hit{};
  hit.hwnd = WindowFromPoint(middle);
  hit.pt = middle;
  ScreenToClient(hit.hwnd, &hit.pt);
  hit.ti.cbSize = TTTOOLINFOW_V1_SIZE;
  for (HWND tips = nullptr; (tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
    if (GetWindowThreadProcessId(tips, nullptr) != GetCurrentThreadId()) continue;
    if (SendMessageW(tips, TTM_HITTESTW, 0, reinterpret_cast<LPARAM>(&hit))) return true;
  }
  return false;
}

TEST_F(FormTest, TipsBelongToWhatThePointerReaches) {
  int focused = form.FocusedControl();
  form.MoveToPixels(0, 0);
  for (const int id : {int{DemoForm::kState}, DemoForm::kPush + 1}) {
    EXPECT_FALSE(HasTip(form.Control(id))) << id;
    form.SetTip(id, "All of it");
    EXPECT_TRUE(HasTip(form.Control(id))) << id;
    PressKey(VK_TAB);
    EXPECT_NE(form.FocusedControl(), std::exchange(focused, form.FocusedControl())) << "still a form";
    FormImplOf(form.Window())->UseDpi(120);
    EXPECT_TRUE(HasTip(form.Control(id))) << id << " at its new place";
    FormImplOf(form.Window())->UseDpi(96);
    form.SetTip(id, "");
    EXPECT_FALSE(HasTip(form.Control(id))) << id;
  }
}

TEST_F(FormTest, TakesEveryClickOnAButton) {
  const HWND key = form.Control(DemoForm::kPush + 1);
  for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
    MouseOn(key, static_cast<UINT>(message));
  }
  SendMessageW(key, BM_CLICK, 0, 0);
  EXPECT_EQ(form.log, (Log{"Click 5002", "Click 5002", "Click 5002"})) << "a fast second click counts";
  EXPECT_EQ(context.clicks, 3) << "the click sounds once for each";
}

TEST_F(FormTest, KeepsTheStateOfTogglesForTheProgramToSet) {
  const HWND key = form.Control(DemoForm::kGroups + 1);
  SendMessageW(key, BM_CLICK, 0, 0);
  EXPECT_EQ(form.log, (Log{"Click 5032"}));
  EXPECT_FALSE(form.IsToggled(DemoForm::kGroups + 1)) << "a click does not toggle by itself";
  form.SetToggleOnly(DemoForm::kGroups, 6, 1);
  EXPECT_EQ(SendMessageW(key, BM_GETCHECK, 0, 0), BST_CHECKED) << "what a screen reader asks";
  EXPECT_FALSE(form.IsToggled(DemoForm::kGroups + 5));
  EXPECT_EQ(form.log.size(), 1U) << "the program's own setting is no event";
}

TEST_F(FormTest, ChecksBoxesAndOneRadioButtonOfAGroup) {
  SendMessageW(form.Control(DemoForm::kCheck), BM_CLICK, 0, 0);
  EXPECT_TRUE(form.IsChecked(DemoForm::kCheck));
  SendMessageW(form.Control(DemoForm::kRadio + 1), BM_CLICK, 0, 0);
  EXPECT_TRUE(form.IsChecked(DemoForm::kRadio + 1));
  EXPECT_FALSE(form.IsChecked(DemoForm::kRadio + 5));
  EXPECT_EQ(form.log, (Log{"Click 5071", "Click 5082"}));
  form.Check(DemoForm::kRadio + 2);
  EXPECT_FALSE(form.IsChecked(DemoForm::kRadio + 1)) << "set by the program, the group still has one";
  EXPECT_EQ(form.log.size(), 2U);
}

TEST_F(FormTest, KeepsTextsOfAnyScript) {
  const std::string text =
      "\xC5\x81\xC3\xB3"
      "d\xC5\xBA \xE6\x9D\xB1\xE4\xBA\xAC \xF0\x9F\x93\xBB R&B";
  form.SetText(DemoForm::kEdit, text);
  EXPECT_EQ(form.Text(DemoForm::kEdit), text);
  EXPECT_TRUE(form.log.empty()) << "the program's own setting is no event";
  form.SetText(DemoForm::kEdit, "");
  for (const wchar_t typed : {L'\x0141', L'\x6771'})
    SendMessageW(form.Control(DemoForm::kEdit), WM_CHAR, typed, 1);
  EXPECT_EQ(form.Text(DemoForm::kEdit), "\xC5\x81\xE6\x9D\xB1");
  EXPECT_EQ(form.log, (Log{"Change 5101", "Change 5101"}));
}

TEST_F(FormTest, WorksCombosByRow) {
  const int combo = DemoForm::kCombo;
  EXPECT_EQ(form.ItemCount(combo), 4);
  EXPECT_EQ(form.ItemText(combo, 3), "\xC3\xA9t\xC3\xA9");
  form.AddItem(combo, "with data", 42);
  EXPECT_TRUE(form.SelectItemData(combo, 42));
  EXPECT_EQ(form.SelectedItem(combo), 4);
  EXPECT_FALSE(form.SelectItemData(combo, 43));
  EXPECT_EQ(form.SelectedItem(combo), 4);
  EXPECT_TRUE(form.log.empty());
  form.Focus(combo);
  PressKey(VK_UP);
  EXPECT_EQ(form.SelectedItem(combo), 3);
  EXPECT_EQ(form.log, (Log{"SelChange 5091"}));
  form.ClearItems(combo);
  EXPECT_EQ(form.SelectedItem(combo), -1);
}

TEST_F(FormTest, GivesAComboEditItsNewTextBeforeTheHandlerReadsIt) {
  form.SetText(DemoForm::kSearch, "typed");
  form.ClearItems(DemoForm::kSearch);
  EXPECT_EQ(form.Text(DemoForm::kSearch), "typed") << "clearing the history leaves what is typed";
  form.AddItem(DemoForm::kSearch, "first");
  form.AddItem(DemoForm::kSearch, "second");
  form.Focus(DemoForm::kSearch);
  PressKey(VK_DOWN);
  EXPECT_EQ(form.log, (Log{"SelChange first"}));
}

TEST_F(FormTest, RunsMenuCommandsAndTimers) {
  SendMessageW(form.Window(), WM_COMMAND, DemoForm::kMenuEntry, 0);
  EXPECT_EQ(form.log, (Log{"Click 5160"}));
  form.StartTimer(DemoForm::kTimer, 10);
  const ULONGLONG end = GetTickCount64() + 5000;
  while (form.log.size() < 3 && GetTickCount64() < end) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
    Pump();
  }
  form.StopTimer(DemoForm::kTimer);
  ASSERT_GE(form.log.size(), 3U);
  EXPECT_EQ(form.log[2], "Timer 5150");
}

TEST_F(FormTest, AsksForANotificationByTheHiddenLabel) {
  const HWND label = GetDlgItem(form.Window(), lblBringUp);
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(IsWindowVisible(label));
  SetWindowTextA(label, "12XX");
  SetWindowTextA(label, "12XX");
  EXPECT_EQ(context.broughtUp, (Log{"12XX", "12XX"})) << "the same item can be due again";
}

TEST_F(FormTest, TellsWhichOfAnArrayWasRightClicked) {
  SendMessageW(form.Window(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(form.Control(DemoForm::kGroups + 3)),
               -1);
  EXPECT_EQ(form.log, (Log{"ContextMenu 5034"}));
}

TEST_F(FormTest, IgnoresNumbersThatItDoesNotHave) {
  form.SetText(99, "x");
  form.Enable(99);
  form.Focus(99);
  form.SetToggle(99, true);
  form.AddItem(99, "x");
  EXPECT_EQ(form.Text(99), "");
  EXPECT_FALSE(form.IsChecked(99));
  EXPECT_EQ(form.SelectedItem(99), -1);
}

// Forms that show lists read them while they close: a closed form answers, and can be opened again.
TEST_F(FormTest, RefusesAMemberThatItsDesignDoesNotHave) {
  EXPECT_NO_THROW((ComboBox{form, DemoForm::kSearch}));
  EXPECT_THROW((Edit{form, 9999}), std::logic_error);
  EXPECT_THROW((Button{form, DemoForm::kSearch}), std::logic_error) << "a control of another kind";
  EXPECT_THROW((ControlArray<ComboBox>{form, DemoForm::kSearch, 99}), std::logic_error)
      << "more than there are";
}

TEST_F(FormTest, AnswersWhenClosedAndOpensAgain) {
  form.Close();
  EXPECT_EQ(form.log, (Log{"Unload"}));
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.Window(), nullptr);
  EXPECT_EQ(form.Text(DemoForm::kEdit), "");
  form.SetText(DemoForm::kEdit, "lost");
  form.Show();
  EXPECT_TRUE(form.IsShown());
  EXPECT_EQ(form.Text(DemoForm::kEdit), "late night") << "OnLoad ran again";
}

}  // namespace
}  // namespace sonaro
