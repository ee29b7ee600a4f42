// The needle of a form's tab dial: it stands on the active tab, and slides there from the one before.
#include "forms/FormParts.h"

namespace sonaro {
namespace {

constexpr UINT_PTR kNeedleTimer = 1;  // the timers of the tables have numbers of controls

bool SystemAnimates() {
  BOOL animates = FALSE;
  return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) && animates;
}

int MiddleOf(const FormItem& tab) { return (tab.place.left + tab.place.right) / 2; }

}  // namespace

void FormParts::MoveNeedle(const FormItem& tab) {
  if (needleTab == tab.Id()) return;
  const FormItem* before = Find(needleTab);
  needleTab = tab.Id();
  if (!before || !IsWindowVisible(window) || !SystemAnimates()) return StopNeedle();
  const std::uint64_t now = GetTickCount64();
  needleSlide = {needleSlide ? needleSlide->At(now) : MiddleOf(*before), MiddleOf(tab), now};
  SetTimer(window, kNeedleTimer, NeedleSlide::kFrame, nullptr);
}

void FormParts::StopNeedle() {
  if (!needleSlide) return;
  needleSlide.reset();
  KillTimer(window, kNeedleTimer);
}

bool FormParts::StepNeedle(WPARAM timer) {
  if (timer != kNeedleTimer) return false;
  if (!needleSlide || needleSlide->IsOver(GetTickCount64()) || !IsWindowVisible(window)) StopNeedle();
  for (const FormItem& item : items) {
    if (item.KindOf() == Kind::TabKey) RepaintItem(item);
  }
  return true;
}

std::optional<int> FormParts::NeedleOn(const FormItem& tab, bool active) const {
  if (needleSlide) return needleSlide->At(GetTickCount64()) - tab.place.left;
  if (active) return MiddleOf(tab) - tab.place.left;
  return std::nullopt;
}

}  // namespace sonaro
