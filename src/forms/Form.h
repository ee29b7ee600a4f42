// A window of the program, built from tables. Form owns the window, its controls and their painting, and
// calls the handlers of the event tables; what the window decides belongs to its logic partner, not here. One
// procedure serves all forms and lets no exception out.
//
// A complete form:
//
//   // frmGreet.h
//   class frmGreet final : public Form {
//    public:
//     frmGreet(FormContext& context, Greeting& greeting) : Form(context, Design()), greeting_(greeting) {}
//    private:
//     static const FormDesign& Design();
//     std::span<const EventRow> Events() const override;
//     std::span<const TimerRow> Timers() const override;
//     void OnLoad() override { txtName_.SetText(greeting_.LastName()); }
//     void txtName_Change() { butOKIt_.Enable(!txtName_.Text().empty()); }
//     void butOKIt_Click() { greeting_.Say(txtName_.Text()); Close(1); }
//     void butCancelIt_Click() { Close(); }
//     void butDays_Click(int day) { butDays_[day].SetActive(!butDays_[day].IsActive()); }
//     void tmrIdle_Timer() { Close(); }
//     Greeting& greeting_;
//     Edit txtName_{*this, txtName};  // see forms/controls/Controls.h
//     ControlArray<ToggleButton> butDays_{*this, butDays, 2};
//     Button butOKIt_{*this, butOKIt};
//   };
//
//   // frmGreet_tables.cpp: the order of the rows is the tab order
//   const FormDesign& frmGreet::Design() {
//     static constexpr ControlRow kControls[] = {
//         {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_GREET_TITLE, .at = {14, 4, 182, 26}},
//         {.kind = ControlKind::Label, .text = IDS_GREET_NAME, .at = {14, 48, 90, 28}, .style =
//         TextStyle::BodyStrong},
//         {.id = txtName, .kind = ControlKind::Edit, .at = {110, 48, 296, 28}},
//         {.id = butDays, .kind = ControlKind::ToggleButton, .text = IDS_MON, .at = {110, 90, 56, 28}},
//         {.id = butDays + 1, .kind = ControlKind::ToggleButton, .text = IDS_TUE, .at = {171, 90, 56, 28}},
//         {.id = butOKIt, .kind = ControlKind::PrimaryButton, .text = IDS_OK, .at = {214, 201, 92, 30}},
//         {.id = butCancelIt, .kind = ControlKind::PushButton, .text = IDS_CANCEL, .at = {314, 201, 92, 30}},
//     };
//     static constexpr FormDesign kDesign = {.name = "frmGreet", .caption = IDS_GREET_TITLE,
//         .size = {420, 248}, .outline = "fdf01", .controls = kControls};
//     return kDesign;
//   }
//   std::span<const EventRow> frmGreet::Events() const {
//     static const EventRow kRows[] = {
//         {txtName, Change, &frmGreet::txtName_Change},
//         {butOKIt, Click, &frmGreet::butOKIt_Click},
//         {butCancelIt, Click, &frmGreet::butCancelIt_Click},
//         {butDays, Click, &frmGreet::butDays_Click, 2},  // butDays and butDays + 1
//     };
//     return kRows;
//   }
//   std::span<const TimerRow> frmGreet::Timers() const {
//     static const TimerRow kRows[] = {{tmrIdle, &frmGreet::tmrIdle_Timer}};
//     return kRows;
//   }
//
//   frmGreet greet(context, greeting);
//   if (greet.ShowModal(main.Window()) == 1) ...
//
// A form of many controls gives each of its panes the members of its controls and an event table of its own
// (EventTable.h, AddPart).
//
// What every form does by itself: outline, dragging, painting at any dpi, high contrast, Tab and arrow keys,
// access keys, Enter on the primary button, Esc and Alt+F4 (see OnCloseRequest), F1 on butHelp, tool tips,
// click sound, the hidden label lblBringUp. A handler may close its own form, but not destroy
// it: the form's own calls are still running.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "forms/EventTable.h"
#include "forms/FormDesign.h"
#include "forms/Menu.h"

