// The inside of a form, shared by the files that build, place, paint and run it. Held by shared_ptr: the
// window procedure keeps it alive while a handler destroys the Form itself.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <bitset>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/Arrange.h"
#include "forms/Form.h"
#include "forms/controls/ScrollBar.h"
#include "forms/paint/DrawnButton.h"
#include "forms/paint/NeedleSlide.h"
#include "forms/paint/Painter.h"

namespace sonaro {

// A row of the control table at run time.
struct ControlInstance {
  const ControlRow* row = nullptr;
  FormImpl* parts = nullptr;
  HWND window = nullptr;       // nullptr: a decoration, or a view
  WNDPROC original = nullptr;  // the procedure of its class
  bool wanted = true;          // not hidden by kHidden or ControlHandle::Show
  bool shown = false;          // wanted, in a shown pane, and with a place in the layout
  bool hover = false;
  bool emptySocket = false;  // GroupButton
  bool groupStart = true;
  PixelRect place;  // of the row's rectangle; the window may be smaller (an edit in its glass)
  std::string detail;
  Icon icon = Icon::None;
  TextColor color = TextColor::Default;
  SortMark sort = SortMark::None;
  PicturePainter picture = nullptr;
  std::unique_ptr<FormControl> view;
  std::unique_ptr<ScrollBar> bar;  // of a text of several lines

  int Id() const { return row->id; }
  ControlKind KindOf() const { return row->kind; }
  bool Has(unsigned flag) const { return (row->flags & flag) != 0; }
  HWND Window() const { return view ? view->Window() : window; }
};

bool IsText(ControlKind kind);    // Label, TitleBar, StateLabel
bool IsButton(ControlKind kind);  // pressed by Enter: every button except check boxes and radio buttons
bool IsToggle(ControlKind kind);  // buttons that keep a state
bool IsCheck(ControlKind kind);   // CheckBox, RadioButton
bool IsEdit(ControlKind kind);    // in glass that the form paints
bool HasLines(ControlKind kind);  // MultiEdit, ReadOnlyText
bool IsCombo(ControlKind kind);
bool IsFramedView(ControlKind kind);  // ListView, TreeView: in glass that the form paints
bool IsDecoration(ControlKind kind);  // painted by the form, no window
TextStyle TextStyleOf(const ControlRow& row);

// Sets a flag for as long as it lives.
class Quietly {
 public:
  explicit Quietly(bool& quiet) : quiet_(quiet), before_(quiet) { quiet_ = true; }
  ~Quietly() { quiet_ = before_; }
  Quietly(const Quietly&) = delete;
  Quietly& operator=(const Quietly&) = delete;

 private:
  bool& quiet_;
  bool before_;
};

// The form's ground: plate, decorations, outline. Painted once for a look and a layout; controls copy from it
// what lies behind them.
class Backdrop {
 public:
  Backdrop() = default;
  ~Backdrop() { Discard(); }
  Backdrop(const Backdrop&) = delete;
  Backdrop& operator=(const Backdrop&) = delete;
  void Discard();
  // The bitmap's device context, painted first when it is not.
  HDC Get(const FormImpl& parts);

 private:
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

class FormImpl final : public FormServices, public std::enable_shared_from_this<FormImpl> {
 public:
  FormImpl(Form& form, FormContext& formContext, const FormDesign& formDesign);
  ~FormImpl() override;

  const Painter& Theme() const override { return *painter; }
  void PaintBackdrop(HDC dc, HWND control) override;
  void Raise(const FormEvent& event) override;

  ControlInstance* Find(int id);
  ControlInstance* Find(HWND window);  // the control or a window inside it
  ControlInstance* Focused();
  std::span<ControlInstance> GroupOf(
      const ControlInstance& item);  // with its neighbours in the arrow keys' group
  ControlInstance* ShownPrimary();
  void FocusOn(const ControlInstance& item);

  // Runs the handler of the event table; false when none is bound. The form may be gone afterwards.
  bool Handle(const FormEvent& event);
  bool IsBound(int id, FormEvent::Kind kind) const;
  void RunTimer(int id);
  // What pressing the control or choosing the menu entry does. Hidden and disabled controls do nothing.
  void Press(int id);
  void Escape();
  void CloseRequest();

  // FormBuild.cpp
  bool BuildWindow(HWND owner);
  void BuildControls();
  std::unique_ptr<FormControl> MakeView(const ControlRow& row);  // FormViews.cpp; nullptr for the other kinds
  void SetTip(ControlInstance& item, const std::string& text);
  void PlaceTip(const ControlInstance& item) const;  // of a label that has moved

  // FormLayout.cpp
  void ChooseDpi(HMONITOR monitor);  // makes the painter
  // Makes everything anew for `dpi`, with Fit for the largest that lets the form fit its work area. The
  // window keeps its corner.
  enum class Fit : bool { No, Yes };
  void UseDpi(int dpi, Fit fit = Fit::Yes);
  void RenewTheme();    // colours changed: painter, brushes, fonts, outline, everything painted again
  void ResizeWindow();  // to the layout's size at the dpi, outline included
  void PlaceControls();
  void ShowOrHide(ControlInstance& item);
  void UpdateTabStops();  // one in each group; before the focus moves by the keyboard
  // Makes the window as much higher than its layout as the text in this label needs.
  void GrowFor(const ControlInstance& label, std::string_view text);
  DesignSize Size() const;
  RECT WindowBox(
      const ControlInstance& item) const;  // of the control's window, which may be smaller than its place

