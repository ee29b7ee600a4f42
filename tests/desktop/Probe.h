// Looks into windows of another process and works them, as a user or a screen reader would: finds controls by
// their numbers, reads texts and items, clicks, types. Free functions on window handles; a window that is
// gone reads as empty. Texts are UTF-8. Nothing here waits, except WaitUntil.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace sonaro::desktop {

// Asks every 10 ms until the condition holds (true) or the time is up (false).
template <typename Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds limit = std::chrono::seconds(10)) {
  const auto end = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= end) return false;
    Sleep(10);
  }
  return true;
}

// Windows and controls.
// The first top-level window of the process with this class and caption ("" = any), shown or not; null when
// none.
HWND FindTopWindow(DWORD processId, const std::string& className, const std::string& caption = "");
// All top-level windows of the process with this class that are shown.
std::vector<HWND> ShownWindows(DWORD processId, const std::string& className);
// The descendant with this number (forms/ControlIds.h); null when there is none.
HWND Control(HWND window, int id);
std::vector<HWND> Descendants(HWND window);
std::string ClassOf(HWND window);
std::string TextOf(HWND window);
void SetText(HWND window, const std::string& text);
bool IsShown(HWND window);
RECT BoundsOf(HWND window);  // on the screen

// These return when their work is done, or waits in a modal window or menu that it has opened. (A posted
// message would be overtaken by everything that is sent after it.)
void Click(HWND button);
void Command(HWND window, int id);
void CloseWindowOf(HWND window);
// The window's timer comes due at once. Returns when its handler has run.
void RunTimer(HWND window, int id);
bool IsChecked(HWND button);

// List views in report style. Rows and columns count from 0.
int RowCount(HWND list);
std::string CellText(HWND list, int row, int column = 0);
std::vector<std::string> ColumnTexts(HWND list, int column = 0);
std::vector<int> SelectedRows(HWND list);
void SelectRow(HWND list, int row);  // alone, focused and scrolled into view

// Tree views.
std::vector<HTREEITEM> TreeChildren(HWND tree, HTREEITEM parent = nullptr);
std::string TreeText(HWND tree, HTREEITEM item);
// The item that the texts lead to from the top; null when a step is missing. Expands on the way.
HTREEITEM FindTreeItem(HWND tree, const std::vector<std::string>& texts);
void ClickTreeItem(HWND tree, HTREEITEM item);

// Combos and list boxes.
std::vector<std::string> ComboTexts(HWND combo);
std::string ChosenText(HWND combo);                    // of a drop-down list
bool ChooseItem(HWND combo, const std::string& text);  // as a user does, with its notice; false: no such item

// Clicks the day of the month that a month calendar shows; false when it shows no such day.
bool ClickCalendarDay(HWND calendar, int day);

// The keyboard and the mouse of the display. The window is brought to the front first.
enum class Modifier { None, Control, Shift, Alt };
void PressKey(HWND window, WORD virtualKey, Modifier modifier = Modifier::None);
void TypeText(HWND window, const std::string& text);
void ClickAt(int screenX, int screenY, bool rightButton = false);
// `held` runs before the button is let go.
void DragFromTo(POINT from, POINT to, const std::function<void()>& held = {});
// The same until the condition holds; false when it never does. On a display without a window manager a
// window that is closing can still take a click, and the focus that comes late ends a drag.
template <typename Condition>
bool ClickUntil(POINT at, Condition condition) {
  return WaitUntil([&] {
    ClickAt(at.x, at.y);
    return WaitUntil(condition, std::chrono::seconds(2));
  });
}
template <typename Condition>
bool DragUntil(POINT from, POINT to, Condition condition) {
  return WaitUntil([&] {
    DragFromTo(from, to);
    return WaitUntil(condition, std::chrono::seconds(2));
  });
}
// The window's thread has the mouse for itself: a drag is on.
bool HasTakenMouse(HWND window);
// The control with the keyboard focus in the window's thread; null when the thread has none.
HWND FocusOf(HWND window);

}  // namespace sonaro::desktop
