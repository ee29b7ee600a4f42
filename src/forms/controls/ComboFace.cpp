// The drawn face of a combo box and the rows and frame of its open list. The control stays the system's; only
// its painting is ours.
#include <algorithm>

#include "forms/FormWindow.h"
#include "forms/Guard.h"
#include "forms/Screen.h"
#include "forms/WideText.h"

namespace sonaro {
namespace {

// 96-dpi pixels; the rows of the open list are as high as those of a list.
constexpr int kDropZone = 24;
constexpr int kTextInset = 8;
constexpr int kRowHeight = 22;
constexpr int kRowsShown = 12;

// The edit field and the open list of a combo have no numbers; the system gives their windows by this call
// only.
COMBOBOXINFO InfoOf(HWND combo) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  GetComboBoxInfo(combo, &info);
  return info;
}

// Between the left inset and the drop zone, one line high.
RECT TextPlace(HWND combo, const Painter& painter) {
  RECT box{};
  GetClientRect(combo, &box);
  return {painter.Px(kTextInset), painter.Line(), box.right - painter.Px(kDropZone),
          box.bottom - painter.Line()};
}

// The system puts the edit field back to its own place after every change of size or font. A list without an
// edit field has none.
void PlaceEdit(HWND combo, const Painter& painter) {
  const HWND edit = InfoOf(combo).hwndItem;
  if (!edit || edit == combo) return;
  const RECT room = TextPlace(combo, painter);
  const int height = static_cast<int>(painter.Measure(L"Xg", TextStyle::Body).cy);
  const int top = static_cast<int>(room.top + (room.bottom - room.top - height) / 2);
  SetWindowPos(edit, nullptr, room.left, top, room.right - room.left - painter.Px(4), height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(edit, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

// The whole closed combo, in place of what the class would paint: frame, text, divider, arrow. In a combo
// with an edit field the text is the field's.
void PaintFace(const Painter& painter, const ControlInstance& item, HDC dc) {
  const FaceplateColors& colors = painter.Colors();
  const bool enabled = IsWindowEnabled(item.window) != FALSE;
  RECT box{};
  GetClientRect(item.window, &box);
  const Color ground = enabled ? colors.glass : colors.buttonOff;
  painter.CutShape(dc, box, 0, ground, ground, colors.frame);

  const int zone = static_cast<int>(box.right) - painter.Px(kDropZone);
  painter.Fill(dc, {zone, box.top + painter.Px(5), zone + painter.Line(), box.bottom - painter.Px(5)},
               colors.hair);
  const int icon = painter.Px(12);
  painter.DrawIcon(dc, Icon::Down, zone + painter.Px(6), (static_cast<int>(box.bottom) - icon) / 2, 12,
                   enabled ? colors.glassMuted : colors.textOff);
  if (item.KindOf() == ControlKind::Combo) {
    const int row = static_cast<int>(SendMessageW(item.window, CB_GETCURSEL, 0, 0));
    if (row >= 0) {
      painter.Text(dc, TextPlace(item.window, painter), std::wstring_view(ComboRowText(item.window, row)),
                   TextStyle::Body, enabled ? colors.glassText : colors.textOff);
    }
  }
  const HWND focus = GetFocus();
  if (focus == item.window || IsChild(item.window, focus)) {
    painter.Frame(dc, box, colors.focus, painter.FocusLine());
  }
}

// The frame of the open list is not its client area; the system paints it in its own colour just before.
void PaintFrameOfList(const Painter& painter, HWND list) {
  const HDC dc = GetWindowDC(list);
  RECT box{};
  GetWindowRect(list, &box);
  OffsetRect(&box, -box.left, -box.top);
  painter.Frame(dc, box, painter.Colors().focus, 1);
  ReleaseDC(list, dc);
}

// The list opens exactly as high as its rows, whatever height the system had in mind for it.
void FitRows(HWND list, HWND combo, WINDOWPOS& pos) {
  if ((pos.flags & SWP_NOSIZE) != 0) return;
  const int rows = std::clamp(static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)), 1, kRowsShown);
  RECT frame{};
  AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongW(list, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongW(list, GWL_EXSTYLE)));
  const int height = rows * static_cast<int>(SendMessageW(list, LB_GETITEMHEIGHT, 0, 0)) +
                     static_cast<int>(frame.bottom - frame.top);
  RECT face{};
  GetWindowRect(combo, &face);
  const bool above = (pos.flags & SWP_NOMOVE) == 0 && pos.y < face.top;
  if (above) pos.y += pos.cy - height;
  pos.cy = height;
}

LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR combo,
                               DWORD_PTR form) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(list, ListProcedure, combo);
    if (message == WM_WINDOWPOSCHANGING) {
      FitRows(list, reinterpret_cast<HWND>(combo), *reinterpret_cast<WINDOWPOS*>(lParam));
    }
    const LRESULT answer = DefSubclassProc(list, message, wParam, lParam);
    if (message == WM_NCPAINT) PaintFrameOfList(reinterpret_cast<const FormWindow*>(form)->Theme(), list);
    return answer;
  });
}

}  // namespace

