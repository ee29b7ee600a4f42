// A control of a form at run time, and what its kind means to the files of the kit.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "forms/Arrange.h"
#include "forms/Form.h"
#include "forms/controls/FormControl.h"
#include "forms/controls/ScrollBar.h"

namespace sonaro {

class FormWindow;

// A row of the control table at run time.
struct ControlInstance {
  const ControlRow* row = nullptr;
  FormWindow* form = nullptr;
  HWND window = nullptr;       // nullptr: a decoration, or a view
  WNDPROC original = nullptr;  // the procedure of its class
  bool wanted = true;          // not hidden by kHidden or ControlHandle::Show
  bool shown = false;          // wanted, in a shown pane, and with a place in the layout
  bool hover = false;
  bool emptySocket = false;        // GroupButton
  bool groupStart = true;          // the arrow keys do not come here from the row before
  PixelRect place;                 // of the row's rectangle; the window may be smaller (an edit in its glass)
  RECT box{};                      // where its window is
  std::optional<POINT> pressedAt;  // GroupButton: the left button went down here, and is still down
  std::string detail;
  Icon icon = Icon::None;
  TextColor color = TextColor::Default;
  SortMark sort = SortMark::None;
  PicturePainter picture = nullptr;
  std::unique_ptr<FormControl> view;
  std::unique_ptr<LinesBar> bar;  // of a text of several lines

  int Id() const { return row->id; }
  ControlKind KindOf() const { return row->kind; }
  bool Has(unsigned flag) const { return (row->flags & flag) != 0; }
  HWND Window() const { return view ? view->Window() : window; }
};

constexpr bool IsText(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::TitleBar || kind == ControlKind::StateLabel;
}

// Buttons that keep a state.
constexpr bool IsToggle(ControlKind kind) {
  return kind == ControlKind::ToggleButton || kind == ControlKind::RankingButton ||
         kind == ControlKind::GroupButton || kind == ControlKind::TabButton;
}

// Pressed by Enter: every button except check boxes and radio buttons.
constexpr bool IsButton(ControlKind kind) {
  return IsToggle(kind) || kind == ControlKind::PushButton || kind == ControlKind::PrimaryButton ||
         kind == ControlKind::StripButton || kind == ControlKind::PlayButton ||
         kind == ControlKind::HeaderButton;
}

constexpr bool IsCheck(ControlKind kind) {
  return kind == ControlKind::CheckBox || kind == ControlKind::RadioButton;
}

// Painted by us alone; its class shows nothing.
constexpr bool IsDrawn(ControlKind kind) {
  return IsText(kind) || IsButton(kind) || IsCheck(kind) || kind == ControlKind::Picture;
}

// In glass that the form paints.
constexpr bool IsEdit(ControlKind kind) {
  return kind == ControlKind::Edit || kind == ControlKind::MultiEdit;
}
constexpr bool IsFramedView(ControlKind kind) {
  return kind == ControlKind::ListView || kind == ControlKind::TreeView;
}

constexpr bool HasLines(ControlKind kind) {
  return kind == ControlKind::MultiEdit || kind == ControlKind::ReadOnlyText;
}

constexpr bool IsCombo(ControlKind kind) {
  return kind == ControlKind::Combo || kind == ControlKind::ComboEdit;
}

// Painted by the form, no window.
constexpr bool IsDecoration(ControlKind kind) {
  return kind == ControlKind::Glass || kind == ControlKind::Dial || kind == ControlKind::Groove ||
         kind == ControlKind::Slots || kind == ControlKind::Mark;
}

constexpr TextStyle TextStyleOf(const ControlRow& row) {
  if (row.style != TextStyle::Default) return row.style;
  return row.kind == ControlKind::TitleBar ? TextStyle::Title : TextStyle::Body;
}

// ControlSet.cpp: the control's window, which may be smaller than its place.
RECT WindowBox(const ControlInstance& item, const Painter& painter);

// ControlWindow.cpp: hover, repainting, painting of check boxes for every control of a form.
void WatchControl(ControlInstance& item, HWND window);
// Its class's own work.
LRESULT CallControl(const ControlInstance& item, UINT message, WPARAM wParam, LPARAM lParam);

// ComboFace.cpp: the drawn face of a combo and its open list.
std::wstring ComboRowText(HWND combo, int row);  // "" for a row that it does not have
LRESULT HandleComboMessage(const ControlInstance& item, UINT message, WPARAM wParam, LPARAM lParam);
void PrepareComboList(const ControlInstance& item);  // before it opens
void SizeCombo(const Painter& painter, const ControlInstance& item);
void PaintComboRow(const Painter& painter, const DRAWITEMSTRUCT& draw);

}  // namespace sonaro
