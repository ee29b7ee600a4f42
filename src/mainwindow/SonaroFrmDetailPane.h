// The selected station at the right of the main window. Part of SonaroFrm.
#pragma once

namespace sonaro {

class Form;
struct StationDetail;

class DetailPane {
 public:
  explicit DetailPane(Form& form) : form_(form) {}

  void Load();
  void Show(const StationDetail& detail);

 private:
  void ShowRatings(const StationDetail& detail);
  void ShowPlayKeys(const StationDetail& detail);

  Form& form_;
};

}  // namespace sonaro
