// The list, the tree and the scroll bar as real controls: what a user's keyboard and pointer do to them, and
// what a screen reader gets.
#include <gtest/gtest.h>

#include <array>

#include "forms/WideText.h"
#include "forms/controls/TreeView.h"
#include "forms/paint/Painter.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"
#include "windows/ViewsForm.h"

namespace sonaro {
namespace {

using Log = std::vector<std::string>;
constexpr int kPage = 18;  // rows that the list shows at 96 dpi

class ViewsTest : public testing::Test {
 protected:
  void Open(int rows) {
    stations.SetCount(rows);
    form.Show();
    list = form.list.Window();
    tree = form.tree.Window();
    SetFocus(list);
    Pump();
    form.log.clear();
  }
  // The log since the last call.
  Log Events() { return std::exchange(form.log, {}); }
  ListView& List() { return *form.list; }

  std::string CellText(int row, int column) const {
    wchar_t text[300] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 300;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return Narrow(text);
  }
  void ClickRow(int row) {
    RECT box = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&box));
    const LPARAM at = MAKELPARAM(60, (box.top + box.bottom) / 2);
    PostMessageW(list, WM_LBUTTONUP, 0, at);  // the control waits for it
    SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, at);
    Pump();
  }
  HTREEITEM Node(UINT which, HTREEITEM from = nullptr) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
  }
  void ClickNode(HTREEITEM node, int x) {
    RECT box{};
    TreeView_GetItemRect(tree, node, &box, FALSE);
    SendMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, (box.top + box.bottom) / 2));
    Pump();
  }
  // The scroll bar that lies over the right end of a view.
  HWND BarOf(int id) const {
    RECT view{};
    GetWindowRect(ControlOf(form, id), &view);
    for (HWND bar = nullptr;
         (bar = FindWindowExW(form.Window(), bar, L"SonaroScrollBar", nullptr)) != nullptr;) {
      RECT box{};
      GetWindowRect(bar, &box);
      if (box.top == view.top && box.left > view.left && box.right < view.right) return bar;
    }
    return nullptr;
  }
  int Top() const { return static_cast<int>(SendMessageW(list, LVM_GETTOPINDEX, 0, 0)); }

  FormContextForTests context;
  MadeUpStations stations{0};
  ViewsForm form{context.forms, stations};
  HWND list = nullptr;
  HWND tree = nullptr;
};

TEST_F(ViewsTest, EveryCellCanBeReadFromOutside) {
  Open(40000);
  EXPECT_EQ(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 40000);
  for (const int row : {0, 8, 9, 10, 39999})
    for (int column = 0; column < 4; ++column) EXPECT_EQ(CellText(row, column), stations.Cell(row, column));
}

TEST_F(ViewsTest, KeysMoveAndActivate) {
  Open(40);
  const struct {
    WORD key;
    Log log;
    int selected;
  } steps[] = {
      {VK_END, {"ItemSelected 39"}, 39},
      {VK_DOWN, {}, 39},
      {VK_UP, {"ItemSelected 38"}, 38},
      {VK_RETURN, {"ItemActivated 38"}, 38},
      {VK_HOME, {"ItemSelected 0"}, 0},
      {VK_UP, {}, 0},
      {VK_LEFT, {}, 0},
      {VK_DOWN, {"ItemSelected 1"}, 1},
  };
  for (const auto& step : steps) {
    PressKey(step.key);
    EXPECT_EQ(Events(), step.log) << step.key;
    EXPECT_EQ(List().Selected(), step.selected) << step.key;
  }
}

TEST_F(ViewsTest, EnterGoesToThePrimaryButtonWhileNothingIsSelected) {
  Open(3);
  PressKey(VK_RETURN);
  EXPECT_EQ(Events(), Log{});
}

TEST_F(ViewsTest, ClickingAndTypingSelect) {
  Open(40);
  ClickRow(5);
  EXPECT_EQ(Events(), Log{"ItemSelected 5"});
  ClickRow(5);
  EXPECT_EQ(Events(), Log{});
  SendMessageW(list, WM_CHAR, L'\x0142', 1);  // the small letter of "Łódź"
  EXPECT_EQ(Events(), Log{"ItemSelected 8"});
  RECT box = {LVIR_BOUNDS, 0, 0, 0};
  SendMessageW(list, LVM_GETITEMRECT, 8, reinterpret_cast<LPARAM>(&box));
  SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(60, box.top + 5));
  EXPECT_EQ(Events(), Log{"ItemActivated 8"});
}

TEST_F(ViewsTest, AClickBelowTheRowsTakesNothingAway) {
  Open(3);
  List().Select(1);
  form.tree.Focus();
  RECT box{};
  GetClientRect(list, &box);
  for (const UINT button : {UINT{WM_LBUTTONDOWN}, UINT{WM_RBUTTONDOWN}}) {
    const LPARAM at = MAKELPARAM(60, box.bottom - 10);
    PostMessageW(list, button + 1, 0, at);  // the control may wait for its going up
    SendMessageW(list, button, button == WM_LBUTTONDOWN ? MK_LBUTTON : MK_RBUTTON, at);
    EXPECT_EQ(List().Selected(), 1);
    EXPECT_EQ(GetFocus(), list);
  }
}

