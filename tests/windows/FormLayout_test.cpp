// Size, place, outline and look of a form: layouts, dpi, growing, dragging.
#include <gtest/gtest.h>

#include "forms/FormWindow.h"
#include "forms/Screen.h"
#include "forms/controls/ListView.h"
#include "settings/SettingNames.h"
#include "windows/DemoForm.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"

namespace sonaro {
namespace {

PixelRect PlaceOf(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  return ToPixelRect(box);
}

PixelRect PlaceInForm(const Form& form, int id) {
  PixelRect place = PlaceOf(ControlOf(form, id));
  const PixelRect frame = PlaceOf(form.Window());
  return {place.left - frame.left, place.top - frame.top, place.right - frame.left, place.bottom - frame.top};
}

PixelRect BoundsOfOutline(HWND window) {
  RECT box{};
  return GetWindowRgnBox(window, &box) == ERROR ? PixelRect{} : ToPixelRect(box);
}

void SendDpi(const Form& form, int dpi, int left, int top) {
  RECT suggested = {left, top, left + 10, top + 10};
  SendMessageW(form.Window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
}

class FormLayoutTest : public testing::Test {
 protected:
  FormLayoutTest() {
    context.files.Put("/d/Depot/sshape.pts",
                      "scc44=00010000000043000000004400001000440001400043000150"
                      "000100015000000001400000000010\r\n"
                      "wild1=0000000000999990000099999999990000099999"
                      "\r\n"
                      "demo1=00014000000098000000009800074600966007600000000760"
                      "0000000014\r\n");
    form.Create();
  }
  FormContextForTests context;
  DemoForm form{context.forms};
};

TEST_F(FormLayoutTest, AnotherLayoutKeepsTheCornerAndHidesWhatItDoesNotName) {
  form.MoveToPixels(30, 40);
  form.UseLayout(1);
  EXPECT_EQ(PlaceOf(form.Window()), (PixelRect{30, 40, 470, 190}));
  EXPECT_EQ(PlaceInForm(form, DemoForm::kPush), (PixelRect{20, 20, 150, 50}));
  EXPECT_TRUE(FormWindow::Of(form.Window())->Controls().Find(DemoForm::kPush)->shown);
  EXPECT_FALSE(FormWindow::Of(form.Window())->Controls().Find(DemoForm::kPush + 1)->shown);
  EXPECT_EQ(BoundsOfOutline(form.Window()).right, 440);
  form.UseLayout(0);
  EXPECT_EQ(PlaceOf(form.Window()), (PixelRect{30, 40, 1010, 800}));
  EXPECT_EQ(PlaceInForm(form, DemoForm::kPush), (PixelRect{130, 64, 260, 94}));
  EXPECT_TRUE(FormWindow::Of(form.Window())->Controls().Find(DemoForm::kPush + 1)->shown);
}

TEST_F(FormLayoutTest, TakesAnotherDpiWithAllItsParts) {
  form.UseLayout(1);
  const LONG fontBefore = FormWindow::Of(form.Window())->Theme().LineHeight(TextStyle::Body);
  SendDpi(form, 144, 7, 9);
  EXPECT_EQ(PlaceOf(form.Window()), (PixelRect{7, 9, 667, 234}));
  EXPECT_EQ(PlaceInForm(form, DemoForm::kPush), (PixelRect{30, 30, 225, 75}));
  EXPECT_EQ(BoundsOfOutline(form.Window()), (PixelRect{0, 0, 660, 225}));
  LOGFONTW font{};
  const auto handle =
      reinterpret_cast<HFONT>(SendMessageW(ControlOf(form, DemoForm::kEdit), WM_GETFONT, 0, 0));
  ASSERT_NE(GetObjectW(handle, sizeof(font), &font), 0)
      << "the old font is gone, the control has the new one";
  EXPECT_EQ(font.lfHeight, -18);
  EXPECT_GT(FormWindow::Of(form.Window())->Theme().LineHeight(TextStyle::Body), fontBefore);
  const PixelRect edit = PlaceInForm(form, DemoForm::kEdit);
  EXPECT_GE(edit.Height(), FormWindow::Of(form.Window())->Theme().LineHeight(TextStyle::Body));
  EXPECT_GE(edit.top, 90);
  EXPECT_LE(edit.bottom, 132) << "inside its glass";
}

TEST_F(FormLayoutTest, CombosAreAsHighAsTheirPlace) {
  for (const int dpi : {96, 120, 144, 192}) {
    FormWindow::Of(form.Window())->UseDpi(dpi, FormWindow::Fit::No);
    EXPECT_EQ(PlaceInForm(form, DemoForm::kCombo).Height(), ScaleToDpi(412 + 28, dpi) - ScaleToDpi(412, dpi))
        << dpi;
    EXPECT_EQ(PlaceInForm(form, DemoForm::kSearch).Height(), ScaleToDpi(464 + 28, dpi) - ScaleToDpi(464, dpi))
        << dpi;
  }
}

TEST_F(FormLayoutTest, GrowsByATextWithItsOutline) {
  form.UseLayout(1);
  form.state.SetTextAndGrow("Two");
  EXPECT_EQ(PlaceOf(form.Window()).Height(), 150) << "it fits";
  form.state.SetTextAndGrow("One line\nand another\nand a third\nand a fourth");
  const int height = PlaceOf(form.Window()).Height();
  const int lines = 4 * FormWindow::Of(form.Window())->Theme().LineHeight(TextStyle::Body);
  EXPECT_EQ(height, 150 - 30 + lines) << "of the layout, not of the design";
  EXPECT_EQ(BoundsOfOutline(form.Window()), (PixelRect{0, 0, 440, height}));
  EXPECT_EQ(PlaceInForm(form, DemoForm::kPush), (PixelRect{20, 20, 150, 50})) << "anchored to the top left";
}

TEST_F(FormLayoutTest, StaysRectangularWithoutAPointFile) {
  FormContextForTests bare;
  DemoForm plain(bare.forms);
  plain.Show();
  EXPECT_EQ(BoundsOfOutline(plain.Window()), PixelRect{});
  EXPECT_TRUE(plain.IsShown());
}

TEST_F(FormLayoutTest, SurvivesAnOutlineFarBeyondTheWindow) {
  EXPECT_TRUE(ApplyWindowShape(form.Window(), "wild1", context.shape, 96, {980, 760}));
  EXPECT_EQ(BoundsOfOutline(form.Window()), (PixelRect{0, 0, 980, 760}));
}

TEST_F(FormLayoutTest, ShowsPanesTogether) {
  FormWindow& parts = *FormWindow::Of(form.Window());
  ControlInstance* key = parts.Controls().Find(DemoForm::kToggle);
  form.ShowPane(3, false);
  EXPECT_FALSE(key->shown);
  form.toggle[0].Show();
  EXPECT_FALSE(key->shown) << "its pane is hidden";
  form.ShowPane(3, true);
  EXPECT_TRUE(key->shown);
}

// The system's move loop is entered with exactly this message, whichever button was pressed.
class DraggedForm final : public Form {
 public:
  explicit DraggedForm(FormContext& context) : Form(context, Design()) {}
  std::vector<WPARAM> hits;
  std::vector<LPARAM> places;
  int moved = 0;
  int ends = 0;  // of the left button, which end the loop

 private:
  static const FormDesign& Design() {
    static constexpr ControlRow kRows[] = {
        {.id = 5001, .kind = ControlKind::Label, .text = "Title", .at = {9, 9, 80, 20}},
        {.id = 5002, .kind = ControlKind::PushButton, .text = "Key", .at = {9, 40, 80, 30}},
        {.id = 5003, .kind = ControlKind::Edit, .at = {9, 80, 80, 28}}};
    static constexpr FormDesign kDesign = {
        .name = "frmDragged", .caption = "Dragged", .size = {200, 120}, .controls = kRows};
    return kDesign;
  }
  void OnMoved() override { ++moved; }
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override {
    if (message != WM_NCLBUTTONDOWN) return false;
    hits.push_back(wParam);
    places.push_back(lParam);
    if (hits.size() == 1) MoveToPixels(60, 70);
    // The loop lets messages in: another button goes down and up before the drag has ended.
    SendMessageW(Window(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(150, 50));
    SendMessageW(Window(), WM_RBUTTONUP, 0, MAKELPARAM(150, 50));
    MSG up{};
    ends += PeekMessageW(&up, Window(), WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) ? 1 : 0;
    result = 0;
    return true;
  }
};

TEST_F(FormLayoutTest, IsDraggedByBackgroundAndLabelsButNotByControls) {
  DraggedForm dragged(context.forms);
  dragged.Show();
  SendMessageW(dragged.Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 50));
  EXPECT_EQ(dragged.hits, std::vector<WPARAM>{HTCAPTION});
  EXPECT_EQ(dragged.places, std::vector<LPARAM>{0});
  EXPECT_EQ(dragged.moved, 1);
  SendMessageW(dragged.Window(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(150, 50));
  EXPECT_EQ(dragged.hits.size(), 2U) << "any button, but no drag inside a drag";
  EXPECT_EQ(dragged.ends, 2) << "the button that goes up ends it, whichever it is";
  EXPECT_EQ(dragged.moved, 1) << "it stayed where it was";
  EXPECT_EQ(SendMessageW(ControlOf(dragged, 5001), WM_NCHITTEST, 0, 0), HTTRANSPARENT)
      << "the form gets the press";
  EXPECT_NE(SendMessageW(ControlOf(dragged, 5002), WM_NCHITTEST, 0, 0), HTTRANSPARENT);
  SendMessageW(dragged.Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(12, 82));
  EXPECT_EQ(dragged.hits.size(), 2U) << "the glass around an edit belongs to it";
  EXPECT_EQ(dragged.FocusedControl(), 5003);
}

class LargerForm final : public Form, private ListModel {
 public:
  explicit LargerForm(FormContext& context) : Form(context, Design()) {}
  std::string name = "i";
  int sorted = 0;

 private:
  int RowCount() const override { return 1; }
  std::string Cell(int, int) const override { return name; }
  std::span<const EventRow> Events() const override {
    static const EventRow kRows[] = {{5001, Click, &LargerForm::Sort, 2}};
    return kRows;
  }
  void Sort(int) { ++sorted; }
  static const FormDesign& Design() {
    static constexpr ControlRow kRows[] = {
        {.id = 5001, .kind = ControlKind::HeaderButton, .text = "Name", .at = {10, 40, 60, 20}},
        {.id = 5002, .kind = ControlKind::HeaderButton, .text = "Place", .at = {70, 40, 80, 20}},
        {.id = 5003, .kind = ControlKind::ListView, .at = {10, 60, 140, 50}}};
    static constexpr Stretch kStretches[] = {
        {{10, 40, 60, 20}, 0, 75}, {{70, 40, 80, 20}, 75, 100}, {{10, 60, 140, 50}, 0, 100, 0, 100}};
    static constexpr Layout kLayouts[] = {{.size = {100, 80}, .outline = "scc44"}};
    static constexpr FormDesign kDesign = {.name = "frmLarger",
                                           .caption = "Larger",
                                           .size = {160, 120},
                                           .outline = "demo1",
                                           .controls = kRows,
                                           .layouts = kLayouts,
                                           .keptSize = &setting::kMainSize,
                                           .keptColumns = &setting::kListColumns,
                                           .stretches = kStretches};
    return kDesign;
  }
  void OnLoad() override {
    ListHandle list{*this, 5003};
    list->SetColumns({{"Name", 59}, {"Value", 10, true, true}, {"Place", 80}});
    list->SetModel(this, false);
  }
};

TEST_F(FormLayoutTest, IsPulledLargerWithItsColumnsAndKeepsTheSize) {
  context.forms.settings = &context.settings;
  context.registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  LargerForm larger(context.forms);
  larger.Show();
  larger.MoveToPixels(30, 40);
  const auto hit = [&](int x, int y) {
    return SendMessageW(larger.Window(), WM_NCHITTEST, 0, MAKELPARAM(30 + x, 40 + y));
  };
  EXPECT_EQ(hit(158, 60), HTRIGHT);
  EXPECT_EQ(hit(158, 118), HTBOTTOMRIGHT);
  EXPECT_EQ(hit(80, 20), HTCLIENT);
  SetWindowPos(larger.Window(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(PlaceOf(larger.Window()).Width(), 160) << "the design's size is the least";
  SetWindowPos(larger.Window(), nullptr, 0, 0, 260, 140, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(PlaceInForm(larger, 5001), (PixelRect{10, 40, 145, 60}));
  EXPECT_EQ(ListView_GetColumnWidth(ControlOf(larger, 5003), 0), 145 - 21) << "inside the list's frame";
  EXPECT_EQ(context.settings.Get(setting::kMainSize), "260,140");
  larger.Close();
  larger.Show();
  EXPECT_EQ(PlaceOf(larger.Window()).Width(), 260);
  larger.UseLayout(1);
  EXPECT_EQ(PlaceOf(larger.Window()).Width(), 100);
  EXPECT_EQ(GetWindowLongPtrW(larger.Window(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0)
      << "a layout of its own size stays as it is";
  larger.UseLayout(0);
  EXPECT_EQ(PlaceOf(larger.Window()).Width(), 260);
}

TEST_F(FormLayoutTest, DragsTheEdgeBetweenTwoHeadersAndKeepsTheShares) {
  context.forms.settings = &context.settings;
  context.registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  context.settings.Set(setting::kListColumns, "500,400");
  LargerForm larger(context.forms);
  larger.Show();
  const auto edge = [&] {
    EXPECT_EQ(PlaceInForm(larger, 5001).right, PlaceInForm(larger, 5002).left);
    const HWND list = ControlOf(larger, 5003);
    EXPECT_EQ(ListView_GetColumnWidth(list, 0), PlaceInForm(larger, 5001).Width() - 11);
    EXPECT_EQ(ListView_GetColumnWidth(list, 1), 10) << "a figure stands below the end of the first header";
    return PlaceInForm(larger, 5001).right;
  };
  const auto press = [&](int id, UINT message, int x) {
    SendMessageW(ControlOf(larger, id), message, MK_LBUTTON, MAKELPARAM(x, 10));
  };
  EXPECT_EQ(edge(), 70) << "shares that cannot be read";
  const auto cursorAt = [&](int x) {
    POINT at = {x, 50};
    ClientToScreen(larger.Window(), &at);
    SetCursorPos(at.x, at.y);
    SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
    const HWND header = ControlOf(larger, 5002);
    SendMessageW(header, WM_SETCURSOR, reinterpret_cast<WPARAM>(header), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  const HCURSOR sizes = LoadCursorW(nullptr, MAKEINTRESOURCEW(32644));
  EXPECT_EQ(cursorAt(73), sizes);
  EXPECT_NE(cursorAt(74), sizes);
  press(5002, WM_LBUTTONDOWN, 3);  // at 73
  ASSERT_EQ(GetCapture(), larger.Window());
  SendMessageW(larger.Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(93, 50));
  EXPECT_EQ(edge(), 90) << "while the button is down";
  SendMessageW(larger.Window(), WM_LBUTTONUP, 0, MAKELPARAM(93, 50));
  SendMessageW(larger.Window(), WM_MOUSEMOVE, 0, MAKELPARAM(60, 50));
  EXPECT_EQ(edge(), 90);
  EXPECT_EQ(context.settings.Get(setting::kListColumns), "571,429");
  SetWindowPos(larger.Window(), nullptr, 0, 0, 260, 140, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(edge(), 10 + 137);
  larger.Close();
  larger.Show();
  EXPECT_EQ(edge(), 10 + 137);
  press(5001, WM_LBUTTONDBLCLK, 135);
  EXPECT_EQ(edge(), 10 + 40) << "as wide as its text, but for the least";
  larger.name = std::string(80, 'W');
  press(5001, WM_LBUTTONDBLCLK, 38);
  EXPECT_EQ(edge(), 250 - 40) << "the column beside it keeps the least";
  EXPECT_EQ(larger.sorted, 0);
  for (const int x : {100, 2}) {  // no edge: in the middle, and left of the first header
    press(5001, WM_LBUTTONDOWN, x);
    EXPECT_NE(GetCapture(), larger.Window());
    SendMessageW(ControlOf(larger, 5001), WM_LBUTTONUP, 0, MAKELPARAM(x, 10));
  }
  EXPECT_EQ(larger.sorted, 2);
}

TEST_F(FormLayoutTest, MaximisesToTheWorkAreaAndAgainWhenItIsNextShown) {
  context.forms.settings = &context.settings;
  context.registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  context.settings.Set(setting::kMainSize, "260,140");
  LargerForm larger(context.forms);
  larger.Show();
  const PixelRect area = WorkAreaOf(larger.Window());
  SendMessageW(larger.Window(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
  EXPECT_EQ(PlaceOf(larger.Window()), area);
  EXPECT_EQ(FormWindow::Of(larger.Window())->Controls().Find(5003)->place.right, area.Width() - 10);
  EXPECT_EQ(context.settings.Get(setting::kMainSize), "260,140,Max");
  larger.Close();
  larger.Show();
  EXPECT_EQ(PlaceOf(larger.Window()), area);
  SendMessageW(larger.Window(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(80, 10));
  Pump();
  EXPECT_EQ(PlaceOf(larger.Window()).Width(), 260) << "a double click in the title";
  EXPECT_EQ(context.settings.Get(setting::kMainSize), "260,140");
}

// What the user sees of a button, by the pixels in the middle of its left part.
TEST_F(FormLayoutTest, PaintsButtonsInTheColoursOfTheFaceplate) {
  form.Show();
  Pump();
  const auto pixel = [&](int id, int x, int y) { return PixelOf(ControlOf(form, id), x, y); };
  const auto check = [&](BuiltInFaceplate faceplate) {
    const FaceplateColors& c = context.faceplate.Colors();
    const int name = static_cast<int>(faceplate);
    SendMessageW(ControlOf(form, DemoForm::kPush + 2), BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(pixel(DemoForm::kPush + 2, 6, 15), c.buttonDown) << name;
    EXPECT_EQ(pixel(DemoForm::kPush + 4, 6, 15), c.buttonOff) << name;
    EXPECT_EQ(pixel(DemoForm::kPush, 129, 15), c.outline) << name;
    EXPECT_EQ(pixel(DemoForm::kRanking + 5, 60, 3), c.buttonOn) << name;
    EXPECT_EQ(pixel(DemoForm::kRanking + 5, 1, 20), c.accent) << name;
    SendMessageW(ControlOf(form, DemoForm::kPush + 1), WM_MOUSEMOVE, 0, MAKELPARAM(6, 15));
    EXPECT_EQ(pixel(DemoForm::kPush + 1, 6, 15), c.buttonHover) << name;
    SendMessageW(ControlOf(form, DemoForm::kPush + 1), WM_MOUSELEAVE, 0, 0);
    EXPECT_NE(pixel(DemoForm::kPush + 1, 6, 15), c.buttonHover) << name;
    EXPECT_EQ(pixel(DemoForm::kCombo, 4, 4), c.glass) << name;
  };
  check(BuiltInFaceplate::Graphite);
  context.faceplate.Choose(BuiltInFaceplate::Porcelain);
  RefreshAllForms();
  Pump();
  check(BuiltInFaceplate::Porcelain);
}

}  // namespace
}  // namespace sonaro