  // FormWindow.cpp
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  // The user works with the keyboard: the focus line and the underlines of access keys show from now on. The
  // form keeps this itself because not every system does.
  void ShowCues(bool focus, bool accessKeys);
  void Destroy();
  void DestroySoon();  // when the handler that runs now has returned
  std::string TextOf(const ControlText& words) const;

  // FormPaint.cpp
  void PaintWindow(HDC dc, const RECT& dirty);
  void PaintItem(const ControlInstance& item, HDC dc, const RECT& box);
  ButtonPicture PictureOf(const ControlInstance& item) const;
  int DialOffset(const ControlInstance& tab) const;
  void RepaintItem(const ControlInstance& item);

  // FormNeedle.cpp
  void MoveNeedle(const ControlInstance& tab);  // the tab is the active one now
  void StopNeedle();                            // where it belongs, at once
  bool StepNeedle(WPARAM timer);                // false: the timer is another one
  // Where the needle stands, in pixels from the tab's left edge, perhaps beside the tab; nothing without one.
  std::optional<int> NeedleOn(const ControlInstance& tab, bool active) const;

  Form* form;                         // nullptr once the form is gone
  std::vector<EventTarget*> targets;  // the form, then its panes; empty once the form is gone
  FormContext& context;
  const FormDesign& design;
  HWND window = nullptr;
  HWND tips = nullptr;
  std::vector<ControlInstance> items;
  std::vector<ControlInstance> formerItems;  // of the window before: its last call may still be running
  std::bitset<256> hiddenPanes;
  std::unique_ptr<Painter> painter;
  Backdrop backdrop;
  HBRUSH glassBrush = nullptr;
  HBRUSH plateBrush = nullptr;
  HBRUSH offBrush = nullptr;
  DesignSize grown;  // by GrowFor; {} = the layout's size
  int layout = 0;
  int needleTab = 0;            // the tab that was made active last
  std::optional<int> needleAt;  // while it moves, in pixels of the form; set by its timer
  NeedleSlide needleSlide;      // begins with the timer's first tick
  bool quiet = false;           // the program sets a text: no Change event
  bool modal = false;           // ShowModal runs
  bool closing = false;         // Close was called
  bool moving = false;          // the system's move loop runs
  bool placed = false;          // the program has said where the window lies
  bool focusGiven = false;      // the first focus is set at the first showing
  bool showFocus = false;
  bool showAccessKeys = false;
  int result = 0;
  int depth = 0;  // nested calls of the window procedure

 private:
  // The first row of the tables that is about this event, and whose it is; {} when none is.
  struct Binding {
    EventTarget* target = nullptr;
    const EventRow* row = nullptr;
  };
  Binding BindingOf(int id, FormEvent::Kind kind) const;
  TTTOOLINFOW ToolOf(const ControlInstance& item) const;
  void Load();
  void MakePainter(int dpi);
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);
  LRESULT HandleNotice(NMHDR& notice);
  LRESULT HandleDrawing(UINT message, LPARAM lParam);
  LRESULT HandleControlColor(UINT message, HDC dc, HWND control);
  LRESULT HandlePointer(UINT message, LPARAM lParam);
  LRESULT HandleContextMenu(HWND control, LPARAM lParam);
  LRESULT HandleSurroundings(UINT message, WPARAM wParam, LPARAM lParam);
  void EditNotice(ControlInstance& item, int code);
  void ComboNotice(ControlInstance& item, int code);
  void Drag();
  void Forget();
};

// Lets go of a form's inside. When the form is gone and this was the last to hold it, it is freed only after
// the calls that are still running in its controls have returned.
void LetGo(std::shared_ptr<FormImpl> parts);

// The form that a window of this thread is; nullptr for every other window.
FormImpl* FormImplOf(HWND window);

// The one window procedure of all forms.
LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

// ControlWindow.cpp: hover, repainting, painting of check boxes for every control of a form.
void WatchControl(FormImpl& parts, ControlInstance& item);
LRESULT CallControl(const ControlInstance& item, UINT message, WPARAM wParam,
                    LPARAM lParam);  // its class's own work

// LinesBar.cpp: the scroll bar beside a text of several lines.
void AttachLines(FormImpl& parts, ControlInstance& item);
void PlaceLinesBar(const FormImpl& parts, ControlInstance& item);
void UpdateLinesBar(const FormImpl& parts, ControlInstance& item);  // after what may have scrolled the text

// ComboFace.cpp: the drawn face of a combo and its open list.
std::wstring ComboRowText(HWND combo, int row);  // "" for a row that it does not have
LRESULT HandleComboMessage(FormImpl& parts, const ControlInstance& item, UINT message, WPARAM wParam,
                           LPARAM lParam);
void AttachCombo(FormImpl& parts, ControlInstance& item);
void SizeCombo(FormImpl& parts, ControlInstance& item);
void PaintComboRow(const FormImpl& parts, const DRAWITEMSTRUCT& draw);

}  // namespace sonaro
