#include "forms/TabNeedle.h"

#include "forms/FormWindow.h"

namespace sonaro {
namespace {

constexpr UINT_PTR kNeedleTimer = 1;  // the timers of the tables have numbers of controls

bool SystemAnimates() {
  BOOL animates = FALSE;
  return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) && animates;
}

int MiddleOf(const ControlInstance& tab) { return (tab.place.left + tab.place.right) / 2; }

}  // namespace

// Nothing slides while the form is being built, while it is hidden, or when the user has switched animations
// off: the needle then stands at once where it belongs.
void TabNeedle::MoveTo(const ControlInstance& tab) {
  if (tab_ == tab.Id()) return;
  const ControlInstance* before = form_.Controls().Find(tab_);
  tab_ = tab.Id();
  if (!before || !IsWindowVisible(form_.Window()) || !SystemAnimates()) return Stop();
  // From where it is: another tab can be chosen while it is on its way.
  if (!at_) at_ = MiddleOf(*before);
  slide_ = {*at_, MiddleOf(tab)};
  SetTimer(form_.Window(), kNeedleTimer, NeedleSlide::kFrame, nullptr);
}

void TabNeedle::Stop() {
  if (!at_) return;
  slide_ = {};
  at_.reset();
  KillTimer(form_.Window(), kNeedleTimer);
}

// The timer went with the window.
void TabNeedle::Forget() {
  tab_ = 0;
  at_.reset();
}

// All tabs: the needle crosses those between, and each paints the piece of it that lies on it.
bool TabNeedle::Step(WPARAM timer) {
  if (timer != kNeedleTimer) return false;
  const std::uint64_t now = GetTickCount64();
  if (slide_.start == 0) slide_.start = now;  // what the tab shows is filled by now
  if (at_) at_ = slide_.At(now);
  if (slide_.IsOver(now) || !IsWindowVisible(form_.Window())) Stop();
  for (const ControlInstance& item : form_.Controls().All()) {
    if (item.KindOf() == ControlKind::TabButton) form_.Paint().Repaint(item);
  }
  return true;
}

std::optional<int> TabNeedle::On(const ControlInstance& tab, bool active) const {
  if (at_) return *at_ - tab.place.left;
  if (active) return MiddleOf(tab) - tab.place.left;
  return std::nullopt;
}

}  // namespace sonaro
