// The keyboard of a form: what the dialog keyboard of the system gives and what the key tables add.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "windows/DemoFormTest.h"

namespace sonaro {
namespace {

using Log = std::vector<std::string>;

using FormKeyboardTest = DemoFormTest;

// The colour on a button's focus line, at the middle of its left edge.
Color PixelInside(const Form& form, int key) {
  RECT box{};
  GetClientRect(ControlOf(form, key), &box);
  return PixelOf(ControlOf(form, key), 3, box.bottom / 2);
}

TEST_F(FormKeyboardTest, BeginsWhereTheDesignSays) { EXPECT_EQ(form.FocusedControl(), DemoForm::kPush + 3); }

TEST_F(FormKeyboardTest, PressesTheFocusedButtonElseThePrimaryOne) {
  const struct {
    int focus;
    Log log;
  } cases[] = {{DemoForm::kPush + 1, {"Click 5002"}},     {DemoForm::kGroups + 5, {"Click 5036"}},
               {DemoForm::kEdit, {"Click 5011"}},         {DemoForm::kCheck, {"Click 5011"}},
               {DemoForm::kCombo, {"Click 5011"}},        {DemoForm::kNotes, {"Click 5011"}},
               {DemoForm::kSearch, {"EnterPressed 5111"}}};
  for (const auto& c : cases) {
    FocusOn(form, c.focus);
    form.log.clear();
    PressKey(VK_RETURN);
    EXPECT_EQ(form.log, c.log) << "focus on " << c.focus;
  }
  form.push[1].Enable();
  FocusOn(form, DemoForm::kPush + 1);
  form.log.clear();
  PressKey(VK_SPACE);
  EXPECT_EQ(form.log, (Log{"Click 5002"}));
}

TEST_F(FormKeyboardTest, GoesOnlyToButtonsThatCanBePressed) {
  FocusOn(form, DemoForm::kEdit);
  form.log.clear();
  form.primary[0].Enable(false);
  PressKey(VK_RETURN);
  EXPECT_EQ(form.log, (Log{})) << "the next primary button stands in, and has no handler";
  form.push[1].Show(false);
  PressKey('K', false, true);
  EXPECT_EQ(form.log, (Log{})) << "a hidden button does not act by its shortcut";
  SendMessageW(form.Window(), WM_COMMAND, DemoForm::kPush + 1, 0);
  EXPECT_EQ(form.log, (Log{}));
}

TEST_F(FormKeyboardTest, ReadsTheKeyTable) {
  PressKey('K', false, true);
  EXPECT_EQ(form.log, (Log{"Click 5002"}));
  PressKey('K', true, true);
  EXPECT_EQ(form.log.size(), 1U) << "other modifiers are another key";
  PressKey(VK_DELETE);
  EXPECT_EQ(form.log.size(), 1U) << "belongs to another control";
  FocusOn(form, DemoForm::kCheck);
  PressKey(VK_DELETE);
  EXPECT_EQ(form.log.back(), "Click 5160");
  PressKey('F', false, true);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kSearch) << "a control that is no button takes the focus";
}

TEST_F(FormKeyboardTest, MovesByTabFromGroupToGroupAndByArrowsInside) {
  FocusOn(form, DemoForm::kPrimary + 3);
  PressKey(VK_TAB);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kRanking + 5) << "the active button stands for its group";
  PressKey(VK_RIGHT);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kRanking) << "round the end";
  PressKey(VK_DOWN);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kRanking + 1);
  PressKey(VK_TAB);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kGroups + 5);
  PressKey(VK_TAB, true);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kRanking + 5);
  FocusOn(form, DemoForm::kPush);
  PressKey(VK_RIGHT);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kPush) << "a button that is in no group keeps the arrows";
}

TEST_F(FormKeyboardTest, ReachesEmptySocketsAndSkipsHiddenControls) {
  form.groups[5].SetActive(false);
  form.groups[0].Show(false);
  form.groups[1].SetEmptySocket(true);
  form.ranking[5].SetActive(false);
  FocusOn(form, DemoForm::kRanking);
  PressKey(VK_TAB);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kGroups + 1) << "without a group the first one is made there";
  form.log.clear();
  PressKey(VK_RETURN);
  EXPECT_EQ(form.log, (Log{"Click 5032"}));
  PressKey(VK_RIGHT);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kGroups + 2);
}

