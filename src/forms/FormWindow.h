// The window of a form: its life from Create to Close, the one window procedure of all forms, and what
// happens with its messages and events. What it consists of stands beside it: the controls, the painting, the
// focus and the keys.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "forms/ControlSet.h"
#include "forms/FocusKeys.h"
#include "forms/FormPaint.h"
#include "forms/HeaderEdges.h"
#include "forms/Resizing.h"
#include "forms/TabNeedle.h"

namespace sonaro {

class FormWindow final : public FormServices {
 public:
  FormWindow(Form& form, FormContext& context, const FormDesign& design);
  ~FormWindow() override;  // ends the window without a word to the form
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // The form that a window of this thread is; nullptr for every other window.
  static FormWindow* Of(HWND window);

  const FormDesign& Design() const { return design_; }
  HWND Window() const { return window_; }  // nullptr while there is none
  ControlSet& Controls() { return controls_; }
  const ControlSet& Controls() const { return controls_; }
  FormPaint& Paint() { return paint_; }
  FocusKeys& Keys() { return keys_; }
  const FocusKeys& Keys() const { return keys_; }
  HeaderEdges& Headers() { return headers_; }
  TabNeedle& Needle() { return needle_; }
  const TabNeedle& Needle() const { return needle_; }
  std::string TextOf(const ControlText& text) const;
  std::string LoadText(int stringId) const;

  // FormRunning.cpp, FormFrame.cpp: what Form's functions of these names do.
  bool Create(HWND owner);
  void Show(HWND owner);
  void ShowInactive();
  void Hide() const;
  int ShowModal(HWND owner);
  void Close(int result);
  bool IsOpen() const { return window_ && !closing_; }
  bool IsModal() const { return modal_; }
  void MoveToPixels(int left, int top);
  void CentreOn(HWND other);

  // At the dpi and at the layout's size, or at the larger one that the user has given it; outline
  // and controls with it.
  void Resize();
  // Makes everything anew for `dpi`, with Fit for the largest that lets the form fit its work area. The
  // window keeps its corner.
  enum class Fit : bool { No, Yes };
  void UseDpi(int dpi, Fit fit = Fit::Yes);
  void RenewTheme() { UseDpi(Theme().Dpi()); }  // colours changed: everything is made and painted anew

  // Events. The rows of the form's tables count first, then those of its panes in the order of AddTarget.
  void AddTarget(EventTarget& target) { targets_.push_back(&target); }
  bool Handle(const FormEvent& event);  // runs the handler; false: none is bound
  bool IsBound(int id, FormEvent::Kind kind) const { return BindingOf(id, kind).row != nullptr; }
  // What pressing the control or choosing the menu entry does. Hidden and disabled controls do nothing.
  void Press(int id);
  void Escape();
  void PaneMade(int pane) const;                   // by ControlSet
  void BringUp(const std::string& caption) const;  // lblBringUp's caption was set

  // What the controls with a class of their own ask.
  const Painter& Theme() const override { return paint_.Current(); }
  void PaintBackdrop(HDC dc, HWND control) override { paint_.CopyGround(dc, control); }
  void Raise(const FormEvent& event) override { Handle(event); }

 private:
  static constexpr UINT_PTR kLatePanesTimer =
      2;  // 1 is the needle's; those of the tables are control numbers
  static constexpr UINT kDestroyNow = WM_APP + 0x3F00;  // posted by Close from inside a handler

  // The first row of the tables that is about this event, and whose it is; {} when none is.
  struct Binding {
    EventTarget* target = nullptr;
    const EventRow* row = nullptr;
  };
  Binding BindingOf(int id, FormEvent::Kind kind) const;
  void RunTimer(UINT_PTR timer);

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  bool BuildWindow(HWND owner);
  void Load();
  void ChooseDpi(HMONITOR monitor);
  void RunModalLoop();
  void Destroy() const;
  void Forget();

  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);
  LRESULT HandleNotice(NMHDR& notice);
  LRESULT HandleDrawing(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandlePointer(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleKeyboard(UINT message, WPARAM wParam, LPARAM lParam);
  bool KeepFocus(UINT message, WPARAM wParam);
  LRESULT HandleContextMenu(HWND control, LPARAM lParam);
  LRESULT HandleSurroundings(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleEnd(UINT message, WPARAM wParam, LPARAM lParam);
  bool HandleFrame(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);
  LRESULT HitOfFrame(LPARAM at) const;
  void LimitSize(MINMAXINFO& limits) const;
  void SizeChanged(bool maximised);
  void ToggleMaximised() const;
  void ReadSize();
  void KeepSize() const;
  void UseFrame(bool resizable);
  PixelSize SizeWanted() const;
  void FitToWindow();  // outline and controls go with its size of now
  void ShowSystemMenu() const;
  void HandleCombo(const ControlInstance& item, int code);
  void Drag();

  Form* form_;  // nullptr while the form ends
  std::vector<EventTarget*> targets_;
  FormContext& context_;
  const FormDesign& design_;
  HWND window_ = nullptr;
  FormPaint paint_;
  ControlSet controls_;
  FocusKeys keys_;
  HeaderEdges headers_;
  TabNeedle needle_;
  bool modal_ = false;       // ShowModal runs
  bool closing_ = false;     // Close was called
  bool moving_ = false;      // the system's move loop runs
  bool sizing_ = false;      // its size loop runs, which ends with the size that is kept
  bool fitting_ = false;     // Resize runs: what changes the size is not the user
  KeptSize user_;            // what the user has made of the size
  bool toMaximise_ = false;  // when it is shown for the first time
  bool placed_ = false;      // the program has said where the window lies
  int result_ = 0;           // of ShowModal
  int depth_ = 0;            // nested calls of the window procedure
};

}  // namespace sonaro