namespace sonaro {

class CReg;
class Faceplate;
class FormWindow;
class Painter;
class Shape;
class Strings;

// Paints a control of kind Picture; `box` is its client area.
using PicturePainter = void (*)(HDC dc, const RECT& box, const Painter& painter);

// Who is told what happens in any form.
class FormListener {
 public:
  virtual ~FormListener() = default;
  virtual void ButtonPressed() = 0;
  // Another window, perhaps of another program, has set the caption of the form's lblBringUp.
  virtual void BringUpAsked(const std::string& caption) = 0;
};

// What all forms share; owned by Application.
struct FormContext {
  const Strings& strings;
  Faceplate& faceplate;  // a form that hears of a high-contrast theme sets it
  const Shape& shape;
  FormListener* listener = nullptr;  // set by Application, whose parts have the context before it is complete
  CReg* settings = nullptr;          // where sizes are kept; nullptr: nowhere
};

class Form : public EventTarget {
 public:
  Form(FormContext& context, const FormDesign& design);
  ~Form() override;  // destroys the window
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Builds the window, hidden, and runs OnLoad; nothing when it is open. false: the system refused.
  bool Create(HWND owner = nullptr);
  void Show(HWND owner = nullptr);  // Create, then show and bring to the front
  void ShowInactive();              // without taking the focus
  void Hide();
  // Shows the form, disables `owner`, and runs until Close. Returns Close's result, 0 when it was destroyed.
  int ShowModal(HWND owner);
  // Ends ShowModal with `result`; destroys the window. OnUnload runs first. May be called from a handler.
  void Close(int result = 0);
  bool IsOpen() const;
  bool IsShown() const;
  HWND Window() const;  // nullptr while not open

  // Size, place and layout.
  void UseLayout(int layout);  // 0 = the design; keeps the top-left corner, changes outline and places
  int CurrentLayout() const;
  void MoveToPixels(int left, int top);  // kept inside the visible screens
  void CentreOn(HWND other);             // nullptr: the work area

  // Controls. A form and its panes work them through the classes of forms/controls/Controls.h.
  void ShowPane(int pane, bool shown = true);
  bool HasPane(int pane) const;  // false: its controls are still to be made
  int FocusedControl() const;    // 0: none of this form

  // Timers of the timer table; starting again restarts.
  void StartTimer(int id, unsigned milliseconds);
  void StopTimer(int id);

  // Menus, with the top-left corner at `at` (screen pixels). Returns when the menu is closed. The chosen
  // entry comes as a Click event of its command number, by a WM_COMMAND, as when it is sent from outside.
  void PopUpMenu(std::span<const MenuEntry> entries, POINT at);

  std::string LoadText(int stringId) const;  // from resources/texts

  // A pane that handles the events of its own controls: its event table counts as the form's. To be called
  // from the constructor of the form that has the pane as a member.
  void AddPart(EventTarget& pane);

  // For checks of the form as a whole.
  const FormDesign& Description() const;

 protected:
  std::span<const EventRow> Events() const override { return {}; }
  virtual std::span<const TimerRow> Timers() const { return {}; }
  virtual void OnLoad() {}         // controls exist, nothing is shown yet
  virtual void OnPaneMade(int) {}  // the controls of a late pane exist (FormDesign::latePanes)
  virtual void OnUnload() {}       // just before the window is destroyed
  virtual void OnMoved() {}        // the user has dragged the form to a new place
  // Esc: clicks butCancelIt or butCloseIt, the first that is shown. Alt+F4 and the system menu: clicks
  // butCloseIt or butCancelIt. Without either both close the form. What the user has not accepted by then is
  // forgotten: Esc and closing store nothing.
  virtual void OnEscape();
  virtual void OnCloseRequest();
  // Any other message, before Form sees it; true: `result` is the answer.
  virtual bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

 private:
  friend class FormWindow;
  friend class ControlHandle;

  void PressFirst(std::initializer_list<int> buttons);  // the first that is shown; closes without one

  const std::unique_ptr<FormWindow> window_;
};

}  // namespace sonaro
