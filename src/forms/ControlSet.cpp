#include "forms/ControlSet.h"

#include <windows.h>

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>
#include <utility>

#include "forms/FormWindow.h"
#include "forms/Resizing.h"
#include "forms/Screen.h"
#include "forms/WideText.h"
#include "forms/controls/ListView.h"
#include "forms/controls/ToolTips.h"
#include "platform/SystemFunction.h"

namespace sonaro {
namespace {

// A themed calendar ignores colours. The title's ground is also that of the chosen day, on which the month's
// ground is the text, and the colour of the weekdays.
void ColourCalendar(HWND calendar, const FaceplateColors& colors) {
  static const auto setTheme =
      reinterpret_cast<decltype(&SetWindowTheme)>(SystemFunction(L"uxtheme.dll", "SetWindowTheme"));
  if (setTheme) setTheme(calendar, L"", L"");
  MonthCal_SetColor(calendar, MCSC_BACKGROUND, ToColorRef(colors.glass));
  MonthCal_SetColor(calendar, MCSC_MONTHBK, ToColorRef(colors.glass));
  MonthCal_SetColor(calendar, MCSC_TEXT, ToColorRef(colors.glassText));
  MonthCal_SetColor(calendar, MCSC_TITLEBK, ToColorRef(colors.accent));
  MonthCal_SetColor(calendar, MCSC_TITLETEXT, ToColorRef(colors.onAccent));
  MonthCal_SetColor(calendar, MCSC_TRAILINGTEXT, ToColorRef(colors.textOff));
}

bool StandsOn(const ControlInstance& header, const ControlInstance& list) {
  return header.place.bottom == list.place.top && header.place.left >= list.place.left &&
         header.place.right <= list.place.right;
}

}  // namespace

// A check box begins left of its place, where its focus line stands; a text of several lines leaves room for
// its bar; an edit stands inside the glass that the form paints.
RECT WindowBox(const ControlInstance& item, const Painter& painter) {
  RECT box = ToRect(item.place);
  if (IsCheck(item.KindOf())) box.left -= painter.Px(kMarkMargin);
  if (HasLines(item.KindOf())) box.right -= painter.Px(ScrollBar::kDesignWidth);
  if (!IsEdit(item.KindOf())) return box;
  box.left += painter.Px(8);
  box.right -= painter.Px(6);
  if (item.KindOf() == ControlKind::Edit) {
    // The font decides: a fixed inset would cut it off at some dpi.
    const int height = painter.LineHeight(TextStyleOf(*item.row));
    box.top += (box.bottom - box.top - height) / 2;
    box.bottom = box.top + height;
  } else {
    box.top += painter.Px(6);
    box.bottom -= painter.Px(6);
  }
  return box;
}

void ControlSet::Reset() {
  layout_ = 0;
  grown_ = {};
  client_ = {};
  hiddenPanes_.reset();
  late_.reset();
  for (const unsigned char pane : design_.latePanes) hiddenPanes_[pane] = late_[pane] = true;
}

// Views keep their objects: their destructors find that the windows are gone.
void ControlSet::Forget() {
  window_ = nullptr;
  tips_ = nullptr;
  for (ControlInstance& item : items_) item.window = nullptr;
}

// Rows without a number cannot be addressed. The tables are short enough to be searched.
ControlInstance* ControlSet::Find(int id) {
  if (id == 0) return nullptr;
  for (ControlInstance& item : items_) {
    if (item.Id() != id) continue;
    MakePane(item.row->pane);
    return &item;
  }
  return nullptr;
}

// Up to the window whose parent is the form: a combo's edit field is the combo, a list's edit is the list.
ControlInstance* ControlSet::Find(HWND control) {
  while (control && control != window_ && GetParent(control) != window_) control = GetParent(control);
  if (!control || control == window_) return nullptr;
  for (ControlInstance& item : items_) {
    if (item.Window() == control) return &item;
  }
  return nullptr;
}

ControlInstance* ControlSet::FirstShown(std::initializer_list<int> ids) {
  for (const int id : ids) {
    if (ControlInstance* item = Find(id); item && item->shown) return item;
  }
  return nullptr;
}

void ControlSet::SetLayout(int layout) {
  layout_ = layout;
  grown_ = {};
}

DesignSize ControlSet::Size() const { return grown_.width > 0 ? grown_ : SizeOf(design_, layout_); }

// Measured at 96 dpi, in design pixels, so that the window has the same lines at every dpi.
void ControlSet::GrowFor(const ControlInstance& label, std::string_view text) {
  const DesignRect* at = BoundsIn(design_, layout_, *label.row);
  if (!at) return;
  const Painter asDesigned(FaceplateColors{}, 96);
  const int needed = asDesigned.WrappedHeight(Widen(text), TextStyleOf(*label.row), at->width);
  const DesignSize size = SizeOf(design_, layout_);
  grown_ = {size.width, size.height + std::max(0, needed - at->height)};
}

// Controls that the layout does not name keep their old place, hidden.
void ControlSet::Place(const Painter& painter, PixelSize client) {
  client_ = client;
  const DesignSize made = SizeOf(design_, layout_);
  for (ControlInstance& item : items_) {
    if (const DesignRect* at = BoundsIn(design_, layout_, *item.row))
      item.place = ArrangeRow(design_, *item.row, *at, made, client, painter.Dpi());
  }
  form_.Headers().Arrange();
  for (ControlInstance& item : items_) {
    if (BoundsIn(design_, layout_, *item.row)) PlaceWindow(item, painter);
    ShowOrHide(item);
  }
}

void ControlSet::PlaceHeaders(const Painter& painter) {
  form_.Headers().Arrange();
  for (ControlInstance& item : items_) {
    if (item.KindOf() == ControlKind::HeaderButton) PlaceWindow(item, painter);
    if (item.KindOf() == ControlKind::ListView && item.view) PlaceColumnsBelowHeaders(item);
  }
}

ListView* ControlSet::ListBelow(const ControlInstance& header) const {
  const auto below = std::ranges::find_if(items_, [&](const ControlInstance& item) {
    return item.KindOf() == ControlKind::ListView && item.view && StandsOn(header, item);
  });
  return below == items_.end() ? nullptr : static_cast<ListView*>(below->view.get());
}

// The header buttons that stand on the list's upper edge say how wide its columns are; their rows come before
// the list's, so they have their places.
void ControlSet::PlaceColumnsBelowHeaders(const ControlInstance& list) {
  std::vector<int> edges;
  for (const ControlInstance& item : items_) {
    if (item.KindOf() == ControlKind::HeaderButton && StandsOn(item, list))
      edges.push_back(item.place.right - list.place.left);
  }
  static_cast<ListView&>(*list.view).SetColumnEdges(std::move(edges));
}

// Without SWP_NOCOPYBITS the old picture would be moved along, with the ground of where it was.
void ControlSet::PlaceWindow(ControlInstance& item, const Painter& painter) {
  const RECT box = WindowBox(item, painter);
  const bool moved = !EqualRect(&box, &item.box);
  if ((!item.window && !item.view) || (!moved && IsDrawn(item.KindOf()))) return;
  item.box = box;
  if (item.view) {
    if (moved) item.view->MoveTo(box);
    if (item.KindOf() == ControlKind::ListView) PlaceColumnsBelowHeaders(item);
    return;
  }
  if (IsCombo(item.KindOf())) return SizeCombo(painter, item);
  SetWindowPos(item.window, nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  if (item.bar) {
    RECT glass = ToRect(item.place);
    if (IsEdit(item.KindOf())) InflateRect(&glass, -painter.Line(), -painter.Line());
    item.bar->MoveTo(glass, painter.Px(ScrollBar::kDesignWidth));
    item.bar->Update(painter.LineHeight(TextStyleOf(*item.row)));
  }
  if (tips_ && IsText(item.KindOf())) {
    TTTOOLINFOW tool = ToolOf(item);
    SendMessageW(tips_, TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

bool ControlSet::IsWanted(const ControlInstance& item) const {
  return item.wanted && !hiddenPanes_[item.row->pane] && BoundsIn(design_, layout_, *item.row) != nullptr;
}

// Shown is what the program wants, in a pane that is shown, at a place that the layout knows. What the form
// itself paints must be painted anew where it came or went; a little around it for its light edge.
void ControlSet::ShowOrHide(ControlInstance& item) {
  const bool wasShown = std::exchange(item.shown, IsWanted(item));
  if (wasShown == item.shown) return;
  // The system leaves the focus on a control that is hidden, where it swallows every key.
  if (!item.shown && Find(GetFocus()) == &item) SendMessageW(window_, WM_NEXTDLGCTL, 0, FALSE);
  if (item.view) {
    item.view->SetShown(item.shown);
  } else if (item.window) {
    ShowWindow(item.window, item.shown ? SW_SHOWNA : SW_HIDE);
    if (item.bar) item.bar->SetShown(item.shown);
  }
  if (!window_) return;
  if (IsDecoration(item.KindOf())) form_.Paint().DiscardGround();
  if (!item.window || IsEdit(item.KindOf())) {
    RECT box = ToRect(item.place);
    InflateRect(&box, 2, 2);
    RedrawWindow(window_, &box, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
}

// Pane 0 is what is always there.
void ControlSet::ShowPane(int pane, bool shown) {
  const auto index = static_cast<std::size_t>(pane);
  if (pane <= 0 || index >= hiddenPanes_.size() || hiddenPanes_[index] == !shown) return;
  if (shown) MakePane(index);
  hiddenPanes_[index] = !shown;
  for (ControlInstance& item : items_) {
    if (item.row->pane == pane) ShowOrHide(item);
  }
}

// The margins of edits belong to the font: the system sets new ones with it, and the glass has its own.
void ControlSet::TakeTheme(const Painter& painter) {
  for (ControlInstance& item : items_) {
    if (item.view) item.view->ThemeChanged();
    if (item.window) TakeFont(item, painter);
    item.box = {};  // placed anew, since what the font decides may have changed
  }
}

// What is drawn is drawn with the painter's fonts.
void ControlSet::TakeFont(const ControlInstance& item, const Painter& painter) const {
  if (IsDrawn(item.KindOf())) return;
  SendMessageW(item.window, WM_SETFONT, reinterpret_cast<WPARAM>(painter.Font(TextStyleOf(*item.row))),
               FALSE);
  if (IsEdit(item.KindOf()) || item.KindOf() == ControlKind::ReadOnlyText) {
    SendMessageW(item.window, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  }
  if (item.KindOf() == ControlKind::MonthCalendar) ColourCalendar(item.window, painter.Colors());
}

// A label is known to the tips by its number and its place in the form, since the mouse goes through it;
// every other control by its window.
TTTOOLINFOW ControlSet::ToolOf(const ControlInstance& item) const {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = window_;
  if (IsText(item.KindOf())) {
    tool.uId = static_cast<UINT_PTR>(item.Id());
    tool.rect = ToRect(item.place);
  } else {
    // A tip's own subclass looks up a property for every message: a control tells of its mouse itself.
    tool.uFlags = TTF_IDISHWND | (item.view ? TTF_SUBCLASS : 0u);
    tool.uId = reinterpret_cast<UINT_PTR>(item.Window());
  }
  return tool;
}

// A tool is deleted first: adding it again with another text would leave two.
void ControlSet::SetTip(ControlInstance& item, const std::string& text) {
  if (!tips_) tips_ = MakeTips(window_);
  std::wstring wide = Widen(text);
  TTTOOLINFOW tool = ToolOf(item);
  tool.lpszText = wide.data();
  SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (!wide.empty()) SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ControlSet::RelayToTips(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  RelayMouse(tips_, window, message, wParam, lParam);
}

}  // namespace sonaro
