// The needle of a form's tab dial: it stands on the active tab, and slides there from the one before.
#include "forms/FormImpl.h"

namespace sonaro {
namespace {

constexpr UINT_PTR kNeedleTimer = 1;  // the timers of the tables have numbers of controls

bool SystemAnimates() {
  BOOL animates = FALSE;
  return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) && animates;
}

int MiddleOf(const ControlInstance& tab) { return (tab.place.left + tab.place.right) / 2; }

}  // namespace

void FormImpl::MoveNeedle(const ControlInstance& tab) {
  if (needleTab == tab.Id()) return;
  const ControlInstance* before = Find(needleTab);
  needleTab = tab.Id();
  if (!before || !IsWindowVisible(window) || !SystemAnimates()) return StopNeedle();
  if (!needleAt) needleAt = MiddleOf(*before);
  needleSlide = {*needleAt, MiddleOf(tab)};
  SetTimer(window, kNeedleTimer, NeedleSlide::kFrame, nullptr);
}

void FormImpl::StopNeedle() {
  if (!needleAt) return;
  needleSlide = {};
  needleAt.reset();
  KillTimer(window, kNeedleTimer);
}

bool FormImpl::StepNeedle(WPARAM timer) {
  if (timer != kNeedleTimer) return false;
  const std::uint64_t now = GetTickCount64();
  if (needleSlide.start == 0) needleSlide.start = now;  // what the tab shows is filled by now
  if (needleAt) needleAt = needleSlide.At(now);
  if (needleSlide.IsOver(now) || !IsWindowVisible(window)) StopNeedle();
  for (const ControlInstance& item : items) {
    if (item.KindOf() == ControlKind::TabButton) RepaintItem(item);
  }
  return true;
}

std::optional<int> FormImpl::NeedleOn(const ControlInstance& tab, bool active) const {
  if (needleAt) return *needleAt - tab.place.left;
  if (active) return MiddleOf(tab) - tab.place.left;
  return std::nullopt;
}

}  // namespace sonaro
