// The status line of the main window: what the guide holds, what was just done, or the progress of an update.
// Part of SonaroFrm.
#pragma once

#include <string>

namespace sonaro {

class Form;
struct GuideData;

class StatusPane {
 public:
  StatusPane(Form& form, const GuideData& data) : form_(form), data_(data) {}

  // Counts the stations anew.
  void ShowGuide();
  // A sentence about what was done. It stands until the window shows something else after that.
  void Say(const std::string& sentence);
  // After every change of what the window shows.
  void WindowChanged();
  // 0 to 100; below 0 when it is not known.
  void ShowProgress(const std::string& what, int percent);
  void EndProgress();

 private:
  enum class Said { Nothing, JustNow, Before };

  Form& form_;
  const GuideData& data_;
  Said said_ = Said::Nothing;
};

}  // namespace sonaro
