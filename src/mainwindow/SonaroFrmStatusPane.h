// The status line of the main window: what the guide holds, or the progress of an update. Part of SonaroFrm.
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
  // 0 to 100; below 0 when it is not known.
  void ShowProgress(const std::string& what, int percent);
  void EndProgress();

 private:
  Form& form_;
  const GuideData& data_;
};

}  // namespace sonaro
