// Controls and events of a form, on a real window.
#include "forms/Form.h"
#include "forms/controls/Controls.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/ControlIds.h"
#include "forms/FormWindow.h"
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
  const Button button = form.push[1];
  for (const ControlHandle* control : std::initializer_list<const ControlHandle*>{&form.state, &button}) {
    EXPECT_FALSE(HasTip(control->Window()));
    control->SetTip("All of it");
    EXPECT_TRUE(HasTip(control->Window()));
    PressKey(VK_TAB);
    EXPECT_NE(form.FocusedControl(), std::exchange(focused, form.FocusedControl())) << "still a form";
    FormWindow::Of(form.Window())->UseDpi(120);
    EXPECT_TRUE(HasTip(control->Window())) << "at its new place";
    FormWindow::Of(form.Window())->UseDpi(96);
    control->SetTip("");
    EXPECT_FALSE(HasTip(control->Window()));
  }
}

TEST_F(FormTest, TakesEveryClickOnAButton) {
  const HWND key = ControlOf(form, DemoForm::kPush + 1);
  for (const int message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
    MouseOn(key, static_cast<UINT>(message));
  }
  SendMessageW(key, BM_CLICK, 0, 0);
  EXPECT_EQ(form.log, (Log{"Click 5002", "Click 5002", "Click 5002"})) << "a fast second click counts";
  EXPECT_EQ(context.clicks, 3) << "the click sounds once for each";
}

TEST_F(FormTest, KeepsTheStateOfTogglesForTheProgramToSet) {
  const HWND key = ControlOf(form, DemoForm::kGroups + 1);
  SendMessageW(key, BM_CLICK, 0, 0);
  EXPECT_EQ(form.log, (Log{"Click 5032"}));
  EXPECT_FALSE(form.groups[1].IsActive()) << "a click does not toggle by itself";
  form.groups.SetOnly(1);
  EXPECT_EQ(SendMessageW(key, BM_GETCHECK, 0, 0), BST_CHECKED) << "what a screen reader asks";
  EXPECT_FALSE(form.groups[5].IsActive());
  EXPECT_EQ(form.log.size(), 1U) << "the program's own setting is no event";
}

TEST_F(FormTest, ChecksBoxesAndOneRadioButtonOfAGroup) {
  SendMessageW(ControlOf(form, DemoForm::kCheck), BM_CLICK, 0, 0);
  EXPECT_TRUE(form.check[0].IsChecked());
  SendMessageW(ControlOf(form, DemoForm::kRadio + 1), BM_CLICK, 0, 0);
  EXPECT_TRUE(form.radio[1].IsChecked());
  EXPECT_FALSE(form.radio[5].IsChecked());
  EXPECT_EQ(form.log, (Log{"Click 5071", "Click 5082"}));
  form.radio[2].Check();
  EXPECT_FALSE(form.radio[1].IsChecked()) << "set by the program, the group still has one";
  EXPECT_EQ(form.log.size(), 2U);
}

TEST_F(FormTest, KeepsTextsOfAnyScript) {
  const std::string text =
      "\xC5\x81\xC3\xB3"
      "d\xC5\xBA \xE6\x9D\xB1\xE4\xBA\xAC \xF0\x9F\x93\xBB R&B";
  form.edit[0].SetText(text);
  EXPECT_EQ(form.edit[0].Text(), text);
  EXPECT_TRUE(form.log.empty()) << "the program's own setting is no event";
  form.edit[0].SetText("");
  for (const wchar_t typed : {L'\x0141', L'\x6771'})
    SendMessageW(ControlOf(form, DemoForm::kEdit), WM_CHAR, typed, 1);
  EXPECT_EQ(form.edit[0].Text(), "\xC5\x81\xE6\x9D\xB1");
  EXPECT_EQ(form.log, (Log{"Change 5101", "Change 5101"}));
}

TEST_F(FormTest, WorksCombosByRow) {
  const ComboBox combo = form.combo[0];
  EXPECT_EQ(combo.ItemCount(), 4);
  EXPECT_EQ(combo.ItemText(3), "\xC3\xA9t\xC3\xA9");
  combo.AddItem("with data", 42);
  EXPECT_TRUE(combo.SelectItemData(42));
  EXPECT_EQ(combo.SelectedItem(), 4);
  EXPECT_FALSE(combo.SelectItemData(43));
  EXPECT_EQ(combo.SelectedItem(), 4);
  EXPECT_TRUE(form.log.empty());
  combo.Focus();
  PressKey(VK_UP);
  EXPECT_EQ(combo.SelectedItem(), 3);
  EXPECT_EQ(form.log, (Log{"SelChange 5091"}));
  combo.ClearItems();
  EXPECT_EQ(combo.SelectedItem(), -1);
}

TEST_F(FormTest, GivesAComboEditItsNewTextBeforeTheHandlerReadsIt) {
  form.search.SetText("typed");
  form.search.ClearItems();
  EXPECT_EQ(form.search.Text(), "typed") << "clearing the history leaves what is typed";
  form.search.AddItem("first");
  form.search.AddItem("second");
  FocusOn(form, DemoForm::kSearch);
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
  SendMessageW(form.Window(), WM_CONTEXTMENU,
               reinterpret_cast<WPARAM>(ControlOf(form, DemoForm::kGroups + 3)), -1);
  EXPECT_EQ(form.log, (Log{"ContextMenu 5034"}));
}

TEST_F(FormTest, RefusesAMemberThatItsDesignDoesNotHave) {
  EXPECT_NO_THROW((ComboBox{form, DemoForm::kSearch}));
  EXPECT_THROW((Edit{form, 9999}), std::logic_error);
  EXPECT_THROW((Button{form, DemoForm::kSearch}), std::logic_error) << "a control of another kind";
  EXPECT_THROW((ControlArray<ComboBox>{form, DemoForm::kSearch, 99}), std::logic_error)
      << "more than there are";
}

// Forms that show lists read them while they close: a closed form answers, and can be opened again.
TEST_F(FormTest, AnswersWhenClosedAndOpensAgain) {
  form.Close();
  EXPECT_EQ(form.log, (Log{"Unload"}));
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.Window(), nullptr);
  EXPECT_EQ(form.edit[0].Text(), "");
  form.edit[0].SetText("lost");
  form.Show();
  EXPECT_TRUE(form.IsShown());
  EXPECT_EQ(form.edit[0].Text(), "late night") << "OnLoad ran again";
}

}  // namespace
}  // namespace sonaro
