// The faceplate's scroll bar beside an edit of several lines. The edit stays the owner of its position: the
// bar asks it to scroll, and follows whatever has been painted.
#include <algorithm>

#include "forms/Dpi.h"
#include "forms/FormImpl.h"

namespace sonaro {
namespace {

int FirstLine(HWND edit) { return static_cast<int>(SendMessageW(edit, EM_GETFIRSTVISIBLELINE, 0, 0)); }

}  // namespace

void AttachLines(FormImpl& parts, ControlInstance& item) {
  const HWND edit = item.window;
  item.bar = std::make_unique<ScrollBar>(parts.window, parts, [edit](int first) {
    SendMessageW(edit, EM_LINESCROLL, 0, first - FirstLine(edit));
  });
}

void PlaceLinesBar(const FormImpl& parts, ControlInstance& item) {
  RECT box = ToRect(item.place);
  if (IsEdit(item.KindOf())) InflateRect(&box, -parts.painter->Line(), -parts.painter->Line());
  box.left = box.right - parts.painter->Px(ScrollBar::kDesignWidth);
  item.bar->MoveTo(box);
  UpdateLinesBar(parts, item);
}

void UpdateLinesBar(const FormImpl& parts, ControlInstance& item) {
  RECT text{};
  SendMessageW(item.window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
  const int line = std::max(1, parts.painter->LineHeight(TextStyleOf(*item.row)));
  item.bar->SetRange({static_cast<int>(SendMessageW(item.window, EM_GETLINECOUNT, 0, 0)),
                      static_cast<int>(text.bottom - text.top) / line, FirstLine(item.window)});
}

}  // namespace sonaro
