// The needle of a form's tab dial: it stands on the active tab, and slides there from the one before.
#pragma once

#include <windows.h>

#include <optional>

#include "forms/ControlInstance.h"
#include "forms/paint/NeedleSlide.h"

namespace sonaro {

class TabNeedle {
 public:
  explicit TabNeedle(FormWindow& form) : form_(form) {}

  void MoveTo(const ControlInstance& tab);  // the tab is the active one now
  void Stop();                              // where it belongs, at once
  void Forget();                            // the form's window is gone
  bool Step(WPARAM timer);                  // false: the timer is another one
  // Where it stands, in pixels from the tab's left edge, perhaps beside the tab; nothing without one.
  std::optional<int> On(const ControlInstance& tab, bool active) const;

 private:
  FormWindow& form_;
  int tab_ = 0;            // that was made active last
  std::optional<int> at_;  // while it moves, in pixels of the form; set by its timer
  NeedleSlide slide_;      // begins with the timer's first tick
};

}  // namespace sonaro
