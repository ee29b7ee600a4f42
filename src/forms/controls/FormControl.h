// The border between Form and the controls that have a class of their own (ListView, TreeView, RatingPicture,
// ProgressScale): what Form asks of them, and what they may ask of their form.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace sonaro {

class Painter;

// What happened to a control, told to the form in terms of meaning. The row's or node's kind of event decides
// which of the fields count.
struct FormEvent {
  enum class Kind : unsigned char {
    Click,
    Change,
    SelChange,
    EnterPressed,
    ItemActivated,
    ItemStarred,   // the star of a row was clicked
    ItemSelected,  // row
    BeginDrag,     // row: the left button is down on it and has moved; the handler may take the mouse
    ContextMenu,   // row (-1: none) and point
    NodeClick      // node
  };
  int id = 0;
  Kind kind = Kind::Click;
  int row = -1;
  POINT point = {};  // screen pixels
  HTREEITEM node = nullptr;
};

// What a control asks of the form that owns it. Valid as long as the control's window lives.
class FormServices {
 public:
  virtual ~FormServices() = default;
  virtual const Painter& Theme() const = 0;
  // Paints what lies behind `control` (plate, glass) into `dc`, whose origin is the control's top-left
  // corner.
  virtual void PaintBackdrop(HDC dc, HWND control) = 0;
  // Runs the handler of the event table. The control may be destroyed when this returns.
  virtual void Raise(const FormEvent& event) = 0;
};

// A control with a class of its own. Made and owned by Form, constructed with (HWND form, int id,
// FormServices&). Its window is a direct child of the form, has the control's number and WS_TABSTOP where it
// takes the focus; further windows (its scroll bar) have no number.
class FormControl {
 public:
  virtual ~FormControl() = default;
  virtual HWND Window() const = 0;
  // The whole place, frame and scroll bar included, in client pixels of the form.
  virtual void MoveTo(const RECT& place) = 0;
  virtual void SetShown(bool shown) = 0;
  // Colours, fonts or dpi are new: take them from FormServices::Theme and repaint. Called before MoveTo.
  virtual void ThemeChanged() = 0;
  // A WM_NOTIFY that the control's window sent to the form; true: `result` is the answer.
  virtual bool OnNotify(NMHDR& notice, LRESULT& result) = 0;
};

}  // namespace sonaro
