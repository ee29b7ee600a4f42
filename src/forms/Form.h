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
// A form of many controls gives each of its panes an event table of its own (EventTable.h, AddPart).
//
// What every form does by itself: outline, dragging, painting at any dpi, high contrast, Tab and arrow keys,
// access keys, Enter on the primary button, Esc and Alt+F4 (see OnCloseRequest), F1 on butHelp, tool tips,
// click sound, the hidden label lblBringUp. A handler may close or destroy its own form.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "forms/EventTable.h"
#include "forms/FormDesign.h"
#include "forms/Menu.h"

namespace sonaro {

class Faceplate;
class Form;
class FormImpl;
class ListView;
class Painter;
class ProgressScale;
class RatingPicture;
class Shape;
class Strings;
class TreeView;

// What all forms share; owned by Application. The functions may be empty: a form alone, as in the tests, has
// nobody to sound a click or to bring up a program.
struct FormContext {
  const Strings& strings;
  Faceplate& faceplate;  // a form that hears of a high-contrast theme sets it
  const Shape& shape;
  std::function<void()> clickSound = {};                         // after every press of a button
  std::function<void(const std::string& caption)> bringUp = {};  // lblBringUp's caption was set
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
  // Sets the text of a wrapped label that is anchored to top and bottom, and makes the window as much higher
  // than its layout as the text needs; anchors move the controls.
  void SetTextAndGrow(int id, std::string_view text);
  void MoveToPixels(int left, int top);  // kept inside the visible screens
  void CentreOn(HWND other);             // nullptr: the work area

  // Controls by number, for the handles of forms/controls/Controls.h, by which a form reaches its controls. A
  // number that the form does not have is ignored, and reads as "", 0 or false.
  HWND Control(int id) const;
  std::string Text(int id) const;
  void SetText(int id, std::string_view text);
  // PlayButton: second line, then perhaps a tab and the link's number ("64 kbit/s\t2"). GroupButton: its
  // figure.
  void SetDetail(int id, std::string_view text);
  // GroupButton: an empty socket can be pressed like a button; its text is what pressing it does, read out,
  // not drawn.
  void SetEmptySocket(int id, bool empty);
  bool IsEmptySocket(int id) const;
  void SetIcon(int id, Icon icon);
  void SetTextColor(int id, TextColor color);  // a label that reports trouble or success
  void SetTip(int id, std::string_view text);
  void Enable(int id, bool enabled = true);
  bool IsEnabled(int id) const;
  void ShowControl(int id, bool shown = true);
  void ShowPane(int pane, bool shown = true);
  void Focus(int id);
  int FocusedControl() const;  // 0: none of this form

  // Check boxes, radio buttons (checking one clears its group) and toggles.
  void Check(int id, bool checked = true);
  bool IsChecked(int id) const;
  void SetToggle(int id, bool active);
  bool IsToggled(int id) const;
  void SetToggleOnly(int first, int count, int index);  // one active in a control array; -1: none

  // Header buttons: the one that the list is sorted by. 0: none.
  void SetSortMark(int id, SortMark mark);

  // Edits.
  void LimitText(int id, int bytes);
  void SelectAllText(int id);

  // Combos. Rows count from 0; -1 = none.
  void AddItem(int id, std::string_view text, int data = 0);
  void ClearItems(int id);
  int ItemCount(int id) const;
  std::string ItemText(int id, int row) const;
  int ItemData(int id, int row) const;
  int SelectedItem(int id) const;
  void SelectItem(int id, int row);
  bool SelectItemData(int id, int data);

  // Views with a class of their own. The number must be of that kind.
  ListView& List(int id);
  TreeView& Tree(int id);
  RatingPicture& Rating(int id);
  ProgressScale& Progress(int id);
  using PicturePainter = std::function<void(HDC dc, const RECT& box, const Painter& painter)>;
  void SetPicture(int id, PicturePainter paint);

  // Month calendar.
  SYSTEMTIME CalendarDate(int id) const;
  void SetCalendarDate(int id, const SYSTEMTIME& date);

  // Timers of the timer table; starting again restarts.
  void StartTimer(int id, unsigned milliseconds);
  void StopTimer(int id);

  // Menus: the chosen entry comes as a Click event of its command number.
  void PopUpMenu(std::span<const MenuEntry> entries, POINT at);
  void PopUpMenuUnder(std::span<const MenuEntry> entries, int id);  // below the control

  std::string LoadText(int stringId) const;  // from resources/texts

  // A pane that handles the events of its own controls: its event table counts as the form's. To be called
  // from the constructor of the form that has the pane as a member.
  void AddPart(EventTarget& pane);

  // For checks of the form as a whole.
  const FormDesign& Description() const;

 protected:
  std::span<const EventRow> Events() const override { return {}; }
  virtual std::span<const TimerRow> Timers() const { return {}; }
  virtual void OnLoad() {}    // controls exist, nothing is shown yet
  virtual void OnUnload() {}  // just before the window is destroyed
  virtual void OnMoved() {}   // the user has dragged the form to a new place
  // Esc: clicks butCancelIt or butCloseIt, the first that is shown. Alt+F4 and the system menu: clicks
  // butCloseIt or butCancelIt. Without either both close the form. What the user has not accepted by then is
  // forgotten: Esc and closing store nothing.
  virtual void OnEscape();
  virtual void OnCloseRequest();
  // Any other message, before Form sees it; true: `result` is the answer.
  virtual bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

 private:
  friend class FormImpl;

  std::shared_ptr<FormImpl> parts_;  // outlives a form that a handler destroys
};

}  // namespace sonaro