TEST_F(FormKeyboardTest, ShowsTheFocusOnlyAfterTheKeyboardWasUsed) {
  BOOL cues = FALSE;
  SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &cues, 0);
  SystemParametersInfoW(SPI_SETKEYBOARDCUES, 0, nullptr, 0);
  form.Close();
  form.Show();
  SystemParametersInfoW(SPI_SETKEYBOARDCUES, 0, reinterpret_cast<void*>(static_cast<INT_PTR>(cues)), 0);
  const int key = DemoForm::kPush + 3;
  EXPECT_EQ(form.FocusedControl(), key);
  EXPECT_NE(PixelInside(form, key), context.faceplate.Colors().focus);
  PressKey(VK_TAB);
  PressKey(VK_TAB, true);
  EXPECT_EQ(form.FocusedControl(), key);
  EXPECT_EQ(PixelInside(form, key), context.faceplate.Colors().focus);
}

TEST_F(FormKeyboardTest, PressesByAccessKey) {
  PressAccessKey(L'd');  // "Sche&dule": several have it, the first after the focus is taken
  EXPECT_EQ(form.log.size(), 1U);
}

LRESULT CALLBACK CountMenus(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                            DWORD_PTR data) {
  if (message == WM_ENTERMENULOOP) ++*reinterpret_cast<int*>(data);
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(FormKeyboardTest, OnlyTheSpaceOpensTheSystemMenu) {
  int menus = 0;
  SetWindowSubclass(form.Window(), CountMenus, 1, reinterpret_cast<DWORD_PTR>(&menus));
  for (const auto& [letter, expected] : {std::pair(L'\0', 0), {L'q', 0}, {L' ', 1}}) {
    PostMessageW(form.Window(), WM_KEYDOWN, VK_ESCAPE, 1);  // ends a menu
    SendMessageW(form.Window(), WM_SYSCOMMAND, SC_KEYMENU, letter);
    MSG left{};
    while (PeekMessageW(&left, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
    }
    EXPECT_EQ(menus, expected) << "after Alt and " << static_cast<int>(letter);
  }
  RemoveWindowSubclass(form.Window(), CountMenus, 1);
}

// What reached the button only to press it is not where the user stays.
TEST_F(FormKeyboardTest, AButtonsMenuLeavesTheFocusWhereItWas) {
  form.menuOnClick = true;
  const HWND button = ControlOf(form, DemoForm::kPush);
  const struct {
    int from;
    std::function<void()> press;
  } cases[] = {{DemoForm::kEdit + 2,
                [&] {
                  for (const UINT message : {UINT{WM_LBUTTONDOWN}, UINT{WM_LBUTTONUP}}) {
                    MSG mouse = {button, message, MK_LBUTTON, MAKELPARAM(5, 5), 0, {}};
                    if (!TranslateFormMessage(mouse)) DispatchMessageW(&mouse);
                  }
                }},
               {DemoForm::kCheck + 1, [] { PressAccessKey(L'd'); }},
               {DemoForm::kPush, [] { PressKey(VK_SPACE); }}};
  for (const auto& one : cases) {
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
      FocusOn(form, one.from);
      form.log.clear();
      if (key == VK_RETURN) PostMessageW(form.Window(), WM_KEYDOWN, VK_DOWN, 1);
      PostMessageW(form.Window(), WM_KEYDOWN, key, 1);
      one.press();
      EXPECT_EQ(form.log.size(), key == VK_RETURN ? 2u : 1u) << "from " << one.from;
      EXPECT_EQ(form.FocusedControl(), one.from);
    }
  }
}

TEST_F(FormKeyboardTest, MovesTheFocusOnWhenItsControlGoes) {
  FocusOn(form, DemoForm::kEdit);
  form.edit[0].Enable(false);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kEdit + 1);
  form.edit[1].Show(false);
  EXPECT_EQ(form.FocusedControl(), DemoForm::kEdit + 2);
}

TEST_F(FormKeyboardTest, SelectsAllInAnEdit) {
  FocusOn(form, DemoForm::kEdit);
  SendMessageW(GetFocus(), EM_SETSEL, 0, 0);
  SendMessageW(GetFocus(), WM_CHAR, 1, 1);
  const LRESULT selection = SendMessageW(GetFocus(), EM_GETSEL, 0, 0);
  EXPECT_EQ(LOWORD(selection), 0);
  EXPECT_EQ(HIWORD(selection), 10);
}

TEST_F(FormKeyboardTest, EscapesFromTheListFirst) {
  FocusOn(form, DemoForm::kCombo);
  SendMessageW(ControlOf(form, DemoForm::kCombo), CB_SHOWDROPDOWN, TRUE, 0);
  PressKey(VK_ESCAPE);
  EXPECT_EQ(SendMessageW(ControlOf(form, DemoForm::kCombo), CB_GETDROPPEDSTATE, 0, 0), FALSE);
  EXPECT_TRUE(form.IsOpen());
  PressKey(VK_ESCAPE);
  EXPECT_EQ(form.log, (Log{"Escape", "Unload"}));
  EXPECT_FALSE(form.IsOpen());
}

}  // namespace
}  // namespace sonaro