// What the tip of the list holds ready for the place under the pointer; "" when it has nothing to say.
std::string TipOf(HWND list) {
  std::pair<HWND, std::string> found{list, ""};
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM data) {
        auto& [owner, text] = *reinterpret_cast<std::pair<HWND, std::string>*>(data);
        std::array<wchar_t, 300> buffer{};
        GetClassNameW(window, buffer.data(), 100);
        if (std::wstring_view(buffer.data()) != TOOLTIPS_CLASSW) return TRUE;
        buffer = {};
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V1_SIZE;
        tool.hwnd = owner;
        tool.lpszText = buffer.data();
        SendMessageW(window, TTM_GETTEXTW, buffer.size(), reinterpret_cast<LPARAM>(&tool));
        if (buffer[0] != L'\0') text = Narrow(buffer.data());
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found.second;
}

TEST_F(ViewsTest, ATipHoldsTheTextThatItsColumnCuts) {
  Open(60);
  List().SetColumns({{"Name", 50}, {"Rest", 200}});
  const auto pointAt = [&](int x, int row) {
    SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(x, 22 * row + 11));
  };
  pointAt(30, 2);
  EXPECT_EQ(TipOf(list), stations.Cell(2, 0));
  pointAt(30, 3);
  EXPECT_EQ(TipOf(list), stations.Cell(3, 0));
  pointAt(100, 3);
  EXPECT_EQ(TipOf(list), "") << "the second column shows its text whole";
  pointAt(30, 3);
  List().RowsChanged();
  EXPECT_EQ(TipOf(list), "") << "another station may stand there now";
}

TEST_F(ViewsTest, TheProgramSelectsInSilence) {
  Open(40000);
  List().Select(39000);
  EXPECT_EQ(List().Selected(), 39000);
  EXPECT_GE(Top() + kPage, 39000);
  List().Select(-1);
  EXPECT_EQ(List().Selected(), -1);
  stations.SetCount(10);
  List().RowsChanged();
  EXPECT_EQ(Top(), 0);
  EXPECT_EQ(Events(), Log{});
}

TEST_F(ViewsTest, SeveralRowsAreSelectedByKeysAndByTheProgram) {
  Open(40000);
  List().Select(3);
  PressKey('A', false, true);
  EXPECT_EQ(List().SelectedCount(), 1) << "one at a time unless told so";
  Events();
  List().AllowSeveral();
  const struct {
    WORD key;
    bool shift;
    bool control;
    std::vector<int> selected;
    Log log;
  } steps[] = {
      {VK_DOWN, true, false, {3, 4}, {"ItemSelected 4"}},
      {VK_DOWN, true, false, {3, 4, 5}, {"ItemSelected 5"}},
      {VK_UP, true, false, {3, 4}, {"ItemSelected 4"}},
      {VK_DOWN, false, false, {5}, {"ItemSelected 5"}},
  };
  for (const auto& step : steps) {
    PressKey(step.key, step.shift, step.control);
    EXPECT_EQ(List().SelectedRows(), step.selected);
    EXPECT_EQ(Events(), step.log);
  }
  // Not every system takes the state that a test gives its keyboard at once.
  for (int attempt = 0; attempt < 5 && List().SelectedCount() < 2; ++attempt) PressKey('A', false, true);
  EXPECT_EQ(List().SelectedCount(), 40000);
  EXPECT_EQ(Events(), Log{"ItemSelected 5"});
  List().Select(7);
  EXPECT_EQ(List().SelectedRows(), std::vector<int>{7});
  const std::array rows = {2, 7, 39000};
  List().SelectRows(rows);
  EXPECT_EQ(List().SelectedRows(), std::vector<int>(rows.begin(), rows.end()));
  EXPECT_EQ(List().Selected(), 7);
  stations.SetCount(10);
  List().RowsChanged();
  EXPECT_EQ(List().SelectedRows(), (std::vector<int>{2, 7}));
  EXPECT_EQ(Events(), Log{});
  ClickRow(5);
  EXPECT_EQ(List().SelectedRows(), std::vector<int>{5});
  EXPECT_EQ(Events(), Log{"ItemSelected 5"});
}

TEST_F(ViewsTest, ContextMenusKnowTheirRow) {
  Open(40);
  List().Select(4);
  SendMessageW(list, WM_CONTEXTMENU, 0, -1);
  POINT at = {60, 5};
  ClientToScreen(list, &at);
  SendMessageW(list, WM_CONTEXTMENU, 0, MAKELPARAM(at.x, at.y));
  EXPECT_EQ(Events(), (Log{"ContextMenu 4", "ContextMenu 0"}));
  RECT node{};
  TreeView_GetItemRect(tree, TreeView_GetNextSibling(tree, TreeView_GetRoot(tree)), &node, TRUE);
  at = {node.left + 2, (node.top + node.bottom) / 2};
  ClientToScreen(tree, &at);
  SendMessageW(tree, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tree), MAKELPARAM(at.x, at.y));
  EXPECT_EQ(Events(), Log{"ContextMenu 1"}) << "of the tree: the number of the node";
}