std::wstring ComboRowText(HWND combo, int row) {
  const LRESULT length = row < 0 ? 0 : SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
  if (length <= 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

// What the class draws by itself, in its own look, at once and outside of WM_PAINT, is painted over by
// asking for a WM_PAINT after it.
LRESULT HandleComboMessage(const ControlInstance& item, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND combo = item.window;
  if (message == WM_ERASEBKGND) return 1;
  if (message == WM_PAINT) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(combo, &paint);
    RECT box{};
    GetClientRect(combo, &box);
    {
      const BufferedPaint buffer(dc, box);
      PaintFace(item.form->Theme(), item, buffer.Dc());
    }
    EndPaint(combo, &paint);
    return 0;
  }
  const LRESULT answer = CallControl(item, message, wParam, lParam);
  if (!item.form->Window()) return answer;
  switch (message) {
    case WM_SIZE:
    case WM_SETFONT:
    case CB_SETITEMHEIGHT:
      PlaceEdit(combo, item.form->Theme());
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_SETTEXT:
    case WM_COMMAND:
    case CB_SETCURSEL:
    case CB_RESETCONTENT:
    case CB_SHOWDROPDOWN:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
      InvalidateRect(combo, nullptr, FALSE);
      break;
    default:
      break;
  }
  return answer;
}

// The list is a window of the desktop, not of the form, and gets none of the form's messages. A list that was
// never opened needs nothing of this; a second call changes nothing.
void PrepareComboList(const ControlInstance& item) {
  const COMBOBOXINFO info = InfoOf(item.window);
  if (!info.hwndList) return;
  SetWindowSubclass(info.hwndList, ListProcedure, reinterpret_cast<UINT_PTR>(item.window),
                    reinterpret_cast<DWORD_PTR>(item.form));
}

void SizeCombo(const Painter& painter, const ControlInstance& item) {
  const int height = item.place.Height();
  SendMessageW(item.window, CB_SETMINVISIBLE, kRowsShown, 0);
  SendMessageW(item.window, CB_SETITEMHEIGHT, 0, painter.Px(kRowHeight));
  SetWindowPos(item.window, nullptr, item.place.left, item.place.top, item.place.Width(),
               height + kRowsShown * painter.Px(kRowHeight), SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  // The face is as high as its item and a frame whose width is the system's own: measure it.
  SendMessageW(item.window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - 6);
  RECT box{};
  GetWindowRect(item.window, &box);
  const int missing = height - static_cast<int>(box.bottom - box.top);
  if (missing != 0)
    SendMessageW(item.window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - 6 + missing);
  PlaceEdit(item.window, painter);
}

void PaintComboRow(const Painter& painter, const DRAWITEMSTRUCT& draw) {
  const FaceplateColors& colors = painter.Colors();
  if ((draw.itemState & ODS_COMBOBOXEDIT) != 0) {
    InvalidateRect(draw.hwndItem, nullptr, FALSE);  // the face is painted as a whole
    return;
  }
  const BufferedPaint buffer(draw.hDC, draw.rcItem);
  const bool selected = (draw.itemState & ODS_SELECTED) != 0;
  painter.Fill(buffer.Dc(), draw.rcItem, selected ? colors.rowSelected : colors.glass);
  if (static_cast<int>(draw.itemID) < 0) return;
  if (selected) {
    painter.Fill(buffer.Dc(),
                 {draw.rcItem.left, draw.rcItem.top, draw.rcItem.left + painter.Px(3), draw.rcItem.bottom},
                 colors.accent);
  }
  const RECT place = {draw.rcItem.left + painter.Px(kTextInset), draw.rcItem.top,
                      draw.rcItem.right - painter.Px(4), draw.rcItem.bottom};
  painter.Text(buffer.Dc(), place,
               std::wstring_view(ComboRowText(draw.hwndItem, static_cast<int>(draw.itemID))), TextStyle::Body,
               selected ? colors.rowSelectedText : colors.glassText);
}

}  // namespace sonaro
