#include "schedule/frmNotifyStack.h"

#include <algorithm>

namespace sonaro {

namespace {

constexpr int kGap = 12;

// The top-left corner of place `number`: upwards from the lower right corner, then column by column to the
// left.
POINT CornerOf(std::size_t number, const RECT& area, const RECT& window) {
  const int width = window.right - window.left + kGap;
  const int height = window.bottom - window.top + kGap;
  const int inColumn = std::max(1, static_cast<int>(area.bottom - area.top - kGap) / height);
  const int column = static_cast<int>(number) / inColumn;
  const int row = static_cast<int>(number) % inColumn;
  return {std::max(area.left, area.right - (column + 1) * width),
          std::max(area.top, area.bottom - (row + 1) * height)};
}

}  // namespace

void frmNotifyStack::ShowNotification(Notification notification) {
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(notification)));
}

void frmNotifyStack::ShowMissed(std::vector<std::string> missed) {
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(missed)));
}

void frmNotifyStack::Put(std::unique_ptr<frmNotify> window) {
  auto place =
      std::find_if(windows_.begin(), windows_.end(), [](const auto& shown) { return !shown->IsOpen(); });
  if (place == windows_.end()) place = windows_.insert(place, nullptr);
  *place = std::move(window);
  frmNotify& shown = **place;
  if (!shown.Create()) return;
  RECT area{};
  RECT box{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  GetWindowRect(shown.Window(), &box);
  const POINT corner = CornerOf(static_cast<std::size_t>(place - windows_.begin()), area, box);
  shown.MoveToPixels(corner.x, corner.y);
  shown.ShowInactive();
  // Above the window that the user works in, which keeps the focus.
  SetWindowPos(shown.Window(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace sonaro