TEST_F(ViewsTest, TheScrollBarAppearsWithNeed) {
  Open(kPage);
  const HWND bar = BarOf(ViewsForm::kList);
  ASSERT_NE(bar, nullptr);
  EXPECT_FALSE(IsWindowVisible(bar));
  stations.SetCount(kPage + 20);
  List().RowsChanged();
  EXPECT_TRUE(IsWindowVisible(bar));
}

TEST_F(ViewsTest, TheScrollBarStepsPagesAndDrags) {
  Open(200);
  const HWND bar = BarOf(ViewsForm::kList);
  RECT box{};
  GetClientRect(bar, &box);
  const auto click = [&](int y) {
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, y));
    SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(6, y));
  };
  click(box.bottom - 5);
  EXPECT_EQ(Top(), 1);
  click(box.bottom - 30);
  EXPECT_EQ(Top(), 1 + kPage);
  click(5);
  EXPECT_EQ(Top(), kPage);
  SendMessageW(list, WM_KEYDOWN, VK_HOME, 1);
  EXPECT_EQ(Top(), 0);
  SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, 20));  // on the thumb
  SendMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(6, box.bottom + 50));
  SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(6, box.bottom + 50));
  EXPECT_EQ(Top(), 200 - kPage);
}

TEST_F(ViewsTest, ListsLookAsDesigned) {
  Open(5);
  List().Select(1);
  const FaceplateColors& colors = context.faceplate.Colors();
  const auto middle = [](int row) { return 22 * row + 11; };
  EXPECT_EQ(PixelOf(list, 0, middle(1)), colors.accent);
  EXPECT_EQ(PixelOf(list, 240, 22 + 3), colors.rowSelected);
  EXPECT_EQ(PixelOf(list, 4, middle(1)), colors.focus);
  EXPECT_EQ(PixelOf(list, 2, middle(2)), colors.glass);
  EXPECT_EQ(PixelOf(list, 2, middle(3)), colors.zebra);
  EXPECT_EQ(PixelOf(list, 2, middle(9)), colors.zebra) << "below the last row";
  EXPECT_EQ(PixelOf(list, 184, middle(9)), colors.hair);
  SetFocus(tree);
  EXPECT_EQ(PixelOf(list, 240, 22 + 3), colors.rowSelectedOff);
  SetFocus(list);
  PressKey(VK_DOWN);
  EXPECT_EQ(PixelOf(list, 0, middle(1)), colors.zebra) << "nothing is left of the bar";
  List().Select(-1);
  EXPECT_EQ(PixelOf(list, 4, middle(2)), colors.focus) << "from here the keys go on";
  stations.SetCount(0);
  List().RowsChanged();
  EXPECT_EQ(PixelOf(list, 245, 155), colors.accent) << "needle of the empty list";
  EXPECT_EQ(PixelOf(list, 0, 50), colors.focus);
  SetFocus(tree);
  EXPECT_EQ(PixelOf(list, 0, 50), colors.glass);
}

TEST_F(ViewsTest, NodesAreClickedByPointerAndKeyboardAlike) {
  Open(3);
  const HTREEITEM first = Node(TVGN_ROOT);
  ClickNode(first, 60);
  ClickNode(first, 60);  // a second click on the same node counts
  SetFocus(tree);
  PressKey(VK_DOWN);
  PressKey(VK_RETURN);
  EXPECT_EQ(Events(), (Log{"NodeClick 0", "NodeClick 0", "NodeClick 1", "NodeClick 1"}));
  form.tree->Select(first);
  form.FillTree();
  EXPECT_EQ(Events(), Log{});
  EXPECT_EQ(form.tree->Selected(), nullptr);
}

TEST_F(ViewsTest, TheMarkOfANodeAndAClickOnARootOpenIt) {
  Open(3);
  HTREEITEM classical = Node(TVGN_ROOT);
  for (int i = 0; i < 3; ++i) classical = Node(TVGN_NEXT, classical);
  const auto isOpen = [&] {
    return (TreeView_GetItemState(tree, classical, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
  };
  EXPECT_TRUE(isOpen());
  ClickNode(classical, 14);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(Events(), Log{});
  ClickNode(classical, 60);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(Events(), Log{"NodeClick 3"});
  ClickNode(Node(TVGN_CHILD, classical), 60);
  ClickNode(classical, 60);
  EXPECT_TRUE(isOpen()) << "coming back to it does not close it";
  ClickNode(classical, 60);
  EXPECT_FALSE(isOpen());
  SetFocus(tree);
  PressKey(VK_RIGHT);
  EXPECT_TRUE(isOpen());
}

}  // namespace
}  // namespace sonaro
