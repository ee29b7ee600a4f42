// The ground of tests that work the main window: its list, its groups, the boxes and dialogs that it opens.
#pragma once

#include <string>

#include "DesktopTest.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {

class MainWindowTest : public DesktopTest {
 public:
  explicit MainWindowTest(Directory directory = Directory::Small) : DesktopTest(directory) {}

 protected:
  HWND List(HWND main) { return Control(main, lstFavs); }
  static POINT MiddleOf(HWND window) {
    const RECT box = BoundsOf(window);
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  }
  // A point on the name of a row of a list.
  static POINT RowOf(HWND list, int row) {
    const RECT box = BoundsOf(list);
    return {box.left + 60, box.top + 11 + 22 * row};
  }
  POINT RowAt(HWND main, int row) { return RowOf(List(main), row); }
  bool Listing(HWND main, const std::string& caption) {
    return WaitUntil([&] { return TextOf(Control(main, lblListing)) == caption; });
  }
  HWND MainWithStations() {
    HWND main = StartAndShowMain();
    Command(main, mnuActionMostPoular);
    EXPECT_TRUE(WaitUntil([&] { return RowCount(List(main)) > 2; }));
    return main;
  }
  void NewGroup(HWND main, const std::string& name) {
    Command(main, mnuFavoritesAdd);
    HWND dialog = Dialog("frmNewFavorite");
    SetText(Control(dialog, txtGroupName), name);
    EndWith(main, dialog, butOKIt);
  }
  bool Holds(const std::string& file, const std::string& text) {
    return WaitUntil([&] { return ReadFile(file) == text; });
  }
};

}  // namespace sonaro::desktop
