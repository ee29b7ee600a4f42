#include "forms/controls/LinesBar.h"

#include <algorithm>

namespace sonaro {

void LinesBar::Update(int lineHeight) {
  RECT text{};
  SendMessageW(edit_, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
  bar_.SetRange({static_cast<int>(SendMessageW(edit_, EM_GETLINECOUNT, 0, 0)),
                 static_cast<int>(text.bottom - text.top) / std::max(1, lineHeight), FirstLine()});
}

void LinesBar::ScrollTo(int first) { SendMessageW(edit_, EM_LINESCROLL, 0, first - FirstLine()); }

}  // namespace sonaro
