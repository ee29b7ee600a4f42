// Opening, modal running, and closing of forms, also from inside their own handlers.
#include <gtest/gtest.h>

#include <memory>

#include "windows/DemoForm.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"

namespace sonaro {
namespace {

using Log = std::vector<std::string>;

// Runs a function once from the message loop, as the user's next action.
class Later {
 public:
  explicit Later(std::function<void()> action) : action_(std::move(action)) {
    window_ = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowSubclass(window_, Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    PostMessageW(window_, WM_APP, 0, 0);
  }
  ~Later() { DestroyWindow(window_); }
  Later(const Later&) = delete;
  Later& operator=(const Later&) = delete;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                    DWORD_PTR self) {
    if (message == WM_APP) reinterpret_cast<Later*>(self)->action_();
    return DefSubclassProc(window, message, wParam, lParam);
  }
  std::function<void()> action_;
  HWND window_;
};

TEST(FormRunning, ShowModalDisablesTheOthersAndAnswers) {
  FormContextForTests context;
  DemoForm owner(context.forms);
  DemoForm other(context.forms);
  DemoForm dialog(context.forms);
  owner.Show();
  owner.MoveToPixels(40, 60);
  other.Show();
  dialog.closeOnClick = true;
  dialog.resultOnClick = 3;
  bool ownerTookInput = true;
  bool otherTookInput = true;
  RECT place{};
  const Later click([&] {
    ownerTookInput = IsWindowEnabled(owner.Window());
    otherTookInput = IsWindowEnabled(other.Window());
    GetWindowRect(dialog.Window(), &place);
    SendMessageW(ControlOf(dialog, DemoForm::kPush), BM_CLICK, 0, 0);
  });
  EXPECT_EQ(dialog.ShowModal(owner.Window()), 3);
  RECT owned{};
  GetWindowRect(owner.Window(), &owned);
  EXPECT_TRUE(EqualRect(&place, &owned)) << "it is as large as its owner, on whose middle it stands";
  EXPECT_FALSE(ownerTookInput);
  EXPECT_FALSE(otherTookInput);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(IsWindowEnabled(owner.Window()));
  EXPECT_TRUE(IsWindowEnabled(other.Window()));
  EXPECT_EQ(GetActiveWindow(), owner.Window());
  EXPECT_EQ(dialog.log, (Log{"Click 5001", "Unload"}));
}

TEST(FormRunning, ComesBackWithTheFocusWhereItWas) {
  FormContextForTests context;
  DemoForm form(context.forms);
  DemoForm other(context.forms);
  const std::function<void()> awayAndBack[] = {[&] {
                                                 ShowWindow(form.Window(), SW_MINIMIZE);
                                                 Pump();
                                                 ShowWindow(form.Window(), SW_RESTORE);
                                               },
                                               [&] {
                                                 SendMessageW(form.Window(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
                                                 Pump();
                                                 form.Show();
                                               },
                                               [&] {
                                                 form.Hide();
                                                 Pump();
                                                 form.Show();
                                               },
                                               [&] {
                                                 other.Show();
                                                 Pump();
                                                 SetActiveWindow(form.Window());
                                               },
                                               [&] {
                                                 const Later close([&] { other.Close(5); });
                                                 other.ShowModal(form.Window());
                                               }};
  form.Show();
  for (const auto& ways : awayAndBack) {
    SCOPED_TRACE(&ways - awayAndBack);
    FocusOn(form, DemoForm::kEdit + 2);
    SendMessageW(GetFocus(), EM_SETSEL, 1, 3);
    ways();
    Pump();
    EXPECT_EQ(form.FocusedControl(), DemoForm::kEdit + 2);
    EXPECT_EQ(SendMessageW(ControlOf(form, DemoForm::kEdit + 2), EM_GETSEL, 0, 0), MAKELRESULT(1, 3));
    other.Close();
  }
  form.Hide();
  form.edit[2].Show(false);
  form.Show();
  EXPECT_EQ(form.FocusedControl(), DemoForm::kPush + 3) << "where it begins";
}

TEST(FormRunning, ModalFormsNest) {
  FormContextForTests context;
  DemoForm first(context.forms);
  DemoForm second(context.forms);
  int inner = 0;
  const Later open([&] {
    const Later close([&] { second.Close(5); });
    inner = second.ShowModal(first.Window());
    EXPECT_TRUE(IsWindowEnabled(first.Window()));
    first.Close(4);
  });
  EXPECT_EQ(first.ShowModal(nullptr), 4);
  EXPECT_EQ(inner, 5);
}

TEST(FormRunning, EscapeAndTheSystemMenuCloseADialog) {
  FormContextForTests context;
  DemoForm dialog(context.forms);
  const Later escape([&] { PressKey(VK_ESCAPE); });
  EXPECT_EQ(dialog.ShowModal(nullptr), 7);
  const Later close([&] { SendMessageW(dialog.Window(), WM_SYSCOMMAND, SC_CLOSE, 0); });
  EXPECT_EQ(dialog.ShowModal(nullptr), 0) << "this form has no close button: it just closes";
  EXPECT_EQ(dialog.log, (Log{"Escape", "Unload", "Unload"}));
}

TEST(FormRunning, QuittingEndsAModalFormAndTheLoopAroundIt) {
  FormContextForTests context;
  DemoForm dialog(context.forms);
  const Later quit([] { PostQuitMessage(9); });
  EXPECT_EQ(dialog.ShowModal(nullptr), 0);
  EXPECT_FALSE(dialog.IsOpen());
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 9U);
}

// Whatever the press came by, the control that sent it goes on with its own work afterwards.
TEST(FormRunning, AFormMayBeClosedInItsOwnHandler) {
  FormContextForTests context;
  const std::function<void(DemoForm&)> presses[] = {
      [](DemoForm& form) { SendMessageW(ControlOf(form, DemoForm::kPush), BM_CLICK, 0, 0); },
      [](DemoForm& form) {
        const HWND button = ControlOf(form, DemoForm::kPush);
        MouseOn(button, WM_LBUTTONDOWN);
        MouseOn(button, WM_LBUTTONUP);
      },
      [](DemoForm& form) {
        FocusOn(form, DemoForm::kPush);
        PressKey(VK_RETURN);
      },
      [](DemoForm& form) { SendMessageW(form.Window(), WM_COMMAND, DemoForm::kPush, 0); }};
  DemoForm form(context.forms);
  form.closeOnClick = true;
  for (const auto& press : presses) {
    form.Show();
    press(form);
    EXPECT_FALSE(form.IsOpen());
    Pump();
    EXPECT_EQ(FindWindowA("frmDemo", nullptr), nullptr);
  }
}

TEST(FormRunning, ClosingFromAHandlerHidesAtOnceAndDestroysWhenItReturns) {
  FormContextForTests context;
  DemoForm form(context.forms);
  form.closeOnClick = true;
  form.Show();
  const HWND window = form.Window();
  SendMessageW(ControlOf(form, DemoForm::kPush), BM_CLICK, 0, 0);
  EXPECT_FALSE(form.IsOpen());
  EXPECT_FALSE(IsWindowVisible(window));
  form.Show();
  EXPECT_TRUE(form.IsShown()) << "opened again before the old window was gone";
  EXPECT_FALSE(IsWindow(window));
  Pump();
  EXPECT_TRUE(form.IsShown());
}

class CountingPane final : public EventTarget {
 public:
  std::span<const EventRow> Events() const override {
    static const EventRow kRows[] = {{5001, Click, &CountingPane::Count},
                                     {5002, Click, &CountingPane::Count}};
    return kRows;
  }
  int clicks = 0;

 private:
  void Count() { ++clicks; }
};

// A handler that throws does not take the program with it.
class ThrowingForm final : public Form {
 public:
  explicit ThrowingForm(FormContext& context) : Form(context, Design()) { AddPart(pane); }
  CountingPane pane;

 private:
  static const FormDesign& Design() {
    static constexpr ControlRow kRows[] = {
        {.id = 5001, .kind = ControlKind::PushButton, .text = "Throw", .at = {9, 9, 40, 30}},
        {.id = 5002, .kind = ControlKind::PushButton, .text = "Count", .at = {49, 9, 40, 30}}};
    static constexpr FormDesign kDesign = {
        .name = "frmThrow", .caption = "Throw", .size = {100, 60}, .controls = kRows};
    return kDesign;
  }
  std::span<const EventRow> Events() const override {
    static const EventRow kRows[] = {{5001, Click, &ThrowingForm::Throw}};
    return kRows;
  }
  void Throw() { throw std::runtime_error("a handler's failure"); }
};

TEST(FormRunning, NoExceptionLeavesTheWindow) {
  FormContextForTests context;
  ThrowingForm form(context.forms);
  form.Show();
  SendMessageW(ControlOf(form, 5001), BM_CLICK, 0, 0);
  FocusOn(form, 5001);
  PressKey(VK_RETURN);
  EXPECT_TRUE(form.IsShown());
}

TEST(FormRunning, APaneHandlesWhatItsFormDoesNot) {
  FormContextForTests context;
  ThrowingForm form(context.forms);
  form.Show();
  SendMessageW(ControlOf(form, 5001), BM_CLICK, 0, 0);
  EXPECT_EQ(form.pane.clicks, 0);
  SendMessageW(ControlOf(form, 5002), BM_CLICK, 0, 0);
  EXPECT_EQ(form.pane.clicks, 1);
}

}  // namespace
}  // namespace sonaro
